// Exact answers on inputs that drawings bring: site coordinates, a shallow crossing of two
// circles, shared edges. The polyline operations and the region operations alike.
#include <gtest/gtest.h>

#include <cmath>

#include "region_measures.h"
#include "tests/support/shapes.h"

using namespace orx_test;

namespace {

struct Areas {
    double unite, subtract, intersect;
};

// The three polyline operations and the three region operations on one-loop regions.
void expectAreas(COrxVertexArray const& a, COrxVertexArray const& b, Areas const& expected,
                 double relative) {
    double const scale = relative * std::fabs(expected.unite);
    Areas const got{area(ORX::g_vl_bool(a, b, COrxVertexArray::boolUnion)),
                    area(ORX::g_vl_bool(a, b, COrxVertexArray::boolDiff)),
                    area(ORX::g_vl_bool(a, b, COrxVertexArray::boolSect))};
    EXPECT_NEAR(got.unite, expected.unite, scale);
    EXPECT_NEAR(got.subtract, expected.subtract, scale);
    EXPECT_NEAR(got.intersect, expected.intersect, scale);
    RegionList u, d, s;
    EXPECT_TRUE(ORX::g_region_union(region({a}), region({b}), u));
    EXPECT_TRUE(ORX::g_region_diff(region({a}), region({b}), d));
    EXPECT_TRUE(ORX::g_region_sect(region({a}), region({b}), s));
    EXPECT_NEAR(area(u), expected.unite, scale);
    EXPECT_NEAR(area(d), expected.subtract, scale);
    EXPECT_NEAR(area(s), expected.intersect, scale);
    for (COrxVertexArray const& result : {ORX::g_vl_bool(a, b, COrxVertexArray::boolUnion),
                                          ORX::g_vl_bool(a, b, COrxVertexArray::boolSect)}) {
        EXPECT_GE(closedLoops(result), 1);
    }
}

}  // namespace

TEST(DrawingCasesTest, SquareAndCircleAtEverySiteOffset) {
    double const lens = 0.32 * ORX::kPi;  // half the circle of radius 0.8 lies in the square
    for (double offset : {0.0, 1e3, 1e5, 1e6, 3e6, 1e7}) {
        SCOPED_TRACE(offset);
        COrxVertexArray const square = rectangle(offset, offset, offset + 2, offset + 2);
        COrxVertexArray const disc = circle(pt(offset + 2, offset + 1), 0.8);
        expectAreas(square, disc, {4 + lens, 4 - lens, lens}, 1e-9);
    }
}

TEST(DrawingCasesTest, CircleAndItsCopyMovedAThousandthAcross) {
    // Two unit circles d apart overlap in a lens of area 2 acos(d/2) - (d/2) sqrt(4 - d^2).
    double const d = 0.001;
    double const lens = 2 * std::acos(d / 2) - d / 2 * std::sqrt(4 - d * d);
    for (double offset : {0.0, 1e6}) {
        SCOPED_TRACE(offset);
        COrxVertexArray const a = circle(pt(offset, offset), 1);
        COrxVertexArray const b = circle(ORX::polar(pt(offset, offset), 89 * ORX::kPi / 180, d), 1);
        expectAreas(a, b, {2 * ORX::kPi - lens, ORX::kPi - lens, lens}, 1e-9);
    }
}

TEST(DrawingCasesTest, EveryOperationOfAnOutlineWithItself) {
    for (COrxVertexArray const& a :
         {roundedRectangle(0, 0, 4, 3, 1), circle(pt(1e6, 2e6), 3), rectangle(-1, -1, 1, 1)}) {
        double const whole = area(a);
        EXPECT_NEAR(area(ORX::g_vl_bool(a, a, COrxVertexArray::boolUnion)), whole, 1e-9 * whole);
        EXPECT_TRUE(ORX::g_vl_bool(a, a, COrxVertexArray::boolDiff).isEmpty());
        EXPECT_NEAR(area(ORX::g_vl_bool(a, a, COrxVertexArray::boolSect)), whole, 1e-9 * whole);
        RegionList u, d, s;
        ORX::g_region_union(region({a}), region({a}), u);
        ORX::g_region_diff(region({a}), region({a}), d);
        ORX::g_region_sect(region({a}), region({a}), s);
        EXPECT_NEAR(area(u), whole, 1e-9 * whole);
        EXPECT_EQ(d.len(), 0u);
        EXPECT_NEAR(area(s), whole, 1e-9 * whole);
    }
}

TEST(DrawingCasesTest, RegionsSharingPartOfAnEdge) {
    // The bottom edges run the same way between x = 1 and x = 2; the right edge of the first
    // and a stretch of the second's left edge run opposite ways.
    Region const a = region({rectangle(0, 0, 2, 1)});
    Region const b = region({rectangle(1, 0, 3, 2)});
    RegionList u, d, s;
    ORX::g_region_union(a, b, u);
    ORX::g_region_diff(a, b, d);
    ORX::g_region_sect(a, b, s);
    ASSERT_EQ(u.len(), 1u);
    EXPECT_NEAR(area(u), 5, 1e-12);
    EXPECT_EQ(u[0][0].len(), 6);  // an L of six corners
    EXPECT_NEAR(area(d), 1, 1e-12);
    EXPECT_NEAR(area(s), 1, 1e-12);
}
