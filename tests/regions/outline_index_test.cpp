// The prepared outline answers as the point-in-region test does, for outlines, regions with
// holes and large outlines, and stays a value.
#include "orx/regions/outline_index.h"

#include <gtest/gtest.h>

#include <limits>

#include "../../bench/bench_shapes.h"
#include "shape_maker.h"
#include "tests/support/shapes.h"

using namespace orx_test;

namespace {

// A point this near the boundary may be decided differently by a grazing ray.
constexpr double kNearBoundary = 1e-3;

bool nearBoundary(Region const& region, COrxPoint3d const& p) {
    COrxPoint3dTol const wide(kNearBoundary);
    for (unsigned long k = 0; k < region.len(); ++k) {
        if (region[static_cast<int>(k)].isPoint(p)) {
            return true;
        }
    }
    return false;
}

}  // namespace

TEST(COrxOutlineIndexTest, AnswersAsThePointInRegionTest) {
    ShapeMaker make(5u);
    std::vector<Region> regions;
    for (int n = 0; n < 40; ++n) {
        regions.push_back(n % 2 ? make.withHoles() : region({make.outline()}));
    }
    regions.push_back(region({orx_bench::wavy(2000).a}));
    for (Region const& r : regions) {
        COrxOutlineIndex const index(r);
        for (int k = 0; k < 200; ++k) {
            COrxPoint3d const p(make.uniform(-8, 8), make.uniform(-8, 8), 0);
            COrxPoint3d const far(p.x * 16, p.y * 16, 0);  // reaches the wavy outline too
            for (COrxPoint3d const& q : {p, far}) {
                if (!nearBoundary(r, q)) {
                    EXPECT_EQ(index.locate(q), ORX::g_vll_pt_inside(r, q));
                }
            }
        }
        // Points on the boundary: the corners and the midpoints of the segments.
        for (unsigned long l = 0; l < r.len(); ++l) {
            COrxVertexArray const& loop = r[static_cast<int>(l)];
            for (int k = 0; k < loop.len(); k += 7) {
                EXPECT_EQ(index.locate(loop[k].mid()), 0);
                EXPECT_TRUE(index.inside(loop[k].startPoint(), true));
                EXPECT_FALSE(index.inside(loop[k].startPoint(), false));
            }
        }
    }
}

TEST(COrxOutlineIndexTest, EmptyInvalidAndCopied) {
    COrxOutlineIndex const none;
    EXPECT_EQ(none.locate(pt(0, 0)), -1);
    COrxOutlineIndex square(rectangle(0, 0, 2, 2));
    EXPECT_EQ(square.locate(pt(ORX::nan(), 1)), -1);
    COrxOutlineIndex copy(square);
    square = COrxOutlineIndex(rectangle(10, 10, 12, 12));
    EXPECT_EQ(copy.locate(pt(1, 1)), 1);
    EXPECT_EQ(square.locate(pt(1, 1)), -1);
    EXPECT_EQ(square.locate(pt(11, 11)), 1);
    copy = copy;  // self-assignment keeps it
    EXPECT_EQ(copy.locate(pt(1, 1)), 1);
}

TEST(COrxOutlineIndexTest, IsPlanarWhateverTheHeights) {
    // A diamond whose corners alternate between two heights, asked at several heights: the
    // index compared points in space, and a point with an infinite z was outside everything.
    COrxVertexArray diamond;
    COrxPoint3d const corners[] = {COrxPoint3d(2, 0, 0), COrxPoint3d(0, 2, 5),
                                   COrxPoint3d(-2, 0, 0), COrxPoint3d(0, -2, 5)};
    for (int i = 0; i < 4; ++i) {
        diamond.append(COrxVertex(corners[i], corners[(i + 1) % 4], 0.0));
    }
    COrxOutlineIndex const index(diamond);
    for (double z : {0.0, 5.0, -120.0, std::numeric_limits<double>::infinity(), ORX::nan()}) {
        SCOPED_TRACE(z);
        EXPECT_EQ(index.locate(COrxPoint3d(0, 2, z)), 0);  // a corner
        EXPECT_EQ(index.locate(COrxPoint3d(1, 1, z)), 0);  // an edge
        EXPECT_EQ(index.locate(COrxPoint3d(0.5, 0, z)), 1);
        EXPECT_EQ(index.locate(COrxPoint3d(3, 0, z)), -1);
    }
}

TEST(COrxOutlineIndexTest, ACoordinateNearZeroCountsAsZero) {
    // A circle of radius 0.093 about (0.002, 0) in three arcs, asked about a point a
    // subnormal number away from the origin: the exact winding test's products underflowed,
    // and the point well inside the circle was outside.
    double const d = std::numeric_limits<double>::denorm_min();
    COrxPoint3d const a(0.095, 0, 0), b(-0.091, 0, 0), c(0.002, -0.093, 0);
    COrxVertexArray circle;
    circle.append(COrxVertex(a, b, 1.0))
        .append(COrxVertex(b, c, 0.41421356237309503))
        .append(COrxVertex(c, a, 0.41421356237309503));
    COrxOutlineIndex const index(circle);
    for (COrxPoint3d const& p : {COrxPoint3d(-d, -d, 0), COrxPoint3d(d, -1e-60, 0), pt(0, 0)}) {
        EXPECT_EQ(index.locate(p), 1);
    }
}
