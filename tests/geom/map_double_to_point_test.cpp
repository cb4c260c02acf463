#include "orx/geom/map_double_to_point.h"

#include <gtest/gtest.h>

#include <cmath>

#include "orx/geom/functions.h"

namespace {
COrxPoint3d const P(1, 0, 0), Q(2, 0, 0), S(3, 0, 0);
}  // namespace

TEST(CMapDoubleToPointTest, SortIsStableForEqualParameters) {
    ORX::CMapDoubleToPoint map;
    EXPECT_FALSE(map.sort());
    map.append(2.0, P);
    map.append(1.0, Q);
    map.append(2.0, S);
    ASSERT_TRUE(map.sort());
    double t = 0;
    COrxPoint3d p;
    double const expectedT[] = {1.0, 2.0, 2.0};
    COrxPoint3d const expectedP[] = {Q, P, S};
    for (int i = 0; i < 3; ++i) {
        ASSERT_TRUE(map.getAt(i, t, p));
        EXPECT_EQ(t, expectedT[i]);
        EXPECT_EQ(p, expectedP[i]);
    }
}

TEST(CMapDoubleToPointTest, SortKeepsPairsWithoutAParameter) {
    ORX::CMapDoubleToPoint map;
    map.append(ORX::nan(), P);
    map.append(5.0, Q);
    map.append(-1.0, S);
    ASSERT_TRUE(map.sort());
    COrxPoint3dArray const points = map.getPtLst();
    ASSERT_EQ(points.len(), 3);
    EXPECT_EQ(points[0], S);
    EXPECT_EQ(points[1], Q);
    EXPECT_EQ(points[2], P);
    EXPECT_TRUE(std::isnan(map.getDbLst()[2]));
}

TEST(CMapDoubleToPointTest, BothListsStayPaired) {
    ORX::CMapDoubleToPoint map;
    EXPECT_FALSE(map.insertAt(1, 1.0, P));
    EXPECT_TRUE(map.insertAt(0, 3.0, S));
    EXPECT_TRUE(map.insertAt(0, 1.0, P));
    EXPECT_TRUE(map.insertAt(1, 2.0, Q));
    EXPECT_FALSE(map.insertAt(-1, 0.0, P));
    EXPECT_EQ(map.len(), 3u);
    double t = 9;
    COrxPoint3d p(9, 9, 9);
    EXPECT_FALSE(map.getAt(3, t, p));
    EXPECT_FALSE(map.getAt(-1, t, p));
    EXPECT_EQ(t, 9.0);
    EXPECT_EQ(p, COrxPoint3d(9, 9, 9));
    ASSERT_TRUE(map.getAt(1, t, p));
    EXPECT_EQ(t, 2.0);
    EXPECT_EQ(p, Q);

    EXPECT_EQ(map.setLogicalLength(5), 5u);
    EXPECT_EQ(map.getPtLst().len(), 5);
    EXPECT_EQ(map.getPtLst()[4], COrxPoint3d::kOrigin);
    EXPECT_EQ(map.setLogicalLength(2), 2u);
    ORX::CMapDoubleToPoint copy(map);
    map.append(7.0, S);
    EXPECT_EQ(copy.len(), 2u);
    EXPECT_EQ(copy.getPtLst().len(), 2);
    copy = map;
    EXPECT_EQ(copy.getDbLst()[2], 7.0);
    EXPECT_EQ(copy.getPtLst()[2], S);
}
