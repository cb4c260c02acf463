// Functions on point lists: extremes, orientation, equality under a given tolerance, the
// farthest pair, the enclosing rectangle, sorting by angle around a centre, and the section
// properties of a point polygon.
#ifndef ORX_GEOM_POINT_LIST_FUNCTIONS_H
#define ORX_GEOM_POINT_LIST_FUNCTIONS_H

#include "orx/foundation/platform.h"
#include "orx/geom/map_double_to_point.h"
#include "orx/geom/point.h"
#include "orx/geom/point_array.h"
#include "orx/geom/vector.h"

namespace ORX {

// Component-wise maximum / minimum of all points; false for an empty list, out untouched.
ORX_API bool g_pl_max(COrxPoint3d& out, COrxPoint3dArray const& pl);
ORX_API bool g_pl_min(COrxPoint3d& out, COrxPoint3dArray const& pl);

// True when the polygon through the points (closed from the last back to the first) runs
// counter-clockwise seen from the side the normal points to: twice its signed area,
// S = sum of (y[i+1] - y[i]) * (x[i+1] + x[i]), is positive. For a normal other than
// (0, 0, 1) the points are first taken into the plane system of that normal (arbitrary-axis
// rule, COrxMatrix3d::setToWorldToPlane). True for fewer than 3 points.
ORX_API bool g_pl_orient(COrxPoint3dArray const& pl, COrxVector3d const& normal);

// The same length and pairwise equal points under the point tolerance tol instead of the
// global one (a tol not above ORX::kMinPointTol keeps the global). Two empty lists are equal.
ORX_API bool g_pl_equal(COrxPoint3dArray const& a, COrxPoint3dArray const& b, double tol);

// The two points of the list that lie farthest apart (Euclidean distance), first before
// second in list order; the first such pair found wins ties. Quadratic in the number of
// points. False for fewer than 2 points or non-finite coordinates, outputs untouched.
ORX_API bool g_pl_extmax(COrxPoint3d& first, COrxPoint3d& second, COrxPoint3dArray const& pl);

// The axis-parallel rectangle enclosing the points in the XY plane, widened by margin on
// every side (a negative margin shrinks it): four corners counter-clockwise from the lower
// left, at the lowest z of the list. False, rect untouched, for an empty list, a non-finite
// margin or coordinate, or a margin that would turn the rectangle inside out.
ORX_API bool g_pl_extrect(COrxPoint3dArray& rect, COrxPoint3dArray const& pl, double margin);

// Pairs every point with its counter-clockwise angle around centre measured from startAngle,
// g_ang(angle(centre, p) - startAngle) in [0, 2pi), and sorts the pairs by it (points at
// equal angles keep their order; a point at the centre gets angle g_ang(-startAngle)). out is
// replaced. False, out untouched, for an empty list.
ORX_API bool g_pl_sort_arcw(CMapDoubleToPoint& out, COrxPoint3dArray const& pl,
                            COrxPoint3d const& centre, double startAngle);

// Section properties of the polygon through the points in the XY plane (closed from the last
// back to the first; a repeated closing point adds nothing): the enclosed area (positive for
// either orientation), the centroid (at the first point's z), and the second moments of area
// about the axes through the centroid parallel to X and Y: ix = integral of y'^2, iy = integral
// of x'^2, ixy = integral of x'y' (shoelace sums; a self-crossing polygon gives the net
// values). False, outputs untouched, for fewer than 3 points, an area not above
// COrxPoint3d::tol squared (nothing to divide by) or non-finite coordinates.
ORX_API bool g_pl_statics(COrxPoint3dArray const& pl, double& area, COrxPoint3d& centroid,
                          double& ix, double& iy, double& ixy);

}  // namespace ORX

#endif  // ORX_GEOM_POINT_LIST_FUNCTIONS_H
