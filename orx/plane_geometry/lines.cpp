#include "orx/plane_geometry/lines.h"

#include <cmath>

#include "orx/geom/shared/line_intersection.h"

namespace ORX {

namespace {

// The point of pts whose distance from p is best by `better`, NaN distances ignored; -1 when
// there is none.
template <class Better>
int bestByDistance(COrxPoint3d const& p, COrxPoint3dArray const& pts, Better better) {
    int best = -1;
    double bestDistance = 0.0;
    for (int k = 0; k < pts.len(); ++k) {
        double const d = p.distanceTo(pts[k]);
        if (!std::isnan(d) && (best < 0 || better(d, bestDistance))) {
            best = k;
            bestDistance = d;
        }
    }
    return best;
}

}  // namespace

COrxPoint3d g_lotp(COrxPoint3d const& a, COrxPoint3d const& b, COrxPoint3d const& p) {
    return internal::lineFoot(a, b, p);
}

bool g_line_pt(COrxPoint3d const& a, COrxPoint3d const& b, COrxPoint3d const& p) {
    return internal::pointOnSegment(a, b, p);
}

bool inters(COrxPoint3d const& p1, COrxPoint3d const& p2, COrxPoint3d const& p3,
            COrxPoint3d const& p4, bool bounded, COrxPoint3d& out) {
    return internal::intersectLines(p1, p2, p3, p4, bounded, out);
}

COrxPoint3d g_near_p1(COrxPoint3d const& p, COrxPoint3dArray const& pts) {
    int const k = bestByDistance(p, pts, [](double d, double best) { return d < best; });
    return k < 0 ? p : pts[k];
}

COrxPoint3d g_far_p1(COrxPoint3d const& p, COrxPoint3dArray const& pts) {
    int const k = bestByDistance(p, pts, [](double d, double best) { return d > best; });
    return k < 0 ? p : pts[k];
}

}  // namespace ORX
