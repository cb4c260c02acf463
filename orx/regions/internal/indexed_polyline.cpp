#include "orx/regions/internal/indexed_polyline.h"

#include "orx/geom/functions.h"
#include "orx/regions/internal/ray_test.h"

namespace ORX {
namespace internal {

IndexedPolyline::IndexedPolyline(COrxVertexArray const& vl)
    : m_polyline(vl), m_boxes(segmentBoxes(vl)), m_grid(m_boxes) {}

int IndexedPolyline::rayParity(COrxPoint3d const& p, double direction) const {
    COrxPoint3d const far = polar(p, direction, kPolylineRayLength);
    COrxVertex const ray(p, far, 0.0);
    COrxPoint3dArray pts;
    int hits = 0;
    // The segments near the ray, in ascending order: the others can neither hold p nor meet
    // the ray, so visiting only these gives the answer of a loop over all segments.
    std::vector<int> candidates;
    m_grid.queryRay(p, far, candidates);
    for (int k : candidates) {
        SegmentBox const& box = m_boxes[static_cast<std::size_t>(k)];
        if (!mayContain(box, p) && !mayCross(box, p, far)) {
            continue;  // neither holds p nor meets the ray
        }
        if (int const told = askSegment(m_polyline[k], p, ray, pts, hits)) {
            return told;
        }
    }
    return hits % 2;
}

bool IndexedPolyline::inside(COrxPoint3d p, bool onBoundary) const {
    if (m_polyline.len() < 2) {
        return false;
    }
    p.z = m_polyline[0].startPoint().z;
    return insideByRays(angle(m_polyline[0].mid(), p), onBoundary,
                        [&](double direction) { return rayParity(p, direction); });
}

}  // namespace internal
}  // namespace ORX
