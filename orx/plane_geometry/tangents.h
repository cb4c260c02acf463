// Tangent circles, fillets and the compound (basket) arcs of construction drawing.
//
// The first group are the formulas the profile outlines are built with; the geometric
// meaning of their arguments belongs to those callers, the formulas are binding. A formula
// that divides by zero or has no real value returns NaN.
#ifndef ORX_PLANE_GEOMETRY_TANGENTS_H
#define ORX_PLANE_GEOMETRY_TANGENTS_H

#include "orx/foundation/platform.h"
#include "orx/geom/point.h"
#include "orx/geom/point_array.h"

namespace ORX {

// g_fries_r takes its short form when |sin w| is below this.
constexpr double kFriesSinLimit = 0.0001;

// b^2 / (2a) + a / 2: radius of the circle through the ends of a chord 2b with sagitta a.
ORX_API double g_tang_radius(double a, double b);
// With d = |p1 p2| r1 / (r1 + r2): atan(r1 / sqrt(d^2 - r1^2)), the angle of the crossing
// common tangent of two circles.
ORX_API double g_tang_ang(COrxPoint3d const& p1, double r1, COrxPoint3d const& p2, double r2);
// NaN when r = 0; else b - m x + m r - r / cos(atan(m)).
ORX_API double g_tang_cen(double m, double b, double x, double r);
// Three-centre basket arc: with d = sqrt(a^2 + b^2), (d + a - b) (d/2) / b.
ORX_API double g_korb_3m(double a, double b);
// (2bc - b^2 - a^2/4) / (2c - a).
ORX_API double g_rkorb(double a, double b, double c);
// (ac - b^2 - a^2/4) / (2(c - b)).
ORX_API double g_rkorb2(double a, double b, double c);
// NaN when c < 0; else with d = a - c: g_w_3eck(c, sqrt(d^2 + b^2), 2c) + atan(d/b) - pi/2.
ORX_API double g_fries_w(double a, double b, double c);
// With s = a^2 + b^2: s / (4a) when |sin w| < kFriesSinLimit; else with
// k = (cos w + 1)^2 + sin^2 w - 4 and p = (2b sin w - 2a (cos w + 1)) / k / 2:
// -p + sqrt(p^2 - s/k).
ORX_API double g_fries_r(double a, double b, double w);
// c/2 - (d/2 b/a - (e/2) / sin(atan(a/b))).
ORX_API double g_achs_dist(double a, double b, double c, double d, double e);

// Centres of the circles of radius r that touch the circles (c1, r1) and (c2, r2) from
// outside: the points g_cci finds on the circles (c1, r1 + r) and (c2, r2 + r), so a single
// touching centre is reported once. pts is emptied first; true when any. False for r <= 0.
ORX_API bool g_tang2_cen(COrxPoint3dArray& pts, COrxPoint3d const& c1, double r1,
                         COrxPoint3d const& c2, double r2, double r);
// The circle inside the triangle p1 p2 p3 touching its three sides (XY plane, z of p1):
// its centre weights each corner by the length of the opposite side; its radius is twice the
// area over the perimeter. False, outputs untouched, for collinear points (p2 within
// COrxPoint3d::tol of the line p1-p3, or p1 on p3).
ORX_API bool g_tang3_cen(COrxPoint3d& centre, double& r, COrxPoint3d const& p1,
                         COrxPoint3d const& p2, COrxPoint3d const& p3);

// The angle each of the five arcs of g_korb_5m spans (36 degrees).
constexpr double kFiveCentreStep = 0.6283185307179586;

// Five-centre basket arc over the span from (-a, 0) to (a, 0) with its crown at (0, b): five
// circular arcs of kFiveCentreStep each, tangent to one another, vertical at the springing
// points and horizontal at the crown; the middle radius is the mean of the crown radius and
// the springing radius. Returns the crown radius; centres receives the five centres from left
// to right (springing, middle, crown, middle, springing), so the springing radius is
// a - centres[4].x, the middle one half their sum. NaN, centres untouched, unless
// 0 < b <= a and the springing radius is positive (b at least about 0.41 a).
ORX_API double g_korb_5m(double a, double b, COrxPoint3dArray& centres);

// Centre of the fillet of radius r in the corner at p2 between the legs p2-p1 and p2-p3: on
// the bisector, at r / sin(phi/2) from p2, phi the angle between the legs (XY plane, z of
// p2). False, centre untouched, for r <= 0, a leg without length, or legs that run straight
// on or back onto each other.
ORX_API bool g_nm_fillet_mp(COrxPoint3d& centre, COrxPoint3d const& p1, COrxPoint3d const& p2,
                            COrxPoint3d const& p3, double r);
// Contact points of the tangents from p to the circle (c, r); pts emptied first. Two points,
// polar(c, a + g, r) then polar(c, a - g, r) with a = angle(c, p) and g = acos(r / d); one
// point, polar(c, a, r), when p lies within COrxPoint3d::tol of the circle; none when p lies
// inside. True when any.
ORX_API bool g_nm_pkt_tan(COrxPoint3dArray& pts, COrxPoint3d const& p, COrxPoint3d const& c,
                          double r);

}  // namespace ORX

#endif  // ORX_PLANE_GEOMETRY_TANGENTS_H
