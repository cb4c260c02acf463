// Normalising and offsetting whole polylines.
#include <gtest/gtest.h>

#include "tests/support/shapes.h"

using namespace orx_test;

TEST(NormTest, MergesACollinearRunAcrossTheSeam) {
    // The bottom edge is split at (1, 0) and the polyline starts in its middle.
    COrxVertexArray vl = polygon({pt(1, 0), pt(2, 0), pt(2, 2), pt(0, 2), pt(0, 0)});
    COrxVertexArray kept = vl;
    EXPECT_EQ(kept.norm(true).len(), 5);  // the start stays where it is
    vl.norm(false);
    ASSERT_EQ(vl.len(), 4);
    EXPECT_TRUE(vl.isClosed());
    EXPECT_NEAR(vl.geomLength(), 8.0, 1e-12);
}

TEST(NormTest, DropsZeroLengthSegmentsAndSnapsJoints) {
    COrxVertexArray vl = polygon({pt(0, 0), pt(1, 0)}, false);
    vl.append(pt(1, 0), 0.7).append(COrxVertex(pt(1 + 4e-6, 0), pt(1, 1), 0.0));
    vl.append(pt(0, 0), 0.0).norm(false);
    ASSERT_EQ(vl.len(), 3);
    EXPECT_EQ(vl[0].endPoint().x, vl[1].startPoint().x);  // exactly
}

TEST(NormTest, NeverDropsAVertexFartherThanTheTolerance) {
    // A run that goes back on itself would drop its turning point: it stays.
    EXPECT_EQ(polygon({pt(0, 0), pt(3, 0)}).norm(false).len(), 2);
    EXPECT_EQ(polygon({pt(0, 0), pt(2, 0), pt(2, 3), pt(2, 1)}).norm(false).len(), 4);
    // A fine regular polygon of a circle: each joint is nearly straight, but the merged
    // segments may not cut more than the tolerance off the original vertices.
    int const n = 20000;
    COrxPoint3dArray corners;
    for (int k = 0; k < n; ++k) {
        corners.append(ORX::polar(pt(0, 0), ORX::kTwoPi * k / n, 1.0));
    }
    COrxVertexArray fine;
    fine.fromPoints(corners, true);
    COrxVertexArray merged = fine;
    merged.norm(false);
    EXPECT_LT(merged.len(), n / 10);  // the nearly straight runs do merge
    EXPECT_TRUE(merged.isClosed());
    for (int k = 0; k < n; ++k) {
        ASSERT_TRUE(merged.isPoint(corners[k])) << "vertex " << k;
    }
}

TEST(NormTest, NeverErasesACircleMadeOfArcs) {
    COrxVertexArray circle = unitCircle();
    circle.norm(false);
    ASSERT_EQ(circle.len(), 2);
    EXPECT_NEAR(circle.geomLength(), ORX::kTwoPi, 1e-12);

    COrxVertexArray thirds;
    thirds.append(COrxVertex(COrxPoint3d(), 1.0, 0.0, ORX::kTwoPi / 3))
        .append(COrxVertex(COrxPoint3d(), 1.0, ORX::kTwoPi / 3, 2 * ORX::kTwoPi / 3))
        .append(COrxVertex(COrxPoint3d(), 1.0, 2 * ORX::kTwoPi / 3, 0.0));
    thirds.norm(false);
    EXPECT_EQ(thirds.len(), 2);  // two of the three merge, the circle stays
    EXPECT_NEAR(thirds.geomLength(), ORX::kTwoPi, 1e-9);
    EXPECT_TRUE(thirds.isClosed());
}

TEST(OffsetTest, RoundedSquareOutwardsAndInwards) {
    double const side = 10, r = 2;
    COrxVertexArray out = roundedRectangle(0, 0, side, side, r);
    out.offset(1.0, false);  // right of a counter-clockwise outline is outside
    EXPECT_TRUE(out.isClosed());
    EXPECT_EQ(out.len(), 8);
    EXPECT_NEAR(out.geomLength(), 4 * (side - 2 * r) + ORX::kTwoPi * (r + 1), 1e-9);

    COrxVertexArray in = roundedRectangle(0, 0, side, side, r);
    in.offset(-1.0, false);
    EXPECT_TRUE(in.isClosed());
    EXPECT_NEAR(in.geomLength(), 4 * (side - 2 * r) + ORX::kTwoPi * (r - 1), 1e-9);

    // Deeper than the corner radius: the arcs collapse and the edges meet in sharp corners.
    COrxVertexArray deep = roundedRectangle(0, 0, side, side, r);
    deep.offset(-3.0, false);
    EXPECT_TRUE(deep.isClosed());
    ASSERT_EQ(deep.len(), 4);
    EXPECT_NEAR(deep.geomLength(), 4 * (side - 6), 1e-9);
    COrxPoint3d lo, hi;
    ASSERT_TRUE(deep.extents(lo, hi));
    EXPECT_EQ(lo, pt(3, 3));
    EXPECT_EQ(hi, pt(7, 7));
}

TEST(OffsetTest, OpenPolylineWithPerSegmentDistances) {
    COrxVertexArray const vl = polygon({pt(0, 0), pt(4, 0), pt(4, 4)}, false);
    COrxArrayTempl<double> distances;
    distances.append(-1.0);  // a short list repeats its last distance
    COrxVertexArray repeated = vl;
    EXPECT_EQ(repeated.offset(distances, false), polygon({pt(0, 1), pt(3, 1), pt(3, 4)}, false));

    distances.append(-2.0);
    COrxVertexArray varied = vl;
    varied.offset(distances, false);
    EXPECT_EQ(varied[0].endPoint(), pt(2, 1));

    EXPECT_EQ(COrxVertexArray(vl).offset(0.0, false).offset(COrxArrayTempl<double>(), true), vl);
}

TEST(OffsetTest, GapsThatNoTrimCanCloseAreBridgedOnlyWhenAsked) {
    // Two parallel pieces with a gap between them: their lines never meet.
    COrxVertexArray gapped;
    gapped.append(COrxVertex(pt(0, 0), pt(2, 0), 0.0)).append(COrxVertex(pt(2, 1), pt(4, 1), 0.0));
    COrxVertexArray open = gapped;
    open.offset(0.5, false);
    EXPECT_EQ(open.len(), 2);
    EXPECT_EQ(open.numOpens(), 1);
    COrxVertexArray bridged = gapped;
    bridged.offset(0.5, true);
    ASSERT_EQ(bridged.len(), 3);
    EXPECT_EQ(bridged.numOpens(), 0);
    EXPECT_EQ(bridged[1], COrxVertex(pt(2, -0.5), pt(2, 0.5), 0.0));
}
