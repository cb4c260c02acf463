#include "orx/services/posix/sqlite_statement.h"

namespace ORX::internal {

SqliteStatement::SqliteStatement(sqlite3* db, char const* sql)
    : m_prepareResult(sqlite3_prepare_v2(db, sql, -1, &m_statement, nullptr)) {}

SqliteStatement::~SqliteStatement() {
    sqlite3_finalize(m_statement);
}

SqliteStatement& SqliteStatement::bind(int index, std::int64_t value) {
    sqlite3_bind_int64(m_statement, index, value);
    return *this;
}

SqliteStatement& SqliteStatement::bindText(int index, std::string const& text) {
    sqlite3_bind_text(m_statement, index, text.data(), static_cast<int>(text.size()),
                      SQLITE_TRANSIENT);
    return *this;
}

// data() is never null, so even empty data binds a zero-length blob rather than NULL.
SqliteStatement& SqliteStatement::bindBlob(int index, std::string const& bytes) {
    sqlite3_bind_blob64(m_statement, index, bytes.data(), bytes.size(), SQLITE_TRANSIENT);
    return *this;
}

int SqliteStatement::step() {
    if (m_prepareResult != SQLITE_OK) {
        return m_prepareResult;
    }
    return sqlite3_step(m_statement);
}

std::int64_t SqliteStatement::integer(int column) const {
    return sqlite3_column_int64(m_statement, column);
}

std::string SqliteStatement::text(int column) const {
    auto const* const chars = sqlite3_column_text(m_statement, column);
    int const size = sqlite3_column_bytes(m_statement, column);
    return chars == nullptr
               ? std::string()
               : std::string(reinterpret_cast<char const*>(chars), static_cast<std::size_t>(size));
}

std::string SqliteStatement::blob(int column) const {
    void const* const bytes = sqlite3_column_blob(m_statement, column);
    int const size = sqlite3_column_bytes(m_statement, column);
    return bytes == nullptr
               ? std::string()
               : std::string(static_cast<char const*>(bytes), static_cast<std::size_t>(size));
}

int sqliteExecute(sqlite3* db, char const* sql) {
    return sqlite3_exec(db, sql, nullptr, nullptr, nullptr);
}

}  // namespace ORX::internal
