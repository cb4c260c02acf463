#include "orx/regions/internal/loop_grouping.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "orx/foundation/array_templ_impl.h"
#include "orx/foundation/shared/index_range.h"
#include "orx/polyline/polyline_functions.h"
#include "orx/polyline/shared/segment_box.h"
#include "orx/polyline/shared/segment_grid.h"
#include "orx/regions/internal/strip_index.h"

namespace ORX {
namespace internal {

namespace {

using Region = COrxArrayTempl<COrxVertexArray>;
using RegionList = COrxArrayTempl<Region>;

SegmentRefs segmentsOf(COrxVertexArray const& loop) {
    SegmentRefs segments;
    segments.reserve(static_cast<std::size_t>(loop.len()));
    for (int k = 0; k < loop.len(); ++k) {
        segments.push_back(&loop[k]);
    }
    return segments;
}

bool boxHolds(SegmentBox const& outer, SegmentBox const& inner) {
    double const margin = pruneMargin(outer) + pruneMargin(inner);
    return !(inner.xmin < outer.xmin - margin || inner.xmax > outer.xmax + margin ||
             inner.ymin < outer.ymin - margin || inner.ymax > outer.ymax + margin);
}

class Outers {
public:
    Outers(Region const& loops, std::vector<int> const& outer) : m_loops(loops), m_outer(outer) {
        for (int o : outer) {
            m_boxes.push_back(polylineBox(loops[o]));
        }
        m_grid = std::make_unique<SegmentGrid>(m_boxes);
        m_index.resize(outer.size());
    }

    // The outer loops (as positions in the list) whose box holds `box`.
    void holding(SegmentBox const& box, std::vector<int>& out) const {
        m_grid->query(box, out);
        out.erase(std::remove_if(
                      out.begin(), out.end(),
                      [&](int r) { return !boxHolds(m_boxes[static_cast<std::size_t>(r)], box); }),
                  out.end());
    }

    // Outer loop r holds the loop: at the first segment midpoint of the loop off r's
    // boundary, the winding number is odd.
    bool holds(int r, COrxVertexArray const& loop) {
        StripIndex const& index = indexOf(r);
        for (int k = 0; k < loop.len(); ++k) {
            COrxPoint3d const m = loop[k].mid();
            if (!index.onBoundary(m)) {
                return index.winding(m) % 2 != 0;
            }
        }
        return false;
    }

private:
    StripIndex const& indexOf(int r) {
        std::unique_ptr<StripIndex>& slot = m_index[static_cast<std::size_t>(r)];
        if (!slot) {
            slot = std::make_unique<StripIndex>(
                segmentsOf(m_loops[m_outer[static_cast<std::size_t>(r)]]));
        }
        return *slot;
    }

    Region const& m_loops;
    std::vector<int> const& m_outer;
    SegmentBoxes m_boxes;
    std::unique_ptr<SegmentGrid> m_grid;
    std::vector<std::unique_ptr<StripIndex>> m_index;
};

}  // namespace

RegionList groupBySense(Region const& loops, bool counterClockwise) {
    std::vector<int> outer, holes;
    std::vector<double> size(loops.len());
    for (int k : ORX::internal::indices(loops)) {
        double const area = g_vl_area(loops[k]);
        size[k] = std::fabs(area);
        ((area > 0.0) == counterClockwise ? outer : holes).push_back(k);
    }
    RegionList regions;
    for (int o : outer) {
        Region region;
        regions.append(region.append(loops[o]));
    }
    Outers outers(loops, outer);
    std::vector<int> candidates;
    for (int h : holes) {
        COrxVertexArray const& hole = loops[h];
        // The hole's own box is tight (the outer loops' may be wider): an outer loop around
        // the hole holds all of it.
        COrxPoint3d low, high;
        hole.extents(low, high);
        outers.holding(SegmentBox{low.x, low.y, high.x, high.y}, candidates);
        // The smallest outer loop first; only a larger one can hold the hole.
        std::stable_sort(candidates.begin(), candidates.end(), [&](int l, int r) {
            return size[static_cast<std::size_t>(outer[static_cast<std::size_t>(l)])] <
                   size[static_cast<std::size_t>(outer[static_cast<std::size_t>(r)])];
        });
        for (int r : candidates) {
            if (size[static_cast<std::size_t>(outer[static_cast<std::size_t>(r)])] >
                    size[static_cast<std::size_t>(h)] &&
                outers.holds(r, hole)) {
                regions[r].append(hole.reverse());
                break;
            }
        }
    }
    return regions;
}

}  // namespace internal
}  // namespace ORX
