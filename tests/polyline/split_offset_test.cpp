// Splitting polylines at points and distances (the pieces join back into the polyline), and
// the offset of one segment with its neighbours following it.
#include <cmath>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "orx/polyline/segment_offset.h"
#include "orx/polyline/split.h"
#include "tests/support/shapes.h"

namespace {

using orx_test::polygon;
using orx_test::pt;
using Pieces = COrxArrayTempl<COrxVertexArray>;

// A path of straight and arc segments through random points.
COrxVertexArray randomPath(std::mt19937& random, int segments) {
    std::uniform_real_distribution<double> step(1, 5), turn(-1.2, 1.2), bulge(-0.7, 0.7);
    COrxVertexArray vl;
    COrxPoint3d at = pt(1e6, -2e6);
    double heading = 0;
    for (int k = 0; k < segments; ++k) {
        heading += turn(random);
        COrxPoint3d const next = ORX::polar(at, heading, step(random));
        vl.append(COrxVertex(at, next, k % 2 ? bulge(random) : 0.0));
        at = next;
    }
    return vl;
}

COrxVertexArray joined(Pieces const& pieces) {
    COrxVertexArray all;
    for (int k = 0; k < static_cast<int>(pieces.len()); ++k) {
        EXPECT_TRUE(all.join(pieces[k], false)) << "piece " << k;
    }
    return all;
}

// Random open paths cut at random distances: one more piece than cuts, the lengths add up,
// and the pieces joined in order are the path again (merged back where a cut broke a
// segment).
TEST(SplitTest, SplitThenJoinGivesBackThePolyline) {
    std::mt19937 random(33);
    for (int round = 0; round < 100; ++round) {
        COrxVertexArray const vl = randomPath(random, 2 + round % 7);
        double const length = vl.geomLength();
        std::uniform_real_distribution<double> along(0, length);
        std::vector<double> cuts(1 + round % 4);
        for (double& d : cuts) {
            d = along(random);
        }
        Pieces const pieces = ORX::g_vl_split_dist(vl, orx_test::numbers(cuts));
        ASSERT_EQ(pieces.len(), cuts.size() + 1) << round;
        double sum = 0;
        for (int k = 0; k < static_cast<int>(pieces.len()); ++k) {
            sum += pieces[k].geomLength();
        }
        EXPECT_NEAR(sum, length, 1e-9 * length);
        COrxVertexArray back = joined(pieces), expected(vl);
        EXPECT_EQ(back.norm(true), expected.norm(true)) << round;
    }
}

// A closed outline is a loop: two cuts give two pieces, whose ends are the cut points and
// which join into the outline again, starting at the first cut.
TEST(SplitTest, LoopsAreCutIntoAsManyPiecesAsCuts) {
    COrxVertexArray const circle = orx_test::unitCircle();
    COrxPoint3dArray at = orx_test::list({pt(0, -1), pt(0, 1), pt(5, 5)});
    Pieces const halves = ORX::g_vl_split(circle, at);
    ASSERT_EQ(halves.len(), 2u);
    EXPECT_EQ(halves[0][0].startPoint(), pt(0, 1));
    EXPECT_EQ(halves[0][-1].endPoint(), pt(0, -1));
    EXPECT_EQ(halves[1][0].startPoint(), pt(0, -1));
    EXPECT_EQ(halves[1][-1].endPoint(), pt(0, 1));
    COrxVertexArray const back = joined(halves);
    EXPECT_TRUE(back.isClosed());
    EXPECT_NEAR(ORX::g_vl_area(back), ORX::kPi, 1e-12);
    // One cut at the start point opens the loop there; no cut gives the loop itself.
    COrxVertexArray const square = orx_test::unitSquare();
    Pieces const opened = ORX::g_vl_split_dist(square, orx_test::numbers({0.0}));
    ASSERT_EQ(opened.len(), 1u);
    EXPECT_EQ(opened[0], square);
    Pieces const whole = ORX::g_vl_split_dist(square, orx_test::numbers({-1, 7, std::nan("")}));
    ASSERT_EQ(whole.len(), 1u);
    EXPECT_EQ(whole[0], square);
    EXPECT_TRUE(ORX::g_vl_split_dist(COrxVertexArray(), orx_test::numbers({1})).isEmpty());
}

// Points and distances name the same cuts, in any order and repeated; the ends of an open
// polyline and points off it cut nothing.
TEST(SplitTest, PointsAndDistancesCutAlike) {
    COrxVertexArray const path = polygon({pt(0, 0), pt(4, 0), pt(4, 3)}, false);
    Pieces const byPoints = ORX::g_vl_split(
        path,
        orx_test::list({pt(4, 2), pt(0, 0), pt(1, 0), pt(4, 2), pt(4, 3), pt(2, 2), pt(4, 0)}));
    Pieces const byDistance = ORX::g_vl_split_dist(path, orx_test::numbers({6, 1, 4, 0, 7}));
    ASSERT_EQ(byPoints.len(), 4u);
    ASSERT_EQ(byDistance.len(), 4u);
    for (int k = 0; k < 4; ++k) {
        EXPECT_EQ(byPoints[k], byDistance[k]) << k;
    }
    EXPECT_EQ(byPoints[1][0].endPoint(), pt(4, 0));  // a cut at a joint breaks no segment
    EXPECT_EQ(byPoints[1].len(), 1);
}

// A rectangle's side moved out: the neighbours follow, the rectangle grows.
TEST(SegmentOffsetTest, NeighboursFollowTheMovedSegment) {
    COrxVertexArray vl = polygon({pt(0, 0), pt(10, 0), pt(10, 6), pt(0, 6)});
    ASSERT_TRUE(ORX::g_vl_offset_vx(vl, 1, 2.0));  // right of travel: outwards
    EXPECT_EQ(vl, polygon({pt(0, 0), pt(12, 0), pt(12, 6), pt(0, 6)}));
    ASSERT_TRUE(ORX::g_vl_offset_vx(vl, 0, 1.0));  // the first side: the last one follows
    EXPECT_EQ(vl, polygon({pt(0, -1), pt(12, -1), pt(12, 6), pt(0, 6)}));
    // Moving a segment and moving it back gives the convex outline again.
    std::mt19937 random(5);
    std::uniform_real_distribution<double> d(-0.4, 0.4);
    for (int round = 0; round < 50; ++round) {
        COrxVertexArray hexagon;
        COrxPoint3dArray corners;
        for (int k = 0; k < 6; ++k) {
            corners.append(ORX::polar(pt(3, 4), k * ORX::kPi / 3 + 0.1 * round, 5));
        }
        hexagon.fromPoints(corners, true);
        COrxVertexArray moved(hexagon);
        double const by = d(random);
        int const i = round % 6;
        ASSERT_TRUE(ORX::g_vl_offset_vx(moved, i, by));
        EXPECT_NEAR(ORX::g_vx_lotd(hexagon[i], moved[i].startPoint()), std::fabs(by), 1e-9);
        ASSERT_TRUE(ORX::g_vl_offset_vx(moved, i, -by));
        EXPECT_EQ(moved, hexagon) << round;
    }
}

// Neighbours that cannot meet the moved segment (on one line with it, or tangent arcs) are
// joined to it by straight bridges; the outline stays closed.
TEST(SegmentOffsetTest, GapsThatNoTrimCanCloseAreBridged) {
    COrxVertexArray path = polygon({pt(0, 0), pt(1, 0), pt(2, 0), pt(3, 0)}, false);
    ASSERT_TRUE(ORX::g_vl_offset_vx(path, 1, 1.0));
    EXPECT_EQ(path, polygon({pt(0, 0), pt(1, 0), pt(1, -1), pt(2, -1), pt(2, 0), pt(3, 0)}, false));
    COrxVertexArray slot(COrxVertex(pt(0, 0), pt(10, 0), 0.0));
    slot.append(pt(10, 4), 1.0).append(pt(0, 4), 0.0).append(pt(0, 0), 1.0);
    ASSERT_TRUE(ORX::g_vl_offset_vx(slot, 0, 1.0));
    EXPECT_EQ(slot.len(), 6);
    EXPECT_TRUE(slot.isClosed());
    EXPECT_NEAR(ORX::g_vl_area(slot), 40 + 4 * ORX::kPi + 10, 1e-9);
}

TEST(SegmentOffsetTest, MovesThatBreakTheOutlineAreRefused) {
    COrxVertexArray vl = polygon({pt(0, 0), pt(10, 0), pt(6, 2), pt(4, 2)});  // trapezoid
    COrxVertexArray circle = orx_test::unitCircle();
    COrxVertexArray const vlBefore(vl), circleBefore(circle);
    EXPECT_FALSE(ORX::g_vl_offset_vx(vl, 2, 3.0));  // the top moved past the apex
    EXPECT_FALSE(ORX::g_vl_offset_vx(vl, 1, 0.0));
    EXPECT_FALSE(ORX::g_vl_offset_vx(vl, 4, 1.0));
    EXPECT_FALSE(ORX::g_vl_offset_vx(vl, 0, std::nan("")));
    EXPECT_FALSE(ORX::g_vl_offset_vx(circle, 0, -1.0));  // the arc shrinks to its centre
    EXPECT_EQ(vl, vlBefore);
    EXPECT_EQ(circle, circleBefore);
}

}  // namespace
