#include "orx/geom/point_array.h"

#include <gtest/gtest.h>

#include <cmath>
#include <utility>

#include "orx/geom/functions.h"
#include "tests/support/lists.h"

using orx_test::list;

namespace {

COrxPoint3d const A(1, 0, 0), B(2, 0, 0), C(3, 0, 0);

}  // namespace

TEST(COrxPoint3dArrayTest, NegativeIndexesCountFromTheEnd) {
    COrxPoint3dArray three = list({A, B, C});
    EXPECT_EQ(three[-1], C);
    EXPECT_EQ(three[-3], A);
    COrxPoint3dArray const& constThree = three;
    EXPECT_EQ(constThree[-2], B);
    EXPECT_EQ(constThree[3], COrxPoint3d::kOrigin);   // the const dummy
    EXPECT_EQ(constThree[-4], COrxPoint3d::kOrigin);  // still negative after folding
    COrxPoint3dArray one = list({B});
    EXPECT_EQ(one[-5], B);
    COrxPoint3dArray empty;
    empty[-1].set(9, 9, 9);  // the writable dummy
    EXPECT_EQ(empty.len(), 0);
    EXPECT_EQ(static_cast<COrxPoint3dArray const&>(empty)[0], COrxPoint3d::kOrigin);
}

TEST(COrxPoint3dArrayTest, WritingPastTheEndGrowsWithOrigins) {
    COrxPoint3dArray pts = list({A, B});
    pts[5] = C;
    EXPECT_EQ(pts,
              list({A, B, COrxPoint3d::kOrigin, COrxPoint3d::kOrigin, COrxPoint3d::kOrigin, C}));
    EXPECT_EQ(pts.capacity(), 8);
    // Slots freed by removal read as origins once the array grows over them again.
    pts.setLogicalLength(1);
    pts.setLogicalLength(3);
    EXPECT_EQ(pts[2], COrxPoint3d::kOrigin);
    EXPECT_EQ(std::as_const(pts).insertAt(5u, A).len(), 6);  // a copy, padded with origins
}

TEST(COrxPoint3dArrayTest, AppendingAndInsertingOwnPointsIsSafe) {
    COrxPoint3dArray pts;
    for (int k = 0; k < 8; ++k) {
        pts.append(COrxPoint3d(k, k, k));
    }
    ASSERT_EQ(pts.capacity(), 8);
    pts.append(pts[0]);  // the block moves while the argument lives in it
    EXPECT_EQ(pts[8], COrxPoint3d(0, 0, 0));
    pts.insertAt(0, pts[8]);
    pts.insertAt(1, pts[-2]);  // the 7 before the copied origin
    EXPECT_EQ(pts[1], COrxPoint3d(7, 7, 7));
    EXPECT_EQ(pts.len(), 11);
    pts += pts;
    EXPECT_EQ(pts.len(), 22);
    EXPECT_EQ(pts[12], COrxPoint3d(7, 7, 7));
}

TEST(COrxPoint3dArrayTest, RemovalIgnoresBadIndexesAndSearchUsesThePointTolerance) {
    COrxPoint3dArray pts = list({A, B, C});
    EXPECT_EQ(pts.removeAt(0), 2);
    EXPECT_EQ(pts.removeAt(2), 2);
    EXPECT_EQ(pts.removeAt(-1), 2);
    pts.appendUniq(COrxPoint3d(2, 1e-6, 0));
    EXPECT_EQ(pts, list({B, C}));
    EXPECT_EQ(pts.indexOf(COrxPoint3d(3, 0, 5e-6)), 1);
    unsigned long index = 77;
    EXPECT_FALSE(pts.indexOf(A, index));
    EXPECT_EQ(index, 77u);
    EXPECT_TRUE(list({A, B, COrxPoint3d(1, 4e-6, 0)}).isClosed());
    EXPECT_FALSE(list({A, A}).isClosed());
}

TEST(COrxPoint3dArrayTest, ExtentsSpanAllPoints) {
    COrxPoint3d low(7, 7, 7), high(7, 7, 7);
    EXPECT_FALSE(COrxPoint3dArray().extents(low, high));
    EXPECT_EQ(low, COrxPoint3d(7, 7, 7));
    ASSERT_TRUE(list({COrxPoint3d(1, 5, -2), COrxPoint3d(-3, 2, 4)}).extents(low, high));
    EXPECT_EQ(low, COrxPoint3d(-3, 2, -2));
    EXPECT_EQ(high, COrxPoint3d(1, 5, 4));
}

TEST(COrxPoint3dArrayTest, TransformationsMoveEveryPoint) {
    COrxPoint3dArray pts = list({A, COrxPoint3d(1, 1, 2)});
    pts.rotate(ORX::kHalfPi, COrxPoint3d(1, 0, 0));
    EXPECT_EQ(pts, list({A, COrxPoint3d(0, 0, 2)}));
    pts.mirror(ORX::kPi / 4, COrxPoint3d::kOrigin);  // at the line y = x
    EXPECT_EQ(pts, list({COrxPoint3d(0, 1, 0), COrxPoint3d(0, 0, 2)}));
    pts.move(COrxVector3d(1, 1, 1)).revert();
    EXPECT_EQ(pts, list({COrxPoint3d(1, 1, 3), COrxPoint3d(1, 2, 1)}));
}

TEST(COrxPoint3dArrayTest, SortAlongADirectionIsStableAfterRounding) {
    // Projections 1e-6 apart round to the same multiple of the tolerance: order kept.
    COrxPoint3dArray pts = list({COrxPoint3d(5, 0, 0), COrxPoint3d(1, 1e-6, 0),
                                 COrxPoint3d(1, 0, 0), COrxPoint3d(-2, 0, 0)});
    pts.sort(0.0);
    EXPECT_EQ(pts[0], COrxPoint3d(-2, 0, 0));
    EXPECT_EQ(pts[3], COrxPoint3d(5, 0, 0));
    EXPECT_EQ(pts[1].y, 1e-6);
    EXPECT_EQ(pts[2].y, 0.0);
    pts.sort(COrxVector3d(0, -1, 0));  // y up to 1e-6: all equal after rounding
    EXPECT_EQ(pts[1].y, 1e-6);
    // An unnormalised direction scales the projection before rounding.
    COrxPoint3dArray far = list({COrxPoint3d(1, 1e-6, 0), COrxPoint3d(1, 0, 0)});
    far.sort(COrxVector3d(0, -1000, 0));
    EXPECT_EQ(far[0].y, 1e-6);
    // NaN projections go last, in their order.
    COrxPoint3dArray odd = list({COrxPoint3d(ORX::nan(), 0, 0), B, A});
    odd.sort(0.0);
    EXPECT_EQ(odd[0], A);
    EXPECT_EQ(odd[1], B);
    EXPECT_TRUE(std::isnan(odd[2].x));
}
