// Where the Linux registry keeps its hives (see orx/services/registry.h).
#ifndef ORX_SERVICES_POSIX_REGISTRY_LOCATION_H
#define ORX_SERVICES_POSIX_REGISTRY_LOCATION_H

#include <string>

namespace ORX::internal {

enum class HiveKind { kClasses, kUser, kMachine };

// The database file of a hive, from ORX_REGISTRY_DIR or the XDG configuration folders as
// they are set now; empty when no folder can be found (no home folder).
std::string hiveFile(HiveKind kind);

}  // namespace ORX::internal

#endif  // ORX_SERVICES_POSIX_REGISTRY_LOCATION_H
