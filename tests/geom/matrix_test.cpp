#include "orx/geom/matrix.h"

#include <gtest/gtest.h>

#include <random>

#include "orx/geom/functions.h"
#include "orx/geom/plane.h"

namespace {
// A matrix written out row by row.
COrxMatrix3d matrix(double const (&rows)[4][4]) {
    return COrxMatrix3d(rows);
}
}  // namespace

TEST(COrxMatrix3dTest, EqualityUsesAFixedEntryThreshold) {
    COrxMatrix3d a, b;
    b.m[1][2] = 5e-10;
    EXPECT_EQ(a, b);
    b.m[1][2] = 2e-09;
    EXPECT_NE(a, b);
    b.m[1][2] = ORX::nan();
    EXPECT_NE(a, b);
}

TEST(COrxMatrix3dTest, ProductAppliesTheRightOperandFirst) {
    COrxMatrix3d move, turn;
    move.setToTranslation(COrxVector3d(10, 0, 0));
    turn.setToRotation(ORX::kHalfPi, COrxVector3d::kZAxis, COrxPoint3d::kOrigin);
    EXPECT_EQ(COrxPoint3d(1, 0, 0) * (move * turn), COrxPoint3d(10, 1, 0));
    EXPECT_EQ(COrxPoint3d(1, 0, 0) * (turn * move), COrxPoint3d(0, 11, 0));
}

TEST(COrxMatrix3dTest, ColumnsHoldAxesAndTranslation) {
    COrxMatrix3d m;
    m.setCoordSystem(COrxPoint3d(1, 2, 3), COrxVector3d(0, 2, 0), COrxVector3d(-1, 0, 0),
                     COrxVector3d(0, 0, 1));
    EXPECT_EQ(m.axis(7), COrxVector3d(0, 0, 1));  // above 2: column 2
    EXPECT_EQ(m.scale(), 2.0);
    EXPECT_EQ(COrxPoint3d(1, 0, 0) * m, COrxPoint3d(1, 4, 3));
}

TEST(COrxMatrix3dTest, WorldToPlaneFollowsTheArbitraryAxisRule) {
    COrxMatrix3d m;
    EXPECT_EQ(m.setToWorldToPlane(COrxVector3d(0, 0, 1)), COrxMatrix3d::kIdentity);
    m.setToWorldToPlane(COrxVector3d(0, 0, -1));
    EXPECT_EQ(m, matrix({{-1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, -1, 0}, {0, 0, 0, 1}}));
    // Beyond the 1/64 limit the world Z axis builds the plane's x axis.
    m.setToWorldToPlane(COrxVector3d(1, 0, 0));
    EXPECT_EQ(m, matrix({{0, 1, 0, 0}, {0, 0, 1, 0}, {1, 0, 0, 0}, {0, 0, 0, 1}}));
    EXPECT_EQ(m.setToWorldToPlane(COrxVector3d::kNull), COrxMatrix3d::kIdentity);
    EXPECT_EQ(m.setToWorldToPlane(COrxVector3d(ORX::nan(), 0, 1)), COrxMatrix3d::kIdentity);
    COrxVector3d const n(0.3, -0.5, 0.8);
    EXPECT_EQ(n.normal() * m.setToWorldToPlane(n), COrxVector3d(0, 0, 1));
    EXPECT_EQ(m.setToPlaneToWorld(n) * COrxMatrix3d().setToWorldToPlane(n),
              COrxMatrix3d::kIdentity);
}

TEST(COrxMatrix3dTest, SingularMatricesInvertToTheIdentity) {
    COrxMatrix3d zeroRow, flat;
    zeroRow.m[0][0] = 0.0;
    EXPECT_EQ(zeroRow.inverse(), COrxMatrix3d::kIdentity);
    EXPECT_EQ(flat.setToScaling(0.0, COrxPoint3d(1, 1, 1)).invert(), COrxMatrix3d::kIdentity);
    // Rows 0 and 1 equal: no zero row, the pivot vanishes only during elimination.
    COrxMatrix3d const twin = matrix({{1, 2, 3, 0}, {1, 2, 3, 0}, {0, 1, 5, 0}, {0, 0, 0, 1}});
    EXPECT_EQ(twin.inverse(), COrxMatrix3d::kIdentity);
}

TEST(COrxMatrix3dTest, InverseUndoesTheMatrix) {
    // A zero diagonal entry is exchanged before elimination; here a pivot only vanishes
    // during elimination, and the matrix is regular all the same.
    COrxMatrix3d const swapped = matrix({{0, 1, 0, 4}, {1, 0, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}});
    COrxMatrix3d const late = matrix({{1, 1, 0, 0}, {1, 1, 1, 0}, {0, 1, 1, 0}, {0, 0, 0, 1}});
    for (COrxMatrix3d const& m : {swapped, late}) {
        EXPECT_EQ(m.inverse() * m, COrxMatrix3d::kIdentity);
    }
    std::mt19937 random(20240601);
    std::uniform_real_distribution<double> entry(-1.0, 1.0);
    for (int trial = 0; trial < 200; ++trial) {
        COrxMatrix3d m;
        for (int r = 0; r < 3; ++r) {
            for (int c = 0; c < 4; ++c) {
                m.m[r][c] = entry(random) + (r == c ? 3.0 : 0.0);  // diagonally dominant
            }
        }
        EXPECT_EQ(m.inverse() * m, COrxMatrix3d::kIdentity) << "trial " << trial;
    }
}

TEST(COrxMatrix3dTest, RotationTurnsAboutTheGivenLine) {
    COrxMatrix3d r;
    r.setToRotation(ORX::kHalfPi, COrxVector3d::kZAxis, COrxPoint3d(1, 0, 0));
    EXPECT_EQ(COrxPoint3d(2, 0, 5) * r, COrxPoint3d(1, 1, 5));
    // A third of a turn about the space diagonal cycles the axes.
    r.setToRotation(2 * ORX::kPi / 3, COrxVector3d(1, 1, 1), COrxPoint3d::kOrigin);
    EXPECT_EQ(COrxPoint3d(1, 0, 0) * r, COrxPoint3d(0, 1, 0));
    EXPECT_EQ(COrxPoint3d(0, 0, 1) * r, COrxPoint3d(1, 0, 0));
    // Points on the axis stay; distances to the axis are kept.
    r.setToRotation(0.7, COrxVector3d(0, 1, 1), COrxPoint3d(3, 0, 0));
    EXPECT_EQ(COrxPoint3d(3, 2, 2) * r, COrxPoint3d(3, 2, 2));
    EXPECT_NEAR((COrxPoint3d(5, 0, 0) * r).distanceTo(COrxPoint3d(3, 0, 0)), 2.0, 1e-12);
}

TEST(COrxMatrix3dTest, MirroringReflectsInThePlane) {
    COrxMatrix3d m;
    m.setToMirroring(COrxPlane(COrxPoint3d(0, 0, 2), COrxVector3d(0, 0, 1)));
    EXPECT_EQ(COrxPoint3d(1, 2, 5) * m, COrxPoint3d(1, 2, -1));
    m.setToMirroring(COrxPlane(COrxPoint3d(1, 1, 0), COrxVector3d(1, -1, 0)));  // the line y = x
    EXPECT_EQ(COrxPoint3d(3, 0, 7) * m, COrxPoint3d(0, 3, 7));
    EXPECT_EQ(m * m, COrxMatrix3d::kIdentity);
}

TEST(COrxMatrix3dTest, ScalingAndScaleRotateMove) {
    COrxMatrix3d m;
    m.setToScaling(2.0, COrxPoint3d(1, 1, 1));
    EXPECT_EQ(COrxPoint3d(2, 1, 0) * m, COrxPoint3d(3, 1, -1));
    m.setToSRM(COrxPoint3d(2, 3, 4), ORX::kHalfPi, COrxVector3d(10, 0, 1));
    EXPECT_EQ(COrxPoint3d(1, 1, 1) * m, COrxPoint3d(7, 2, 5));
}
