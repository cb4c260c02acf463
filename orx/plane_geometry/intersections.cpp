#include "orx/plane_geometry/intersections.h"

#include <algorithm>
#include <cfloat>
#include <cmath>

#include "orx/geom/functions.h"
#include "orx/geom/shared/finite.h"
#include "orx/plane_geometry/angles.h"
#include "orx/plane_geometry/bulges.h"
#include "orx/plane_geometry/lines.h"
#include "orx/plane_geometry/points.h"

namespace ORX {

namespace {

bool circleValid(COrxPoint3d const& c, double r) {
    return c.isValid() && std::isfinite(r) && r >= 0.0;
}

// Overflowing input can leave points with infinite or NaN coordinates; then nothing counts.
bool keepOnlyIfValid(COrxPoint3dArray& pts) {
    for (int k = 0; k < pts.len(); ++k) {
        if (!pts[k].isValid()) {
            pts.setLogicalLength(0);
            return false;
        }
    }
    return !pts.isEmpty();
}

// The circle-circle cases in their order; pts is empty on entry.
void circleCircle(COrxPoint3dArray& pts, COrxPoint3d const& c1, double r1, COrxPoint3d const& c2,
                  double r2) {
    double const t = COrxPoint3d::tol;
    double const d = g_dist2d(c1, c2);
    if (std::fabs(r1 + r2 - d) < t) {
        pts.append(polar(c1, angle(c1, c2), r1));
    } else if (std::fabs(d + r1 - r2) < t || std::fabs(d + r2 - r1) < t) {
        pts.append(r1 <= r2 ? polar(c2, angle(c2, c1), r2) : polar(c1, angle(c1, c2), r1));
    } else if (r1 + r2 - d < 0.0 || d + r1 - r2 < 0.0 || d + r2 - r1 < 0.0) {
        return;
    } else {
        double const a = angle(c1, c2);
        // The cases above keep the cosine inside [-1, 1] but for rounding; clamp that away.
        double const cosine = (d * d + r1 * r1 - r2 * r2) / (2 * r1 * d);
        double const g = std::acos(std::clamp(cosine, -1.0, 1.0));
        double const touch = kTouchArcLength / r1;
        if (std::fabs(g) < touch || std::fabs(g - kPi) < touch) {
            pts.append(polar(c1, a, r1));
        } else {
            pts.append(polar(c1, a + g, r1));
            pts.append(polar(c1, a - g, r1));
        }
    }
}

// The line-circle roots: the line v = m u + b in the parameter u (x, or y for steep lines),
// solved relative to the centre so that the quadratic does not cancel at site coordinates.
void lineCircle(COrxPoint3dArray& pts, COrxPoint3d const& c, double r, COrxPoint3d const& p1,
                COrxPoint3d const& p2) {
    double const t = COrxPoint3d::tol;
    double const dx = p1.x - p2.x, dy = p1.y - p2.y;
    bool const byX = std::fabs(dy) <= std::fabs(dx);
    double const du = byX ? dx : dy, dv = byX ? dy : dx;
    if (du == 0.0) {
        return;  // p1 and p2 coincide in the plan: no line
    }
    double const m = dv / du;
    double const u2 = byX ? p2.x - c.x : p2.y - c.y;
    double const v2 = byX ? p2.y - c.y : p2.x - c.x;
    double const b = v2 - m * u2;
    double const A = m * m + 1;
    double const P = 2 * b * m / A;
    double const Q = (b - r) * (b + r) / A;
    double D = P * P / 4 - Q;
    if (D >= 0.0 && std::sqrt(D) < t / 2) {
        D = 0.0;
    }
    if (D < 0.0) {
        double const rest = r * r - std::fabs(D);
        double const miss = rest <= 0.0 ? DBL_MAX : std::fabs(r - std::sqrt(rest));
        if (miss < t) {
            D = 0.0;
        }
    }
    if (!(D >= 0.0)) {
        return;
    }
    double const s = std::sqrt(D);
    auto add = [&](double u) {
        double const v = m * u + b;
        pts.append(byX ? COrxPoint3d(c.x + u, c.y + v, c.z) : COrxPoint3d(c.x + v, c.y + u, c.z));
    };
    add(-P / 2 - s);
    if (s > 0.0) {
        add(-P / 2 + s);
    }
}

// Appends the points of `found` for which keep(point) holds, in order.
template <class Keep>
void keepWhere(COrxPoint3dArray& pts, COrxPoint3dArray const& found, Keep keep) {
    for (int k = 0; k < found.len(); ++k) {
        if (keep(found[k])) {
            pts.append(found[k]);
        }
    }
}

// The common end points of two concentric arcs, arc 1's ends first.
void commonEnds(COrxPoint3dArray& pts, COrxPoint3d const& c1, double r1, double a0, double a1,
                COrxPoint3d const& c2, double r2, double b0, double b1) {
    COrxPoint3dArray first, second;
    first.append(polar(c1, a0, r1)).append(polar(c1, a1, r1));
    second.append(polar(c2, b0, r2)).append(polar(c2, b1, r2));
    keepWhere(pts, first, [&](COrxPoint3d const& e) { return second.indexOf(e) >= 0; });
    keepWhere(pts, second,
              [&](COrxPoint3d const& e) { return first.indexOf(e) >= 0 && pts.indexOf(e) < 0; });
}

}  // namespace

bool g_cci(COrxPoint3dArray& pts, COrxPoint3d const& c1, double r1, COrxPoint3d const& c2,
           double r2) {
    pts.setLogicalLength(0);
    if (!circleValid(c1, r1) || !circleValid(c2, r2)) {
        return false;
    }
    circleCircle(pts, c1, r1, c2, r2);
    return keepOnlyIfValid(pts);
}

bool g_cli0(COrxPoint3dArray& pts, COrxPoint3d const& c, double r, COrxPoint3d const& p1,
            COrxPoint3d const& p2) {
    pts.setLogicalLength(0);
    if (!circleValid(c, r) || !internal::allValid(p1, p2)) {
        return false;
    }
    lineCircle(pts, c, r, p1, p2);
    return keepOnlyIfValid(pts);
}

bool g_cli(COrxPoint3dArray& pts, COrxPoint3d const& c, double r, COrxPoint3d const& p1,
           COrxPoint3d const& p2) {
    COrxPoint3dArray found;
    if (!g_cli0(found, c, r, p1, p2)) {
        return false;
    }
    pts.setLogicalLength(0);
    keepWhere(pts, found, [&](COrxPoint3d const& q) { return g_line_pt(p1, p2, q); });
    return !pts.isEmpty();
}

bool g_ali(COrxPoint3dArray& pts, COrxPoint3d const& c, double r, double a0, double a1,
           COrxPoint3d const& p1, COrxPoint3d const& p2) {
    COrxPoint3dArray found;
    g_cli0(found, c, r, p1, p2);
    pts.setLogicalLength(0);
    keepWhere(pts, found, [&](COrxPoint3d const& q) {
        return g_line_pt(p1, p2, q) && g_arc_pt(c, r, a0, a1, q);
    });
    return !pts.isEmpty();
}

bool g_cai(COrxPoint3dArray& pts, COrxPoint3d const& c1, double r1, COrxPoint3d const& c2,
           double r2, double b0, double b1) {
    COrxPoint3dArray found;
    g_cci(found, c1, r1, c2, r2);
    pts.setLogicalLength(0);
    keepWhere(pts, found, [&](COrxPoint3d const& q) { return g_arc_pt(c2, r2, b0, b1, q); });
    return true;
}

bool g_aai(COrxPoint3dArray& pts, COrxPoint3d const& c1, double r1, double a0, double a1,
           COrxPoint3d const& c2, double r2, double b0, double b1) {
    pts.setLogicalLength(0);
    if (!circleValid(c1, r1) || !circleValid(c2, r2) || !internal::allFinite(a0, a1, b0, b1)) {
        return false;
    }
    if (c1 == c2) {
        commonEnds(pts, c1, r1, a0, a1, c2, r2, b0, b1);
        return keepOnlyIfValid(pts);
    }
    COrxPoint3dArray found;
    g_cci(found, c1, r1, c2, r2);
    keepWhere(pts, found, [&](COrxPoint3d const& q) {
        return g_arc_pt(c1, r1, a0, a1, q) && g_arc_pt(c2, r2, b0, b1, q);
    });
    return !pts.isEmpty();
}

double g_lot(COrxPoint3d const& a, COrxPoint3d const& b, COrxPoint3d const& p) {
    if (!internal::allValid(a, b, p)) {
        return nan();
    }
    COrxPoint3d q = g_lotp(a, b, p);
    q.z = p.z;
    return g_ang(angle(q, p));
}

}  // namespace ORX
