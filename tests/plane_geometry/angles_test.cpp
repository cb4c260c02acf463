#include "orx/plane_geometry/angles.h"

#include <gtest/gtest.h>

#include <cmath>

#include "orx/geom/functions.h"

namespace {
double const pi = ORX::kPi;
double const twoPi = ORX::kTwoPi;
}  // namespace

TEST(AnglesTest, NormalisationByRepeatedSubtraction) {
    EXPECT_EQ(ORX::g_ang(twoPi - 1e-9), 0.0);
    EXPECT_EQ(ORX::g_ang(-0.5), twoPi - 0.5);
    EXPECT_EQ(ORX::g_ang(7 * pi), pi);
    EXPECT_EQ(ORX::g_ang(-1e-300), twoPi);  // the added 2pi absorbs the tiny angle
    EXPECT_EQ(ORX::g_ang(twoPi - 2e-8), twoPi - 2e-8);
    EXPECT_EQ(ORX::g_signed_ang(3 * pi / 2), -pi / 2);
    EXPECT_EQ(ORX::g_signed_ang(-pi), -pi);
    EXPECT_EQ(ORX::g_signed_ang(pi), pi);
    EXPECT_DOUBLE_EQ(ORX::g_dir_nrm(5 * pi / 4), pi / 4);
    EXPECT_EQ(ORX::g_dir_nrm(pi - 0.0005), 0.0);
    EXPECT_EQ(ORX::g_dir_nrm(-2.0), -2.0);  // other negative inputs come back unchanged
}

TEST(AnglesTest, DifferencesAndComparisons) {
    EXPECT_DOUBLE_EQ(ORX::g_dw(0.1, 6.2), 6.1 - pi);  // undirected lines, not 0.183
    EXPECT_EQ(ORX::g_dw(1.0, 0.5), 0.5);
    EXPECT_TRUE(ORX::g_ang_equal(0.0, twoPi - 1e-6, 1e-5));
    EXPECT_FALSE(ORX::g_ang_equal(0.0, 1e-4, 1e-5));
    EXPECT_EQ(ORX::g_dw1(pi / 2 + 0.0004, 0.0), pi / 2);
    EXPECT_DOUBLE_EQ(ORX::g_w_halb(0.1, 6.1), 3.1 + pi);
    EXPECT_DOUBLE_EQ(ORX::g_w_mid(3 * pi / 2, 0.0), 7 * pi / 4);
    EXPECT_DOUBLE_EQ(ORX::g_w_3eck(3, 4, 5), pi / 2);
    EXPECT_TRUE(std::isnan(ORX::g_w_3eck(1, 1, 3)));  // no such triangle
}

TEST(AnglesTest, QuadrantRounding) {
    EXPECT_EQ(ORX::g_qw(pi / 4 - 1e-9), 0.0);
    EXPECT_EQ(ORX::g_qw(pi / 4), pi / 2);
    EXPECT_EQ(ORX::g_qw(7 * pi / 4 + 0.1), 0.0);
    EXPECT_EQ(ORX::g_qw(-pi / 2 - 0.2), -pi / 2);
    EXPECT_EQ(ORX::g_rnd_quad(pi / 2 + 0.0009), pi / 2);
    EXPECT_EQ(ORX::g_rnd_quad(pi / 2 + 0.0011), pi / 2 + 0.0011);
    EXPECT_EQ(ORX::g_rnd_quad(twoPi + 3 * pi / 2), 3 * pi / 2);
}

TEST(AnglesTest, OctantAndSixteenthClasses) {
    struct Case {
        double w;
        int octant;
        int sixteenth;
    };
    Case const cases[] = {{0.0, 0, 0},
                          {twoPi - 0.0005, 0, 0},
                          {0.3, 1, 1},
                          {pi / 4, 1, 2},
                          {0.9, 1, 3},
                          {pi / 2 + 0.0005, 2, 4},
                          {pi / 2 + 0.002, 3, 5},
                          {pi, 4, 8},
                          {-pi / 2, 6, 12},
                          {4.0, 5, 11},
                          {6.0, 7, 15},
                          {-0.0009, 0, 0}};
    for (Case const& c : cases) {
        EXPECT_EQ(ORX::g_oktant(c.w), c.octant) << c.w;
        EXPECT_EQ(ORX::g_sextant(c.w), c.sixteenth) << c.w;
    }
}

TEST(AnglesTest, CornerAnglesOfThreePoints) {
    COrxPoint3d const a(0, 0, 0), b(2, 0, 0), left(2, 1, 0), right(2, -1, 0);
    EXPECT_DOUBLE_EQ(ORX::g_delta_w(a, b, left), pi / 2);
    EXPECT_DOUBLE_EQ(ORX::g_delta_w(a, b, right), -pi / 2);
    EXPECT_DOUBLE_EQ(ORX::g_delta_w1(a, b, left), 3 * pi / 2);
    EXPECT_DOUBLE_EQ(ORX::g_delta_w2(a, b, COrxPoint3d(3, 0, 0)), pi);
    EXPECT_TRUE(std::isnan(ORX::g_delta_w(a, COrxPoint3d(1e-6, 0, 0), left)));
    EXPECT_TRUE(std::isnan(ORX::g_delta_w2(a, b, COrxPoint3d(ORX::nan(), 0, 0))));
    EXPECT_DOUBLE_EQ(ORX::g_v_ang(COrxVector3d(1, 0, 5), COrxVector3d(0, -1, 0)), 3 * pi / 2);
    EXPECT_TRUE(std::isnan(ORX::g_v_ang(COrxVector3d(0, 0, 1), COrxVector3d(1, 0, 0))));
}
