// COrxLineParm: dash pattern and position.
#include "orx/profiles/line_parm.h"

#include <cmath>

COrxLineParm::COrxLineParm() : m_index(0) {}

COrxLineParm::COrxLineParm(double d) : m_index(0) {
    if (d == 0.0) {
        d = 1.0;
    }
    m_pattern.append(d).append(-d);
}

COrxLineParm::COrxLineParm(double a, double b) : m_index(0) {
    m_pattern.append(a).append(b);
}

COrxLineParm::COrxLineParm(COrxArrayTempl<double> const& pattern)
    : m_pattern(pattern), m_index(0) {}

COrxLineParm::COrxLineParm(COrxLineParm const& other) = default;
COrxLineParm& COrxLineParm::operator=(COrxLineParm const& other) = default;
COrxLineParm::~COrxLineParm() = default;

int COrxLineParm::current() const {
    int const n = static_cast<int>(m_pattern.len());
    int const i = m_index % n;
    return i < 0 ? i + n : i;
}

bool COrxLineParm::pen() const {
    if (m_pattern.len() < 2) {
        return false;
    }
    return m_pattern[current()] >= 0.0;
}

COrxLineParm& COrxLineParm::rotate() {
    if (m_pattern.len() >= 2) {
        m_index = (m_index + 1) % static_cast<int>(m_pattern.len());
    }
    return *this;
}

COrxLineParm::operator double() const {
    if (m_pattern.len() < 2) {
        return 0.0;
    }
    return std::fabs(m_pattern[current()]);
}
