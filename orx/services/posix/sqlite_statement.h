// A prepared SQLite statement that finalises itself, with the few bind and column calls the
// registry hives use.
#ifndef ORX_SERVICES_POSIX_SQLITE_STATEMENT_H
#define ORX_SERVICES_POSIX_SQLITE_STATEMENT_H

#include <sqlite3.h>

#include <cstdint>
#include <string>

namespace ORX::internal {

class SqliteStatement {
public:
    // Prepares sql; a failure shows as the result of step().
    SqliteStatement(sqlite3* db, char const* sql);
    ~SqliteStatement();
    SqliteStatement(SqliteStatement const&) = delete;
    SqliteStatement& operator=(SqliteStatement const&) = delete;

    // Parameters count from 1, as in SQL.
    SqliteStatement& bind(int index, std::int64_t value);
    SqliteStatement& bindText(int index, std::string const& text);
    SqliteStatement& bindBlob(int index, std::string const& bytes);

    // SQLITE_ROW, SQLITE_DONE or the error.
    int step();
    // Columns count from 0.
    std::int64_t integer(int column) const;
    std::string text(int column) const;
    std::string blob(int column) const;

private:
    sqlite3_stmt* m_statement = nullptr;
    int m_prepareResult;
};

// Runs a statement without parameters or result rows; the SQLite result code.
int sqliteExecute(sqlite3* db, char const* sql);

}  // namespace ORX::internal

#endif  // ORX_SERVICES_POSIX_SQLITE_STATEMENT_H
