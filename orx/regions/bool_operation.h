// Boolean operations on two closed polylines: union, difference and intersection.
//
// A piece-selection algorithm: both outlines are cut at every point where they meet, each
// piece is kept or dropped by testing its midpoint against the other outline, and the kept
// pieces are chained head to tail and normalised. Both operands are taken by value; all
// cutting happens on copies.
//
//     COrxVertexArray both = ORX::g_vl_bool(square, circle, COrxVertexArray::boolUnion);
//     COrxArrayTempl<COrxVertexArray> loops = ORX::g_vl_vll(both);   // one polyline per loop
#ifndef ORX_REGIONS_BOOL_OPERATION_H
#define ORX_REGIONS_BOOL_OPERATION_H

#include "orx/foundation/platform.h"
#include "orx/polyline/vertex_array.h"
#include "orx/polyline/vertex_array_ex.h"

namespace ORX {

// Length of the ray of the point-in-polyline test, in drawing units.
constexpr double kPolylineRayLength = 10000000.0;
// rand() scaled to a direction in [0, 2pi]: 2pi / 32767.
constexpr double kRandomDirectionScale = 0.00019175345033660654;
// The point-in-polyline test restarts in a random direction when its ray passes through a
// segment end. A direction that misses every end always exists, so this cap is never reached
// on finite input; it only guards against geometry no direction gets past (non-finite
// values), where the answer is then false.
constexpr int kMaxRayRestarts = 100000;

// The union (boolUnion), a minus b (boolDiff) or the intersection (boolSect) of two closed
// polylines. The result may hold several closed loops one after another (g_vl_vll splits
// them) and is empty when nothing is selected: an unknown operation, empty operands, a
// difference of an area with itself, an intersection of disjoint areas.
//
// Edges the two outlines share follow fixed rules, which callers rely on: a difference keeps
// an edge shared with opposite directions (the areas touch from outside) and drops one
// shared in the same direction; an intersection keeps an edge shared in the same direction
// once and drops one shared with opposite directions; a union drops every shared piece,
// whatever the directions, so two areas sharing an outer edge in the same direction lose
// that edge from the union (deliberate; the region operations treat shared edges by a rule
// of their own). Shared pieces are recognised by exact segment equality, so the operands
// must run the same way round (orient them first).
ORX_API COrxVertexArray g_vl_bool(COrxVertexArray a, COrxVertexArray b,
                                  COrxVertexArray::boolOper op);

// The same on extended polylines. The result is a default extended polyline: the attributes
// of neither operand are carried into it (deliberately; callers set them afterwards).
ORX_API COrxVertexArrayEx g_vl_bool(COrxVertexArrayEx a, COrxVertexArrayEx b,
                                    COrxVertexArray::boolOper op);

// Cuts the segments of a (mode bit 1) and of b (mode bit 2) at the points where the two
// meet, including a vertex of one touching the inside of a segment of the other, until no
// segment of either crosses or touches the interior of a segment of the other. Always
// returns false.
ORX_API bool g_vl_break(COrxVertexArray& a, COrxVertexArray& b, int mode);

// Point in polyline by ray parity: the ray runs from p away from the midpoint of the first
// segment, kPolylineRayLength long. A point on the polyline answers onBoundary. When the ray
// passes through a segment end the test restarts with a direction from rand(). The test is
// planar (p is moved to the polyline's height). A polyline of fewer than two segments
// contains nothing.
ORX_API bool g_vl_pt_inside(COrxVertexArray const& vl, COrxPoint3d p, bool onBoundary);

// Reorders the segments into head-to-tail chains: each segment is followed by the first
// later one that starts where it ends, whose start is then copied into its end so the joint
// is exact. Segments are never reversed; a segment with no follower starts a new chain.
ORX_API void g_vl_sort(COrxVertexArray& vl);

}  // namespace ORX

#endif  // ORX_REGIONS_BOOL_OPERATION_H
