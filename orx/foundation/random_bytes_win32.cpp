// Random bytes on Windows: BCryptGenRandom with the system's preferred generator.
#include <windows.h>

#include <bcrypt.h>

#include <climits>

#include "orx/foundation/shared/random_bytes.h"

namespace ORX {
namespace internal {

bool randomBytes(void* buffer, std::size_t size) {
    auto* at = static_cast<unsigned char*>(buffer);
    while (size > 0) {
        ULONG const part = size > ULONG_MAX ? ULONG_MAX : static_cast<ULONG>(size);
        if (!BCRYPT_SUCCESS(BCryptGenRandom(nullptr, at, part, BCRYPT_USE_SYSTEM_PREFERRED_RNG))) {
            return false;
        }
        at += part;
        size -= part;
    }
    return true;
}

}  // namespace internal
}  // namespace ORX
