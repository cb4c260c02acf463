#include "orx/polyline/vertex.h"

#include <gtest/gtest.h>

#include <cmath>

#include "orx/plane_geometry/plane_geometry.h"
#include "tests/support/shapes.h"

using namespace orx_test;

namespace {

COrxVertex quarterArc() {
    return COrxVertex(pt(1, 0), pt(0, 1), kQuarter);
}

}  // namespace

TEST(COrxVertexTest, StraightSegmentsHaveNoArcQuantities) {
    COrxVertex const line(pt(0, 0), pt(3, 4), 0.0);
    COrxPoint3d c(7, 7, 7);
    double r = 7, a0 = 7, a1 = 7;
    EXPECT_FALSE(line.center(c));
    EXPECT_FALSE(line.radius(r));
    EXPECT_FALSE(line.toArc(c, r, a0, a1));
    EXPECT_EQ(c, COrxPoint3d(7, 7, 7));
    EXPECT_TRUE(std::isnan(line.radius()));
    EXPECT_EQ(ORX::g_vx_split_n(line, 0.1), 0);
    EXPECT_EQ(ORX::g_bulg_split(line), 0);
    EXPECT_DOUBLE_EQ(line.bulgLen(), 5.0);
}

TEST(COrxVertexTest, ArcAnglesDescribeTheCounterClockwiseArc) {
    COrxPoint3d c;
    double r = 0, a0 = 0, a1 = 0;
    // Either sense gives the same angles; a0 may come as 2pi: the centre is computed.
    for (COrxVertex const& arc : {quarterArc(), quarterArc().reverse()}) {
        ASSERT_TRUE(arc.toArc(c, r, a0, a1));
        EXPECT_NEAR(ORX::g_ang(a0), 0.0, 1e-12);
        EXPECT_NEAR(a1, ORX::kHalfPi, 1e-12);
    }
    EXPECT_NEAR(ORX::vx_start_angle(quarterArc()), ORX::kHalfPi, 1e-12);
    EXPECT_NEAR(ORX::vx_end_angle(quarterArc()), 0.0, 1e-12);  // from the end back into the arc
    EXPECT_EQ(ORX::vx_start_dir(quarterArc()), COrxVector3d(0, 1, 0));
}

TEST(COrxVertexTest, ConstructorsFromThreePointsAndFromAngles) {
    EXPECT_NEAR(COrxVertex(pt(1, 0), pt(0, 1), pt(-1, 0)).bulge(), 1.0, 1e-12);
    EXPECT_EQ(COrxVertex(pt(0, 0), pt(1, 0), pt(2, 0)).bulge(), 0.0);  // collinear
    EXPECT_EQ(COrxVertex(pt(5, 5), 2.0, 3 * ORX::kHalfPi, 0.0),
              COrxVertex(pt(5, 3), pt(7, 5), kQuarter));
    // An arc whose ends coincide has the chord midpoint as its centre.
    EXPECT_EQ(COrxVertex(pt(2, 2), pt(2, 2 + 4e-6), 0.5).center(), pt(2, 2 + 2e-6));
}

TEST(COrxVertexTest, EqualityToleratesBulgesWithinOneHundredThousandth) {
    COrxVertex const a = quarterArc();
    COrxVertex b(a.startPoint(), a.endPoint(), a.bulge() + 0.9e-5);
    b.setTag(5);
    EXPECT_EQ(a, b);  // the tag is ignored
    EXPECT_FALSE(a == COrxVertex(a.startPoint(), a.endPoint(), a.bulge() + 1.1e-5));
    EXPECT_FALSE(a == a.reverse());
    EXPECT_EQ(b.reverse().tag(), 0);
}

TEST(COrxVertexTest, ComplementTakesTheRestOfTheCircleTheSameWayRound) {
    EXPECT_EQ(quarterArc().complement(),
              COrxVertex(pt(0, 1), pt(1, 0), std::tan(3 * ORX::kPi / 8)));
    COrxVertex line(pt(0, 0), pt(1, 0), 0.0);
    line.complement();
    EXPECT_EQ(line.bulge(), 0.0);
    EXPECT_FALSE(std::signbit(line.bulge()));
}

TEST(COrxVertexTest, MovingAnEndKeepsTheCircleAndTheSense) {
    // The new end is projected onto the unit circle.
    EXPECT_EQ(quarterArc().setEndPoint(pt(-5, 0)), COrxVertex(pt(1, 0), pt(-1, 0), 1.0));
    EXPECT_EQ(quarterArc().reverse().setEndPoint(pt(0, -2)), COrxVertex(pt(0, 1), pt(0, -1), -1.0));
    COrxVertex const next(pt(0, 1), pt(-1, 0), kQuarter);
    EXPECT_EQ(quarterArc().unite(next), COrxVertex(pt(1, 0), pt(-1, 0), 1.0));
}

TEST(COrxVertexTest, OffsetGoesRightOfTheTravelAndCollapsesArcs) {
    COrxVertex line(pt(0, 0), pt(4, 0), 0.0);
    EXPECT_EQ(line.offset(1.0).offset(std::nan("")).offset(0.0),
              COrxVertex(pt(0, -1), pt(4, -1), 0.0));

    // Right of a counter-clockwise arc is outward, of a clockwise one inward.
    EXPECT_EQ(quarterArc().offset(1.0), COrxVertex(pt(2, 0), pt(0, 2), kQuarter));
    EXPECT_EQ(quarterArc().reverse().offset(0.5), COrxVertex(pt(0, 0.5), pt(0.5, 0), -kQuarter));
    EXPECT_EQ(quarterArc().offset(-3.0), COrxVertex(pt(0, 0), pt(0, 0), kQuarter));  // collapsed

    EXPECT_NEAR(quarterArc().offset(pt(0.5, 0.5)).radius(), std::sqrt(0.5), 1e-12);
}

TEST(COrxVertexTest, MirroringFlipsTheSense) {
    // At the x axis, then at the y axis through a matrix.
    EXPECT_EQ(quarterArc().mirror(0.0, pt(0, 0)), COrxVertex(pt(1, 0), pt(0, -1), -kQuarter));
    double const mirrorY[4][4] = {{-1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};
    COrxVertex const flipped = quarterArc().getTransformedCopy(mirrorY);
    EXPECT_EQ(flipped, COrxVertex(pt(-1, 0), pt(0, 1), -kQuarter));
}

TEST(COrxVertexTest, PointQueries) {
    COrxVertex const arc = quarterArc();
    COrxPoint3d const onArc = ORX::polar(COrxPoint3d(), ORX::kPi / 6, 1.0);
    EXPECT_TRUE(arc.isPoint(onArc));
    EXPECT_FALSE(arc.isPoint(ORX::polar(COrxPoint3d(), -0.1, 1.0)));
    double d = -1;
    EXPECT_TRUE(arc.distAtPoint(d, onArc));
    EXPECT_NEAR(d, ORX::kPi / 6, 1e-12);
    EXPECT_FALSE(arc.distAtPoint(d, pt(3, 3)));
    EXPECT_EQ(arc.lotp(pt(0, -2)), pt(0, -1));  // the full circle
    EXPECT_EQ(arc.orientp(pt(0.1, 0.1)), 1);    // inside is left
    EXPECT_EQ(arc.orientp(onArc), 0);
    EXPECT_NEAR(arc.wTan(pt(0, 1)), ORX::kPi, 1e-12);

    COrxPoint3d p;
    EXPECT_FALSE(arc.pointAtDist(p, -0.1, true));
    EXPECT_FALSE(arc.pointAtDist(p, 2.0, true));
    // Extrapolated round the circle, or along the line.
    EXPECT_TRUE(arc.pointAtDist(p, ORX::kPi, false));
    EXPECT_EQ(p, pt(-1, 0));
    EXPECT_TRUE(COrxVertex(pt(0, 0), pt(10, 0), 0.0).pointAtDist(p, -2, false));
    EXPECT_EQ(p, pt(-2, 0));
}

TEST(COrxVertexTest, CollinearityOnLinesAndCircles) {
    COrxVertex const a(pt(0, 0), pt(1, 1), 0.0);
    EXPECT_TRUE(a.coLinear(COrxVertex(pt(5, 5), pt(3, 3), 0.0)));
    EXPECT_FALSE(a.coLinear(COrxVertex(pt(5, 5), pt(3, 3.1), 0.0)));
    COrxVertex const next(pt(0, 1), pt(-1, 0), kQuarter);
    EXPECT_TRUE(quarterArc().coLinear(next));
    EXPECT_FALSE(quarterArc().coLinear(next.reverse()));  // same circle, other sense
    EXPECT_FALSE(quarterArc().coLinear(a));
}

TEST(COrxVertexTest, SplitCountsTruncate) {
    COrxVertex const half(pt(10, 0), pt(-10, 0), 1.0);
    EXPECT_EQ(ORX::g_vx_split_n(half, 0.1), 11);
    EXPECT_EQ(ORX::g_vx_split_n(half, 100.0), 2);  // acos has no value: quarter circles
    EXPECT_EQ(ORX::g_vx_split_n(half, 0.0), ORX::kMaxArcPieces);
    EXPECT_EQ(ORX::g_bulg_split(half), 2);
    EXPECT_EQ(ORX::g_bulg_split(quarterArc()), 2);
}

TEST(COrxVertexTest, TrimJoinsSegmentsAtTheirExtendedMeetingPoint) {
    COrxVertex a(pt(0, 0), pt(4, 0), 0.0);
    COrxVertex b(pt(5, 1), pt(5, 5), 0.0);
    ASSERT_TRUE(ORX::g_vx_trim(a, b));
    EXPECT_EQ(a.endPoint(), pt(5, 0));
    EXPECT_EQ(b.startPoint(), pt(5, 0));
    EXPECT_FALSE(ORX::g_vx_trim(a, b));  // already joined
    COrxVertex d(pt(5, 0), pt(9, 0), 0.0);
    a.set(pt(0, 0), pt(4, 0), 0.0);
    EXPECT_FALSE(ORX::g_vx_trim(a, d));  // one line: nothing to meet
    EXPECT_EQ(a.endPoint(), pt(4, 0));

    // A line running into a clockwise quarter circle of radius 2 that starts at its top.
    COrxVertex line(pt(-3, 2), pt(-0.5, 2), 0.0);
    COrxVertex arc(pt(0, 0), 2.0, 0.0, 1.3);
    arc.revert();  // from angle 1.3 clockwise down to angle 0
    ASSERT_TRUE(ORX::g_vx_trim(line, arc));
    EXPECT_EQ(line.endPoint(), pt(0, 2));
    EXPECT_EQ(arc.startPoint(), pt(0, 2));
    EXPECT_LT(arc.bulge(), 0.0);
}

TEST(COrxVertexTest, IntersectionFlagsDropExactlyWhatTheySay) {
    COrxVertex const line(pt(-2, 0), pt(2, 0), 0.0);
    COrxVertex const half(pt(1, 0), pt(-1, 0), 1.0);  // upper half
    COrxPoint3dArray pts;
    COrxVertex const tangent(pt(-2, 1), pt(2, 1), 0.0);
    ASSERT_TRUE(tangent.intersectWith(pts, half, 0));
    EXPECT_EQ(pts.len(), 1);
    EXPECT_EQ(pts[0], pt(0, 1));
    EXPECT_FALSE(tangent.intersectWith(pts, half, COrxVertex::kSkipTangent));

    COrxPoint3d nearest;
    EXPECT_FALSE(COrxVertex(pt(-2, 3), pt(2, 3), 0.0).intNear(half, COrxPoint3d(), nearest));
    ASSERT_TRUE(COrxVertex(pt(5, 5), pt(6, 6), 0.0).intNear(line, COrxPoint3d(), nearest));
    EXPECT_EQ(nearest, pt(0, 0));  // the extended lines
    ASSERT_TRUE(COrxVertex(pt(0, -5), pt(0, -4), 0.0).intNear(half, pt(0, -3), nearest));
    EXPECT_EQ(nearest, pt(0, -1));  // the full circle's lower point is nearer

    EXPECT_EQ(line.intersectWithBulg0(half).len(), 0);  // the chord lies on the line
    EXPECT_EQ(line.intersectWithBulg0(COrxVertex(pt(0, -1), pt(0, 1), 0.5)).len(), 1);
}
