#include "orx/regions/internal/winding_index.h"

#include <algorithm>
#include <cmath>

#include "orx/plane_geometry/bulge_segment.h"

namespace ORX {
namespace internal {

WindingIndex::WindingIndex(COrxArrayTempl<COrxVertexArray> const& loops)
    : m_grid(std::vector<SegmentBox>()) {
    for (unsigned long k = 0; k < loops.len(); ++k) {
        addLoop(loops[static_cast<int>(k)]);
    }
    build();
}

WindingIndex::WindingIndex(COrxVertexArray const& loop) : m_grid(std::vector<SegmentBox>()) {
    addLoop(loop);
    build();
}

void WindingIndex::addLoop(COrxVertexArray const& loop) {
    for (int k = 0; k < loop.len(); ++k) {
        m_segments.push_back(&loop[k]);
        m_boxes.push_back(segmentBox(loop[k]));
    }
}

void WindingIndex::build() {
    m_grid = SegmentGrid(m_boxes);
    for (SegmentBox const& box : m_boxes) {
        if (std::isfinite(box.xmax)) {
            m_right = std::max(m_right, box.xmax + pruneMargin(box));
        }
    }
}

int WindingIndex::winding(COrxPoint3d const& p) const {
    // The ray runs to the right beyond every box; a segment counts only when its box spans
    // p's height and reaches to the right of p.
    COrxPoint3d const far(std::max(m_right, p.x) + 1.0, p.y, p.z);
    std::vector<int> candidates;
    m_grid.queryRay(p, far, candidates);
    int total = 0;
    for (int k : candidates) {
        SegmentBox const& box = m_boxes[static_cast<std::size_t>(k)];
        double const margin = pruneMargin(box);
        if (box.ymin - margin > p.y || box.ymax + margin < p.y || box.xmax + margin < p.x) {
            continue;
        }
        COrxVertex const& v = *m_segments[static_cast<std::size_t>(k)];
        total += g_bulg_winding(v.startPoint(), v.endPoint(), v.bulge(), p);
    }
    return total;
}

}  // namespace internal
}  // namespace ORX
