#include "orx/plane_geometry/shared/curve.h"

#include <cmath>

#include <utility>
#include "orx/geom/shared/finite.h"

namespace ORX {
namespace internal {

namespace {

// The sign of a, with +1 for 0: a line's distance is positive on its gradient's side.
double signOf(double a) {
    return a < 0.0 ? -1.0 : 1.0;
}

// The quadratic of the curve along the line p + t w (|w| = 1): A t^2 + B t + C.
struct AlongLine {
    double A;
    double B;
    double C;
};

AlongLine alongLine(Curve const& c, double px, double py, double wx, double wy) {
    return {c.a, 2 * c.a * (px * wx + py * wy) + c.lx * wx + c.ly * wy, curveValue(c, px, py)};
}

// The two roots, smaller first, written so that neither cancels: one from the quadratic
// formula with the sign that adds, the other from the product of the roots. A nearly
// vanishing A (a nearly straight arc) leaves the near root exact and the far one huge.
void roots(AlongLine const& q, double sq, double& t1, double& t2) {
    double const half = -(q.B + std::copysign(sq, q.B)) / 2;
    t1 = half / q.A;
    t2 = half != 0.0 ? q.C / half : t1;
    if (t2 < t1) {
        std::swap(t1, t2);
    }
}

}  // namespace

void Meeting::add(double px, double py) {
    if (count < 2) {
        x[count] = px;
        y[count] = py;
        ++count;
    }
}

double curveValue(Curve const& c, double x, double y) {
    // A line has no quadratic term: a point far off a tiny segment, whose frame coordinates
    // square to infinity, would make it 0 * infinity = NaN.
    double const quadratic = c.a == 0.0 ? 0.0 : c.a * (x * x + y * y);
    return quadratic + c.lx * x + c.ly * y + c.f;
}

double curveScale(Curve const& c) {
    return std::sqrt(std::fmax(0.0, c.lx * c.lx + c.ly * c.ly - 4 * c.a * c.f));
}

double curveDistance(Curve const& c, double x, double y) {
    double const g = curveValue(c, x, y);
    double const n = curveScale(c);
    if (n == 0.0) {
        // A circle of radius 0 (a point), or no curve at all.
        return c.a != 0.0 ? std::sqrt(std::fmax(0.0, g / c.a)) : HUGE_VAL;
    }
    // With n / 2 = |a| r: g / (|a| (|q - c| + r)) = |q - c| - r without subtracting the two,
    // and the line's signed distance when a = 0.
    return signOf(c.a) * g / (std::sqrt(std::fmax(0.0, n * n / 4 + c.a * g)) + n / 2);
}

void curveFoot(Curve const& c, double& x, double& y) {
    double const gx = 2 * c.a * x + c.lx, gy = 2 * c.a * y + c.ly;
    double const length = planLength(gx, gy);
    double const d = curveDistance(c, x, y);
    if (length == 0.0) {
        x -= d;  // at the centre every point of the circle is as near: take the one in +x
        return;
    }
    double const s = signOf(c.a) * d / length;
    x -= s * gx;
    y -= s * gy;
}

Meeting lineMeetsCurve(double px, double py, double wx, double wy, Curve const& c,
                       MeetingTolerance const& tol) {
    Meeting m;
    // Start the line at the origin's foot, so that its points stay as small as the curve's.
    double const s = px * wx + py * wy;
    px -= s * wx;
    py -= s * wy;
    AlongLine const q = alongLine(c, px, py, wx, wy);
    if (q.A == 0.0) {
        if (q.B != 0.0) {
            double const t = -q.C / q.B;
            m.add(px + t * wx, py + t * wy);
        }
        return m;
    }
    double const disc = q.B * q.B - 4 * q.A * q.C;
    double const middle = -q.B / (2 * q.A);
    if (!(disc >= 0.0)) {
        double const x = px + middle * wx, y = py + middle * wy;
        if (std::fabs(curveDistance(c, x, y)) < tol.touchGap) {
            m.add(x, y);  // the line touches: the point on the line nearest the circle
        }
        return m;
    }
    double const sq = std::sqrt(disc);
    if (sq < 2 * std::fabs(q.A) * tol.mergeHalf) {
        m.add(px + middle * wx, py + middle * wy);
        return m;
    }
    double t1 = 0.0, t2 = 0.0;
    roots(q, sq, t1, t2);
    m.add(px + t1 * wx, py + t1 * wy);
    m.add(px + t2 * wx, py + t2 * wy);
    return m;
}

namespace {

// The outward normal of a circle at a point on it (not normalised).
void outward(Curve const& c, double x, double y, double& nx, double& ny) {
    nx = signOf(c.a) * (2 * c.a * x + c.lx);
    ny = signOf(c.a) * (2 * c.a * y + c.ly);
}

// The larger curvature first: its centre is nearer, so it carries the points more precisely.
bool curvier(Curve const& c1, Curve const& c2) {
    return std::fabs(c1.a) * curveScale(c2) >= std::fabs(c2.a) * curveScale(c1);
}

}  // namespace

Meeting circleMeetsCircle(Curve const& c1, Curve const& c2, MeetingTolerance const& tol) {
    Meeting m;
    // The radical line a2 G1 - a1 G2 = 0 holds both meeting points; it is perpendicular to
    // the line of the centres, which runs along sign(a1 a2) (lrx, lry) from c1 to c2.
    double const lrx = c2.a * c1.lx - c1.a * c2.lx;
    double const lry = c2.a * c1.ly - c1.a * c2.ly;
    double const fr = c2.a * c1.f - c1.a * c2.f;
    double const n2 = lrx * lrx + lry * lry;
    if (!(n2 > 0.0) || !std::isfinite(n2)) {
        return m;  // concentric (or not finite)
    }
    double const norm = std::sqrt(n2);
    double const side = signOf(c1.a * c2.a);
    double const wx = -side * lry / norm, wy = side * lrx / norm;  // left of c1 -> c2
    double const fx = -fr * lrx / n2, fy = -fr * lry / n2;
    Curve const& small = curvier(c1, c2) ? c1 : c2;
    Curve const& large = &small == &c1 ? c2 : c1;
    AlongLine const q = alongLine(small, fx, fy, wx, wy);
    double const middle = -q.B / (2 * q.A);
    // Where the small circle comes nearest the large one (on the line of the centres).
    double cx = fx + middle * wx, cy = fy + middle * wy;
    curveFoot(small, cx, cy);
    if (std::fabs(curveDistance(large, cx, cy)) < tol.touchGap) {
        double sx = 0.0, sy = 0.0, lx = 0.0, ly = 0.0;
        outward(small, cx, cy, sx, sy);
        outward(large, cx, cy, lx, ly);
        if (sx * lx + sy * ly > 0.0) {
            curveFoot(large, cx, cy);  // one inside the other: the point on the larger one
        }
        m.add(cx, cy);
        return m;
    }
    double const disc = q.B * q.B - 4 * q.A * q.C;
    if (!(disc >= 0.0)) {
        return m;
    }
    double const sq = std::sqrt(disc);
    if (sq < 2 * std::fabs(q.A) * tol.mergeHalf) {
        m.add(cx, cy);
        return m;
    }
    double t1 = 0.0, t2 = 0.0;
    roots(q, sq, t1, t2);
    m.add(fx + t2 * wx, fy + t2 * wy);
    m.add(fx + t1 * wx, fy + t1 * wy);
    return m;
}

}  // namespace internal
}  // namespace ORX
