// The pairs of boxes, one from each of two lists, that may overlap (mayOverlap), found
// without looking at most of the boxes that cannot.
//
// Consecutive boxes of an outline lie together, so the boxes are first taken in blocks of
// kBlock: only blocks of the two lists whose boxes may overlap can hold overlapping boxes
// (a block's box holds its members' boxes, and the pruning margin grows with the box, so a
// pair mayOverlap admits lies in a pair of blocks it admits). The boxes of the other list in
// such blocks are put on a grid, and each box of the first list in such a block asks the
// grid. Two outlines that cross in a few places thus look at the boxes near the crossings
// only; the answers are exactly those of testing every pair. Lists of a block or less go
// straight to one grid, as the blocks would cost more than they save.
#ifndef ORX_POLYLINE_SHARED_BOX_PAIRS_H
#define ORX_POLYLINE_SHARED_BOX_PAIRS_H

#include <vector>

#include "orx/polyline/shared/segment_box.h"
#include "orx/polyline/shared/segment_grid.h"

namespace ORX {
namespace internal {

class BoxPairs {
public:
    static constexpr int kBlock = 16;

    // Keeps references: both lists must outlive the object and stay unchanged.
    BoxPairs(SegmentBoxes const& mine, SegmentBoxes const& theirs);

    // The indexes j of `theirs` for which mayOverlap(mine[i], theirs[j]), ascending.
    void near(int i, std::vector<int>& out) const;

private:
    SegmentBoxes const& m_mine;
    SegmentBoxes const& m_theirs;
    std::vector<char> m_mineBlockActive;  // per block of mine: some pair may overlap
    bool m_allTheirs = false;             // every box of theirs is on the grid, at its own index
    std::vector<int> m_activeTheirs;      // indexes of theirs in active blocks, ascending
    SegmentBoxes m_activeBoxes;           // their boxes, in the same order
    SegmentGrid m_grid;                   // over m_activeBoxes, or over theirs
    mutable std::vector<int> m_found;
};

// The box around each block of kBlock consecutive boxes; a box that is not finite makes its
// block's box NaN, which overlaps everything.
SegmentBoxes blockBoxes(SegmentBoxes const& boxes);

}  // namespace internal
}  // namespace ORX

#endif  // ORX_POLYLINE_SHARED_BOX_PAIRS_H
