// COrxPoint3dArray::ptInside lives with the polylines because its ray test is a segment
// intersection.
#include "orx/geom/point_array.h"
#include "orx/plane_geometry/plane_geometry.h"
#include "orx/polyline/vertex.h"

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
    COrxPoint3d const aim = ORX::g_midp3d((*this)[0], (*this)[1]);
    COrxVertex const ray(p, p + (aim - p).normal() * kInsideRayLength, 0.0);
    int crossings = 0;
    COrxPoint3dArray hits;
    for (int i = 0; i < n; ++i) {
        COrxVertex const edge((*this)[i], (*this)[(i + 1) % n], 0.0);
        if (ray.intersectWith(hits, edge, 0)) {
            crossings += hits.len();
        }
    }
    return crossings % 2 == 1;
}
