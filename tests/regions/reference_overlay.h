// The plain algorithms of the boolean and region operations after the cutting, loop for loop
// as they are defined: every piece tested against every piece and every segment, chains found
// by searching the whole list. The library skips what cannot matter; the tests hold it to
// these results, bit for bit.
#ifndef ORX_TESTS_REGIONS_REFERENCE_OVERLAY_H
#define ORX_TESTS_REGIONS_REFERENCE_OVERLAY_H

#include <cmath>
#include <vector>

#include "orx/plane_geometry/bulge_segment.h"
#include "reference_algorithms.h"

namespace orx_test {

using PlainRegion = COrxArrayTempl<COrxVertexArray>;
using PlainRegionList = COrxArrayTempl<PlainRegion>;

enum class PlainOp { kUnion, kDifference, kIntersection };

// Inside by the parity of the winding number over every segment of every loop.
inline bool plainInsideExact(PlainRegion const& loops, COrxPoint3d const& p) {
    int winding = 0;
    for (unsigned long l = 0; l < loops.len(); ++l) {
        COrxVertexArray const& vl = loops[static_cast<int>(l)];
        for (int k = 0; k < vl.len(); ++k) {
            winding += ORX::g_bulg_winding(vl[k].startPoint(), vl[k].endPoint(), vl[k].bulge(), p);
        }
    }
    return winding % 2 != 0;
}

// Same ends (either way round) and each midpoint within the tolerance of the other piece:
// +1 running the same way, -1 opposite ways, 0 not coincident.
inline int plainCoincidence(COrxVertex const& p, COrxVertex const& q) {
    int direction = 0;
    if (p.startPoint() == q.startPoint() && p.endPoint() == q.endPoint()) {
        direction = 1;
    } else if (p.startPoint() == q.endPoint() && p.endPoint() == q.startPoint()) {
        direction = -1;
    }
    auto within = [](COrxVertex const& v, COrxPoint3d const& m) {
        return ORX::g_bulg_pt_dist(v.startPoint(), v.endPoint(), v.bulge(), m) <= COrxPoint3d::tol;
    };
    return direction != 0 && within(q, p.mid()) && within(p, q.mid()) ? direction : 0;
}

// For each segment the first later one that starts where it ends, by searching.
inline void plainSort(COrxVertexArray& vl) {
    int const n = vl.len();
    for (int i = 1; i < n; ++i) {
        int follower = i;
        while (follower < n && vl[follower].startPoint() != vl[i - 1].endPoint()) {
            ++follower;
        }
        if (follower == n) {
            continue;
        }
        vl[i - 1].set(vl[i - 1].startPoint(), vl[follower].startPoint(), vl[i - 1].bulge());
        if (follower != i) {
            COrxVertex const moved = vl[follower];
            vl[follower] = vl[i];
            vl[i] = moved;
        }
    }
}

// The chains of the sorted pieces that close, each normalised; then the open chains, each
// joined at its end to the nearest start within four tolerances (its own, closing it, or
// another open chain's) until it closes or none is near.
inline PlainRegion plainClosedLoops(COrxVertexArray pieces) {
    plainSort(pieces);
    PlainRegion loops;
    std::vector<COrxVertexArray> open;
    COrxVertexArray chain;
    for (int k = 0; k < pieces.len(); ++k) {
        chain.append(pieces[k]);
        if (k + 1 == pieces.len() || pieces[k + 1].startPoint() != pieces[k].endPoint()) {
            if (chain[chain.len() - 1].endPoint() == chain[0].startPoint()) {
                if (chain.norm(false).isClosed()) {
                    loops.append(chain);
                }
            } else {
                open.push_back(chain);
            }
            chain = COrxVertexArray();
        }
    }
    std::vector<bool> used(open.size(), false);
    for (std::size_t i = 0; i < open.size(); ++i) {
        if (used[i]) {
            continue;
        }
        used[i] = true;
        COrxVertexArray c = open[i];
        for (;;) {
            COrxPoint3d const end = c[c.len() - 1].endPoint();
            double best = end.distanceTo(c[0].startPoint());
            std::size_t next = i;
            for (std::size_t j = 0; j < open.size(); ++j) {
                if (!used[j] && end.distanceTo(open[j][0].startPoint()) < best) {
                    best = end.distanceTo(open[j][0].startPoint());
                    next = j;
                }
            }
            if (!(best <= 4 * COrxPoint3d::tol)) {
                break;
            }
            COrxPoint3d const join = next == i ? c[0].startPoint() : open[next][0].startPoint();
            c[c.len() - 1].set(c[c.len() - 1].startPoint(), join, c[c.len() - 1].bulge());
            if (next == i) {
                if (c.norm(false).isClosed()) {
                    loops.append(c);
                }
                break;
            }
            c += open[next];
            used[next] = true;
        }
    }
    return loops;
}

// Every loop of a cut against every loop of b; then every piece: coincident pieces running
// the same way keep a's copy, running opposite ways neither; the others are kept by the side
// of the other operand their midpoint lies on.
inline COrxVertexArray plainOverlayPieces(PlainRegion a, PlainRegion b, PlainOp op) {
    for (unsigned long i = 0; i < a.len(); ++i) {
        for (unsigned long j = 0; j < b.len(); ++j) {
            plainBreak(a[static_cast<int>(i)], b[static_cast<int>(j)], 3);
        }
    }
    std::vector<COrxVertex> piecesA, piecesB;
    for (unsigned long l = 0; l < a.len(); ++l) {
        for (int k = 0; k < a[static_cast<int>(l)].len(); ++k) {
            piecesA.push_back(a[static_cast<int>(l)][k]);
        }
    }
    for (unsigned long l = 0; l < b.len(); ++l) {
        for (int k = 0; k < b[static_cast<int>(l)].len(); ++k) {
            piecesB.push_back(b[static_cast<int>(l)][k]);
        }
    }
    COrxVertexArray kept;
    std::vector<bool> matched(piecesB.size(), false);
    for (COrxVertex const& p : piecesA) {
        bool same = false, opposite = false;
        for (std::size_t j = 0; j < piecesB.size(); ++j) {
            int const direction = plainCoincidence(p, piecesB[j]);
            same = same || direction > 0;
            opposite = opposite || direction < 0;
            matched[j] = matched[j] || direction != 0;
        }
        bool const inside = plainInsideExact(b, p.mid());
        if (same || (!opposite && (op == PlainOp::kIntersection ? inside : !inside))) {
            kept.append(p);
        }
    }
    for (std::size_t j = 0; j < piecesB.size(); ++j) {
        bool const inside = plainInsideExact(a, piecesB[j].mid());
        if (!matched[j] && (op == PlainOp::kUnion ? !inside : inside)) {
            kept.append(piecesB[j]);
        }
    }
    return kept;
}

inline COrxVertexArray plainBool(COrxVertexArray const& a, COrxVertexArray b,
                                 COrxVertexArray::boolOper op) {
    if (op == COrxVertexArray::boolDiff) {
        b.revert();  // the difference keeps b's pieces reversed
    }
    PlainRegion first, second;
    first.append(a);
    second.append(b);
    PlainOp const plain = op == COrxVertexArray::boolUnion  ? PlainOp::kUnion
                          : op == COrxVertexArray::boolDiff ? PlainOp::kDifference
                                                            : PlainOp::kIntersection;
    PlainRegion const loops = plainClosedLoops(plainOverlayPieces(first, second, plain));
    COrxVertexArray result;
    for (unsigned long k = 0; k < loops.len(); ++k) {
        result += loops[static_cast<int>(k)];
    }
    return result;
}

// Outer loops run as the operands' did, holes the other way; each hole goes to the smallest
// outer loop that holds the first of its segment midpoints off that loop.
inline PlainRegionList plainGroupBySense(PlainRegion const& loops, bool counterClockwise) {
    std::vector<int> outer, holes;
    for (unsigned long k = 0; k < loops.len(); ++k) {
        bool const ccw = ORX::g_vl_area(loops[static_cast<int>(k)]) > 0.0;
        (ccw == counterClockwise ? outer : holes).push_back(static_cast<int>(k));
    }
    PlainRegionList regions;
    for (int o : outer) {
        PlainRegion region;
        regions.append(region.append(loops[o]));
    }
    auto size = [&](int k) { return std::fabs(ORX::g_vl_area(loops[k])); };
    for (int h : holes) {
        int best = -1;
        for (std::size_t r = 0; r < outer.size(); ++r) {
            COrxVertexArray const& candidate = loops[outer[r]];
            if (!(size(outer[r]) > size(h)) ||
                (best >= 0 && !(size(outer[r]) < size(outer[static_cast<std::size_t>(best)])))) {
                continue;
            }
            for (int k = 0; k < loops[h].len(); ++k) {
                COrxPoint3d const m = loops[h][k].mid();
                if (!candidate.isPoint(m)) {
                    PlainRegion one;
                    if (plainInsideExact(one.append(candidate), m)) {
                        best = static_cast<int>(r);
                    }
                    break;
                }
            }
        }
        if (best >= 0) {
            regions[best].append(loops[h].reverse());
        }
    }
    return regions;
}

// The region operation as the library defines it: the disjoint cases, the orientation of
// the loops, the overlay and the grouping.
inline bool plainRegionOp(PlainRegion a, PlainRegion b, PlainOp op, PlainRegionList& out) {
    if (a.isEmpty() || b.isEmpty()) {
        return false;
    }
    COrxPoint3dArray pts;
    bool const disjoint = !a[0].intersectWith(pts, b[0], 0) &&
                          !ORX::g_vl_pt_inside(a[0], b[0][0].startPoint(), true) &&
                          !ORX::g_vl_pt_inside(b[0], a[0][0].startPoint(), true);
    if (disjoint) {
        if (op == PlainOp::kUnion) {
            out.removeAll();
            out.append(a).append(b);
            return true;
        }
        if (op == PlainOp::kDifference) {
            if (out.isEmpty()) {
                out.setLogicalLength(1);
            }
            out[0] = a;
        }
        return false;
    }
    if (op == PlainOp::kDifference) {
        ORX::setOrient(a, ORX::refNormal());
        ORX::setOrient(b, ORX::refNormal());
        b[0].revert();
    } else {
        for (unsigned long k = 1; k < b.len(); ++k) {
            b[static_cast<int>(k)].revert();
        }
    }
    for (unsigned long k = 1; k < a.len(); ++k) {
        a[static_cast<int>(k)].revert();
    }
    bool const ccw = ORX::g_vl_area(a[0]) > 0.0;
    out = plainGroupBySense(plainClosedLoops(plainOverlayPieces(a, b, op)), ccw);
    return true;
}

}  // namespace orx_test

#endif  // ORX_TESTS_REGIONS_REFERENCE_OVERLAY_H
