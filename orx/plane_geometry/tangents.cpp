#include "orx/plane_geometry/tangents.h"

#include <cmath>

#include "orx/geom/functions.h"
#include "orx/geom/shared/finite.h"
#include "orx/geom/vector.h"
#include "orx/plane_geometry/angles.h"
#include "orx/plane_geometry/internal/three_points.h"
#include "orx/plane_geometry/intersections.h"
#include "orx/plane_geometry/points.h"

namespace ORX {

using internal::finiteOrNan;

double g_tang_radius(double a, double b) {
    return finiteOrNan(b * b / (2 * a) + a / 2);
}

double g_tang_ang(COrxPoint3d const& p1, double r1, COrxPoint3d const& p2, double r2) {
    double const d = p1.distanceTo(p2) * r1 / (r1 + r2);
    return finiteOrNan(std::atan(r1 / std::sqrt(d * d - r1 * r1)));
}

double g_tang_cen(double m, double b, double x, double r) {
    if (r == 0.0) {
        return nan();
    }
    return finiteOrNan(b - m * x + m * r - r / std::cos(std::atan(m)));
}

double g_korb_3m(double a, double b) {
    double const d = std::sqrt(a * a + b * b);
    return finiteOrNan((d + a - b) * (d / 2) / b);
}

double g_rkorb(double a, double b, double c) {
    return finiteOrNan((2 * b * c - b * b - a * a / 4) / (2 * c - a));
}

double g_rkorb2(double a, double b, double c) {
    return finiteOrNan((a * c - b * b - a * a / 4) / (2 * (c - b)));
}

double g_fries_w(double a, double b, double c) {
    if (c < 0.0) {
        return nan();
    }
    double const d = a - c;
    return finiteOrNan(g_w_3eck(c, std::sqrt(d * d + b * b), 2 * c) + std::atan(d / b) - kHalfPi);
}

double g_fries_r(double a, double b, double w) {
    double const s = a * a + b * b;
    double const sinW = std::sin(w);
    if (std::fabs(sinW) < kFriesSinLimit) {
        return finiteOrNan(s / (4 * a));
    }
    double const cosW = std::cos(w);
    double const k = (cosW + 1) * (cosW + 1) + sinW * sinW - 4;
    double const p = (2 * b * sinW - 2 * a * (cosW + 1)) / k / 2;
    return finiteOrNan(-p + std::sqrt(p * p - s / k));
}

double g_achs_dist(double a, double b, double c, double d, double e) {
    return finiteOrNan(c / 2 - (d / 2 * b / a - (e / 2) / std::sin(std::atan(a / b))));
}

bool g_tang2_cen(COrxPoint3dArray& pts, COrxPoint3d const& c1, double r1, COrxPoint3d const& c2,
                 double r2, double r) {
    if (!(r > 0.0)) {
        pts.setLogicalLength(0);
        return false;
    }
    return g_cci(pts, c1, r1 + r, c2, r2 + r);
}

bool g_tang3_cen(COrxPoint3d& centre, double& r, COrxPoint3d const& p1, COrxPoint3d const& p2,
                 COrxPoint3d const& p3) {
    if (!internal::spanPlane(p1, p2, p3)) {
        return false;
    }
    double const a = g_dist2d(p2, p3), b = g_dist2d(p1, p3), c = g_dist2d(p1, p2);
    double const perimeter = a + b + c;
    double const twiceArea =
        std::fabs((p2.x - p1.x) * (p3.y - p1.y) - (p2.y - p1.y) * (p3.x - p1.x));
    COrxPoint3d const in((a * p1.x + b * p2.x + c * p3.x) / perimeter,
                         (a * p1.y + b * p2.y + c * p3.y) / perimeter, p1.z);
    double const radius = twiceArea / perimeter;
    if (!in.isValid() || !std::isfinite(radius)) {
        return false;
    }
    centre = in;
    r = radius;
    return true;
}

double g_korb_5m(double a, double b, COrxPoint3dArray& centres) {
    if (!(b > 0.0 && b <= a) || !std::isfinite(a)) {
        return nan();
    }
    // Walking the quarter from the springing point to the crown, the five-arc chain turns by
    // one step per arc (half a step for the crown arc's half); its reach must be a across and
    // b up. With the middle radius the mean of the other two this is linear in the crown
    // radius r1 and the springing radius r3:  alpha r1 + (1 - alpha) r3 = a,
    // (1 - beta) r1 + beta r3 = b.
    double const s = kFiveCentreStep;
    double const alpha = (std::cos(s) + std::cos(2 * s)) / 2;
    double const beta = (std::sin(s) + std::sin(2 * s)) / 2;
    double const det = alpha + beta - 1;
    double const r1 = (a * beta - (1 - alpha) * b) / det;
    double const r3 = (alpha * b - (1 - beta) * a) / det;
    double const r2 = (r1 + r3) / 2;
    if (!(r3 > 0.0)) {
        return nan();
    }
    COrxPoint3d const springing(a - r3, 0.0, 0.0);
    COrxPoint3d const middle = springing + polar(s, r3 - r2);
    centres.setLogicalLength(0);
    centres.append(g_p_mrx(springing)).append(g_p_mrx(middle));
    centres.append(COrxPoint3d(0.0, b - r1, 0.0)).append(middle).append(springing);
    return r1;
}

bool g_nm_fillet_mp(COrxPoint3d& centre, COrxPoint3d const& p1, COrxPoint3d const& p2,
                    COrxPoint3d const& p3, double r) {
    if (!internal::allValid(p1, p2, p3) || !(r > 0.0) || !std::isfinite(r) ||
        g_dist2d(p1, p2) <= COrxPoint3d::tol || g_dist2d(p3, p2) <= COrxPoint3d::tol) {
        return false;
    }
    COrxVector3d const leg1 = COrxVector3d(p1.x - p2.x, p1.y - p2.y, 0.0).normalize();
    COrxVector3d const leg3 = COrxVector3d(p3.x - p2.x, p3.y - p2.y, 0.0).normalize();
    COrxVector3d const bisector = (leg1 + leg3).normalize();
    if (bisector == COrxVector3d::kNull) {
        return false;  // the legs run straight on: no corner to round
    }
    double const sinHalf = std::sqrt((1 - sprod(leg1, leg3)) / 2);
    COrxPoint3d const c = p2 + bisector * (r / sinHalf);
    if (!c.isValid()) {
        return false;  // the legs lie on each other
    }
    centre = c;
    return true;
}

bool g_nm_pkt_tan(COrxPoint3dArray& pts, COrxPoint3d const& p, COrxPoint3d const& c, double r) {
    pts.setLogicalLength(0);
    if (!internal::allValid(p, c) || !(r > 0.0) || !std::isfinite(r)) {
        return false;
    }
    double const d = g_dist2d(c, p);
    double const a = angle(c, p);
    if (std::fabs(d - r) <= COrxPoint3d::tol) {
        pts.append(polar(c, a, r));
    } else if (d > r) {
        double const g = std::acos(r / d);
        pts.append(polar(c, a + g, r)).append(polar(c, a - g, r));
    }
    return !pts.isEmpty();
}

}  // namespace ORX
