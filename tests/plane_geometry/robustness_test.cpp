// Bad input to the plane-geometry functions: NaN gives NaN or false, infinite and huge values
// terminate (the normalising loops included) and never report points that are not finite.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "orx/geom/functions.h"
#include "orx/plane_geometry/plane_geometry.h"

namespace {

double const inf = std::numeric_limits<double>::infinity();
double const kBad[] = {ORX::nan(), inf, -inf, 1e300, -1e300, 1e308};
COrxPoint3d const O(0, 0, 0);
COrxPoint3d const E(1, 0, 0);

}  // namespace

TEST(PlaneGeometryRobustnessTest, NanInputGivesNan) {
    double const n = ORX::nan();
    COrxPoint3d const P(n, 0, 0);
    double const angles[] = {ORX::g_ang(n),         ORX::g_signed_ang(n), ORX::g_dir_nrm(n),
                             ORX::g_dw(n, 1),       ORX::g_dw1(n, 1),     ORX::g_qw(n),
                             ORX::g_rnd_quad(n),    ORX::g_w_halb(n, 1),  ORX::g_w_mid(1, n),
                             ORX::g_w_3eck(n, 1, 1)};
    double const arcs[] = {
        ORX::g_arc_bulg(n, 1),   ORX::g_sec_ang(n, 1),         ORX::g_sec_len(1, n),
        ORX::g_sec_len2(n, 1),   ORX::g_tang_radius(n, 1),     ORX::g_tang_cen(1, 1, 1, n),
        ORX::g_korb_3m(n, 1),    ORX::g_rkorb(n, 1, 1),        ORX::g_rkorb2(1, n, 1),
        ORX::g_fries_w(n, 1, 1), ORX::g_fries_r(1, 1, n),      ORX::g_achs_dist(1, 1, n, 1, 1),
        ORX::g_elps_p(1, 1, n),  ORX::g_elps_w(1, 1, n),       ORX::g_bulg_len(O, E, n),
        ORX::g_dist_w1(O, E, n), ORX::g_arcrad_bulg(O, P, 1.0)};
    for (double v : angles) {
        EXPECT_TRUE(std::isnan(v)) << "angle function " << &v - angles;
    }
    for (double v : arcs) {
        EXPECT_TRUE(std::isnan(v)) << "arc function " << &v - arcs;
    }
}

TEST(PlaneGeometryRobustnessTest, HugeAnglesStayInRangeAndNonFiniteOnesGiveNan) {
    for (double w : {1e308, 1e300, -1e300, 1e17, -4e15, 123456.789}) {
        double const y = ORX::g_ang(w);
        EXPECT_GE(y, 0.0) << w;
        EXPECT_LE(y, ORX::kTwoPi) << w;
        EXPECT_LE(std::fabs(ORX::g_signed_ang(w)), ORX::kPi) << w;
        EXPECT_LT(ORX::g_dir_nrm(std::fabs(w)), ORX::kPi) << w;
        EXPECT_GE(ORX::g_oktant(w), 0) << w;
        EXPECT_GE(ORX::g_sextant(w), 0) << w;
        EXPECT_FALSE(std::isnan(ORX::g_qw(w))) << w;
        EXPECT_FALSE(std::isnan(ORX::g_rnd_quad(w))) << w;
    }
    for (double w : {ORX::nan(), inf, -inf}) {
        EXPECT_TRUE(std::isnan(ORX::g_ang(w))) << w;
        EXPECT_TRUE(std::isnan(ORX::g_signed_ang(w))) << w;
        EXPECT_TRUE(std::isnan(ORX::g_dir_nrm(w))) << w;
        EXPECT_TRUE(std::isnan(ORX::g_rnd_quad(w))) << w;
        EXPECT_TRUE(std::isnan(ORX::g_qw(w))) << w;
        EXPECT_EQ(ORX::g_oktant(w), -1) << w;
        EXPECT_EQ(ORX::g_sextant(w), -1) << w;
        EXPECT_FALSE(ORX::g_ang_equal(w, 0.0, 1.0)) << w;
    }
}

TEST(PlaneGeometryRobustnessTest, BadNumbersTerminateWithoutFalsePoints) {
    for (double bad : kBad) {
        COrxPoint3d const P(bad, 0, 0), N(0, 1, 0);
        COrxPoint3dArray pts;
        auto expectFinite = [&](bool found) {
            for (int k = 0; found && k < pts.len(); ++k) {
                EXPECT_TRUE(pts[k].isValid()) << bad;
            }
        };
        expectFinite(ORX::g_cci(pts, O, bad, E, 1.0));
        expectFinite(ORX::g_cci(pts, O, 1.0, P, 1.0));
        expectFinite(ORX::g_cli0(pts, O, 1.0, P, N));
        expectFinite(ORX::g_cli0(pts, O, bad, E, N));
        expectFinite(
            ORX::g_ali(pts, O, 1.0, 0.0, bad, COrxPoint3d(-2, 0, 0), COrxPoint3d(2, 0, 0)));
        expectFinite(ORX::g_aai(pts, O, 1.0, bad, 1.0, E, 1.0, 0.0, bad));
        expectFinite(ORX::g_nm_pkt_tan(pts, P, O, 1.0));
        COrxPoint3d out;
        EXPECT_TRUE(!ORX::inters(O, P, N, E, false, out) || out.isValid()) << bad;
        EXPECT_TRUE(!ORX::g_arc3p_cen(O, P, N, out) || out.isValid()) << bad;
        double bulge = 0;
        EXPECT_TRUE(!ORX::g_arcrad_bulg(bulge, O, P, 1.0) || std::isfinite(bulge)) << bad;
    }
}

TEST(PlaneGeometryRobustnessTest, ASegmentOfSubnormalLengthIsAPoint) {
    // Its half chord underflows to zero, which the frame of a segment divides by: the
    // distances came out NaN, and a point the segments share seemed to lie on neither.
    double const d = std::numeric_limits<double>::denorm_min();
    COrxPoint3d const s(-d, -d, 0), e(-d, 0, 0);
    for (double bulge : {0.0, 0.5}) {
        SCOPED_TRACE(bulge);
        EXPECT_EQ(ORX::g_bulg_pt_dist(s, e, bulge, COrxPoint3d(3, 4, 0)), 5.0);
        EXPECT_LE(ORX::g_bulg_pt_dist(s, e, bulge, O), 2 * d);
    }
    COrxPoint3dArray pts;
    ASSERT_TRUE(ORX::g_bulg_int(pts, COrxPoint3d(51, 51, 0), s, 0.0, s, e, 0.0, false));
    ASSERT_EQ(pts.len(), 1);
    EXPECT_LE(ORX::g_bulg_pt_dist(s, e, 0.0, pts[0]), COrxPoint3d::tol);
}

TEST(PlaneGeometryRobustnessTest, ATinyStraightSegmentMeasuresPointsFarBeyondItsLength) {
    // Measured in the segment's frame, where lengths count in half chords, the point lies
    // 1e219 half chords away: its squared distance overflowed and a line's zero quadratic
    // term made NaN of it.
    COrxPoint3d const s(4.0317920028340174e-313, 0, 0), e(0, 0, 0),
        p(0, -1.7785661039778271e-93, 0);
    EXPECT_NEAR(ORX::g_bulg_pt_dist(s, e, 0.0, p), 1.7785661039778271e-93, 1e-100);
    EXPECT_NEAR(ORX::g_bulg_circ_dist(s, e, 0.0, p), 1.7785661039778271e-93, 1e-100);
    COrxPoint3dArray pts;
    ASSERT_TRUE(ORX::g_bulg_int(pts, COrxPoint3d(19, 0, 0), p, 0.0, s, e, 0.0, false));
    for (int i = 0; i < pts.len(); ++i) {
        EXPECT_LE(ORX::g_bulg_pt_dist(s, e, 0.0, pts[i]), COrxPoint3d::tol);
    }
    // Farther than the range of doubles in half chords: the frame overflowed to infinity.
    double const d = std::numeric_limits<double>::denorm_min();
    COrxPoint3d const a(d, -d, 0), b(-d, -d, 0);
    for (double bulge : {0.0, 1.0}) {
        EXPECT_NEAR(ORX::g_bulg_pt_dist(a, b, bulge, COrxPoint3d(0, -1e-9, 0)), 1e-9, 1e-24);
        EXPECT_NEAR(ORX::g_bulg_pt_dist(a, b, bulge, COrxPoint3d(3e7, 4e7, 0)), 5e7, 1e-8);
    }
}
