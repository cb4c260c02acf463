// A polyline with the boxes of its segments, for repeated point-in-polyline tests.
//
// inside() gives exactly g_vl_pt_inside's answer: it runs the same ray test, restarts and
// rand() calls included, and only leaves out the segments whose boxes show that they can
// neither hold the point nor meet the ray.
#ifndef ORX_REGIONS_INTERNAL_INDEXED_POLYLINE_H
#define ORX_REGIONS_INTERNAL_INDEXED_POLYLINE_H

#include <vector>

#include "orx/foundation/array_templ.h"
#include "orx/polyline/shared/segment_box.h"
#include "orx/polyline/shared/segment_grid.h"
#include "orx/polyline/vertex_array.h"

namespace ORX {
namespace internal {

class IndexedPolyline {
public:
    // Keeps a reference: vl must outlive the index and stay unchanged.
    explicit IndexedPolyline(COrxVertexArray const& vl);

    bool inside(COrxPoint3d p, bool onBoundary) const;

private:
    // 1 inside, 0 outside, -1 restart (the ray met a segment end), 2 on the polyline.
    int rayParity(COrxPoint3d const& p, double direction) const;

    COrxVertexArray const& m_polyline;
    SegmentBoxes m_boxes;
    SegmentGrid m_grid;
};

}  // namespace internal
}  // namespace ORX

#endif  // ORX_REGIONS_INTERNAL_INDEXED_POLYLINE_H
