#include "orx/polyline/vertex_tools.h"

#include <gtest/gtest.h>

#include <cmath>

#include "orx/geom/plane.h"
#include "tests/support/shapes.h"

using namespace orx_test;

namespace {

COrxVertex upperHalf() {
    return COrxVertex(pt(1, 0), pt(-1, 0), 1.0);
}

}  // namespace

TEST(VertexToolsTest, BuildingFromTwoPoints) {
    COrxVertex v(pt(0, 0), pt(1, 0), 0.5);
    EXPECT_FALSE(orx_g_vx_vx(pt(2, 2), pt(2, 2), v, true));
    EXPECT_EQ(v.endPoint(), pt(1, 0));
    ASSERT_TRUE(orx_g_vx_vx(pt(2, 2), pt(3, 3), v, true));
    EXPECT_EQ(v.bulge(), 0.5);
    ASSERT_TRUE(orx_g_vx_vx(pt(2, 2), pt(3, 3), v, false));
    EXPECT_EQ(v.bulge(), 0.0);
}

TEST(VertexToolsTest, TurnAngleAtAJoint) {
    COrxVertex const east(pt(0, 0), pt(1, 0), 0.0);
    EXPECT_NEAR(ORX::g_vx_ang(east, COrxVertex(pt(1, 0), pt(1, -1), 0.0)), -ORX::kHalfPi, 1e-12);
    EXPECT_NEAR(ORX::g_vx_ang(east, COrxVertex(pt(1, 0), pt(0, 0), 0.0)), ORX::kPi, 1e-12);
    // A tangent arc continues without a turn.
    EXPECT_NEAR(ORX::g_vx_ang(east, COrxVertex(pt(1, 0), pt(1, 2), 1.0)), 0.0, 1e-12);
}

TEST(VertexToolsTest, CollinearityWithAGivenTolerance) {
    COrxVertex const a(pt(0, 0), pt(10, 0), 0.0);
    COrxVertex const b(pt(12, 0.01), pt(15, -0.01), 0.0);
    EXPECT_FALSE(ORX::g_vx_colinear(a, b, 0.001));
    EXPECT_TRUE(ORX::g_vx_colinear(a, b, 0.02));
    // A quarter of a slightly larger concentric circle, turning the same way.
    COrxVertex const wider(pt(-1.005, 0), pt(0, -1.005), kQuarter);
    EXPECT_TRUE(ORX::g_vx_colinear(upperHalf(), wider, 0.01));
    EXPECT_FALSE(ORX::g_vx_colinear(upperHalf(), wider.reverse(), 0.01));
    EXPECT_NEAR(ORX::g_vx_lotd(upperHalf(), pt(0, -3)), 2.0, 1e-12);
    EXPECT_TRUE(std::isnan(ORX::g_vx_lotd(a, pt(NAN, 0))));
}

TEST(VertexToolsTest, ParallelRoundedAndFlattenedCopies) {
    EXPECT_NEAR(ORX::g_vx_parallel(upperHalf(), 1.0).radius(), 2.0, 1e-12);
    COrxVertex v(pt(1.26, 2.74, 3.1), pt(-0.24, 0.5, 0), 0.3);
    EXPECT_EQ(ORX::g_vx_rnd(v, 0.5), COrxVertex(pt(1.5, 2.5, 3.0), pt(0.0, 0.5, 0), 0.3));
    EXPECT_EQ(ORX::g_vx_xy(v).startPoint().z, 0.0);
}

TEST(VertexToolsTest, SearchingAPolyline) {
    COrxVertexArray const vl = polygon({pt(0, 0), pt(4, 0), pt(4, 4)}, false);
    EXPECT_EQ(ORX::g_vx_search(vl, pt(4, 0)), 1);
    EXPECT_EQ(ORX::g_vx_search(vl, pt(4, 4)), -1);
    EXPECT_EQ(ORX::g_vx_search_near(vl, pt(5, 3)), 1);
    EXPECT_EQ(ORX::g_vx_search_near(COrxVertexArray(), pt(5, 3)), -1);
}

TEST(VertexToolsTest, TangentPoints) {
    COrxPoint3dArray pts;
    ASSERT_TRUE(ORX::g_vx_tangp(upperHalf(), pt(0, 2), pts));
    double const h = std::sqrt(0.75);  // 60 degrees either side of the direction to the point
    EXPECT_EQ(pts.len(), 2);
    EXPECT_GE(pts.indexOf(pt(h, 0.5)), 0);
    EXPECT_GE(pts.indexOf(pt(-h, 0.5)), 0);
    EXPECT_FALSE(ORX::g_vx_tangp(upperHalf(), pt(0, -2), pts));  // both touch the lower half
    EXPECT_FALSE(ORX::g_vx_tangp(upperHalf(), pt(0, 0.5), pts));
    ASSERT_TRUE(ORX::g_vx_tangp(upperHalf(), 0.0, pts));  // horizontal tangent: the top
    EXPECT_EQ(pts, list({pt(0, 1)}));
    EXPECT_TRUE(ORX::g_vx_tangp(COrxVertex(pt(0, 0), pt(1, 1), 0.0), 5 * ORX::kPi / 4, pts));
    EXPECT_FALSE(ORX::g_vx_tangp(COrxVertex(pt(0, 0), pt(1, 1), 0.0), 0.0, pts));
}

TEST(VertexToolsTest, ChordDeviationOfACutArc) {
    COrxVertex const half(pt(10, 0), pt(-10, 0), 1.0);
    EXPECT_NEAR(ORX::g_vx_split_dif(half, 1), 10.0, 1e-12);
    // Cut as finely as g_vx_split_n asks (plus the one extra piece pts makes), the arc
    // stays within the tolerance.
    EXPECT_LE(ORX::g_vx_split_dif(half, ORX::g_vx_split_n(half, 0.1) + 1), 0.1);
    EXPECT_EQ(ORX::g_vx_split_dif(COrxVertex(pt(0, 0), pt(1, 0), 0.0), 3), 0.0);
    EXPECT_TRUE(std::isnan(ORX::g_vx_split_dif(half, 0)));
}

TEST(VertexToolsTest, SortingPointsAlongSegmentsAndPolylines) {
    COrxPoint3dArray pts = list({pt(3, 0), pt(9, 9), pt(1, 0), pt(2, 0)});
    EXPECT_EQ(ORX::g_pl_sort_vx(pts, COrxVertex(pt(0, 0), pt(5, 0), 0.0)), 3);
    EXPECT_EQ(pts, list({pt(1, 0), pt(2, 0), pt(3, 0), pt(9, 9)}));  // off the segment: last

    COrxVertexArray const vl = polygon({pt(0, 0), pt(4, 0), pt(4, 4)}, false);
    COrxPoint3dArray along = list({pt(4, 3), pt(2, 0), pt(4, 1)});
    EXPECT_EQ(ORX::g_pl_sort_vl(along, vl), 3);
    EXPECT_EQ(along, list({pt(2, 0), pt(4, 1), pt(4, 3)}));
}

TEST(PointInsideTest, RayParityOverThePolygon) {
    COrxPoint3dArray const square = list({pt(0, 0), pt(4, 0), pt(4, 4), pt(0, 4)});
    EXPECT_TRUE(square.ptInside(pt(3.5, 0.5)));
    EXPECT_FALSE(square.ptInside(pt(5, 1)));
    EXPECT_FALSE(list({pt(0, 0), pt(4, 0)}).ptInside(pt(1, 0)));
    COrxPoint3dArray const l = list({pt(0, 0), pt(4, 0), pt(4, 1), pt(1, 1), pt(1, 4), pt(0, 4)});
    EXPECT_TRUE(l.ptInside(pt(0.5, 3)));
    EXPECT_FALSE(l.ptInside(pt(3, 3)));
}

TEST(PolylineProjectionTest, ParallelPlanesKeepArcsInclinedPlanesFlattenThem) {
    COrxVertexArray vl;
    vl.append(pt(2, 0), 0.0).append(pt(2, 2), 1.0);
    COrxPlane const raised(pt(0, 0, 5), COrxVector3d::kZAxis);
    COrxVertexArray const up = ORX::vlPlaneProje(raised, vl, COrxVector3d(0, 0, 1));
    ASSERT_EQ(up.len(), 2);
    EXPECT_EQ(up[1].startPoint(), pt(2, 0, 5));
    EXPECT_EQ(up[1].bulge(), 1.0);
    COrxPlane const inclined(pt(0, 0, 0), COrxVector3d(0, -1, 1));
    COrxVertexArray const tilted = ORX::vlPlaneProje(inclined, vl, COrxVector3d(0, 0, 1));
    EXPECT_GT(tilted.len(), 2);
    for (int k = 0; k < tilted.len(); ++k) {
        EXPECT_EQ(tilted[k].bulge(), 0.0);
        EXPECT_NEAR(tilted[k].endPoint().z, tilted[k].endPoint().y, 1e-9);  // on z = y
    }
    // Projection along the plane misses it: nothing is left.
    EXPECT_TRUE(ORX::vlPlaneProje(raised, vl, COrxVector3d(1, 0, 0)).isEmpty());
}
