#include "orx/geom/point_list_functions.h"

#include <gtest/gtest.h>

#include "orx/geom/functions.h"
#include "orx/geom/matrix.h"

namespace {

COrxPoint3dArray list(std::initializer_list<COrxPoint3d> points) {
    COrxPoint3dArray pts;
    for (COrxPoint3d const& p : points) {
        pts.append(p);
    }
    return pts;
}

// An L-shaped outline, counter-clockwise: a 4 x 1 bar with a 1 x 2 post on its left end.
COrxPoint3dArray const kEll =
    list({COrxPoint3d(0, 0, 0), COrxPoint3d(4, 0, 0), COrxPoint3d(4, 1, 0), COrxPoint3d(1, 1, 0),
          COrxPoint3d(1, 3, 0), COrxPoint3d(0, 3, 0)});

}  // namespace

TEST(PointListFunctionsTest, ExtremesOfAllPoints) {
    COrxPoint3d out(7, 7, 7);
    EXPECT_FALSE(ORX::g_pl_max(out, COrxPoint3dArray()));
    EXPECT_FALSE(ORX::g_pl_min(out, COrxPoint3dArray()));
    EXPECT_EQ(out, COrxPoint3d(7, 7, 7));
    COrxPoint3dArray const pts = list({COrxPoint3d(1, -5, 2), COrxPoint3d(-1, 3, 0)});
    ASSERT_TRUE(ORX::g_pl_max(out, pts));
    EXPECT_EQ(out, COrxPoint3d(1, 3, 2));
    ASSERT_TRUE(ORX::g_pl_min(out, pts));
    EXPECT_EQ(out, COrxPoint3d(-1, -5, 0));
}

TEST(PointListFunctionsTest, OrientationSeenFromTheNormal) {
    EXPECT_TRUE(ORX::g_pl_orient(kEll, COrxVector3d::kZAxis));
    EXPECT_FALSE(ORX::g_pl_orient(kEll.reverse(), COrxVector3d::kZAxis));
    EXPECT_FALSE(ORX::g_pl_orient(kEll, COrxVector3d(0, 0, -1)));
    EXPECT_TRUE(
        ORX::g_pl_orient(list({COrxPoint3d(0, 0, 0), COrxPoint3d(1, 0, 0)}), COrxVector3d::kZAxis));
    // Counter-clockwise seen from +X: (y, z) turning left.
    COrxPoint3dArray const wall =
        list({COrxPoint3d(0, 0, 0), COrxPoint3d(0, 1, 0), COrxPoint3d(0, 1, 1)});
    EXPECT_TRUE(ORX::g_pl_orient(wall, COrxVector3d(1, 0, 0)));
    EXPECT_FALSE(ORX::g_pl_orient(wall, COrxVector3d(-1, 0, 0)));
}

TEST(PointListFunctionsTest, EqualityUnderAGivenTolerance) {
    COrxPoint3dArray const a = list({COrxPoint3d(0, 0, 0), COrxPoint3d(1, 0, 0)});
    COrxPoint3dArray const b = list({COrxPoint3d(0, 0.004, 0), COrxPoint3d(1, 0, 0)});
    double const before = COrxPoint3d::tol;
    EXPECT_TRUE(ORX::g_pl_equal(a, b, 0.01));
    EXPECT_FALSE(ORX::g_pl_equal(a, b, 0.001));
    EXPECT_FALSE(ORX::g_pl_equal(a, b, 0.0));  // the global tolerance
    EXPECT_EQ(COrxPoint3d::tol, before);
}

TEST(PointListFunctionsTest, FarthestPairAndEnclosingRectangle) {
    COrxPoint3d first(7, 7, 7), second;
    EXPECT_FALSE(ORX::g_pl_extmax(first, second, list({COrxPoint3d(1, 1, 1)})));
    EXPECT_EQ(first, COrxPoint3d(7, 7, 7));
    ASSERT_TRUE(ORX::g_pl_extmax(first, second, kEll));
    EXPECT_EQ(first, COrxPoint3d(4, 0, 0));
    EXPECT_EQ(second, COrxPoint3d(0, 3, 0));

    COrxPoint3dArray rect;
    ASSERT_TRUE(ORX::g_pl_extrect(
        rect, kEll.getTransformedCopy(COrxMatrix3d().setToTranslation(COrxVector3d(0, 0, 2))),
        0.5));
    EXPECT_EQ(rect, list({COrxPoint3d(-0.5, -0.5, 2), COrxPoint3d(4.5, -0.5, 2),
                          COrxPoint3d(4.5, 3.5, 2), COrxPoint3d(-0.5, 3.5, 2)}));
    EXPECT_FALSE(ORX::g_pl_extrect(rect, kEll, -2.0));  // the L is only 3 high
    EXPECT_FALSE(ORX::g_pl_extrect(rect, COrxPoint3dArray(), 1.0));
    EXPECT_EQ(rect.len(), 4);
}

TEST(PointListFunctionsTest, SortByAngleAroundACentre) {
    ORX::CMapDoubleToPoint out;
    EXPECT_FALSE(ORX::g_pl_sort_arcw(out, COrxPoint3dArray(), COrxPoint3d::kOrigin, 0.0));
    COrxPoint3dArray const pts = list(
        {COrxPoint3d(0, -1, 0), COrxPoint3d(1, 0, 0), COrxPoint3d(0, 2, 0), COrxPoint3d(-1, 0, 0)});
    ASSERT_TRUE(ORX::g_pl_sort_arcw(out, pts, COrxPoint3d::kOrigin, ORX::kHalfPi));
    COrxPoint3dArray const sorted = out.getPtLst();
    EXPECT_EQ(sorted, list({COrxPoint3d(0, 2, 0), COrxPoint3d(-1, 0, 0), COrxPoint3d(0, -1, 0),
                            COrxPoint3d(1, 0, 0)}));
    double angle = 0.0;
    COrxPoint3d p;
    ASSERT_TRUE(out.getAt(3, angle, p));
    EXPECT_DOUBLE_EQ(angle, 3 * ORX::kHalfPi);
}

TEST(PointListFunctionsTest, SectionPropertiesOfAPolygon) {
    double area = 0, ix = 0, iy = 0, ixy = 0;
    COrxPoint3d centroid;
    // A 2 x 1 rectangle far from the origin, clockwise and closed with a repeated point.
    COrxPoint3dArray const rect = list({COrxPoint3d(1e6, 1e6, 3), COrxPoint3d(1e6, 1e6 + 1, 3),
                                        COrxPoint3d(1e6 + 2, 1e6 + 1, 3),
                                        COrxPoint3d(1e6 + 2, 1e6, 3), COrxPoint3d(1e6, 1e6, 3)});
    ASSERT_TRUE(ORX::g_pl_statics(rect, area, centroid, ix, iy, ixy));
    EXPECT_NEAR(area, 2.0, 1e-9);
    EXPECT_EQ(centroid, COrxPoint3d(1e6 + 1, 1e6 + 0.5, 3));
    EXPECT_NEAR(ix, 2.0 / 12, 1e-9);
    EXPECT_NEAR(iy, 8.0 / 12, 1e-9);
    EXPECT_NEAR(ixy, 0.0, 1e-9);
    // The L: the bar (4, centroid (2, 0.5)) plus the post (2, centroid (0.5, 2)).
    ASSERT_TRUE(ORX::g_pl_statics(kEll, area, centroid, ix, iy, ixy));
    EXPECT_DOUBLE_EQ(area, 6.0);
    EXPECT_EQ(centroid, COrxPoint3d(1.5, 1.0, 0));
    EXPECT_NEAR(ix, 4.0 / 12 + 4 * 0.25 + 8.0 / 12 + 2 * 1.0, 1e-12);
    EXPECT_NEAR(iy, 64.0 / 12 + 4 * 0.25 + 2.0 / 12 + 2 * 1.0, 1e-12);
    EXPECT_NEAR(ixy, 4 * 0.5 * -0.5 + 2 * -1.0 * 1.0, 1e-12);
    double const kept = area;
    COrxPoint3dArray const line =
        list({COrxPoint3d(0, 0, 0), COrxPoint3d(1, 1, 0), COrxPoint3d(2, 2, 0)});
    EXPECT_FALSE(ORX::g_pl_statics(line, area, centroid, ix, iy, ixy));
    EXPECT_EQ(area, kept);
}
