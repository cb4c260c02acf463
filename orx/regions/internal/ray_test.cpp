#include "orx/regions/internal/ray_test.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "orx/geom/functions.h"
#include "orx/regions/bool_operation.h"

namespace ORX {
namespace internal {

namespace {

// The margin of the ray filter: this many point tolerances, and this share of the size of
// the coordinates for their rounding (as the pruning boxes' margin).
constexpr double kRayMarginTolerances = 4.0;
constexpr double kRayMarginRelative = 1e-9;

// The ray from p along the unit direction (ux, uy), and the cheapest test that a segment can
// neither hold p nor meet the ray: all of it lies farther than the margin to one side of the
// ray's line, or behind p. Since p lies on the ray, such a segment is also farther than the
// margin from p. An arc up to a half circle lies within its sagitta of its chord, bounded by
// |b| (|dx| + |dy|) / 2; longer arcs are always tested. The margin covers the tolerances of
// isPoint and intersectWith and the rounding of the coordinates; the sum of the four
// coordinate sizes stands for their largest, which is cheaper and never smaller.
class RayFilter {
public:
    RayFilter(COrxPoint3d const& p, double direction)
        : m_px(p.x),
          m_py(p.y),
          m_ux(std::cos(direction)),
          m_uy(std::sin(direction)),
          m_fixedMargin(kRayMarginTolerances * COrxPoint3d::tol +
                        kRayMarginRelative * std::max(std::fabs(p.x), std::fabs(p.y))) {}

    bool mayMatter(COrxVertex const& v) const {
        double const b = std::fabs(v.bulge());
        if (!(b <= 1.0)) {
            return true;  // a longer arc, or a NaN bulge
        }
        COrxPoint3d const& s = v.startPoint();
        COrxPoint3d const& e = v.endPoint();
        double const sx = s.x - m_px, sy = s.y - m_py;
        double const ex = e.x - m_px, ey = e.y - m_py;
        double const size = std::fabs(s.x) + std::fabs(s.y) + std::fabs(e.x) + std::fabs(e.y);
        double const reach = b * 0.5 * (std::fabs(ex - sx) + std::fabs(ey - sy)) + m_fixedMargin +
                             kRayMarginRelative * size;
        // Written as plain comparisons, all false for NaN: such a segment matters.
        double const ds = m_ux * sy - m_uy * sx, de = m_ux * ey - m_uy * ex;
        if ((ds > reach && de > reach) || (ds < -reach && de < -reach)) {
            return false;  // to one side of the ray's line
        }
        double const ts = m_ux * sx + m_uy * sy, te = m_ux * ex + m_uy * ey;
        return !(ts < -reach && te < -reach);  // behind p, or not
    }

private:
    double m_px, m_py, m_ux, m_uy;
    double m_fixedMargin;  // the tolerances and the rounding of p's coordinates
};

// The segment's plan at height 0, where the ray is cast. The segments compare points in
// space (isPoint, the ends the ray meets): on a polyline off that height a point on it would
// not be on it, a ray through a corner would count it twice, and heights near the range of
// doubles would overflow. The filter above does not look at heights, so only the segments
// it lets through need their plan.
COrxVertex const& onPlan(COrxVertex const& v, COrxVertex& plan) {
    if (v.startPoint().z == 0.0 && v.endPoint().z == 0.0) {
        return v;
    }
    COrxPoint3d s = v.startPoint(), e = v.endPoint();
    s.z = e.z = 0.0;
    plan.set(s, e, v.bulge());
    return plan;
}

// 1 inside, 0 outside, -1 restart (the ray met a segment end), 2 on the polyline.
int rayParity(COrxVertexArray const& vl, COrxPoint3d const& p, double direction) {
    COrxPoint3d const far = polar(p, direction, kPolylineRayLength);
    COrxVertex const ray(p, far, 0.0);
    RayFilter const filter(p, direction);
    COrxPoint3dArray pts;
    COrxVertex plan;
    int hits = 0;
    COrxVertex const* const segments = vl.data();
    int const count = vl.len();
    for (int k = 0; k < count; ++k) {
        if (!filter.mayMatter(segments[k])) {
            continue;  // neither holds p nor meets the ray
        }
        if (int const told = askSegment(onPlan(segments[k], plan), p, ray, pts, hits)) {
            return told;
        }
    }
    return hits % 2;
}

}  // namespace

int askSegment(COrxVertex const& v, COrxPoint3d const& p, COrxVertex const& ray,
               COrxPoint3dArray& pts, int& hits) {
    if (v.isPoint(p)) {
        return 2;
    }
    v.intersectWith(pts, ray, COrxVertex::kSkipTangent);
    for (int n = 0; n < pts.len(); ++n) {
        if (pts[n] == v.startPoint() || pts[n] == v.endPoint()) {
            return -1;
        }
    }
    hits += pts.len();
    return 0;
}

bool rayInside(COrxVertexArray const& vl, COrxPoint3d p, bool onBoundary) {
    if (vl.len() < 2) {
        return false;
    }
    // The polyline is tested on its plan at height 0, the first ray aimed at the middle of
    // the plan of its first segment.
    p.z = 0.0;
    COrxVertex firstPlan;
    double const direction = angle(onPlan(vl[0], firstPlan).mid(), p);
    return insideByRays(direction, onBoundary, [&](double ray) { return rayParity(vl, p, ray); });
}

}  // namespace internal
}  // namespace ORX
