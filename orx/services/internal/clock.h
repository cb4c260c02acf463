// The high-resolution counter behind ORX::CTimer.
#ifndef ORX_SERVICES_INTERNAL_CLOCK_H
#define ORX_SERVICES_INTERNAL_CLOCK_H

#include "orx/foundation/platform.h"

namespace ORX::internal {

// A monotonic count that never goes back, and its counts per second.
__int64 performanceCounter();
__int64 performanceFrequency();

}  // namespace ORX::internal

#endif  // ORX_SERVICES_INTERNAL_CLOCK_H
