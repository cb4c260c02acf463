// Every corner and bulge of the codes whose construction is fixed and of the documented shapes
// this library chose, moved by an offset; the failures of the dispatcher.
#include <cmath>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "orx/geom/functions.h"
#include "orx/plane_geometry/plane_geometry.h"
#include "outline_checks.h"

namespace {

using orx_test::outline;
using orx_test::pt;
using orx_test::runsThrough;

COrxVector3d const kOffset(10, -5, 2);
double const kQuarter = std::tan(ORX::kPi / 8);
double const kSqrt3 = std::sqrt(3.0);

struct FixedCase {
    char const* name;
    int code;
    std::vector<double> dims;
    std::vector<double> corners;  // x, y and bulge of each corner in turn
};

// Arc bulges the table needs, from the circle through the ends (independent of the
// generators' own computation).
double minorBulge(COrxPoint3d const& a, COrxPoint3d const& b, double r) {
    double const h = a.distanceTo(b) / 2;
    return (r - std::sqrt(r * r - h * h)) / h;
}

// 18 without a rise: when the rise reaches the half width the arcs stand vertical on the
// sides (centres on the springing line, radius g_tang_radius(2, 4) for rise 4 over half
// width 2); below it both arcs lie on one circle through the springing points and the
// crown (radius 8.5 for rise 1 over half width 4).
double const r18 = 5.0, r18low = 8.5;
// 19: both arcs on the circle of radius (d0^2/4 + d1^2) / (2 d1).
double const r19 = 13.0 / 6;
double const h21 = std::sqrt(0.5) * 2;
double const c21 = std::cos(30 * ORX::kPi / 180), s21 = std::sin(30 * ORX::kPi / 180);
// 801: the head is the circle of diameter max(d2, d0) whose lowest point is d1 below the
// top of the half-circle end: centre (0, -7); the sides meet it sqrt(3) above that.
double const y801 = 2 - 10 + 1 + kSqrt3;
double const r34 = 1 / std::cos(ORX::kPi / 6);
std::vector<FixedCase> const kFixedCases = {
    {"rectangle", 1, {2, 3}, {0, 0, 0, 2, 0, 0, 2, 3, 0, 0, 3, 0}},
    {"trapezoid_cut_right", 2, {4, 3, -1}, {0, 0, 0, 4, 0, 0, 4, 3, 0, 3, 3, 0}},
    {"trapezoid_cut_left", 2, {4, 3, 1}, {0, 0, 0, 4, 0, 0, 1, 3, 0, 0, 3, 0}},
    {"trapezoid_as_triangle", 2, {4, 3, 0}, {0, 0, 0, 4, 0, 0, 0, 3, 0}},
    {"taper_absolute", 3, {-4, 2, -3}, {0, 0, 0, 4, 0, 0, 4, 3, 0, 0, 2, 0}},
    {"taper_zero_side_normed", 3, {4, 0, 3}, {0, 0, 0, 4, 0, 0, 4, 3, 0}},
    {"quadrilateral_cut_right", 4, {4, 3, 5, -1}, {0, 0, 0, 4, 0, 0, 4, 3, 0, 3, 5, 0}},
    {"quadrilateral_left_side", 4, {4, 3, 5, 1}, {0, 0, 0, 4, 0, 0, 1, 5, 0, 0, 3, 0}},
    {"gable_left_higher", 5, {6, 4, 2, 1}, {0, 0, 0, 6, 0, 0, 6, 2, 0, 1, 4, 0, 0, 4, 0}},
    {"gable_right_higher", 5, {6, 2, 4, 1}, {0, 0, 0, 6, 0, 0, 6, 4, 0, 5, 4, 0, 0, 2, 0}},
    {"hexagon_half", 6, {6, 5, 3, 1}, {0, 0, 0, 6, 0, 0, 6, 3, 0, 4, 5, 0, 2, 5, 0, 0, 3, 0}},
    {"hexagon_whole", 6, {6, 5, 3, -1}, {0, 0, 0, 6, 0, 0, 6, 3, 0, 3.5, 5, 0, 2.5, 5, 0, 0, 3, 0}},
    {"symmetric_half", 7, {6, 4, 1}, {0, 0, 0, 6, 0, 0, 4, 4, 0, 2, 4, 0}},
    {"symmetric_whole", 7, {6, 4, -1}, {0, 0, 0, 6, 0, 0, 3.5, 4, 0, 2.5, 4, 0}},
    {"trapezoid_offset_top", 8, {6, 4, 1, 3}, {0, 0, 0, 6, 0, 0, 4, 4, 0, 1, 4, 0}},
    {"right_angle_left", 9, {3, 4}, {0, 0, 0, 3, 0, 0, 0, 4, 0}},
    {"right_angle_right", 9, {-3, 4}, {0, 0, 0, 3, 0, 0, 3, 4, 0}},
    {"isosceles", 10, {4, 3}, {0, 0, 0, 4, 0, 0, 2, 3, 0}},
    {"house", 11, {4, 5, 3}, {0, 0, 0, 4, 0, 0, 4, 3, 0, 2, 5, 0, 0, 3, 0}},
    {"triangle", 12, {4, 3, 1}, {0, 0, 0, 4, 0, 0, 1, 3, 0}},
    {"segmental_arch", 13, {4, 5, 3}, {0, 0, 0, 4, 0, 0, 4, 3, 1.0, 0, 3, 0}},
    {"segmental_arch_from_crown", 13, {4, 5, -2}, {0, 0, 0, 4, 0, 0, 4, 3, 1.0, 0, 3, 0}},
    {"segmental_arch_no_sides", 13, {4, 1, -1}, {0, 0, 0, 4, 0, 0.5}},
    {"semicircular_arch", 14, {4, 5}, {0, 0, 0, 4, 0, 0, 4, 3, 1.0, 0, 3, 0}},
    {"half_disc", 14, {4, 2}, {0, 0, 0, 4, 0, 1.0}},
    {"rounded_top",
     17,
     {6, 5, 3},
     {0, 0, 0, 6, 0, 0, 6, 3, kQuarter, 4, 5, 0, 2, 5, kQuarter, 0, 3, 0}},
    {"rounded_meet", 17, {4, 5, 3}, {0, 0, 0, 4, 0, 0, 4, 3, 1.0, 0, 3, 0}},
    {"rounded_none", 17, {6, 3, 3}, {0, 0, 0, 6, 0, 0, 6, 3, 0, 0, 3, 0}},
    {"pointed_rise",
     18,
     {4, 6, 2, 1},
     {0, 0, 0, 4, 0, 0, 4, 2, 1 / (std::sqrt(20.0) / 2), 2, 6, 1 / (std::sqrt(20.0) / 2), 0, 2, 0}},
    {"pointed_radius",
     18,
     {4, 6, 2},
     {0, 0, 0, 4, 0, 0, 4, 2, minorBulge(pt(4, 2), pt(2, 6), r18), 2, 6,
      minorBulge(pt(2, 6), pt(0, 2), r18), 0, 2, 0}},
    {"pointed_low_rise",
     18,
     {8, 3, 2},
     {0, 0, 0, 8, 0, 0, 8, 2, minorBulge(pt(8, 2), pt(4, 3), r18low), 4, 3,
      minorBulge(pt(4, 3), pt(0, 2), r18low), 0, 2, 0}},
    {"segment_low", 19, {4, 1}, {0, 0, 0, 4, 0, 0.5}},
    {"segment_high",
     19,
     {4, 3},
     {0, 0, 0, 4, 0, minorBulge(pt(4, 0), pt(2, 3), r19), 2, 3,
      minorBulge(pt(2, 3), pt(0, 0), r19)}},
    {"parallelogram_length",
     21,
     {4, 3, 30},
     {0, 0, 0, 4 * c21, 4 * s21, 0, 4 * c21, 4 * s21 + 3, 0, 0, 3, 0}},
    {"parallelogram_width",
     21,
     {-4, 3, 30},
     {0, 0, 0, 4, 4 * s21 / c21, 0, 4, 4 * s21 / c21 + 3, 0, 0, 3, 0}},
    {"circle_through_origin", 22, {5}, {0, 0, 1.0, 5, 0, 1.0}},
    {"circle_by_radius", 22, {-5}, {-5, 0, 1.0, 5, 0, 1.0}},
    {"diamond_by_side", 28, {2}, {-h21, 0, 0, 0, -h21, 0, h21, 0, 0, 0, h21, 0}},
    {"diamond_by_diagonal", 28, {-4}, {2, 0, 0, 0, 2, 0, -2, 0, 0, 0, -2, 0}},
    {"slot_circle", 33, {4, 4}, {2, 2, 1.0, -2, 2, 1.0}},
    {"slot_upright", 33, {4, 10}, {-2, 2, 1.0, 2, 2, 0, 2, 8, 1.0, -2, 8, 0}},
    {"slot_lying", 33, {10, 4}, {2, 2, 1.0, 2, -2, 0, 8, -2, 1.0, 8, 2, 0}},
    {"hexagon",
     34,
     {2},
     {1, 0.5 * r34, 0, 0, r34, 0, -1, 0.5 * r34, 0, -1, -0.5 * r34, 0, 0, -r34, 0, 1, -0.5 * r34,
      0}},
    {"keyhole_slot",
     801,
     {2, 10, 4},
     {1, 0, 1.0, -1, 0, 0, -1, y801, std::tan(300 * ORX::kPi / 180 / 4), 1, y801, 0}},
    {"keyhole_slot_across",
     801,
     {10, 2, 4},
     {0, -1, 1.0, 0, 1, 0, y801, 1, std::tan(300 * ORX::kPi / 180 / 4), y801, -1, 0}},
    {"slot_two_half_circles", 801, {2, 10, 1}, {1, 0, 1.0, -1, 0, 0, -1, -8, 1.0, 1, -8, 0}},
    {"circle_by_diameter", 802, {6}, {3, 0, 1.0, -3, 0, 1.0}},
    {"circle_by_radius", 802, {-2}, {2, 0, 1.0, -2, 0, 1.0}},
    // The shapes this library chose, as documented in outline.h.
    // A rise of half the span is the half circle.
    {"basket_arch_half_circle", 15, {8, 7, 3}, {0, 0, 0, 8, 0, 0, 8, 3, 1.0, 0, 3, 0}},
    {"ring_segment", 23, {10, 6, 90}, {6, 0, 0, 10, 0, kQuarter, 0, 10, 0, 0, 6, -kQuarter}},
    {"sector", 23, {10, 0, 90}, {0, 0, 0, 10, 0, kQuarter, 0, 10, 0}},
    {"chamfers", 24, {10, 6, 1}, {1, 0, 0, 9, 0, 0, 10, 1, 0, 10, 5, 0,
                                  9, 6, 0, 1, 6, 0, 0,  5, 0, 0,  1, 0}},
    {"chamfer_legs", 24, {10, 6, 2, 1}, {2, 0, 0, 8, 0, 0, 10, 1, 0, 10, 5, 0,
                                         8, 6, 0, 2, 6, 0, 0,  5, 0, 0,  1, 0}},
    {"top_chamfers", 224, {10, 6, 1}, {0, 0, 0, 10, 0, 0, 10, 5, 0, 9, 6, 0, 1, 6, 0, 0, 5, 0}},
    {"corner_chamfer", 324, {10, 6, 2, 1}, {0, 0, 0, 10, 0, 0, 10, 5, 0, 8, 6, 0, 0, 6, 0}},
    // Legs as long as they may be: the sides between them vanish.
    {"chamfers_meet", 24, {10, 6, 5, 3}, {5, 0, 0, 10, 3, 0, 5, 6, 0, 0, 3, 0}},
    {"corner_chamfer_whole", 324, {10, 6, 10, 6}, {0, 0, 0, 10, 0, 0, 0, 6, 0}},
    {"no_chamfer", 224, {10, 6, 0}, {0, 0, 0, 10, 0, 0, 10, 6, 0, 0, 6, 0}},
    {"rounds", 27, {10, 6, 1}, {1, 0, 0, 9, 0, kQuarter, 10, 1, 0, 10, 5, kQuarter,
                                9, 6, 0, 1, 6, kQuarter, 0,  5, 0, 0,  1, kQuarter}},
    {"top_rounds",
     227,
     {10, 6, 2},
     {0, 0, 0, 10, 0, 0, 10, 4, kQuarter, 8, 6, 0, 2, 6, kQuarter, 0, 4, 0}},
    {"corner_round", 327, {10, 6, 2}, {0, 0, 0, 10, 0, 0, 10, 4, kQuarter, 8, 6, 0, 0, 6, 0}},
    // Radius half the width: the upper corners alone make a round top.
    {"round_top", 227, {6, 5, 3}, {0, 0, 0, 6, 0, 0, 6, 2, 1.0, 0, 2, 0}},
    {"notch", 31, {10, 6, 4, 2}, {0, 0, 0, 10, 0, 0, 10, 4, 0, 6, 4, 0, 6, 6, 0, 0, 6, 0}},
    {"no_notch", 31, {10, 6, 0, 2}, {0, 0, 0, 10, 0, 0, 10, 6, 0, 0, 6, 0}},
    {"slot_along_x", 803, {10, 4}, {-3, -2, 0, 3, -2, 1.0, 3, 2, 0, -3, 2, 1.0}},
    {"slot_along_y", 803, {4, 10}, {2, -3, 0, 2, 3, 1.0, -2, 3, 0, -2, -3, 1.0}},
    {"slot_circle", 803, {4, 4.000001}, {2, 0, 1.0, -2, 0, 1.0}},
    {"oval_circle", 804, {6, 6}, {3, 0, 1.0, -3, 0, 1.0}},
    {"coordinates", 901, {0, 0, 4, 0, 4, 3, 0, 3}, {0, 0, 0, 4, 0, 0, 4, 3, 0, 0, 3, 0}},
    // Clockwise input is turned round from its first corner.
    {"coordinates_clockwise", 901, {0, 0, 0, 3, 4, 3, 4, 0}, {0, 0, 0, 4, 0, 0, 4, 3, 0, 0, 3, 0}},
    // Repeated corners, and a closing corner, are dropped.
    {"coordinates_repeated",
     901,
     {0, 0, 4, 0, 4, 0, 4, 3, 0, 3, 0, 0},
     {0, 0, 0, 4, 0, 0, 4, 3, 0, 0, 3, 0}},
};

TEST(OutlineCodesTest, EveryCornerAndBulgeMovedByTheOffset) {
    for (FixedCase const& c : kFixedCases) {
        SCOPED_TRACE(c.name);
        COrxVertexArray const vl = ORX::g_outline(c.code, kOffset, orx_test::numbers(c.dims));
        EXPECT_TRUE(runsThrough(vl, c.corners, kOffset));
    }
}

TEST(OutlineCodesTest, UnknownCodesGiveTheEmptyOutline) {
    for (int code : {0, 16, 20, 25, 26, 29, 32, 35, 100, 225, 800, 805, 900, 902, -1, -901,
                     std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        EXPECT_TRUE(outline(code, {4, 3, 2, 1, 1, 1}).isEmpty()) << code;
    }
}

TEST(OutlineCodesTest, FewerDimensionsThanTheMinimumGiveTheEmptyOutline) {
    struct Minimum {
        int code;
        int count;
    };
    for (Minimum m :
         {Minimum{1, 2}, {2, 3},   {3, 3},   {4, 4},   {5, 4},   {6, 4},   {7, 3},   {8, 4},
          {9, 2},        {10, 2},  {11, 3},  {12, 3},  {13, 3},  {14, 2},  {15, 3},  {17, 3},
          {18, 3},       {19, 2},  {21, 3},  {22, 1},  {23, 3},  {24, 3},  {27, 3},  {28, 1},
          {30, 2},       {31, 4},  {33, 2},  {224, 3}, {227, 3}, {324, 3}, {327, 3}, {801, 3},
          {802, 1},      {803, 2}, {804, 2}, {901, 6}}) {
        COrxArrayTempl<double> d;
        for (int k = 0; k + 1 < m.count; ++k) {
            d.append(3.0 + k);
        }
        EXPECT_TRUE(ORX::g_outline(m.code, kOffset, d).isEmpty()) << m.code;
    }
    EXPECT_TRUE(outline(1, {}).isEmpty());
}

TEST(OutlineCodesTest, SignTestsOfCodesTwoAndFour) {
    for (int code : {2, 4}) {
        EXPECT_TRUE(outline(code, {0, 3, 1, 1}).isEmpty()) << code;
        EXPECT_TRUE(outline(code, {4, 0, 1, 1}).isEmpty()) << code;
        EXPECT_TRUE(outline(code, {-4, 3, 1, 1}).isEmpty()) << code;
        EXPECT_TRUE(outline(code, {4, -3, 1, 1}).isEmpty()) << code;
        EXPECT_FALSE(outline(code, {4, 3, 1, 1}).isEmpty()) << code;
    }
    // The other codes test no signs: a rectangle of negative width is built as written.
    EXPECT_TRUE(runsThrough(outline(1, {-2, 3}), {0, 0, 0, -2, 0, 0, -2, 3, 0, 0, 3, 0}));
}

TEST(OutlineCodesTest, PointedArchWithoutRiseCannotBeBuilt) {
    EXPECT_TRUE(outline(18, {4, 2, 2}).isEmpty());  // crown at side height: no radius
}

// Callers must pass a positive chord and rise; without them there is no arc to build.
TEST(OutlineCodesTest, CircularSegmentWithoutRiseIsEmpty) {
    for (std::vector<double> const& d :
         {std::vector<double>{4, 0}, std::vector<double>{4, -1}, std::vector<double>{-4, 1}}) {
        EXPECT_TRUE(outline(19, d).isEmpty()) << d[0] << " " << d[1];
    }
}

TEST(OutlineCodesTest, DimensionsOrOffsetNotFiniteGiveTheEmptyOutline) {
    double const inf = std::numeric_limits<double>::infinity();
    double const nan = std::numeric_limits<double>::quiet_NaN();
    for (int i = 0; i < ORX::kOutlineTableSize; ++i) {
        int const code = static_cast<int>(ORX::g_outline_code(i));
        EXPECT_TRUE(outline(code, {4, nan, 2, 1, 1, 1}).isEmpty()) << code;
        EXPECT_TRUE(outline(code, {4, 3, 2, 1, 1, -inf}).isEmpty()) << code;
        EXPECT_TRUE(outline(code, {4, 3, 2, 1, 1, 1}, COrxVector3d(inf, 0, 0)).isEmpty()) << code;
    }
}

}  // namespace
