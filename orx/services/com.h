// Finding and messaging a running application by its ProgID.
//
//     COrxString program;
//     if (ORX::serverFromProgID(L"Kelvara.Draw", program)) { ... }   // its executable
//     int const answer = ORX::msg_send(L"Kelvara.Draw", 12, L"refresh");
//     if (answer == -1) { ... }                                      // not running, or failed
//
// A ProgID whose key HKEY_CLASSES_ROOT\<progId>\CurVer exists is first replaced by the
// version-specific ProgID that key names (see ORX::curProgId).
//
// Windows: COM automation. The running server is found through the running-object table
// (GetActiveObject); nothing is started. msg_send initialises COM on the calling thread for
// the call when the caller has not (a single-threaded apartment).
//
// Linux: the ProgID keys are read from the classes hive of the library's registry (see
// registry.h), and messages go over the D-Bus session bus (DBUS_SESSION_BUS_ADDRESS, else
// $XDG_RUNTIME_DIR/bus). A server owns the bus name made from its version-specific ProgID
// and serves the method
//     SendData(s caller, i code, s text) -> i
// of interface "com.kelvara.Automation" at object path "/com/kelvara/Automation". The bus
// name is "com.kelvara.progid." followed by the ProgID, lower-cased, with each of its
// "."-separated elements escaped: letters a-z and digits stay (except a digit that would
// start an element), every other byte of the element's UTF-8 becomes "_" and two lower-case
// hex digits, and an empty element becomes "_". So "Kelvara.Draw.1" is served at
// "com.kelvara.progid.kelvara.draw._31". A ProgID whose name would exceed the bus's 255
// characters cannot be served.
#ifndef ORX_SERVICES_COM_H
#define ORX_SERVICES_COM_H

#include "orx/foundation/platform.h"
#include "orx/foundation/string.h"
#include "orx/services/windows_types.h"

namespace ORX {

// Windows: the automation interface of the running server of progId in *out (the caller
// releases it): CLSIDFromProgID, GetActiveObject, QueryInterface for IDispatch. Returns the
// last HRESULT: S_OK, or the failure (out null then), E_POINTER for a null out and
// E_INVALIDARG for a null progId. The calling thread must have initialised COM.
// Linux: there is no automation interface to give: *out = null and E_NOTIMPL (0x80004001,
// a negative long as every failure HRESULT), or E_POINTER (0x80004003) for a null out.
ORX_API long dispatchFromProgID(wchar_t const* progId, IDispatch** out);

// The executable registered for progId: the default value of the ProgID's CLSID key names
// the class; the default value of CLSID\<class>\LocalServer32 names the program, or, when
// that is missing or names no existing file, the one under Wow6432Node\CLSID\<class> does.
// A leading and a trailing double quote are removed, so that a quoted path comes back bare
// (the file test is made on the bare text). False with exePath untouched when progId is
// null or a key or value is missing.
ORX_API bool serverFromProgID(wchar_t const* progId, COrxString& exePath);

// Calls the running server's SendData("ORX", code, text) and returns its answer. -1 when an
// argument is null (nothing else is done then), no server of progId is running or reachable,
// the call fails or the answer is not a 32-bit integer. Windows: the automation method
// "SendData" (arguments VT_BSTR, VT_I4, VT_BSTR; answer VT_I4). Linux: the D-Bus method
// above, waiting at most ORX::kMessageTimeoutMs for the answer.
ORX_API int msg_send(wchar_t const* progId, int code, wchar_t const* text);

// How long msg_send waits for a Linux server's answer (the usual D-Bus limit).
constexpr int kMessageTimeoutMs = 25000;

}  // namespace ORX

#endif  // ORX_SERVICES_COM_H
