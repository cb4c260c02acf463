#include "orx/plane_geometry/intersections.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "orx/geom/functions.h"
#include "orx/plane_geometry/bulges.h"
#include "orx/plane_geometry/lines.h"
#include "orx/plane_geometry/points.h"
#include "tests/support/lists.h"

using orx_test::list;

namespace {

using P = COrxPoint3d;
double const pi = ORX::kPi;
P const O(0, 0, 0);

bool onCircle(P const& c, double r, P const& p) {
    return std::fabs(ORX::g_dist2d(c, p) - r) <= COrxPoint3d::tol;
}

bool onLine(P const& a, P const& b, P const& p) {
    return ORX::g_aabs(a, b, p) <= COrxPoint3d::tol;
}

bool onArc(P const& c, double r, double a0, double a1, P const& p) {
    return ORX::g_arc_pt(c, r, a0, a1, p);
}

}  // namespace

TEST(IntersectionsTest, CirclesCrossTouchOrMiss) {
    COrxPoint3dArray pts;
    ASSERT_TRUE(ORX::g_cci(pts, O, 5, P(8, 0, 0), 5));
    EXPECT_EQ(pts, list({P(4, 3, 0), P(4, -3, 0)}));
    // External contact: the single point halfway between the centres.
    ASSERT_TRUE(ORX::g_cci(pts, O, 1, P(2, 0, 0), 1));
    EXPECT_EQ(pts, list({P(1, 0, 0)}));
    // Internal contact: on the larger circle, from its centre towards the smaller one's.
    ASSERT_TRUE(ORX::g_cci(pts, O, 1, P(2, 0, 0), 3));
    EXPECT_EQ(pts, list({P(-1, 0, 0)}));
    // Concentric: different radii give nothing, equal ones the internal-contact point.
    EXPECT_FALSE(ORX::g_cci(pts, O, 1, O, 2));
    EXPECT_EQ(pts.len(), 0);
    ASSERT_TRUE(ORX::g_cci(pts, P(1, 1, 0), 2, P(1, 1, 0), 2));
    EXPECT_EQ(pts, list({P(3, 1, 0)}));
    EXPECT_FALSE(ORX::g_cci(pts, O, 1, P(5, 0, 0), 1));
    EXPECT_FALSE(ORX::g_cci(pts, O, -1, P(1, 0, 0), 1));
}

TEST(IntersectionsTest, LinesAndCircles) {
    COrxPoint3dArray pts;
    // A flat line: x is the parameter; points in order of the parameter, z of the centre.
    ASSERT_TRUE(ORX::g_cli0(pts, P(0, 0, 4), 5, P(10, 3, 0), P(9, 3, 0)));
    EXPECT_EQ(pts, list({P(-4, 3, 4), P(4, 3, 4)}));
    // A steep line: y is the parameter.
    ASSERT_TRUE(ORX::g_cli0(pts, O, 5, P(3, 0, 0), P(3, 1, 0)));
    EXPECT_EQ(pts, list({P(3, -4, 0), P(3, 4, 0)}));
    // Touching, and missing by less than the tolerance: one point.
    ASSERT_TRUE(ORX::g_cli0(pts, O, 5, P(-1, 5, 0), P(1, 5, 0)));
    EXPECT_EQ(pts, list({P(0, 5, 0)}));
    ASSERT_TRUE(ORX::g_cli0(pts, O, 5, P(-1, 5 + 5e-6, 0), P(1, 5 + 5e-6, 0)));
    EXPECT_EQ(pts.len(), 1);
    EXPECT_FALSE(ORX::g_cli0(pts, O, 5, P(-1, 5.001, 0), P(1, 5.001, 0)));
    EXPECT_FALSE(ORX::g_cli0(pts, O, 5, P(1, 1, 0), P(1, 1, 3)));
    // The segment form keeps the points on the segment; when the line misses, pts stays.
    pts = list({P(7, 7, 7)});
    EXPECT_FALSE(ORX::g_cli(pts, O, 5, P(-1, 6, 0), P(1, 6, 0)));
    EXPECT_EQ(pts.len(), 1);
    ASSERT_TRUE(ORX::g_cli(pts, O, 5, P(0, 3, 0), P(10, 3, 0)));
    EXPECT_EQ(pts, list({P(4, 3, 0)}));
    EXPECT_FALSE(ORX::g_cli(pts, O, 5, P(0, 3, 0), P(1, 3, 0)));
    EXPECT_EQ(pts.len(), 0);
}

TEST(IntersectionsTest, ArcsKeepOnlyTheirOwnPoints) {
    COrxPoint3dArray pts;
    // The upper half circle against the line y = 3.
    ASSERT_TRUE(ORX::g_ali(pts, O, 5, 0, pi, P(-9, 3, 0), P(9, 3, 0)));
    EXPECT_EQ(pts.len(), 2);
    EXPECT_FALSE(ORX::g_ali(pts, O, 5, pi, 0, P(-9, 3, 0), P(9, 3, 0)));
    ASSERT_TRUE(ORX::g_ali(pts, O, 5, pi / 2, 3 * pi / 2, P(-9, 3, 0), P(0, 3, 0)));
    EXPECT_EQ(pts, list({P(-4, 3, 0)}));
    // Circle against arc: true also when every point lies off the arc.
    EXPECT_TRUE(ORX::g_cai(pts, O, 5, P(8, 0, 0), 5, pi / 2, 3 * pi / 2));
    EXPECT_EQ(pts.len(), 2);
    EXPECT_TRUE(ORX::g_cai(pts, O, 5, P(8, 0, 0), 5, -pi / 2, pi / 2));
    EXPECT_EQ(pts.len(), 0);
    EXPECT_TRUE(ORX::g_cai(pts, O, ORX::nan(), O, 5, 0, 1));
    ASSERT_TRUE(ORX::g_aai(pts, O, 5, 0, pi / 2, P(8, 0, 0), 5, pi / 2, pi));
    EXPECT_EQ(pts, list({P(4, 3, 0)}));
}

TEST(IntersectionsTest, ConcentricArcsMeetOnlyAtCommonEnds) {
    COrxPoint3dArray pts;
    ASSERT_TRUE(ORX::g_aai(pts, O, 2, 0, pi / 2, O, 2, pi / 2, pi));  // end to end
    EXPECT_EQ(pts, list({P(0, 2, 0)}));
    // Overlapping arcs give no overlap range, only ends that coincide.
    EXPECT_FALSE(ORX::g_aai(pts, O, 2, 0, pi, O, 2, pi / 2, 3 * pi / 2));
    ASSERT_TRUE(ORX::g_aai(pts, O, 2, 0, pi, O, 2, pi / 2, pi));
    EXPECT_EQ(pts, list({P(-2, 0, 0)}));
    // Two arcs that close the circle share both ends; arc 1's order comes first.
    ASSERT_TRUE(ORX::g_aai(pts, O, 2, 0, pi, O, 2, pi, ORX::kTwoPi));
    EXPECT_EQ(pts, list({P(2, 0, 0), P(-2, 0, 0)}));
    EXPECT_FALSE(ORX::g_aai(pts, O, 2, 0, pi, O, 3, 0, pi));
}

TEST(IntersectionsTest, FlatArcAlongAStraightSegmentMeetsItOnlyAtCommonEnds) {
    // Arcs whose sagitta is far below the tolerance run along the chord's line, from a bulge
    // near the limit of the tolerance down to a subnormal one: like two arcs of one circle
    // they meet only at the ends they share, never at a touching point in between (cutting
    // there leaves two halves that overlap again).
    P const s(0, 0, 0), e(-21, 0, 0);
    for (double bulge : {1e-9, 1e-15, 1e-100, 1e-300, 5.2454119588680132e-317}) {
        SCOPED_TRACE(bulge);
        COrxPoint3dArray pts;
        ASSERT_TRUE(ORX::g_bulg_int(pts, s, e, bulge, e, s, 0.0, false));
        EXPECT_EQ(pts, list({s, e}));
        ASSERT_TRUE(ORX::g_bulg_int(pts, e, s, 0.0, s, e, bulge, false));
        EXPECT_EQ(pts, list({e, s}));
        // Only one end in common, the other inside the straight segment.
        ASSERT_TRUE(ORX::g_bulg_int(pts, s, e, bulge, P(-30, 0, 0), s, 0.0, false));
        EXPECT_EQ(pts, list({s}));
    }
    // A line across the flat arc still meets it once.
    COrxPoint3dArray pts;
    ASSERT_TRUE(ORX::g_bulg_int(pts, s, e, 1e-300, P(-5, -3, 0), P(-5, 3, 0), 0.0, false));
    EXPECT_EQ(pts, list({P(-5, 0, 0)}));
}

TEST(IntersectionsTest, FoundPointsLieOnBothOperands) {
    std::mt19937 random(4242);
    std::uniform_real_distribution<double> coord(-50.0, 50.0);
    std::uniform_real_distribution<double> radius(0.5, 40.0);
    std::uniform_real_distribution<double> angle(0.0, ORX::kTwoPi);
    int found = 0;
    for (int trial = 0; trial < 500; ++trial) {
        P const c1(coord(random), coord(random), 0), c2(coord(random), coord(random), 0);
        P const p1(coord(random), coord(random), 0), p2(coord(random), coord(random), 0);
        double const r1 = radius(random), r2 = radius(random);
        double const a0 = angle(random), a1 = angle(random), b0 = angle(random), b1 = angle(random);
        COrxPoint3dArray pts;
        auto expectEach = [&](auto onBoth) {
            for (int k = 0; k < pts.len(); ++k) {
                EXPECT_TRUE(onBoth(pts[k])) << trial;
            }
        };
        ORX::g_cci(pts, c1, r1, c2, r2);
        expectEach([&](P const& p) { return onCircle(c1, r1, p) && onCircle(c2, r2, p); });
        ORX::g_cli0(pts, c1, r1, p1, p2);
        expectEach([&](P const& p) { return onCircle(c1, r1, p) && onLine(p1, p2, p); });
        ORX::g_cli(pts, c1, r1, p1, p2);
        expectEach([&](P const& p) { return onCircle(c1, r1, p) && ORX::g_line_pt(p1, p2, p); });
        ORX::g_cai(pts, c1, r1, c2, r2, b0, b1);
        expectEach([&](P const& p) { return onCircle(c1, r1, p) && onArc(c2, r2, b0, b1, p); });
        P crossing;
        if (ORX::inters(p1, p2, c1, c2, false, crossing)) {
            EXPECT_TRUE(onLine(p1, p2, crossing)) << trial;
            EXPECT_TRUE(onLine(c1, c2, crossing)) << trial;
        }
        ORX::g_ali(pts, c1, r1, a0, a1, p1, p2);
        expectEach([&](P const& p) { return onLine(p1, p2, p) && onArc(c1, r1, a0, a1, p); });
        ORX::g_aai(pts, c1, r1, a0, a1, c2, r2, b0, b1);
        found += pts.len();
        expectEach(
            [&](P const& p) { return onArc(c1, r1, a0, a1, p) && onArc(c2, r2, b0, b1, p); });
    }
    EXPECT_GT(found, 50);  // the random cases do meet
}

TEST(IntersectionsTest, PerpendicularDirection) {
    P const a(0, 0, 0), b(4, 0, 0);
    EXPECT_DOUBLE_EQ(ORX::g_lot(a, b, P(1, 2, 5)), pi / 2);
    EXPECT_DOUBLE_EQ(ORX::g_lot(a, b, P(9, -2, 0)), 3 * pi / 2);
    EXPECT_EQ(ORX::g_lot(a, b, P(2, 0, 0)), 0.0);
    EXPECT_TRUE(std::isnan(ORX::g_lot(a, b, P(ORX::nan(), 0, 0))));
}
