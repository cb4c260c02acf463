// Platform definitions shared by every header of the library.
//
// ORX_API marks what the library exports: dllexport/dllimport in the Windows DLL, default
// visibility in the Linux shared object (which is otherwise built with hidden visibility).
// The interface is written in Windows terms; what Windows provides and Linux lacks is
// defined here under the Windows names, so that client code reads the same on both. The
// Windows types only the system services take (HKEY, SYSTEMTIME, ...) are theirs, in
// orx/services/windows_types.h, so that a geometry client does not see them.
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
#define __int64 long long  // NOLINT(bugprone-reserved-identifier): the Windows name
#endif

#endif  // ORX_FOUNDATION_PLATFORM_H
