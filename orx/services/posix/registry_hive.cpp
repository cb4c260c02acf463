#include "orx/services/posix/registry_hive.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cctype>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <string>
#include <thread>
#include <utility>

#include "orx/services/internal/registry_api.h"
#include "orx/services/posix/sqlite_statement.h"
#include "orx/services/registry.h"

namespace ORX::internal {
namespace {

// The schema's version, kept in the database's user_version.
constexpr int kSchemaVersion = 1;

// AUTOINCREMENT keeps key ids from being reused after a deletion. Deleting a key deletes its
// sub-keys and values through the foreign keys.
constexpr char const* kTables = R"sql(
CREATE TABLE IF NOT EXISTS keys(
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    parent INTEGER REFERENCES keys(id) ON DELETE CASCADE,
    name TEXT NOT NULL,
    folded TEXT NOT NULL,
    UNIQUE(parent, folded));
CREATE TABLE IF NOT EXISTS vals(
    key INTEGER NOT NULL REFERENCES keys(id) ON DELETE CASCADE,
    name TEXT NOT NULL,
    folded TEXT NOT NULL,
    type INTEGER NOT NULL,
    data BLOB NOT NULL,
    PRIMARY KEY(key, folded)) WITHOUT ROWID;
)sql";

// The tables, the root key (unnamed, without a parent) and the schema's version.
std::string schemaText() {
    return std::string(kTables) + "INSERT OR IGNORE INTO keys(id, parent, name, folded) VALUES(" +
           std::to_string(RegistryHive::kRootKey) + ", NULL, '', '');\n" +
           "PRAGMA user_version = " + std::to_string(kSchemaVersion) + ";\n";
}

long errorFrom(int result) {
    switch (result & 0xFF) {
        case SQLITE_OK:
        case SQLITE_ROW:
        case SQLITE_DONE:
            return kErrorSuccess;
        case SQLITE_READONLY:
        case SQLITE_PERM:
        case SQLITE_AUTH:
            return kErrorAccessDenied;
        default:
            return kErrorRegistryIoFailed;
    }
}

// Runs a statement that SQLite answers "busy" at once instead of calling the busy handler:
// switching a database into WAL mode needs it to itself, and several processes that open a
// new hive together each find it held by the others. Retried for up to the busy timeout.
int executeWaitingOutBusy(sqlite3* db, char const* sql) {
    auto const end =
        std::chrono::steady_clock::now() + std::chrono::milliseconds(kRegistryBusyTimeoutMs);
    for (;;) {
        int const result = sqliteExecute(db, sql);
        if ((result & 0xff) != SQLITE_BUSY || std::chrono::steady_clock::now() >= end) {
            return result;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
}

// A transaction rolled back unless committed. Writes begin with BEGIN IMMEDIATE, which takes
// the write lock at once (waiting out the busy timeout): a deferred transaction that later
// needs it could only fail, not wait. Reads of several statements begin a deferred one, so
// that they see one state of the database.
class Transaction {
public:
    Transaction(sqlite3* db, bool write)
        : m_db(db), m_result(sqliteExecute(db, write ? "BEGIN IMMEDIATE" : "BEGIN")) {}
    ~Transaction() {
        if (m_result == SQLITE_OK) {
            sqliteExecute(m_db, "ROLLBACK");
        }
    }
    Transaction(Transaction const&) = delete;
    Transaction& operator=(Transaction const&) = delete;

    long begun() const { return errorFrom(m_result); }

    // Returns `error` unchanged when it is a failure (and rolls back); else commits.
    long finish(long error) {
        if (error != kErrorSuccess || m_result != SQLITE_OK) {
            return error;
        }
        int const committed = sqliteExecute(m_db, "COMMIT");
        if (committed == SQLITE_OK) {
            m_result = SQLITE_DONE;
        }
        return errorFrom(committed);
    }

private:
    sqlite3* m_db;
    int m_result;
};

// mkdir -p of the folder that holds `file`.
bool createFolderOf(std::string const& file) {
    std::size_t at = 0;
    while ((at = file.find('/', at + 1)) != std::string::npos) {
        std::string const folder = file.substr(0, at);
        if (mkdir(folder.c_str(), 0755) != 0 && errno != EEXIST) {
            return false;
        }
    }
    return true;
}

// The byte of the database header that is 2 while the database is in WAL mode.
constexpr long kHeaderWalOffset = 18;
constexpr int kHeaderWalMode = 2;

// A database in WAL mode whose log is gone: all it holds is in the database file.
bool isWalWithoutLog(std::string const& file) {
    std::FILE* const stream = std::fopen(file.c_str(), "rb");
    if (stream == nullptr) {
        return false;
    }
    bool const wal =
        std::fseek(stream, kHeaderWalOffset, SEEK_SET) == 0 && std::fgetc(stream) == kHeaderWalMode;
    std::fclose(stream);
    return wal && access((file + "-wal").c_str(), F_OK) != 0;
}

// The URI of a file opened immutable: the path with the characters a URI reserves escaped.
std::string immutableUri(std::string const& file) {
    std::string uri = "file:";
    for (unsigned char c : file) {
        if (std::isalnum(c) || std::strchr("/-._~", c) != nullptr) {
            uri += static_cast<char>(c);
        } else {
            char escaped[4];
            std::snprintf(escaped, sizeof escaped, "%%%02X", c);
            uri += escaped;
        }
    }
    return uri + "?immutable=1";
}

// Opens a connection; an immutable one is read-only and takes no locks.
int openConnection(std::string const& file, int flags, bool immutable, sqlite3*& db) {
    db = nullptr;
    int const result = immutable ? sqlite3_open_v2(immutableUri(file).c_str(), &db,
                                                   SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, nullptr)
                                 : sqlite3_open_v2(file.c_str(), &db, flags, nullptr);
    if (result != SQLITE_OK) {
        sqlite3_close(db);
        db = nullptr;
    }
    return result;
}

}  // namespace

std::shared_ptr<RegistryHive> RegistryHive::open(std::string const& file, bool create,
                                                 HiveJournal journal, long& error) {
    struct stat status {};
    bool const exists = !file.empty() && stat(file.c_str(), &status) == 0;
    if (!exists && (!create || file.empty())) {
        error = kErrorFileNotFound;
        return nullptr;
    }
    if (!exists && !createFolderOf(file)) {
        error = kErrorAccessDenied;
        return nullptr;
    }
    sqlite3* db = nullptr;
    int const flags = SQLITE_OPEN_READWRITE | (exists ? 0 : SQLITE_OPEN_CREATE);
    if (openConnection(file, flags, false, db) != SQLITE_OK) {
        error = exists ? kErrorRegistryIoFailed : kErrorAccessDenied;
        return nullptr;
    }
    // SQLite opens a file it may not write read-only, without failing.
    bool const readOnly = sqlite3_db_readonly(db, "main") == 1;
    std::shared_ptr<RegistryHive> hive(new RegistryHive(db, file, readOnly, journal));
    error = hive->configure();
    if (error != kErrorSuccess && readOnly && isWalWithoutLog(file)) {
        return openImmutable(file, error);
    }
    return error == kErrorSuccess ? hive : nullptr;
}

// A reader that may not create the log's side files cannot open a database in WAL mode
// without them; with the log gone the database file holds every committed change, and it is
// read as it is. A later write by another process is not seen until the hive is opened again.
std::shared_ptr<RegistryHive> RegistryHive::openImmutable(std::string const& file, long& error) {
    sqlite3* db = nullptr;
    if (openConnection(file, SQLITE_OPEN_READONLY, true, db) != SQLITE_OK) {
        error = kErrorRegistryIoFailed;
        return nullptr;
    }
    std::shared_ptr<RegistryHive> hive(new RegistryHive(db, file, true, HiveJournal::rollback));
    hive->m_immutable = true;
    error = hive->configure();
    return error == kErrorSuccess ? hive : nullptr;
}

RegistryHive::RegistryHive(sqlite3* db, std::string file, bool readOnly, HiveJournal journal)
    : m_db(db),
      m_file(std::move(file)),
      m_readOnly(readOnly),
      m_journal(journal),
      m_process(getpid()) {
    identify(m_file, m_device, m_inode);
}

long RegistryHive::useInThisProcess() {
    if (getpid() == m_process) {
        return kErrorSuccess;
    }
    sqlite3* db = nullptr;
    int const flags = m_readOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
    if (openConnection(m_file, flags, m_immutable, db) != SQLITE_OK) {
        return kErrorRegistryIoFailed;
    }
    // The hive counts as this process's only once its own connection is ready: after a
    // failure the next use tries again instead of going on with a half-configured connection.
    // The inherited connection stays unused meanwhile.
    sqlite3* const inherited = m_db;
    m_db = db;
    long const error = configure();
    if (error != kErrorSuccess) {
        sqlite3_close(db);
        m_db = inherited;
        return error;
    }
    m_process = getpid();
    return kErrorSuccess;
}

bool RegistryHive::identify(std::string const& file, std::uint64_t& device, std::uint64_t& inode) {
    struct stat status {};
    if (stat(file.c_str(), &status) != 0) {
        return false;
    }
    device = status.st_dev;
    inode = status.st_ino;
    return true;
}

bool RegistryHive::isAt(std::string const& file) const {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    return file == m_file && identify(file, device, inode) && device == m_device &&
           inode == m_inode;
}

RegistryHive::~RegistryHive() {
    sqlite3_close(m_db);
}

long RegistryHive::configure() {
    sqlite3_busy_timeout(m_db, kRegistryBusyTimeoutMs);
    if (!m_readOnly && configureJournal() != kErrorSuccess) {
        return kErrorRegistryIoFailed;
    }
    if (sqliteExecute(m_db, "PRAGMA foreign_keys=ON") != SQLITE_OK) {
        return kErrorRegistryIoFailed;
    }
    std::int64_t version = -1;
    {
        // Finished before the schema is created: a statement still open would hold a read
        // snapshot, and a write lock cannot be waited for from behind an outdated one.
        SqliteStatement query(m_db, "PRAGMA user_version");
        if (query.step() != SQLITE_ROW) {
            return kErrorRegistryIoFailed;  // not a database
        }
        version = query.integer(0);
    }
    if (version == kSchemaVersion) {
        return kErrorSuccess;
    }
    return m_readOnly ? kErrorRegistryIoFailed : createSchema();
}

// synchronous=FULL makes every commit durable before it returns. The user's hive keeps its
// WAL's side files when it closes (PERSIST_WAL), so that its next opening need not make them.
// The shared hives leave WAL mode: a reader that may not write their folder (a user reading
// the machine hive an administrator wrote) could open a WAL database only while its side
// files exist. Leaving WAL mode needs the database to itself; while another process holds it
// open in WAL mode the switch fails, and a later writer makes it.
long RegistryHive::configureJournal() {
    if (m_journal == HiveJournal::writeAhead) {
        int persistWal = 1;
        sqlite3_file_control(m_db, "main", SQLITE_FCNTL_PERSIST_WAL, &persistWal);
        if (executeWaitingOutBusy(m_db, "PRAGMA journal_mode=WAL") != SQLITE_OK) {
            return kErrorRegistryIoFailed;
        }
    } else {
        sqliteExecute(m_db, "PRAGMA journal_mode=DELETE");
    }
    return sqliteExecute(m_db, "PRAGMA synchronous=FULL") == SQLITE_OK ? kErrorSuccess
                                                                       : kErrorRegistryIoFailed;
}

// Several processes may create the same new database at once; the write lock makes one of
// them create the tables and the others find them.
long RegistryHive::createSchema() {
    Transaction transaction(m_db, true);
    if (transaction.begun() != kErrorSuccess) {
        return transaction.begun();
    }
    return transaction.finish(errorFrom(sqliteExecute(m_db, schemaText().c_str())));
}

bool RegistryHive::keyExists(RegistryKeyId key) {
    SqliteStatement query(m_db, "SELECT 1 FROM keys WHERE id = ?1");
    return query.bind(1, key).step() == SQLITE_ROW;
}

long RegistryHive::missing(RegistryKeyId key, long notFound) {
    return keyExists(key) ? notFound : kErrorKeyDeleted;
}

long RegistryHive::findKey(RegistryKeyId from, std::vector<RegistryName> const& path,
                           RegistryKeyId& key) {
    Transaction transaction(m_db, false);
    if (!keyExists(from)) {
        return kErrorKeyDeleted;
    }
    RegistryKeyId at = from;
    for (RegistryName const& name : path) {
        SqliteStatement child(m_db, "SELECT id FROM keys WHERE parent = ?1 AND folded = ?2");
        if (child.bind(1, at).bindText(2, name.folded).step() != SQLITE_ROW) {
            return kErrorFileNotFound;
        }
        at = child.integer(0);
    }
    key = at;
    return kErrorSuccess;
}

long RegistryHive::createKey(RegistryKeyId from, std::vector<RegistryName> const& path,
                             RegistryKeyId& key) {
    if (m_readOnly) {
        return kErrorAccessDenied;
    }
    Transaction transaction(m_db, true);
    if (transaction.begun() != kErrorSuccess) {
        return transaction.begun();
    }
    if (!keyExists(from)) {
        return kErrorKeyDeleted;
    }
    RegistryKeyId at = from;
    for (RegistryName const& name : path) {
        SqliteStatement child(m_db, "SELECT id FROM keys WHERE parent = ?1 AND folded = ?2");
        int const found = child.bind(1, at).bindText(2, name.folded).step();
        if (found == SQLITE_ROW) {
            at = child.integer(0);
            continue;
        }
        SqliteStatement insert(m_db, "INSERT INTO keys(parent, name, folded) VALUES(?1, ?2, ?3)");
        int const inserted =
            insert.bind(1, at).bindText(2, name.name).bindText(3, name.folded).step();
        if (inserted != SQLITE_DONE) {
            return errorFrom(inserted);
        }
        at = sqlite3_last_insert_rowid(m_db);
    }
    long const result = transaction.finish(kErrorSuccess);
    if (result == kErrorSuccess) {
        key = at;
    }
    return result;
}

long RegistryHive::deleteKey(RegistryKeyId key) {
    if (m_readOnly || key == kRootKey) {
        return kErrorAccessDenied;
    }
    Transaction transaction(m_db, true);
    if (transaction.begun() != kErrorSuccess) {
        return transaction.begun();
    }
    SqliteStatement remove(m_db, "DELETE FROM keys WHERE id = ?1");
    int const removed = remove.bind(1, key).step();
    if (removed != SQLITE_DONE) {
        return errorFrom(removed);
    }
    return transaction.finish(sqlite3_changes(m_db) == 0 ? kErrorKeyDeleted : kErrorSuccess);
}

long RegistryHive::queryValue(RegistryKeyId key, std::string const& folded, RegistryData& data) {
    Transaction transaction(m_db, false);
    SqliteStatement query(m_db, "SELECT type, data FROM vals WHERE key = ?1 AND folded = ?2");
    if (query.bind(1, key).bindText(2, folded).step() != SQLITE_ROW) {
        return missing(key, kErrorFileNotFound);
    }
    data.type = static_cast<unsigned long>(query.integer(0));
    data.bytes = query.blob(1);
    return kErrorSuccess;
}

long RegistryHive::setValue(RegistryKeyId key, RegistryName const& name, RegistryData const& data) {
    if (m_readOnly) {
        return kErrorAccessDenied;
    }
    Transaction transaction(m_db, true);
    if (transaction.begun() != kErrorSuccess) {
        return transaction.begun();
    }
    if (!keyExists(key)) {
        return kErrorKeyDeleted;
    }
    // A value written again keeps the spelling of its name, as the registry does.
    SqliteStatement upsert(m_db,
                           "INSERT INTO vals(key, name, folded, type, data) "
                           "VALUES(?1, ?2, ?3, ?4, ?5) ON CONFLICT(key, folded) "
                           "DO UPDATE SET type = excluded.type, data = excluded.data");
    upsert.bind(1, key).bindText(2, name.name).bindText(3, name.folded);
    upsert.bind(4, static_cast<std::int64_t>(data.type)).bindBlob(5, data.bytes);
    int const written = upsert.step();
    return transaction.finish(written == SQLITE_DONE ? kErrorSuccess : errorFrom(written));
}

long RegistryHive::deleteValue(RegistryKeyId key, std::string const& folded) {
    if (m_readOnly) {
        return kErrorAccessDenied;
    }
    Transaction transaction(m_db, true);
    if (transaction.begun() != kErrorSuccess) {
        return transaction.begun();
    }
    SqliteStatement remove(m_db, "DELETE FROM vals WHERE key = ?1 AND folded = ?2");
    int const removed = remove.bind(1, key).bindText(2, folded).step();
    if (removed != SQLITE_DONE) {
        return errorFrom(removed);
    }
    if (sqlite3_changes(m_db) == 0) {
        return missing(key, kErrorFileNotFound);
    }
    return transaction.finish(kErrorSuccess);
}

long RegistryHive::valueAt(RegistryKeyId key, std::int64_t index, std::string& name,
                           RegistryData& data) {
    Transaction transaction(m_db, false);
    SqliteStatement query(m_db,
                          "SELECT name, type, data FROM vals WHERE key = ?1 "
                          "ORDER BY folded LIMIT 1 OFFSET ?2");
    if (query.bind(1, key).bind(2, index).step() != SQLITE_ROW) {
        return missing(key, kErrorNoMoreItems);
    }
    name = query.text(0);
    data.type = static_cast<unsigned long>(query.integer(1));
    data.bytes = query.blob(2);
    return kErrorSuccess;
}

long RegistryHive::subKeyAt(RegistryKeyId key, std::int64_t index, std::string& name) {
    Transaction transaction(m_db, false);
    SqliteStatement query(m_db,
                          "SELECT name FROM keys WHERE parent = ?1 "
                          "ORDER BY folded LIMIT 1 OFFSET ?2");
    if (query.bind(1, key).bind(2, index).step() != SQLITE_ROW) {
        return missing(key, kErrorNoMoreItems);
    }
    name = query.text(0);
    return kErrorSuccess;
}

}  // namespace ORX::internal
