// Version data on Windows: the VERSIONINFO resource, read with the version API.
#include <windows.h>

#include <cwchar>
#include <string>
#include <vector>

#include "orx/services/internal/version_strings.h"

namespace ORX::internal {
namespace {

// The length of the module file names read, as the system's own limit for them.
constexpr DWORD kFileNameLength = MAX_PATH;

struct Translation {
    WORD language;
    WORD codePage;
};

std::wstring fileNameOf(HMODULE module) {
    wchar_t path[kFileNameLength];
    DWORD const length = GetModuleFileNameW(module, path, kFileNameLength);
    return length == 0 || length >= kFileNameLength ? std::wstring() : std::wstring(path, length);
}

// The string-table value `name` under the given translation; empty when missing.
std::wstring stringValue(std::vector<unsigned char>& block, Translation const& translation,
                         wchar_t const* name) {
    wchar_t query[128];
    std::swprintf(query, sizeof query / sizeof query[0], L"\\StringFileInfo\\%04x%04x\\%ls",
                  translation.language, translation.codePage, name);
    wchar_t* value = nullptr;
    UINT length = 0;
    if (!VerQueryValueW(block.data(), query, reinterpret_cast<void**>(&value), &length) ||
        value == nullptr) {
        return std::wstring();
    }
    return value;
}

void readStrings(std::vector<unsigned char>& block, VersionStrings& out) {
    Translation* translation = nullptr;
    UINT length = 0;
    if (!VerQueryValueW(block.data(), L"\\VarFileInfo\\Translation",
                        reinterpret_cast<void**>(&translation), &length) ||
        length < sizeof(Translation)) {
        return;
    }
    out.companyName = stringValue(block, *translation, L"CompanyName");
    out.copyright = stringValue(block, *translation, L"LegalCopyright");
    out.productName = stringValue(block, *translation, L"ProductName");
    out.trademark = stringValue(block, *translation, L"LegalTrademarks");
}

void readProductVersion(std::vector<unsigned char>& block, VersionStrings& out) {
    VS_FIXEDFILEINFO* fixed = nullptr;
    UINT length = 0;
    if (!VerQueryValueW(block.data(), L"\\", reinterpret_cast<void**>(&fixed), &length) ||
        length < sizeof(VS_FIXEDFILEINFO)) {
        return;
    }
    out.productVersion[0] = HIWORD(fixed->dwProductVersionMS);
    out.productVersion[1] = LOWORD(fixed->dwProductVersionMS);
    out.productVersion[2] = HIWORD(fixed->dwProductVersionLS);
    out.productVersion[3] = LOWORD(fixed->dwProductVersionLS);
}

}  // namespace

std::wstring moduleFileName(HINSTANCE module) {
    if (module == nullptr) {
        return fileNameOf(GetModuleHandleW(nullptr));
    }
    std::wstring name = fileNameOf(module);
    if (name.empty()) {
        // Not a module handle: take it as an address inside a loaded module.
        HMODULE containing = nullptr;
        if (GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                                   GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                               reinterpret_cast<LPCWSTR>(module), &containing)) {
            name = fileNameOf(containing);
        }
    }
    return name;
}

bool readVersionStrings(wchar_t const* fileName, VersionStrings& out) {
    DWORD ignored = 0;
    DWORD const size = GetFileVersionInfoSizeW(fileName, &ignored);
    if (size == 0) {
        return false;
    }
    std::vector<unsigned char> block(size);
    if (!GetFileVersionInfoW(fileName, 0, size, block.data())) {
        return false;
    }
    readStrings(block, out);
    readProductVersion(block, out);
    return true;
}

}  // namespace ORX::internal
