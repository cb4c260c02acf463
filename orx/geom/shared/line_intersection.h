// Straight lines in the plan: the perpendicular foot, the point-on-segment test and the
// meeting point of two lines. The plane geometry's line functions are these; planes and
// point lists of this layer use them directly.
#ifndef ORX_GEOM_SHARED_LINE_INTERSECTION_H
#define ORX_GEOM_SHARED_LINE_INTERSECTION_H

#include "orx/geom/point.h"

namespace ORX {

// The second line counts as vertical when its x extent is below this.
constexpr double kVerticalDx = 1e-9;
// Two lines count as parallel when their slopes differ by less than this.
constexpr double kParallelSlope = 1e-9;

namespace internal {

// Perpendicular foot of p on the infinite line through a and b; a when b equals a.
COrxPoint3d lineFoot(COrxPoint3d const& a, COrxPoint3d const& b, COrxPoint3d const& p);

// p lies on the segment a-b within the point tolerance; false for non-finite input.
bool pointOnSegment(COrxPoint3d const& a, COrxPoint3d const& b, COrxPoint3d const& p);

// Meeting point of line p1-p2 with line p3-p4 in the plan, at the height of p1 or p3 (the
// line taken as first); bounded keeps only a point on both segments. On false, and for
// non-finite input, out is untouched. The rules are those of ORX::inters.
bool intersectLines(COrxPoint3d const& p1, COrxPoint3d const& p2, COrxPoint3d const& p3,
                    COrxPoint3d const& p4, bool bounded, COrxPoint3d& out);

}  // namespace internal
}  // namespace ORX

#endif  // ORX_GEOM_SHARED_LINE_INTERSECTION_H
