#include "orx/geom/vector.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "orx/geom/functions.h"

TEST(COrxVector3dTest, EqualityIsPerComponent) {
    EXPECT_EQ(COrxVector3d(1, 0, 0), COrxVector3d(1 + 0.9e-07, 1e-07, -1e-07));
    EXPECT_FALSE(COrxVector3d(1, 0, 0) == COrxVector3d(1, 2e-07, 0));
}

TEST(COrxVector3dTest, NormalizeDegeneratesToTheZeroVector) {
    EXPECT_EQ(COrxVector3d(3, 4, 0).normal(), COrxVector3d(0.6, 0.8, 0));
    EXPECT_EQ(COrxVector3d(5e-08, 0, 0).normal(), COrxVector3d::kNull);
    COrxVector3d huge(std::numeric_limits<double>::infinity(), 1, 0);
    EXPECT_EQ(huge.normalize(), COrxVector3d::kNull);
    COrxVector3d nan(std::numeric_limits<double>::quiet_NaN(), 0, 0);
    EXPECT_TRUE(nan.normalize().isValid());
}

TEST(COrxVector3dTest, AngleToIsNanForNullVectors) {
    EXPECT_DOUBLE_EQ(COrxVector3d(1, 0, 0).angleTo(COrxVector3d(-3, 0, 0)), ORX::kPi);
    EXPECT_TRUE(std::isnan(COrxVector3d(1, 0, 0).angleTo(COrxVector3d(0, 1e-8, 0))));
    EXPECT_TRUE(std::isnan(COrxVector3d().angleTo(COrxVector3d(1, 0, 0))));
    // Nearly parallel: the cosine is clamped, never NaN.
    EXPECT_EQ(COrxVector3d(1, 1e-9, 0).angleTo(COrxVector3d(1, 1e-9, 0)), 0.0);
}

TEST(COrxVector3dTest, OrthogonalAndParallel) {
    // Orthogonality uses the raw dot product.
    EXPECT_TRUE(COrxVector3d(1, 0, 0).isOrthoTo(COrxVector3d(1e-10, 1, 0)));
    EXPECT_FALSE(COrxVector3d(1000, 0, 0).isOrthoTo(COrxVector3d(2e-12, 1, 0)));
    EXPECT_TRUE(COrxVector3d(1, 1, 0).isParallelTo(COrxVector3d(-5, -5, 0)));
    EXPECT_FALSE(COrxVector3d(1, 1, 0).isParallelTo(COrxVector3d(1, 0, 0)));
    // A zero vector is parallel only to another vector shorter than the tolerance.
    EXPECT_TRUE(COrxVector3d().isParallelTo(COrxVector3d(1e-8, 0, 0)));
    EXPECT_FALSE(COrxVector3d().isParallelTo(COrxVector3d(1, 0, 0)));
}

TEST(COrxVector3dTest, TransformationIgnoresTheTranslation) {
    double const m[4][4] = {{0, -1, 0, 10}, {1, 0, 0, 20}, {0, 0, 1, 30}, {0, 0, 0, 1}};
    EXPECT_EQ(COrxVector3d(1, 0, 0) * m, COrxVector3d(0, 1, 0));
}
