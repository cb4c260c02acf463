// COrxHelix: validation, the conical geometry (points, angles, tangents, lengths and their
// inverses), transformation and the failures of a helix without an axis.
#include <cmath>
#include <cwchar>
#include <limits>

#include <gtest/gtest.h>

#include "orx/geom/functions.h"
#include "orx/geom/plane.h"
#include "orx/profiles/profiles.h"

namespace {

COrxPoint3d const kOrigin(0, 0, 0);

// Length by composite Simpson over the speed |P'(t)|, from finite differences of the points:
// independent of the closed form.
double simpsonLength(COrxHelix const& h, double a0, double a1, int pieces) {
    auto speed = [&](double t) {
        double const e = 1e-6;
        COrxPoint3d p, q;
        h.pointAtAng(t - e, p, false);
        h.pointAtAng(t + e, q, false);
        return p.distanceTo(q) / (2 * e);
    };
    double const step = (a1 - a0) / pieces;
    double sum = speed(a0) + speed(a1);
    for (int k = 1; k < pieces; ++k) {
        sum += speed(a0 + k * step) * (k % 2 ? 4 : 2);
    }
    return sum * step / 3;
}

// A set of helices: cylinder, cone up and down, clockwise, flat spiral through the axis,
// tilted axis away from the origin.
struct NamedHelix {
    char const* name;
    COrxHelix helix;
};

NamedHelix const* helices(int& count) {
    static NamedHelix const list[] = {
        {"cylinder", COrxHelix(2, 3, 0.5, kOrigin, COrxPoint3d(2, 0, 0), COrxVector3d::kZAxis,
                               true)},
        {"widening_cone", COrxHelix(3, 2.5, 0.4, kOrigin, COrxPoint3d(1, 0, 0),
                                    COrxVector3d::kZAxis, true)},
        {"narrowing_cone_clockwise", COrxHelix(0.5, 1.75, 1.2, COrxPoint3d(1, 2, 3),
                                               COrxPoint3d(4, 2, 3), COrxVector3d(0, 0, 2),
                                               false)},
        {"spiral_from_the_axis", COrxHelix(4, 2, 0.0, kOrigin, kOrigin, COrxVector3d::kZAxis,
                                           true)},
        {"tilted_axis", COrxHelix(1.5, 1.3, 2.0, COrxPoint3d(5, -1, 2), COrxPoint3d(6, 1, 0),
                                  COrxVector3d(1, 1, 1), true)},
    };
    count = sizeof list / sizeof list[0];
    return list;
}

TEST(COrxHelixTest, DefaultValue) {
    COrxHelix const h;
    EXPECT_EQ(h.topRadius(), 0.0);
    EXPECT_EQ(h.turns(), 0.0);
    EXPECT_EQ(h.turnHeight(), 0.0);
    EXPECT_EQ(h.startPoint(), COrxPoint3d(1, 0, 0));
    EXPECT_EQ(h.axisPoint(), kOrigin);
    EXPECT_EQ(h.axisVector(), COrxVector3d::kZAxis);
    EXPECT_TRUE(h.orientation());
    EXPECT_EQ(h.baseRadius(), 1.0);
    EXPECT_EQ(h.len(), 0.0);
    EXPECT_EQ(h.endPoint(), h.startPoint());
}

TEST(COrxHelixTest, ValidateTurnsTheAxisFromStartToEnd) {
    COrxHelix h(1, 2, -1.5, kOrigin, COrxPoint3d(1, 0, 0), COrxVector3d(0, 0, 3), true);
    EXPECT_EQ(h.axisVector(), COrxVector3d(0, 0, -1));
    EXPECT_EQ(h.turnHeight(), 1.5);
    EXPECT_EQ(h.height(), 3.0);
    EXPECT_EQ(h.endPoint(), COrxPoint3d(1, 0, -3));
    // An axis already pointing from start to end is only normalised.
    COrxHelix const up(1, 2, 1.5, kOrigin, COrxPoint3d(1, 0, 0), COrxVector3d(0, 0, 3), true);
    EXPECT_EQ(up.axisVector(), COrxVector3d::kZAxis);
    EXPECT_EQ(up.turnHeight(), 1.5);
}

TEST(COrxHelixTest, PointsFollowTheWindingAndTheLinearRadius) {
    COrxHelix const ccw(3, 2, 0.8, kOrigin, COrxPoint3d(1, 0, 0), COrxVector3d::kZAxis, true);
    COrxPoint3d p;
    ASSERT_TRUE(ccw.pointAtAng(ORX::kHalfPi, p, true));
    EXPECT_EQ(p, COrxPoint3d(0, 1.25, 0.2));  // a sixteenth of the way: radius 1 + 2/16 * 2
    COrxHelix const cw(3, 2, 0.8, kOrigin, COrxPoint3d(1, 0, 0), COrxVector3d::kZAxis, false);
    ASSERT_TRUE(cw.pointAtAng(ORX::kHalfPi, p, true));
    EXPECT_EQ(p, COrxPoint3d(0, -1.25, 0.2));
    EXPECT_EQ(ccw.endPoint(), COrxPoint3d(3, 0, 1.6));
    // Bounded queries stop at the ends; unbounded ones continue the formula.
    EXPECT_FALSE(ccw.pointAtAng(-0.1, p, true));
    EXPECT_FALSE(ccw.pointAtAng(4 * ORX::kPi + 0.1, p, true));
    EXPECT_TRUE(ccw.pointAtAng(5 * ORX::kPi, p, false));
    EXPECT_EQ(p, COrxPoint3d(-3.5, 0, 2.0));
}

TEST(COrxHelixTest, AnglesStartAtTheStartAndEndAtTheEnd) {
    int count = 0;
    NamedHelix const* list = helices(count);
    for (int i = 0; i < count; ++i) {
        SCOPED_TRACE(list[i].name);
        COrxHelix const& h = list[i].helix;
        double const total = ORX::kTwoPi * h.turns();
        COrxPoint3d p;
        ASSERT_TRUE(h.pointAtAng(0, p, true));
        EXPECT_EQ(p, h.startPoint());
        ASSERT_TRUE(h.pointAtAng(total, p, true));
        EXPECT_EQ(p, h.endPoint());
        EXPECT_EQ(h.pointAtLen(0, true), h.startPoint());
        EXPECT_EQ(h.pointAtLen(h.len(), true), h.endPoint());
        EXPECT_NEAR(h.topRadius(), h.endPoint().distanceTo(
                                       h.mtx().translation().asPoint() +
                                       h.axisVector() * h.height()),
                    1e-9);
    }
}

TEST(COrxHelixTest, AngleAtPointInvertsPointAtAngle) {
    int count = 0;
    NamedHelix const* list = helices(count);
    for (int i = 0; i < count; ++i) {
        SCOPED_TRACE(list[i].name);
        COrxHelix const& h = list[i].helix;
        double const total = ORX::kTwoPi * h.turns();
        for (int k = 0; k <= 40; ++k) {
            double const t = total * k / 40;
            COrxPoint3d p;
            ASSERT_TRUE(h.pointAtAng(t, p, true));
            double back = -1;
            ASSERT_TRUE(h.angAtPoint(p, back, true)) << t;
            EXPECT_NEAR(back, t, 1e-9) << t;
            EXPECT_TRUE(h.isPoint(p));
        }
        // Beyond the end: only unbounded.
        COrxPoint3d beyond;
        ASSERT_TRUE(h.pointAtAng(total + 1.0, beyond, false));
        double back = -1;
        EXPECT_FALSE(h.angAtPoint(beyond, back, true));
        EXPECT_EQ(back, -1);
        EXPECT_TRUE(h.angAtPoint(beyond, back, false));
        EXPECT_NEAR(back, total + 1.0, 1e-9);
        EXPECT_FALSE(h.isPoint(beyond));
    }
}

TEST(COrxHelixTest, PointsOffTheHelixHaveNoAngle) {
    COrxHelix const h(2, 3, 0.5, kOrigin, COrxPoint3d(2, 0, 0), COrxVector3d::kZAxis, true);
    double t = 0;
    EXPECT_FALSE(h.angAtPoint(COrxPoint3d(2, 0, 0.25), t, false));  // between two turns
    EXPECT_FALSE(h.angAtPoint(COrxPoint3d(2.1, 0, 0), t, false));
    EXPECT_FALSE(h.angAtPoint(kOrigin, t, false));
    EXPECT_EQ(h.vectorAtPoint(COrxPoint3d(2.1, 0, 0)), COrxVector3d::kNull);
}

TEST(COrxHelixTest, CylinderLengthIsTheClosedFormPerTurn) {
    double const r = 2, h = 0.5;
    COrxHelix const coil(r, 3, h, kOrigin, COrxPoint3d(r, 0, 0), COrxVector3d::kZAxis, true);
    double const perTurn = std::sqrt(std::pow(ORX::kTwoPi * r, 2) + h * h);
    EXPECT_NEAR(coil.len(), 3 * perTurn, 1e-12 * perTurn);
    EXPECT_NEAR(coil.len(0, ORX::kTwoPi), perTurn, 1e-12 * perTurn);
    EXPECT_NEAR(coil.len(ORX::kTwoPi, 0), perTurn, 1e-12 * perTurn);
    // A radius change far below rounding of the cone formula gives the cylinder's length.
    COrxHelix const almost(r * (1 + 1e-13), 3, h, kOrigin, COrxPoint3d(r, 0, 0),
                           COrxVector3d::kZAxis, true);
    EXPECT_NEAR(almost.len(), 3 * perTurn, 1e-11 * perTurn);
}

TEST(COrxHelixTest, ConeLengthAgreesWithNumericalIntegration) {
    int count = 0;
    NamedHelix const* list = helices(count);
    for (int i = 0; i < count; ++i) {
        SCOPED_TRACE(list[i].name);
        COrxHelix const& h = list[i].helix;
        double const total = ORX::kTwoPi * h.turns();
        double const expected = simpsonLength(h, 0, total, 20000);
        EXPECT_NEAR(h.len(), expected, 1e-6 * expected);
        EXPECT_NEAR(h.len(0.3, 1.7), simpsonLength(h, 0.3, 1.7, 2000), 1e-6);
    }
    // The flat spiral from the axis, r = k t: (k/2) (T sqrt(1 + T^2) + asinh T).
    double const k = 4 / (4 * ORX::kPi), T = 4 * ORX::kPi;
    COrxHelix const spiral(4, 2, 0.0, kOrigin, kOrigin, COrxVector3d::kZAxis, true);
    EXPECT_NEAR(spiral.len(), k / 2 * (T * std::sqrt(1 + T * T) + std::asinh(T)), 1e-12);
}

TEST(COrxHelixTest, PointAtLengthWalksAlongTheHelix) {
    int count = 0;
    NamedHelix const* list = helices(count);
    for (int i = 0; i < count; ++i) {
        SCOPED_TRACE(list[i].name);
        COrxHelix const& h = list[i].helix;
        for (double t : {0.25, 1.0, 3.5, 6.0}) {
            COrxPoint3d expected;
            ASSERT_TRUE(h.pointAtAng(t, expected, false));
            EXPECT_EQ(h.pointAtLen(h.len(0, t), false), expected) << t;
        }
        EXPECT_FALSE(h.pointAtLen(h.len() * 1.01, true).isValid());
        EXPECT_FALSE(h.pointAtLen(-1, true).isValid());
    }
}

TEST(COrxHelixTest, TangentsAreUnitAndAgreeWithFiniteDifferences) {
    int count = 0;
    NamedHelix const* list = helices(count);
    for (int i = 0; i < count; ++i) {
        SCOPED_TRACE(list[i].name);
        COrxHelix const& h = list[i].helix;
        double const total = ORX::kTwoPi * h.turns();
        for (int k = 1; k < 20; ++k) {
            double const t = total * k / 20;
            COrxVector3d const v = h.vectorAtAng(t, true);
            EXPECT_NEAR(v.abs(), 1.0, 1e-12);
            COrxPoint3d p, q;
            h.pointAtAng(t - 1e-6, p, false);
            h.pointAtAng(t + 1e-6, q, false);
            COrxVector3d const diff = (q - p).normal();
            EXPECT_NEAR(v.x, diff.x, 1e-8);
            EXPECT_NEAR(v.y, diff.y, 1e-8);
            EXPECT_NEAR(v.z, diff.z, 1e-8);
            COrxPoint3d on;
            h.pointAtAng(t, on, true);
            EXPECT_EQ(h.vectorAtPoint(on), v);
        }
        EXPECT_EQ(h.startVector(), h.vectorAtAng(0, true));
        EXPECT_EQ(h.endVector(), h.vectorAtAng(total, true));
        EXPECT_EQ(h.vectorAtAng(total + 1, true), COrxVector3d::kNull);
    }
}

TEST(COrxHelixTest, FrameHasItsOriginOnTheAxisAndXTowardsTheStart) {
    COrxHelix const h(1, 2, 1, COrxPoint3d(1, 2, 3), COrxPoint3d(4, 2, 5), COrxVector3d(0, 0, 1),
                      true);
    COrxPoint3d origin;
    COrxVector3d x, y, z;
    h.mtx().getCoordSystem(origin, x, y, z);
    EXPECT_EQ(origin, COrxPoint3d(1, 2, 5));
    EXPECT_EQ(x, COrxVector3d(1, 0, 0));
    EXPECT_EQ(y, COrxVector3d(0, 1, 0));
    EXPECT_EQ(z, COrxVector3d(0, 0, 1));
    EXPECT_EQ(h.baseRadius(), 3.0);
    // A start point on the axis still gives a right-handed frame.
    COrxHelix const onAxis(1, 2, 1, kOrigin, kOrigin, COrxVector3d(0, 1, 0), true);
    onAxis.mtx().getCoordSystem(origin, x, y, z);
    EXPECT_NEAR(x.abs(), 1, 1e-12);
    EXPECT_TRUE(x.isOrthoTo(z));
    EXPECT_EQ(x * y, z);
}

TEST(COrxHelixTest, TransformedHelixIsTheTransformedCurve) {
    COrxHelix const h(3, 2.5, 0.4, kOrigin, COrxPoint3d(1, 0, 0), COrxVector3d::kZAxis, true);
    COrxMatrix3d rotate, scale, mirror;
    rotate.setToRotation(0.7, COrxVector3d(1, 2, 3), COrxPoint3d(4, 5, 6));
    scale.setToScaling(2.5, COrxPoint3d(1, 1, 1));
    mirror.setToMirroring(COrxPlane(COrxPoint3d(0, 0, 1), COrxVector3d(1, 0, 1)));
    for (COrxMatrix3d const* m : {&rotate, &scale, &mirror}) {
        COrxHelix const moved = h.getTransformedCopy(*m);
        for (double t : {0.0, 1.0, 5.0, ORX::kTwoPi * 2.5}) {
            COrxPoint3d p, q;
            ASSERT_TRUE(h.pointAtAng(t, p, true));
            ASSERT_TRUE(moved.pointAtAng(t, q, true));
            EXPECT_EQ(q, p * *m) << t;
        }
    }
    EXPECT_FALSE(h.getTransformedCopy(mirror).orientation());
    EXPECT_EQ(h.getTransformedCopy(COrxMatrix3d::kIdentity), h);
    EXPECT_NE(h.getTransformedCopy(scale), h);
}

TEST(COrxHelixTest, HelixWithoutAxisOrNumbersFailsEveryQuery) {
    double const nan = std::numeric_limits<double>::quiet_NaN();
    COrxHelix const noAxis(1, 2, 1, kOrigin, COrxPoint3d(1, 0, 0), COrxVector3d::kNull, true);
    COrxHelix const noNumber(1, nan, 1, kOrigin, COrxPoint3d(1, 0, 0), COrxVector3d::kZAxis,
                             true);
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
        EXPECT_FALSE(h->isPoint(COrxPoint3d(1, 0, 0)));
    }
    COrxHelix const coil(2, 3, 0.5, kOrigin, COrxPoint3d(2, 0, 0), COrxVector3d::kZAxis, true);
    COrxPoint3d p;
    EXPECT_FALSE(coil.pointAtAng(nan, p, false));
    EXPECT_FALSE(coil.pointAtLen(std::numeric_limits<double>::infinity(), false).isValid());
}

TEST(COrxHelixTest, SettersAndDump) {
    COrxHelix h;
    h.setTurns(2).setTurnHeight(0.5).setOrientation(false).setStartPoint(COrxPoint3d(2, 0, 0));
    h.setTopRadius(3);
    EXPECT_EQ(h.height(), 1.0);
    EXPECT_EQ(h.endPoint(), COrxPoint3d(3, 0, 1));
    h.setAxisPoint(COrxPoint3d(0, 0, 5)).setAxisVector(COrxVector3d(0, 0, 1));
    EXPECT_EQ(h.endPoint(), COrxPoint3d(3, 0, 1));
    COrxString const text = h.dump();
    EXPECT_GT(text.len(), 20);
    EXPECT_NE(std::wcsstr(text, L"clockwise"), nullptr);
}

}  // namespace
