#include "orx/polyline/vertex_array.h"

#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include "orx/geom/matrix.h"
#include "orx/geom/point_list_functions.h"
#include "orx/polyline/polyline_functions.h"
#include "tests/support/shapes.h"

using namespace orx_test;

TEST(COrxVertexArrayTest, IndexingFoldsNegativesAndGrowsOnlyWhenWritable) {
    COrxVertexArray vl = polygon({pt(0, 0), pt(1, 0), pt(2, 0), pt(3, 0)}, false);
    ASSERT_EQ(vl.len(), 3);
    EXPECT_EQ(vl[-1].startPoint(), pt(2, 0));
    EXPECT_EQ(vl[-5].startPoint(), pt(1, 0));  // folds into range, never past it
    COrxVertexArray const& view = vl;
    EXPECT_EQ(view[5].endPoint(), pt(0, 0));  // the shared default segment
    EXPECT_EQ(vl.len(), 3);
    vl[5].set(pt(9, 9), pt(9, 8), 0.0);
    EXPECT_EQ(vl.len(), 6);
    EXPECT_EQ(vl[4], COrxVertex());
    COrxVertexArray empty;
    (void)empty[-2];
    EXPECT_EQ(empty.len(), 0);
}

TEST(COrxVertexArrayTest, AppendingAnOwnSegmentSurvivesGrowth) {
    COrxVertexArray vl;
    for (int k = 0; k < 8; ++k) {
        vl.append(COrxVertex(pt(k, 0), pt(k + 1, 0), 0.0));
    }
    ASSERT_EQ(vl.len(), vl.capacity());
    vl.append(vl[2]);
    EXPECT_EQ(vl[8].startPoint(), pt(2, 0));
    vl.insertAt(0, vl[-1]);
    EXPECT_EQ(vl[0].startPoint(), pt(2, 0));
    vl += vl;
    EXPECT_EQ(vl.len(), 20);
    EXPECT_EQ(vl[10], vl[0]);
}

TEST(COrxVertexArrayTest, ClosureComesFromTheGeometry) {
    EXPECT_TRUE(unitSquare().isClosed());
    COrxVertexArray loop(COrxVertex(pt(0, 0), pt(0, 0), 1.0));
    EXPECT_FALSE(loop.isClosed());  // one segment is never closed
    EXPECT_TRUE(loop.isContinuous());
    COrxVertexArray gapped = unitSquare();
    gapped[2].set(pt(1, 1.5), pt(0, 1), 0.0);
    EXPECT_FALSE(gapped.isClosed());
    EXPECT_EQ(gapped.numOpens(), 1);
    gapped.close(true);
    EXPECT_EQ(gapped.len(), 5);
    EXPECT_TRUE(gapped.isClosed());

    COrxVertexArray open = polygon({pt(0, 0), pt(1, 0), pt(1, 1)}, false);
    EXPECT_EQ(open.close(true).len(), 3);
    EXPECT_EQ(polygon({pt(0, 0), pt(1, 0), pt(0, 0)}).len(), 2);  // already closed list
    EXPECT_EQ(polygon({pt(5, 5)}, false).len(), 0);
}

TEST(COrxVertexArrayTest, RemoveWithBridgeKeepsChainConnected) {
    COrxVertexArray vl = polygon({pt(0, 0), pt(1, 0), pt(2, 0), pt(3, 0)}, false);
    vl.remove(1, true).remove(7, true);
    EXPECT_EQ(vl, polygon({pt(0, 0), pt(1, 0), pt(3, 0)}, false));
}

TEST(COrxVertexArrayTest, BreakVertexSplitsArcsOnTheirCircle) {
    COrxVertexArray vl(COrxVertex(pt(1, 0), pt(-1, 0), 1.0));
    COrxVertexArray halves(COrxVertex(pt(1, 0), pt(0, 1), kQuarter));
    EXPECT_EQ(vl.breakVertex(0, pt(0, 1)), halves.append(pt(-1, 0), kQuarter));
}

TEST(COrxVertexArrayTest, JoinTriesItsRulesInOrder) {
    COrxVertexArray const ab = polygon({pt(0, 0), pt(1, 0)}, false);
    COrxVertexArray const cb = polygon({pt(2, 0), pt(1, 0)}, false);
    COrxVertexArray const abc = polygon({pt(0, 0), pt(1, 0), pt(2, 0)}, false);
    COrxVertexArray joined = ab;
    ASSERT_TRUE(joined.join(polygon({pt(1, 0), pt(2, 0)}, false), false));
    EXPECT_EQ(joined, abc);
    joined = ab;
    ASSERT_TRUE(joined.join(polygon({pt(-1, 0), pt(0, 0)}, false), false));
    EXPECT_EQ(joined, polygon({pt(-1, 0), pt(0, 0), pt(1, 0)}, false));
    joined = ab;
    EXPECT_FALSE(joined.join(cb, false));  // meets only when reversed
    ASSERT_TRUE(joined.join(cb, true));
    EXPECT_EQ(joined, abc);

    COrxVertexArray empty;
    ASSERT_TRUE(empty.join(unitSquare(), false));
    EXPECT_FALSE(empty.join(ab, true));  // closed now
    joined = ab;
    EXPECT_FALSE(joined.join(unitSquare(), true));
    EXPECT_FALSE(joined.join(COrxVertexArray(), true));
    ASSERT_TRUE(joined.join(COrxVertex(pt(2, 0), pt(1, 0), 0.0), true));
    EXPECT_EQ(joined, abc);
}

TEST(COrxVertexArrayTest, TransformationsCarryTheNormal) {
    COrxVertexArray vl(COrxVertex(pt(1, 0), pt(0, 1), 0.4));
    double const flipZ[4][4] = {{1, 0, 0, 0}, {0, -1, 0, 0}, {0, 0, -1, 0}, {0, 0, 0, 1}};
    EXPECT_EQ(vl.getTransformedCopy(flipZ).normal(), COrxVector3d(0, 0, -1));
    EXPECT_FALSE(vl.setNormal(COrxVector3d()));
    EXPECT_TRUE(vl.setNormal(COrxVector3d(0, 0, 5)));
    EXPECT_EQ(vl.normal(), COrxVector3d::kZAxis);
}

TEST(COrxVertexArrayTest, LengthsAndPointsAlongThePolyline) {
    COrxVertexArray vl;
    vl.append(pt(2, 0), 0.0).append(pt(2, 2), 1.0);  // from the origin; a half circle of radius 1
    EXPECT_EQ(vl[0].startPoint(), pt(0, 0));
    EXPECT_NEAR(vl.geomLength(), 2 + ORX::kPi, 1e-12);
    double d = 0;
    ASSERT_TRUE(vl.distAtPoint(d, pt(3, 1)));
    EXPECT_NEAR(d, 2 + ORX::kHalfPi, 1e-12);
    EXPECT_FALSE(vl.distAtPoint(d, pt(1, 1)));
    COrxPoint3d p;
    ASSERT_TRUE(vl.pointAtDist(p, 2 + ORX::kHalfPi));
    EXPECT_EQ(p, pt(3, 1));
    EXPECT_FALSE(vl.pointAtDist(p, 10));
    EXPECT_EQ(vl.vxNear(pt(3.5, 1)).bulge(), 1.0);
    EXPECT_EQ(vl.vxNear(pt(1, -3)).bulge(), 0.0);
}

TEST(COrxVertexArrayTest, ExtentsAreTightAroundArcs) {
    COrxVertexArray vl(COrxVertex(pt(1, 0), pt(-1, 0), 1.0));  // upper half circle
    COrxPoint3d lo, hi;
    ASSERT_TRUE(vl.extents(lo, hi));
    EXPECT_EQ(lo, pt(-1, 0));
    EXPECT_EQ(hi, pt(1, 1));
    COrxVertexArray minor(COrxVertex(pt(1, 0), pt(0, 1), 0.2));  // no axis point inside
    EXPECT_TRUE(minor.extents(lo, hi));
    EXPECT_EQ(hi, pt(1, 1));
}

// An arc a hair's breadth short of its full circle spans its circle across the chord and its
// sagitta along it, however short the chord and however large the bulge (its angle then
// rounds to pi).
TEST(COrxVertexArrayTest, ExtentsOfNearlyFullCirclesSpanTheCircle) {
    for (double const chord : {1e-13, 1.0, 1e3}) {
        for (double const bulge : {1e3, 1e8, 1e16, -5e92}) {
            COrxVertexArray const vl(COrxVertex(pt(0, 0), pt(chord, 0), bulge));
            double const radius = chord / 4 * (std::fabs(bulge) + 1 / std::fabs(bulge));
            COrxPoint3d lo, hi;
            ASSERT_TRUE(vl.extents(lo, hi));
            EXPECT_NEAR(hi.x - lo.x, 2 * radius, 1e-9 * radius) << chord << " " << bulge;
            double const sagitta = std::fabs(bulge) * chord / 2;  // the height across the chord
            EXPECT_NEAR(hi.y - lo.y, sagitta, 1e-9 * radius) << chord << " " << bulge;
        }
    }
}

TEST(COrxVertexArrayTest, CornerPointsWithTessellatedArcs) {
    COrxVertexArray half(COrxVertex(pt(10, 0), pt(-10, 0), 1.0));
    COrxPoint3dArray const pts = half.pts(true, 0.1);
    ASSERT_EQ(pts.len(), 13);  // start, 11 inner points (12 pieces), end
    for (int k = 0; k < pts.len(); ++k) {
        EXPECT_NEAR(pts[k].distanceTo(pt(0, 0)), 10.0, 1e-9);
    }
    EXPECT_EQ(half.pts(false, 0.1).len(), 2);
    EXPECT_EQ(unitSquare().pts(false, 0.1).len(), 4);  // closed: first point not repeated
}

TEST(COrxVertexArrayTest, IntersectionsOfPolylinesReportEachPointOnce) {
    COrxVertexArray const square = unitSquare();
    COrxPoint3dArray pts;
    EXPECT_FALSE(square.intersectWith(pts, square, 0));
    // A corner is found by both of its segments but reported once.
    COrxVertexArray const diagonal = polygon({pt(-1, -1), pt(2, 2)}, false);
    EXPECT_EQ(square.intersectWith(diagonal, 0).len(), 2);
    EXPECT_EQ(square.intersectWithBulg0(diagonal).len(), 2);
}

TEST(COrxVertexArrayTest, OrientationOfClosedPolylines) {
    COrxVertexArray const ccw = unitSquare();
    EXPECT_TRUE(ORX::g_vl_orient(ccw, COrxVector3d::kZAxis));
    EXPECT_FALSE(ORX::g_vl_orient(ccw, COrxVector3d(0, 0, -1)));
    COrxVertexArray const circle = unitCircle().reverse();
    EXPECT_FALSE(ORX::g_vl_orient(circle, COrxVector3d::kZAxis));
    COrxArrayTempl<COrxVertexArray> list;
    list.append(ccw.reverse()).append(circle).append(polygon({pt(0, 0), pt(5, 5)}, false));
    ORX::setOrient(list, COrxVector3d::kZAxis);
    EXPECT_TRUE(ORX::g_vl_orient(list[0], COrxVector3d::kZAxis));
    EXPECT_TRUE(ORX::g_vl_orient(list[1], COrxVector3d::kZAxis));
    EXPECT_EQ(list[2][0].startPoint(), pt(0, 0));  // open: left alone
}

// The closing arc of a sliver: straight for some bulges, bulging the other way for others.
double closingBulge(double b) {
    return std::fabs(b) < 1e-2 ? 0.0 : -b / 2;
}

// The orientation summed point by point answers as the polygon of the exploded corners does,
// for any polyline: closed or not, figures of eight, slivers, loops ending within the
// tolerance of their start, a single segment, and other normals.
TEST(COrxVertexArrayTest, OrientationIsThatOfTheExplodedCorners) {
    std::mt19937 random(424242);
    std::uniform_real_distribution<double> coordinate(-10.0, 10.0), bulge(-2.0, 2.0);
    COrxVector3d const normals[] = {COrxVector3d::kZAxis, COrxVector3d(0, 0, -1),
                                    COrxVector3d(1, 2, 3)};
    for (int trial = 0; trial < 600; ++trial) {
        int const n = 1 + trial % 7;
        COrxPoint3dArray corners;
        for (int k = 0; k < n; ++k) {
            corners.append(pt(coordinate(random), trial % 5 == 0 ? 0.0 : coordinate(random)));
        }
        COrxVertexArray vl;
        for (int k = 0; k < n; ++k) {
            bool const last = k + 1 == n;
            COrxPoint3d end = last ? corners[0] : corners[k + 1];
            if (last && trial % 3 == 1) {
                end = pt(end.x + 0.5e-5, end.y);  // back within the tolerance of the start
            } else if (last && trial % 3 == 2) {
                end = pt(end.x + 1, end.y);  // open
            }
            vl.append(COrxVertex(corners[k], end, trial % 4 == 0 ? 0.0 : bulge(random)));
        }
        for (COrxVector3d const& normal : normals) {
            COrxVertexArray planar(vl);
            COrxMatrix3d toPlane;
            planar.transformBy(toPlane.setToWorldToPlane(normal));
            bool const expected = ORX::g_pl_orient(
                ORX::g_vl_expl(normal == COrxVector3d::kZAxis ? vl : planar, 4).pts(false, 0.01),
                COrxVector3d::kZAxis);
            ASSERT_EQ(ORX::g_vl_orient(vl, normal), expected) << trial;
        }
    }
    EXPECT_TRUE(ORX::g_vl_orient(COrxVertexArray(), COrxVector3d::kZAxis));

    // Slivers whose chord triangle is thinner than its arcs bulge: the arcs decide, and the
    // chord polygon must not answer for them. Also far from the origin.
    for (double const site : {0.0, 1e6}) {
        for (double const height : {-1e-2, -1e-5, -1e-9, 0.0, 1e-9, 1e-5, 1e-2}) {
            for (double const b : {-1.0, -0.1, -1e-3, -1e-7, 1e-7, 1e-3, 0.1, 1.0}) {
                COrxPoint3d const a = pt(site, site), m = pt(site + 5, site + height),
                                  c = pt(site + 10, site);
                COrxVertexArray sliver;
                sliver.append(COrxVertex(a, m, b)).append(COrxVertex(m, c, b));
                sliver.append(COrxVertex(c, a, closingBulge(b)));
                bool const expected = ORX::g_pl_orient(ORX::g_vl_expl(sliver, 4).pts(false, 0.01),
                                                       COrxVector3d::kZAxis);
                EXPECT_EQ(ORX::g_vl_orient(sliver, COrxVector3d::kZAxis), expected)
                    << site << " " << height << " " << b;
            }
        }
    }
}

TEST(COrxVertexArrayTest, FlatteningArcs) {
    COrxVertexArray half(COrxVertex(pt(1, 0), pt(-1, 0), 1.0));
    EXPECT_EQ(ORX::g_vl_expl(half, 0).len(), 3);  // 2 inner points
    EXPECT_EQ(ORX::g_vl_expl(half, 4).len(), 5);  // 4 pieces per half circle: 4 inner points
    COrxVertexArray quarter(COrxVertex(pt(1, 0), pt(0, 1), kQuarter));
    EXPECT_EQ(ORX::g_vl_expl(quarter, 2).len(), 3);  // raised to 2 inner points
    EXPECT_EQ(ORX::g_vl_expl(unitSquare(), 4), unitSquare());
}

TEST(PolylineAreaTest, ExactForArcsAndAddedUpOverLoops) {
    COrxVertexArray half(COrxVertex(pt(1, 0), pt(-1, 0), 1.0));  // closed by its chord
    EXPECT_NEAR(ORX::g_vl_area(half.reverse()), -ORX::kHalfPi, 1e-12);
    COrxVertexArray three = unitSquare();
    three += polygon({pt(5, 5), pt(7, 5), pt(7, 7), pt(5, 7)});
    three += polygon({pt(20, 0), pt(21, 0), pt(21, 1)});
    EXPECT_NEAR(ORX::g_vl_area(three), 1 + 4 + 0.5, 1e-12);
    COrxVertexArray far = unitSquare();
    far.move(COrxVector3d(1e9, 1e9, 0));
    EXPECT_NEAR(ORX::g_vl_area(far), 1.0, 1e-9);
    EXPECT_EQ(ORX::g_vl_area(COrxVertexArray()), 0.0);
}

TEST(COrxVertexArrayTest, StorageGrowsLikeEveryOtherArray) {
    // Capacities are visible to callers: every array doubles from 8, step by step or at once.
    COrxVertexArray segments;
    COrxPoint3dArray points;
    COrxArrayTempl<double> values;
    int expected = 8;
    for (int n = 1; n <= 300; ++n) {
        segments.append(COrxVertex(pt(n, 0), pt(n + 1, 0), 0.0));
        points.append(pt(n, 0));
        values.append(n);
        expected = n > expected ? 2 * expected : expected;
        ASSERT_EQ(segments.capacity(), expected) << n;
        ASSERT_EQ(points.capacity(), expected) << n;
        ASSERT_EQ(values.capacity(), static_cast<unsigned long>(expected)) << n;
    }
    EXPECT_EQ(segments[0].startPoint(), pt(1, 0));  // the moves kept every element
    EXPECT_EQ(segments[-1].startPoint(), pt(300, 0));
    EXPECT_EQ(points[150], pt(151, 0));

    COrxVertexArray direct;
    COrxPoint3dArray directPoints;
    EXPECT_EQ(direct.setLogicalLength(129), 129);
    EXPECT_EQ(directPoints.setLogicalLength(129), 129);
    EXPECT_EQ(direct.capacity(), 256);
    EXPECT_EQ(directPoints.capacity(), 256);
    EXPECT_EQ(direct.setLogicalLength(-1), 0);  // no length below 0, no shrinking
    EXPECT_EQ(direct.capacity(), 256);
}
