// Guards of the geometry functions against NaN, infinite and overflowing values: the
// formulas stay as written for ordinary input, and these decide what bad input gives.
#ifndef ORX_GEOM_SHARED_FINITE_H
#define ORX_GEOM_SHARED_FINITE_H

#include <cmath>

#include "orx/geom/functions.h"
#include "orx/geom/point.h"

namespace ORX {
namespace internal {

// Every value is a finite number.
template <class... Values>
bool allFinite(Values... values) {
    return (std::isfinite(values) && ...);
}

// Every point has finite coordinates.
template <class... Points>
bool allValid(Points const&... points) {
    return (points.isValid() && ...);
}

// The library's "no answer" for a formula that divided by zero or overflowed.
inline double finiteOrNan(double value) {
    return std::isfinite(value) ? value : ORX::nan();
}

// The length of the plan vector (dx, dy): the square root of the sum of squares where that
// cannot overflow or underflow (it is several times faster), hypot beyond.
inline double planLength(double dx, double dy) {
    double const big = 1e150, small = 1e-150;
    double const ax = std::fabs(dx), ay = std::fabs(dy);
    if (ax < big && ay < big && (ax > small || ay > small || (ax == 0.0 && ay == 0.0))) {
        return std::sqrt(dx * dx + dy * dy);
    }
    return std::hypot(dx, dy);
}

inline COrxPoint3d nanPoint() {
    return COrxPoint3d(ORX::nan(), ORX::nan(), ORX::nan());
}

}  // namespace internal
}  // namespace ORX

#endif  // ORX_GEOM_SHARED_FINITE_H
