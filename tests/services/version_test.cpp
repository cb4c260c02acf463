#include "orx/services/version.h"

#include <gtest/gtest.h>

#include <string>

#ifdef _WIN32
#include <windows.h>
#endif

TEST(VersionTest, VersionTextIs2017Point0) {
    EXPECT_EQ(std::wstring(ORX::version()), L"2017.0");
}

#ifdef _WIN32
namespace {

// The built DLL's version resource, read with the Win32 version API.
std::wstring readStringValue(std::wstring const& dllPath, wchar_t const* name) {
    DWORD handle = 0;
    DWORD const size = GetFileVersionInfoSizeW(dllPath.c_str(), &handle);
    if (size == 0) {
        return L"<no size>";
    }
    std::wstring block(size, L'\0');
    if (!GetFileVersionInfoW(dllPath.c_str(), 0, size, block.data())) {
        return L"<no block>";
    }
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
    if (!VerQueryValueW(block.data(), query, reinterpret_cast<void**>(&value), &length)) {
        return L"<no value>";
    }
    return value;
}

std::wstring libraryPath() {
    HMODULE module = nullptr;
    GetModuleHandleExW(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        reinterpret_cast<LPCWSTR>(&ORX::version), &module);
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(module, path, MAX_PATH);
    return path;
}

}  // namespace

TEST(VersionTest, DllCarriesItsVersionResource) {
    std::wstring const dll = libraryPath();
    EXPECT_NE(dll.find(L"Orx_2017_23_64_Base.dll"), std::wstring::npos) << dll.c_str();
    EXPECT_EQ(readStringValue(dll, L"ProductVersion"), L"2017.0.23.64");
    EXPECT_EQ(readStringValue(dll, L"CompanyName"), L"Kelvara");
    EXPECT_EQ(readStringValue(dll, L"LegalCopyright").substr(0, 6), L"\u00a9 2017");

    DWORD handle = 0;
    std::wstring block(GetFileVersionInfoSizeW(dll.c_str(), &handle), L'\0');
    ASSERT_TRUE(
        GetFileVersionInfoW(dll.c_str(), 0, static_cast<DWORD>(block.size()), block.data()));
    VS_FIXEDFILEINFO* fixed = nullptr;
    UINT length = 0;
    ASSERT_TRUE(VerQueryValueW(block.data(), L"\\", reinterpret_cast<void**>(&fixed), &length));
    EXPECT_EQ(HIWORD(fixed->dwProductVersionMS), 2017);
    EXPECT_EQ(LOWORD(fixed->dwProductVersionMS), 0);
    EXPECT_EQ(HIWORD(fixed->dwProductVersionLS), 23);
    EXPECT_EQ(LOWORD(fixed->dwProductVersionLS), 64);
}
#endif
