// Fillets and chamfers: the fillet has the asked radius and is tangent to both neighbours,
// straight or arc; chamfers cut the asked distances along the neighbours; corners too small
// leave the polyline as it was.
#include "orx/polyline/corners.h"

#include <cmath>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "orx/plane_geometry/angles.h"
#include "tests/support/shapes.h"

namespace {

using orx_test::kQuarter;
using orx_test::polygon;
using orx_test::pt;

// Direction of travel where a segment starts and where it ends.
double startHeading(COrxVertex const& v) {
    return ORX::vx_start_angle(v);
}
double endHeading(COrxVertex const& v) {
    return ORX::g_ang(ORX::vx_end_angle(v) + ORX::kPi);
}
double headingGap(double a, double b) {
    return std::fabs(std::remainder(a - b, 2 * ORX::kPi));
}

// The fillet joins s1 and s2 exactly, has radius r and leaves and meets them tangentially.
::testing::AssertionResult isFillet(COrxVertex const& s1, COrxVertex const& arc,
                                    COrxVertex const& s2, double r) {
    double const gapIn = headingGap(endHeading(s1), startHeading(arc));
    double const gapOut = headingGap(endHeading(arc), startHeading(s2));
    if (s1.endPoint() != arc.startPoint() || arc.endPoint() != s2.startPoint() ||
        !(std::fabs(arc.radius() - r) <= 1e-9 * r) || !(gapIn <= 1e-9) || !(gapOut <= 1e-9)) {
        return ::testing::AssertionFailure()
               << "radius " << arc.radius() << " tangent gaps " << gapIn << ", " << gapOut;
    }
    return ::testing::AssertionSuccess();
}

struct CornerCase {
    char const* name;
    COrxVertex s1, s2;
    double r;
};

// Straight and arc neighbours, left and right turns, convex and concave arcs.
std::vector<CornerCase> const kCorners = {
    {"square_left", COrxVertex(pt(0, 0), pt(10, 0), 0.0), COrxVertex(pt(10, 0), pt(10, 10), 0.0),
     2},
    {"acute_right", COrxVertex(pt(0, 0), pt(10, 0), 0.0), COrxVertex(pt(10, 0), pt(2, -3), 0.0), 1},
    {"obtuse_left", COrxVertex(pt(0, 0), pt(10, 0), 0.0), COrxVertex(pt(10, 0), pt(20, 4), 0.0), 5},
    {"line_into_convex_arc", COrxVertex(pt(0, 0), pt(10, 0), 0.0),
     COrxVertex(pt(10, 0), pt(10, 10), 0.6), 1.5},
    {"line_into_concave_arc", COrxVertex(pt(0, 0), pt(10, 0), 0.0),
     COrxVertex(pt(10, 0), pt(10, 10), -0.4), 1.5},
    {"arc_into_line", COrxVertex(pt(0, 0), pt(10, 0), 0.3), COrxVertex(pt(10, 0), pt(10, 10), 0.0),
     2},
    {"arc_into_arc", COrxVertex(pt(0, 0), pt(10, 0), -0.3), COrxVertex(pt(10, 0), pt(4, 8), 0.5),
     1},
    {"arcs_turning_right", COrxVertex(pt(0, 0), pt(10, 0), 0.2),
     COrxVertex(pt(10, 0), pt(12, -9), -0.3), 0.8},
};

TEST(CornersTest, FilletHasTheRadiusAndIsTangentToBothNeighbours) {
    for (CornerCase const& c : kCorners) {
        SCOPED_TRACE(c.name);
        COrxVertex s1(c.s1), s2(c.s2), arc;
        ASSERT_TRUE(ORX::g_vx_fillet(s1, s2, c.r, arc));
        EXPECT_TRUE(isFillet(s1, arc, s2, c.r));
        // The neighbours keep their lines and circles.
        EXPECT_NEAR(ORX::g_vx_lotd(c.s1, s1.endPoint()), 0, 1e-9);
        EXPECT_NEAR(ORX::g_vx_lotd(c.s2, s2.startPoint()), 0, 1e-9);
        EXPECT_EQ(s1.startPoint(), c.s1.startPoint());
        EXPECT_EQ(s2.endPoint(), c.s2.endPoint());
    }
}

// Random corners of straight and arc segments and random radii: every fillet made is one.
TEST(CornersTest, RandomFilletsAreTangent) {
    std::mt19937 random(2024);
    std::uniform_real_distribution<double> coordinate(-10, 10), bulge(-0.6, 0.6), radius(0.05, 3);
    int made = 0;
    for (int round = 0; round < 500; ++round) {
        COrxPoint3d const a = pt(coordinate(random), coordinate(random)), p = pt(0, 0);
        COrxPoint3d const b = pt(coordinate(random), coordinate(random));
        COrxVertex s1(a, p, round % 3 ? bulge(random) : 0.0),
            s2(p, b, round % 4 ? bulge(random) : 0.0);
        double const r = radius(random);
        COrxVertex arc;
        if (ORX::g_vx_fillet(s1, s2, r, arc)) {
            ++made;
            EXPECT_TRUE(isFillet(s1, arc, s2, r)) << round;
        }
    }
    EXPECT_GT(made, 250);
}

TEST(CornersTest, FilletOfEveryCornerRoundsTheRectangle) {
    double const w = 10, h = 6, r = 1.5;
    COrxVertexArray vl = polygon({pt(0, 0), pt(w, 0), pt(w, h), pt(0, h)});
    ASSERT_TRUE(ORX::g_vl_fillet_all(vl, r));
    EXPECT_EQ(vl.len(), 8);
    EXPECT_TRUE(vl.isClosed());
    EXPECT_NEAR(ORX::g_vl_area(vl), w * h - (4 - ORX::kPi) * r * r, 1e-12);
    for (int k = 0; k < vl.len(); ++k) {
        EXPECT_LE(headingGap(endHeading(vl[k]), startHeading(vl[(k + 1) % vl.len()])), 1e-9);
    }
    // Rounded already: no corner left, nothing changes.
    COrxVertexArray const rounded(vl);
    EXPECT_TRUE(ORX::g_vl_fillet_all(vl, 0.5));
    EXPECT_EQ(vl, rounded);
    // A square rounded by half its side is the circle; a bit more does not fit.
    COrxVertexArray square = polygon({pt(0, 0), pt(4, 0), pt(4, 4), pt(0, 4)});
    COrxVertexArray const before(square);
    EXPECT_FALSE(ORX::g_vl_fillet_all(square, 2.001));
    EXPECT_EQ(square, before);
    ASSERT_TRUE(ORX::g_vl_fillet_all(square, 2));
    EXPECT_EQ(square.len(), 4);
    EXPECT_NEAR(ORX::g_vl_area(square), 4 * ORX::kPi, 1e-12);
}

TEST(CornersTest, OneCornerOfAPolyline) {
    COrxVertexArray vl = polygon({pt(0, 0), pt(10, 0), pt(10, 10), pt(0, 10)}, false);
    EXPECT_FALSE(ORX::g_vl_fillet(vl, 2, 1));  // the end of an open polyline is no corner
    EXPECT_FALSE(ORX::g_vl_fillet(vl, 3, 1));
    ASSERT_TRUE(ORX::g_vl_fillet(vl, -2, 10));  // uses both sides up to their far ends
    EXPECT_EQ(vl.len(), 2);
    EXPECT_EQ(vl[1].startPoint(), pt(10, 0));
    EXPECT_EQ(vl[1].endPoint(), pt(0, 10));
    EXPECT_NEAR(vl[1].bulge(), kQuarter, 1e-12);
    // The closing corner of a closed polyline: the arc is appended.
    COrxVertexArray loop = polygon({pt(0, 0), pt(10, 0), pt(10, 10), pt(0, 10)});
    ASSERT_TRUE(ORX::g_vl_chamfer(loop, 3, 2));
    EXPECT_EQ(loop.len(), 5);
    EXPECT_EQ(loop[4].startPoint(), pt(0, 2));
    EXPECT_EQ(loop[4].endPoint(), pt(2, 0));
    EXPECT_TRUE(loop.isClosed());
}

// The chamfer's ends lie at the asked distances along the neighbours, arcs included.
TEST(CornersTest, ChamfersCutTheAskedDistances) {
    for (CornerCase const& c : kCorners) {
        SCOPED_TRACE(c.name);
        double const d1 = 0.3 * c.s1.bulgLen(), d2 = 0.2 * c.s2.bulgLen();
        COrxVertex s1(c.s1), s2(c.s2), cut;
        ASSERT_TRUE(ORX::g_vx_chamfer(s1, s2, d1, d2, cut));
        EXPECT_NEAR(c.s1.bulgLen() - s1.bulgLen(), d1, 1e-9);
        EXPECT_NEAR(c.s2.bulgLen() - s2.bulgLen(), d2, 1e-9);
        EXPECT_TRUE(cut.isStraight());
        EXPECT_EQ(cut.startPoint(), s1.endPoint());
        EXPECT_EQ(cut.endPoint(), s2.startPoint());
        EXPECT_NEAR(ORX::g_vx_lotd(c.s1, s1.endPoint()), 0, 1e-9);
    }
    COrxVertexArray square = polygon({pt(0, 0), pt(4, 0), pt(4, 4), pt(0, 4)});
    ASSERT_TRUE(ORX::g_vl_chamfer_all(square, 2));
    EXPECT_EQ(square.len(), 4);  // the sides are used up: the diamond is left
    EXPECT_NEAR(ORX::g_vl_area(square), 8, 1e-12);
    COrxVertexArray plate = polygon({pt(0, 0), pt(10, 0), pt(10, 6), pt(0, 6)});
    ASSERT_TRUE(ORX::g_vl_chamfer_all(plate, 3, 1));
    EXPECT_NEAR(ORX::g_vl_area(plate), 60 - 4 * 1.5, 1e-12);
}

// Bad radii and distances, joints without a corner and corners too small: false, and
// nothing touched.
TEST(CornersTest, WhatCannotBeCutLeavesEverythingAsItWas) {
    COrxVertex const line(pt(0, 0), pt(10, 0), 0.0);
    std::vector<std::pair<COrxVertex, double>> const bad = {
        {COrxVertex(pt(10, 0), pt(10, 10), 0.0), 0.0},   // no radius
        {COrxVertex(pt(10, 0), pt(10, 10), 0.0), -1.0},  // negative
        {COrxVertex(pt(10, 0), pt(10, 10), 0.0), std::nan("")},
        {COrxVertex(pt(10, 0), pt(10, 10), 0.0), 10.5},  // too large
        {COrxVertex(pt(10, 0), pt(20, 0), 0.0), 1.0},    // straight on: no corner
        {COrxVertex(pt(10, 0), pt(5, 0), 0.0), 1.0},     // straight back: a cusp
        {COrxVertex(pt(10, 1), pt(10, 10), 0.0), 1.0},   // a gap
        {COrxVertex(pt(10, 0), pt(10, 10), 0.5), 20.0},  // larger than the arc allows
    };
    for (auto const& b : bad) {
        COrxVertex s1(line), s2(b.first), piece(pt(7, 7), pt(8, 8), 0.0);
        EXPECT_FALSE(ORX::g_vx_fillet(s1, s2, b.second, piece)) << b.second;
        EXPECT_FALSE(ORX::g_vx_chamfer(s1, s2, b.second, 1.0, piece)) << b.second;
        EXPECT_EQ(s1, line);
        EXPECT_EQ(s2, b.first);
        EXPECT_EQ(piece, COrxVertex(pt(7, 7), pt(8, 8), 0.0));
    }
    COrxVertexArray vl = polygon({pt(0, 0), pt(10, 0), pt(10, 3), pt(0, 3)});
    COrxVertexArray const before(vl);
    EXPECT_FALSE(ORX::g_vl_chamfer_all(vl, 2, 1.6));  // two chamfers of 1.6 on a side of 3
    EXPECT_FALSE(ORX::g_vl_chamfer(vl, 7, 1));
    EXPECT_EQ(vl, before);

    // Next to an arc whose circle is too large for doubles there is no point to cut at.
    COrxVertexArray huge;
    huge.append(COrxVertex(pt(-1.8e303, 1e7), pt(1e7, 1e7), -0.6));
    huge.append(COrxVertex(pt(1e7, 1e7), pt(-1.8e303, 1e7), -6.25e13));
    COrxVertexArray const hugeBefore(huge);
    EXPECT_FALSE(ORX::g_vl_chamfer_all(huge, 2, 125));
    EXPECT_FALSE(ORX::g_vl_fillet_all(huge, 2));
    EXPECT_EQ(huge, hugeBefore);
}

}  // namespace
