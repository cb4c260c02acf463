#include "orx/services/files.h"

#ifndef _WIN32
#include <unistd.h>
#endif

#include <gtest/gtest.h>

#include <cwchar>
#include <set>
#include <string>
#include <vector>

#include "orx/services/work_dir.h"
#include "test_support.h"

namespace {

using orx_test::foreign;
using orx_test::kSeparator;
using orx_test::ScopedEnv;
using orx_test::ScratchDirectory;
namespace fs = std::filesystem;

std::wstring text(COrxString const& s) {
    return s.isNull() ? std::wstring(L"<null>") : std::wstring(s);
}

std::wstring currentDirectory() {
    COrxString dir;
    ORX::GetCurrentDirectoryW(dir);
    return text(dir);
}

// The user's folder of the library in the temporary folder.
std::wstring userTempFolder() {
#ifdef _WIN32
    return L"Kelvara";
#else
    return L"Kelvara-" + std::to_wstring(geteuid());
#endif
}

}  // namespace

TEST(FilePathPartsTest, SplitsIntoDirectoryNameAndExtension) {
    struct Case {
        wchar_t const* path;
        wchar_t const* directory;  // on Linux with every '\' turned into '/'
        wchar_t const* type;
        wchar_t const* name;
    };
    Case const cases[] = {
        {L"a\\b.dwg", L"a\\", L"dwg", L"b.dwg"},
        {L"C:\\plans\\hall.tar.gz", L"C:\\plans\\", L"gz", L"hall.tar.gz"},
        {L"noext", L"", L"", L"noext"},
        {L"dir.v2\\name", L"dir.v2\\", L"", L"name"},
        {L"dir\\.profile", L"dir\\", L"profile", L".profile"},
        {L"name.", L"", L"", L"name."},
        {L"a/b\\", L"a/b\\", L"", L""},
        {L"", L"", L"", L""},
    };
    for (Case const& c : cases) {
        std::wstring directory = c.directory;
        if (kSeparator == L'/') {
            std::replace(directory.begin(), directory.end(), L'\\', L'/');
        }
        EXPECT_EQ(text(ORX::filePath(c.path)), directory) << c.path;
        EXPECT_EQ(text(ORX::fileType(c.path)), c.type) << c.path;
        EXPECT_EQ(text(ORX::stripPath(c.path)), c.name) << c.path;
    }
    EXPECT_EQ(
        text(ORX::filePath(nullptr)) + text(ORX::fileType(nullptr)) + text(ORX::stripPath(nullptr)),
        L"");
}

TEST(FileExistTest, FindsFilesAndDirectoriesAfterExpandingTheName) {
    ScratchDirectory scratch;
    scratch.createFile(L"plan.dwg");
    scratch.createDirectory(L"sub");
    EXPECT_TRUE(ORX::fileExist((scratch / L"plan.dwg").c_str()));
    EXPECT_TRUE(ORX::fileExist((scratch / L"sub").c_str()));
    EXPECT_FALSE(ORX::fileExist((scratch / L"missing.dwg").c_str()));
    EXPECT_FALSE(ORX::fileExist(nullptr));
    EXPECT_FALSE(ORX::fileExist(L""));

    ScopedEnv dir("ORX_TEST_DIR", scratch.narrow());
    // '\' is the foreign separator on Linux, and foreign() turns it into '/' on Windows.
    EXPECT_TRUE(ORX::fileExist(foreign(L"%ORX_TEST_DIR%\\sub\\..\\plan.dwg").c_str()));
    COrxString name(foreign(L"%ORX_TEST_DIR%\\x.dwg").c_str());
    EXPECT_EQ(std::wstring(ORX::dos_name(name)), scratch / L"x.dwg");
    COrxString null;
    EXPECT_EQ(ORX::dos_name(null), nullptr);
}

TEST(TmpDirTest, IsTheUsersKelvaraFolderOfTempAndExists) {
    ScratchDirectory scratch;
    ScopedEnv temp("TEMP", scratch.narrow());
    std::wstring const expected = scratch / userTempFolder() + kSeparator;
    EXPECT_EQ(text(ORX::tmp_dir()), expected);
    EXPECT_TRUE(fs::is_directory(scratch.path() / userTempFolder()));
    EXPECT_EQ(text(ORX::tmp_dir()), expected);  // an existing folder is fine
#ifndef _WIN32
    ScopedEnv noTemp("TEMP", std::nullopt);
    {
        ScopedEnv tmpdir("TMPDIR", scratch.narrow() + "/");
        EXPECT_EQ(text(ORX::tmp_dir()), expected);
    }
    ScopedEnv noTmpdir("TMPDIR", std::nullopt);
    EXPECT_EQ(text(ORX::tmp_dir()), L"/tmp/" + userTempFolder() + L"/");
#endif
}

TEST(FileNameTmpTest, GivesUnpredictableNewNamesInTheTemporaryFolder) {
    ScratchDirectory scratch;
    ScopedEnv temp("TEMP", scratch.narrow());
    std::wstring const folder = text(ORX::tmp_dir());
    std::vector<unsigned long long> numbers;
    for (int i = 0; i < 50; ++i) {
        COrxString const name = ORX::fileNameTmp(i % 2 == 0 ? nullptr : L"");
        EXPECT_EQ(text(ORX::filePath(name)), folder);
        EXPECT_FALSE(fs::exists(fs::path(text(name))));  // not created
        std::wstring const file = text(ORX::stripPath(name));
        EXPECT_EQ(file.substr(0, 4) + file.substr(file.size() - 4), L"tmp_.tmp");
        EXPECT_EQ(file.find_first_not_of(L"0123456789abcdef", 4), file.size() - 4) << file;
        numbers.push_back(std::wcstoull(file.c_str() + 4, nullptr, 16));
    }
    EXPECT_EQ(std::set<unsigned long long>(numbers.begin(), numbers.end()).size(), 50u);
    // Not a counter: no name follows from the one before.
    for (std::size_t i = 1; i < numbers.size(); ++i) {
        EXPECT_NE(numbers[i], numbers[i - 1] + 1);
    }
    EXPECT_EQ(text(ORX::fileType(ORX::fileNameTmp(L"dwg"))), L"dwg");
}

TEST(FileNameUNCTest, GivesTheDeviceFormOfLocalPathsOnlyWhenAsked) {
    ScratchDirectory scratch;
    ORX::CWorkDirOverride inScratch(scratch.text().c_str());
    std::wstring const absolute = currentDirectory() + kSeparator + L"plan.dwg";
    COrxString out(L"untouched");
    EXPECT_FALSE(ORX::fileNameUNC(out, L"plan.dwg", false));
    EXPECT_FALSE(ORX::fileNameUNC(out, nullptr, true));
    EXPECT_FALSE(ORX::fileNameUNC(out, L"\\\\server\\share\\plan.dwg", true));  // already UNC
    EXPECT_FALSE(ORX::fileNameUNC(out, L"//server/share/plan.dwg", true));
    EXPECT_EQ(text(out), L"untouched");

    ASSERT_TRUE(ORX::fileNameUNC(out, L"sub\\..\\plan.dwg", true));
    EXPECT_EQ(text(out), (kSeparator == L'\\' ? L"\\\\.\\" : L"//.") + absolute);
}

TEST(AppFileNameTest, CarriesTheLibraryVersion) {
    COrxString out;
    EXPECT_TRUE(ORX::appFileName(out, L"layers", L"steel", L"xml"));
    EXPECT_EQ(text(out), L"layers_2017_23_64_steel.xml");
    EXPECT_TRUE(ORX::appFileName(out, nullptr, nullptr, nullptr));
    EXPECT_EQ(text(out), L"_2017_23_64_.");
    ORX::generateMenuFileName(out, L"main", L"mnu");
    EXPECT_EQ(text(out), L"main_2017_23.mnu");
}

TEST(CWorkDirOverrideTest, NestedOverridesRestoreInReverseOrder) {
    ScratchDirectory scratch;
    scratch.createDirectory(L"one");
    scratch.createDirectory(L"two");
    std::wstring const start = currentDirectory();
    {
        ORX::CWorkDirOverride first((scratch / L"one").c_str());
        COrxString dir;
        EXPECT_FALSE(ORX::GetCurrentDirectoryW(dir));  // false, yet the name is there
        EXPECT_TRUE(fs::equivalent(fs::path(text(dir)), scratch.path() / L"one"));
        {
            ORX::CWorkDirOverride second(foreign(scratch / L"two").c_str());
            EXPECT_TRUE(fs::equivalent(fs::current_path(), scratch.path() / L"two"));
            ORX::CWorkDirOverride recordOnly;
            ORX::CWorkDirOverride nullDir(nullptr);
            ORX::CWorkDirOverride missing((scratch / L"missing").c_str());
            EXPECT_TRUE(fs::equivalent(fs::current_path(), scratch.path() / L"two"));
        }
        EXPECT_TRUE(fs::equivalent(fs::current_path(), scratch.path() / L"one"));
        ORX::CWorkDirOverride copy(first);
#ifndef _WIN32
        ORX::CWorkDirOverride inRoot(L"/");
        EXPECT_TRUE(ORX::GetCurrentDirectoryW(dir));  // the one name of a single character
#endif
    }
    EXPECT_EQ(currentDirectory(), start);
}
