// Finds the runs of consecutive segments of one line or circle that norm merges into one
// segment, as long as every vertex the merge drops stays within the point tolerance of the
// merged segment.
//
// Comparing each next segment with the growing merged one alone lets the dropped vertices
// drift without bound (a fine polygon of a circle would shrink to a coarse one); every
// dropped vertex is therefore tested. A straight run keeps the window of directions from its
// start that pass within the tolerance of every dropped vertex, so each step costs the same.
// A run of arcs is merged into the arc from its start to its end that turns through the sum
// of the pieces' angles (the circle of a short first piece, whose ends are rounded like any
// other point, may be far off the true one); the run is first extended while each piece
// continues the one before, then every dropped vertex is tested against the merged arc once,
// and only when one lies off it is the run shortened to the longest that keeps them all.
#ifndef ORX_POLYLINE_INTERNAL_RUN_MERGER_H
#define ORX_POLYLINE_INTERNAL_RUN_MERGER_H

#include "orx/polyline/vertex_array.h"

namespace ORX {
namespace internal {

struct Run {
    int count;          // segments in the run, at least 1
    COrxVertex merged;  // the one segment they make
};

// The longest run that begins with work[first], the indices taken cyclically, of at most
// maxCount segments. Segments continue one another when the next starts where the run ends,
// lies on the same line or circle turning the same way, and arcs do not close a whole
// circle, which one bulge cannot express.
Run longestRun(COrxVertexArray const& work, int first, int maxCount);

}  // namespace internal
}  // namespace ORX

#endif  // ORX_POLYLINE_INTERNAL_RUN_MERGER_H
