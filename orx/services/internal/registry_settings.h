// The process-wide settings location, for the registry code that reads and writes settings.
#ifndef ORX_SERVICES_INTERNAL_REGISTRY_SETTINGS_H
#define ORX_SERVICES_INTERNAL_REGISTRY_SETTINGS_H

#include "orx/foundation/string.h"

namespace ORX::internal {

// False while the current version is empty: the application-name functions then refuse.
bool hasCurrentVersion();
COrxString const& currentVersion();
// <base>\<app>
COrxString applicationKeyPath(wchar_t const* app);

}  // namespace ORX::internal

#endif  // ORX_SERVICES_INTERNAL_REGISTRY_SETTINGS_H
