// Included before the library's headers on purpose: the Windows build checks here that
// <windows.h> first and the library's stand-ins second compile together
// (platform_types_test.cpp checks the other order).
#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

#include "orx/services/version_info.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <utility>

#include "orx/services/version.h"
#include "test_support.h"

namespace {

namespace fs = std::filesystem;

// Any address inside the library stands for its module on both platforms.
HINSTANCE libraryModule() {
    return reinterpret_cast<HINSTANCE>(reinterpret_cast<void*>(&ORX::version));
}

// The library file, found with the platform's own loader functions.
std::wstring libraryFile() {
#ifdef _WIN32
    HMODULE module = nullptr;
    GetModuleHandleExW(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        reinterpret_cast<LPCWSTR>(&ORX::version), &module);
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(module, path, MAX_PATH);
    return path;
#else
    Dl_info info{};
    dladdr(reinterpret_cast<void*>(&ORX::version), &info);
    return fs::path(info.dli_fname).wstring();
#endif
}

void expectLibraryStrings(ORX::CVersionInfo const& info) {
    EXPECT_STREQ(info.GetCompanyName(), L"Kelvara");
    EXPECT_STREQ(info.GetProductName(), L"Orx");
    EXPECT_STREQ(info.GetProductVersion(), L"2017.0.23.64");
    EXPECT_EQ(std::wstring(info.GetCopyright()).substr(0, 6), L"\u00a9 2017");
    EXPECT_STREQ(info.GetTrademark(), L"");  // the library has none
}

void expectNoData(ORX::CVersionInfo const& info, char const* what) {
    for (wchar_t const* text : {info.GetCompanyName(), info.GetCopyright(), info.GetProductName(),
                                info.GetTrademark(), info.GetProductVersion()}) {
        EXPECT_STREQ(text, ORX::CVersionInfo::NoVerDataString()) << what;
    }
}

#ifdef _WIN32
// A string of the DLL's version resource, read with the Win32 version API.
std::wstring resourceString(std::wstring const& block, wchar_t const* name) {
    struct Translation {
        WORD language;
        WORD codePage;
    }* translation = nullptr;
    UINT length = 0;
    if (!VerQueryValueW(block.data(), L"\\VarFileInfo\\Translation",
                        reinterpret_cast<void**>(&translation), &length)) {
        return L"<no translation>";
    }
    wchar_t query[128];
    swprintf(query, 128, L"\\StringFileInfo\\%04x%04x\\%ls", translation->language,
             translation->codePage, name);
    wchar_t* value = nullptr;
    return VerQueryValueW(block.data(), query, reinterpret_cast<void**>(&value), &length)
               ? value
               : L"<no value>";
}
#endif

}  // namespace

#ifdef _WIN32
TEST(VersionTest, DllCarriesItsVersionResource) {
    std::wstring const dll = libraryFile();
    EXPECT_NE(dll.find(L"Orx_2017_23_64_Base.dll"), std::wstring::npos) << dll.c_str();
    DWORD handle = 0;
    std::wstring block(GetFileVersionInfoSizeW(dll.c_str(), &handle), L'\0');
    ASSERT_TRUE(
        GetFileVersionInfoW(dll.c_str(), 0, static_cast<DWORD>(block.size()), block.data()));
    EXPECT_EQ(resourceString(block, L"ProductVersion"), L"2017.0.23.64");
    EXPECT_EQ(resourceString(block, L"CompanyName"), L"Kelvara");
    EXPECT_EQ(resourceString(block, L"LegalCopyright").substr(0, 6), L"\u00a9 2017");
    VS_FIXEDFILEINFO* fixed = nullptr;
    UINT length = 0;
    ASSERT_TRUE(VerQueryValueW(block.data(), L"\\", reinterpret_cast<void**>(&fixed), &length));
    EXPECT_EQ(fixed->dwProductVersionMS, static_cast<DWORD>(MAKELONG(0, 2017)));
    EXPECT_EQ(fixed->dwProductVersionLS, static_cast<DWORD>(MAKELONG(64, 23)));
}
#endif

TEST(CVersionInfoTest, ReadsTheLibrarysStringsBackFromItsFile) {
    EXPECT_STREQ(ORX::version(), L"2017.0");
    expectLibraryStrings(ORX::CVersionInfo(libraryModule()));
    std::wstring const file = libraryFile();
    ASSERT_FALSE(file.empty());
    expectLibraryStrings(ORX::CVersionInfo(file.c_str()));
}

// Copies own their strings: they outlive the original.
TEST(CVersionInfoTest, CopiesKeepTheirStrings) {
    auto* const original = new ORX::CVersionInfo(libraryModule());
    ORX::CVersionInfo const copy(*original);
    ORX::CVersionInfo assigned(L"no such file");
    assigned = *original;
    delete original;
    expectLibraryStrings(copy);
    expectLibraryStrings(assigned);
    assigned = ORX::CVersionInfo(nullptr);
    expectNoData(assigned, "assigned from the test program");
}

TEST(CVersionInfoTest, FilesWithoutVersionDataGiveTheNoDataText) {
    EXPECT_STREQ(ORX::CVersionInfo::NoVerDataString(), L"<no version info found>");
    expectNoData(ORX::CVersionInfo(), "the test program");
    expectNoData(ORX::CVersionInfo(nullptr), "null module");
    expectNoData(ORX::CVersionInfo(static_cast<wchar_t const*>(nullptr)), "null file name");
    expectNoData(ORX::CVersionInfo(L""), "empty file name");
    expectNoData(ORX::CVersionInfo(L"no such file.dll"), "missing file");

    orx_test::ScratchDirectory scratch;
    std::string head(1024, '\0');
    std::ifstream(fs::path(libraryFile()), std::ios::binary).read(head.data(), 1024);
    for (auto const& [name, contents] : {std::pair<wchar_t const*, std::string>{L"empty", ""},
                                         {L"junk", std::string(4096, '\x7f')},
                                         {L"truncated library", head}}) {
        scratch.createFile(name, contents);
        expectNoData(ORX::CVersionInfo((scratch / name).c_str()), fs::path(name).string().c_str());
    }
}

TEST(CVersionInfoTest, VersionCompareIsNumericOverTheShorterText) {
    struct Case {
        wchar_t const* a;
        wchar_t const* b;
        int expected;
    } const cases[] = {
        {L"2017.0", L"2017.1", -1},
        {L"2017.1", L"2017.0", 1},
        {L"10.0", L"9.9", 1},  // numeric, not textual
        {L"2", L"10", -1},
        {L"1.2", L"1.2.5", 0},  // only the shorter text's parts count
        {L"1.2.5", L"1.2", 0},
        {L"2017.0.23.64", L"2017.0.23.64", 0},
        {L"1.x", L"1.0", 0},  // a part without digits is 0
        {L"1..3", L"1.0.3", 0},
        {L"", L"0", 0},
        {nullptr, L"1", -1},  // null reads as ""
        {L"99999999999999999999", L"1", 1},
    };
    for (Case const& c : cases) {
        EXPECT_EQ(ORX::CVersionInfo::versionCompare(c.a, c.b), c.expected)
            << (c.a ? c.a : L"(null)") << " vs " << c.b;
    }
}
