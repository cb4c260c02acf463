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
// ray's line, or behind p, and p lies outside its box. An arc up to a half circle lies
// within its sagitta of its chord, bounded by |b| (|dx| + |dy|) / 2; longer arcs are always
// tested. The margin covers the tolerances of isPoint and intersectWith and the rounding of
// the coordinates, as the pruning boxes' does.
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
        double const sx = v.startPoint().x - m_px, sy = v.startPoint().y - m_py;
        double const ex = v.endPoint().x - m_px, ey = v.endPoint().y - m_py;
        double const reach = b * (std::fabs(ex - sx) + std::fabs(ey - sy)) / 2 + margin(v);
        // Sides of the ray's line, and positions along it.
        double const ds = m_ux * sy - m_uy * sx, de = m_ux * ey - m_uy * ex;
        double const ts = m_ux * sx + m_uy * sy, te = m_ux * ex + m_uy * ey;
        // Written as plain comparisons, all false for NaN: such a segment matters.
        bool const offLine = (ds > reach && de > reach) || (ds < -reach && de < -reach) ||
                             (ts < -reach && te < -reach);
        if (!offLine) {
            return true;
        }
        // Off the ray: it matters only if it may hold p.
        return !((sx > reach && ex > reach) || (sx < -reach && ex < -reach) ||
                 (sy > reach && ey > reach) || (sy < -reach && ey < -reach));
    }

private:
    double margin(COrxVertex const& v) const {
        double const size = larger(larger(std::fabs(v.startPoint().x), std::fabs(v.startPoint().y)),
                                   larger(std::fabs(v.endPoint().x), std::fabs(v.endPoint().y)));
        return m_fixedMargin + kRayMarginRelative * size;
    }

    // std::max by value: std::max of references went through memory on this path, which
    // runs once per segment of every one-shot point test.
    static double larger(double a, double b) { return a < b ? b : a; }

    double m_px, m_py, m_ux, m_uy;
    double m_fixedMargin;  // the tolerances and the rounding of p's coordinates
};

bool isLevelFrom(COrxVertexArray const& vl, int first, double z) {
    COrxVertex const* segments = vl.data();
    for (int k = first; k < vl.len(); ++k) {
        if (segments[k].startPoint().z != z || segments[k].endPoint().z != z) {
            return false;
        }
    }
    return true;
}

// 1 inside, 0 outside, -1 restart (the ray met a segment end), 2 on the polyline. The pass
// also finds out whether the polyline lies at height 0, where the ray is cast: when it does
// not, `level` turns false and the answer means nothing (before any restart, so that the
// test on the plan begins from the same state). Checking the heights on the way saves a
// pass of its own over a long polyline.
int rayParity(COrxVertexArray const& vl, COrxPoint3d const& p, double direction, bool& level) {
    COrxPoint3d const far = polar(p, direction, kPolylineRayLength);
    COrxVertex const ray(p, far, 0.0);
    RayFilter const filter(p, direction);
    COrxPoint3dArray pts;
    int hits = 0;
    COrxVertex const* segments = vl.data();
    for (int k = 0; k < vl.len(); ++k) {
        COrxVertex const& v = segments[k];
        if (v.startPoint().z != 0.0 || v.endPoint().z != 0.0) {
            level = false;
            return 0;
        }
        if (!filter.mayMatter(v)) {
            continue;  // neither holds p nor meets the ray
        }
        if (v.isPoint(p)) {
            level = isLevelFrom(vl, k + 1, 0.0);
            return 2;
        }
        v.intersectWith(pts, ray, COrxVertex::kSkipTangent);
        for (int n = 0; n < pts.len(); ++n) {
            if (pts[n] == v.startPoint() || pts[n] == v.endPoint()) {
                level = isLevelFrom(vl, k + 1, 0.0);
                return level ? -1 : 0;
            }
        }
        hits += pts.len();
    }
    return hits % 2;
}

// The polyline's plan at the height z.
COrxVertexArray atHeight(COrxVertexArray const& vl, double z) {
    COrxVertexArray plan(vl);
    for (int k = 0; k < plan.len(); ++k) {
        COrxVertex& v = plan[k];
        COrxPoint3d s = v.startPoint(), e = v.endPoint();
        s.z = e.z = z;
        v.set(s, e, v.bulge());
    }
    return plan;
}

}  // namespace

bool rayInside(COrxVertexArray const& vl, COrxPoint3d p, bool onBoundary) {
    if (vl.len() < 2) {
        return false;
    }
    p.z = 0.0;
    bool level = true;
    bool const inside = insideByRays(angle(vl[0].mid(), p), onBoundary, [&](double direction) {
        return rayParity(vl, p, direction, level);
    });
    if (level) {
        return inside;
    }
    // The segments compare points in space (isPoint, the ends the ray meets): a polyline
    // that does not lie at height 0 is tested on its plan there, or a point on it at
    // several heights would not be on it, a ray through a corner would count it twice, and
    // heights near the range of doubles would overflow.
    return rayInside(atHeight(vl, 0.0), p, onBoundary);
}

}  // namespace internal
}  // namespace ORX
