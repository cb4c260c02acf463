// The box pairs found through blocks and grids are exactly those a test of every pair
// admits, in ascending order: for outlines that cross in a few places, that run side by
// side, that lie apart, and for lists with boxes that are not finite.
#include "orx/polyline/shared/box_pairs.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "orx/geom/functions.h"

using ORX::internal::BoxPairs;
using ORX::internal::SegmentBox;

namespace {

// Boxes of n consecutive chords of a circle about (cx, cy), as an outline gives them.
ORX::internal::SegmentBoxes circleBoxes(int n, double cx, double cy, double r) {
    ORX::internal::SegmentBoxes boxes;
    for (int i = 0; i < n; ++i) {
        double const t0 = ORX::kTwoPi * i / n, t1 = ORX::kTwoPi * (i + 1) / n;
        double const x0 = cx + r * std::cos(t0), y0 = cy + r * std::sin(t0);
        double const x1 = cx + r * std::cos(t1), y1 = cy + r * std::sin(t1);
        boxes.push_back(
            {std::fmin(x0, x1), std::fmin(y0, y1), std::fmax(x0, x1), std::fmax(y0, y1)});
    }
    return boxes;
}

std::vector<int> everyPair(ORX::internal::SegmentBoxes const& mine,
                           ORX::internal::SegmentBoxes const& theirs, std::size_t i) {
    std::vector<int> near;
    for (std::size_t j = 0; j < theirs.size(); ++j) {
        if (ORX::internal::mayOverlap(mine[i], theirs[j])) {
            near.push_back(static_cast<int>(j));
        }
    }
    return near;
}

void expectSamePairs(ORX::internal::SegmentBoxes const& mine,
                     ORX::internal::SegmentBoxes const& theirs) {
    BoxPairs const pairs(mine, theirs);
    std::vector<int> found;
    for (std::size_t i = 0; i < mine.size(); ++i) {
        pairs.near(static_cast<int>(i), found);
        ASSERT_EQ(found, everyPair(mine, theirs, i)) << "box " << i;
    }
}

}  // namespace

TEST(BoxPairsTest, SameAsEveryPairForOutlines) {
    expectSamePairs(circleBoxes(1000, 0, 0, 100), circleBoxes(1000, 60, 0, 100));   // two crossings
    expectSamePairs(circleBoxes(700, 0, 0, 100), circleBoxes(900, 0, 0, 100.001));  // side by side
    expectSamePairs(circleBoxes(300, 0, 0, 1), circleBoxes(300, 5, 0, 1));          // apart
    expectSamePairs(circleBoxes(5, 0, 0, 1), circleBoxes(40, 0.5, 0, 1));           // under a block
    expectSamePairs({}, circleBoxes(40, 0, 0, 1));
    expectSamePairs(circleBoxes(40, 0, 0, 1), {});
    // Boxes at the tolerance's distance: the pruning margin decides.
    ORX::internal::SegmentBoxes const row = circleBoxes(200, 1e6, 1e6, 10);
    ORX::internal::SegmentBoxes shifted = row;
    for (SegmentBox& b : shifted) {
        b = {b.xmin + 20 + 4.5e-5, b.ymin, b.xmax + 20 + 4.5e-5, b.ymax};
    }
    expectSamePairs(row, shifted);
}

TEST(BoxPairsTest, SameAsEveryPairWithBoxesThatAreNotFinite) {
    double const nan = std::numeric_limits<double>::quiet_NaN();
    double const inf = std::numeric_limits<double>::infinity();
    std::mt19937 random(7);
    std::uniform_int_distribution<int> pick(0, 399);
    for (int trial = 0; trial < 6; ++trial) {
        ORX::internal::SegmentBoxes mine = circleBoxes(400, 0, 0, 100);
        ORX::internal::SegmentBoxes theirs = circleBoxes(400, 300, 0, 100);  // apart but for these
        SegmentBox const bad[] = {{nan, 0, 1, 1},
                                  {0, 0, inf, 1},
                                  {-inf, -inf, inf, inf},
                                  {1e308, 1e308, 1.7e308, 1.7e308}};
        mine[static_cast<std::size_t>(pick(random))] = bad[trial % 4];
        theirs[static_cast<std::size_t>(pick(random))] = bad[(trial + 1) % 4];
        expectSamePairs(mine, theirs);
    }
}
