// The head-to-tail chaining of g_vl_sort, without searching the whole polyline for each
// follower.
//
// The order is that of the plain search (for each segment the first later one that starts
// where it ends, the lowest index winning ties): the next segment is tried first, and only
// when it does not follow are the segments starting near the end looked up, through a hash
// of their start points on a grid of cells as wide as twice the point tolerance. Starts never
// move (only the end of the segment before a follower is set to its start), so the hash is
// built once; swaps are tracked by position.
#ifndef ORX_REGIONS_INTERNAL_CHAINING_H
#define ORX_REGIONS_INTERNAL_CHAINING_H

#include "orx/polyline/vertex_array.h"

namespace ORX {
namespace internal {

void chainHeadToTail(COrxVertexArray& vl);

}  // namespace internal
}  // namespace ORX

#endif  // ORX_REGIONS_INTERNAL_CHAINING_H
