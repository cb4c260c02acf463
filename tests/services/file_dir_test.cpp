#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "orx/services/files.h"
#include "test_support.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace {

using orx_test::kSeparator;
using orx_test::ScratchDirectory;
using Names = std::vector<std::wstring>;

// A folder with visible files (one without extension), a hidden file and a directory
// holding a file of its own.
class FileDirTest : public testing::Test {
protected:
    FileDirTest() {
        for (wchar_t const* name : {L"b.dwg", L"README", L"A.txt", L".hidden"}) {
            m_scratch.createFile(name);
        }
        m_scratch.createDirectory(L"sub");
        m_scratch.createFile(L"sub/inner.dwg");
#ifdef _WIN32
        SetFileAttributesW((m_scratch / L".hidden").c_str(), FILE_ATTRIBUTE_HIDDEN);
#endif
    }

    std::wstring in(std::wstring const& name) const {
        return m_scratch / name;
    }

    static Names names(COrxArrayTempl<COrxString> const& list) {
        return Names(list.entry(), list.entry() + list.len());
    }

    // The listing of a pattern, or {"<false>"} when fileDir answers false.
    static Names list(std::wstring const& pattern, unsigned long flags) {
        COrxArrayTempl<COrxString> out;
        if (!ORX::fileDir(out, pattern.c_str(), flags)) {
            return {L"<false>"};
        }
        return names(out);
    }

    ScratchDirectory m_scratch;
};

}  // namespace

TEST_F(FileDirTest, FlagsChooseDirectoriesAndHiddenEntriesAndNamesAreSortedIgnoringCase) {
    std::wstring const all = in(L"*.*");
    EXPECT_EQ(list(all, 0), (Names{L"A.txt", L"b.dwg", L"README"}));
    EXPECT_EQ(list(all, ORX::kFileDirWithDirectories),
              (Names{L"A.txt", L"b.dwg", L"README", L"sub"}));
    EXPECT_EQ(list(all, ORX::kFileDirWithHidden),
              (Names{L".hidden", L"A.txt", L"b.dwg", L"README"}));
    EXPECT_EQ(list(all, ORX::kFileDirOnlyDirectories), (Names{L"sub"}));
    EXPECT_EQ(list(all, ORX::kFileDirOnlyDirectories | ORX::kFileDirWithHidden), (Names{L"sub"}));
}

TEST_F(FileDirTest, PatternsAreCompletedExpandedAndMatchedAsOnWindowsWithFullPathsOnRequest) {
    Names const visible{L"A.txt", L"b.dwg", L"README"};
    EXPECT_EQ(list(m_scratch.text() + kSeparator, 0), visible);  // "*.*" appended
    EXPECT_EQ(list(in(L"README.*"), 0), (Names{L"README"}));     // ".*" matches no extension
    EXPECT_EQ(list(in(L"*.dwg"), 0), (Names{L"b.dwg"}));         // not sub's file

    orx_test::ScopedEnv dir("ORX_TEST_DIR", m_scratch.path().string());
    EXPECT_EQ(list(orx_test::foreign(L"%ORX_TEST_DIR%\\sub\\*.dwg"), 0), (Names{L"inner.dwg"}));
    EXPECT_EQ(list(orx_test::foreign(L"%ORX_TEST_DIR%\\sub\\."), 0), (Names{L"inner.dwg"}));

    std::wstring const folder = m_scratch.text() + kSeparator;
    EXPECT_EQ(list(in(L"sub") + kSeparator + L".." + kSeparator + L"?.txt", ORX::kFileDirFullPath),
              (Names{folder + L"A.txt"}));

    // A name without wildcards finds that entry; a directory is then still filtered.
    EXPECT_EQ(list(in(L"sub"), ORX::kFileDirWithDirectories), (Names{L"sub"}));
    EXPECT_EQ(list(in(L"sub"), 0), Names{});
}

TEST_F(FileDirTest, NothingFoundIsFalseAndLeavesTheListAlone) {
    COrxArrayTempl<COrxString> out;
    out.append(COrxString(L"kept"));
    EXPECT_FALSE(ORX::fileDir(out, in(L"*.xyz").c_str(), 0));
    EXPECT_FALSE(ORX::fileDir(out, in(L"missing").append(L"\\*.*").c_str(), 0));
    EXPECT_FALSE(ORX::fileDir(out, L"", 0));
    EXPECT_EQ(names(out), (Names{L"kept"}));

    // Only "." and "..": the search started, but no name is left.
    m_scratch.createDirectory(L"empty");
    EXPECT_TRUE(ORX::fileDir(out, in(L"empty").append(1, kSeparator).c_str(), 0xF));
    EXPECT_EQ(names(out), Names{});
}
