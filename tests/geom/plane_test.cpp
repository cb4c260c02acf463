#include "orx/geom/plane.h"

#include <gtest/gtest.h>

#include <random>

#include "orx/geom/functions.h"
#include "orx/geom/matrix.h"

namespace {

// Distance of p from the plane, signed along its normal.
double offPlane(COrxPlane const& plane, COrxPoint3d const& p) {
    return ORX::sprod(plane.normal(), p - plane.position());
}

}  // namespace

TEST(COrxPlaneTest, ConstructionNormalizesTheNormal) {
    COrxPlane const plane(COrxPoint3d(1, 2, 3), COrxVector3d(0, 0, 5));
    EXPECT_EQ(plane.normal(), COrxVector3d(0, 0, 1));
    // Origin p2, normal (p1 - p2) x (p3 - p2).
    COrxPlane const three(COrxPoint3d(1, 0, 0), COrxPoint3d(0, 0, 0), COrxPoint3d(0, 1, 0));
    EXPECT_EQ(three, COrxPlane(COrxPoint3d(0, 0, 0), COrxVector3d(0, 0, 1)));
    COrxPlane const line(COrxPoint3d(0, 0, 0), COrxPoint3d(1, 1, 1), COrxPoint3d(2, 2, 2));
    EXPECT_EQ(line.normal(), COrxVector3d::kNull);
    EXPECT_EQ(plane, COrxPlane(COrxPoint3d(1, 2, 3 + 1e-6), COrxVector3d(0, 0, 1)));
    EXPECT_NE(plane, COrxPlane(COrxPoint3d(1, 2, 3), COrxVector3d(0, 0, -1)));
}

TEST(COrxPlaneTest, TransformationKeepsTheNormalUnnormalized) {
    COrxMatrix3d scale;
    scale.setToScaling(2.0, COrxPoint3d::kOrigin);
    COrxPlane const plane =
        COrxPlane(COrxPoint3d(1, 0, 0), COrxVector3d(1, 0, 0)).getTransformedCopy(scale);
    EXPECT_EQ(plane.position(), COrxPoint3d(2, 0, 0));
    EXPECT_EQ(plane.normal(), COrxVector3d(2, 0, 0));
}

TEST(COrxPlaneTest, LinesMeetThePlaneOrMissIt) {
    COrxPlane const floor(COrxPoint3d(0, 0, 2), COrxVector3d(0, 0, 1));
    COrxPoint3d hit(9, 9, 9);
    ASSERT_TRUE(floor.intersectWith(COrxPoint3d(1, 1, 5), COrxVector3d(1, 0, -1), hit));
    EXPECT_EQ(hit, COrxPoint3d(4, 1, 2));
    COrxPoint3d const untouched = hit;
    EXPECT_FALSE(floor.intersectWith(COrxPoint3d(1, 1, 5), COrxVector3d(1, 0, 0), hit));
    EXPECT_FALSE(floor.intersectWith(COrxPoint3d(1, 1, 5), COrxVector3d::kNull, hit));
    EXPECT_FALSE(floor.intersectWith(COrxPoint3d(1, 1, 5), COrxVector3d(ORX::nan(), 0, 1), hit));
    // Segment form: the hit must lie between the two points.
    EXPECT_FALSE(floor.intersectWith(COrxPoint3d(0, 0, 5), COrxPoint3d(0, 0, 3), hit));
    EXPECT_EQ(hit, untouched);
    EXPECT_TRUE(floor.intersectWith(COrxPoint3d(0, 0, 5), COrxPoint3d(0, 0, 2 + 1e-6), hit));
    EXPECT_TRUE(floor.intersectWith(COrxPoint3d(0, 0, 5), COrxPoint3d(0, 0, -1), hit));
    EXPECT_EQ(hit, COrxPoint3d(0, 0, 2));
}

TEST(COrxPlaneTest, PlanesMeetInALineOnBoth) {
    COrxPoint3d p(7, 7, 7);
    COrxVector3d d(7, 7, 7);
    COrxPlane const floor(COrxPoint3d(0, 0, 1), COrxVector3d(0, 0, 1));
    EXPECT_FALSE(
        floor.intersectWith(COrxPlane(COrxPoint3d(0, 0, 3), COrxVector3d(0, 0, -1)), p, d));
    EXPECT_EQ(p, COrxPoint3d(7, 7, 7));  // parallel planes: outputs untouched

    std::mt19937 random(7);
    std::uniform_real_distribution<double> coord(-100.0, 100.0);
    auto randomPoint = [&] { return COrxPoint3d(coord(random), coord(random), coord(random)); };
    for (int trial = 0; trial < 100; ++trial) {
        COrxPlane const a(randomPoint(), randomPoint() - COrxPoint3d::kOrigin);
        COrxPlane const b(randomPoint(), randomPoint() - COrxPoint3d::kOrigin);
        ASSERT_TRUE(a.intersectWith(b, p, d)) << "trial " << trial;
        for (COrxPlane const* plane : {&a, &b}) {  // the line lies in both planes
            EXPECT_NEAR(offPlane(*plane, p), 0.0, 1e-8) << trial;
            EXPECT_NEAR(ORX::sprod(d, plane->normal()), 0.0, 1e-12) << trial;
        }
    }
}
