// The pairs of segments of two polylines that may meet: those whose boxes overlap.
//
// forEachNearPair visits them in the order of a loop over all pairs (the first polyline's
// segments ascending, and for each the other's ascending), so that a caller that collects
// results gets them in the same order as the loop would give them.
#ifndef ORX_POLYLINE_SHARED_NEAR_PAIRS_H
#define ORX_POLYLINE_SHARED_NEAR_PAIRS_H

#include <vector>

#include "orx/polyline/shared/box_pairs.h"
#include "orx/polyline/shared/segment_box.h"
#include "orx/polyline/vertex_array.h"

namespace ORX {
namespace internal {

// Calls visit(i, j) for segment i of a and segment j of b whose boxes may overlap, until
// visit returns false.
template <class Visit>
void forEachNearPair(COrxVertexArray const& a, COrxVertexArray const& b, Visit visit) {
    SegmentBoxes const mine = segmentBoxes(a);
    SegmentBoxes const theirs = segmentBoxes(b);
    BoxPairs const pairs(mine, theirs);
    std::vector<int> near;
    for (std::size_t i = 0; i < mine.size(); ++i) {
        pairs.near(static_cast<int>(i), near);
        for (int j : near) {
            if (!visit(static_cast<int>(i), j)) {
                return;
            }
        }
    }
}

// Some segment of a meets some segment of b (COrxVertex::intersectWith without extension):
// exactly when a.intersectWith(pts, b, 0) finds a point, found without collecting them all.
bool polylinesMeet(COrxVertexArray const& a, COrxVertexArray const& b);

}  // namespace internal
}  // namespace ORX

#endif  // ORX_POLYLINE_SHARED_NEAR_PAIRS_H
