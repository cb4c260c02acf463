// Utility functions on segments: building one from two points, angles and distances at a
// segment, parallels, rounding, searching a polyline, tangent points, the chord deviation
// of a cut arc, and sorting points along a segment or a polyline.
//
// Conventions as everywhere: radians, counter-clockwise positive bulge, false / -1 / NaN
// for no answer, outputs untouched on failure.
#ifndef ORX_POLYLINE_VERTEX_TOOLS_H
#define ORX_POLYLINE_VERTEX_TOOLS_H

#include "orx/foundation/platform.h"
#include "orx/geom/point_array.h"
#include "orx/polyline/vertex.h"
#include "orx/polyline/vertex_array.h"

// Sets v to the segment from p1 to p2: straight, or, with keepBulge, keeping v's bulge (and
// so its included angle and sense). False, with v untouched, when p1 equals p2 or either is
// not finite.
ORX_API bool orx_g_vx_vx(COrxPoint3d const& p1, COrxPoint3d const& p2, COrxVertex& v,
                         bool keepBulge);

namespace ORX {

// The turn at the joint of two consecutive segments: from v1's direction of travel at its
// end to v2's direction of travel at its start, in (-pi, pi], positive for a left turn.
ORX_API double g_vx_ang(COrxVertex const& v1, COrxVertex const& v2);

// Like COrxVertex::coLinear, with tol instead of the point tolerance: both straight with the
// other's ends within tol of this line, or both arcs of one sense whose centres lie within
// tol and whose radii differ by at most tol.
ORX_API bool g_vx_colinear(COrxVertex const& v1, COrxVertex const& v2, double tol);

// Distance from p to its perpendicular foot on the segment's line or circle (lotp); NaN for
// a non-finite p.
ORX_API double g_vx_lotd(COrxVertex const& v, COrxPoint3d const& p);

// A copy of v offset by d (positive to the right of the direction of travel).
ORX_API COrxVertex g_vx_parallel(COrxVertex const& v, double d);

// Rounds both points' coordinates to multiples of step (ORX::round); the bulge is kept.
ORX_API COrxVertex& g_vx_rnd(COrxVertex& v, double step);

// Index of the first segment of vl that starts at p (point tolerance); -1 when none.
ORX_API int g_vx_search(COrxVertexArray const& vl, COrxPoint3d const& p);
// Index of the segment of vl nearest to p (as COrxVertexArray::vxNear); -1 when empty.
ORX_API int g_vx_search_near(COrxVertexArray const& vl, COrxPoint3d const& p);

// Points of the segment where the tangent passes through p (from an outside point to an
// arc: up to two points; none for a straight segment or a point inside the circle). Replaces
// pts; true when some point lies on the segment.
ORX_API bool g_vx_tangp(COrxVertex const& v, COrxPoint3d const& p, COrxPoint3dArray& pts);
// Points of the segment where the tangent has the direction angle (either way along it).
// Replaces pts; true when some point lies on the segment. A straight segment answers its
// start point when it runs along angle, else nothing.
ORX_API bool g_vx_tangp(COrxVertex const& v, double angle, COrxPoint3dArray& pts);

// Largest distance between the arc and its chords when it is cut into n equal pieces:
// r * (1 - cos(theta / (2 n))). 0 for a straight segment; NaN for n < 1.
ORX_API double g_vx_split_dif(COrxVertex const& v, int n);

// The segment flattened onto the XY plane (both z set to 0).
ORX_API COrxVertex g_vx_xy(COrxVertex const& v);

// Sorts pts by their distance along v / along vl (distAtPoint), stably; points not on the
// segment or polyline keep their relative order after all the others. Returns the number
// of points that lie on it.
ORX_API int g_pl_sort_vx(COrxPoint3dArray& pts, COrxVertex const& v);
ORX_API int g_pl_sort_vl(COrxPoint3dArray& pts, COrxVertexArray const& vl);

}  // namespace ORX

#endif  // ORX_POLYLINE_VERTEX_TOOLS_H
