// Normalising and offsetting whole polylines.
#include <gtest/gtest.h>

#include <cmath>

#include "orx/geom/functions.h"
#include "orx/polyline/polyline_functions.h"
#include "orx/polyline/vertex_array.h"

namespace {

COrxPoint3d pt(double x, double y) {
    return COrxPoint3d(x, y, 0);
}

// A counter-clockwise square of side `side` whose corners are rounded with radius r, starting
// on the bottom edge.
COrxVertexArray roundedSquare(double side, double r) {
    double const b = std::tan(ORX::kPi / 8);
    double const s = side;
    COrxVertexArray vl;
    vl.append(COrxVertex(pt(r, 0), pt(s - r, 0), 0.0))
        .append(COrxVertex(pt(s - r, 0), pt(s, r), b))
        .append(COrxVertex(pt(s, r), pt(s, s - r), 0.0))
        .append(COrxVertex(pt(s, s - r), pt(s - r, s), b))
        .append(COrxVertex(pt(s - r, s), pt(r, s), 0.0))
        .append(COrxVertex(pt(r, s), pt(0, s - r), b))
        .append(COrxVertex(pt(0, s - r), pt(0, r), 0.0))
        .append(COrxVertex(pt(0, r), pt(r, 0), b));
    return vl;
}

}  // namespace

TEST(NormTest, MergesACollinearRunAcrossTheSeam) {
    // The bottom edge is split at (1, 0) and the polyline starts in its middle.
    COrxVertexArray vl;
    vl.append(COrxVertex(pt(1, 0), pt(2, 0), 0.0))
        .append(COrxVertex(pt(2, 0), pt(2, 2), 0.0))
        .append(COrxVertex(pt(2, 2), pt(0, 2), 0.0))
        .append(COrxVertex(pt(0, 2), pt(0, 0), 0.0))
        .append(COrxVertex(pt(0, 0), pt(1, 0), 0.0));
    COrxVertexArray seam = vl;
    seam.norm(false);
    ASSERT_EQ(seam.len(), 4);
    EXPECT_TRUE(seam.isClosed());
    EXPECT_NEAR(seam.geomLength(), 8.0, 1e-12);
    COrxVertexArray kept = vl;
    kept.norm(true);
    EXPECT_EQ(kept.len(), 5);  // the start stays where it is
    EXPECT_EQ(kept[0].startPoint(), pt(1, 0));
}

TEST(NormTest, DropsZeroLengthSegmentsAndSnapsJoints) {
    COrxVertexArray vl;
    vl.append(COrxVertex(pt(0, 0), pt(1, 0), 0.0))
        .append(COrxVertex(pt(1, 0), pt(1, 0), 0.7))
        .append(COrxVertex(pt(1 + 4e-6, 0), pt(1, 1), 0.0))
        .append(COrxVertex(pt(1, 1), pt(0, 0), 0.0));
    vl.norm(false);
    ASSERT_EQ(vl.len(), 3);
    EXPECT_EQ(vl[0].endPoint().x, vl[1].startPoint().x);  // exactly
}

TEST(NormTest, BackAndForthRunsCollapse) {
    COrxVertexArray vl;
    vl.append(COrxVertex(pt(0, 0), pt(3, 0), 0.0)).append(COrxVertex(pt(3, 0), pt(0, 0), 0.0));
    vl.norm(false);
    EXPECT_TRUE(vl.isEmpty());

    COrxVertexArray spike;
    spike.append(COrxVertex(pt(0, 0), pt(2, 0), 0.0))
        .append(COrxVertex(pt(2, 0), pt(2, 3), 0.0))
        .append(COrxVertex(pt(2, 3), pt(2, 1), 0.0))  // goes back down the same edge
        .append(COrxVertex(pt(2, 1), pt(0, 0), 0.0));
    spike.norm(false);
    EXPECT_EQ(spike.len(), 3);
    EXPECT_TRUE(spike.isClosed());
}

TEST(NormTest, NeverErasesACircleMadeOfArcs) {
    COrxVertexArray circle;
    circle.append(COrxVertex(pt(1, 0), pt(-1, 0), 1.0))
        .append(COrxVertex(pt(-1, 0), pt(1, 0), 1.0));
    circle.norm(false);
    ASSERT_EQ(circle.len(), 2);
    EXPECT_NEAR(circle.geomLength(), ORX::kTwoPi, 1e-12);

    double const third = std::tan(ORX::kTwoPi / 3 / 4);
    COrxVertexArray thirds;
    thirds.append(COrxVertex(COrxPoint3d(), 1.0, 0.0, ORX::kTwoPi / 3))
        .append(COrxVertex(COrxPoint3d(), 1.0, ORX::kTwoPi / 3, 2 * ORX::kTwoPi / 3))
        .append(COrxVertex(COrxPoint3d(), 1.0, 2 * ORX::kTwoPi / 3, 0.0));
    EXPECT_NEAR(thirds[0].bulge(), third, 1e-12);
    thirds.norm(false);
    EXPECT_EQ(thirds.len(), 2);  // two of the three merge, the circle stays
    EXPECT_NEAR(thirds.geomLength(), ORX::kTwoPi, 1e-9);
    EXPECT_TRUE(thirds.isClosed());
}

TEST(OffsetTest, RoundedSquareOutwardsAndInwards) {
    double const side = 10, r = 2;
    COrxVertexArray out = roundedSquare(side, r);
    out.offset(1.0, false);  // right of a counter-clockwise outline is outside
    EXPECT_TRUE(out.isClosed());
    EXPECT_EQ(out.len(), 8);
    EXPECT_NEAR(out.geomLength(), 4 * (side - 2 * r) + ORX::kTwoPi * (r + 1), 1e-9);

    COrxVertexArray in = roundedSquare(side, r);
    in.offset(-1.0, false);
    EXPECT_TRUE(in.isClosed());
    EXPECT_NEAR(in.geomLength(), 4 * (side - 2 * r) + ORX::kTwoPi * (r - 1), 1e-9);

    // Deeper than the corner radius: the arcs collapse and the edges meet in sharp corners.
    COrxVertexArray deep = roundedSquare(side, r);
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
    COrxVertexArray vl;
    vl.append(COrxVertex(pt(0, 0), pt(4, 0), 0.0)).append(COrxVertex(pt(4, 0), pt(4, 4), 0.0));
    COrxArrayTempl<double> distances;
    distances.append(-1.0);  // a short list repeats its last distance
    COrxVertexArray repeated = vl;
    repeated.offset(distances, false);
    ASSERT_EQ(repeated.len(), 2);
    EXPECT_EQ(repeated[0].startPoint(), pt(0, 1));
    EXPECT_EQ(repeated[0].endPoint(), pt(3, 1));
    EXPECT_EQ(repeated[1].endPoint(), pt(3, 4));

    distances.append(-2.0);
    COrxVertexArray varied = vl;
    varied.offset(distances, false);
    EXPECT_EQ(varied[0].endPoint(), pt(2, 1));

    COrxVertexArray untouched = vl;
    untouched.offset(0.0, false);
    EXPECT_EQ(untouched, vl);
    untouched.offset(COrxArrayTempl<double>(), true);
    EXPECT_EQ(untouched, vl);
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
