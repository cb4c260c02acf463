#include "orx/geom/shared/angle_range.h"

#include <cmath>

#include "orx/geom/functions.h"

namespace ORX {
namespace internal {

double shortenForLoop(double w, double period) {
    return std::fabs(w) > kMaxLoopAngle ? std::fmod(w, period) : w;
}

double angleInTurn(double w) {
    if (!std::isfinite(w)) {
        return nan();
    }
    w = shortenForLoop(w, kTwoPi);
    if (std::fabs(w - kTwoPi) < kTwoPiSnap) {
        return 0.0;
    }
    while (w >= kTwoPi) {
        w -= kTwoPi;
    }
    while (w < 0.0) {
        w += kTwoPi;
    }
    return w;
}

}  // namespace internal
}  // namespace ORX
