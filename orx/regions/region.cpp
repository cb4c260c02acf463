// The region operations: one skeleton for union, intersection and difference (disjoint
// test, orientation, mutual cutting, classification against the whole region, selection,
// chaining, grouping into regions, clean-up), the point-in-region test, and the repeated
// difference of region lists.
#include "orx/regions/region.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "orx/foundation/array_templ_impl.h"
#include "orx/geom/tolerance.h"
#include "orx/polyline/polyline_functions.h"
#include "orx/regions/bool_operation.h"
#include "orx/regions/internal/indexed_polyline.h"
#include "orx/regions/internal/overlay.h"
#include "orx/regions/internal/winding_index.h"

namespace ORX {

namespace {

using Region = COrxArrayTempl<COrxVertexArray>;
using RegionList = COrxArrayTempl<Region>;

enum class RegionOp { kUnion, kSect, kDiff };

COrxVector3d& referenceNormal() {
    static COrxVector3d normal(0.0, 0.0, 1.0);
    return normal;
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

// A point of the loop that does not lie on `outer`'s boundary: the midpoint of its first
// segment off it (none when the two coincide everywhere).
bool pointOff(COrxVertexArray const& loop, COrxVertexArray const& outer, COrxPoint3d& p) {
    for (int k = 0; k < loop.len(); ++k) {
        if (!outer.isPoint(loop[k].mid())) {
            p = loop[k].mid();
            return true;
        }
    }
    return false;
}

// Groups the closed loops of a result into regions by their sense: the loops that run as the
// operands' outer loops did are outer loops, the others holes (the operation keeps the area
// on the same side of every edge). A hole goes to the smallest outer loop around it; a hole
// that none holds is left out. The holes are turned back to the outer loops' sense.
RegionList groupBySense(internal::Loops const& loops, bool counterClockwise) {
    std::vector<int> outer, holes;
    std::vector<double> size(loops.len());
    for (unsigned long k = 0; k < loops.len(); ++k) {
        double const area = g_vl_area(loops[static_cast<int>(k)]);
        size[k] = std::fabs(area);
        ((area > 0.0) == counterClockwise ? outer : holes).push_back(static_cast<int>(k));
    }
    RegionList regions;
    for (int o : outer) {
        Region region;
        regions.append(region.append(loops[o]));
    }
    for (int h : holes) {
        int best = -1;
        for (std::size_t r = 0; r < outer.size(); ++r) {
            COrxVertexArray const& candidate = loops[outer[r]];
            COrxPoint3d p;
            if (size[static_cast<std::size_t>(outer[r])] > size[static_cast<std::size_t>(h)] &&
                (best < 0 ||
                 size[static_cast<std::size_t>(outer[r])] <
                     size[static_cast<std::size_t>(outer[static_cast<std::size_t>(best)])]) &&
                pointOff(loops[h], candidate, p) && internal::WindingIndex(candidate).inside(p)) {
                best = static_cast<int>(r);
            }
        }
        if (best >= 0) {
            regions[best].append(loops[h].reverse());
        }
    }
    return regions;
}

void putFirst(RegionList& out, Region const& region) {
    if (out.isEmpty()) {
        out.setLogicalLength(1);
    }
    out[0] = region;
}

// a and b are the operation's own copies.
bool regionOperation(Region& a, Region& b, RegionList& out, RegionOp op) {
    if (a.isEmpty() || b.isEmpty() || !internal::allFinite(a) || !internal::allFinite(b)) {
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
    bool const counterClockwise = g_vl_area(a[0]) > 0.0;
    internal::OverlayOp const overlay = op == RegionOp::kUnion ? internal::OverlayOp::kUnion
                                        : op == RegionOp::kDiff
                                            ? internal::OverlayOp::kDifference
                                            : internal::OverlayOp::kIntersection;
    out = groupBySense(internal::closedLoops(internal::overlayPieces(internal::refsOf(a),
                                                                     internal::refsOf(b), overlay)),
                       counterClockwise);
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
