// ORX::CTimer: a high-resolution stopwatch that can be stopped and resumed.
//
//     ORX::CTimer timer;                 // running
//     work();
//     double const seconds = timer.stop();
//
// Windows: QueryPerformanceCounter and QueryPerformanceFrequency; Linux:
// clock_gettime(CLOCK_MONOTONIC) in nanoseconds.
#ifndef ORX_SERVICES_TIMER_H
#define ORX_SERVICES_TIMER_H

#include "orx/foundation/platform.h"

namespace ORX {

class ORX_API CTimer {
public:
    // Started.
    CTimer();
    // Started when `start`; otherwise the start count is 0 and the timer still counts as
    // running, so reading it gives the counter's own value until start() is called.
    explicit CTimer(bool start);

    // Starts counting from now, after clearing the accumulated time when `reset`; without
    // `reset` a stopped timer resumes and adds to what it had.
    void start(bool reset);
    // Adds the running time to the accumulated time and stops; returns the accumulated
    // seconds. Stopping a stopped timer changes nothing and returns the same seconds.
    double stop();
    // The seconds so far, without stopping.
    operator double() const;

private:
    __int64 m_start;
    __int64 m_accumulated;
    __int64 m_frequency;
    bool m_stopped;
};

}  // namespace ORX

#endif  // ORX_SERVICES_TIMER_H
