// Random bytes on Linux: getrandom(2), the kernel's random source.
#include <sys/random.h>
#include <cerrno>

#include "orx/foundation/shared/random_bytes.h"

namespace ORX {
namespace internal {

bool randomBytes(void* buffer, std::size_t size) {
    auto* at = static_cast<unsigned char*>(buffer);
    while (size > 0) {
        ssize_t const got = getrandom(at, size, 0);
        if (got < 0) {
            if (errno == EINTR) {
                continue;
            }
            return false;
        }
        at += got;
        size -= static_cast<std::size_t>(got);
    }
    return true;
}

}  // namespace internal
}  // namespace ORX
