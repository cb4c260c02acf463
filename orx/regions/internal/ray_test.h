// The point-in-polyline ray test of g_vl_pt_inside, as one pass over the segments.
//
// Each segment is first measured against the ray: only a segment that may come within the
// margin of it is asked whether it holds the point and where it meets the ray; the others can
// do neither, so the answer, the restarts and the calls of rand() are those of asking every
// segment. A single question costs one pass and builds nothing.
#ifndef ORX_REGIONS_INTERNAL_RAY_TEST_H
#define ORX_REGIONS_INTERNAL_RAY_TEST_H

#include <cstdlib>

#include "orx/polyline/vertex_array.h"
#include "orx/regions/bool_operation.h"

namespace ORX {
namespace internal {

// The answer of rays from p: parity(direction) gives 1 inside, 0 outside, 2 for p on the
// boundary and -1 when the ray grazes a vertex or runs along a segment; then a new direction
// is drawn with rand(), up to kMaxRayRestarts times (false after that).
template <class Parity>
bool insideByRays(double direction, bool onBoundary, Parity parity) {
    for (int attempt = 0; attempt < kMaxRayRestarts; ++attempt) {
        int const found = parity(direction);
        if (found == 2) {
            return onBoundary;
        }
        if (found >= 0) {
            return found == 1;
        }
        direction = std::rand() * kRandomDirectionScale;
    }
    return false;
}

// What one segment tells the ray from p to the far point: 2 when it holds p, -1 when the
// ray meets one of its ends (the ray must be drawn again), else 0 after adding the number of
// points where the ray crosses it to `hits`. `pts` is working space.
int askSegment(COrxVertex const& v, COrxPoint3d const& p, COrxVertex const& ray,
               COrxPoint3dArray& pts, int& hits);

bool rayInside(COrxVertexArray const& vl, COrxPoint3d p, bool onBoundary);

}  // namespace internal
}  // namespace ORX

#endif  // ORX_REGIONS_INTERNAL_RAY_TEST_H
