#include "orx/regions/internal/overlay.h"

#include <cmath>
#include <vector>

#include "orx/foundation/array_templ_impl.h"
#include "orx/foundation/shared/index_range.h"
#include "orx/foundation/shared/plain_block.h"
#include "orx/polyline/shared/segment_box.h"
#include "orx/regions/bool_operation.h"
#include "orx/regions/internal/pair_cutting.h"
#include "orx/regions/internal/piece_loop.h"
#include "orx/regions/internal/piece_matcher.h"
#include "orx/regions/internal/strip_index.h"

namespace ORX {
namespace internal {

namespace {

// One operand under cutting: its loops' pieces, and which original segments came near the
// other operand.
struct Operand {
    explicit Operand(LoopRefs const& loops) {
        for (COrxVertexArray const* each : loops) {
            COrxVertexArray const& loop = *each;
            pieces.emplace_back(loop);
            near.emplace_back(static_cast<std::size_t>(loop.len()), 0);
        }
    }

    // The box of each loop, for skipping pairs of loops that lie apart.
    void makeBoxes(LoopRefs const& loops) {
        for (COrxVertexArray const* each : loops) {
            boxes.push_back(polylineBox(*each));
        }
    }

    // The pieces near the other operand (all pieces when `all`), loop by loop in polyline
    // order.
    SegmentRefs piecesNear(bool all) const {
        SegmentRefs list;
        for (std::size_t l = 0; l < pieces.size(); ++l) {
            PieceLoop const& loop = pieces[l];
            if (loop.size() == 0) {
                continue;
            }
            int r = 0;
            do {
                if (all || near[l][static_cast<std::size_t>(loop.origin(r))]) {
                    list.push_back(&loop.piece(r));
                }
                r = loop.next(r);
            } while (r != 0);
        }
        return list;
    }

    std::vector<PieceLoop> pieces;
    std::vector<std::vector<char>> near;  // per loop, per original segment
    SegmentBoxes boxes;                   // per loop
};

// Cuts every loop of a against every loop of b. Pairs of loops whose boxes lie apart are
// skipped; for one loop against one the boxes are not worth making, as cutting finds the
// segment pairs that may meet by itself.
void cutAll(Operand& a, Operand& b, LoopRefs const& loopsA, LoopRefs const& loopsB) {
    if (a.pieces.size() == 1 && b.pieces.size() == 1) {
        cutOperands(a.pieces[0], b.pieces[0], 3, &a.near[0], &b.near[0]);
        return;
    }
    a.makeBoxes(loopsA);
    b.makeBoxes(loopsB);
    for (std::size_t i = 0; i < a.pieces.size(); ++i) {
        for (std::size_t j = 0; j < b.pieces.size(); ++j) {
            if (mayOverlap(a.boxes[i], b.boxes[j])) {
                cutOperands(a.pieces[i], b.pieces[j], 3, &a.near[i], &b.near[j]);
            }
        }
    }
}

bool keeps(OverlayOp op, bool first, bool insideOther) {
    if (op == OverlayOp::kIntersection) {
        return insideOther;
    }
    if (op == OverlayOp::kUnion) {
        return !insideOther;
    }
    return first ? !insideOther : insideOther;
}

// Walks the pieces of every loop in order and hands each to decide(piece, near, insideOther) with
// the side of the other operand its midpoint lies on: tested for a piece near the other
// operand and for the first of a run of pieces away from it, taken over for the rest of the
// run.
template <class Decide>
void classify(Operand const& from, StripIndex const& other, Decide decide) {
    for (std::size_t l = 0; l < from.pieces.size(); ++l) {
        PieceLoop const& loop = from.pieces[l];
        if (loop.size() == 0) {
            continue;
        }
        bool haveRun = false, runInside = false;
        int r = 0;
        do {
            COrxVertex const& piece = loop.piece(r);
            bool const near = from.near[l][static_cast<std::size_t>(loop.origin(r))] != 0;
            bool inside = false;
            if (near || !haveRun) {
                inside = other.winding(piece.mid()) % 2 != 0;
            } else {
                inside = runInside;
            }
            haveRun = !near;
            runInside = inside;
            decide(piece, near, inside);
            r = loop.next(r);
        } while (r != 0);
    }
}

// The number of point tests classify() makes for the operand: one for every piece that is
// near the other operand or follows one that is (or begins its loop).
int testsOf(Operand const& operand) {
    int tests = 0;
    for (std::size_t l = 0; l < operand.pieces.size(); ++l) {
        PieceLoop const& loop = operand.pieces[l];
        if (loop.size() == 0) {
            continue;
        }
        bool afterNear = true;
        int r = 0;
        do {
            bool const near = operand.near[l][static_cast<std::size_t>(loop.origin(r))] != 0;
            tests += near || afterNear ? 1 : 0;
            afterNear = near;
            r = loop.next(r);
        } while (r != 0);
    }
    return tests;
}

}  // namespace

LoopRefs refsOf(Loops const& loops) {
    LoopRefs refs;
    for (int k : ORX::internal::indices(loops)) {
        refs.push_back(&loops[k]);
    }
    return refs;
}

COrxVertexArray overlayPieces(LoopRefs const& loopsA, LoopRefs const& loopsB, OverlayOp op) {
    Operand a(loopsA), b(loopsB);
    cutAll(a, b, loopsA, loopsB);
    StripIndex const areaA(a.piecesNear(true), testsOf(b)), areaB(b.piecesNear(true), testsOf(a));
    SegmentRefs const nearB = b.piecesNear(false);
    PieceMatcher const matcher(nearB);
    std::vector<char> matched(nearB.size(), 0);
    SegmentRefs kept;  // copied out once, at its final length
    kept.reserve(areaA.size() + areaB.size());
    classify(a, areaB, [&](COrxVertex const& piece, bool near, bool inside) {
        bool same = false, opposite = false;
        if (near) {
            matcher.forEachMatch(piece, [&](int k, int direction) {
                matched[static_cast<std::size_t>(k)] = 1;
                (direction > 0 ? same : opposite) = true;
            });
        }
        if (same || (!opposite && keeps(op, true, inside))) {
            kept.push_back(&piece);
        }
    });
    std::size_t nearIndex = 0;
    classify(b, areaA, [&](COrxVertex const& piece, bool near, bool inside) {
        bool const wasMatched = near && matched[nearIndex++] != 0;
        if (!wasMatched && keeps(op, false, inside)) {
            kept.push_back(&piece);
        }
    });
    COrxVertexArray pieces;
    if (pieces.setLogicalLength(static_cast<int>(kept.size())) == static_cast<int>(kept.size())) {
        for (std::size_t k = 0; k < kept.size(); ++k) {
            copyPlain(pieces.data() + k, kept[k], 1);
        }
    }
    return pieces;
}

namespace {

// Open chains whose ends lie within this many point tolerances are joined (see below).
constexpr double kRepairTolerances = 4.0;

// Normalises the chain and hands it to take() when it closes.
template <class Take>
void takeIfClosed(COrxVertexArray& chain, Take take) {
    chain.norm(false);
    if (chain.isClosed()) {
        take(chain);
    }
}

// Chains that do not close: where operands come within the tolerance of each other at a
// corner, a vertex of one may lie just beyond the tolerance of the other's, so that one
// chain ends where the next begins only within a little more than the tolerance. Each open
// chain is joined, at its end, to the nearest start within kRepairTolerances of it, its own
// start (closing it) or that of another open chain, until it closes or no start is near;
// a chain that cannot close is left out.
template <class Take>
void joinOpenChains(std::vector<COrxVertexArray>& open, Take take) {
    double const reach = kRepairTolerances * COrxPoint3d::tol;
    std::vector<bool> used(open.size(), false);
    for (std::size_t i = 0; i < open.size(); ++i) {
        if (used[i]) {
            continue;
        }
        used[i] = true;
        COrxVertexArray chain = open[i];
        for (;;) {
            COrxPoint3d const end = chain[chain.len() - 1].endPoint();
            double best = end.distanceTo(chain[0].startPoint());
            std::size_t next = i;  // i: close the chain
            for (std::size_t j = 0; j < open.size(); ++j) {
                double const d = used[j] ? best : end.distanceTo(open[j][0].startPoint());
                if (d < best) {
                    best = d;
                    next = j;
                }
            }
            if (!(best <= reach)) {
                break;  // no start near: left out
            }
            COrxVertex& last = chain[chain.len() - 1];
            COrxPoint3d const join = next == i ? chain[0].startPoint() : open[next][0].startPoint();
            last.set(last.startPoint(), join, last.bulge());
            if (next == i) {
                takeIfClosed(chain, take);
                break;
            }
            chain += open[next];
            used[next] = true;
        }
    }
}

// Calls take(loop) for every chain of the chained pieces that closes, normalised, then for
// the open chains that joining closes.
template <class Take>
void forEachClosedLoop(COrxVertexArray& pieces, Take take) {
    g_vl_sort(pieces);
    std::vector<COrxVertexArray> open;
    int begin = 0;
    COrxVertexArray chain;
    for (int k = 1; k <= pieces.len(); ++k) {
        if (k < pieces.len() && pieces[k].startPoint() == pieces[k - 1].endPoint()) {
            continue;
        }
        if (begin == 0 && k == pieces.len() && pieces[k - 1].endPoint() == pieces[0].startPoint()) {
            takeIfClosed(pieces, take);  // all pieces form one loop: no copy
            return;
        }
        chain.setLogicalLength(k - begin);
        for (int i = begin; i < k; ++i) {
            chain[i - begin] = pieces[i];
        }
        begin = k;
        if (chain[chain.len() - 1].endPoint() == chain[0].startPoint()) {
            takeIfClosed(chain, take);
        } else {
            open.push_back(chain);
        }
    }
    joinOpenChains(open, take);
}

}  // namespace

Loops closedLoops(COrxVertexArray pieces) {
    Loops loops;
    forEachClosedLoop(pieces, [&loops](COrxVertexArray const& loop) { loops.append(loop); });
    return loops;
}

void appendClosedLoops(COrxVertexArray pieces, COrxVertexArray& out) {
    forEachClosedLoop(pieces, [&out](COrxVertexArray const& loop) { out += loop; });
}

bool allFinite(Loops const& loops) {
    for (int k : ORX::internal::indices(loops)) {
        if (!allFinite(loops[k])) {
            return false;
        }
    }
    return true;
}

}  // namespace internal
}  // namespace ORX
