// COrxHelix: validation, the conical geometry (points, angles, tangents, lengths and their
// inverses) on a set of helices, transformation, and the failures of a helix without axis.
#include <cmath>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "orx/geom/functions.h"
#include "orx/geom/plane.h"
#include "orx/profiles/profiles.h"

namespace {

COrxPoint3d const kOrigin(0, 0, 0);

struct NamedHelix {
    char const* name;
    COrxHelix helix;
};

// Cylinder, cones up and down (one clockwise), a flat spiral out of the axis, a tilted axis.
std::vector<NamedHelix> const& helices() {
    static std::vector<NamedHelix> const list = {
        {"cylinder", {2, 3, 0.5, kOrigin, COrxPoint3d(2, 0, 0), COrxVector3d::kZAxis, true}},
        {"widening_cone", {3, 2.5, 0.4, kOrigin, COrxPoint3d(1, 0, 0), COrxVector3d::kZAxis, true}},
        {"narrowing_cone_clockwise",
         {0.5, 1.75, 1.2, COrxPoint3d(1, 2, 3), COrxPoint3d(4, 2, 3), COrxVector3d(0, 0, 2),
          false}},
        {"spiral_from_the_axis", {4, 2, 0.0, kOrigin, kOrigin, COrxVector3d::kZAxis, true}},
        {"tilted_axis",
         {1.5, 1.3, 2.0, COrxPoint3d(5, -1, 2), COrxPoint3d(6, 1, 0), COrxVector3d(1, 1, 1), true}},
    };
    return list;
}

double totalAngle(COrxHelix const& h) {
    return ORX::kTwoPi * h.turns();
}

// dP/dt by central differences of the points: independent of the closed forms.
COrxVector3d derivative(COrxHelix const& h, double t) {
    COrxPoint3d p, q;
    h.pointAtAng(t - 1e-6, p, false);
    h.pointAtAng(t + 1e-6, q, false);
    return (q - p) * (1 / 2e-6);
}

// Composite Simpson over |dP/dt|.
double simpsonLength(COrxHelix const& h, double a0, double a1, int pieces) {
    double const step = (a1 - a0) / pieces;
    double sum = derivative(h, a0).abs() + derivative(h, a1).abs();
    for (int k = 1; k < pieces; ++k) {
        sum += derivative(h, a0 + k * step).abs() * (k % 2 ? 4 : 2);
    }
    return sum * step / 3;
}

TEST(COrxHelixTest, ValidateTurnsTheAxisFromStartToEnd) {
    COrxHelix const down(1, 2, -1.5, kOrigin, COrxPoint3d(1, 0, 0), COrxVector3d(0, 0, 3), true);
    EXPECT_EQ(down.axisVector(), COrxVector3d(0, 0, -1));
    EXPECT_EQ(down.turnHeight(), 1.5);
    EXPECT_EQ(down.endPoint(), COrxPoint3d(1, 0, -3));
    // The default helix has no turns: it is its start point.
    EXPECT_EQ(COrxHelix().len(), 0.0);
    EXPECT_EQ(COrxHelix().endPoint(), COrxPoint3d(1, 0, 0));
}

TEST(COrxHelixTest, PointsFollowTheWindingAndTheLinearRadius) {
    COrxHelix const ccw(3, 2, 0.8, kOrigin, COrxPoint3d(1, 0, 0), COrxVector3d::kZAxis, true);
    COrxHelix const cw(3, 2, 0.8, kOrigin, COrxPoint3d(1, 0, 0), COrxVector3d::kZAxis, false);
    COrxPoint3d p;
    ASSERT_TRUE(ccw.pointAtAng(ORX::kHalfPi, p, true));
    EXPECT_EQ(p, COrxPoint3d(0, 1.25, 0.2));  // a sixteenth of the way: radius 1 + 2/16 * 2
    ASSERT_TRUE(cw.pointAtAng(ORX::kHalfPi, p, true));
    EXPECT_EQ(p, COrxPoint3d(0, -1.25, 0.2));
    EXPECT_EQ(ccw.endPoint(), COrxPoint3d(3, 0, 1.6));
    EXPECT_FALSE(ccw.pointAtAng(-0.1, p, true));  // bounded queries stop at the ends
    EXPECT_FALSE(ccw.pointAtAng(4 * ORX::kPi + 0.1, p, true));
    ASSERT_TRUE(ccw.pointAtAng(5 * ORX::kPi, p, false));  // unbounded ones go on
    EXPECT_EQ(p, COrxPoint3d(-3.5, 0, 2.0));
}

TEST(COrxHelixTest, AnglesAndLengthsRunFromStartToEnd) {
    for (NamedHelix const& n : helices()) {
        SCOPED_TRACE(n.name);
        COrxHelix const& h = n.helix;
        EXPECT_EQ(h.pointAtLen(0, true), h.startPoint());
        EXPECT_EQ(h.pointAtLen(h.len(), true), h.endPoint());
        EXPECT_FALSE(h.pointAtLen(h.len() * 1.01, true).isValid());
        EXPECT_FALSE(h.pointAtLen(-1, true).isValid());
        for (double t : {0.25, 1.0, 3.5, 6.0}) {
            COrxPoint3d p;
            ASSERT_TRUE(h.pointAtAng(t, p, false));
            EXPECT_EQ(h.pointAtLen(h.len(0, t), false), p) << t;
        }
    }
}

TEST(COrxHelixTest, AngleAtPointInvertsPointAtAngle) {
    for (NamedHelix const& n : helices()) {
        SCOPED_TRACE(n.name);
        COrxHelix const& h = n.helix;
        for (int k = 0; k <= 40; ++k) {
            double const t = totalAngle(h) * k / 40;
            COrxPoint3d p;
            ASSERT_TRUE(h.pointAtAng(t, p, true));
            double back = -1;
            ASSERT_TRUE(h.angAtPoint(p, back, true)) << t;
            EXPECT_NEAR(back, t, 1e-9);
        }
        COrxPoint3d beyond;  // past the end: found only unbounded
        ASSERT_TRUE(h.pointAtAng(totalAngle(h) + 1.0, beyond, false));
        double back = -1;
        EXPECT_FALSE(h.angAtPoint(beyond, back, true));
        EXPECT_EQ(back, -1);
        EXPECT_FALSE(h.isPoint(beyond));
        ASSERT_TRUE(h.angAtPoint(beyond, back, false));
        EXPECT_NEAR(back, totalAngle(h) + 1.0, 1e-9);
    }
    COrxHelix const coil = helices()[0].helix;
    double t = 0;
    EXPECT_FALSE(coil.angAtPoint(COrxPoint3d(2, 0, 0.25), t, false));  // between two turns
    EXPECT_FALSE(coil.angAtPoint(COrxPoint3d(2.1, 0, 0), t, false));
    EXPECT_EQ(coil.vectorAtPoint(COrxPoint3d(2.1, 0, 0)), COrxVector3d::kNull);
}

TEST(COrxHelixTest, CylinderLengthIsTheClosedFormPerTurn) {
    COrxHelix const coil(2, 3, 0.5, kOrigin, COrxPoint3d(2, 0, 0), COrxVector3d::kZAxis, true);
    double const perTurn = std::sqrt(std::pow(ORX::kTwoPi * 2, 2) + 0.5 * 0.5);
    EXPECT_NEAR(coil.len(), 3 * perTurn, 1e-12 * perTurn);
    EXPECT_NEAR(coil.len(ORX::kTwoPi, 0), perTurn, 1e-12 * perTurn);
    // A radius change far below what the cone formula could resolve by subtraction.
    COrxHelix const almost(2 * (1 + 1e-13), 3, 0.5, kOrigin, COrxPoint3d(2, 0, 0),
                           COrxVector3d::kZAxis, true);
    EXPECT_NEAR(almost.len(), 3 * perTurn, 1e-11 * perTurn);
}

TEST(COrxHelixTest, ConeLengthAgreesWithNumericalIntegration) {
    for (NamedHelix const& n : helices()) {
        SCOPED_TRACE(n.name);
        double const expected = simpsonLength(n.helix, 0, totalAngle(n.helix), 20000);
        EXPECT_NEAR(n.helix.len(), expected, 1e-6 * expected);
        EXPECT_NEAR(n.helix.len(0.3, 1.7), simpsonLength(n.helix, 0.3, 1.7, 2000), 1e-6);
    }
    // Archimedes' spiral r = k t: (k/2) (T sqrt(1 + T^2) + asinh T).
    double const T = 4 * ORX::kPi, k = 4 / T;
    EXPECT_NEAR(helices()[3].helix.len(), k / 2 * (T * std::sqrt(1 + T * T) + std::asinh(T)),
                1e-12);
}

TEST(COrxHelixTest, TangentsAreUnitAndAgreeWithFiniteDifferences) {
    for (NamedHelix const& n : helices()) {
        SCOPED_TRACE(n.name);
        COrxHelix const& h = n.helix;
        for (int k = 1; k < 20; ++k) {
            double const t = totalAngle(h) * k / 20;
            COrxVector3d const v = h.vectorAtAng(t, true);
            EXPECT_NEAR(v.abs(), 1.0, 1e-12);
            EXPECT_NEAR((v - derivative(h, t).normal()).abs(), 0, 1e-8);
            COrxPoint3d on;
            h.pointAtAng(t, on, true);
            EXPECT_EQ(h.vectorAtPoint(on), v);
        }
        EXPECT_EQ(h.vectorAtAng(totalAngle(h) + 1, true), COrxVector3d::kNull);
    }
}

TEST(COrxHelixTest, StartOnTheAxisStillGivesARightHandedFrame) {
    COrxPoint3d origin;
    COrxVector3d x, y, z;
    helices()[3].helix.mtx().getCoordSystem(origin, x, y, z);
    EXPECT_NEAR(x.abs(), 1, 1e-12);
    EXPECT_EQ(x * y, z);
}

TEST(COrxHelixTest, TransformedHelixIsTheTransformedCurve) {
    COrxHelix const h = helices()[1].helix;
    COrxMatrix3d rotate, scale, mirror;
    rotate.setToRotation(0.7, COrxVector3d(1, 2, 3), COrxPoint3d(4, 5, 6));
    scale.setToScaling(2.5, COrxPoint3d(1, 1, 1));
    mirror.setToMirroring(COrxPlane(COrxPoint3d(0, 0, 1), COrxVector3d(1, 0, 1)));
    for (COrxMatrix3d const* m : {&rotate, &scale, &mirror}) {
        COrxHelix const moved = h.getTransformedCopy(*m);
        for (double t : {0.0, 1.0, 5.0, totalAngle(h)}) {
            COrxPoint3d p, q;
            ASSERT_TRUE(h.pointAtAng(t, p, true));
            ASSERT_TRUE(moved.pointAtAng(t, q, true));
            EXPECT_EQ(q, p * *m) << t;
        }
    }
    EXPECT_FALSE(h.getTransformedCopy(mirror).orientation());
}

TEST(COrxHelixTest, HelixWithoutAxisOrNumbersFailsEveryQuery) {
    double const nan = std::numeric_limits<double>::quiet_NaN();
    COrxHelix const noAxis(1, 2, 1, kOrigin, COrxPoint3d(1, 0, 0), COrxVector3d::kNull, true);
    COrxHelix const noNumber(1, nan, 1, kOrigin, COrxPoint3d(1, 0, 0), COrxVector3d::kZAxis, true);
    for (COrxHelix const* h : {&noAxis, &noNumber}) {
        COrxPoint3d p(7, 7, 7);
        double t = 9;
        EXPECT_TRUE(std::isnan(h->len()));
        EXPECT_FALSE(h->pointAtAng(1, p, false));
        EXPECT_EQ(p, COrxPoint3d(7, 7, 7));
        EXPECT_FALSE(h->pointAtLen(1, false).isValid());
        EXPECT_FALSE(h->angAtPoint(COrxPoint3d(1, 0, 0), t, false));
        EXPECT_EQ(t, 9);
        EXPECT_EQ(h->vectorAtAng(1, false), COrxVector3d::kNull);
    }
    COrxPoint3d p;
    EXPECT_FALSE(helices()[0].helix.pointAtAng(nan, p, false));
    EXPECT_FALSE(
        helices()[0].helix.pointAtLen(std::numeric_limits<double>::infinity(), false).isValid());
}

}  // namespace
