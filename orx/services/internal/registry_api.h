// The registry calls the backend-neutral registry code is written against: the advapi32
// functions of the same names on Windows (the Windows backend forwards to them), the SQLite
// hives on Linux. Results are Windows error codes; sizes are in bytes, name lengths in
// characters, and text data is wchar_t text on both platforms.
#ifndef ORX_SERVICES_INTERNAL_REGISTRY_API_H
#define ORX_SERVICES_INTERNAL_REGISTRY_API_H

#include <cstdint>

#include "orx/foundation/platform.h"
#include "orx/foundation/string.h"
#include "orx/services/windows_types.h"

namespace ORX::internal {

// The predefined keys with their Windows values (sign-extended 32-bit), for code that may not
// include <windows.h>.
inline HKEY predefinedKey(std::uint32_t value) {
    return reinterpret_cast<HKEY>(static_cast<std::intptr_t>(static_cast<std::int32_t>(value)));
}
inline HKEY classesRoot() {
    return predefinedKey(0x80000000u);
}
inline HKEY currentUser() {
    return predefinedKey(0x80000001u);
}
inline HKEY localMachine() {
    return predefinedKey(0x80000002u);
}

// Value types, with their Windows values.
constexpr unsigned long kRegSz = 1;
constexpr unsigned long kRegExpandSz = 2;
constexpr unsigned long kRegDword = 4;
constexpr unsigned long kRegMultiSz = 7;

// Windows error codes the registry calls return.
constexpr long kErrorSuccess = 0;
constexpr long kErrorFileNotFound = 2;
constexpr long kErrorAccessDenied = 5;
constexpr long kErrorInvalidHandle = 6;
constexpr long kErrorInvalidParameter = 87;
constexpr long kErrorBadPathname = 161;
constexpr long kErrorMoreData = 234;
constexpr long kErrorNoMoreItems = 259;
constexpr long kErrorRegistryIoFailed = 1016;
constexpr long kErrorKeyDeleted = 1018;

// Access rights: KEY_READ, KEY_WRITE and both together (0x2001F); KEY_SET_VALUE and
// KEY_CREATE_SUB_KEY are the rights a write needs.
constexpr unsigned long kKeyRead = 0x20019;
constexpr unsigned long kKeyWrite = 0x20006;
constexpr unsigned long kKeyReadWrite = kKeyRead | kKeyWrite;
constexpr unsigned long kKeySetValue = 0x0002;
constexpr unsigned long kKeyCreateSubKey = 0x0004;

// Windows' MAX_PATH: the name buffers of the enumerations and the element buffer of the
// environment-folder shortening.
constexpr unsigned long kMaxPath = 260;

// RegCreateKeyExW / RegOpenKeyExW / RegCloseKey / RegDeleteTreeW.
long regCreateKey(HKEY root, wchar_t const* path, unsigned long access, HKEY& key);
long regOpenKey(HKEY root, wchar_t const* path, unsigned long access, HKEY& key);
long regCloseKey(HKEY key);
long regDeleteTree(HKEY root, wchar_t const* path);

// RegQueryValueExW: data may be null to ask for the size; a buffer too small gives
// kErrorMoreData with the size needed in `size`.
long regQueryValue(HKEY key, wchar_t const* name, unsigned long* type, unsigned char* data,
                   unsigned long* size);
// RegSetValueExW / RegDeleteValueW.
long regSetValue(HKEY key, wchar_t const* name, unsigned long type, unsigned char const* data,
                 unsigned long size);
long regDeleteValue(HKEY key, wchar_t const* name);
// RegEnumValueW / RegEnumKeyExW: nameChars holds the buffer size on entry and the name's
// length (without its NUL) on success; kErrorNoMoreItems past the last entry.
long regEnumValue(HKEY key, unsigned long index, wchar_t* name, unsigned long* nameChars,
                  unsigned long* type, unsigned char* data, unsigned long* size);
long regEnumKey(HKEY key, unsigned long index, wchar_t* name, unsigned long* nameChars);

// PathUnExpandEnvStringsW: writes path with its leading folder replaced by an environment
// reference into out (outChars characters with the NUL) and returns true; false when no
// folder matched or the result does not fit.
bool pathUnExpandEnvStrings(wchar_t const* path, wchar_t* out, unsigned long outChars);

// The default value of root\path as text (the open-key string read); false when the key
// cannot be opened for reading or the read fails.
bool readKeyText(HKEY root, wchar_t const* path, COrxString& text);

}  // namespace ORX::internal

#endif  // ORX_SERVICES_INTERNAL_REGISTRY_API_H
