// The library's version text.
#ifndef ORX_SERVICES_VERSION_H
#define ORX_SERVICES_VERSION_H

#include "orx/foundation/platform.h"

namespace ORX {

// "2017.0".
ORX_API wchar_t const* version();

}  // namespace ORX

#endif  // ORX_SERVICES_VERSION_H
