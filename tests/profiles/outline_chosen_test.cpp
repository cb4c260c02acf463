// The codes whose shape this library chose (15, 23, 24, 27, 30, 31, 224, 227, 324, 327, 803,
// 804, 901): the geometry that makes each shape what it is, and the dimensions each refuses.
// Their documented corners are in the corner table of outline_codes_test.cpp.
#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "orx/geom/functions.h"
#include "orx/plane_geometry/plane_geometry.h"
#include "outline_checks.h"

namespace {

using orx_test::outline;
using orx_test::pt;

// Where segment `to` starts, it continues segment `from` without a kink.
::testing::AssertionResult tangentJoint(COrxVertex const& from, COrxVertex const& to) {
    COrxPoint3d const& joint = to.startPoint();
    double const a = from.wTan(joint), b = to.wTan(joint);
    if (ORX::g_ang_equal(a, b, 1e-9)) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure()
           << "kink at (" << joint.x << ", " << joint.y << "): " << a << " then " << b;
}

TEST(OutlineChosenTest, BasketArchIsThreeTangentArcsOnTheKorbRadius) {
    COrxVertexArray const vl = outline(15, {8, 5, 3});  // span 8, rise 2 on sides of 3
    ASSERT_EQ(vl.len(), 6);
    EXPECT_EQ(vl[2].startPoint(), pt(8, 3));
    EXPECT_EQ(vl[5].startPoint(), pt(0, 3));
    double const crownRadius = ORX::g_korb_3m(4, 2);
    EXPECT_NEAR(vl[3].radius(), crownRadius, 1e-12);
    EXPECT_EQ(vl[3].center(), pt(4, 5 - crownRadius));
    EXPECT_NEAR(vl[2].radius(), vl[4].radius(), 1e-12);
    EXPECT_LT(vl[2].radius(), crownRadius);
    // Tangent everywhere: vertical at the springing, horizontal at the crown.
    for (int k = 2; k < 6; ++k) {
        EXPECT_TRUE(tangentJoint(vl[k - 1], vl[k])) << k;
    }
    // Without sides the arch stands on its chord.
    COrxVertexArray const low = outline(15, {8, 2, 0});
    ASSERT_EQ(low.len(), 4);
    EXPECT_EQ(low[1].startPoint(), pt(8, 0));
}

// A sector wider than a half turn, and corners rounded to half the width and height (the
// circle).
TEST(OutlineChosenTest, WideSectorAndRoundedSquareAreWholeArcs) {
    COrxPoint3d lo, hi;
    COrxVertexArray const sector = outline(23, {10, 0, 270});
    EXPECT_NEAR(ORX::g_vl_area(sector), ORX::kPi * 75, 1e-9);
    ASSERT_TRUE(sector.extents(lo, hi));
    EXPECT_EQ(lo, pt(-10, -10));
    EXPECT_EQ(hi, pt(10, 10));
    COrxVertexArray const circle = outline(27, {6, 6, 3});
    EXPECT_NEAR(ORX::g_vl_area(circle), 9 * ORX::kPi, 1e-9);
    ASSERT_TRUE(circle.extents(lo, hi));
    EXPECT_EQ(lo, pt(0, 0));
    EXPECT_EQ(hi, pt(6, 6));
}

TEST(OutlineChosenTest, RegularPolygonStandsOnASide) {
    COrxVertexArray const hexagon = outline(30, {6, 2});
    ASSERT_EQ(hexagon.len(), 6);
    EXPECT_EQ(hexagon[0].startPoint(), pt(-0.5, -std::sqrt(3.0) / 2));
    EXPECT_EQ(hexagon[1].startPoint(), pt(0.5, -std::sqrt(3.0) / 2));
    COrxVertexArray const triangle = outline(30, {3, 2});
    ASSERT_EQ(triangle.len(), 3);
    EXPECT_EQ(triangle[2].startPoint(), pt(0, 1));
    EXPECT_EQ(outline(30, {1000, 2}).len(), 1000);
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
    // Close to the ellipse of the same axes.
    EXPECT_NEAR(ORX::g_vl_area(vl), ORX::kPi * 5 * 3, 0.02 * ORX::kPi * 5 * 3);
    EXPECT_EQ(outline(804, {6, 10})[0].startPoint(), pt(0, 5));
}

// Dimensions each chosen code refuses (documented as invalid in outline.h).
TEST(OutlineChosenTest, InvalidDimensionsGiveTheEmptyOutline) {
    struct Refused {
        char const* name;
        int code;
        std::vector<double> dims;
    };
    std::vector<Refused> const cases = {
        {"arch_without_rise", 15, {8, 3, 3}},
        {"arch_above_half_circle", 15, {8, 8, 3}},
        {"arch_below_ground", 15, {8, 5, -1}},
        {"ring_inner_is_outer", 23, {10, 10, 90}},
        {"ring_inner_negative", 23, {10, -1, 90}},
        {"ring_no_radius", 23, {0, 0, 90}},
        {"ring_no_angle", 23, {10, 6, 0}},
        {"ring_full_turn", 23, {10, 6, 360}},
        {"ring_negative_angle", 23, {10, 6, -90}},
        {"chamfers_overlap_along_x", 24, {10, 6, 5.5, 0}},
        {"chamfers_overlap_along_y", 24, {10, 6, 1, 3.5}},
        {"chamfer_without_width", 24, {0, 6, 1, 1}},
        {"chamfer_negative_leg", 24, {10, 6, -1, 1}},
        {"top_chamfer_past_height", 224, {10, 6, 1, 6.5}},
        {"top_chamfers_overlap", 224, {10, 6, 5.5, 1}},
        {"corner_chamfer_past_width", 324, {10, 6, 10.5, 1}},
        {"rounds_overlap", 27, {10, 6, 3.5}},
        {"top_round_past_height", 227, {10, 6, 6.5}},
        {"corner_round_past_height", 327, {10, 6, 6.5}},
        {"negative_radius", 327, {10, 6, -1}},
        {"polygon_two_corners", 30, {2, 2}},
        {"polygon_fractional_count", 30, {6.5, 2}},
        {"polygon_too_many_corners", 30, {1001, 2}},
        {"polygon_no_diameter", 30, {6, 0}},
        {"notch_whole_width", 31, {10, 6, 10, 2}},
        {"notch_whole_height", 31, {10, 6, 4, 6}},
        {"slot_no_length", 803, {0, 4}},
        {"oval_no_height", 804, {6, 0}},
        {"coordinates_odd_count", 901, {0, 0, 4, 0, 4, 3, 1}},
        {"coordinates_two_corners", 901, {0, 0, 4, 0, 4, 0}},
        {"coordinates_collinear", 901, {0, 0, 1, 0, 2, 0}},
        {"coordinates_bow_tie", 901, {0, 0, 4, 3, 4, 0, 0, 3}},
        {"coordinates_spike_back", 901, {0, 0, 4, 0, 2, 0, 2, 3}},
        {"coordinates_corner_on_a_side", 901, {0, 0, 4, 0, 4, 4, 2, 0, 0, 4}},
        {"coordinates_touching_corners", 901, {0, 0, 2, 2, 4, 0, 4, 4, 2, 2, 0, 4}},
        {"coordinates_overlapping_sides", 901, {0, 0, 4, 0, 4, 2, 1, 2, 1, 0, 3, 0, 3, -1, 0, -1}},
    };
    for (Refused const& r : cases) {
        EXPECT_TRUE(outline(r.code, r.dims).isEmpty()) << r.name;
    }
    EXPECT_EQ(outline(901, {0, 0, 4, 0, 2, 1, 4, 3, 0, 3}).len(), 5);  // concave is fine
}

}  // namespace
