// Free functions on whole polylines: flattening arcs into straight pieces, the orientation
// of a closed polyline, and orienting a list of polylines.
#ifndef ORX_POLYLINE_POLYLINE_FUNCTIONS_H
#define ORX_POLYLINE_POLYLINE_FUNCTIONS_H

#include "orx/foundation/array_templ.h"
#include "orx/foundation/platform.h"
#include "orx/geom/plane.h"
#include "orx/polyline/vertex_array.h"

namespace ORX {

// The polyline with every arc replaced by straight pieces through points on the arc: k
// inner points per arc, k = |trunc(n * theta / pi)| raised to at least 2 (n counts pieces
// per half circle), or g_bulg_split (2) when n < 1. The result is rebuilt from the points,
// closed only when its first and last points coincide. Empty in, empty out. An arc with a
// NaN bulge gets one inner point, of NaN coordinates.
ORX_API COrxVertexArray g_vl_expl(COrxVertexArray const& vl, int n);

// True when the closed polyline runs counter-clockwise seen from the side the normal points
// to: the sign of the area of its flattened corner points, taken in the plane of the normal.
ORX_API bool g_vl_orient(COrxVertexArray const& vl, COrxVector3d const& normal);

// Reverts every closed polyline of the list that does not run counter-clockwise seen from
// normal; open polylines are left alone. Returns the list.
ORX_API COrxArrayTempl<COrxVertexArray>& setOrient(COrxArrayTempl<COrxVertexArray>& list,
                                                   COrxVector3d const& normal);

// Signed area enclosed by the polyline, exact for arcs: the shoelace sum over the chords
// plus the circular segment of every arc, r^2 / 2 * (theta - sin theta) with the arc's
// signed included angle theta. Positive for a counter-clockwise outline seen from +Z. The
// polyline is taken as its runs of segments that meet (the loops of a boolean result), each
// closed by a straight segment from its end back to its start; their areas add up. 0 when
// empty.
ORX_API double g_vl_area(COrxVertexArray const& vl);

// The polyline projected along dir onto the plane, point by point as plPlaneProje does. When
// the plane is parallel to the XY plane the projection is a translation and the bulges are
// kept; onto an inclined plane a circle would become an ellipse, so every arc is first
// flattened into straight pieces (kProjectionPiecesPerHalfCircle per half circle) and only
// straight segments are projected. A segment whose point misses the plane (dir parallel to
// it) is dropped.
constexpr int kProjectionPiecesPerHalfCircle = 16;
ORX_API COrxVertexArray vlPlaneProje(COrxPlane const& pl, COrxVertexArray const& vl,
                                     COrxVector3d const& dir);

}  // namespace ORX

#endif  // ORX_POLYLINE_POLYLINE_FUNCTIONS_H
