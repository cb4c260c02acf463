// The point-in-polyline ray test of g_vl_pt_inside, as one pass over the segments.
//
// Each segment is first tested against boxes: only a segment whose box may hold the point or
// meet the ray is asked whether it holds the point and where it meets the ray; the others can
// do neither, so the answer, the restarts and the calls of rand() are those of asking every
// segment. A single question costs one pass and builds nothing.
#ifndef ORX_REGIONS_INTERNAL_RAY_TEST_H
#define ORX_REGIONS_INTERNAL_RAY_TEST_H

#include "orx/polyline/vertex_array.h"

namespace ORX {
namespace internal {

bool rayInside(COrxVertexArray const& vl, COrxPoint3d p, bool onBoundary);

}  // namespace internal
}  // namespace ORX

#endif  // ORX_REGIONS_INTERNAL_RAY_TEST_H
