// The boolean operation on two closed polylines, step by step: mutual cutting, the
// point-in-polyline test, selection of the pieces, chaining, normalisation.
#include "orx/regions/bool_operation.h"

#include <vector>

#include "orx/geom/functions.h"
#include "orx/polyline/internal/segment_box.h"
#include "orx/polyline/internal/segment_grid.h"
#include "orx/regions/internal/indexed_polyline.h"
#include "orx/regions/internal/overlay.h"
#include "orx/regions/internal/pair_cutting.h"
#include "orx/regions/internal/piece_index.h"

namespace ORX {

namespace {

// The cutting loop repeats a segment pair after every cut; on real input the number of cuts
// is bounded by the meeting points. This budget (far above that) only keeps degenerate
// input, where a cut does not shorten the segment, from looping for ever.
long long cutBudget(int n, int m) {
    return 8LL * (n + 1) * (m + 1) + 1024;
}

// Segment k was cut in two: its box and the new one after it.
void splitBox(std::vector<internal::SegmentBox>& boxes, COrxVertexArray const& vl, int k) {
    auto const at = boxes.begin() + k;
    *at = internal::segmentBox(vl[k]);
    boxes.insert(at + 1, internal::segmentBox(vl[k + 1]));
}

}  // namespace

bool g_vl_break(COrxVertexArray& a, COrxVertexArray& b, int mode) {
    long long budget = cutBudget(a.len(), b.len());
    // Only segments whose boxes overlap can cut one another. b's segments are found through a
    // grid over their boxes as they were before cutting; the pieces of one of them stay
    // together in b, in order, so visiting the candidates in ascending order and their pieces
    // in turn visits the pairs in the order of a loop over all of b.
    std::vector<internal::SegmentBox> boxA = internal::segmentBoxes(a);
    std::vector<internal::SegmentBox> boxB = internal::segmentBoxes(b);
    internal::SegmentGrid const grid(boxB);
    internal::PieceIndex pieces(b.len());
    std::vector<int> near;
    internal::PairCutter cutter(a, b, mode);
    for (int i = 0; i < a.len() && budget > 0; ++i) {
        grid.query(boxA[static_cast<std::size_t>(i)], near);
        for (int original : near) {
            int const first = pieces.firstPiece(original);
            for (int k = 0; k < pieces.count(original) && budget > 0; ++k) {
                int const j = first + k;
                if (!internal::mayOverlap(boxA[static_cast<std::size_t>(i)],
                                          boxB[static_cast<std::size_t>(j)])) {
                    continue;
                }
                if ((mode & 1) && cutter.cutFirst(i, j)) {
                    splitBox(boxA, a, i);
                } else if ((mode & 2) && cutter.cutSecond(i, j)) {
                    splitBox(boxB, b, j);
                    pieces.addPiece(original);
                } else {
                    continue;
                }
                --budget;
                --k;  // test the same pair again
            }
        }
    }
    return false;
}

bool g_vl_pt_inside(COrxVertexArray const& vl, COrxPoint3d p, bool onBoundary) {
    return internal::IndexedPolyline(vl).inside(p, onBoundary);
}

void g_vl_sort(COrxVertexArray& vl) {
    int const n = vl.len();
    for (int i = 1; i < n; ++i) {
        COrxVertex& before = vl[i - 1];
        int follower = i;
        while (follower < n && vl[follower].startPoint() != before.endPoint()) {
            ++follower;
        }
        if (follower == n) {
            continue;  // no segment starts here: segment i begins a new chain
        }
        before.set(before.startPoint(), vl[follower].startPoint(), before.bulge());
        if (follower != i) {
            COrxVertex const moved = vl[follower];
            vl[follower] = vl[i];
            vl[i] = moved;
        }
    }
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
    internal::Loops first, second;
    first.append(a);
    second.append(b);
    internal::OverlayOp const overlay =
        op == COrxVertexArray::boolUnion  ? internal::OverlayOp::kUnion
        : op == COrxVertexArray::boolDiff ? internal::OverlayOp::kDifference
                                          : internal::OverlayOp::kIntersection;
    internal::Loops const loops =
        internal::closedLoops(internal::overlayPieces(first, second, overlay));
    COrxVertexArray result;
    for (unsigned long k = 0; k < loops.len(); ++k) {
        result += loops[static_cast<int>(k)];
    }
    return result;
}

}  // namespace ORX
