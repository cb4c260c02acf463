// Every code of the outline table over random and hostile dimensions (zero, negative, huge,
// tiny, just past the documented limits): the outline is either empty or closed, finite and
// not degenerate. And the named cases that once gave an outline that was none.
#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "orx/geom/functions.h"
#include "outline_checks.h"

namespace {

using orx_test::outline;

// Empty, or closed with finite corners and bulges, no segment whose ends coincide, an area
// that is not zero (it may be too large to compute), and an area that normalising keeps:
// norm(false) merges only segments that lie within the point tolerance of one line or circle, which
// moves the boundary by no more than that tolerance; an outline it shrinks by more ran back
// over itself or was a line.
::testing::AssertionResult emptyOrSound(COrxVertexArray const& vl) {
    if (vl.isEmpty()) {
        return ::testing::AssertionSuccess();
    }
    if (!vl.isClosed()) {
        return ::testing::AssertionFailure() << "open outline of " << vl.len() << " segments";
    }
    for (int k = 0; k < vl.len(); ++k) {
        COrxVertex const& v = vl[k];
        if (!v.startPoint().isValid() || !std::isfinite(v.bulge())) {
            return ::testing::AssertionFailure() << "segment " << k << " is not finite";
        }
        if (v.startPoint() == v.endPoint()) {
            return ::testing::AssertionFailure() << "segment " << k << " has no length";
        }
    }
    double const area = ORX::g_vl_area(vl);
    if (area == 0) {
        return ::testing::AssertionFailure() << "no area";
    }
    if (!std::isfinite(area)) {
        return ::testing::AssertionSuccess();  // too large to measure; the outline is exact
    }
    COrxVertexArray normed(vl);
    double const kept = ORX::g_vl_area(normed.norm(false));
    if (!(std::fabs(kept - area) <= COrxPoint3d::tol * vl.geomLength())) {
        return ::testing::AssertionFailure()
               << "norm(false) turns area " << area << " into " << kept;
    }
    return ::testing::AssertionSuccess();
}

// Values that break formulas: zero, signs, the ends of the double range, values just past
// the limits the codes test (360 degrees, a rise equal to half the span), right angles.
std::vector<double> const kHostile = {
    0.0,    -0.0, 1.0,          -1.0,  1e-300, -1e-300, 1e-7,       -1e-7, 1e300, -1e300, 1e155,
    -1e155, 90.0, -90.0,        180.0, 270.0,  360.0,   359.999999, 1e-9,  3.0,   1e6,    -1e6,
    0.5,    2.0,  1.0000000001, 0.1,   60.0,   1e-5,    -1e-5,      2e-5,  7.0,   1e12,
};

TEST(OutlineHostileTest, EveryCodeGivesASoundOutlineOrNone) {
    std::mt19937 random(16011);
    std::uniform_int_distribution<int> count(0, 8), pick(0, static_cast<int>(kHostile.size()) - 1);
    std::uniform_real_distribution<double> ordinary(-50, 50), coin(0, 1);
    for (int i = 0; i < ORX::kOutlineTableSize; ++i) {
        int const code = static_cast<int>(ORX::g_outline_code(i));
        for (int round = 0; round < 1500; ++round) {
            std::vector<double> d(static_cast<size_t>(count(random)));
            for (double& value : d) {
                double const draw = coin(random);
                value = draw < 0.4 ? kHostile[pick(random)] : ordinary(random);
                if (draw > 0.8) {
                    value = std::round(value);  // whole numbers hit equalities between dims
                }
            }
            EXPECT_TRUE(emptyOrSound(outline(code, d)))
                << "code " << code << " dims " << ::testing::PrintToString(d);
        }
    }
}

// Offsets so large that the corners fall together give nothing.
TEST(OutlineHostileTest, OffsetsThatCollapseTheCornersGiveNothing) {
    for (double far : {1.7e308, -1.7e308, 1e300}) {
        EXPECT_TRUE(outline(1, {2, 3}, COrxVector3d(0, far, 0)).isEmpty()) << far;
        EXPECT_TRUE(outline(22, {5}, COrxVector3d(far, 0, 0)).isEmpty()) << far;
    }
}

// Finite dimensions that mean nothing: a zero span (13), a negative length (801), a base
// standing vertical with a horizontal width asked for (21), a ring segment whose slit is
// narrower than the point tolerance (23), a hexagon without a size (34).
TEST(OutlineHostileTest, MeaninglessDimensionsGiveNothing) {
    struct Case {
        int code;
        std::vector<double> dims;
    };
    std::vector<Case> const cases = {
        {13, {0, 60, 40}},
        {801, {20, -60, 20}},
        {21, {-100, 50, 90}},
        {21, {100, 50, 90}},
        {23, {10, 5, 359.999999}},
        {23, {10, 0, 359.999999}},
        {34, {}},
        {34, {0}},
    };
    for (Case const& c : cases) {
        EXPECT_TRUE(outline(c.code, c.dims).isEmpty()) << c.code;
    }
}

// Code 15 accepts a rise of exactly half the span, also when the subtraction that gives the
// rise rounds it a hair above: the result is the half circle on the sides.
TEST(OutlineHostileTest, ThreeCentredArchAcceptsItsHalfCircleLimit) {
    for (std::vector<double> const& d :
         {std::vector<double>{25.4, 12.8, 0.1}, std::vector<double>{0.7, 0.55, 0.2},
          std::vector<double>{10, 5, 0}}) {
        COrxVertexArray const vl = outline(15, d);
        ASSERT_TRUE(emptyOrSound(vl));
        ASSERT_FALSE(vl.isEmpty()) << d[0];
        double const r = d[0] / 2, sides = d[0] * d[2];
        EXPECT_NEAR(ORX::g_vl_area(vl), sides + ORX::kPi * r * r / 2, 1e-9 * (sides + r * r));
        COrxPoint3d lo, hi;
        ASSERT_TRUE(vl.extents(lo, hi));
        EXPECT_NEAR(hi.y, d[1], COrxPoint3d::tol);
    }
}

}  // namespace
