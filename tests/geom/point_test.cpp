#include "orx/geom/point.h"

#include <gtest/gtest.h>

#include <limits>

TEST(COrxPoint3dTest, EqualityIsTheDistanceWithinToleranceAndNotTransitive) {
    COrxPoint3d const origin;
    // Each coordinate within 1e-05 but the distance about 1.13e-05.
    EXPECT_FALSE(origin == COrxPoint3d(0.000008, 0.000008, 0));
    EXPECT_EQ(origin, COrxPoint3d(0.000007, 0.000007, 0));
    EXPECT_EQ(origin, COrxPoint3d(0, 0, 1e-05));
    EXPECT_FALSE(origin == COrxPoint3d(0, 0, 1.0001e-05));
    COrxPoint3d const b(0.8e-05, 0, 0), c(1.6e-05, 0, 0);
    EXPECT_EQ(origin, b);
    EXPECT_EQ(b, c);
    EXPECT_FALSE(origin == c);
    COrxPoint3d const nanPoint(std::numeric_limits<double>::quiet_NaN(), 0, 0);
    EXPECT_EQ(nanPoint, nanPoint);  // the same object is always equal to itself
    EXPECT_FALSE(nanPoint == COrxPoint3d(nanPoint));
}

TEST(COrxPoint3dTest, OrderingIsExactLexicographic) {
    COrxPoint3d const p(1, 2, 3), q(1, 2, 3.0000001);
    EXPECT_LT(p, q);
    EXPECT_EQ(p, q);
    EXPECT_GT(q, p);
    EXPECT_FALSE(p < p);
    EXPECT_LT(COrxPoint3d(0, 9, 9), COrxPoint3d(1, 0, 0));
    EXPECT_LT(COrxPoint3d(1, 0, 9), COrxPoint3d(1, 1, 0));
}

TEST(COrxPoint3dTest, TransformationDividesByTheFourthComponent) {
    double const translate[4][4] = {{1, 0, 0, 5}, {0, 1, 0, -2}, {0, 0, 1, 1}, {0, 0, 0, 1}};
    COrxPoint3d p(1, 1, 1);
    EXPECT_EQ(p * translate, COrxPoint3d(6, -1, 2));
    double const projective[4][4] = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 2}};
    p *= projective;
    EXPECT_EQ(p, COrxPoint3d(0.5, 0.5, 0.5));
    double const singular[4][4] = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 0}};
    EXPECT_FALSE((p * singular).isValid());
}

TEST(COrxPoint3dTest, ValidityRejectsNanAndInfinity) {
    EXPECT_TRUE(COrxPoint3d(1e300, -1e300, 0).isValid());
    EXPECT_FALSE(COrxPoint3d(0, std::numeric_limits<double>::infinity(), 0).isValid());
    EXPECT_FALSE(COrxPoint3d(0, 0, std::numeric_limits<double>::quiet_NaN()).isValid());
}
