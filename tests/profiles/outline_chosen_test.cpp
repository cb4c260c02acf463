// The codes whose shape this library chose (15, 23, 24, 27, 30, 31, 224, 227, 324, 327, 803,
// 804, 901): corners as documented in outline.h, the geometry that makes each shape what it
// is, and the dimensions each refuses.
#include <cmath>

#include <gtest/gtest.h>

#include "orx/geom/functions.h"
#include "orx/plane_geometry/plane_geometry.h"
#include "outline_checks.h"

namespace {

using orx_test::outline;
using orx_test::pt;
using orx_test::runsThrough;

double const kQuarter = std::tan(ORX::kPi / 8);

// Where segment `to` starts, it continues segment `from` without a kink.
::testing::AssertionResult tangentJoint(COrxVertex const& from, COrxVertex const& to) {
    COrxPoint3d const& joint = to.startPoint();
    double const a = from.wTan(joint), b = to.wTan(joint);
    if (ORX::g_ang_equal(a, b, 1e-9)) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "kink at (" << joint.x << ", " << joint.y
                                         << "): " << a << " then " << b;
}

void expectExtents(COrxVertexArray const& vl, COrxPoint3d const& lo, COrxPoint3d const& hi) {
    COrxPoint3d min, max;
    ASSERT_TRUE(vl.extents(min, max));
    EXPECT_EQ(min, lo);
    EXPECT_EQ(max, hi);
}

TEST(OutlineChosenTest, BasketArchIsThreeTangentArcsOnTheKorbRadius) {
    COrxVertexArray const vl = outline(15, {8, 5, 3});  // span 8, rise 2 on sides of 3
    ASSERT_EQ(vl.len(), 6);
    EXPECT_EQ(vl[0].startPoint(), pt(0, 0));
    EXPECT_EQ(vl[2].startPoint(), pt(8, 3));
    EXPECT_EQ(vl[5].startPoint(), pt(0, 3));
    double const crownRadius = ORX::g_korb_3m(4, 2);
    EXPECT_NEAR(vl[3].radius(), crownRadius, 1e-12);
    EXPECT_EQ(vl[3].center(), pt(4, 5 - crownRadius));
    EXPECT_NEAR(vl[2].radius(), vl[4].radius(), 1e-12);
    EXPECT_LT(vl[2].radius(), crownRadius);
    // Tangent everywhere: vertical at the springing, horizontal at the crown.
    for (int k = 1; k < 6; ++k) {
        if (!vl[k - 1].isStraight() || !vl[k].isStraight()) {
            EXPECT_TRUE(tangentJoint(vl[k - 1], vl[k])) << k;
        }
    }
    expectExtents(vl, pt(0, 0), pt(8, 5));
}

TEST(OutlineChosenTest, BasketArchLimits) {
    // A rise of half the span is the half circle; without sides the arch stands on its chord.
    EXPECT_TRUE(runsThrough(outline(15, {8, 7, 3}),
                            {{pt(0, 0), 0}, {pt(8, 0), 0}, {pt(8, 3), 1.0}, {pt(0, 3), 0}}));
    COrxVertexArray const low = outline(15, {8, 2, 0});
    ASSERT_EQ(low.len(), 4);
    EXPECT_TRUE(low[0].isStraight());
    EXPECT_EQ(low[1].startPoint(), pt(8, 0));
    expectExtents(low, pt(0, 0), pt(8, 2));
    for (auto d : {orx_test::dims({8, 3, 3}), orx_test::dims({8, 8, 3}),
                   orx_test::dims({0, 5, 3}), orx_test::dims({8, 5, -1})}) {
        EXPECT_TRUE(ORX::g_outline(15, COrxVector3d(), d).isEmpty());
    }
}

TEST(OutlineChosenTest, RingSegmentAndSector) {
    EXPECT_TRUE(runsThrough(outline(23, {10, 6, 90}),
                            {{pt(6, 0), 0}, {pt(10, 0), kQuarter}, {pt(0, 10), 0},
                             {pt(0, 6), -kQuarter}}));
    EXPECT_NEAR(ORX::g_vl_area(outline(23, {10, 6, 90})), ORX::kPi * (100 - 36) / 4, 1e-9);
    EXPECT_TRUE(runsThrough(outline(23, {10, 0, 90}),
                            {{pt(0, 0), 0}, {pt(10, 0), kQuarter}, {pt(0, 10), 0}}));
    COrxVertexArray const wide = outline(23, {10, 0, 270});
    EXPECT_NEAR(ORX::g_vl_area(wide), ORX::kPi * 100 * 0.75, 1e-9);
    expectExtents(wide, pt(-10, -10), pt(10, 10));
    for (auto d : {orx_test::dims({10, 10, 90}), orx_test::dims({10, 12, 90}),
                   orx_test::dims({10, -1, 90}), orx_test::dims({0, 0, 90}),
                   orx_test::dims({10, 6, 0}), orx_test::dims({10, 6, 360}),
                   orx_test::dims({10, 6, -90})}) {
        EXPECT_TRUE(ORX::g_outline(23, COrxVector3d(), d).isEmpty());
    }
}

TEST(OutlineChosenTest, ChamferedCorners) {
    EXPECT_TRUE(runsThrough(outline(24, {10, 6, 1}),
                            {{pt(1, 0), 0}, {pt(9, 0), 0}, {pt(10, 1), 0}, {pt(10, 5), 0},
                             {pt(9, 6), 0}, {pt(1, 6), 0}, {pt(0, 5), 0}, {pt(0, 1), 0}}));
    EXPECT_NEAR(ORX::g_vl_area(outline(24, {10, 6, 2, 1})), 60 - 4 * 1.0, 1e-12);
    EXPECT_TRUE(runsThrough(outline(224, {10, 6, 1}),
                            {{pt(0, 0), 0}, {pt(10, 0), 0}, {pt(10, 5), 0}, {pt(9, 6), 0},
                             {pt(1, 6), 0}, {pt(0, 5), 0}}));
    EXPECT_TRUE(runsThrough(outline(324, {10, 6, 2, 1}),
                            {{pt(0, 0), 0}, {pt(10, 0), 0}, {pt(10, 5), 0}, {pt(8, 6), 0},
                             {pt(0, 6), 0}}));
    // Legs as long as they may be: the sides between them vanish.
    EXPECT_TRUE(runsThrough(outline(24, {10, 6, 5, 3}),
                            {{pt(5, 0), 0}, {pt(10, 3), 0}, {pt(5, 6), 0}, {pt(0, 3), 0}}));
    EXPECT_TRUE(runsThrough(outline(324, {10, 6, 10, 6}),
                            {{pt(0, 0), 0}, {pt(10, 0), 0}, {pt(0, 6), 0}}));
    // No chamfer: the rectangle.
    EXPECT_EQ(outline(224, {10, 6, 0}).len(), 4);
    struct Refused {
        int code;
        double w, h, cx, cy;
    };
    for (Refused r : {Refused{24, 10, 6, 5.5, 0}, {24, 10, 6, 1, 3.5}, {224, 10, 6, 1, 6.5},
                      {224, 10, 6, 5.5, 1}, {324, 10, 6, 10.5, 1}, {324, 10, 6, 1, 6.5},
                      {24, 0, 6, 1, 1}, {24, 10, -6, 1, 1}, {24, 10, 6, -1, 1},
                      {24, 10, 6, 1, -1}}) {
        EXPECT_TRUE(outline(r.code, {r.w, r.h, r.cx, r.cy}).isEmpty()) << r.code;
    }
}

TEST(OutlineChosenTest, RoundedCorners) {
    EXPECT_TRUE(runsThrough(outline(27, {10, 6, 1}),
                            {{pt(1, 0), 0}, {pt(9, 0), kQuarter}, {pt(10, 1), 0},
                             {pt(10, 5), kQuarter}, {pt(9, 6), 0}, {pt(1, 6), kQuarter},
                             {pt(0, 5), 0}, {pt(0, 1), kQuarter}}));
    double const corner = 4 - ORX::kPi;  // what rounding takes off per unit radius squared
    EXPECT_NEAR(ORX::g_vl_area(outline(27, {10, 6, 1})), 60 - corner, 1e-12);
    EXPECT_TRUE(runsThrough(outline(227, {10, 6, 2}),
                            {{pt(0, 0), 0}, {pt(10, 0), 0}, {pt(10, 4), kQuarter},
                             {pt(8, 6), 0}, {pt(2, 6), kQuarter}, {pt(0, 4), 0}}));
    EXPECT_NEAR(ORX::g_vl_area(outline(227, {10, 6, 2})), 60 - 2 * corner, 1e-12);
    EXPECT_TRUE(runsThrough(outline(327, {10, 6, 2}),
                            {{pt(0, 0), 0}, {pt(10, 0), 0}, {pt(10, 4), kQuarter},
                             {pt(8, 6), 0}, {pt(0, 6), 0}}));
    // Radius half the width and height: the circle; the upper corners alone: a round top.
    COrxVertexArray const circle = outline(27, {6, 6, 3});
    EXPECT_NEAR(ORX::g_vl_area(circle), 9 * ORX::kPi, 1e-9);
    expectExtents(circle, pt(0, 0), pt(6, 6));
    EXPECT_TRUE(runsThrough(outline(227, {6, 5, 3}),
                            {{pt(0, 0), 0}, {pt(6, 0), 0}, {pt(6, 2), 1.0}, {pt(0, 2), 0}}));
    EXPECT_TRUE(outline(27, {10, 6, 3.5}).isEmpty());
    EXPECT_TRUE(outline(227, {10, 6, 6.5}).isEmpty());
    EXPECT_TRUE(outline(327, {10, 6, 6.5}).isEmpty());
    EXPECT_TRUE(outline(327, {10, 6, -1}).isEmpty());
}

TEST(OutlineChosenTest, RegularPolygonStandsOnASide) {
    COrxVertexArray const hexagon = outline(30, {6, 2});
    ASSERT_EQ(hexagon.len(), 6);
    double const h = std::sqrt(3.0) / 2;
    EXPECT_EQ(hexagon[0].startPoint(), pt(-0.5, -h));
    EXPECT_EQ(hexagon[1].startPoint(), pt(0.5, -h));
    EXPECT_NEAR(ORX::g_vl_area(hexagon), 3 * std::sqrt(3.0) / 2, 1e-12);
    COrxVertexArray const triangle = outline(30, {3, 2});
    ASSERT_EQ(triangle.len(), 3);
    EXPECT_EQ(triangle[2].startPoint(), pt(0, 1));
    for (int n = 3; n <= 40; ++n) {
        COrxVertexArray const p = outline(30, {double(n), 2});
        ASSERT_EQ(p.len(), n);
        EXPECT_NEAR(ORX::g_vl_area(p), n / 2.0 * std::sin(ORX::kTwoPi / n), 1e-12) << n;
    }
    for (auto d : {orx_test::dims({2, 2}), orx_test::dims({6.5, 2}),
                   orx_test::dims({1001, 2}), orx_test::dims({6, 0}),
                   orx_test::dims({-6, 2})}) {
        EXPECT_TRUE(ORX::g_outline(30, COrxVector3d(), d).isEmpty());
    }
    EXPECT_EQ(outline(30, {1000, 2}).len(), 1000);
}

TEST(OutlineChosenTest, NotchedRectangle) {
    EXPECT_TRUE(runsThrough(outline(31, {10, 6, 4, 2}),
                            {{pt(0, 0), 0}, {pt(10, 0), 0}, {pt(10, 4), 0}, {pt(6, 4), 0},
                             {pt(6, 6), 0}, {pt(0, 6), 0}}));
    EXPECT_TRUE(runsThrough(outline(31, {10, 6, 0, 2}),
                            {{pt(0, 0), 0}, {pt(10, 0), 0}, {pt(10, 6), 0}, {pt(0, 6), 0}}));
    EXPECT_TRUE(outline(31, {10, 6, 10, 2}).isEmpty());
    EXPECT_TRUE(outline(31, {10, 6, 4, 6}).isEmpty());
    EXPECT_TRUE(outline(31, {10, 6, -1, 2}).isEmpty());
}

TEST(OutlineChosenTest, CentredSlotAndCircle) {
    EXPECT_TRUE(runsThrough(outline(803, {10, 4}),
                            {{pt(-3, -2), 0}, {pt(3, -2), 1.0}, {pt(3, 2), 0}, {pt(-3, 2), 1.0}}));
    EXPECT_NEAR(ORX::g_vl_area(outline(803, {10, 4})), 24 + 4 * ORX::kPi, 1e-12);
    EXPECT_TRUE(runsThrough(outline(803, {4, 10}),
                            {{pt(2, -3), 0}, {pt(2, 3), 1.0}, {pt(-2, 3), 0}, {pt(-2, -3), 1.0}}));
    EXPECT_TRUE(runsThrough(outline(803, {4, 4.000001}), {{pt(2, 0), 1.0}, {pt(-2, 0), 1.0}}));
    EXPECT_TRUE(outline(803, {0, 4}).isEmpty());
    EXPECT_TRUE(outline(803, {4, -4}).isEmpty());
}

TEST(OutlineChosenTest, OvalIsTangentArcsInsideItsBox) {
    COrxVertexArray const vl = outline(804, {10, 6});
    ASSERT_EQ(vl.len(), 6);
    EXPECT_EQ(vl[0].startPoint(), pt(5, 0));
    EXPECT_EQ(vl[3].startPoint(), pt(-5, 0));
    for (int k = 0; k < 6; ++k) {
        EXPECT_FALSE(vl[k].isStraight());
        EXPECT_TRUE(tangentJoint(vl[k], vl[(k + 1) % 6])) << k;
    }
    expectExtents(vl, pt(-5, -3), pt(5, 3));
    // Close to the ellipse of the same axes.
    EXPECT_NEAR(ORX::g_vl_area(vl), ORX::kPi * 5 * 3, 0.02 * ORX::kPi * 5 * 3);
    COrxVertexArray const upright = outline(804, {6, 10});
    EXPECT_EQ(upright[0].startPoint(), pt(0, 5));
    expectExtents(upright, pt(-3, -5), pt(3, 5));
    EXPECT_TRUE(runsThrough(outline(804, {6, 6}), {{pt(3, 0), 1.0}, {pt(-3, 0), 1.0}}));
    EXPECT_TRUE(outline(804, {6, 0}).isEmpty());
}

TEST(OutlineChosenTest, PolygonFromCoordinates) {
    auto const rectangle = {orx_test::Corner{pt(0, 0), 0}, {pt(4, 0), 0}, {pt(4, 3), 0},
                            {pt(0, 3), 0}};
    EXPECT_TRUE(runsThrough(outline(901, {0, 0, 4, 0, 4, 3, 0, 3}), rectangle));
    // Clockwise input is turned round from its first corner.
    EXPECT_TRUE(runsThrough(outline(901, {0, 0, 0, 3, 4, 3, 4, 0}), rectangle));
    // Repeated corners, and a closing corner, are dropped.
    EXPECT_TRUE(runsThrough(outline(901, {0, 0, 4, 0, 4, 0, 4, 3, 0, 3, 0, 0}), rectangle));
    // The corners are local: the offset moves them.
    EXPECT_TRUE(runsThrough(outline(901, {0, 0, 4, 0, 4, 3, 0, 3}, COrxVector3d(1, 2, 0)),
                            rectangle, COrxVector3d(1, 2, 0)));
    EXPECT_EQ(outline(901, {0, 0, 4, 0, 2, 1, 4, 3, 0, 3}).len(), 5);  // concave is fine
}

TEST(OutlineChosenTest, PolygonFromCoordinatesRefusesWhatIsNoPlate) {
    struct Refused {
        char const* name;
        COrxArrayTempl<double> dims;
    };
    Refused const cases[] = {
        {"odd_count", orx_test::dims({0, 0, 4, 0, 4, 3, 1})},
        {"two_corners", orx_test::dims({0, 0, 4, 0, 4, 0})},
        {"collinear", orx_test::dims({0, 0, 1, 0, 2, 0})},
        {"bow_tie", orx_test::dims({0, 0, 4, 3, 4, 0, 0, 3})},
        {"spike_back", orx_test::dims({0, 0, 4, 0, 2, 0, 2, 3})},
        {"corner_on_a_side", orx_test::dims({0, 0, 4, 0, 4, 4, 2, 0, 0, 4})},
        {"touching_corners", orx_test::dims({0, 0, 2, 2, 4, 0, 4, 4, 2, 2, 0, 4})},
        {"overlapping_sides", orx_test::dims({0, 0, 4, 0, 4, 2, 1, 2, 1, 0, 3, 0, 3, -1, 0, -1})},
    };
    for (Refused const& r : cases) {
        EXPECT_TRUE(ORX::g_outline(901, COrxVector3d(), r.dims).isEmpty()) << r.name;
    }
}

}  // namespace
