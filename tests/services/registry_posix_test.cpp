// What only the Linux registry has: its folders, and several processes sharing a hive, one
// of them killed while it writes.
#include <sqlite3.h>

#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "orx/services/registry.h"
#include "process_test_support.h"
#include "registry_test_support.h"

namespace {

namespace fs = std::filesystem;

// Writers sharing the hive, and how long they write.
constexpr int kWorkers = 4;
constexpr int kShareMilliseconds = 3000;
// Kill trials, and how long a killed writer may write first.
constexpr int kKillTrials = 5;
constexpr int kWriteBeforeKillMs = 300;

// A running orx_registry_worker whose output is collected; with a user id it runs as that
// user and group (the caller must be root).
class Worker {
public:
    explicit Worker(std::vector<std::string> arguments, std::string const& userId = "") {
        arguments.insert(arguments.begin(),
                         orx_test::programBeside("orx_registry_worker").string());
        if (!userId.empty()) {
            arguments.insert(arguments.begin(), {"setpriv", "--reuid=" + userId,
                                                 "--regid=" + userId, "--clear-groups", "--"});
        }
        m_pid = orx_test::spawnProgram(arguments, &m_output);
    }
    ~Worker() { close(m_output); }

    bool started() const { return m_pid > 0; }
    void kill() const { ::kill(m_pid, SIGKILL); }
    // Waits for the end; the exit status and everything printed.
    int finish(std::string& output) const {
        output = orx_test::readAll(m_output);
        return orx_test::waitForExit(m_pid);
    }

private:
    pid_t m_pid = -1;
    int m_output = -1;
};

class RegistryProcessesTest : public ::testing::Test {
protected:
    void SetUp() override {
        ORX::regBasePathSet(L"Software\\OrxWorker");
        ORX::curVerSet(L"1");
    }
    void TearDown() override { ORX::curVerSet(nullptr); }

    std::string hiveFile() const { return (m_folder.folder() / "user.db").string(); }

    orx_test::RegistryFolder m_folder;
};

// The first row of the integrity check is "ok" only for an intact database.
bool passesIntegrityCheck(std::string const& file) {
    sqlite3* db = nullptr;
    sqlite3_stmt* check = nullptr;
    bool const ok =
        sqlite3_open_v2(file.c_str(), &db, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK &&
        sqlite3_prepare_v2(db, "PRAGMA integrity_check", -1, &check, nullptr) == SQLITE_OK &&
        sqlite3_step(check) == SQLITE_ROW &&
        std::string(reinterpret_cast<char const*>(sqlite3_column_text(check, 0))) == "ok";
    sqlite3_finalize(check);
    sqlite3_close(db);
    return ok;
}

// The last number the worker printed in full (the last write it saw return), or -1.
long lastPrinted(std::string output) {
    output.erase(output.rfind('\n') + 1);  // a line cut short by the kill
    if (output.empty()) {
        return -1;
    }
    output.pop_back();
    return std::stol(output.substr(output.rfind('\n') + 1));
}

}  // namespace

TEST(RegistryFoldersTest, HivesFollowTheXdgConfigFolders) {
    orx_test::ScratchDirectory scratch;
    fs::path const folder = scratch.path();
    orx_test::ScopedEnv noFolder("ORX_REGISTRY_DIR", std::nullopt);
    orx_test::ScopedEnv home("XDG_CONFIG_HOME", (folder / "home").string());
    orx_test::ScopedEnv dirs("XDG_CONFIG_DIRS",
                             "relative:" + (folder / "system").string() + ":/etc/xdg");
    ORX::regBasePathSet(L"Software\\Folders");
    ORX::curVerSet(L"1");

    EXPECT_TRUE(ORX::regWrite(L"App", L"User", 1ul));
    EXPECT_TRUE(ORX::regWrite(orx_test::Key(ORX::regCreateKey(HKEY_LOCAL_MACHINE, L"Software")),
                              L"Machine", 2ul));
    EXPECT_TRUE(ORX::regWrite(orx_test::Key(ORX::regCreateKey(HKEY_CLASSES_ROOT, L"Orx.Test")),
                              nullptr, L"class", false));
    EXPECT_TRUE(fs::exists(folder / "home/orx/registry/user.db"));
    EXPECT_TRUE(fs::exists(folder / "system/orx/registry/machine.db"));
    EXPECT_TRUE(fs::exists(folder / "system/orx/registry/classes.db"));

    // The folder is looked up at every call; a hive that was never written is empty.
    orx_test::ScopedEnv other("ORX_REGISTRY_DIR", (folder / "other").string());
    EXPECT_FALSE(orx_test::readValue<unsigned long>(L"App", L"User"));
    EXPECT_FALSE(fs::exists(folder / "other"));
    ORX::curVerSet(nullptr);
}

// Values of types the settings functions never write (here REG_BINARY, planted straight
// into the hive) are kept byte for byte: a zero and bytes that are not text survive a copy.
TEST_F(RegistryProcessesTest, BinaryValuesAreKeptByteForByte) {
    orx_test::Key const source(ORX::regCreateKey(HKEY_CURRENT_USER, L"Software\\Binary"));
    ASSERT_TRUE(ORX::regWrite(source, L"Marker", 1ul));  // creates the hive and the key
    std::string const bytes("\x01\x00\xff\xfe\x80\x7f", 6);
    sqlite3* db = nullptr;
    ASSERT_EQ(sqlite3_open(hiveFile().c_str(), &db), SQLITE_OK);
    // Runs `sql` with the bytes bound to its "?"; the first column of its first row.
    auto const run = [db, &bytes](char const* sql) {
        sqlite3_stmt* statement = nullptr;
        sqlite3_prepare_v2(db, sql, -1, &statement, nullptr);
        sqlite3_bind_blob(statement, 1, bytes.data(), static_cast<int>(bytes.size()), nullptr);
        int const result =
            sqlite3_step(statement) == SQLITE_ROW ? sqlite3_column_int(statement, 0) : -1;
        sqlite3_finalize(statement);
        return result;
    };
    run("INSERT INTO vals(key, name, folded, type, data) "
        "SELECT key, 'Blob', 'BLOB', 3, ? FROM vals WHERE folded = 'MARKER'");

    orx_test::Key const copy(ORX::regCreateKey(HKEY_CURRENT_USER, L"Software\\Copy"));
    EXPECT_TRUE(ORX::regCopyTree(copy, source, true));
    // The lenient number read takes any type.
    EXPECT_EQ(orx_test::readValue<unsigned long>(copy, L"Blob"), 0xfeff0001ul);
    EXPECT_EQ(run("SELECT count(*) FROM vals WHERE folded = 'BLOB' AND type = 3 AND data = ?"), 2);
    sqlite3_close(db);
}

// Exit handlers and static destructors of a client may still use the registry after the
// library's own statics are gone; the registry used to be destroyed with them, and such a
// late write used freed memory.
TEST_F(RegistryProcessesTest, AStaticDestructorWritesAfterTheRegistrysOwnStatics) {
    Worker writer({"at-exit", "4242"});
    ASSERT_TRUE(writer.started());
    std::string output;
    EXPECT_EQ(writer.finish(output), 0) << output;
    orx_test::Key const key(ORX::regOpenKey(HKEY_CURRENT_USER, L"Software\\OrxWorker", false));
    EXPECT_EQ(orx_test::readValue<unsigned long>(key, L"AtExit"), 4242ul);
    EXPECT_TRUE(passesIntegrityCheck(hiveFile()));
}

// The machine hive is written by an administrator and read by everyone; a reader may write
// neither the database nor its folder.
TEST_F(RegistryProcessesTest, AUserWhoMayNotWriteTheMachineHiveReadsIt) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "needs root to run a reader as another user";
    }
    {
        orx_test::Key const key(ORX::regCreateKey(HKEY_LOCAL_MACHINE, L"Software\\OrxWorker"));
        ASSERT_TRUE(ORX::regWrite(key, L"Machine", 4711ul));
    }
    fs::permissions(m_folder.folder(), fs::perms::owner_all | fs::perms::group_read |
                                           fs::perms::group_exec | fs::perms::others_read |
                                           fs::perms::others_exec);
    Worker reader({"machine", "4711"}, "65534");  // nobody
    ASSERT_TRUE(reader.started());
    std::string output;
    EXPECT_EQ(reader.finish(output), 0) << output;
}

// What an administrator deploys: the machine hive's database file alone, in a folder its
// readers may not write. Also when it was left in WAL mode by another SQLite client, whose
// closing removed the side files.
TEST_F(RegistryProcessesTest, AReaderNeedsNothingButTheMachineHiveFile) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "needs root to run a reader as another user";
    }
    {
        orx_test::Key const key(ORX::regCreateKey(HKEY_LOCAL_MACHINE, L"Software\\OrxWorker"));
        ASSERT_TRUE(ORX::regWrite(key, L"Machine", 4711ul));
    }
    fs::perms const readable = fs::perms::owner_all | fs::perms::group_read |
                               fs::perms::group_exec | fs::perms::others_read |
                               fs::perms::others_exec;
    for (bool const leftInWalMode : {false, true}) {
        orx_test::ScratchDirectory deployed;
        fs::copy_file(m_folder.folder() / "machine.db", deployed.path() / "machine.db");
        if (leftInWalMode) {
            sqlite3* db = nullptr;
            ASSERT_EQ(sqlite3_open((deployed.path() / "machine.db").c_str(), &db), SQLITE_OK);
            sqlite3_exec(db, "PRAGMA journal_mode=WAL", nullptr, nullptr, nullptr);
            sqlite3_close(db);
        }
        ASSERT_EQ(std::distance(fs::directory_iterator(deployed.path()), fs::directory_iterator()),
                  1);
        fs::permissions(deployed.path(), readable);
        orx_test::ScopedEnv folder("ORX_REGISTRY_DIR", deployed.narrow());
        Worker reader({"machine", "4711"}, "65534");  // nobody
        ASSERT_TRUE(reader.started());
        std::string output;
        EXPECT_EQ(reader.finish(output), 0) << (leftInWalMode ? "WAL mode " : "") << output;
    }
}

// Processes that open a hive nobody has created yet all write to it: switching the new
// database to its journal mode used to fail at once for those that found it held.
TEST_F(RegistryProcessesTest, ProcessesOpeningANewHiveTogetherAllWrite) {
    for (int trial = 0; trial < 10; ++trial) {
        orx_test::ScratchDirectory fresh;
        orx_test::ScopedEnv folder("ORX_REGISTRY_DIR", fresh.narrow());
        std::vector<std::unique_ptr<Worker>> workers;
        for (int id = 0; id < 6; ++id) {
            workers.push_back(std::make_unique<Worker>(
                std::vector<std::string>{"share", std::to_string(id), "1"}));
            ASSERT_TRUE(workers.back()->started());
        }
        for (auto const& worker : workers) {
            std::string output;
            EXPECT_EQ(worker->finish(output), 0) << "trial " << trial;
        }
    }
}

TEST_F(RegistryProcessesTest, ConcurrentWritersLoseNothingAndReadNothingTorn) {
    std::vector<std::unique_ptr<Worker>> workers;
    for (int id = 0; id < kWorkers; ++id) {
        workers.push_back(std::make_unique<Worker>(std::vector<std::string>{
            "share", std::to_string(id), std::to_string(kShareMilliseconds)}));
        ASSERT_TRUE(workers.back()->started());
    }
    std::vector<int> rounds;
    for (auto const& worker : workers) {
        std::string output;
        EXPECT_EQ(worker->finish(output), 0);
        rounds.push_back(std::atoi(output.c_str()));
    }
    for (int id = 0; id < kWorkers; ++id) {
        EXPECT_GT(rounds[static_cast<std::size_t>(id)], 0);
        for (int round = 0; round < rounds[static_cast<std::size_t>(id)]; ++round) {
            COrxString name;
            name.format(L"Own\\%d_%d", id, round);
            ASSERT_EQ(orx_test::readValue<unsigned long>(L"Worker", name),
                      static_cast<unsigned long>(round));
        }
    }
    EXPECT_TRUE(passesIntegrityCheck(hiveFile()));
}

TEST_F(RegistryProcessesTest, AKilledWriterLeavesEveryCommittedValue) {
    for (int trial = 0; trial < kKillTrials; ++trial) {
        Worker worker({"endless"});
        ASSERT_TRUE(worker.started());
        std::this_thread::sleep_for(std::chrono::milliseconds(kWriteBeforeKillMs));
        worker.kill();
        std::string output;
        EXPECT_EQ(worker.finish(output), 128 + SIGKILL);

        ASSERT_TRUE(passesIntegrityCheck(hiveFile())) << "trial " << trial;
        long const committed = lastPrinted(output);
        EXPECT_GT(committed, 0) << "trial " << trial;
        for (long n = 0; n <= committed; ++n) {
            COrxString name;
            name.format(L"K%ld", n);
            ASSERT_EQ(orx_test::readValue<unsigned long>(L"Worker", name),
                      static_cast<unsigned long>(n))
                << "trial " << trial;
        }
    }
}

// A process made by fork() opens its own connection to a hive at its first use. When that
// fails (here the machine hive's file is briefly not a database), the next use tries again
// instead of going on with the connection that failed.
TEST_F(RegistryProcessesTest, AForkedProcessRetriesAHiveItCouldNotOpen) {
    orx_test::Key key(ORX::regCreateKey(HKEY_LOCAL_MACHINE, L"Software\\OrxFork"));
    ASSERT_NE(key.get(), nullptr);
    ASSERT_TRUE(ORX::regWrite(key, L"n", 7ul));
    std::string const file = (m_folder.folder() / "machine.db").string();
    std::string const aside = file + ".aside";

    pid_t const child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        unsigned long value = 0;
        bool const moved = std::rename(file.c_str(), aside.c_str()) == 0;
        std::ofstream(file) << std::string(4096, 'x');
        bool const failed = !ORX::regRead(key, L"n", value);
        bool const restored = std::rename(aside.c_str(), file.c_str()) == 0;
        bool const retried = ORX::regRead(key, L"n", value) && value == 7;
        _exit(!moved || !restored ? 3 : !failed ? 2 : !retried ? 1 : 0);
    }
    // 3: the file could not be swapped, 2: the broken file was read, 1: no second try.
    EXPECT_EQ(orx_test::waitForExit(child), 0);
}
