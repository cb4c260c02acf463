#include <windows.h>

#include "orx/services/internal/clock.h"

namespace ORX::internal {

__int64 performanceCounter() {
    LARGE_INTEGER count{};
    QueryPerformanceCounter(&count);
    return count.QuadPart;
}

__int64 performanceFrequency() {
    LARGE_INTEGER frequency{};
    QueryPerformanceFrequency(&frequency);
    return frequency.QuadPart;
}

}  // namespace ORX::internal
