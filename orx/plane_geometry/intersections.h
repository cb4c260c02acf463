// Intersections of circles, circular arcs and straight lines in the XY plane, and the
// direction of the perpendicular from a line to a point.
//
// Every function writes into a caller's point list. An arc is given by centre, radius, start
// and end angle and runs counter-clockwise from the start to the end angle (the form a bulge
// segment gives); a point lies on it when g_arc_pt says so. t below is COrxPoint3d::tol.
// NaN or infinite input, and a negative radius, find no point.
#ifndef ORX_PLANE_GEOMETRY_INTERSECTIONS_H
#define ORX_PLANE_GEOMETRY_INTERSECTIONS_H

#include "orx/foundation/platform.h"
#include "orx/geom/point.h"
#include "orx/geom/point_array.h"

namespace ORX {

// g_cci reports one touching point when the angle between the centre line and an
// intersection, times the first radius, is below this.
constexpr double kTouchArcLength = 1e-5;

// Circle-circle; pts is emptied first. With d the plan distance of the centres, tested in
// this order:
// 1. |r1 + r2 - d| < t, external contact: one point, polar(c1, angle(c1, c2), r1);
// 2. |d + r1 - r2| < t or |d + r2 - r1| < t, internal contact: one point on the larger
//    circle, polar(c2, angle(c2, c1), r2) for r1 <= r2, else polar(c1, angle(c1, c2), r1);
//    concentric equal circles land here and give that one point;
// 3. r1 + r2 - d, d + r1 - r2 or d + r2 - r1 negative: no point;
// 4. else with a = angle(c1, c2) and g = acos((d^2 + r1^2 - r2^2) / (2 r1 d)): one point
//    polar(c1, a, r1) when g or g - pi is within kTouchArcLength / r1 of 0 (in both cases
//    the point towards c2, deliberately), else polar(c1, a + g, r1) then polar(c1, a - g, r1).
// True when pts is not empty.
ORX_API bool g_cci(COrxPoint3dArray& pts, COrxPoint3d const& c1, double r1, COrxPoint3d const& c2,
                   double r2);

// Full circle - infinite line through p1 and p2; pts is emptied first. The line is written
// as a function of x when |dy| <= |dx|, else of y, and put into the circle's equation:
// u^2 + P u + Q = 0, D = P^2/4 - Q. D is taken as 0 (the line touches, one point) when
// sqrt(D) < t/2, and also when D < 0 but the line misses by |r - sqrt(r^2 - |D|)| < t.
// Otherwise D < 0 finds nothing, and D > 0 gives u = -P/2 - sqrt(D), then -P/2 + sqrt(D).
// The points take the centre's z. A line whose ends coincide in the plan finds nothing.
// True when pts is not empty.
ORX_API bool g_cli0(COrxPoint3dArray& pts, COrxPoint3d const& c, double r, COrxPoint3d const& p1,
                    COrxPoint3d const& p2);
// Full circle - segment p1-p2: when g_cli0 finds nothing, false with pts untouched; else pts
// is emptied and receives, in order, the points on the segment (g_line_pt). True when any.
ORX_API bool g_cli(COrxPoint3dArray& pts, COrxPoint3d const& c, double r, COrxPoint3d const& p1,
                   COrxPoint3d const& p2);
// Arc - segment: pts emptied, then the points of g_cli0 that lie on the segment (g_line_pt)
// and on the arc (g_arc_pt), in order. True when any.
ORX_API bool g_ali(COrxPoint3dArray& pts, COrxPoint3d const& c, double r, double a0, double a1,
                   COrxPoint3d const& p1, COrxPoint3d const& p2);
// Full circle 1 - arc 2: pts emptied, the points of g_cci that lie on arc 2, in order.
// Always true, also when no point is kept, deliberately: callers test the list.
ORX_API bool g_cai(COrxPoint3dArray& pts, COrxPoint3d const& c1, double r1, COrxPoint3d const& c2,
                   double r2, double b0, double b1);
// Where two bulge segments (s1, e1, b1) and (s2, e2, b2) meet; pts is emptied first.
// Computed in the frame of the chords, so that the points do not depend on where the
// segments lie and a nearly straight arc meets as precisely as its chord:
// - two straight segments: inters(s1, e1, s2, e2, !extended);
// - an arc and a straight segment: the circle against the line as in g_cli0 (roots within
//   t/2 of each other are one point, a line that misses by less than t touches), the points
//   in the order of g_cli0's parameter along the line; an arc so flat that its ends and
//   midpoint lie within t of the line, while the straight segment's ends and midpoint lie
//   within t of its circle, runs along it: they meet only in their common end points, as
//   two arcs of one circle do;
// - two arcs: against each other as in g_cci (a gap or an overlap below t is one touching
//   point, points within kTouchArcLength are one), the point left of the line from the more
//   curved circle's centre to the other's first. Two arcs of one circle (each arc's ends and
//   midpoint within t of the other's circle) meet only in their common end points, listed as
//   g_aai lists them.
// Without extended only the points within t of both segments are kept (g_bulg_pt_dist);
// with it, the infinite lines and full circles count. The points take the z of the first
// arc's chord midpoint (of s1 for two straight segments). True when pts is not empty.
ORX_API bool g_bulg_int(COrxPoint3dArray& pts, COrxPoint3d const& s1, COrxPoint3d const& e1,
                        double b1, COrxPoint3d const& s2, COrxPoint3d const& e2, double b2,
                        bool extended);

// Arc - arc; pts emptied. Different centres (point equality): the points of g_cci on both
// arcs, in order. Equal centres (concentric arcs): the common end points only, never an
// overlap range: those of arc 1's ends polar(c1, a0, r1), polar(c1, a1, r1) that equal an end
// of arc 2, then those of arc 2's ends that equal an end of arc 1 and are not yet listed.
// True when pts is not empty.
ORX_API bool g_aai(COrxPoint3dArray& pts, COrxPoint3d const& c1, double r1, double a0, double a1,
                   COrxPoint3d const& c2, double r2, double b0, double b1);

// Direction from the perpendicular foot q of p on the line through a and b (q taking p's z)
// to p, g_ang(angle(q, p)) in [0, 2pi); 0 when p lies on the line.
ORX_API double g_lot(COrxPoint3d const& a, COrxPoint3d const& b, COrxPoint3d const& p);

}  // namespace ORX

#endif  // ORX_PLANE_GEOMETRY_INTERSECTIONS_H
