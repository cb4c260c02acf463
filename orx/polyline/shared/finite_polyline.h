// Whether a polyline holds only finite numbers: the guard of the functions that give the
// empty result for NaN or infinite input.
#ifndef ORX_POLYLINE_SHARED_FINITE_POLYLINE_H
#define ORX_POLYLINE_SHARED_FINITE_POLYLINE_H

#include <cmath>

#include "orx/polyline/vertex_array.h"

namespace ORX {
namespace internal {

// Every coordinate and bulge is a finite number. The difference of a number with itself is
// 0 when it is finite and NaN otherwise, so one sum answers for the whole polyline without a
// branch per value; large outlines pass through here before every boolean operation.
inline bool allFinite(COrxVertexArray const& vl) {
    COrxVertex const* const v = vl.data();
    double zero = 0.0;
    for (int k = 0; k < vl.len(); ++k) {
        COrxPoint3d const& s = v[k].startPoint();
        COrxPoint3d const& e = v[k].endPoint();
        double const b = v[k].bulge();
        zero += (s.x - s.x) + (s.y - s.y) + (s.z - s.z) + (e.x - e.x) + (e.y - e.y) + (e.z - e.z) +
                (b - b);
    }
    return zero == 0.0;
}

}  // namespace internal
}  // namespace ORX

#endif  // ORX_POLYLINE_SHARED_FINITE_POLYLINE_H
