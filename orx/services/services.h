// System services: thin wrappers over the operating system with the same contracts on
// Windows and Linux.
//
//     std::wstring text = ORX::version();         // "2017.0"
#ifndef ORX_SERVICES_SERVICES_H
#define ORX_SERVICES_SERVICES_H

#include "orx/services/version.h"

#endif  // ORX_SERVICES_SERVICES_H
