// COrxPoint3dArray::ptInside: the crossings of one ray with the polygon's edges.
#include "orx/geom/point_array.h"
#include "orx/geom/shared/line_intersection.h"
#include "orx/geom/shared/midpoint.h"

namespace {
// Length of the test ray: far beyond any drawing.
constexpr double kInsideRayLength = 1.0e9;
}  // namespace

bool COrxPoint3dArray::ptInside(COrxPoint3d const& p) const {
    int const n = len();
    if (n < 3) {
        return false;
    }
    // The ray leaves p towards the middle of the first edge; no re-aiming when it passes
    // through a corner (the polyline test does that).
    COrxPoint3d const aim = ORX::internal::midpoint((*this)[0], (*this)[1]);
    COrxPoint3d const rayEnd = p + (aim - p).normal() * kInsideRayLength;
    int crossings = 0;
    for (int i = 0; i < n; ++i) {
        COrxPoint3d hit;
        if (ORX::internal::intersectLines(p, rayEnd, (*this)[i], (*this)[(i + 1) % n], true, hit)) {
            ++crossings;
        }
    }
    return crossings % 2 == 1;
}
