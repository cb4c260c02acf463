#include "orx/plane_geometry/tangents.h"

#include <gtest/gtest.h>

#include <cmath>

#include "orx/geom/functions.h"
#include "orx/plane_geometry/ellipses.h"
#include "orx/plane_geometry/points.h"

namespace {
using P = COrxPoint3d;
double const pi = ORX::kPi;
P const O(0, 0, 0);
}  // namespace

TEST(TangentsTest, ProfileFormulas) {
    EXPECT_DOUBLE_EQ(ORX::g_tang_radius(1.0, 3.0), 5.0);
    EXPECT_DOUBLE_EQ(ORX::g_tang_ang(O, 1.0, P(4, 0, 0), 1.0), pi / 6);
    EXPECT_TRUE(std::isnan(ORX::g_tang_cen(1.0, 2.0, 3.0, 0.0)));
    EXPECT_DOUBLE_EQ(ORX::g_korb_3m(4.0, 3.0), 5.0);
    EXPECT_DOUBLE_EQ(ORX::g_rkorb(2.0, 1.0, 3.0), 1.0);
    EXPECT_TRUE(std::isnan(ORX::g_rkorb2(2.0, 1.0, 1.0)));  // divides by zero
    EXPECT_TRUE(std::isnan(ORX::g_fries_w(1.0, 1.0, -1.0)));
    EXPECT_DOUBLE_EQ(ORX::g_fries_r(2.0, 2.0, 0.0), 1.0);  // the short form
    EXPECT_DOUBLE_EQ(ORX::g_achs_dist(1.0, 1.0, 4.0, 2.0, 2.0), 1.0 + std::sqrt(2.0));
}

TEST(TangentsTest, CirclesTouchingTwoCircles) {
    COrxPoint3dArray pts;
    ASSERT_TRUE(ORX::g_tang2_cen(pts, O, 2, P(8, 0, 0), 2, 3));
    EXPECT_EQ(pts.len(), 2);
    EXPECT_EQ(pts[0], P(4, 3, 0));
    EXPECT_EQ(pts[1], P(4, -3, 0));
    ASSERT_TRUE(ORX::g_tang2_cen(pts, O, 2, P(8, 0, 0), 2, 2));
    EXPECT_EQ(pts.len(), 1);
    EXPECT_EQ(pts[0], P(4, 0, 0));  // the gap is one diameter wide
    EXPECT_FALSE(ORX::g_tang2_cen(pts, O, 2, P(8, 0, 0), 2, 1));
    EXPECT_FALSE(ORX::g_tang2_cen(pts, O, 2, P(8, 0, 0), 2, 0));
    P centre(9, 9, 9);
    double r = 9;
    ASSERT_TRUE(ORX::g_tang3_cen(centre, r, O, P(4, 0, 0), P(0, 3, 0)));
    EXPECT_EQ(centre, P(1, 1, 0));
    EXPECT_DOUBLE_EQ(r, 1.0);
    EXPECT_FALSE(ORX::g_tang3_cen(centre, r, O, P(1, 0, 0), P(2, 0, 0)));
    EXPECT_EQ(r, 1.0);
}

TEST(TangentsTest, FiveCentreArcIsASmoothChain) {
    COrxPoint3dArray centres;
    double const a = 10.0, b = 6.0;
    double const crown = ORX::g_korb_5m(a, b, centres);
    ASSERT_EQ(centres.len(), 5);
    EXPECT_EQ(centres[2], P(0, b - crown, 0));
    double const springing = a - centres[4].x, middle = (crown + springing) / 2;
    // Each joint lies on both neighbouring arcs (tangent arcs): right springing to the crown.
    double const s = ORX::kFiveCentreStep;
    EXPECT_EQ(ORX::polar(centres[3], s, middle), ORX::polar(centres[4], s, springing));
    EXPECT_EQ(ORX::polar(centres[2], 2 * s, crown), ORX::polar(centres[3], 2 * s, middle));
    EXPECT_EQ(ORX::g_p_mrx(centres[1]), centres[3]);
    // A half circle when the rise equals the half span; no arc when it is too flat or high.
    EXPECT_DOUBLE_EQ(ORX::g_korb_5m(4.0, 4.0, centres), 4.0);
    EXPECT_EQ(centres[0], O);
    EXPECT_TRUE(std::isnan(ORX::g_korb_5m(10.0, 3.0, centres)));
    EXPECT_TRUE(std::isnan(ORX::g_korb_5m(4.0, 5.0, centres)));
    EXPECT_EQ(centres[0], O);  // untouched
}

TEST(TangentsTest, FilletCentreAndTangentsFromAPoint) {
    P centre(9, 9, 9);
    ASSERT_TRUE(ORX::g_nm_fillet_mp(centre, P(5, 0, 0), O, P(0, 5, 0), 1.0));
    EXPECT_EQ(centre, P(1, 1, 0));
    centre.set(9, 9, 9);
    EXPECT_FALSE(ORX::g_nm_fillet_mp(centre, P(-5, 0, 0), O, P(5, 0, 0), 1.0));
    EXPECT_FALSE(ORX::g_nm_fillet_mp(centre, P(5, 0, 0), O, P(3, 0, 0), 1.0));
    EXPECT_FALSE(ORX::g_nm_fillet_mp(centre, O, O, P(3, 0, 0), 1.0));
    EXPECT_FALSE(ORX::g_nm_fillet_mp(centre, P(5, 0, 0), O, P(0, 5, 0), -1.0));
    EXPECT_EQ(centre, P(9, 9, 9));
    COrxPoint3dArray pts;
    ASSERT_TRUE(ORX::g_nm_pkt_tan(pts, P(0, 10, 0), O, 5));
    // 30 degrees either side of the direction to p, a + g first.
    double const h = 5 * std::sqrt(0.75);
    EXPECT_EQ(pts.len(), 2);
    EXPECT_EQ(pts[0], P(-h, 2.5, 0));
    EXPECT_EQ(pts[1], P(h, 2.5, 0));
    ASSERT_TRUE(ORX::g_nm_pkt_tan(pts, P(0, 5, 0), O, 5));
    EXPECT_EQ(pts.len(), 1);  // p on the circle
    EXPECT_FALSE(ORX::g_nm_pkt_tan(pts, P(0, 1, 0), O, 5));
}

TEST(EllipsesTest, ParameterAndPolarAngleConvert) {
    EXPECT_EQ(ORX::g_ellips_pt(P(1, 1, 2), 4.0, 2.0, pi / 2, 0.0), P(1, 5, 2));
    EXPECT_EQ(ORX::g_ellips_pt(O, 4.0, 2.0, 0.0, pi / 2), P(0, 2, 0));
    for (double t : {0.3, 2.0, 3.5, 5.9}) {
        double const w = ORX::g_elps_w(4.0, 2.0, t);
        EXPECT_DOUBLE_EQ(ORX::g_elps_p(4.0, 2.0, w), t);
        EXPECT_NEAR(ORX::angle(O, ORX::g_ellips_pt(O, 4.0, 2.0, 0.0, t)), w, 1e-12);
    }
    EXPECT_TRUE(std::isnan(ORX::g_elps_w(0.0, 2.0, 1.0)));
    EXPECT_TRUE(std::isnan(ORX::g_elps_p(4.0, -2.0, 1.0)));
    EXPECT_FALSE(ORX::g_ellips_pt(O, ORX::nan(), 2.0, 0.0, 1.0).isValid());
}
