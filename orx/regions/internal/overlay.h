// The core of the boolean operations on polylines and regions: cut both operands where they
// meet, keep the pieces the operation selects, chain them into closed loops.
//
// The operands are lists of closed loops with their area on the left of every edge (holes
// run the other way round than outer loops); for a difference the second operand is passed
// reversed, so that every kept piece already runs the way the result does. Each piece of
// one operand either coincides with a piece of the other (same ends and midpoints within
// the point tolerance) or lies inside or outside the other's area away from its ends:
//   - coincident pieces running the same way: the first operand's copy is kept (the
//     stretch bounds the result on the same side for both), the other's dropped;
//   - coincident pieces running opposite ways (the areas touch there): both dropped;
//   - every other piece is kept or dropped by the side of the other operand its midpoint
//     lies on, decided exactly (g_bulg_winding), with no tolerance band: union keeps the
//     pieces outside, intersection those inside, difference the first operand's pieces
//     outside and the second's inside.
// So a shared stretch is kept once or not at all, and a shallow crossing or a piece close to
// the other outline is classified by where it actually lies.
#ifndef ORX_REGIONS_INTERNAL_OVERLAY_H
#define ORX_REGIONS_INTERNAL_OVERLAY_H

#include <vector>

#include "orx/foundation/array_templ.h"
#include "orx/polyline/shared/finite_polyline.h"
#include "orx/polyline/vertex_array.h"

namespace ORX {
namespace internal {

using Loops = COrxArrayTempl<COrxVertexArray>;
using LoopRefs = std::vector<COrxVertexArray const*>;

// The loops of a list, by reference.
LoopRefs refsOf(Loops const& loops);

enum class OverlayOp { kUnion, kDifference, kIntersection };

// Cuts every loop of a against every loop of b whose boxes overlap (as g_vl_break), then
// returns the kept pieces: a's in loop order, then b's. The classification gives the answer
// of testing every piece on its own, but tests only the pieces near the other operand one by
// one: a run of pieces that stay away from the other operand lies on one side of it, so the
// first piece of the run answers for all.
COrxVertexArray overlayPieces(LoopRefs const& a, LoopRefs const& b, OverlayOp op);

// Chains pieces head to tail (g_vl_sort) and returns the chains that close, each normalised
// with norm(false); a chain that does not close is left out, so that a result is always a
// set of closed loops.
Loops closedLoops(COrxVertexArray pieces);
// The same loops appended one after another to `out`.
void appendClosedLoops(COrxVertexArray pieces, COrxVertexArray& out);

// The operands' own check: every coordinate and bulge of every loop is finite (the one of a
// single polyline is in finite_polyline.h).
bool allFinite(Loops const& loops);

}  // namespace internal
}  // namespace ORX

#endif  // ORX_REGIONS_INTERNAL_OVERLAY_H
