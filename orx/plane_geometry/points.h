// Small functions on points in the plane: plan distance, midpoint, snapping to zero,
// mirroring at the axes, turning sense, distances along a direction and from a line,
// rounding and stretching.
#ifndef ORX_PLANE_GEOMETRY_POINTS_H
#define ORX_PLANE_GEOMETRY_POINTS_H

#include "orx/foundation/platform.h"
#include "orx/geom/point.h"

namespace ORX {

// Distance in the XY plane (z ignored).
ORX_API double g_dist2d(COrxPoint3d const& p, COrxPoint3d const& q);
// Coordinate-wise mean of the two points.
ORX_API COrxPoint3d g_midp3d(COrxPoint3d const& p, COrxPoint3d const& q);
// A copy of p with every coordinate whose absolute value is below COrxPoint3d::tol set to 0.
ORX_API COrxPoint3d g_nrm_p(COrxPoint3d const& p);
// p with x negated / with y negated.
ORX_API COrxPoint3d g_p_mrx(COrxPoint3d p);
ORX_API COrxPoint3d g_p_mry(COrxPoint3d p);
// -1 when the z component of (p1 - p0) x (p2 - p0) is negative (a clockwise turn), else +1:
// collinear points give +1, never 0, deliberately (callers branch on the sign only).
ORX_API int g_point_orient(COrxPoint3d const& p0, COrxPoint3d const& p1, COrxPoint3d const& p2);
// Signed length of the projection of p1 - p0 onto the unit direction of angle w.
ORX_API double g_dist_w1(COrxPoint3d const& p0, COrxPoint3d const& p1, double w);
// Its absolute value.
ORX_API double g_dist_w(COrxPoint3d const& p0, COrxPoint3d const& p1, double w);
// Distance of p3 from the infinite line through p1 and p2 in the XY plane (never negative);
// the plan distance p1-p3 when p1 and p2 lie within COrxPoint3d::tol in the plan.
ORX_API double g_aabs(COrxPoint3d const& p1, COrxPoint3d const& p2, COrxPoint3d const& p3);
// Every coordinate rounded to a multiple of step with ORX::round (unchanged for a step
// below ORX::kMinRoundStep).
ORX_API COrxPoint3d g_p_rnd(COrxPoint3d const& p, double step);
// p stretched along the direction of angle w by factor, about base: the part of p - base
// along that direction is multiplied by factor, the rest (the plan perpendicular and z) kept.
ORX_API COrxPoint3d g_p_stretch(COrxPoint3d const& p, COrxPoint3d const& base, double w,
                                double factor);

}  // namespace ORX

#endif  // ORX_PLANE_GEOMETRY_POINTS_H
