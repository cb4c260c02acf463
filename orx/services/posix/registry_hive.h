// One hive of the Linux registry: an SQLite database of keys and typed values.
//
// Keys form a tree below the root key; a key's name keeps its spelling, while lookups go by
// its folded (upper-cased) form, so names compare case-insensitively. Every write is one
// BEGIN IMMEDIATE transaction, so that concurrent writers queue behind the busy timeout
// instead of failing, and a reader never sees half a change. Key ids are never reused, so a
// handle to a deleted key cannot come to name another one.
#ifndef ORX_SERVICES_POSIX_REGISTRY_HIVE_H
#define ORX_SERVICES_POSIX_REGISTRY_HIVE_H

#include <sqlite3.h>
#include <sys/types.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace ORX::internal {

using RegistryKeyId = std::int64_t;

// A key or value name in UTF-8, as written and folded for comparison.
struct RegistryName {
    std::string name;
    std::string folded;
};

// A value's type and its bytes (text types hold UTF-8).
struct RegistryData {
    unsigned long type = 0;
    std::string bytes;
};

// How a hive keeps its transactions.
enum class HiveJournal {
    // A write-ahead log (WAL): readers go on while a writer writes. Every reader needs the
    // log's side files (-wal, -shm), which a reader that may not write the folder cannot
    // create: for the user's own hive.
    writeAhead,
    // A rollback journal that exists only while a write runs: a reader needs nothing but the
    // database file. For the hives that many users read and few write (machine, classes).
    rollback,
};

// The functions return Windows error codes, as the registry calls do.
class RegistryHive {
public:
    // The hive's top key, which the predefined key stands for.
    static constexpr RegistryKeyId kRootKey = 1;

    // Opens the database in `file`. A missing file is created (with its folder) only when
    // `create` is true, else the result is null with error = file not found. A file the
    // process may not write is opened read-only. A writer puts the database into the journal
    // mode asked for (when no other process has it open in WAL mode, which must end first).
    // A reader of a database left in WAL mode whose side files are gone and cannot be
    // created reads it as an unchanging snapshot (SQLite's immutable mode).
    static std::shared_ptr<RegistryHive> open(std::string const& file, bool create,
                                              HiveJournal journal, long& error);
    ~RegistryHive();
    RegistryHive(RegistryHive const&) = delete;
    RegistryHive& operator=(RegistryHive const&) = delete;

    // True while `file` is still the database this hive opened (not deleted or replaced).
    bool isAt(std::string const& file) const;
    // Called before each use: a process made by fork() must not use the connection it
    // inherited, so it opens its own and abandons the inherited one (closing it could
    // disturb the parent's locks).
    long useInThisProcess();

    long findKey(RegistryKeyId from, std::vector<RegistryName> const& path, RegistryKeyId& key);
    long createKey(RegistryKeyId from, std::vector<RegistryName> const& path, RegistryKeyId& key);
    // Deletes the key with everything below it; the root key cannot be deleted.
    long deleteKey(RegistryKeyId key);

    long queryValue(RegistryKeyId key, std::string const& folded, RegistryData& data);
    long setValue(RegistryKeyId key, RegistryName const& name, RegistryData const& data);
    long deleteValue(RegistryKeyId key, std::string const& folded);

    // Entries by index, in folded-name order.
    long valueAt(RegistryKeyId key, std::int64_t index, std::string& name, RegistryData& data);
    long subKeyAt(RegistryKeyId key, std::int64_t index, std::string& name);

private:
    RegistryHive(sqlite3* db, std::string file, bool readOnly, HiveJournal journal);
    static bool identify(std::string const& file, std::uint64_t& device, std::uint64_t& inode);
    static std::shared_ptr<RegistryHive> openImmutable(std::string const& file, long& error);
    long configure();
    long configureJournal();
    long createSchema();
    bool keyExists(RegistryKeyId key);
    // The error for an entry that was not found: the key itself may be gone.
    long missing(RegistryKeyId key, long notFound);

    sqlite3* m_db;
    std::string m_file;
    std::uint64_t m_device = 0;
    std::uint64_t m_inode = 0;
    bool m_readOnly;
    HiveJournal m_journal;
    bool m_immutable = false;
    pid_t m_process;
};

}  // namespace ORX::internal

#endif  // ORX_SERVICES_POSIX_REGISTRY_HIVE_H
