// The region operations: one skeleton for union, intersection and difference (disjoint
// test, orientation, mutual cutting, classification against the whole region, selection,
// chaining, grouping into regions, clean-up), the point-in-region test, and the repeated
// difference of region lists.
#include "orx/regions/region.h"

#include <algorithm>
#include <vector>

#include "orx/foundation/array_templ_impl.h"
#include "orx/geom/tolerance.h"
#include "orx/polyline/polyline_functions.h"
#include "orx/regions/bool_operation.h"
#include "orx/regions/internal/indexed_polyline.h"

namespace ORX {

namespace {

using Region = COrxArrayTempl<COrxVertexArray>;
using RegionList = COrxArrayTempl<Region>;

enum class RegionOp { kUnion, kSect, kDiff };

// Classes of g_vll_pt_inside.
constexpr int kInside = 1;
constexpr int kOnBoundary = 0;
constexpr int kOutside = -1;

// Union and difference classify each piece under a point tolerance of at most this share of
// its length, so that short pieces are not taken for points of the other boundary.
constexpr double kPieceTolShare = 0.2;

COrxVector3d& referenceNormal() {
    static COrxVector3d normal(0.0, 0.0, 1.0);
    return normal;
}

int segmentCount(Region const& region) {
    int count = 0;
    for (unsigned long k = 0; k < region.len(); ++k) {
        count += region[static_cast<int>(k)].len();
    }
    return count;
}

bool disjoint(Region const& a, Region const& b) {
    COrxPoint3dArray pts;
    return !a[0].intersectWith(pts, b[0], 0) && !g_vl_pt_inside(a[0], b[0][0].startPoint(), true) &&
           !g_vl_pt_inside(b[0], a[0][0].startPoint(), true);
}

void revertLoops(Region& region, unsigned long from, unsigned long to) {
    for (unsigned long k = from; k < to && k < region.len(); ++k) {
        region[static_cast<int>(k)].revert();
    }
}

// The class of every piece of `region` against `other`, in loop and segment order.
std::vector<int> classify(Region const& region, Region const& other, COrxPoint3dTol* pieceTol,
                          double standardTol) {
    internal::IndexedRegion const against(other);
    std::vector<int> classes;
    classes.reserve(static_cast<std::size_t>(segmentCount(region)));
    for (unsigned long l = 0; l < region.len(); ++l) {
        COrxVertexArray const& loop = region[static_cast<int>(l)];
        for (int k = 0; k < loop.len(); ++k) {
            if (pieceTol != nullptr) {
                *pieceTol = std::min(standardTol, loop[k].bulgLen() * kPieceTolShare);
            }
            classes.push_back(against.inside(loop[k].mid()));
        }
    }
    return classes;
}

bool keepsFirst(RegionOp op, int cls) {
    return op == RegionOp::kSect ? cls == kInside : cls == kOutside;
}

bool keepsSecond(RegionOp op, int cls) {
    return op == RegionOp::kUnion ? cls == kOutside : cls == kInside;
}

// Selection: a's pieces on b's boundary are collected in `shared`; b's pieces on a's
// boundary are kept unless their reverse is one of them (so a shared stretch survives once,
// as b's copy, when both copies run the same way, and vanishes when they run opposite ways).
COrxVertexArray selectPieces(Region const& a, std::vector<int> const& classesA, Region const& b,
                             std::vector<int> const& classesB, RegionOp op) {
    COrxVertexArray kept, shared;
    std::size_t n = 0;
    for (unsigned long l = 0; l < a.len(); ++l) {
        COrxVertexArray const& loop = a[static_cast<int>(l)];
        for (int k = 0; k < loop.len(); ++k, ++n) {
            if (classesA[n] == kOnBoundary) {
                shared.append(loop[k]);
            } else if (keepsFirst(op, classesA[n])) {
                kept.append(loop[k]);
            }
        }
    }
    n = 0;
    for (unsigned long l = 0; l < b.len(); ++l) {
        COrxVertexArray const& loop = b[static_cast<int>(l)];
        for (int k = 0; k < loop.len(); ++k, ++n) {
            bool const onA = classesB[n] == kOnBoundary;
            if ((onA && shared.indexOf(loop[k].reverse()) < 0) ||
                (!onA && keepsSecond(op, classesB[n]))) {
                kept.append(loop[k]);
            }
        }
    }
    return kept;
}

// Holes back to the common sense; then regions whose outer loop is not closed go, and in
// the others every loop that is not closed.
void cleanUp(RegionList& regions) {
    for (unsigned long r = 0; r < regions.len(); ++r) {
        Region& region = regions[static_cast<int>(r)];
        revertLoops(region, 1, region.len());
    }
    for (int r = static_cast<int>(regions.len()) - 1; r >= 0; --r) {
        Region& region = regions[r];
        if (!region[0].isClosed()) {
            regions.removeAt(static_cast<unsigned long>(r));
            continue;
        }
        for (int l = static_cast<int>(region.len()) - 1; l >= 0; --l) {
            if (!region[l].isClosed()) {
                region.removeAt(static_cast<unsigned long>(l));
            }
        }
    }
}

void putFirst(RegionList& out, Region const& region) {
    if (out.isEmpty()) {
        out.setLogicalLength(1);
    }
    out[0] = region;
}

// a and b are the operation's own copies.
bool regionOperation(Region& a, Region& b, RegionList& out, RegionOp op) {
    if (a.isEmpty() || b.isEmpty()) {
        return false;
    }
    if (disjoint(a, b)) {
        if (op == RegionOp::kUnion) {
            out.removeAll();
            out.append(a).append(b);
            return true;
        }
        if (op == RegionOp::kDiff) {
            putFirst(out, a);
        }
        return false;
    }
    // Bring the area to the same side of every edge: holes turn round; in the difference b's
    // outer loop too, so that b's area is taken from the other side.
    if (op == RegionOp::kDiff) {
        setOrient(a, refNormal());
        setOrient(b, refNormal());
        revertLoops(a, 1, a.len());
        revertLoops(b, 0, 1);
    } else {
        revertLoops(a, 1, a.len());
        revertLoops(b, 1, b.len());
    }
    for (unsigned long i = 0; i < a.len(); ++i) {
        for (unsigned long j = 0; j < b.len(); ++j) {
            g_vl_break(a[static_cast<int>(i)], b[static_cast<int>(j)], 3);
        }
    }
    // Union and difference classify each piece under a tolerance that suits its length; the
    // intersection sets none, deliberately. The guard restores the tolerance at the end of
    // the operation.
    double const standardTol = COrxPoint3d::tol;
    COrxPoint3dTol pieceTol;
    COrxPoint3dTol* scoped = op == RegionOp::kSect ? nullptr : &pieceTol;
    std::vector<int> const classesA = classify(a, b, scoped, standardTol);
    std::vector<int> const classesB = classify(b, a, scoped, standardTol);

    COrxVertexArray chain = selectPieces(a, classesA, b, classesB, op);
    g_vl_sort(chain);
    out = g_vll_region(g_vl_vll(chain));
    cleanUp(out);
    return true;
}

}  // namespace

COrxVector3d const& refNormal() {
    return referenceNormal();
}

void setRefNormal(COrxVector3d const& normal) {
    referenceNormal() = normal;
}

int g_vll_pt_inside(Region const& region, COrxPoint3d const& p) {
    return internal::IndexedRegion(region).inside(p);
}

bool g_region_union(Region a, Region b, RegionList& out) {
    return regionOperation(a, b, out, RegionOp::kUnion);
}

bool g_region_sect(Region a, Region b, RegionList& out) {
    return regionOperation(a, b, out, RegionOp::kSect);
}

bool g_region_diff(Region a, Region b, RegionList& out) {
    return regionOperation(a, b, out, RegionOp::kDiff);
}

bool reglDiff(RegionList const& from, RegionList const& sub, RegionList& out) {
    if (from.isEmpty()) {
        return false;
    }
    putFirst(out, from[0]);
    for (unsigned long s = 0; s < sub.len(); ++s) {
        // The index loop re-reads the length: regions a difference splits off are visited by
        // the same pass.
        for (unsigned long o = 0; o < out.len(); ++o) {
            RegionList pieces;
            if (g_region_diff(out[static_cast<int>(o)], sub[static_cast<int>(s)], pieces)) {
                out[static_cast<int>(o)] = pieces.isEmpty() ? Region() : pieces[0];
                for (unsigned long p = 1; p < pieces.len(); ++p) {
                    out.append(pieces[static_cast<int>(p)]);
                }
            }
        }
        for (int o = static_cast<int>(out.len()) - 1; o >= 0; --o) {
            if (out[o].isEmpty()) {
                out.removeAt(static_cast<unsigned long>(o));
            }
        }
    }
    return !out.isEmpty();
}

COrxArrayTempl<COrxVertexArray> g_vl_vll(COrxVertexArray const& vl) {
    Region loops;
    COrxVertexArray loop;
    for (int k = 0; k < vl.len(); ++k) {
        if (k > 0 && vl[k].startPoint() != vl[k - 1].endPoint()) {
            loops.append(loop.norm(false));
            loop = COrxVertexArray();
        }
        loop.append(vl[k]);
    }
    if (!vl.isEmpty()) {
        loops.append(loop.norm(false));
    }
    return loops;
}

RegionList g_vll_region(Region const& loops) {
    int const n = static_cast<int>(loops.len());
    std::vector<internal::IndexedPolyline> indexed;
    indexed.reserve(static_cast<std::size_t>(n));
    for (int i = 0; i < n; ++i) {
        indexed.emplace_back(loops[i]);
    }
    std::vector<int> depth(static_cast<std::size_t>(n), 0);
    for (int i = 0; i < n; ++i) {
        if (loops[i].len() < 2) {
            continue;
        }
        COrxPoint3d const m = loops[i][0].mid();
        for (int j = 0; j < n; ++j) {
            depth[i] += (j != i && indexed[j].inside(m, false)) ? 1 : 0;
        }
    }
    std::vector<int> outer;
    for (int i = 0; i < n; ++i) {
        if (depth[i] % 2 == 0) {
            outer.push_back(i);
        }
    }
    std::stable_sort(outer.begin(), outer.end(),
                     [&depth](int l, int r) { return depth[l] < depth[r]; });
    RegionList regions;
    std::vector<int> outerLoop;
    for (int i : outer) {
        Region region;
        regions.append(region.append(loops[i]));
        outerLoop.push_back(i);
    }
    // A hole goes to the innermost outer loop around it: deeper outer loops were created
    // later, so the search runs from the last region back.
    for (int h = 0; h < n; ++h) {
        if (depth[h] % 2 == 0) {
            continue;
        }
        COrxPoint3d const m = loops[h][0].mid();
        for (int r = static_cast<int>(regions.len()) - 1; r >= 0; --r) {
            if (indexed[outerLoop[r]].inside(m, false)) {
                regions[r].append(loops[h]);
                break;
            }
        }
    }
    return regions;
}

}  // namespace ORX
