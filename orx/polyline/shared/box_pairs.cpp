#include "orx/polyline/shared/box_pairs.h"

#include <algorithm>
#include <cmath>

#include "orx/geom/functions.h"

namespace ORX {
namespace internal {

namespace {

SegmentBox nanBox() {
    return SegmentBox{nan(), nan(), nan(), nan()};
}

// The blocks of each list that may overlap a block of the other.
void activeBlocks(SegmentBoxes const& mine, SegmentBoxes const& theirs,
                  std::vector<char>& mineActive, std::vector<char>& theirsActive) {
    mineActive.assign(mine.size(), 0);
    theirsActive.assign(theirs.size(), 0);
    SegmentGrid const grid(theirs);
    std::vector<int> found;
    for (std::size_t i = 0; i < mine.size(); ++i) {
        grid.query(mine[i], found);
        for (int j : found) {
            if (mayOverlap(mine[i], theirs[static_cast<std::size_t>(j)])) {
                mineActive[i] = 1;
                theirsActive[static_cast<std::size_t>(j)] = 1;
            }
        }
    }
}

}  // namespace

SegmentBoxes blockBoxes(SegmentBoxes const& boxes) {
    SegmentBoxes blocks;
    blocks.reserve(boxes.size() / BoxPairs::kBlock + 1);
    for (std::size_t first = 0; first < boxes.size(); first += BoxPairs::kBlock) {
        std::size_t const last = std::min(boxes.size(), first + BoxPairs::kBlock);
        SegmentBox block = boxes[first];
        bool finite = true;
        for (std::size_t k = first; k < last; ++k) {
            SegmentBox const& b = boxes[k];
            finite = finite && finiteBox(b);
            block = {std::min(block.xmin, b.xmin), std::min(block.ymin, b.ymin),
                     std::max(block.xmax, b.xmax), std::max(block.ymax, b.ymax)};
        }
        blocks.push_back(finite ? block : nanBox());
    }
    return blocks;
}

BoxPairs::BoxPairs(SegmentBoxes const& mine, SegmentBoxes const& theirs)
    : m_mine(mine), m_theirs(theirs), m_grid(SegmentBoxes()) {
    if (mine.size() <= kBlock || theirs.size() <= kBlock) {
        // A block or less on one side: the blocks would cost more than they save.
        m_mineBlockActive.assign(mine.size() / kBlock + 1, 1);
        m_allTheirs = true;
        m_grid = SegmentGrid(theirs);
        return;
    }
    std::vector<char> theirBlockActive;
    activeBlocks(blockBoxes(mine), blockBoxes(theirs), m_mineBlockActive, theirBlockActive);
    for (std::size_t j = 0; j < theirs.size(); ++j) {
        if (theirBlockActive[j / kBlock]) {
            m_activeTheirs.push_back(static_cast<int>(j));
            m_activeBoxes.push_back(theirs[j]);
        }
    }
    m_grid = SegmentGrid(m_activeBoxes);
}

void BoxPairs::near(int i, std::vector<int>& out) const {
    out.clear();
    std::size_t const at = static_cast<std::size_t>(i);
    if (!m_mineBlockActive[at / kBlock]) {
        return;
    }
    m_grid.query(m_mine[at], m_found);
    for (int k : m_found) {
        int const j = m_allTheirs ? k : m_activeTheirs[static_cast<std::size_t>(k)];
        if (mayOverlap(m_mine[at], m_theirs[static_cast<std::size_t>(j)])) {
            out.push_back(j);
        }
    }
}

}  // namespace internal
}  // namespace ORX
