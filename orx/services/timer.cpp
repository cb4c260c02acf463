#include "orx/services/timer.h"

#include "orx/services/internal/clock.h"

namespace ORX {

CTimer::CTimer() : CTimer(true) {}

CTimer::CTimer(bool start)
    : m_start(start ? internal::performanceCounter() : 0),
      m_accumulated(0),
      m_frequency(internal::performanceFrequency()),
      m_stopped(false) {}

void CTimer::start(bool reset) {
    if (reset) {
        m_accumulated = 0;
    }
    m_start = internal::performanceCounter();
    m_stopped = false;
}

double CTimer::stop() {
    if (!m_stopped) {
        m_accumulated += internal::performanceCounter() - m_start;
        m_stopped = true;
    }
    return static_cast<double>(m_accumulated) / static_cast<double>(m_frequency);
}

CTimer::operator double() const {
    __int64 const counts =
        m_stopped ? m_accumulated : m_accumulated + internal::performanceCounter() - m_start;
    return static_cast<double>(counts) / static_cast<double>(m_frequency);
}

}  // namespace ORX
