// The Windows types of the system services' interface: registry keys and value types,
// SYSTEMTIME, module handles, the fault record and the automation interface. Only the
// services' headers include this one, so the geometry headers do not declare these names.
//
// Handles are pointers to incomplete structs, declared exactly as the Windows headers declare
// them (STRICT, their default; NO_STRICT is not supported), so a client may include
// <windows.h> before or after the library's headers. On Windows, records the interface only
// passes by pointer are forward-declared, and the predefined keys and REG_* codes are left to
// <windows.h>, which a Windows client includes to use them. On Linux everything is defined
// here under the Windows names and with the Windows values.
#ifndef ORX_SERVICES_WINDOWS_TYPES_H
#define ORX_SERVICES_WINDOWS_TYPES_H

// The names are the Windows headers' own, reserved identifiers included.
// NOLINTBEGIN(bugprone-reserved-identifier)
struct HKEY__;
typedef HKEY__* HKEY;
struct HINSTANCE__;
typedef HINSTANCE__* HINSTANCE;
// An automation interface; opaque everywhere (Linux has no object to give).
struct IDispatch;

// SYSTEMTIME: the Windows headers define it only when their guard macro _SYSTEMTIME_ is not
// yet defined, and so does this header, with the same members; whichever comes first defines
// it and the other skips it.
#if !defined(_SYSTEMTIME_)
#define _SYSTEMTIME_
typedef struct _SYSTEMTIME {
    unsigned short wYear;
    unsigned short wMonth;
    unsigned short wDayOfWeek;  // 0 = Sunday
    unsigned short wDay;
    unsigned short wHour;
    unsigned short wMinute;
    unsigned short wSecond;
    unsigned short wMilliseconds;
} SYSTEMTIME, *PSYSTEMTIME, *LPSYSTEMTIME;
#endif

#if defined(_WIN32)
struct _EXCEPTION_POINTERS;
#else
#include <cstdint>

// What a fault translator receives on Linux: ExceptionRecord points to the signal's siginfo_t
// and ContextRecord to its ucontext_t, both valid only while the translator runs.
struct _EXCEPTION_POINTERS {
    void* ExceptionRecord;
    void* ContextRecord;
};

// The predefined registry keys, with the values Windows gives them (sign-extended 32-bit).
#define ORX_PREDEFINED_HKEY(value) \
    (reinterpret_cast<HKEY>(static_cast<std::intptr_t>(static_cast<std::int32_t>(value))))
#define HKEY_CLASSES_ROOT ORX_PREDEFINED_HKEY(0x80000000u)
#define HKEY_CURRENT_USER ORX_PREDEFINED_HKEY(0x80000001u)
#define HKEY_LOCAL_MACHINE ORX_PREDEFINED_HKEY(0x80000002u)

// Registry value types.
#define REG_NONE 0ul
#define REG_SZ 1ul
#define REG_EXPAND_SZ 2ul
#define REG_BINARY 3ul
#define REG_DWORD 4ul
#define REG_DWORD_LITTLE_ENDIAN 4ul
#define REG_DWORD_BIG_ENDIAN 5ul
#define REG_LINK 6ul
#define REG_MULTI_SZ 7ul
#define REG_RESOURCE_LIST 8ul
#define REG_FULL_RESOURCE_DESCRIPTOR 9ul
#define REG_RESOURCE_REQUIREMENTS_LIST 10ul
#define REG_QWORD 11ul
#define REG_QWORD_LITTLE_ENDIAN 11ul
#endif

// NOLINTEND(bugprone-reserved-identifier)

#endif  // ORX_SERVICES_WINDOWS_TYPES_H
