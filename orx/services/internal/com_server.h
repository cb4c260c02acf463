// What the neutral ProgID code needs from the backends, and what it gives them.
#ifndef ORX_SERVICES_INTERNAL_COM_SERVER_H
#define ORX_SERVICES_INTERNAL_COM_SERVER_H

#include "orx/foundation/string.h"

namespace ORX::internal {

// The version-specific ProgID the CurVer key of progId names, else progId itself.
COrxString resolvedProgId(wchar_t const* progId);

// Whether path names an existing file or folder.
bool fileExists(wchar_t const* path);

// msg_send after its argument check: neither argument is null.
int sendData(wchar_t const* progId, int code, wchar_t const* text);

}  // namespace ORX::internal

#endif  // ORX_SERVICES_INTERNAL_COM_SERVER_H
