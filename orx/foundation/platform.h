// Platform definitions shared by every header of the library.
//
// ORX_API marks what the library exports: dllexport/dllimport in the Windows DLL, default
// visibility in the Linux shared object (which is otherwise built with hidden visibility).
// The interface is written in Windows terms; what Windows provides and Linux lacks is
// defined here under the Windows names, so that client code reads the same on both.
#ifndef ORX_FOUNDATION_PLATFORM_H
#define ORX_FOUNDATION_PLATFORM_H

#if defined(_WIN32)
#if defined(ORX_BUILDING_BASE)
#define ORX_API __declspec(dllexport)
#else
#define ORX_API __declspec(dllimport)
#endif
#else
#define ORX_API __attribute__((visibility("default")))
#endif

// Exported instantiations of the library's class templates.
// ORX_EXTERN_TEMPLATE(X<T>) declares one for clients (in the header beside T);
// ORX_INSTANTIATE(X<T>) defines it in one file of the library. Every member of these
// templates is defined out of line, in an *_impl.h header: GCC on Windows exports no inline
// member of a template instantiation, and a client that sees the extern declaration does
// not instantiate one either. Inside the library the declarations are left out, so that
// files including the *_impl.h header instantiate (and inline) what they use; the linker
// merges those copies with the exported one. On Linux the templates carry default
// visibility (ORX_TEMPLATE_API) so that the merged copy stays exported.
#if defined(_WIN32)
#define ORX_TEMPLATE_API
#define ORX_INSTANTIATE(...) template class ORX_API __VA_ARGS__
#else
#define ORX_TEMPLATE_API __attribute__((visibility("default")))
#define ORX_INSTANTIATE(...) template class __VA_ARGS__
#endif
#if defined(ORX_BUILDING_BASE)
#define ORX_EXTERN_TEMPLATE(...) static_assert(true, "")
#else
#define ORX_EXTERN_TEMPLATE(...) extern template class ORX_API __VA_ARGS__
#endif

// The 64-bit integer of the Windows compilers. MinGW's own headers define it as this very
// macro, but only once one of them is included; an identical redefinition is allowed.
#if !defined(_MSC_VER) && !defined(__int64)
#define __int64 long long
#endif

// ---- Windows types of the system services' interface ----
// Handles are pointers to incomplete structs, declared exactly as the Windows headers declare
// them (STRICT, their default; NO_STRICT is not supported), so a client may include
// <windows.h> before or after the library's headers. On Windows, records the interface only
// passes by pointer are forward-declared, and the predefined keys and REG_* codes are left to
// <windows.h>, which a Windows client includes to use them. On Linux everything is defined
// here under the Windows names and with the Windows values.
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

#endif  // ORX_FOUNDATION_PLATFORM_H
