#include <gtest/gtest.h>

#include "orx/geom/point.h"
#include "orx/geom/vector.h"

// Lists of points compare and search with the tolerant point equality.
TEST(CoordinateListsTest, PointListsCompareTolerantly) {
    COrxArrayTempl<COrxPoint3d> a, b;
    a.append(COrxPoint3d(1, 0, 0)).append(COrxPoint3d(2, 0, 0));
    b.append(COrxPoint3d(1, 0, 1e-6)).append(COrxPoint3d(2 - 1e-6, 0, 0));
    EXPECT_EQ(a, b);
    EXPECT_FALSE(a < b);
    b[1].x = 3;
    EXPECT_TRUE(a < b);
    EXPECT_EQ((a & b).len(), 1u);
    EXPECT_EQ((a | b).len(), 3u);

    COrxArrayTempl<COrxVector3d> v;
    v.append(COrxVector3d(0, 0, 1));
    EXPECT_TRUE(v.contains(COrxVector3d(0, 5e-8, 1)));
    EXPECT_FALSE(v.contains(COrxVector3d(0, 0, -1)));
}
