// Unpredictable bytes from the operating system's random source, for names that others must
// not guess (temporary file names, UUIDs). One implementation per platform:
// random_bytes_win32.cpp / random_bytes_posix.cpp, selected by the build.
#ifndef ORX_FOUNDATION_SHARED_RANDOM_BYTES_H
#define ORX_FOUNDATION_SHARED_RANDOM_BYTES_H

#include <cstddef>

namespace ORX {
namespace internal {

// Fills size bytes at buffer. False, when the system gives none, with the buffer undefined.
bool randomBytes(void* buffer, std::size_t size);

}  // namespace internal
}  // namespace ORX

#endif  // ORX_FOUNDATION_SHARED_RANDOM_BYTES_H
