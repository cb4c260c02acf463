#include "orx/regions/region.h"

#include <gtest/gtest.h>

#include <limits>

#include "orx/regions/bool_operation.h"
#include "orx/regions/region_building.h"
#include "region_measures.h"
#include "tests/support/shapes.h"

using namespace orx_test;

TEST(RegionTest, PointInRegionWithHoles) {
    Region const plate = region({rectangle(0, 0, 10, 10), rectangle(2, 2, 4, 4)});
    EXPECT_EQ(ORX::g_vll_pt_inside(plate, pt(5, 5)), 1);
    EXPECT_EQ(ORX::g_vll_pt_inside(plate, pt(3, 3)), -1);  // inside the hole
    EXPECT_EQ(ORX::g_vll_pt_inside(plate, pt(4, 3)), 0);   // on the hole's edge
    EXPECT_EQ(ORX::g_vll_pt_inside(plate, pt(10, 3)), 0);  // on the outer loop
    EXPECT_EQ(ORX::g_vll_pt_inside(plate, pt(11, 3)), -1);
    EXPECT_EQ(ORX::g_vll_pt_inside(Region(), pt(1, 1)), -1);
}

TEST(RegionTest, PointInALoopWhosePointsLieAtSeveralHeightsIsPlanar) {
    // A diamond whose corners alternate between two heights: the ray test compared its
    // points in space, so that its own corners and edges were not on it.
    COrxVertexArray diamond;
    COrxPoint3d const corners[] = {COrxPoint3d(2, 0, 0), COrxPoint3d(0, 2, 5),
                                   COrxPoint3d(-2, 0, 0), COrxPoint3d(0, -2, 5)};
    for (int i = 0; i < 4; ++i) {
        diamond.append(COrxVertex(corners[i], corners[(i + 1) % 4], 0.0));
    }
    Region const plate = region({diamond});
    for (double z : {0.0, 5.0, -120.0}) {
        SCOPED_TRACE(z);
        EXPECT_EQ(ORX::g_vll_pt_inside(plate, COrxPoint3d(0, 2, z)), 0);  // a corner
        EXPECT_EQ(ORX::g_vll_pt_inside(plate, COrxPoint3d(1, 1, z)), 0);  // an edge
        EXPECT_EQ(ORX::g_vll_pt_inside(plate, COrxPoint3d(0.5, 0, z)), 1);
        EXPECT_EQ(ORX::g_vll_pt_inside(plate, COrxPoint3d(3, 0, z)), -1);
        EXPECT_TRUE(ORX::g_vl_pt_inside(diamond, COrxPoint3d(-2, 0, z), true));
        EXPECT_FALSE(ORX::g_vl_pt_inside(diamond, COrxPoint3d(-2, 0, z), false));
    }
    // A level circle at the lowest height there is: sums of heights overflowed.
    double const low = -std::numeric_limits<double>::max();
    COrxVertexArray disc;
    disc.append(COrxVertex(COrxPoint3d(88, 5, low), COrxPoint3d(-94, 5, low), 1.0))
        .append(COrxVertex(COrxPoint3d(-94, 5, low), COrxPoint3d(88, 5, low), 1.0));
    EXPECT_TRUE(ORX::g_vl_pt_inside(disc, COrxPoint3d(6, 4, 0), false));
    EXPECT_EQ(ORX::g_vll_pt_inside(region({disc}), COrxPoint3d(88, 5, low)), 0);
}

TEST(RegionTest, EmptyRegionsAreRefusedWithOutUntouched) {
    RegionList out;
    out.append(region({rectangle(7, 7, 8, 8)}));
    EXPECT_FALSE(ORX::g_region_union(Region(), region({rectangle(0, 0, 1, 1)}), out));
    EXPECT_FALSE(ORX::g_region_sect(region({rectangle(0, 0, 1, 1)}), Region(), out));
    EXPECT_FALSE(ORX::g_region_diff(Region(), Region(), out));
    EXPECT_EQ(out.len(), 1);
    EXPECT_EQ(area(out), 1.0);
    EXPECT_TRUE(ORX::g_vl_vll(COrxVertexArray()).isEmpty());
}

TEST(RegionTest, DisjointRegions) {
    Region const a = region({rectangle(0, 0, 1, 1)});
    Region const b = region({circle(pt(5, 5), 1)});
    RegionList out;
    ASSERT_TRUE(ORX::g_region_union(a, b, out));
    EXPECT_EQ(out.len(), 2);
    EXPECT_EQ(out[0], a);
    EXPECT_EQ(out[1], b);
    RegionList untouched;
    untouched.append(a);
    EXPECT_FALSE(ORX::g_region_sect(a, b, untouched));
    EXPECT_EQ(untouched.len(), 1u);
    RegionList diff;
    EXPECT_FALSE(ORX::g_region_diff(a, b, diff));  // nothing subtracted
    EXPECT_EQ(diff.len(), 1);
    EXPECT_EQ(diff[0], a);
}

TEST(RegionTest, SquaresTouchingAlongASide) {
    Region const a = region({rectangle(0, 0, 1, 1)});
    Region const b = region({rectangle(1, 0, 2, 1)});
    RegionList out;
    ASSERT_TRUE(ORX::g_region_union(a, b, out));
    ASSERT_EQ(out.len(), 1);
    ASSERT_EQ(out[0].len(), 1);
    EXPECT_EQ(out[0][0].len(), 4);  // the shared side vanished, the long sides merged
    EXPECT_NEAR(area(out), 2.0, 1e-12);
    RegionList sect;
    EXPECT_TRUE(ORX::g_region_sect(a, b, sect));
    EXPECT_TRUE(sect.isEmpty());  // no closed loop, no region
}

TEST(RegionTest, SquareMinusInnerSquareHasAHoleInTheCommonSense) {
    RegionList out;
    ASSERT_TRUE(ORX::g_region_diff(region({rectangle(0, 0, 10, 10)}),
                                   region({rectangle(2, 2, 4, 4)}), out));
    ASSERT_EQ(out.len(), 1);
    ASSERT_EQ(out[0].len(), 2);
    EXPECT_TRUE(ORX::g_vl_orient(out[0][1], COrxVector3d::kZAxis));
    EXPECT_NEAR(area(out), 96.0, 1e-12);
    EXPECT_EQ(ORX::g_vll_pt_inside(out[0], pt(3, 3)), -1);
}

TEST(RegionTest, UntouchedCircularHoleSurvivesTheUnion) {
    Region const plate = region({rectangle(0, 0, 10, 10), circle(pt(3, 5), 1)});
    Region const tab = region({rectangle(8, 4, 12, 6)});
    RegionList out;
    ASSERT_TRUE(ORX::g_region_union(plate, tab, out));
    ASSERT_EQ(out.len(), 1);
    ASSERT_EQ(out[0].len(), 2);
    EXPECT_NEAR(area(out), 100 + 4 - ORX::kPi, 1e-9);
    EXPECT_EQ(ORX::g_vll_pt_inside(out[0], pt(3, 5)), -1);
}

TEST(RegionTest, DifferenceOrientsItsOperandsItself) {
    // Both given clockwise: the difference still subtracts.
    Region const a = region({rectangle(0, 0, 4, 4).reverse()});
    Region const b = region({rectangle(2, 2, 6, 6).reverse()});
    RegionList out;
    ASSERT_TRUE(ORX::g_region_diff(a, b, out));
    EXPECT_NEAR(area(out), 12.0, 1e-12);
}

TEST(RegionTest, RepeatedDifferenceUsesTheFirstRegionOnly) {
    RegionList from;
    from.append(region({rectangle(0, 0, 10, 2)})).append(region({rectangle(20, 0, 21, 1)}));
    RegionList sub;
    sub.append(region({rectangle(3, -1, 4, 3)})).append(region({rectangle(6, -1, 7, 3)}));
    RegionList out;
    ASSERT_TRUE(ORX::reglDiff(from, sub, out));
    EXPECT_EQ(out.len(), 3u);  // cut into three pieces; the second region of from is unused
    EXPECT_NEAR(area(out), 20 - 4, 1e-12);

    RegionList everything, nothing;
    everything.append(region({rectangle(-1, -1, 11, 3)}));
    EXPECT_FALSE(ORX::reglDiff(from, everything, nothing));
    EXPECT_TRUE(nothing.isEmpty());
    EXPECT_FALSE(ORX::reglDiff(RegionList(), sub, out));
}

TEST(RegionTest, GroupingLoopsByNestingDepth) {
    Region loops;
    loops
        .append(rectangle(2, 2, 8, 8))      // 0: hole of 3
        .append(rectangle(4, 4, 6, 6))      // 1: island in the hole
        .append(rectangle(20, 0, 21, 1))    // 2: a region on its own
        .append(rectangle(0, 0, 10, 10))    // 3: outer
        .append(rectangle(4.5, 4.5, 5, 5))  // 4: hole of the island
        .append(rectangle(30, 30, 31, 31).reverse());
    RegionList const regions = ORX::g_vll_region(loops);
    ASSERT_EQ(regions.len(), 4u);
    EXPECT_EQ(regions[0][0], loops[2]);  // depth 0, by index
    EXPECT_EQ(regions[1].len(), 2);
    EXPECT_EQ(regions[1][0], loops[3]);
    EXPECT_EQ(regions[1][1], loops[0]);
    // Depth 2 comes after the depth-0 loops.
    EXPECT_EQ(regions[3][0], loops[1]);
    EXPECT_EQ(regions[3][1], loops[4]);
}

TEST(RegionTest, BuildingRegionsFromUnorderedLoops) {
    Region nested;
    nested
        .append(rectangle(2, 2, 8, 8))    // 0: hole of 1
        .append(rectangle(0, 0, 10, 10))  // 1: outer
        .append(rectangle(4, 4, 6, 6));   // 2: island in the hole
    RegionList const plain = ORX::g_vll_regions(nested, 0);
    ASSERT_EQ(plain.len(), 2u);
    EXPECT_EQ(plain[0].len(), 2);
    EXPECT_EQ(plain[0][0], nested[1]);
    EXPECT_EQ(plain[0][1], nested[0]);
    EXPECT_EQ(plain[1][0], nested[2]);
    EXPECT_EQ(ORX::g_vll_regions(nested, ORX::kRegionsDropIslands).len(), 1u);
    RegionList const outerOnly = ORX::g_vll_regions(nested, ORX::kRegionsOuterOnly);
    EXPECT_EQ(outerOnly.len(), 2);
    EXPECT_EQ(outerOnly[0].len(), 1);

    // A loop crossing the outer loop: both stay out, unless crossing loops are kept.
    Region crossing = nested;
    crossing.append(rectangle(9, 9, 12, 12));
    RegionList const without = ORX::g_vll_regions(crossing, 0);
    EXPECT_EQ(without.len(), 1);
    EXPECT_EQ(without[0][0], nested[0]);
    EXPECT_EQ(without[0][1], nested[2]);
    EXPECT_EQ(ORX::g_vll_regions(crossing, ORX::kRegionsKeepCrossing).len(), 3u);
}

TEST(RegionTest, PreparingAndNestingLoops) {
    Region prepared;
    prepared.append(rectangle(0, 0, 1, 1).reverse())
        .append(COrxVertexArray())
        .append(rectangle(0, 0, 1, 1).remove(3, false));
    ORX::g_vll_regions_prepare(prepared);
    ASSERT_EQ(prepared.len(), 1u);
    EXPECT_TRUE(ORX::g_vl_orient(prepared[0], COrxVector3d::kZAxis));
    EXPECT_TRUE(ORX::g_vl_vl_inside(rectangle(1, 1, 2, 2), rectangle(0, 0, 3, 3)));
    EXPECT_FALSE(ORX::g_vl_vl_inside(rectangle(0, 0, 3, 3), rectangle(1, 1, 2, 2)));
    EXPECT_FALSE(ORX::g_vl_vl_inside(rectangle(1, 1, 4, 2), rectangle(0, 0, 3, 3)));
}
