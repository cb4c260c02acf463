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
// rand() scaled to a direction: 2pi / 32767. Where RAND_MAX is 32767 (the Windows runtimes,
// MinGW's included) the angles cover [0, 2pi]. Where it is 2^31 - 1 (glibc) they reach about
// 65538 * 2pi; the ray takes their cosine and sine, so they still give directions all round
// the circle. The scale is the same on every platform: callers rely on the restarts taking
// exactly rand() times this number.
constexpr double kRandomDirectionScale = 0.00019175345033660654;
// The point-in-polyline test restarts in a random direction when its ray passes through a
// segment end. A direction that misses every end always exists, so this cap is never reached
// on finite input; it only guards against geometry no direction gets past (non-finite
// values), where the answer is then false.
constexpr int kMaxRayRestarts = 100000;

// The union (boolUnion), a minus b (boolDiff) or the intersection (boolSect) of two closed
// polylines. The result holds closed loops one after another (g_vl_vll splits them), each
// normalised; it is empty when nothing is selected: an unknown operation, empty operands, a
// difference of an area with itself, an intersection of disjoint areas, and operands with a
// NaN or infinite value.
//
// After g_vl_break every piece of one operand either coincides with a piece of the other
// (the same ends, each midpoint within COrxPoint3d::tol of the other piece) or lies inside or
// outside the other away from its ends:
// - coincident pieces running the same way keep one copy (a's) in the union and the
//   intersection, and both go in the difference; running opposite ways (the areas touch
//   from outside) both go in the union and the intersection, and the difference keeps a's
//   copy. One rule for all three operations: a shared stretch bounds the result once or not
//   at all, so two areas that share an edge give a closed union;
// - every other piece is kept by the side its midpoint lies on, decided exactly by the
//   winding number (g_bulg_winding), with no tolerance band: the union keeps a's and b's
//   pieces outside the other, the intersection those inside, the difference a's outside b
//   and b's inside a, reversed. A band would take a piece that runs close to the other
//   outline (a shallow crossing, a near-copy) for part of it and drop it.
// Chains that do not close are not returned: every result is a set of closed loops.
ORX_API COrxVertexArray g_vl_bool(COrxVertexArray a, COrxVertexArray b,
                                  COrxVertexArray::boolOper op);

// The same on extended polylines. The result is a default extended polyline: the attributes
// of neither operand are carried into it (deliberately; callers set them afterwards).
ORX_API COrxVertexArrayEx g_vl_bool(COrxVertexArrayEx a, COrxVertexArrayEx b,
                                    COrxVertexArray::boolOper op);

// Cuts the segments of a (mode bit 1) and of b (mode bit 2) at the points where the two
// meet, including a vertex of one touching the inside of a segment of the other, until no
// segment of either crosses or touches the interior of a segment of the other. Every cut is
// made at the foot of the point on the segment (breakVertex), and a point within
// COrxPoint3d::tol of a segment's end is no cut. With both bits set the two operands end up
// sharing their meeting points exactly: b's vertices that lie on a move onto a's cut points
// or onto a's nearer vertex, and b is cut at a's points themselves. Always returns false.
ORX_API bool g_vl_break(COrxVertexArray& a, COrxVertexArray& b, int mode);

// Point in polyline by ray parity: the ray runs from p away from the midpoint of the first
// segment, kPolylineRayLength long. A point on the polyline answers onBoundary. When the ray
// passes through a segment end the test restarts with a direction from rand(). The test is
// planar: the polyline's plan at height 0 is asked about p's plan position, with no copy of
// the polyline. A polyline of fewer than two segments contains nothing.
ORX_API bool g_vl_pt_inside(COrxVertexArray const& vl, COrxPoint3d p, bool onBoundary);

// Reorders the segments into head-to-tail chains: each segment is followed by the first
// later one that starts where it ends, whose start is then copied into its end so the joint
// is exact. Segments are never reversed; a segment with no follower starts a new chain.
ORX_API void g_vl_sort(COrxVertexArray& vl);

}  // namespace ORX

#endif  // ORX_REGIONS_BOOL_OPERATION_H
