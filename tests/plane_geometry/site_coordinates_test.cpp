// The plane-geometry functions at site coordinates and on nearly straight arcs: a result far
// from the origin is the result at the origin moved, up to the rounding of the coordinates,
// and a tiny bulge gives its arc to the digits of its chord.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "orx/geom/functions.h"
#include "orx/plane_geometry/plane_geometry.h"

namespace {

using P = COrxPoint3d;

double const kOffsets[] = {1e3, 1e5, 1e6, 1e7};
double const kTinyBulges[] = {1e-6, 1e-9, 1e-12, 1e-15, 1e-20, 1e-50, 1e-100, 1e-200, 1e-300};

P moved(P const& p, double offset) {
    return P(p.x + offset, p.y + offset, p.z);
}

class Random {
public:
    explicit Random(unsigned seed) : m_engine(seed) {}
    double uniform(double lo, double hi) {
        return std::uniform_real_distribution<double>(lo, hi)(m_engine);
    }
    P point(double spread) { return P(uniform(-spread, spread), uniform(-spread, spread), 0); }

private:
    std::mt19937 m_engine;
};

}  // namespace

TEST(SiteCoordinatesTest, LinesThroughACircleMeetItTwiceFarFromTheOrigin) {
    Random random(3u);
    for (double offset : kOffsets) {
        int found = 0;
        for (int k = 0; k < 500; ++k) {
            P const c = moved(random.point(50), offset);
            double const r = random.uniform(0.1, 100);
            // A line through a point well inside the circle, in any direction.
            P const inside =
                ORX::polar(c, random.uniform(0, ORX::kTwoPi), 0.9 * r * random.uniform(0, 1));
            double const direction = random.uniform(0, ORX::kTwoPi);
            P const p1 = ORX::polar(inside, direction, 1),
                    p2 = ORX::polar(inside, direction + ORX::kPi, 1);
            COrxPoint3dArray pts;
            ORX::g_cli0(pts, c, r, p1, p2);
            found += pts.len() == 2 ? 1 : 0;
            for (int n = 0; n < pts.len(); ++n) {
                EXPECT_NEAR(ORX::g_dist2d(c, pts[n]), r, 1e-9 * (1 + offset / r)) << offset;
            }
        }
        EXPECT_EQ(found, 500) << offset;
    }
}

TEST(SiteCoordinatesTest, SegmentMeetingPointsMoveWithTheSegments) {
    Random random(5u);
    int agreeing = 0, cases = 0;
    for (int k = 0; k < 400; ++k) {
        P const s1 = random.point(3), e1 = random.point(3), s2 = random.point(3),
                e2 = random.point(3);
        double const b1 = k % 3 == 0 ? 0.0 : random.uniform(-1.5, 1.5);
        double const b2 = k % 4 == 0 ? 0.0 : random.uniform(-1.5, 1.5);
        COrxPoint3dArray here;
        ORX::g_bulg_int(here, s1, e1, b1, s2, e2, b2, false);
        for (double offset : kOffsets) {
            COrxPoint3dArray there;
            ORX::g_bulg_int(there, moved(s1, offset), moved(e1, offset), b1, moved(s2, offset),
                            moved(e2, offset), b2, false);
            ++cases;
            // A point at the tolerance's edge of a segment, or a tangency, may come out
            // differently at the rounding of large coordinates; all others are the same points,
            // moved.
            if (here.len() != there.len()) {
                continue;
            }
            ++agreeing;
            for (int n = 0; n < here.len(); ++n) {
                EXPECT_LT(ORX::g_dist2d(moved(here[n], offset), there[n]), 1e-6)
                    << "case " << k << " at " << offset;
            }
        }
    }
    EXPECT_GE(agreeing, cases * 99 / 100);
}

TEST(SiteCoordinatesTest, TinyBulgesGiveTheirArcToTheDigitsOfTheChord) {
    Random random(7u);
    for (double chord : {10.0, 1000.0}) {
        for (double bulge : kTinyBulges) {
            for (int turn = 0; turn < 6; ++turn) {
                double const direction = random.uniform(0, ORX::kTwoPi);
                P const start = random.point(chord);
                P const end = ORX::polar(start, direction, chord);
                // The arc's midpoint: the sagitta bulge * chord / 2 right of the chord.
                P const middle = ORX::g_midp3d(start, end);
                P const exact = ORX::polar(middle, direction - ORX::kHalfPi, bulge * chord / 2);
                double const digits = 1e-12 * chord;
                double const length = ORX::g_bulg_len(start, end, bulge);
                EXPECT_NEAR(length, chord, digits);
                EXPECT_LT(ORX::g_dist2d(ORX::g_bulg_mid(start, end, bulge), exact), digits);
                EXPECT_LT(ORX::g_dist2d(ORX::g_bulg_pt_at(start, end, bulge, length / 2), exact),
                          digits);
                EXPECT_NEAR(ORX::g_bulg_dist_at(start, end, bulge, exact), length / 2, digits);
                // A line through the arc's midpoint, across the chord, meets the arc there.
                double const across = direction + random.uniform(0.5, 2.5);
                COrxPoint3dArray pts;
                ORX::g_bulg_int(pts, start, end, bulge, ORX::polar(exact, across, 2),
                                ORX::polar(exact, across + ORX::kPi, 2), 0.0, false);
                ASSERT_EQ(pts.len(), 1) << bulge;
                EXPECT_LT(ORX::g_dist2d(pts[0], exact), digits) << bulge;
            }
        }
    }
}

TEST(SiteCoordinatesTest, ArcPointTestMeasuresTheDistanceToTheArc) {
    P const c(0, 0, 0);
    double const quarter = ORX::kHalfPi, t = COrxPoint3d::tol;
    // Just before the start of a quarter arc, on its circle: on it only within the tolerance
    // of the start point, as for a straight segment.
    EXPECT_FALSE(ORX::g_arc_pt(c, 1, 0, quarter, ORX::polar(c, -1.27e-5, 1)));
    EXPECT_TRUE(ORX::g_arc_pt(c, 1, 0, quarter, ORX::polar(c, -0.9e-5, 1)));
    // Inside the sweep, the distance to the circle.
    EXPECT_TRUE(ORX::g_arc_pt(c, 1, 0, quarter, ORX::polar(c, 0.5, 1 + 0.9 * t)));
    EXPECT_FALSE(ORX::g_arc_pt(c, 1, 0, quarter, ORX::polar(c, 0.5, 1 + 1.1 * t)));
    // The bulge segment's measure agrees.
    P const s(1, 0, 0), e(0, 1, 0);
    double const b = std::tan(ORX::kPi / 8);
    EXPECT_NEAR(ORX::g_bulg_pt_dist(s, e, b, ORX::polar(c, -1.27e-5, 1)), 1.27e-5, 1e-12);
    EXPECT_NEAR(ORX::g_bulg_pt_dist(s, e, b, ORX::polar(c, 0.5, 1.25)), 0.25, 1e-12);
}

TEST(SiteCoordinatesTest, CuttingNeverLengthensASegment) {
    P const s(1, 0, 0), e(0, 1, 0);
    double const b = std::tan(ORX::kPi / 8);
    P cut;
    double b1 = 0, b2 = 0;
    // Before the start, within the tolerance of an end, or off the segment: no cut.
    EXPECT_FALSE(ORX::g_bulg_cut(s, e, b, ORX::polar(P(0, 0, 0), -1.27e-5, 1), cut, b1, b2));
    EXPECT_FALSE(ORX::g_bulg_cut(s, e, b, ORX::polar(P(0, 0, 0), 0.5e-5, 1), cut, b1, b2));
    // Anywhere inside: the pieces lie on the circle and make up the arc.
    for (double at : {1e-4, 0.3, 1.0, ORX::kHalfPi - 1e-4}) {
        ASSERT_TRUE(ORX::g_bulg_cut(s, e, b, ORX::polar(P(0, 0, 0), at, 1.001), cut, b1, b2));
        EXPECT_NEAR(ORX::g_dist2d(cut, P(0, 0, 0)), 1, 1e-15);
        EXPECT_NEAR(ORX::g_bulg_len(s, cut, b1) + ORX::g_bulg_len(cut, e, b2), ORX::kHalfPi, 1e-15);
        EXPECT_NEAR(4 * std::atan(b1), at, 1e-15);
    }
    // An arc whose ends lie at two heights is planar (its points take the height of the chord
    // midpoint): its ends count in the plan, and a point beside one is no cut there either.
    P const high(1, 0, 38);
    EXPECT_FALSE(ORX::g_bulg_cut(high, e, b, ORX::polar(P(0, 0, 0), 0.5e-5, 1), cut, b1, b2));
    EXPECT_FALSE(ORX::g_bulg_cut(high, e, b, P(1, 0, 0), cut, b1, b2));
    ASSERT_TRUE(ORX::g_bulg_cut(high, e, b, ORX::polar(P(0, 0, 0), 0.3, 1), cut, b1, b2));
    EXPECT_NEAR(4 * std::atan(b1), 0.3, 1e-15);
}
