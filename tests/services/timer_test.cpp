#include "orx/services/timer.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace {

// Sleeps last at least this long; the checks below use only such lower bounds (and the
// difference of two of them), never an upper bound, so a busy machine cannot fail them.
constexpr double kNapSeconds = 0.02;
// Timer resolution slack for comparisons of two readings.
constexpr double kSlackSeconds = 1e-3;

void nap(double seconds) {
    std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
}

}  // namespace

TEST(CTimerTest, ReadingDoesNotStopAndStoppingHoldsTheSeconds) {
    ORX::CTimer timer;
    nap(kNapSeconds);
    double const early = timer;
    nap(kNapSeconds);
    double const stopped = timer.stop();
    EXPECT_GE(stopped - early, kNapSeconds - kSlackSeconds);
    nap(kNapSeconds);
    EXPECT_EQ(timer.stop(), stopped);
    EXPECT_EQ(static_cast<double>(timer), stopped);
}

TEST(CTimerTest, ResumingAddsOnlyTheRunningTimeAndAResetClearsIt) {
    ORX::CTimer wall;
    ORX::CTimer timer;
    nap(kNapSeconds);
    double const before = timer.stop();
    nap(2 * kNapSeconds);  // stopped: not counted
    timer.start(false);
    nap(kNapSeconds);
    double const after = timer.stop();
    double const wallSeconds = wall.stop();
    EXPECT_GE(after - before, kNapSeconds - kSlackSeconds);
    EXPECT_LE(after, wallSeconds - 2 * kNapSeconds + kSlackSeconds);

    timer.start(true);
    EXPECT_LT(timer.stop(), before);
}
