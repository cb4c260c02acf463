// Arc quantities and intersections checked against independent geometry on random segments.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "orx/geom/functions.h"
#include "orx/plane_geometry/plane_geometry.h"
#include "orx/polyline/vertex.h"

namespace {

constexpr int kCases = 400;

struct RandomSegments {
    std::mt19937 engine{20261122u};

    double coordinate(double range) {
        return std::uniform_real_distribution<double>(-range, range)(engine);
    }
    COrxPoint3d point(double range) { return COrxPoint3d(coordinate(range), coordinate(range), 0); }

    // Both senses, minor and major arcs, nearly straight and nearly full circles.
    double bulge() {
        static double const magnitudes[] = {1e-6, 0.05, 0.3, 0.7, 1.0, 1.6, 4.0, 50.0};
        double const m = magnitudes[std::uniform_int_distribution<int>(0, 7)(engine)];
        return std::uniform_int_distribution<int>(0, 1)(engine) ? m : -m;
    }

    COrxVertex arc(double range) {
        COrxPoint3d const start = point(range);
        COrxPoint3d end = point(range);
        while (start.distanceTo(end) < 0.1) {
            end = point(range);
        }
        return COrxVertex(start, end, bulge());
    }

    // Straight or arc; now and then sharing an end with `other`.
    COrxVertex segmentNear(COrxVertex const& other, double range) {
        COrxVertex v = std::uniform_int_distribution<int>(0, 2)(engine) == 0
                           ? COrxVertex(point(range), point(range), 0.0)
                           : arc(range);
        if (std::uniform_int_distribution<int>(0, 4)(engine) == 0) {
            v.set(other.endPoint(), v.endPoint(), v.bulge());
        }
        return v;
    }
};

double relative(double scale) {
    return 1e-9 * (scale > 1 ? scale : 1);
}

}  // namespace

TEST(COrxVertexPropertyTest, ArcQuantitiesAgreeWithTheCircle) {
    RandomSegments random;
    for (int n = 0; n < kCases; ++n) {
        COrxVertex const v = random.arc(100);
        SCOPED_TRACE(testing::Message() << "case " << n << " bulge " << v.bulge());
        COrxPoint3d const c = v.center();
        double const r = v.radius();
        double const theta = 4 * std::atan(v.bulge());
        double const tol = relative(r);

        COrxPoint3d const m = v.mid();  // on the circle, halfway round in angle
        for (COrxPoint3d const& p : {v.startPoint(), v.endPoint(), m}) {
            EXPECT_NEAR(c.distanceTo(p), r, tol);
        }
        EXPECT_NEAR(v.bulgLen(), r * std::fabs(theta), tol * 10);
        double const toMid = ORX::g_signed_ang(ORX::angle(c, m) - ORX::angle(c, v.startPoint()));
        EXPECT_NEAR(toMid, theta / 2, 1e-7);

        COrxPoint3d end;
        ASSERT_TRUE(v.pointAtDist(end, v.bulgLen(), true));
        EXPECT_LT(end.distanceTo(v.endPoint()), 1e-7 * (r > 1 ? r : 1));

        // The complement completes the circle.
        COrxVertex rest(v);
        rest.complement();
        EXPECT_NEAR(rest.radius(), r, tol * 10);
        EXPECT_LT(rest.center().distanceTo(c), tol * 10);
        EXPECT_NEAR(rest.bulgLen() + v.bulgLen(), ORX::kTwoPi * r, tol * 100);
    }
}

TEST(COrxVertexPropertyTest, EveryIntersectionLiesOnBothSegments) {
    RandomSegments random;
    int found = 0;
    for (int n = 0; n < kCases; ++n) {
        COrxVertex const a = random.arc(10);
        COrxVertex const b = random.segmentNear(a, 10);
        SCOPED_TRACE(testing::Message() << "case " << n);
        COrxPoint3dArray pts;
        a.intersectWith(pts, b, 0);
        found += pts.len();
        for (int k = 0; k < pts.len(); ++k) {
            EXPECT_TRUE(a.isPoint(pts[k]));
            EXPECT_TRUE(b.isPoint(pts[k]));
        }
        COrxPoint3dArray swapped;
        b.intersectWith(swapped, a, 0);
        EXPECT_EQ(swapped.len(), pts.len());
    }
    EXPECT_GT(found, kCases / 4);  // the cases do meet
}

TEST(COrxVertexPropertyTest, FilterFlagsDropExactlyTheNamedPoints) {
    RandomSegments random;
    for (int n = 0; n < kCases; ++n) {
        COrxVertex const a = random.arc(10);
        COrxVertex const b = random.segmentNear(a, 10);
        COrxPoint3dArray all, ownEnds, otherEnds;
        a.intersectWith(all, b, 0);
        a.intersectWith(ownEnds, b, COrxVertex::kSkipOwnEnds);
        a.intersectWith(otherEnds, b, COrxVertex::kSkipOtherEnds);
        int expectOwn = 0, expectOther = 0;
        for (int k = 0; k < all.len(); ++k) {
            COrxPoint3d const& p = all[k];
            expectOwn += !(p == a.startPoint() || p == a.endPoint());
            expectOther += !(p == b.startPoint() || p == b.endPoint());
        }
        EXPECT_EQ(ownEnds.len(), expectOwn) << "case " << n;
        EXPECT_EQ(otherEnds.len(), expectOther) << "case " << n;
    }
}
