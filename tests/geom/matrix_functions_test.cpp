#include "orx/geom/matrix_functions.h"

#include <gtest/gtest.h>

#include "orx/geom/functions.h"

TEST(MatrixFunctionsTest, MirrorTestIsANegativeDeterminant) {
    COrxMatrix3d m;
    EXPECT_FALSE(ORX::mtxIsMir(m));
    m.setToMirroring(COrxPlane(COrxPoint3d(1, 2, 3), COrxVector3d(1, 2, -3)));
    EXPECT_TRUE(ORX::mtxIsMir(m));
    EXPECT_TRUE(ORX::mtxIsMir(m.setToScaling(-1.0, COrxPoint3d(4, 0, 0))));
    EXPECT_FALSE(ORX::mtxIsMir(m.setToScaling(0.0, COrxPoint3d(4, 0, 0))));
    EXPECT_FALSE(ORX::mtxIsMir(m.setToRotation(2.0, COrxVector3d(1, 1, 0), COrxPoint3d(1, 0, 0))));
}

TEST(MatrixFunctionsTest, PlanPlacementKeepsItsArgumentOrder) {
    COrxMatrix3d m;
    // x, y, angle, fy, fx: the fourth number scales y, the last x and z.
    EXPECT_TRUE(ORX::g_mtx_2d(m, 0, 0, 0, 2, 3));
    EXPECT_EQ(COrxPoint3d(1, 1, 0) * m, COrxPoint3d(3, 2, 0));
    EXPECT_EQ(m.axis(2), COrxVector3d(0, 0, 3));
    ORX::g_mtx_2d(m, 5, 6, ORX::kHalfPi, 1, -1);
    EXPECT_EQ(COrxPoint3d(1, 0, 1) * m, COrxPoint3d(5, 5, 1));
}

TEST(MatrixFunctionsTest, PointListsAndMatricesConvertBothWays) {
    COrxMatrix3d m, untouched;
    COrxPoint3dArray pts;
    pts.append(COrxPoint3d(0, 1, 0)).append(COrxPoint3d(-1, 0, 0));
    EXPECT_FALSE(ORX::plToMtx(m, pts));
    EXPECT_EQ(m, untouched);
    pts.append(COrxPoint3d(0, 0, 1));
    ASSERT_TRUE(ORX::plToMtx(m, pts));
    EXPECT_EQ(COrxPoint3d(1, 0, 0) * m, COrxPoint3d(0, 1, 0));  // no fourth point: no move
    pts.append(COrxPoint3d(4, 5, 6));
    ASSERT_TRUE(ORX::plToMtx(m, pts));
    COrxPoint3dArray back;
    back.append(COrxPoint3d(9, 9, 9));
    EXPECT_EQ(ORX::mtxToPl(back, m), pts);
}

TEST(MatrixFunctionsTest, ProjectionDropsPointsWhoseLineMissesThePlane) {
    COrxPlane const slope(COrxPoint3d(0, 0, 0), COrxVector3d(0, -1, 1));
    COrxPoint3dArray pts;
    pts.append(COrxPoint3d(1, 2, 0)).append(COrxPoint3d(3, 0, 5));
    COrxPoint3dArray const down = ORX::plPlaneProje(slope, pts, COrxVector3d(0, 0, -1));
    ASSERT_EQ(down.len(), 2);
    EXPECT_EQ(down[0], COrxPoint3d(1, 2, 2));
    EXPECT_EQ(down[1], COrxPoint3d(3, 0, 0));
    EXPECT_EQ(ORX::plPlaneProje(slope, pts, COrxVector3d(0, 1, 1)).len(), 0);
}

TEST(MatrixFunctionsTest, SideKeywordChoosesTheTurn) {
    COrxMatrix3d right, left;
    right.setToTranslation(COrxVector3d(2, 0, 0));
    left.setToTranslation(COrxVector3d(-2, 0, 0));
    double const a = 1.0, pi = ORX::kPi;
    struct Case {
        wchar_t const* side;
        int number;
        double whenLeft;
        double otherwise;
    };
    Case const cases[] = {{L"L", 1, 0.0, a - pi},
                          {L"R", 2, pi - a, 0.0},
                          {L"C", 3, (pi - a) / 2, -(pi - a) / 2},
                          {L"l", 0, (pi - a) / 2, -(pi - a) / 2},
                          {nullptr, -1, (pi - a) / 2, -(pi - a) / 2}};
    for (Case const& c : cases) {
        for (COrxMatrix3d const* m : {&left, &right}) {
            double const expected = m == &left ? c.whenLeft : c.otherwise;
            COrxMatrix3d turn;
            turn.setToRotation(expected, COrxVector3d::kZAxis, COrxPoint3d::kOrigin);
            EXPECT_EQ(orx_g_mtx_ang2d(*m, a, c.side), turn * *m) << c.number;
            EXPECT_EQ(orx_g_mtx_ang2d(*m, a, c.number), turn * *m) << c.number;
        }
    }
}
