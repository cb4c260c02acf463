// Free functions on one segment or on two consecutive segments: end directions, how finely
// an arc must be cut, tangency at a joint, and trimming two segments to their meeting point.
#ifndef ORX_POLYLINE_VERTEX_FUNCTIONS_H
#define ORX_POLYLINE_VERTEX_FUNCTIONS_H

#include "orx/foundation/platform.h"
#include "orx/polyline/vertex.h"

namespace ORX {

// Arcs are never cut more coarsely than into quarter circles by g_vx_split_n, and never
// into more than this many pieces (a zero or negative chord tolerance would ask for
// infinitely many).
constexpr int kMaxArcPieces = 1 << 20;

// Direction leaving the start point along the segment: g_ang(angle(start, end) - theta / 2).
ORX_API double vx_start_angle(COrxVertex const& v);
// Direction leaving the end point back into the segment: g_ang(angle(end, start) + theta / 2).
// It points against the direction of travel, deliberately: both functions give the
// direction in which the segment leaves its end.
ORX_API double vx_end_angle(COrxVertex const& v);
// The same two directions as unit vectors.
ORX_API COrxVector3d vx_start_dir(COrxVertex const& v);
ORX_API COrxVector3d vx_end_dir(COrxVertex const& v);

// Number of pieces an arc must be cut into so that no chord deviates from it by more than
// tol: max(trunc(theta / (pi/2)), trunc((theta/2) / acos((r - tol) / r))), truncated toward
// zero (not rounded) deliberately; 0 for a straight segment. A tolerance of zero or below
// gives kMaxArcPieces; one so large that the acos has no value leaves the quarter-circle
// count.
ORX_API int g_vx_split_n(COrxVertex const& v, double tol);

// trunc(pi / (2 atan(sqrt(r^2 - (r/4)^2) / r))) for an arc, 0 for a straight segment. The
// value does not depend on r and is 2 for every arc; callers rely on it as it is.
ORX_API int g_bulg_split(COrxVertex const& v);

// The two segments touch at p with the same or the opposite tangent direction (within the
// fixed angle kTangentAngleTol, not the point tolerance).
ORX_API bool g_vx_is_tang(COrxVertex const& s1, COrxVertex const& s2, COrxPoint3d const& p);

// Joins two consecutive segments at the meeting point of their extensions (infinite lines,
// full circles) nearest to the middle of the gap: s1's end and s2's start move there, each
// keeping its bulge. False, with nothing changed, when they already touch, are tangent at
// s1's end, do not meet, or lie on one line or circle.
ORX_API bool g_vx_trim(COrxVertex& s1, COrxVertex& s2);

}  // namespace ORX

#endif  // ORX_POLYLINE_VERTEX_FUNCTIONS_H
