#include <ctime>

#include "orx/services/internal/clock.h"

namespace ORX::internal {
namespace {

constexpr __int64 kNanosecondsPerSecond = 1000000000;

}  // namespace

__int64 performanceCounter() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<__int64>(now.tv_sec) * kNanosecondsPerSecond + now.tv_nsec;
}

__int64 performanceFrequency() {
    return kNanosecondsPerSecond;
}

}  // namespace ORX::internal
