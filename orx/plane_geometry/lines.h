// Straight lines and nearest points: the perpendicular foot, the point-on-segment test, the
// intersection of two lines, and the nearest and farthest point of a list.
#ifndef ORX_PLANE_GEOMETRY_LINES_H
#define ORX_PLANE_GEOMETRY_LINES_H

#include "orx/foundation/platform.h"
#include "orx/geom/point.h"
#include "orx/geom/point_array.h"
#include "orx/geom/shared/line_intersection.h"  // kVerticalDx, kParallelSlope

namespace ORX {

// Perpendicular foot of p on the infinite line through a and b: a when b equals a (point
// tolerance), else a + u ((p - a) . u) with u = unit(b - a).
ORX_API COrxPoint3d g_lotp(COrxPoint3d const& a, COrxPoint3d const& b, COrxPoint3d const& p);

// True when p lies on the segment a-b: p equals a or b (point tolerance); otherwise false
// when a equals b or p lies farther than COrxPoint3d::tol from its foot f = g_lotp(a, b, p),
// else true exactly when unit(f - a) equals unit(b - f) under vector equality (f between a
// and b). False for NaN or infinite coordinates.
ORX_API bool g_line_pt(COrxPoint3d const& a, COrxPoint3d const& b, COrxPoint3d const& p);

// Intersection of line p1-p2 with line p3-p4 in the XY plane (t = COrxPoint3d::tol):
// 1. bounded: false at once when the bounding boxes of the segments, each widened by t, do
//    not overlap in x or in y;
// 2. a first line with |dx| < t is vertical: false when the second is vertical too or the
//    first has |dy| < t as well (a point); else the lines exchange roles;
// 3. out.z is the first line's start z; the first line is y = m1 x + b1;
// 4. a second line with |dx| < kVerticalDx gives out.x = its end x; else false when the
//    slopes differ by less than kParallelSlope, and out.x where the two lines meet;
// 5. out.y = m1 out.x + b1;
// 6. bounded: true only when g_line_pt holds for out on both segments.
// On false, and for NaN, infinite or overflowing input, out is untouched.
ORX_API bool inters(COrxPoint3d const& p1, COrxPoint3d const& p2, COrxPoint3d const& p3,
                    COrxPoint3d const& p4, bool bounded, COrxPoint3d& out);

// The point of pts nearest to p (a later point replaces the best only when strictly nearer,
// so the first of equals wins); p itself when pts is empty or no distance is a number.
ORX_API COrxPoint3d g_near_p1(COrxPoint3d const& p, COrxPoint3dArray const& pts);
// The point of pts farthest from p, by the same rules.
ORX_API COrxPoint3d g_far_p1(COrxPoint3d const& p, COrxPoint3dArray const& pts);

}  // namespace ORX

#endif  // ORX_PLANE_GEOMETRY_LINES_H
