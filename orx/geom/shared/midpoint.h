// The point halfway between two points, in every coordinate.
#ifndef ORX_GEOM_SHARED_MIDPOINT_H
#define ORX_GEOM_SHARED_MIDPOINT_H

#include "orx/geom/point.h"

namespace ORX {
namespace internal {

inline COrxPoint3d midpoint(COrxPoint3d const& p, COrxPoint3d const& q) {
    return COrxPoint3d((p.x + q.x) / 2, (p.y + q.y) / 2, (p.z + q.z) / 2);
}

}  // namespace internal
}  // namespace ORX

#endif  // ORX_GEOM_SHARED_MIDPOINT_H
