// The loops of an operand indexed for exact point-in-area tests.
//
// winding() sums g_bulg_winding over the segments, which decides exactly, without a
// tolerance, on which side of every chord and circle the point lies; only the segments
// whose boxes reach the ray from the point towards +x can contribute, and a grid over the
// boxes finds them. The answer is the same as the sum over all segments.
#ifndef ORX_REGIONS_INTERNAL_WINDING_INDEX_H
#define ORX_REGIONS_INTERNAL_WINDING_INDEX_H

#include <vector>

#include "orx/foundation/array_templ.h"
#include "orx/polyline/internal/segment_box.h"
#include "orx/polyline/internal/segment_grid.h"
#include "orx/polyline/vertex_array.h"

namespace ORX {
namespace internal {

class WindingIndex {
public:
    // Keeps references: the loops must outlive the index and stay unchanged.
    explicit WindingIndex(COrxArrayTempl<COrxVertexArray> const& loops);
    explicit WindingIndex(COrxVertexArray const& loop);

    // The winding number of p over all loops.
    int winding(COrxPoint3d const& p) const;
    // Inside by parity: an odd winding number (holes run the other way or not, alike).
    bool inside(COrxPoint3d const& p) const { return winding(p) % 2 != 0; }

private:
    void addLoop(COrxVertexArray const& loop);
    void build();

    std::vector<COrxVertex const*> m_segments;
    std::vector<SegmentBox> m_boxes;
    SegmentGrid m_grid;
    double m_right = 0.0;  // beyond every box: where the rays end
};

}  // namespace internal
}  // namespace ORX

#endif  // ORX_REGIONS_INTERNAL_WINDING_INDEX_H
