// Compiles only while no header of the foundation or of the geometry declares the Windows
// types of the system services: it includes every one of those headers (CMake writes the
// list), then declares the same names as something else, which a declaration already seen
// would make a conflicting one.
#include "geometry_headers.h"

#if defined(HKEY_CURRENT_USER) || defined(HKEY_LOCAL_MACHINE) || defined(REG_SZ) || \
    defined(REG_DWORD) || defined(_SYSTEMTIME_)
#error "a geometry header defines the services' registry or time names"
#endif

using HKEY = int;
using HKEY__ = int;
using HINSTANCE = int;
using SYSTEMTIME = int;
using IDispatch = int;
// MinGW's C runtime headers declare this record themselves; on Linux only the services do.
#if !defined(_WIN32)
using _EXCEPTION_POINTERS = int;
#endif
