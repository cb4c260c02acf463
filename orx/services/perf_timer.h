// ORX::CPerfTimer: a named, nestable profiling scope that adds its time to a process-wide
// table of timings.
//
//     void drawHall() {
//         ORX::CPerfTimer scope(L"drawHall");
//         drawWalls();                     // a CPerfTimer(L"drawWalls") inside counts as nested
//     }
//     COrxString name;
//     double topLevel, nested;
//     int calls;
//     for (int i = 0; ORX::perfEntryAtIndex(i, name, topLevel, nested, calls); ++i) { ... }
//
// The table keeps one entry per name, in the order in which names were first added; each
// entry counts the calls and adds up the seconds spent at the top level (no other timer was
// running) and nested inside another timer. The table and the nesting level are
// process-wide and unlocked: profile one thread at a time.
#ifndef ORX_SERVICES_PERF_TIMER_H
#define ORX_SERVICES_PERF_TIMER_H

#include "orx/foundation/platform.h"
#include "orx/foundation/string.h"
#include "orx/services/timer.h"

namespace ORX {

// The least time a timer adds, so that every timed call leaves a positive time.
constexpr double kLeastPerfSeconds = 1e-09;

class ORX_API CPerfTimer {
public:
    // Starts timing and goes one nesting level deeper.
    explicit CPerfTimer(wchar_t const* name);
    // A copy has the same name and timer state, and counts as one more level, since its
    // destructor adds its time and leaves a level as well.
    CPerfTimer(CPerfTimer const& other);
    // Copies name and timer state; the level is unchanged.
    CPerfTimer& operator=(CPerfTimer const& other);
    // Leaves its level, stops, and adds the elapsed time (at least kLeastPerfSeconds) under
    // its name: to the top-level time when no other timer is running any more, else to the
    // nested time.
    ~CPerfTimer();

    // The current nesting depth: the number of live timers.
    static int m_Level;

private:
    COrxString m_name;
    CTimer m_timer;
};

// Finds or appends (count 0, times 0) the entry of name, adds seconds to its top-level or its
// nested time, and counts one call.
ORX_API void addPerfTime(wchar_t const* name, double seconds, bool topLevel);
// Copies entry i; false, outputs untouched, unless 0 <= i < the number of entries.
ORX_API bool perfEntryAtIndex(int i, COrxString& name, double& topLevelSeconds,
                              double& nestedSeconds, int& calls);
// Deletes every entry.
ORX_API void perfReset();

}  // namespace ORX

#endif  // ORX_SERVICES_PERF_TIMER_H
