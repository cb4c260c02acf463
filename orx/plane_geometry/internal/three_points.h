// When three points in the XY plane span an arc or a triangle.
#ifndef ORX_PLANE_GEOMETRY_INTERNAL_THREE_POINTS_H
#define ORX_PLANE_GEOMETRY_INTERNAL_THREE_POINTS_H

#include <cmath>

#include "orx/geom/point.h"

namespace ORX {
namespace internal {

// Not when p1 and p3 coincide in the plan or p2 lies within the point tolerance of the line
// through them (collinear), nor for NaN or infinite coordinates.
inline bool spanPlane(COrxPoint3d const& p1, COrxPoint3d const& p2, COrxPoint3d const& p3) {
    if (!(p1.isValid() && p2.isValid() && p3.isValid())) {
        return false;
    }
    double const chord = std::hypot(p3.x - p1.x, p3.y - p1.y);
    double const cross = (p3.x - p1.x) * (p2.y - p1.y) - (p3.y - p1.y) * (p2.x - p1.x);
    return chord > COrxPoint3d::tol && std::fabs(cross) / chord > COrxPoint3d::tol;
}

}  // namespace internal
}  // namespace ORX

#endif  // ORX_PLANE_GEOMETRY_INTERNAL_THREE_POINTS_H
