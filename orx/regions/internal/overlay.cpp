#include "orx/regions/internal/overlay.h"

#include <cmath>
#include <vector>

#include "orx/foundation/array_templ_impl.h"
#include "orx/regions/bool_operation.h"
#include "orx/regions/internal/piece_matcher.h"
#include "orx/regions/internal/winding_index.h"

namespace ORX {
namespace internal {

namespace {

std::vector<COrxVertex const*> piecesOf(Loops const& loops) {
    std::vector<COrxVertex const*> pieces;
    for (unsigned long l = 0; l < loops.len(); ++l) {
        COrxVertexArray const& loop = loops[static_cast<int>(l)];
        for (int k = 0; k < loop.len(); ++k) {
            pieces.push_back(&loop[k]);
        }
    }
    return pieces;
}

bool keepsFirst(OverlayOp op, bool insideOther) {
    return op == OverlayOp::kIntersection ? insideOther : !insideOther;
}

bool keepsSecond(OverlayOp op, bool insideOther) {
    return op == OverlayOp::kUnion ? !insideOther : insideOther;
}

}  // namespace

COrxVertexArray overlayPieces(Loops& a, Loops& b, OverlayOp op) {
    for (unsigned long i = 0; i < a.len(); ++i) {
        for (unsigned long j = 0; j < b.len(); ++j) {
            g_vl_break(a[static_cast<int>(i)], b[static_cast<int>(j)], 3);
        }
    }
    std::vector<COrxVertex const*> const piecesA = piecesOf(a);
    std::vector<COrxVertex const*> const piecesB = piecesOf(b);
    PieceMatcher const matcher(piecesB);
    std::vector<bool> matchedB(piecesB.size(), false);
    WindingIndex const areaA(a), areaB(b);
    COrxVertexArray kept;
    for (COrxVertex const* piece : piecesA) {
        bool same = false, opposite = false;
        matcher.forEachMatch(*piece, [&](int k, int direction) {
            matchedB[static_cast<std::size_t>(k)] = true;
            (direction > 0 ? same : opposite) = true;
        });
        if (same || (!opposite && keepsFirst(op, areaB.inside(piece->mid())))) {
            kept.append(*piece);
        }
    }
    for (std::size_t k = 0; k < piecesB.size(); ++k) {
        if (!matchedB[k] && keepsSecond(op, areaA.inside(piecesB[k]->mid()))) {
            kept.append(*piecesB[k]);
        }
    }
    return kept;
}

Loops closedLoops(COrxVertexArray pieces) {
    g_vl_sort(pieces);
    Loops loops;
    int begin = 0;
    for (int k = 1; k <= pieces.len(); ++k) {
        if (k < pieces.len() && pieces[k].startPoint() == pieces[k - 1].endPoint()) {
            continue;
        }
        COrxVertexArray chain;
        for (int i = begin; i < k; ++i) {
            chain.append(pieces[i]);
        }
        begin = k;
        chain.norm(false);
        if (chain.isClosed()) {
            loops.append(chain);
        }
    }
    return loops;
}

bool allFinite(COrxVertexArray const& vl) {
    for (int k = 0; k < vl.len(); ++k) {
        COrxVertex const& v = vl[k];
        if (!v.startPoint().isValid() || !v.endPoint().isValid() || !std::isfinite(v.bulge())) {
            return false;
        }
    }
    return true;
}

bool allFinite(Loops const& loops) {
    for (unsigned long k = 0; k < loops.len(); ++k) {
        if (!allFinite(loops[static_cast<int>(k)])) {
            return false;
        }
    }
    return true;
}

}  // namespace internal
}  // namespace ORX
