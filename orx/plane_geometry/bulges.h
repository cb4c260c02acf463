// Circular arcs and bulges: bulges from angles, radii and three points; centre, midpoint and
// length of a bulge segment; chords; and the test whether a point lies on an arc.
//
// The bulge of a segment from p1 to p2 is tan(theta / 4), theta its signed included angle:
// positive counter-clockwise seen from +Z, |bulge| = 1 a half circle, exactly 0.0 a straight
// segment (never tested with a tolerance). Arcs given by centre, radius and two angles run
// counter-clockwise from the first angle to the second. No answer: NaN for doubles, a NaN
// point for points, false (outputs untouched) for bool results.
#ifndef ORX_PLANE_GEOMETRY_BULGES_H
#define ORX_PLANE_GEOMETRY_BULGES_H

#include "orx/foundation/platform.h"
#include "orx/geom/point.h"

namespace ORX {

// Bulge of the counter-clockwise arc from angle a0 to angle a1: tan(d / 4) with d = a1 - a0
// when a0 <= a1, else a1 - a0 + 2pi. Equal angles give 0: a full circle has no bulge.
ORX_API double g_arc_bulg(double a0, double a1);
// The same with a0 = angle(c, p1), a1 = angle(c, p2): the counter-clockwise arc about c.
ORX_API double g_arcmp_bulg(COrxPoint3d const& c, COrxPoint3d const& p1, COrxPoint3d const& p2);
// Bulge of the arc of radius r from p1 to p2: with h half the distance p1-p2,
// (r - sqrt(r^2 - h^2)) / h. A positive r gives the minor arc counter-clockwise, a negative r
// the major arc clockwise (bulge below -1): the sign of the radius deliberately selects both.
// r = 0 gives bulge 0 and true. False when h > |r| or the ends coincide exactly.
ORX_API bool g_arcrad_bulg(double& bulge, COrxPoint3d const& p1, COrxPoint3d const& p2, double r);
// The same value; NaN when there is no arc.
ORX_API double g_arcrad_bulg(COrxPoint3d const& p1, COrxPoint3d const& p2, double r);

// Centre of the segment (p1, p2, bulge): with d the chord length and u the unit vector
// Z x (p2 - p1) (left of the chord), chord midpoint + u * d/4 * (1/bulge - bulge). A straight
// segment, or one whose ends coincide, gives the chord midpoint; a bulge so small that the
// centre overflows gives a NaN point (the arc is its chord).
ORX_API COrxPoint3d g_bulg_cen(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge);
// The point halfway along the segment: chord midpoint - (Z x (p2 - p1)) * (bulge / 2) (the
// sagitta bulge * d / 2 to the right of the chord for a positive bulge); the chord midpoint
// for a straight segment or coinciding ends.
ORX_API COrxPoint3d g_bulg_mid(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge);
// The point halfway along the counter-clockwise arc about c from angle a0 to a1.
ORX_API COrxPoint3d g_arc_mid(COrxPoint3d const& c, double r, double a0, double a1);
// Length of the segment: the chord when straight, else chord / (2 sin(theta/2)) * theta with
// theta = |4 atan(bulge)|, evaluated as chord (1 + b^2) atan|b| / |b| so that it tends to the
// chord for a vanishing bulge (1 for the chord 1 and the bulge 1e-310).
ORX_API double g_bulg_len(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge);
// Length of the arc from p1 through p2 to p3; for collinear points the distance p1-p3 when
// p2 lies between them, else NaN.
ORX_API double g_bulg_len(COrxPoint3d const& p1, COrxPoint3d const& p2, COrxPoint3d const& p3);

// Central angle of a chord of length s in a circle of radius r: 2 atan((s/2) / sqrt(r^2 - s^2/4));
// NaN when the chord is longer than the diameter.
ORX_API double g_sec_ang(double r, double s);
// Chord length for the central angle w: 2r sin(w/2).
ORX_API double g_sec_len(double r, double w);
// NaN when r equals w (the two arguments are compared directly, deliberately); else with
// s = 2r cos(w/2) sin(w/2): s r / (r - s), NaN when that divides by zero.
ORX_API double g_sec_len2(double r, double w);

// Three points p1, p2, p3 in the XY plane make no arc when p1 and p3 coincide or p2 lies
// within COrxPoint3d::tol of the line through p1 and p3 (collinear); then these functions
// fail. The results take the z of p1.
// Bulge of the arc from p1 through p2 to p3: tan((pi - phi) / 2) with phi the angle at p2,
// negative when the points turn clockwise.
ORX_API bool g_arc3p_bulg(COrxPoint3d const& p1, COrxPoint3d const& p2, COrxPoint3d const& p3,
                          double& bulge);
// Centre of the circle through the three points.
ORX_API bool g_arc3p_cen(COrxPoint3d const& p1, COrxPoint3d const& p2, COrxPoint3d const& p3,
                         COrxPoint3d& centre);
// Sense of the arc from p1 through p2 to p3: +1 counter-clockwise, -1 clockwise, with its
// centre in centre; 0 (centre untouched) when the points make no arc.
ORX_API int g_arc3p_orient(COrxPoint3d const& p1, COrxPoint3d const& p2, COrxPoint3d const& p3,
                           COrxPoint3d& centre);
// Where the tangents of the arc at p1 and at p3 meet (the pole of the chord p1-p3). Fails
// when the points make no arc, and for a half circle, whose end tangents are parallel (the
// chord midpoint within COrxPoint3d::tol of the centre).
ORX_API bool g_arc3p_tan(COrxPoint3d const& p1, COrxPoint3d const& p2, COrxPoint3d const& p3,
                         COrxPoint3d& apex);

// True when p lies on the counter-clockwise arc about c of radius r from angle a0 to a1, in
// the XY plane: its distance to the arc is at most COrxPoint3d::tol. Within the angular range
// that is the distance to the circle; outside it the distance to the nearer end point, so a
// point just beyond an end is on the arc only when it is that close to the end (as for a
// straight segment). The range may cross the 0/2pi direction (a1 below a0 is the arc through
// angle 0). a1 - a0 counts modulo whole turns: equal angles make a point-sized arc, a1 = a0 +
// 2pi the full circle. A radius within COrxPoint3d::tol of 0 accepts every point within the
// tolerance of the circle. False for a negative radius and for NaN or infinite input.
ORX_API bool g_arc_pt(COrxPoint3d const& c, double r, double a0, double a1, COrxPoint3d const& p);

}  // namespace ORX

#endif  // ORX_PLANE_GEOMETRY_BULGES_H
