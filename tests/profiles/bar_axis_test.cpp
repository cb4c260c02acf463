// COrxBarAxis: straight and helical bars, the radii and turns, the deliberate sign test of
// turnsExact, the conversions to and from COrxHelix, transformation.
#include <cmath>

#include <gtest/gtest.h>

#include "orx/geom/functions.h"
#include "orx/profiles/profiles.h"

namespace {

COrxPoint3d const kOrigin(0, 0, 0);

// A bar winding about the Z axis from (r0, 0, 0) to radius r1 at the polar angle `angle`,
// height h.
COrxBarAxis zBar(double r0, double r1, double angle, double h, int turns, int orientation,
                 double twist = 0.0) {
    return COrxBarAxis(COrxPoint3d(r0, 0, 0),
                       ORX::polar(kOrigin, angle, r1) + COrxVector3d(0, 0, h), kOrigin,
                       COrxVector3d::kZAxis, turns, orientation, twist);
}

TEST(COrxBarAxisTest, StraightBarHasNoHelixButRunsAlongTheSegment) {
    COrxBarAxis const bar(COrxPoint3d(1, 2, 3), COrxPoint3d(4, 6, 3), kOrigin, COrxVector3d::kZAxis,
                          3, 0, 0.0);
    EXPECT_EQ(bar.baseRadius(), -1.0);
    EXPECT_EQ(bar.height(), -1.0);
    EXPECT_EQ(bar.turnsExact(), -1.0);
    COrxHelix h(1, 1, 1, kOrigin, COrxPoint3d(1, 0, 0), COrxVector3d::kZAxis, true);
    COrxHelix const before = h;
    EXPECT_FALSE(bar.toHelix(h));
    EXPECT_EQ(h, before);
    EXPECT_EQ(bar.len(), 5.0);
    EXPECT_EQ(bar.pointAtLen(2.5, true), COrxPoint3d(2.5, 4, 3));
    EXPECT_FALSE(bar.pointAtLen(6, true).isValid());
    EXPECT_EQ(bar.vectorAtPoint(COrxPoint3d(2.5, 4, 3)), COrxVector3d(0.6, 0.8, 0));
    EXPECT_FALSE(bar.isPoint(COrxPoint3d(7, 10, 3)));
    COrxPoint3d p;
    double t = 0;
    EXPECT_FALSE(bar.pointAtAng(1, p, false));
    EXPECT_FALSE(bar.angAtPoint(COrxPoint3d(1, 2, 3), t, false));
    EXPECT_TRUE(std::isnan(bar.len(0, 1)));
    COrxPoint3d origin;  // at the start, z towards the end
    COrxVector3d x, y, z;
    bar.mtx().getCoordSystem(origin, x, y, z);
    EXPECT_EQ(origin, COrxPoint3d(1, 2, 3));
    EXPECT_EQ(z, COrxVector3d(0.6, 0.8, 0));
}

TEST(COrxBarAxisTest, TurnsExactCountsThePartOfATurnInTheWindingSense) {
    struct Case {
        double angle;
        int orientation;
        double part;
    };
    for (Case c : {Case{0.0, 1, 0.0},
                   {ORX::kHalfPi, 1, 0.25},
                   {ORX::kPi, 1, 0.5},
                   {1.5 * ORX::kPi, 1, 0.75},
                   {ORX::kHalfPi, -1, 0.75},
                   {1.5 * ORX::kPi, -1, 0.25},
                   {0.0, -1, 0.0}}) {
        EXPECT_NEAR(zBar(1, 1, c.angle, 2, 3, c.orientation).turnsExact(), 3 + c.part, 1e-12)
            << c.angle << " " << c.orientation;
    }
}

// The side of the end is read from the sum of the components of (end radial x start
// radial), not from its direction along the axis: for an axis whose components sum to a
// negative number the part of a turn comes out as its complement. Callers rely on it.
TEST(COrxBarAxisTest, TurnsExactKeepsTheComponentSumSignTest) {
    // Down the -Z axis, counter-clockwise about it: a quarter turn ends at (0, -1).
    COrxBarAxis const down(COrxPoint3d(1, 0, 0), COrxPoint3d(0, -1, -3), kOrigin,
                           COrxVector3d(0, 0, -1), 0, 1, 0.0);
    EXPECT_EQ(down.axisVector(), COrxVector3d(0, 0, -1));
    EXPECT_NEAR(down.turnsExact(), 0.75, 1e-12);
}

TEST(COrxBarAxisTest, ValidatePointsTheAxisFromStartToEnd) {
    COrxBarAxis bar(COrxPoint3d(1, 0, 0), COrxPoint3d(0, 1, 3), kOrigin, COrxVector3d(0, 0, -2), 0,
                    1, 0.0);
    EXPECT_EQ(bar.axisVector(), COrxVector3d(0, 0, 1));
    bar.setOrientation(0).setAxisVector(COrxVector3d(0, 0, -2));
    EXPECT_EQ(bar.validate().axisVector(), COrxVector3d(0, 0, -2));  // straight: left alone
}

TEST(COrxBarAxisTest, ToHelixGivesTheSameCurve) {
    COrxBarAxis const bar = zBar(2, 3, ORX::kHalfPi, 4, 2, 1);
    EXPECT_EQ(bar.baseRadius(), 2.0);
    COrxHelix h;
    ASSERT_TRUE(bar.toHelix(h));
    EXPECT_EQ(h.topRadius(), 3.0);
    EXPECT_NEAR(h.turns(), 2.25, 1e-15);
    EXPECT_NEAR(h.turnHeight(), 4 / 2.25, 1e-14);
    EXPECT_EQ(h.startPoint(), bar.startPoint());
    EXPECT_EQ(h.endPoint(), bar.endPoint());
    EXPECT_EQ(bar.len(), h.len());
    double t = 0;
    ASSERT_TRUE(bar.angAtPoint(bar.endPoint(), t, true));
    EXPECT_NEAR(t, 2.25 * ORX::kTwoPi, 1e-9);
    EXPECT_EQ(bar.mtx(), h.mtx());
    // Clockwise bars convert to clockwise helices.
    COrxBarAxis const cw = zBar(2, 2, ORX::kHalfPi, 4, 0, -1);
    ASSERT_TRUE(cw.toHelix(h));
    EXPECT_FALSE(h.orientation());
    EXPECT_EQ(h.endPoint(), cw.endPoint());
}

TEST(COrxBarAxisTest, TwistedBarFillsTheHelixButReportsFalse) {
    COrxBarAxis const twisted = zBar(2, 3, ORX::kHalfPi, 4, 2, 1, 0.5);
    COrxHelix h;
    EXPECT_FALSE(twisted.toHelix(h));
    EXPECT_NEAR(h.turns(), 2.25, 1e-15);
    EXPECT_EQ(h.endPoint(), twisted.endPoint());
}

TEST(COrxBarAxisTest, FromHelixRoundTrip) {
    for (double turns : {0.25, 1.0, 2.0, 2.75, 3.5}) {
        for (bool ccw : {true, false}) {
            COrxHelix const h(1.5, turns, 0.8, kOrigin, COrxPoint3d(2, 0, 0), COrxVector3d::kZAxis,
                              ccw);
            COrxBarAxis bar;
            bar.setTwist(0.25).fromHelix(h);
            EXPECT_NEAR(bar.turnsExact(), turns, 1e-9) << turns << " " << ccw;
            COrxHelix back;
            EXPECT_FALSE(bar.toHelix(back));  // the kept twist
            EXPECT_EQ(back, h) << turns << " " << ccw;
        }
    }
}

TEST(COrxBarAxisTest, TransformByMovesAndMirrors) {
    COrxBarAxis const bar = zBar(2, 3, ORX::kHalfPi, 4, 2, 1, 0.3);
    COrxMatrix3d move;
    move.setToTranslation(COrxVector3d(5, 6, 7));
    COrxBarAxis const moved = bar.getTransformedCopy(move);
    EXPECT_EQ(moved.startPoint(), COrxPoint3d(7, 6, 7));
    EXPECT_EQ(moved.axisPoint(), COrxPoint3d(5, 6, 7));
    COrxMatrix3d mirror;
    mirror.m[0][0] = -1;  // x -> -x
    COrxBarAxis const mirrored = bar.getTransformedCopy(mirror);
    EXPECT_EQ(mirrored.orientation(), -1);
    EXPECT_EQ(mirrored.Twist(), -0.3);
    EXPECT_NEAR(mirrored.turnsExact(), bar.turnsExact(), 1e-12);
}

}  // namespace
