#include "orx/polyline/vertex.h"

#include <gtest/gtest.h>

#include <cmath>

#include "orx/geom/functions.h"
#include "orx/plane_geometry/plane_geometry.h"
#include "orx/polyline/vertex_functions.h"

namespace {

double const kQuarterBulge = std::tan(ORX::kPi / 8);

COrxVertex quarterArc() {
    return COrxVertex(COrxPoint3d(1, 0, 0), COrxPoint3d(0, 1, 0), kQuarterBulge);
}

}  // namespace

TEST(COrxVertexTest, StraightSegmentsHaveNoArcQuantities) {
    COrxVertex const line(COrxPoint3d(0, 0, 0), COrxPoint3d(3, 4, 0), 0.0);
    COrxPoint3d c(7, 7, 7);
    double r = 7, a0 = 7, a1 = 7;
    EXPECT_FALSE(line.center(c));
    EXPECT_FALSE(line.radius(r));
    EXPECT_FALSE(line.toArc(c, r, a0, a1));
    EXPECT_EQ(c, COrxPoint3d(7, 7, 7));
    EXPECT_TRUE(std::isnan(line.radius()));
    EXPECT_TRUE(std::isnan(line.center().x));
    EXPECT_EQ(ORX::g_vx_split_n(line, 0.1), 0);
    EXPECT_EQ(ORX::g_bulg_split(line), 0);
    EXPECT_DOUBLE_EQ(line.bulgLen(), 5.0);
    EXPECT_EQ(line.mid(), COrxPoint3d(1.5, 2, 0));
}

TEST(COrxVertexTest, QuarterArcQuantities) {
    COrxVertex const arc = quarterArc();
    EXPECT_EQ(arc.center(), COrxPoint3d(0, 0, 0));
    EXPECT_DOUBLE_EQ(arc.radius(), 1.0);
    EXPECT_NEAR(arc.bulgLen(), ORX::kHalfPi, 1e-12);
    EXPECT_EQ(arc.mid(), COrxPoint3d(std::sqrt(0.5), std::sqrt(0.5), 0));
    COrxPoint3d c;
    double r = 0, a0 = 0, a1 = 0;
    ASSERT_TRUE(arc.toArc(c, r, a0, a1));
    EXPECT_NEAR(ORX::g_ang(a0), 0.0, 1e-12);  // may come as 2pi: the centre is computed
    EXPECT_NEAR(a1, ORX::kHalfPi, 1e-12);
    // Clockwise: the angles come swapped, still describing a counter-clockwise arc.
    ASSERT_TRUE(arc.reverse().toArc(c, r, a0, a1));
    EXPECT_NEAR(ORX::g_ang(a0), 0.0, 1e-12);
    EXPECT_NEAR(a1, ORX::kHalfPi, 1e-12);
    EXPECT_NEAR(ORX::vx_start_angle(arc), ORX::kHalfPi, 1e-12);
    EXPECT_NEAR(ORX::vx_end_angle(arc), 0.0, 1e-12);  // leaves the end back into the arc
    EXPECT_EQ(ORX::vx_start_dir(arc), COrxVector3d(0, 1, 0));
}

TEST(COrxVertexTest, ArcWithCoincidentEndsHasTheChordMidpointAsCentre) {
    COrxVertex const loop(COrxPoint3d(2, 2, 0), COrxPoint3d(2, 2 + 4e-6, 0), 0.5);
    EXPECT_EQ(loop.center(), COrxPoint3d(2, 2 + 2e-6, 0));
}

TEST(COrxVertexTest, ConstructorsFromThreePointsAndFromAngles) {
    COrxVertex const through(COrxPoint3d(1, 0, 0), COrxPoint3d(0, 1, 0), COrxPoint3d(-1, 0, 0));
    EXPECT_NEAR(through.bulge(), 1.0, 1e-12);
    COrxVertex const collinear(COrxPoint3d(0, 0, 0), COrxPoint3d(1, 0, 0), COrxPoint3d(2, 0, 0));
    EXPECT_EQ(collinear.bulge(), 0.0);
    COrxVertex const fromAngles(COrxPoint3d(5, 5, 0), 2.0, 3 * ORX::kHalfPi, 0.0);
    EXPECT_EQ(fromAngles.startPoint(), COrxPoint3d(5, 3, 0));
    EXPECT_EQ(fromAngles.endPoint(), COrxPoint3d(7, 5, 0));
    EXPECT_NEAR(fromAngles.bulge(), kQuarterBulge, 1e-12);
    EXPECT_EQ(fromAngles.tag(), 0);
}

TEST(COrxVertexTest, EqualityToleratesBulgesWithinOneHundredThousandth) {
    COrxVertex a = quarterArc();
    COrxVertex b(a.startPoint(), a.endPoint(), a.bulge() + 0.9e-5);
    COrxVertex c(a.startPoint(), a.endPoint(), a.bulge() + 1.1e-5);
    b.setTag(5);
    EXPECT_TRUE(a == b);  // the tag is ignored
    EXPECT_FALSE(a == c);
    EXPECT_FALSE(a == a.reverse());
    COrxVertex const copy(b);
    EXPECT_EQ(copy.tag(), 5);
    EXPECT_EQ(b.reverse().tag(), 0);
}

TEST(COrxVertexTest, ComplementTakesTheRestOfTheCircleTheSameWayRound) {
    COrxVertex arc = quarterArc();
    arc.complement();
    EXPECT_EQ(arc.startPoint(), COrxPoint3d(0, 1, 0));
    EXPECT_EQ(arc.endPoint(), COrxPoint3d(1, 0, 0));
    EXPECT_NEAR(arc.bulge(), std::tan(3 * ORX::kPi / 8), 1e-12);
    EXPECT_EQ(arc.center(), COrxPoint3d(0, 0, 0));
    COrxVertex line(COrxPoint3d(0, 0, 0), COrxPoint3d(1, 0, 0), 0.0);
    line.complement();
    EXPECT_EQ(line.bulge(), 0.0);
    EXPECT_FALSE(std::signbit(line.bulge()));
}

TEST(COrxVertexTest, MovingAnEndKeepsTheCircleAndTheSense) {
    COrxVertex arc = quarterArc();
    arc.setEndPoint(COrxPoint3d(-5, 0, 0));  // projected onto the unit circle
    EXPECT_EQ(arc.endPoint(), COrxPoint3d(-1, 0, 0));
    EXPECT_NEAR(arc.bulge(), 1.0, 1e-12);
    arc.setStartPoint(COrxPoint3d(0, -3, 0));
    EXPECT_EQ(arc.startPoint(), COrxPoint3d(0, -1, 0));
    EXPECT_NEAR(arc.bulge(), std::tan(3 * ORX::kPi / 8), 1e-12);

    COrxVertex clockwise = quarterArc().reverse();  // (0,1) -> (1,0) clockwise
    clockwise.setEndPoint(COrxPoint3d(0, -2, 0));
    EXPECT_EQ(clockwise.endPoint(), COrxPoint3d(0, -1, 0));
    EXPECT_NEAR(clockwise.bulge(), -1.0, 1e-12);

    COrxVertex const first = quarterArc();
    COrxVertex const second(COrxPoint3d(0, 1, 0), COrxPoint3d(-1, 0, 0), kQuarterBulge);
    COrxVertex const united = first.unite(second);
    EXPECT_EQ(united.endPoint(), COrxPoint3d(-1, 0, 0));
    EXPECT_NEAR(united.bulge(), 1.0, 1e-12);
    EXPECT_EQ(first.unite(first), first);
}

TEST(COrxVertexTest, OffsetGoesRightOfTheTravelAndCollapsesArcs) {
    COrxVertex line(COrxPoint3d(0, 0, 0), COrxPoint3d(4, 0, 0), 0.0);
    line.offset(1.0);
    EXPECT_EQ(line.startPoint(), COrxPoint3d(0, -1, 0));
    line.offset(std::nan(""));
    line.offset(0.0);
    EXPECT_EQ(line.endPoint(), COrxPoint3d(4, -1, 0));

    COrxVertex ccw = quarterArc();
    ccw.offset(1.0);  // right of a counter-clockwise arc is outward
    EXPECT_NEAR(ccw.radius(), 2.0, 1e-12);
    EXPECT_EQ(ccw.center(), COrxPoint3d(0, 0, 0));
    COrxVertex cw = quarterArc().reverse();
    cw.offset(0.5);  // right of a clockwise arc is inward
    EXPECT_NEAR(cw.radius(), 0.5, 1e-12);
    COrxVertex shrinking = quarterArc();
    shrinking.offset(-3.0);
    EXPECT_EQ(shrinking.startPoint(), COrxPoint3d(0, 0, 0));
    EXPECT_EQ(shrinking.endPoint(), COrxPoint3d(0, 0, 0));
    EXPECT_EQ(shrinking.bulge(), kQuarterBulge);

    COrxVertex throughPoint(COrxPoint3d(0, 0, 0), COrxPoint3d(4, 0, 0), 0.0);
    throughPoint.offset(COrxPoint3d(2, 3, 0));
    EXPECT_EQ(throughPoint.startPoint(), COrxPoint3d(0, 3, 0));
    COrxVertex arcThrough = quarterArc();
    arcThrough.offset(COrxPoint3d(0.5, 0.5, 0));
    EXPECT_NEAR(arcThrough.radius(), std::sqrt(0.5), 1e-12);
}

TEST(COrxVertexTest, MirroringAndTransformingFlipTheSense) {
    COrxVertex arc = quarterArc();
    arc.mirror(0.0, COrxPoint3d(0, 0, 0));  // at the x axis
    EXPECT_EQ(arc.endPoint(), COrxPoint3d(0, -1, 0));
    EXPECT_NEAR(arc.bulge(), -kQuarterBulge, 1e-15);
    EXPECT_EQ(arc.mid(), COrxPoint3d(std::sqrt(0.5), -std::sqrt(0.5), 0));

    double const mirrorY[4][4] = {{-1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};
    COrxVertex const flipped = quarterArc().getTransformedCopy(mirrorY);
    EXPECT_NEAR(flipped.bulge(), -kQuarterBulge, 1e-15);
    EXPECT_EQ(flipped.mid(), COrxPoint3d(-std::sqrt(0.5), std::sqrt(0.5), 0));

    COrxVertex turned = quarterArc();
    turned.rotate(ORX::kHalfPi, COrxPoint3d(0, 0, 0));
    EXPECT_EQ(turned.startPoint(), COrxPoint3d(0, 1, 0));
    EXPECT_EQ(turned.bulge(), kQuarterBulge);
    turned.move(COrxVector3d(1, 1, 1));
    EXPECT_EQ(turned.center(), COrxPoint3d(1, 1, 1));
}

TEST(COrxVertexTest, PointQueries) {
    COrxVertex const arc = quarterArc();
    COrxPoint3d const onArc = ORX::polar(COrxPoint3d(), ORX::kPi / 6, 1.0);
    EXPECT_TRUE(arc.isPoint(onArc));
    EXPECT_FALSE(arc.isPoint(ORX::polar(COrxPoint3d(), -0.1, 1.0)));
    EXPECT_FALSE(arc.isPoint(COrxPoint3d(0.5, 0.5, 0)));
    double d = -1;
    ASSERT_TRUE(arc.distAtPoint(d, onArc));
    EXPECT_NEAR(d, ORX::kPi / 6, 1e-12);
    EXPECT_FALSE(arc.distAtPoint(d, COrxPoint3d(3, 3, 0)));
    EXPECT_EQ(arc.lotp(COrxPoint3d(0, -2, 0)), COrxPoint3d(0, -1, 0));  // the full circle
    EXPECT_EQ(arc.orientp(COrxPoint3d(0.1, 0.1, 0)), 1);                // inside is left
    EXPECT_EQ(arc.orientp(COrxPoint3d(2, 2, 0)), -1);
    EXPECT_EQ(arc.orientp(onArc), 0);
    EXPECT_NEAR(arc.wTan(COrxPoint3d(0, 1, 0)), ORX::kPi, 1e-12);

    COrxPoint3d p;
    EXPECT_FALSE(arc.pointAtDist(p, -0.1, true));
    EXPECT_FALSE(arc.pointAtDist(p, 2.0, true));
    ASSERT_TRUE(arc.pointAtDist(p, ORX::kPi, false));  // extrapolated round the circle
    EXPECT_EQ(p, COrxPoint3d(-1, 0, 0));

    COrxVertex const line(COrxPoint3d(0, 0, 0), COrxPoint3d(10, 0, 0), 0.0);
    EXPECT_TRUE(line.isPoint(COrxPoint3d(5, 0.5 * COrxPoint3d::tol, 0)));
    EXPECT_FALSE(line.isPoint(COrxPoint3d(11, 0, 0)));
    ASSERT_TRUE(line.pointAtDist(p, -2, false));
    EXPECT_EQ(p, COrxPoint3d(-2, 0, 0));
    EXPECT_EQ(line.orientp(COrxPoint3d(3, 1, 0)), 1);
    EXPECT_EQ(line.orientp(COrxPoint3d(3, -1, 0)), -1);
}

TEST(COrxVertexTest, CollinearityOnLinesAndCircles) {
    COrxVertex const a(COrxPoint3d(0, 0, 0), COrxPoint3d(1, 1, 0), 0.0);
    EXPECT_TRUE(a.coLinear(COrxVertex(COrxPoint3d(5, 5, 0), COrxPoint3d(3, 3, 0), 0.0)));
    EXPECT_FALSE(a.coLinear(COrxVertex(COrxPoint3d(5, 5, 0), COrxPoint3d(3, 3.1, 0), 0.0)));
    COrxVertex const arc = quarterArc();
    COrxVertex const next(COrxPoint3d(0, 1, 0), COrxPoint3d(-1, 0, 0), kQuarterBulge);
    EXPECT_TRUE(arc.coLinear(next));
    EXPECT_FALSE(arc.coLinear(next.reverse()));  // same circle, other sense
    EXPECT_FALSE(arc.coLinear(a));
}

TEST(COrxVertexTest, SplitCountsTruncate) {
    COrxVertex const half(COrxPoint3d(10, 0, 0), COrxPoint3d(-10, 0, 0), 1.0);
    EXPECT_EQ(ORX::g_vx_split_n(half, 0.1), 11);
    EXPECT_EQ(ORX::g_vx_split_n(half, 100.0), 2);  // acos has no value: quarter circles
    EXPECT_EQ(ORX::g_vx_split_n(half, 0.0), ORX::kMaxArcPieces);
    EXPECT_EQ(ORX::g_bulg_split(half), 2);
    EXPECT_EQ(ORX::g_bulg_split(quarterArc()), 2);
}

TEST(COrxVertexTest, TrimJoinsSegmentsAtTheirExtendedMeetingPoint) {
    COrxVertex a(COrxPoint3d(0, 0, 0), COrxPoint3d(4, 0, 0), 0.0);
    COrxVertex b(COrxPoint3d(5, 1, 0), COrxPoint3d(5, 5, 0), 0.0);
    ASSERT_TRUE(ORX::g_vx_trim(a, b));
    EXPECT_EQ(a.endPoint(), COrxPoint3d(5, 0, 0));
    EXPECT_EQ(b.startPoint(), COrxPoint3d(5, 0, 0));
    EXPECT_FALSE(ORX::g_vx_trim(a, b));  // already joined

    COrxVertex c(COrxPoint3d(0, 0, 0), COrxPoint3d(4, 0, 0), 0.0);
    COrxVertex d(COrxPoint3d(5, 0, 0), COrxPoint3d(9, 0, 0), 0.0);
    EXPECT_FALSE(ORX::g_vx_trim(c, d));  // one line: nothing to meet
    EXPECT_EQ(c.endPoint(), COrxPoint3d(4, 0, 0));

    // A line running into a clockwise quarter circle of radius 2 that starts at its top.
    COrxVertex line(COrxPoint3d(-3, 2, 0), COrxPoint3d(-0.5, 2, 0), 0.0);
    COrxVertex arc(COrxPoint3d(0, 0, 0), 2.0, 0.0, 1.3);
    arc.revert();  // from angle 1.3 clockwise down to angle 0
    ASSERT_TRUE(ORX::g_vx_trim(line, arc));
    EXPECT_EQ(line.endPoint(), COrxPoint3d(0, 2, 0));
    EXPECT_EQ(arc.startPoint(), COrxPoint3d(0, 2, 0));
    EXPECT_LT(arc.bulge(), 0.0);
}

TEST(COrxVertexTest, IntersectionFlagsDropExactlyWhatTheySay) {
    COrxVertex const line(COrxPoint3d(-2, 0, 0), COrxPoint3d(2, 0, 0), 0.0);
    COrxVertex const half(COrxPoint3d(1, 0, 0), COrxPoint3d(-1, 0, 0), 1.0);  // upper half
    COrxPoint3dArray pts;
    ASSERT_TRUE(line.intersectWith(pts, half, 0));
    EXPECT_EQ(pts.len(), 2);
    EXPECT_FALSE(line.intersectWith(pts, half, COrxVertex::kSkipOtherEnds));
    EXPECT_TRUE(line.intersectWith(pts, half, COrxVertex::kSkipOwnEnds));
    EXPECT_EQ(pts.len(), 2);

    COrxVertex const tangent(COrxPoint3d(-2, 1, 0), COrxPoint3d(2, 1, 0), 0.0);
    ASSERT_TRUE(tangent.intersectWith(pts, half, 0));
    EXPECT_EQ(pts.len(), 1);
    EXPECT_EQ(pts[0], COrxPoint3d(0, 1, 0));
    EXPECT_FALSE(tangent.intersectWith(pts, half, COrxVertex::kSkipTangent));

    COrxVertex const far(COrxPoint3d(-2, 3, 0), COrxPoint3d(2, 3, 0), 0.0);
    EXPECT_FALSE(far.intersectWith(pts, half, 0));
    COrxPoint3d nearest;
    EXPECT_FALSE(far.intNear(half, COrxPoint3d(), nearest));
    COrxVertex const shortLine(COrxPoint3d(5, 5, 0), COrxPoint3d(6, 6, 0), 0.0);
    ASSERT_TRUE(shortLine.intNear(line, COrxPoint3d(), nearest));  // the extended lines
    EXPECT_EQ(nearest, COrxPoint3d(0, 0, 0));
    ASSERT_TRUE(COrxVertex(COrxPoint3d(0, -5, 0), COrxPoint3d(0, -4, 0), 0.0)
                    .intNear(half, COrxPoint3d(0, -3, 0), nearest));
    EXPECT_EQ(nearest, COrxPoint3d(0, -1, 0));  // the full circle's lower point is nearer

    EXPECT_EQ(line.intersectWithBulg0(half).len(), 0);  // the chord lies on the line
    EXPECT_EQ(line.intersectWithBulg0(line).len(), 0);
    COrxVertex const cross(COrxPoint3d(0, -1, 0), COrxPoint3d(0, 1, 0), 0.5);
    EXPECT_EQ(line.intersectWithBulg0(cross).len(), 1);
}
