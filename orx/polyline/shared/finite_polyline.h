// Whether a polyline holds only finite numbers: the guard of the functions that give the
// empty result for NaN or infinite input.
#ifndef ORX_POLYLINE_SHARED_FINITE_POLYLINE_H
#define ORX_POLYLINE_SHARED_FINITE_POLYLINE_H

#include <cmath>

#include "orx/polyline/vertex_array.h"

namespace ORX {
namespace internal {

// Every coordinate and bulge is a finite number.
inline bool allFinite(COrxVertexArray const& vl) {
    for (int k = 0; k < vl.len(); ++k) {
        COrxVertex const& v = vl[k];
        if (!v.startPoint().isValid() || !v.endPoint().isValid() || !std::isfinite(v.bulge())) {
            return false;
        }
    }
    return true;
}

}  // namespace internal
}  // namespace ORX

#endif  // ORX_POLYLINE_SHARED_FINITE_POLYLINE_H
