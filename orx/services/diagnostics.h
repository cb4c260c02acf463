// ORX::lastErrorString: the system's text for the last error of the calling thread.
//
//     if (ORX::runThread(&work, nullptr, 0, 0) == nullptr) {
//         log(ORX::lastErrorString());
//     }
#ifndef ORX_SERVICES_DIAGNOSTICS_H
#define ORX_SERVICES_DIAGNOSTICS_H

#include "orx/foundation/platform.h"

namespace ORX {

// Windows: the message FormatMessageW gives for GetLastError() (neutral language, as the
// system words it, line break included); empty when the system has none.
// Linux: strerror's text for errno (the library's Linux backend leaves its failure reasons
// there), in the language of the process's locale.
// The text lives in one process-wide string, shared by all threads and valid until the next
// call.
ORX_API wchar_t const* lastErrorString();

}  // namespace ORX

#endif  // ORX_SERVICES_DIAGNOSTICS_H
