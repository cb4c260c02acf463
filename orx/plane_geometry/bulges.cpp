#include "orx/plane_geometry/bulges.h"

#include <cmath>

#include "orx/geom/functions.h"
#include "orx/geom/vector.h"
#include "orx/plane_geometry/internal/arc_frame.h"
#include "orx/plane_geometry/internal/finite.h"
#include "orx/plane_geometry/internal/three_points.h"
#include "orx/plane_geometry/lines.h"
#include "orx/plane_geometry/points.h"

namespace ORX {

namespace {

// The circumcentre of three points that make an arc, at p1's z.
COrxPoint3d circumcentre(COrxPoint3d const& p1, COrxPoint3d const& p2, COrxPoint3d const& p3) {
    double const bx = p2.x - p1.x, by = p2.y - p1.y;
    double const cx = p3.x - p1.x, cy = p3.y - p1.y;
    double const b2 = bx * bx + by * by, c2 = cx * cx + cy * cy;
    double const d = 2 * (bx * cy - by * cx);
    return COrxPoint3d(p1.x + (cy * b2 - by * c2) / d, p1.y + (bx * c2 - cx * b2) / d, p1.z);
}

// The counter-clockwise sweep from a0 to a1 modulo whole turns: in [0, 2pi), except that a
// positive whole number of turns is the full circle.
double ccwSweep(double a0, double a1) {
    double const d = a1 - a0;
    double const s = std::fmod(d, kTwoPi);
    if (s < 0.0) {
        return s + kTwoPi;
    }
    return s == 0.0 && d > 0.0 ? kTwoPi : s;
}

// The counter-clockwise angle from a0 to w, in [0, 2pi].
double ccwFrom(double a0, double w) {
    double const s = std::fmod(w - a0, kTwoPi);
    return s < 0.0 ? s + kTwoPi : s;
}

}  // namespace

double g_arc_bulg(double a0, double a1) {
    double const delta = a0 <= a1 ? a1 - a0 : a1 - a0 + kTwoPi;
    return std::tan(delta / 4);
}

double g_arcmp_bulg(COrxPoint3d const& c, COrxPoint3d const& p1, COrxPoint3d const& p2) {
    return g_arc_bulg(angle(c, p1), angle(c, p2));
}

bool g_arcrad_bulg(double& bulge, COrxPoint3d const& p1, COrxPoint3d const& p2, double r) {
    if (r == 0.0) {
        bulge = 0.0;
        return true;
    }
    double const h = p1.distanceTo(p2) / 2;
    if (h > std::fabs(r)) {
        return false;
    }
    double const b = (r - std::sqrt(r * r - h * h)) / h;
    if (!std::isfinite(b)) {
        return false;  // coinciding ends (h = 0) or NaN input
    }
    bulge = b;
    return true;
}

double g_arcrad_bulg(COrxPoint3d const& p1, COrxPoint3d const& p2, double r) {
    double bulge = nan();
    g_arcrad_bulg(bulge, p1, p2, r);
    return bulge;
}

COrxPoint3d g_bulg_cen(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge) {
    if (bulge == 0.0 || p1 == p2) {
        return g_midp3d(p1, p2);
    }
    // From the chord midpoint along the chord's left normal, (1 - b^2) / 2b half chords.
    internal::ArcFrame const frame(p1, p2, bulge);
    if (!frame.valid()) {
        return internal::nanPoint();
    }
    COrxPoint3d const centre = frame.toWorld({0.0, frame.centreY()});
    return centre.isValid() ? centre : internal::nanPoint();
}

COrxPoint3d g_bulg_mid(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge) {
    COrxPoint3d const mid = g_midp3d(p1, p2);
    if (bulge == 0.0 || p1 == p2) {
        return mid;
    }
    COrxPoint3d const point = mid - (COrxVector3d::kZAxis * (p2 - p1)) * (bulge / 2);
    // A huge bulge on a long chord puts the point beyond the range of numbers: no answer.
    return point.isValid() || !internal::allValid(p1, p2) || !std::isfinite(bulge)
               ? point
               : internal::nanPoint();
}

COrxPoint3d g_arc_mid(COrxPoint3d const& c, double r, double a0, double a1) {
    return g_bulg_mid(polar(c, a0, r), polar(c, a1, r), g_arc_bulg(a0, a1));
}

double g_bulg_len(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge) {
    double const chord = p1.distanceTo(p2);
    if (bulge == 0.0) {
        return chord;
    }
    // chord / (2 sin(theta/2)) * theta = chord (1 + b^2) atan|b| / |b|, written so that
    // neither a tiny nor a huge bulge overflows on the way.
    double const b = std::fabs(bulge);
    double const factor = b < 1.0 ? (1 + b * b) * (std::atan(b) / b) : std::atan(b) * (b + 1 / b);
    return internal::finiteOrNan(chord * factor);
}

double g_bulg_len(COrxPoint3d const& p1, COrxPoint3d const& p2, COrxPoint3d const& p3) {
    double bulge;
    if (g_arc3p_bulg(p1, p2, p3, bulge)) {
        return g_bulg_len(p1, p3, bulge);
    }
    return g_line_pt(p1, p3, p2) ? p1.distanceTo(p3) : nan();
}

double g_sec_ang(double r, double s) {
    return 2 * std::atan((s / 2) / std::sqrt(r * r - s * s / 4));
}

double g_sec_len(double r, double w) {
    return 2 * r * std::sin(w / 2);
}

double g_sec_len2(double r, double w) {
    if (r == w) {
        return nan();
    }
    double const s = 2 * r * std::cos(w / 2) * std::sin(w / 2);
    return internal::finiteOrNan(s * r / (r - s));
}

bool g_arc3p_bulg(COrxPoint3d const& p1, COrxPoint3d const& p2, COrxPoint3d const& p3,
                  double& bulge) {
    if (!internal::spanPlane(p1, p2, p3)) {
        return false;
    }
    // The inscribed angle at p2 is half of what the arc leaves out of the full circle.
    double const ax = p1.x - p2.x, ay = p1.y - p2.y;
    double const bx = p3.x - p2.x, by = p3.y - p2.y;
    double const phi = std::atan2(std::fabs(ax * by - ay * bx), ax * bx + ay * by);
    bulge = g_point_orient(p1, p2, p3) * std::tan((kPi - phi) / 2);
    return true;
}

bool g_arc3p_cen(COrxPoint3d const& p1, COrxPoint3d const& p2, COrxPoint3d const& p3,
                 COrxPoint3d& centre) {
    if (!internal::spanPlane(p1, p2, p3)) {
        return false;
    }
    COrxPoint3d const c = circumcentre(p1, p2, p3);
    if (!c.isValid()) {
        return false;
    }
    centre = c;
    return true;
}

int g_arc3p_orient(COrxPoint3d const& p1, COrxPoint3d const& p2, COrxPoint3d const& p3,
                   COrxPoint3d& centre) {
    if (!g_arc3p_cen(p1, p2, p3, centre)) {
        return 0;
    }
    return g_point_orient(p1, p2, p3);
}

bool g_arc3p_tan(COrxPoint3d const& p1, COrxPoint3d const& p2, COrxPoint3d const& p3,
                 COrxPoint3d& apex) {
    COrxPoint3d c;
    if (!g_arc3p_cen(p1, p2, p3, c)) {
        return false;
    }
    COrxPoint3d const mid(p1.x + (p3.x - p1.x) / 2, p1.y + (p3.y - p1.y) / 2, p1.z);
    double const h = g_dist2d(c, mid);
    if (h <= COrxPoint3d::tol) {
        return false;
    }
    double const r = g_dist2d(c, p1);
    // The pole of the chord lies beyond its midpoint, at r^2 / h from the centre.
    COrxPoint3d const pole = c + (mid - c) * (r * r / (h * h));
    if (!pole.isValid()) {
        return false;
    }
    apex = pole;
    return true;
}

bool g_arc_pt(COrxPoint3d const& c, double r, double a0, double a1, COrxPoint3d const& p) {
    if (!internal::allValid(c, p) || !internal::allFinite(r, a0, a1) || r < 0.0) {
        return false;
    }
    double const tol = COrxPoint3d::tol;
    if (r <= tol) {
        return std::fabs(g_dist2d(c, p) - r) <= tol;  // the arc is within the tolerance of c
    }
    // Within the angular range the distance to the circle, outside it the distance to the
    // nearer end: the same measure as for a straight segment, so that a point just before
    // an arc's end is not on it.
    if (ccwFrom(a0, angle(c, p)) <= ccwSweep(a0, a1)) {
        return std::fabs(g_dist2d(c, p) - r) <= tol;
    }
    return g_dist2d(p, polar(c, a0, r)) <= tol || g_dist2d(p, polar(c, a1, r)) <= tol;
}

}  // namespace ORX
