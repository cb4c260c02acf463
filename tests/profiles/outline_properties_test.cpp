// Properties every code of the outline table keeps, whatever its construction: closed,
// counter-clockwise with positive area, inside the box its dimensions imply, free of
// self-intersection, moved by exactly the offset; and, for the shapes this library chose,
// the same over seeded random dimensions.
#include <cmath>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "orx/geom/functions.h"
#include "outline_checks.h"

namespace {

using orx_test::pt;
using orx_test::selfIntersects;

struct Typical {
    int code;
    std::vector<double> dims;
    COrxPoint3d lo, hi;  // the extents the dimensions imply
};

// One set of ordinary dimensions for every code of the table, in table order.
std::vector<Typical> const& typicalOutlines() {
    double const c30 = std::cos(ORX::kPi / 6), r34 = 1 / c30;
    static std::vector<Typical> const table = {
        {1, {4, 3}, pt(0, 0), pt(4, 3)},
        {2, {4, 3, -1}, pt(0, 0), pt(4, 3)},
        {3, {4, 2, 3}, pt(0, 0), pt(4, 3)},
        {4, {4, 3, 5, -1}, pt(0, 0), pt(4, 5)},
        {5, {6, 4, 2, 1}, pt(0, 0), pt(6, 4)},
        {6, {6, 5, 3, 1}, pt(0, 0), pt(6, 5)},
        {7, {6, 4, 1}, pt(0, 0), pt(6, 4)},
        {8, {6, 4, 1, 3}, pt(0, 0), pt(6, 4)},
        {9, {3, 4}, pt(0, 0), pt(3, 4)},
        {10, {4, 3}, pt(0, 0), pt(4, 3)},
        {11, {4, 5, 3}, pt(0, 0), pt(4, 5)},
        {12, {4, 3, 1}, pt(0, 0), pt(4, 3)},
        {13, {4, 4.5, 3}, pt(0, 0), pt(4, 4.5)},
        {14, {4, 5}, pt(0, 0), pt(4, 5)},
        {15, {8, 5, 3}, pt(0, 0), pt(8, 5)},
        {17, {6, 5, 3}, pt(0, 0), pt(6, 5)},
        {18, {4, 6, 2}, pt(0, 0), pt(4, 6)},
        {19, {4, 1}, pt(0, 0), pt(4, 1)},
        {21, {4, 3, 30}, pt(0, 0), pt(4 * c30, 5)},
        {22, {5}, pt(0, -2.5), pt(5, 2.5)},
        {23, {10, 6, 90}, pt(0, 0), pt(10, 10)},
        {24, {10, 6, 1}, pt(0, 0), pt(10, 6)},
        {27, {10, 6, 1}, pt(0, 0), pt(10, 6)},
        {28, {2}, pt(-std::sqrt(2.0), -std::sqrt(2.0)), pt(std::sqrt(2.0), std::sqrt(2.0))},
        {30, {6, 2}, pt(-1, -c30), pt(1, c30)},
        {31, {10, 6, 4, 2}, pt(0, 0), pt(10, 6)},
        {33, {4, 10}, pt(-2, 0), pt(2, 10)},
        {34, {2}, pt(-1, -r34), pt(1, r34)},
        {224, {10, 6, 1}, pt(0, 0), pt(10, 6)},
        {227, {10, 6, 1}, pt(0, 0), pt(10, 6)},
        {324, {10, 6, 1}, pt(0, 0), pt(10, 6)},
        {327, {10, 6, 1}, pt(0, 0), pt(10, 6)},
        {801, {2, 10, 4}, pt(-2, -9), pt(2, 1)},
        {802, {6}, pt(-3, -3), pt(3, 3)},
        {803, {10, 4}, pt(-5, -2), pt(5, 2)},
        {804, {10, 6}, pt(-5, -3), pt(5, 3)},
        {901, {0, 0, 4, 0, 2, 1, 4, 3, 0, 3}, pt(0, 0), pt(4, 3)},
    };
    return table;
}

// The typical outlines list every code in the table's own order; each is closed,
// counter-clockwise, simple, inside its box with its centroid, and moved by exactly the
// offset.
TEST(OutlinePropertiesTest, EveryCodeIsClosedPositiveSimpleAndInsideItsBox) {
    std::vector<Typical> const& table = typicalOutlines();
    ASSERT_EQ(table.size(), static_cast<size_t>(ORX::kOutlineTableSize));
    EXPECT_EQ(ORX::g_outline_code(-1), 0u);
    EXPECT_EQ(ORX::g_outline_code(ORX::kOutlineTableSize), 0u);
    COrxVector3d const offset(-123.25, 1e6, 7.5);
    for (int i = 0; i < ORX::kOutlineTableSize; ++i) {
        Typical const& t = table[i];
        SCOPED_TRACE(t.code);
        EXPECT_EQ(static_cast<unsigned int>(t.code), ORX::g_outline_code(i));
        COrxVertexArray vl = ORX::g_outline(t.code, COrxVector3d(), orx_test::numbers(t.dims));
        ASSERT_FALSE(vl.isEmpty());
        EXPECT_TRUE(vl.isClosed());
        EXPECT_GT(ORX::g_vl_area(vl), 0);
        EXPECT_FALSE(selfIntersects(vl));
        COrxPoint3d lo, hi;
        ASSERT_TRUE(vl.extents(lo, hi));
        EXPECT_EQ(lo, t.lo);
        EXPECT_EQ(hi, t.hi);
        double area, ix, iy, ixy;
        COrxPoint3d c;
        ASSERT_TRUE(ORX::g_vl_statics(vl, area, c, ix, iy, ixy));
        EXPECT_NEAR(area, ORX::g_vl_area(vl), 1e-12 * area);
        EXPECT_GT(c.x, lo.x);
        EXPECT_LT(c.x, hi.x);
        EXPECT_GT(c.y, lo.y);
        EXPECT_LT(c.y, hi.y);
        EXPECT_GT(ix, 0);
        EXPECT_GT(iy, 0);
        EXPECT_EQ(ORX::g_outline(t.code, offset, orx_test::numbers(t.dims)), vl.move(offset));
    }
}

TEST(OutlinePropertiesTest, HugeAndTinyDimensionsKeepTheShape) {
    for (double scale : {1e-3, 1e6, 1e12}) {
        for (Typical const& t : typicalOutlines()) {
            // Every dimension is a length but the angle of 21 and 23 and the count of 30.
            int const kept = t.code == 21 || t.code == 23 ? 2 : (t.code == 30 ? 0 : -1);
            std::vector<double> scaled = t.dims;
            for (int k = 0; k < static_cast<int>(scaled.size()); ++k) {
                scaled[k] *= k == kept ? 1 : scale;
            }
            COrxVertexArray const vl =
                ORX::g_outline(t.code, COrxVector3d(), orx_test::numbers(scaled));
            ASSERT_FALSE(vl.isEmpty()) << t.code << " at " << scale;
            EXPECT_GT(ORX::g_vl_area(vl), 0) << t.code << " at " << scale;
        }
    }
}

// Random dimensions inside each chosen code's valid range, seeded: every outline is closed,
// positive and simple.
TEST(OutlinePropertiesTest, ChosenShapesStaySimpleForRandomValidDimensions) {
    std::mt19937 random(20240917);
    auto uniform = [&](double lo, double hi) {
        return std::uniform_real_distribution<double>(lo, hi)(random);
    };
    for (int round = 0; round < 300; ++round) {
        double const w = uniform(0.1, 50), h = uniform(0.1, 50);
        double const a = w / 2;
        std::vector<std::pair<int, std::vector<double>>> cases = {
            {15, {w, h + uniform(0.001, 1) * a, h}},
            {23, {w, uniform(0, 0.999) * w, uniform(0.5, 359.5)}},
            {24, {w, h, uniform(0, 0.5) * w, uniform(0, 0.5) * h}},
            {224, {w, h, uniform(0, 0.5) * w, uniform(0, 1) * h}},
            {324, {w, h, uniform(0, 1) * w, uniform(0, 1) * h}},
            {27, {w, h, uniform(0, 0.5) * std::fmin(w, h)}},
            {227, {w, h, uniform(0, 1) * std::fmin(w / 2, h)}},
            {327, {w, h, uniform(0, 1) * std::fmin(w, h)}},
            {30, {std::floor(uniform(3, 64)), w}},
            {31, {w, h, uniform(0, 0.999) * w, uniform(0, 0.999) * h}},
            {803, {w, h}},
            {804, {w, h}},
        };
        for (auto const& c : cases) {
            COrxVertexArray const vl =
                ORX::g_outline(c.first, COrxVector3d(), orx_test::numbers(c.second));
            ASSERT_FALSE(vl.isEmpty()) << c.first << " round " << round;
            EXPECT_TRUE(vl.isClosed()) << c.first << " round " << round;
            EXPECT_GT(ORX::g_vl_area(vl), 0) << c.first << " round " << round;
            EXPECT_FALSE(selfIntersects(vl)) << c.first << " round " << round;
        }
    }
}

// Random polygons from coordinates are either refused or simple and counter-clockwise.
TEST(OutlinePropertiesTest, PolygonsFromCoordinatesAreSimpleOrRefused) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> coordinate(-10, 10);
    int accepted = 0;
    for (int round = 0; round < 400; ++round) {
        COrxArrayTempl<double> d;
        int const corners = 3 + round % 5;
        for (int k = 0; k < 2 * corners; ++k) {
            d.append(coordinate(random));
        }
        COrxVertexArray const vl = ORX::g_outline(901, COrxVector3d(), d);
        if (vl.isEmpty()) {
            continue;
        }
        ++accepted;
        EXPECT_TRUE(vl.isClosed());
        EXPECT_GT(ORX::g_vl_area(vl), 0);
        EXPECT_FALSE(selfIntersects(vl)) << round;
    }
    EXPECT_GT(accepted, 100);  // the random sets are not all refused
}

}  // namespace
