#include "orx/plane_geometry/intersections.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "orx/geom/functions.h"
#include "orx/plane_geometry/bulges.h"
#include "orx/plane_geometry/lines.h"
#include "orx/plane_geometry/points.h"

namespace {

double const pi = ORX::kPi;
COrxPoint3d const O(0, 0, 0);

bool onCircle(COrxPoint3d const& c, double r, COrxPoint3d const& p) {
    return std::fabs(ORX::g_dist2d(c, p) - r) <= COrxPoint3d::tol;
}

bool onLine(COrxPoint3d const& a, COrxPoint3d const& b, COrxPoint3d const& p) {
    return ORX::g_aabs(a, b, p) <= COrxPoint3d::tol;
}

}  // namespace

TEST(IntersectionsTest, CirclesCrossTouchOrMiss) {
    COrxPoint3dArray pts;
    ASSERT_TRUE(ORX::g_cci(pts, O, 5, COrxPoint3d(8, 0, 0), 5));
    ASSERT_EQ(pts.len(), 2);
    EXPECT_EQ(pts[0], COrxPoint3d(4, 3, 0));
    EXPECT_EQ(pts[1], COrxPoint3d(4, -3, 0));
    // External contact: the single point halfway between the centres.
    ASSERT_TRUE(ORX::g_cci(pts, O, 1, COrxPoint3d(2, 0, 0), 1));
    ASSERT_EQ(pts.len(), 1);
    EXPECT_EQ(pts[0], COrxPoint3d(1, 0, 0));
    // Internal contact: on the larger circle, from its centre towards the smaller one's.
    ASSERT_TRUE(ORX::g_cci(pts, O, 1, COrxPoint3d(2, 0, 0), 3));
    ASSERT_EQ(pts.len(), 1);
    EXPECT_EQ(pts[0], COrxPoint3d(-1, 0, 0));
    ASSERT_TRUE(ORX::g_cci(pts, COrxPoint3d(2, 0, 0), 3, O, 1));
    EXPECT_EQ(pts[0], COrxPoint3d(-1, 0, 0));
    // Concentric: different radii give nothing, equal ones the internal-contact point.
    EXPECT_FALSE(ORX::g_cci(pts, O, 1, O, 2));
    EXPECT_EQ(pts.len(), 0);
    ASSERT_TRUE(ORX::g_cci(pts, COrxPoint3d(1, 1, 0), 2, COrxPoint3d(1, 1, 0), 2));
    ASSERT_EQ(pts.len(), 1);
    EXPECT_EQ(pts[0], COrxPoint3d(3, 1, 0));
    EXPECT_FALSE(ORX::g_cci(pts, O, 1, COrxPoint3d(5, 0, 0), 1));
    EXPECT_FALSE(ORX::g_cci(pts, O, -1, COrxPoint3d(1, 0, 0), 1));
}

TEST(IntersectionsTest, LinesAndCircles) {
    COrxPoint3dArray pts;
    // A flat line: x is the parameter; points in order of the parameter, z of the centre.
    ASSERT_TRUE(
        ORX::g_cli0(pts, COrxPoint3d(0, 0, 4), 5, COrxPoint3d(10, 3, 0), COrxPoint3d(9, 3, 0)));
    ASSERT_EQ(pts.len(), 2);
    EXPECT_EQ(pts[0], COrxPoint3d(-4, 3, 4));
    EXPECT_EQ(pts[1], COrxPoint3d(4, 3, 4));
    // A steep line: y is the parameter.
    ASSERT_TRUE(ORX::g_cli0(pts, O, 5, COrxPoint3d(3, 0, 0), COrxPoint3d(3, 1, 0)));
    ASSERT_EQ(pts.len(), 2);
    EXPECT_EQ(pts[0], COrxPoint3d(3, -4, 0));
    EXPECT_EQ(pts[1], COrxPoint3d(3, 4, 0));
    // Touching, and missing by less than the tolerance: one point.
    ASSERT_TRUE(ORX::g_cli0(pts, O, 5, COrxPoint3d(-1, 5, 0), COrxPoint3d(1, 5, 0)));
    ASSERT_EQ(pts.len(), 1);
    EXPECT_EQ(pts[0], COrxPoint3d(0, 5, 0));
    ASSERT_TRUE(ORX::g_cli0(pts, O, 5, COrxPoint3d(-1, 5 + 5e-6, 0), COrxPoint3d(1, 5 + 5e-6, 0)));
    EXPECT_EQ(pts.len(), 1);
    EXPECT_FALSE(ORX::g_cli0(pts, O, 5, COrxPoint3d(-1, 5.001, 0), COrxPoint3d(1, 5.001, 0)));
    EXPECT_FALSE(ORX::g_cli0(pts, O, 5, COrxPoint3d(1, 1, 0), COrxPoint3d(1, 1, 3)));
    // The segment form keeps the points on the segment; when the line misses, pts stays.
    pts.setLogicalLength(0);
    pts.append(COrxPoint3d(7, 7, 7));
    EXPECT_FALSE(ORX::g_cli(pts, O, 5, COrxPoint3d(-1, 6, 0), COrxPoint3d(1, 6, 0)));
    EXPECT_EQ(pts.len(), 1);
    ASSERT_TRUE(ORX::g_cli(pts, O, 5, COrxPoint3d(0, 3, 0), COrxPoint3d(10, 3, 0)));
    ASSERT_EQ(pts.len(), 1);
    EXPECT_EQ(pts[0], COrxPoint3d(4, 3, 0));
    EXPECT_FALSE(ORX::g_cli(pts, O, 5, COrxPoint3d(0, 3, 0), COrxPoint3d(1, 3, 0)));
    EXPECT_EQ(pts.len(), 0);
}

TEST(IntersectionsTest, ArcsKeepOnlyTheirOwnPoints) {
    COrxPoint3dArray pts;
    // The upper half circle against the line y = 3.
    ASSERT_TRUE(ORX::g_ali(pts, O, 5, 0, pi, COrxPoint3d(-9, 3, 0), COrxPoint3d(9, 3, 0)));
    EXPECT_EQ(pts.len(), 2);
    EXPECT_FALSE(ORX::g_ali(pts, O, 5, pi, 0, COrxPoint3d(-9, 3, 0), COrxPoint3d(9, 3, 0)));
    ASSERT_TRUE(
        ORX::g_ali(pts, O, 5, pi / 2, 3 * pi / 2, COrxPoint3d(-9, 3, 0), COrxPoint3d(0, 3, 0)));
    ASSERT_EQ(pts.len(), 1);
    EXPECT_EQ(pts[0], COrxPoint3d(-4, 3, 0));
    // Circle against arc: true also when every point lies off the arc.
    EXPECT_TRUE(ORX::g_cai(pts, O, 5, COrxPoint3d(8, 0, 0), 5, pi / 2, 3 * pi / 2));
    EXPECT_EQ(pts.len(), 2);
    EXPECT_TRUE(ORX::g_cai(pts, O, 5, COrxPoint3d(8, 0, 0), 5, -pi / 2, pi / 2));
    EXPECT_EQ(pts.len(), 0);
    EXPECT_TRUE(ORX::g_cai(pts, O, ORX::nan(), O, 5, 0, 1));
    // Arc against arc.
    ASSERT_TRUE(ORX::g_aai(pts, O, 5, 0, pi / 2, COrxPoint3d(8, 0, 0), 5, pi / 2, pi));
    ASSERT_EQ(pts.len(), 1);
    EXPECT_EQ(pts[0], COrxPoint3d(4, 3, 0));
}

TEST(IntersectionsTest, ConcentricArcsMeetOnlyAtCommonEnds) {
    COrxPoint3dArray pts;
    // End to end on one circle: exactly the shared point.
    ASSERT_TRUE(ORX::g_aai(pts, O, 2, 0, pi / 2, O, 2, pi / 2, pi));
    ASSERT_EQ(pts.len(), 1);
    EXPECT_EQ(pts[0], COrxPoint3d(0, 2, 0));
    // Overlapping arcs give no overlap range, only ends that coincide.
    EXPECT_FALSE(ORX::g_aai(pts, O, 2, 0, pi, O, 2, pi / 2, 3 * pi / 2));
    ASSERT_TRUE(ORX::g_aai(pts, O, 2, 0, pi, O, 2, pi / 2, pi));
    ASSERT_EQ(pts.len(), 1);
    EXPECT_EQ(pts[0], COrxPoint3d(-2, 0, 0));
    // Two arcs that close the circle share both ends; arc 1's order comes first.
    ASSERT_TRUE(ORX::g_aai(pts, O, 2, 0, pi, O, 2, pi, ORX::kTwoPi));
    ASSERT_EQ(pts.len(), 2);
    EXPECT_EQ(pts[0], COrxPoint3d(2, 0, 0));
    EXPECT_EQ(pts[1], COrxPoint3d(-2, 0, 0));
    EXPECT_FALSE(ORX::g_aai(pts, O, 2, 0, pi, O, 3, 0, pi));
}

TEST(IntersectionsTest, FoundPointsLieOnBothOperands) {
    std::mt19937 random(4242);
    std::uniform_real_distribution<double> coord(-50.0, 50.0);
    std::uniform_real_distribution<double> radius(0.5, 40.0);
    std::uniform_real_distribution<double> angle(0.0, ORX::kTwoPi);
    int found = 0;
    for (int trial = 0; trial < 500; ++trial) {
        COrxPoint3d const c1(coord(random), coord(random), 0), c2(coord(random), coord(random), 0);
        COrxPoint3d const p1(coord(random), coord(random), 0), p2(coord(random), coord(random), 0);
        double const r1 = radius(random), r2 = radius(random);
        double const a0 = angle(random), a1 = angle(random), b0 = angle(random), b1 = angle(random);
        COrxPoint3dArray pts;
        ORX::g_cci(pts, c1, r1, c2, r2);
        for (int k = 0; k < pts.len(); ++k) {
            EXPECT_TRUE(onCircle(c1, r1, pts[k]) && onCircle(c2, r2, pts[k])) << trial;
        }
        ORX::g_cli0(pts, c1, r1, p1, p2);
        for (int k = 0; k < pts.len(); ++k) {
            EXPECT_TRUE(onCircle(c1, r1, pts[k]) && onLine(p1, p2, pts[k])) << trial;
        }
        ORX::g_ali(pts, c1, r1, a0, a1, p1, p2);
        for (int k = 0; k < pts.len(); ++k) {
            EXPECT_TRUE(onCircle(c1, r1, pts[k]) && onLine(p1, p2, pts[k])) << trial;
        }
        ORX::g_aai(pts, c1, r1, a0, a1, c2, r2, b0, b1);
        found += pts.len();
        for (int k = 0; k < pts.len(); ++k) {
            EXPECT_TRUE(onCircle(c1, r1, pts[k]) && onCircle(c2, r2, pts[k])) << trial;
        }
    }
    EXPECT_GT(found, 50);  // the random cases do meet
}

TEST(IntersectionsTest, PerpendicularDirection) {
    COrxPoint3d const a(0, 0, 0), b(4, 0, 0);
    EXPECT_DOUBLE_EQ(ORX::g_lot(a, b, COrxPoint3d(1, 2, 5)), pi / 2);
    EXPECT_DOUBLE_EQ(ORX::g_lot(a, b, COrxPoint3d(9, -2, 0)), 3 * pi / 2);
    EXPECT_EQ(ORX::g_lot(a, b, COrxPoint3d(2, 0, 0)), 0.0);
    EXPECT_TRUE(std::isnan(ORX::g_lot(a, b, COrxPoint3d(ORX::nan(), 0, 0))));
}
