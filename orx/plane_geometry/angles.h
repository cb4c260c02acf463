// Direction angles: normalisation, comparison, rounding onto the axes, halving, the octant
// and sixteenth classes, and the angles at a corner of three points.
//
// Angles are radians, counter-clockwise from +X. A function that has no answer returns NaN
// (ORX::nan()); NaN or infinite input gives NaN (or -1 for the class functions). The
// normalising loops run on the value as given for ordinary angles; a value beyond
// ORX::kMaxLoopAngle is first reduced with a remainder so that the loops stay short.
#ifndef ORX_PLANE_GEOMETRY_ANGLES_H
#define ORX_PLANE_GEOMETRY_ANGLES_H

#include "orx/foundation/platform.h"
#include "orx/geom/point.h"
#include "orx/geom/shared/angle_range.h"  // kTwoPiSnap, kMaxLoopAngle
#include "orx/geom/vector.h"

namespace ORX {

// Angular tolerance of the axis snapping and of the octant and sixteenth classes (radians).
constexpr double kAxisSnapTol = 0.001;

// w in [0, 2pi): a value within kTwoPiSnap of 2pi gives exactly 0; otherwise 2pi is
// subtracted while w >= 2pi and added while w < 0 (repeated subtraction, not a remainder:
// results are compared against it). A tiny negative w therefore gives 2pi itself.
ORX_API double g_ang(double w);
// w in [-pi, pi]: 2pi subtracted while w > pi, added while w < -pi.
ORX_API double g_signed_ang(double w);
// Undirected line direction: pi subtracted while w >= pi, then 0 when w is within
// kAxisSnapTol of pi or of 0. A negative w is otherwise returned unchanged, as callers expect.
ORX_API double g_dir_nrm(double w);
// With d = |g_ang(a) - g_ang(b)|: d < tol or 2pi - d < tol.
ORX_API bool g_ang_equal(double a, double b, double tol);
// d = |a - b|, and d - pi when d > pi: the angle between the two directions taken as
// undirected lines (deliberately not 2pi - d; callers rely on it).
ORX_API double g_dw(double a, double b);
// g_rnd_quad(g_ang(pi - (a - b))).
ORX_API double g_dw1(double a, double b);
// The nearest multiple of pi/2 reduced to {0, pi/2, pi, 3pi/2}: for w >= 0,
// k = trunc((w + pi/4) / (pi/2)) modulo 4 gives k pi/2; for w < 0 the result is -g_qw(-w).
ORX_API double g_qw(double w);
// y = g_ang(w) snapped onto the nearest axis direction q = g_qw(y) when within kAxisSnapTol
// of q or of q + 2pi; else y.
ORX_API double g_rnd_quad(double w);
// (a + b) / 2, plus pi when |a - b| > pi.
ORX_API double g_w_halb(double a, double b);
// g_ang(a + g_ang(b - a) / 2): halfway from a counter-clockwise to b.
ORX_API double g_w_mid(double a, double b);
// acos((a^2 + b^2 - c^2) / (2ab)): the angle of the triangle between sides a and b, opposite
// side c (law of cosines); NaN when no such triangle exists.
ORX_API double g_w_3eck(double a, double b, double c);
// Octant class of y = g_ang(w) with tolerance kAxisSnapTol: 0 near 0 or 2pi, 4 near pi, 2
// near pi/2, 6 near 3pi/2 (tested in this order); else 1, 3, 5, 7 for the open quadrants
// from (0, pi/2) on. -1 for NaN or infinite w.
ORX_API int g_oktant(double w);
// Sixteen classes of y = g_ang(w) with tolerance kAxisSnapTol: 0 near 0 or 2pi, 2, 4, ..., 14
// near pi/4, pi/2, ..., 7pi/4; else 1, 3, ..., 15 for the open sectors ending at pi/4, pi/2,
// ..., 2pi. -1 for NaN or infinite w.
ORX_API int g_sextant(double w);

// Angles at the corner p1 of the legs p1-p0 and p1-p2, in the XY plane; NaN when a leg has no
// length (its ends equal under point tolerance) or a point is not finite.
// The signed change of direction from p0->p1 to p1->p2, in [-pi, pi], positive turning left.
ORX_API double g_delta_w(COrxPoint3d const& p0, COrxPoint3d const& p1, COrxPoint3d const& p2);
// The counter-clockwise angle from leg p1->p0 to leg p1->p2, in [0, 2pi).
ORX_API double g_delta_w1(COrxPoint3d const& p0, COrxPoint3d const& p1, COrxPoint3d const& p2);
// The angle between the two legs, in [0, pi].
ORX_API double g_delta_w2(COrxPoint3d const& p0, COrxPoint3d const& p1, COrxPoint3d const& p2);

// The counter-clockwise plan angle from a to b, in [0, 2pi); NaN when a or b has no plan
// direction (x and y within COrxVector3d::tol of 0). Unlike COrxVector3d::angleTo it tells
// left from right.
ORX_API double g_v_ang(COrxVector3d const& a, COrxVector3d const& b);

}  // namespace ORX

#endif  // ORX_PLANE_GEOMETRY_ANGLES_H
