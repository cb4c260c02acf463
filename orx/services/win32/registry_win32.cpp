// The registry calls of the neutral registry code: straight to advapi32 and shlwapi.
#include <windows.h>
// shlwapi.h needs the types of windows.h.
#include <shlwapi.h>

#include "orx/services/internal/registry_api.h"

namespace ORX::internal {

long regCreateKey(HKEY root, wchar_t const* path, unsigned long access, HKEY& key) {
    return RegCreateKeyExW(root, path, 0, nullptr, REG_OPTION_NON_VOLATILE, access, nullptr, &key,
                           nullptr);
}

long regOpenKey(HKEY root, wchar_t const* path, unsigned long access, HKEY& key) {
    return RegOpenKeyExW(root, path, 0, access, &key);
}

long regCloseKey(HKEY key) {
    return RegCloseKey(key);
}

long regDeleteTree(HKEY root, wchar_t const* path) {
    return RegDeleteTreeW(root, path);
}

long regQueryValue(HKEY key, wchar_t const* name, unsigned long* type, unsigned char* data,
                   unsigned long* size) {
    return RegQueryValueExW(key, name, nullptr, type, data, size);
}

long regSetValue(HKEY key, wchar_t const* name, unsigned long type, unsigned char const* data,
                 unsigned long size) {
    return RegSetValueExW(key, name, 0, type, data, size);
}

long regDeleteValue(HKEY key, wchar_t const* name) {
    return RegDeleteValueW(key, name);
}

long regEnumValue(HKEY key, unsigned long index, wchar_t* name, unsigned long* nameChars,
                  unsigned long* type, unsigned char* data, unsigned long* size) {
    return RegEnumValueW(key, index, name, nameChars, nullptr, type, data, size);
}

long regEnumKey(HKEY key, unsigned long index, wchar_t* name, unsigned long* nameChars) {
    return RegEnumKeyExW(key, index, name, nameChars, nullptr, nullptr, nullptr, nullptr);
}

bool pathUnExpandEnvStrings(wchar_t const* path, wchar_t* out, unsigned long outChars) {
    return PathUnExpandEnvStringsW(path, out, outChars) != FALSE;
}

}  // namespace ORX::internal
