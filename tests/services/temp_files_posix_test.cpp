// The temporary folder and names on Linux, where /tmp is shared by every user: the folder
// must be the user's own, and a name must not lead through a link someone planted. The name
// search of the library is built into this program too, so that it can be given chosen
// numbers.
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "orx/foundation/string.h"
#include "orx/services/files.h"
#include "orx/services/internal/temp_name.h"
#include "test_support.h"

namespace {

namespace fs = std::filesystem;
using orx_test::ScopedEnv;
using orx_test::ScratchDirectory;

// A source that gives the numbers in order, then fails.
ORX::internal::TempNameSource numbersFrom(std::vector<std::uint64_t> numbers) {
    return [numbers, next = std::size_t{0}](std::uint64_t& number) mutable {
        if (next == numbers.size()) {
            return false;
        }
        number = numbers[next++];
        return true;
    };
}

std::string userFolder() {
    return "Kelvara-" + std::to_string(geteuid());
}

struct stat statusOf(fs::path const& path) {
    struct stat status {};
    lstat(path.c_str(), &status);
    return status;
}

}  // namespace

TEST(TempNamePosixTest, SkipsEveryEntryAndFollowsNoLink) {
    ScratchDirectory scratch;
    fs::create_symlink(scratch.path() / "missing", scratch.path() / "tmp_a.tmp");
    scratch.createFile(L"tmp_b.tmp");
    fs::create_directory_symlink(scratch.path(), scratch.path() / "tmp_c.tmp");
    std::wstring const folder = scratch.text() + L"/";
    EXPECT_EQ(ORX::internal::freeTempName(folder, L"tmp", numbersFrom({0xa, 0xb, 0xc, 0xd})),
              folder + L"tmp_d.tmp");
    EXPECT_FALSE(fs::exists(scratch.path() / "missing"));

    EXPECT_EQ(ORX::internal::freeTempName(folder, L"tmp", numbersFrom({})), L"");
    std::vector<std::uint64_t> const taken(ORX::internal::kTempNameAttempts, 0xb);
    EXPECT_EQ(ORX::internal::freeTempName(folder, L"tmp", numbersFrom(taken)), L"");
}

TEST(TmpDirPosixTest, TheFolderIsPrivateToTheUser) {
    ScratchDirectory scratch;
    ScopedEnv temp("TEMP", scratch.narrow());
    fs::path const folder = scratch.path() / userFolder();
    ASSERT_EQ(std::wstring(ORX::tmp_dir()), folder.wstring() + L"/");
    struct stat const made = statusOf(folder);
    EXPECT_EQ(made.st_mode & 07777, 0700u);
    EXPECT_EQ(made.st_uid, geteuid());

    // A folder made earlier with wider permissions is narrowed.
    fs::permissions(folder, fs::perms::owner_all | fs::perms::group_all | fs::perms::others_all);
    EXPECT_FALSE(ORX::tmp_dir().isNull());
    EXPECT_EQ(statusOf(folder).st_mode & 07777, 0700u);
}

TEST(TmpDirPosixTest, AFolderOthersControlIsRefused) {
    ScratchDirectory scratch;
    ScopedEnv temp("TEMP", scratch.narrow());
    fs::path const folder = scratch.path() / userFolder();
    // A link planted at the folder's name, to a folder the planter may read.
    scratch.createDirectory(L"planted");
    fs::create_directory_symlink(scratch.path() / "planted", folder);
    EXPECT_EQ(std::wstring(ORX::tmp_dir()), L"");
    EXPECT_EQ(std::wstring(ORX::fileNameTmp(L"dwg")), L"");
    EXPECT_EQ(fs::status(scratch.path() / "planted").permissions(),
              fs::status(scratch.path()).permissions());  // not narrowed through the link

    // A file, or a folder of another user.
    fs::remove(folder);
    scratch.createFile(fs::path(folder).filename().wstring());
    EXPECT_EQ(std::wstring(ORX::tmp_dir()), L"");
    fs::remove(folder);
    if (geteuid() != 0) {
        GTEST_SKIP() << "needs root to give the folder to another user";
    }
    fs::create_directory(folder);
    ASSERT_EQ(chown(folder.c_str(), 65534, 65534), 0);  // nobody
    EXPECT_EQ(std::wstring(ORX::tmp_dir()), L"");
}

// A folder whose name is not UTF-8 (the byte 0xFF) is the same folder to the environment
// expansion and to tmp_dir(), and it exists under the name both give.
TEST(TmpDirPosixTest, AFolderNameThatIsNotUtf8ReadsAlikeEverywhere) {
    ScratchDirectory scratch;
    fs::path const folder = scratch.path() / "temp\xFF";
    fs::create_directory(folder);
    ScopedEnv temp("TEMP", folder.string());

    COrxString expanded(L"%TEMP%");
    expanded.expandEnvironmentStrings();
    EXPECT_TRUE(ORX::fileExist(expanded));
    std::wstring const user = fs::path(userFolder()).wstring();
    EXPECT_EQ(std::wstring(ORX::tmp_dir()), std::wstring(expanded) + L"/" + user + L"/");
    EXPECT_TRUE(fs::is_directory(folder / userFolder()));
}
