// The chord frame's tolerance tests answer with and without their square-root-free shortcut
// alike: points placed at chosen distances around the band of the tolerance, on arcs from
// nearly straight to nearly full circles, at small and at site coordinates.
#include "orx/plane_geometry/shared/arc_frame.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "orx/geom/functions.h"

using ORX::internal::ArcFrame;
using ORX::internal::FramePoint;

namespace {

// A point `offset` drawing units off the frame's circle along its normal, at the share t of
// the arc (t outside [0, 1] lies beyond its ends). The normal is the gradient of the frame's
// circle b (x^2 + y^2 - 1) + (b^2 - 1) y.
FramePoint besideArc(ArcFrame const& frame, double t, double offset) {
    FramePoint const on = frame.pointAt(t);
    double const b = frame.bulge();
    double const gx = 2 * b * on.x, gy = 2 * b * on.y + b * b - 1;
    double const length = std::hypot(gx, gy);
    double const step = offset / frame.halfChord() / length;
    return FramePoint{on.x + step * gx, on.y + step * gy};
}

}  // namespace

TEST(ArcFrameTest, ShortcutToleranceTestsAnswerAsTheFullDistance) {
    std::mt19937 random(20261124);
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    double const tol = COrxPoint3d::tol;
    int checked = 0;
    for (double const bulge : {1e-12, 1e-3, 0.2, -0.7, 1.0, -3.0, 1e4, -1e9}) {
        for (double const chord : {1e-3, 1.0, 300.0}) {
            for (double const site : {0.0, 1e6}) {
                double const angle = ORX::kTwoPi * unit(random);
                COrxPoint3d const start(site + unit(random), site - unit(random), 0);
                COrxPoint3d const end(start.x + chord * std::cos(angle),
                                      start.y + chord * std::sin(angle), 0);
                ArcFrame const frame(start, end, bulge);
                ASSERT_TRUE(frame.valid());
                double const h = frame.halfChord();
                for (double const share : {0.1, 0.24, 0.25, 0.26, 0.5, 0.99, 1.0, 1.01, 3.0}) {
                    for (double const t : {-0.2, 0.0, 0.3, 0.5, 0.97, 1.0, 1.3}) {
                        for (double const sign : {-1.0, 1.0}) {
                            FramePoint const q = besideArc(frame, t, sign * share * tol);
                            EXPECT_EQ(frame.nearCircle(q, tol),
                                      h * std::fabs(frame.circleDistance(q)) <= tol)
                                << bulge << " " << chord << " " << share;
                            EXPECT_EQ(frame.nearSegment(q, tol),
                                      h * frame.distanceToSegment(q) <= tol)
                                << bulge << " " << chord << " " << share;
                            ++checked;
                        }
                    }
                }
            }
        }
    }
    EXPECT_EQ(checked, 8 * 3 * 2 * 9 * 7 * 2);
}
