// The boolean operation on two closed polylines, step by step: mutual cutting, the
// point-in-polyline test, selection of the pieces, chaining, normalisation.
#include "orx/regions/bool_operation.h"

#include "orx/regions/internal/chaining.h"
#include "orx/regions/internal/overlay.h"
#include "orx/regions/internal/pair_cutting.h"
#include "orx/regions/internal/piece_loop.h"
#include "orx/regions/internal/ray_test.h"

namespace ORX {

bool g_vl_break(COrxVertexArray& a, COrxVertexArray& b, int mode) {
    internal::PieceLoop first(a), second(b);
    internal::cutOperands(first, second, mode, nullptr, nullptr);
    // Both are written out before either is replaced: the pieces are read from a and b, which
    // may be one and the same polyline.
    COrxVertexArray cutA = first.written(a.normal());
    COrxVertexArray cutB = second.written(b.normal());
    a = cutA;
    b = cutB;
    return false;
}

bool g_vl_pt_inside(COrxVertexArray const& vl, COrxPoint3d p, bool onBoundary) {
    return internal::rayInside(vl, p, onBoundary);
}

void g_vl_sort(COrxVertexArray& vl) {
    internal::chainHeadToTail(vl);
}

COrxVertexArray g_vl_bool(COrxVertexArray a, COrxVertexArray b, COrxVertexArray::boolOper op) {
    if (op != COrxVertexArray::boolUnion && op != COrxVertexArray::boolDiff &&
        op != COrxVertexArray::boolSect) {
        return COrxVertexArray();
    }
    if (!internal::allFinite(a) || !internal::allFinite(b)) {
        return COrxVertexArray();
    }
    // The difference keeps b's pieces reversed: reverse b first, so that coincident pieces
    // are compared the way they will run in the result.
    if (op == COrxVertexArray::boolDiff) {
        b.revert();
    }
    internal::OverlayOp const overlay =
        op == COrxVertexArray::boolUnion  ? internal::OverlayOp::kUnion
        : op == COrxVertexArray::boolDiff ? internal::OverlayOp::kDifference
                                          : internal::OverlayOp::kIntersection;
    COrxVertexArray result;
    internal::appendClosedLoops(internal::overlayPieces({&a}, {&b}, overlay), result);
    return result;
}

}  // namespace ORX
