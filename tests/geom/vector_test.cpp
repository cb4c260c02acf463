#include "orx/geom/vector.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "orx/geom/functions.h"
#include "orx/geom/point.h"

TEST(COrxVector3dTest, EqualityIsPerComponent) {
    EXPECT_TRUE(COrxVector3d(1, 0, 0) == COrxVector3d(1 + 0.9e-07, 1e-07, -1e-07));
    EXPECT_FALSE(COrxVector3d(1, 0, 0) == COrxVector3d(1, 2e-07, 0));
}

TEST(COrxVector3dTest, CrossProductAndScaling) {
    EXPECT_EQ(COrxVector3d::kXAxis * COrxVector3d::kYAxis, COrxVector3d::kZAxis);
    EXPECT_EQ(COrxVector3d::kYAxis * COrxVector3d::kXAxis, -COrxVector3d::kZAxis);
    COrxVector3d v(1, 2, 3);
    EXPECT_EQ(v * COrxVector3d(4, 5, 6), COrxVector3d(-3, 6, -3));
    EXPECT_EQ(2.0 * v, COrxVector3d(2, 4, 6));
    v *= COrxVector3d(0, 0, 1);
    EXPECT_EQ(v, COrxVector3d(2, -1, 0));
}

TEST(COrxVector3dTest, NormalizeDegeneratesToTheZeroVector) {
    EXPECT_EQ(COrxVector3d(3, 4, 0).normal(), COrxVector3d(0.6, 0.8, 0));
    EXPECT_EQ(COrxVector3d(5e-08, 0, 0).normal(), COrxVector3d::kNull);
    double const inf = std::numeric_limits<double>::infinity();
    COrxVector3d huge(inf, 1, 0);
    huge.normalize();
    EXPECT_EQ(huge.x, 0.0);
    EXPECT_EQ(huge.y, 0.0);
    COrxVector3d nan(std::numeric_limits<double>::quiet_NaN(), 0, 0);
    EXPECT_TRUE(nan.normalize().isValid());
}

TEST(COrxVector3dTest, AngleToIsNanForNullVectors) {
    EXPECT_DOUBLE_EQ(COrxVector3d(1, 0, 0).angleTo(COrxVector3d(0, 2, 0)), ORX::kHalfPi);
    EXPECT_DOUBLE_EQ(COrxVector3d(1, 0, 0).angleTo(COrxVector3d(-3, 0, 0)), ORX::kPi);
    EXPECT_TRUE(std::isnan(COrxVector3d(1, 0, 0).angleTo(COrxVector3d(0, 1e-8, 0))));
    EXPECT_TRUE(std::isnan(COrxVector3d().angleTo(COrxVector3d(1, 0, 0))));
    // Nearly parallel: the cosine is clamped, never NaN.
    EXPECT_EQ(COrxVector3d(1, 1e-9, 0).angleTo(COrxVector3d(1, 1e-9, 0)), 0.0);
}

TEST(COrxVector3dTest, OrthogonalityUsesTheRawDotProduct) {
    EXPECT_TRUE(COrxVector3d(1, 0, 0).isOrthoTo(COrxVector3d(1e-10, 1, 0)));
    EXPECT_FALSE(COrxVector3d(1000, 0, 0).isOrthoTo(COrxVector3d(2e-12, 1, 0)));
}

TEST(COrxVector3dTest, ParallelMeansSameOrOppositeDirection) {
    EXPECT_TRUE(COrxVector3d(1, 1, 0).isParallelTo(COrxVector3d(-5, -5, 0)));
    EXPECT_TRUE(COrxVector3d(0, 0, 2).isParallelTo(COrxVector3d(0, 0, 7)));
    EXPECT_FALSE(COrxVector3d(1, 1, 0).isParallelTo(COrxVector3d(1, 0, 0)));
    // A zero vector is parallel only to another vector shorter than the tolerance.
    EXPECT_TRUE(COrxVector3d().isParallelTo(COrxVector3d(1e-8, 0, 0)));
    EXPECT_FALSE(COrxVector3d().isParallelTo(COrxVector3d(1, 0, 0)));
}

TEST(COrxVector3dTest, TransformationIgnoresTheTranslation) {
    double const m[4][4] = {{0, -1, 0, 10}, {1, 0, 0, 20}, {0, 0, 1, 30}, {0, 0, 0, 1}};
    EXPECT_EQ(COrxVector3d(1, 0, 0) * m, COrxVector3d(0, 1, 0));
    COrxVector3d v(0, 2, 0);
    v *= m;
    EXPECT_EQ(v, COrxVector3d(-2, 0, 0));
    EXPECT_EQ(COrxVector3d(1, 2, 3).scale(COrxPoint3d(2, 2, 0)), COrxVector3d(2, 4, 0));
}
