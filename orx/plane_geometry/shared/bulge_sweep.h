// The angle a bulge segment turns through, the one place the relation between bulge and
// angle is written: bulge = tan(theta / 4).
#ifndef ORX_PLANE_GEOMETRY_SHARED_BULGE_SWEEP_H
#define ORX_PLANE_GEOMETRY_SHARED_BULGE_SWEEP_H

#include <cmath>

namespace ORX {
namespace internal {

// theta = 4 atan(bulge), signed as the bulge (counter-clockwise positive): pi for a half
// circle (bulge 1), 0 for a straight segment, NaN for a NaN bulge.
inline double bulgeSweep(double bulge) {
    return 4 * std::atan(bulge);
}

}  // namespace internal
}  // namespace ORX

#endif  // ORX_PLANE_GEOMETRY_SHARED_BULGE_SWEEP_H
