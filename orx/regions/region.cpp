// The region operations: one skeleton for union, intersection and difference (disjoint
// test, orientation, mutual cutting, classification against the whole region, selection,
// chaining, grouping into regions, clean-up), the point-in-region test, and the repeated
// difference of region lists.
#include "orx/regions/region.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "orx/foundation/array_templ_impl.h"
#include "orx/foundation/shared/index_range.h"
#include "orx/geom/tolerance.h"
#include "orx/polyline/polyline_functions.h"
#include "orx/polyline/shared/near_pairs.h"
#include "orx/polyline/shared/segment_box.h"
#include "orx/polyline/shared/segment_grid.h"
#include "orx/regions/bool_operation.h"
#include "orx/regions/internal/indexed_polyline.h"
#include "orx/regions/internal/loop_grouping.h"
#include "orx/regions/internal/overlay.h"
#include "orx/regions/internal/ray_test.h"

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
    return !internal::polylinesMeet(a[0], b[0]) &&
           !g_vl_pt_inside(a[0], b[0][0].startPoint(), true) &&
           !g_vl_pt_inside(b[0], a[0][0].startPoint(), true);
}

void revertLoops(Region& region, unsigned long from, unsigned long to) {
    for (unsigned long k = from; k < to && k < region.len(); ++k) {
        region[static_cast<int>(k)].revert();
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
    out = internal::groupBySense(internal::closedLoops(internal::overlayPieces(
                                     internal::refsOf(a), internal::refsOf(b), overlay)),
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
    if (region.isEmpty()) {
        return -1;
    }
    COrxVertexArray const& outer = region[0];
    if (!internal::rayInside(outer, p, false)) {
        return internal::rayInside(outer, p, true) ? 0 : -1;
    }
    for (int h : ORX::internal::indicesFrom(1, region)) {
        COrxVertexArray const& hole = region[h];
        if (internal::rayInside(hole, p, false)) {
            return -1;
        }
        if (internal::rayInside(hole, p, true)) {
            return 0;
        }
    }
    return 1;
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
    for (int s : ORX::internal::indices(sub)) {
        // The index loop re-reads the length: regions a difference splits off are visited by
        // the same pass.
        for (int o = 0; o < static_cast<int>(out.len()); ++o) {
            RegionList pieces;
            if (g_region_diff(out[o], sub[s], pieces)) {
                out[o] = pieces.isEmpty() ? Region() : pieces[0];
                for (int p : ORX::internal::indicesFrom(1, pieces)) {
                    out.append(pieces[p]);
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
    // Only a loop whose box holds a point can hold it strictly; each loop that is asked is
    // indexed once.
    internal::SegmentBoxes boxes;
    boxes.reserve(static_cast<std::size_t>(n));
    for (int i = 0; i < n; ++i) {
        boxes.push_back(internal::polylineBox(loops[i]));
    }
    internal::SegmentGrid const grid(boxes);
    std::vector<std::unique_ptr<internal::IndexedPolyline>> indexed(static_cast<std::size_t>(n));
    auto holds = [&](int j, COrxPoint3d const& p) {
        if (!internal::mayContain(boxes[static_cast<std::size_t>(j)], p)) {
            return false;
        }
        std::unique_ptr<internal::IndexedPolyline>& slot = indexed[static_cast<std::size_t>(j)];
        if (!slot) {
            slot = std::make_unique<internal::IndexedPolyline>(loops[j]);
        }
        return slot->inside(p, false);
    };
    std::vector<int> depth(static_cast<std::size_t>(n), 0);
    std::vector<int> near;
    for (int i = 0; i < n; ++i) {
        if (loops[i].len() < 2) {
            continue;
        }
        COrxPoint3d const m = loops[i][0].mid();
        grid.query(internal::SegmentBox{m.x, m.y, m.x, m.y}, near);
        for (int j : near) {
            depth[i] += (j != i && holds(j, m)) ? 1 : 0;
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
            if (holds(outerLoop[r], m)) {
                regions[r].append(loops[h]);
                break;
            }
        }
    }
    return regions;
}

}  // namespace ORX
