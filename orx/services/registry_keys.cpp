// Opening, closing and deleting keys, and reading a key's default text.
#include "orx/services/internal/registry_api.h"
#include "orx/services/registry.h"

namespace ORX {

using internal::kErrorSuccess;

HKEY regOpenKey(HKEY root, wchar_t const* path, bool write) {
    HKEY key = nullptr;
    unsigned long const access = write ? internal::kKeyReadWrite : internal::kKeyRead;
    return internal::regOpenKey(root, path, access, key) == kErrorSuccess ? key : nullptr;
}

HKEY regCreateKey(HKEY root, wchar_t const* path) {
    HKEY key = nullptr;
    return internal::regCreateKey(root, path, internal::kKeyReadWrite, key) == kErrorSuccess
               ? key
               : nullptr;
}

bool regCloseKey(HKEY key) {
    return internal::regCloseKey(key) == kErrorSuccess;
}

bool regDeleteTree(HKEY root, wchar_t const* path) {
    if (path == nullptr || *path == L'\0') {
        return false;
    }
    return internal::regDeleteTree(root, path) == kErrorSuccess;
}

bool curProgId(COrxString& out, wchar_t const* progId) {
    if (progId == nullptr) {
        return false;
    }
    COrxString path;
    path.format(L"%s\\CurVer", progId);
    return internal::readKeyText(internal::classesRoot(), path, out);
}

namespace internal {

bool readKeyText(HKEY root, wchar_t const* path, COrxString& text) {
    HKEY key = nullptr;
    if (regOpenKey(root, path, kKeyRead, key) != kErrorSuccess) {
        return false;
    }
    bool const read = ORX::regRead(key, nullptr, text);
    regCloseKey(key);
    return read;
}

}  // namespace internal
}  // namespace ORX
