#include "orx/geom/map_double_to_point.h"

#include <gtest/gtest.h>

#include <cmath>

#include "orx/geom/functions.h"

namespace {
COrxPoint3d const N(0, 0, 0), P(1, 0, 0), Q(2, 0, 0), S(3, 0, 0);
}  // namespace

TEST(CMapDoubleToPointTest, SortIsStableAndKeepsPairsWithoutAParameterLast) {
    ORX::CMapDoubleToPoint map;
    EXPECT_FALSE(map.sort());
    map.append(2.0, P);
    map.append(ORX::nan(), N);
    map.append(1.0, Q);
    map.append(2.0, S);
    ASSERT_TRUE(map.sort());
    double const expectedT[] = {1.0, 2.0, 2.0};
    COrxPoint3d const expectedP[] = {Q, P, S, N};
    double t = 0;
    COrxPoint3d p;
    for (int i = 0; i < 4; ++i) {
        ASSERT_TRUE(map.getAt(i, t, p));
        EXPECT_TRUE(i == 3 ? std::isnan(t) : t == expectedT[i]) << i;
        EXPECT_EQ(p, expectedP[i]) << i;
    }
}

TEST(CMapDoubleToPointTest, BothListsStayPaired) {
    ORX::CMapDoubleToPoint map;
    EXPECT_FALSE(map.insertAt(1, 1.0, P));
    EXPECT_TRUE(map.insertAt(0, 3.0, S));
    EXPECT_TRUE(map.insertAt(0, 1.0, P));
    EXPECT_TRUE(map.insertAt(1, 2.0, Q));
    EXPECT_FALSE(map.insertAt(-1, 0.0, P));
    double t = 9;
    COrxPoint3d p(9, 9, 9);
    EXPECT_FALSE(map.getAt(3, t, p) || map.getAt(-1, t, p));
    EXPECT_TRUE(t == 9.0 && p == COrxPoint3d(9, 9, 9));
    EXPECT_TRUE(map.getAt(1, t, p) && t == 2.0 && p == Q);

    EXPECT_EQ(map.setLogicalLength(5), 5u);
    EXPECT_EQ(map.getPtLst()[4], COrxPoint3d::kOrigin);
    map.setLogicalLength(2);
    ORX::CMapDoubleToPoint const copy(map);
    map.append(7.0, S);
    EXPECT_EQ(copy.getPtLst().len(), 2);  // a deep copy
}
