#include "orx/geom/point_list_functions.h"

#include <gtest/gtest.h>

#include "orx/geom/functions.h"
#include "orx/geom/matrix.h"
#include "tests/support/lists.h"

using orx_test::list;

namespace {

using P = COrxPoint3d;

// An L-shaped outline, counter-clockwise: a 4 x 1 bar with a 1 x 2 post on its left end.
COrxPoint3dArray const kEll =
    list({P(0, 0, 0), P(4, 0, 0), P(4, 1, 0), P(1, 1, 0), P(1, 3, 0), P(0, 3, 0)});

}  // namespace

TEST(PointListFunctionsTest, ExtremesOfAllPoints) {
    P high(7, 7, 7), low(7, 7, 7);
    EXPECT_FALSE(ORX::g_pl_max(high, COrxPoint3dArray()));
    EXPECT_FALSE(ORX::g_pl_min(low, COrxPoint3dArray()));
    EXPECT_EQ(high, P(7, 7, 7));
    EXPECT_EQ(low, P(7, 7, 7));
    COrxPoint3dArray const pts = list({P(1, -5, 2), P(-1, 3, 0)});
    ASSERT_TRUE(ORX::g_pl_max(high, pts));
    ASSERT_TRUE(ORX::g_pl_min(low, pts));
    EXPECT_EQ(high, P(1, 3, 2));
    EXPECT_EQ(low, P(-1, -5, 0));
}

TEST(PointListFunctionsTest, OrientationSeenFromTheNormal) {
    EXPECT_TRUE(ORX::g_pl_orient(kEll, COrxVector3d::kZAxis));
    EXPECT_FALSE(ORX::g_pl_orient(kEll.reverse(), COrxVector3d::kZAxis));
    EXPECT_FALSE(ORX::g_pl_orient(kEll, COrxVector3d(0, 0, -1)));
    EXPECT_TRUE(ORX::g_pl_orient(list({P(0, 0, 0), P(1, 0, 0)}), COrxVector3d::kZAxis));
    // Counter-clockwise seen from +X: (y, z) turning left.
    COrxPoint3dArray const wall = list({P(0, 0, 0), P(0, 1, 0), P(0, 1, 1)});
    EXPECT_TRUE(ORX::g_pl_orient(wall, COrxVector3d(1, 0, 0)));
    EXPECT_FALSE(ORX::g_pl_orient(wall, COrxVector3d(-1, 0, 0)));
}

TEST(PointListFunctionsTest, EqualityUnderAGivenTolerance) {
    COrxPoint3dArray const a = list({P(0, 0, 0), P(1, 0, 0)});
    COrxPoint3dArray const b = list({P(0, 0.004, 0), P(1, 0, 0)});
    double const before = P::tol;
    EXPECT_TRUE(ORX::g_pl_equal(a, b, 0.01));
    EXPECT_FALSE(ORX::g_pl_equal(a, b, 0.001));
    EXPECT_FALSE(ORX::g_pl_equal(a, b, 0.0));  // the global tolerance
    EXPECT_EQ(P::tol, before);
}

TEST(PointListFunctionsTest, FarthestPairAndEnclosingRectangle) {
    P first(7, 7, 7), second;
    EXPECT_FALSE(ORX::g_pl_extmax(first, second, list({P(1, 1, 1)})));
    EXPECT_EQ(first, P(7, 7, 7));
    ASSERT_TRUE(ORX::g_pl_extmax(first, second, kEll));
    EXPECT_EQ(first, P(4, 0, 0));
    EXPECT_EQ(second, P(0, 3, 0));
    COrxPoint3dArray rect;
    ASSERT_TRUE(ORX::g_pl_extrect(
        rect, kEll.getTransformedCopy(COrxMatrix3d().setToTranslation(COrxVector3d(0, 0, 2))),
        0.5));
    EXPECT_EQ(rect, list({P(-0.5, -0.5, 2), P(4.5, -0.5, 2), P(4.5, 3.5, 2), P(-0.5, 3.5, 2)}));
    EXPECT_FALSE(ORX::g_pl_extrect(rect, kEll, -2.0));  // the L is only 3 high
    EXPECT_FALSE(ORX::g_pl_extrect(rect, COrxPoint3dArray(), 1.0));
    EXPECT_EQ(rect.len(), 4);
}

TEST(PointListFunctionsTest, SortByAngleAroundACentre) {
    ORX::CMapDoubleToPoint out;
    EXPECT_FALSE(ORX::g_pl_sort_arcw(out, COrxPoint3dArray(), P::kOrigin, 0.0));
    COrxPoint3dArray const pts = list({P(0, -1, 0), P(1, 0, 0), P(0, 2, 0), P(-1, 0, 0)});
    ASSERT_TRUE(ORX::g_pl_sort_arcw(out, pts, P::kOrigin, ORX::kHalfPi));
    EXPECT_EQ(out.getPtLst(), list({P(0, 2, 0), P(-1, 0, 0), P(0, -1, 0), P(1, 0, 0)}));
    double angle = 0.0;
    P p;
    ASSERT_TRUE(out.getAt(3, angle, p));
    EXPECT_DOUBLE_EQ(angle, 3 * ORX::kHalfPi);
}

TEST(PointListFunctionsTest, SectionPropertiesOfAPolygon) {
    double area = 0, ix = 0, iy = 0, ixy = 0;
    P centroid;
    // A 2 x 1 rectangle far from the origin, clockwise and closed with a repeated point.
    COrxPoint3dArray const rect = list({P(1e6, 1e6, 3), P(1e6, 1e6 + 1, 3), P(1e6 + 2, 1e6 + 1, 3),
                                        P(1e6 + 2, 1e6, 3), P(1e6, 1e6, 3)});
    ASSERT_TRUE(ORX::g_pl_statics(rect, area, centroid, ix, iy, ixy));
    EXPECT_NEAR(area, 2.0, 1e-9);
    EXPECT_EQ(centroid, P(1e6 + 1, 1e6 + 0.5, 3));
    EXPECT_NEAR(ix, 2.0 / 12, 1e-9);
    EXPECT_NEAR(ixy, 0.0, 1e-9);
    // The L: the bar (4, centroid (2, 0.5)) plus the post (2, centroid (0.5, 2)).
    ASSERT_TRUE(ORX::g_pl_statics(kEll, area, centroid, ix, iy, ixy));
    EXPECT_DOUBLE_EQ(area, 6.0);
    EXPECT_EQ(centroid, P(1.5, 1.0, 0));
    EXPECT_NEAR(ix, 4.0 / 12 + 4 * 0.25 + 8.0 / 12 + 2 * 1.0, 1e-12);
    EXPECT_NEAR(iy, 64.0 / 12 + 4 * 0.25 + 2.0 / 12 + 2 * 1.0, 1e-12);
    EXPECT_NEAR(ixy, 4 * 0.5 * -0.5 + 2 * -1.0 * 1.0, 1e-12);
    double const kept = area;
    COrxPoint3dArray const line = list({P(0, 0, 0), P(1, 1, 0), P(2, 2, 0)});
    EXPECT_FALSE(ORX::g_pl_statics(line, area, centroid, ix, iy, ixy));
    EXPECT_EQ(area, kept);
}
