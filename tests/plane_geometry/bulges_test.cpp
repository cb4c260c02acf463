#include "orx/plane_geometry/bulges.h"

#include <gtest/gtest.h>

#include <cmath>

#include "orx/geom/functions.h"

namespace {
using P = COrxPoint3d;
double const pi = ORX::kPi;
P const O(0, 0, 0);
}  // namespace

TEST(BulgesTest, BulgeFromAngles) {
    EXPECT_EQ(ORX::g_arc_bulg(1.0, 1.0), 0.0);
    EXPECT_DOUBLE_EQ(ORX::g_arc_bulg(3 * pi / 2, 0.0), std::tan(pi / 8));
    EXPECT_DOUBLE_EQ(ORX::g_arc_bulg(0.0, pi), 1.0);
    EXPECT_DOUBLE_EQ(ORX::g_arcmp_bulg(O, P(0, 1, 0), P(1, 0, 0)), std::tan(3 * pi / 8));
}

TEST(BulgesTest, RadiusSignSelectsTheArc) {
    P const p1(0, 0, 0), p2(6, 0, 0);
    double bulge = 99;
    EXPECT_TRUE(ORX::g_arcrad_bulg(bulge, p1, p2, 5.0));
    EXPECT_EQ(bulge, 1.0 / 3);
    EXPECT_TRUE(ORX::g_arcrad_bulg(bulge, p1, p2, -5.0));
    EXPECT_EQ(bulge, -3.0);
    EXPECT_TRUE(ORX::g_arcrad_bulg(bulge, p1, p2, 0.0));
    EXPECT_EQ(bulge, 0.0);
    bulge = 99;
    EXPECT_FALSE(ORX::g_arcrad_bulg(bulge, p1, p2, 2.0));
    EXPECT_FALSE(ORX::g_arcrad_bulg(bulge, p1, p1, 2.0));
    EXPECT_FALSE(ORX::g_arcrad_bulg(bulge, p1, p2, ORX::nan()));
    EXPECT_EQ(bulge, 99.0);
    EXPECT_TRUE(std::isnan(ORX::g_arcrad_bulg(p1, p2, 2.0)));
    EXPECT_DOUBLE_EQ(ORX::g_arcrad_bulg(p1, p2, 3.0), 1.0);  // half circle
}

TEST(BulgesTest, CentreMidpointAndLengthOfASegment) {
    P const start(1, 0, 0), end(0, 1, 0);
    double const quarter = std::tan(pi / 8);
    EXPECT_EQ(ORX::g_bulg_cen(end, start, -quarter), O);
    EXPECT_EQ(ORX::g_bulg_cen(start, end, 0.0), P(0.5, 0.5, 0));
    EXPECT_EQ(ORX::g_bulg_cen(start, start, 1.0), start);
    EXPECT_EQ(ORX::g_bulg_mid(start, end, -quarter), P(1 - std::sqrt(0.5), 1 - std::sqrt(0.5), 0));
    EXPECT_EQ(ORX::g_arc_mid(P(5, 5, 0), 2.0, 3 * pi / 2, 0.0),
              P(5 + std::sqrt(2.0), 5 - std::sqrt(2.0), 0));
    EXPECT_DOUBLE_EQ(ORX::g_bulg_len(start, end, -1 / quarter), 3 * pi / 2);
    EXPECT_DOUBLE_EQ(ORX::g_bulg_len(start, end, 5e-324), std::sqrt(2.0));
    EXPECT_DOUBLE_EQ(ORX::g_bulg_len(start, P(0, 1, 0), P(-1, 0, 0)), pi);
    EXPECT_DOUBLE_EQ(ORX::g_bulg_len(O, P(1, 0, 0), P(3, 0, 0)), 3.0);
    EXPECT_TRUE(std::isnan(ORX::g_bulg_len(O, P(4, 0, 0), P(3, 0, 0))));
    EXPECT_TRUE(std::isnan(ORX::g_bulg_cen(start, end, ORX::nan()).x));
}

TEST(BulgesTest, Chords) {
    EXPECT_DOUBLE_EQ(ORX::g_sec_ang(1.0, 2.0), pi);
    EXPECT_DOUBLE_EQ(ORX::g_sec_ang(2.0, 2.0), pi / 3);
    EXPECT_TRUE(std::isnan(ORX::g_sec_ang(1.0, 3.0)));
    EXPECT_DOUBLE_EQ(ORX::g_sec_len(2.0, pi / 3), 2.0);
    EXPECT_TRUE(std::isnan(ORX::g_sec_len2(0.5, 0.5)));  // the arguments compared directly
}

TEST(BulgesTest, ArcThroughThreePoints) {
    P const a(1, 0, 2), b(0, 1, 0), c(-1, 0, 0);
    double bulge = 0;
    ASSERT_TRUE(ORX::g_arc3p_bulg(a, b, c, bulge));
    EXPECT_DOUBLE_EQ(bulge, 1.0);
    // From (1, 0) clockwise through (0, -1) on to (0, 1): three quarters.
    ASSERT_TRUE(ORX::g_arc3p_bulg(P(1, 0, 0), P(0, -1, 0), b, bulge));
    EXPECT_DOUBLE_EQ(bulge, -std::tan(3 * pi / 8));
    P centre(9, 9, 9);
    ASSERT_TRUE(ORX::g_arc3p_cen(P(4, 1, 0), P(1, 4, 0), P(-2, 1, 0), centre));
    EXPECT_EQ(centre, P(1, 1, 0));
    EXPECT_EQ(ORX::g_arc3p_orient(c, b, a, centre), -1);
    EXPECT_EQ(centre, P(0, 0, 0));  // the first point's z
    P apex;
    ASSERT_TRUE(ORX::g_arc3p_tan(P(1, 0, 0), P(std::sqrt(0.5), std::sqrt(0.5), 0), b, apex));
    EXPECT_EQ(apex, P(1, 1, 0));
    EXPECT_FALSE(ORX::g_arc3p_tan(a, b, c, apex));  // half circle: parallel tangents
    // Collinear or coinciding points make no arc; outputs stay.
    centre.set(9, 9, 9);
    bulge = 9;
    EXPECT_FALSE(ORX::g_arc3p_bulg(O, P(1, 1 + 5e-6, 0), P(2, 2, 0), bulge));
    EXPECT_FALSE(ORX::g_arc3p_cen(O, P(3, 3, 0), O, centre));
    EXPECT_EQ(ORX::g_arc3p_orient(O, P(ORX::nan(), 0, 0), P(3, 3, 0), centre), 0);
    EXPECT_EQ(bulge, 9.0);
    EXPECT_EQ(centre, P(9, 9, 9));
}

TEST(BulgesTest, PointOnArcIsTolerantAtTheEndsAndTheSeam) {
    double const t = P::tol;
    P const c(10, 10, 0);
    double const r = 100.0;
    auto at = [&](double angle, double radius) { return ORX::polar(c, angle, radius); };
    // A quarter arc.
    EXPECT_TRUE(ORX::g_arc_pt(c, r, 0.0, pi / 2, at(0.5, r + 0.9 * t)));
    EXPECT_FALSE(ORX::g_arc_pt(c, r, 0.0, pi / 2, at(0.5, r + 1.1 * t)));
    EXPECT_TRUE(ORX::g_arc_pt(c, r, 0.0, pi / 2, at(-0.9 * t / r, r)));
    EXPECT_FALSE(ORX::g_arc_pt(c, r, 0.0, pi / 2, at(-1.1 * t / r, r)));
    EXPECT_FALSE(ORX::g_arc_pt(c, r, 0.0, pi / 2, at(pi, r)));
    // Across the seam: the end angle below the start angle.
    EXPECT_TRUE(ORX::g_arc_pt(c, r, 3 * pi / 2, 0.5, at(0.0, r)));
    EXPECT_FALSE(ORX::g_arc_pt(c, r, 3 * pi / 2, 0.5, at(pi, r)));
    // The end at 2pi is the end at 0; 0 to 2pi is the whole circle.
    EXPECT_TRUE(ORX::g_arc_pt(c, r, pi, ORX::kTwoPi, at(-0.9 * t / r, r)));
    EXPECT_FALSE(ORX::g_arc_pt(c, r, pi, ORX::kTwoPi, at(0.1, r)));
    EXPECT_TRUE(ORX::g_arc_pt(c, r, 0.0, ORX::kTwoPi, at(2.0, r)));
    EXPECT_TRUE(ORX::g_arc_pt(c, r, 1e-9, -1e-9, at(pi, r)));  // nearly full: the long way
    EXPECT_FALSE(ORX::g_arc_pt(c, r, 1.0, 1.0, at(1.1, r)));   // equal angles: the point only
    // Angles given outside [0, 2pi].
    EXPECT_TRUE(ORX::g_arc_pt(c, r, -pi / 2, pi / 2 + 4 * pi, at(0.0, r)));
    EXPECT_FALSE(ORX::g_arc_pt(c, r, -pi / 2, pi / 2 + 4 * pi, at(pi, r)));
    EXPECT_TRUE(ORX::g_arc_pt(c, 0.0, 0.0, 1.0, c));
    EXPECT_FALSE(ORX::g_arc_pt(c, -r, 0.0, pi, at(0.5, r)));
    EXPECT_FALSE(ORX::g_arc_pt(c, r, ORX::nan(), pi, at(0.5, r)));
    EXPECT_FALSE(ORX::g_arc_pt(c, r, 0.0, pi, P(ORX::nan(), 0, 0)));
}
