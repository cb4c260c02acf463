#include "orx/plane_geometry/lines.h"

#include <gtest/gtest.h>

#include "orx/geom/functions.h"
#include "orx/plane_geometry/points.h"

namespace {
using P = COrxPoint3d;
P const O(0, 0, 0);
}  // namespace

TEST(LinesTest, PerpendicularFootAndPointOnSegment) {
    P const a(0, 0, 0), b(10, 0, 0);
    EXPECT_EQ(ORX::g_lotp(a, b, P(-3, 4, 0)), P(-3, 0, 0));
    EXPECT_EQ(ORX::g_lotp(a, P(1e-6, 0, 0), P(3, 4, 0)), a);
    double const t = P::tol;
    EXPECT_TRUE(ORX::g_line_pt(a, b, P(5, 0.5 * t, 0)));
    EXPECT_FALSE(ORX::g_line_pt(a, b, P(5, 1.5 * t, 0)));
    EXPECT_TRUE(ORX::g_line_pt(a, b, P(10 + 0.5 * t, 0, 0)));
    EXPECT_FALSE(ORX::g_line_pt(a, a, b));
    EXPECT_FALSE(ORX::g_line_pt(P(ORX::nan(), 0, 0), b, P(ORX::nan(), 0, 0)));
}

TEST(LinesTest, IntersectionOfTwoLines) {
    P out(9, 9, 9);
    // Parallel lines never meet (a vertical pair too); out stays as it was.
    EXPECT_FALSE(ORX::inters(O, P(1, 1, 0), P(0, 1, 0), P(2, 3, 0), false, out));
    EXPECT_FALSE(ORX::inters(O, P(0, 1, 0), P(1, 0, 0), P(1, 5, 0), false, out));
    EXPECT_FALSE(ORX::inters(O, O, P(-1, 1, 0), P(1, -1, 0), false, out));  // first is no line
    EXPECT_EQ(out, P(9, 9, 9));
    // A vertical second line, bounded and not.
    P const p1(0, 0, 0), p2(1, 0, 0), p3(2, -1, 0), p4(2, 1, 0);
    EXPECT_FALSE(ORX::inters(p1, p2, p3, p4, true, out));
    ASSERT_TRUE(ORX::inters(p1, p2, p3, p4, false, out));
    EXPECT_EQ(out, P(2, 0, 0));
    // A vertical first line exchanges roles: z comes from the other line's start.
    ASSERT_TRUE(ORX::inters(P(2, -1, 7), P(2, 3, 7), P(0, 0, 3), P(4, 4, 3), false, out));
    EXPECT_EQ(out, P(2, 2, 3));
    // Crossing segments meet inside both; a touching end counts.
    ASSERT_TRUE(ORX::inters(O, P(4, 2, 0), P(0, 2, 0), P(4, 0, 0), true, out));
    EXPECT_EQ(out, P(2, 1, 0));
    EXPECT_TRUE(ORX::inters(O, P(4, 0, 0), P(4, 0, 0), P(5, 3, 0), true, out));
    EXPECT_FALSE(ORX::inters(O, P(4, 0, 0), P(5, -1, 0), P(5, 3, 0), true, out));
    out.set(9, 9, 9);  // overflowing slopes give no point
    EXPECT_FALSE(ORX::inters(O, P(1, 1e308, 0), P(0, -1e308, 0), P(1, 1e308, 0), false, out));
    EXPECT_EQ(out, P(9, 9, 9));
}

TEST(LinesTest, NearestAndFarthestPoint) {
    COrxPoint3dArray pts;
    EXPECT_EQ(ORX::g_near_p1(P(5, 5, 5), pts), P(5, 5, 5));
    EXPECT_EQ(ORX::g_far_p1(P(5, 5, 5), pts), P(5, 5, 5));
    pts.append(P(ORX::nan(), 0, 0)).append(P(2, 0, 0)).append(P(-2, 0, 0));
    pts.append(P(1, 0, 0)).append(P(-1, 0, 0));
    EXPECT_EQ(ORX::g_near_p1(O, pts), P(1, 0, 0));  // the first of equals
    EXPECT_EQ(ORX::g_far_p1(O, pts), P(2, 0, 0));
}

TEST(PointsTest, SmallPointFunctions) {
    EXPECT_EQ(ORX::g_dist2d(P(0, 0, 5), P(3, 4, -5)), 5.0);
    P const snapped = ORX::g_nrm_p(P(9e-6, -9e-6, 2e-5));
    EXPECT_EQ(snapped.x, 0.0);
    EXPECT_EQ(snapped.y, 0.0);
    EXPECT_EQ(snapped.z, 2e-5);
    EXPECT_EQ(ORX::g_point_orient(O, P(1, 0, 0), P(2, 0, 0)), 1);  // collinear
    EXPECT_EQ(ORX::g_point_orient(O, P(1, 0, 0), P(1, -1, 0)), -1);
    EXPECT_DOUBLE_EQ(ORX::g_dist_w1(P(1, 1, 0), P(4, 5, 0), ORX::kPi), -3.0);
    EXPECT_DOUBLE_EQ(ORX::g_aabs(O, O, P(3, 4, 0)), 5.0);  // no line: the distance
    EXPECT_EQ(ORX::g_p_rnd(P(1.26, -1.24, 7), 0.5), P(1.5, -1.0, 7));
    EXPECT_EQ(ORX::g_p_stretch(P(3, 1, 2), P(1, 0, 0), 0.0, 2.0), P(5, 1, 2));
    EXPECT_EQ(ORX::g_p_stretch(P(1, 3, 0), P(1, 1, 0), ORX::kHalfPi, 0.5), P(1, 2, 0));
}
