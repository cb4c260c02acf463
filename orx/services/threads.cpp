#include "orx/services/threads.h"

#include <cstring>

namespace ORX {

// Copies take the lock record as raw bytes (see the header); alike on both platforms.
CCriticalSect::CCriticalSect(CCriticalSect const& other) {
    std::memcpy(m_section, other.m_section, sizeof m_section);
}

CCriticalSect& CCriticalSect::operator=(CCriticalSect const& other) {
    if (this != &other) {
        std::memcpy(m_section, other.m_section, sizeof m_section);
    }
    return *this;
}

CLock::CLock(CCriticalSect& section) : m_section(section) {
    m_section.Enter();
}

CLock::CLock(CLock const& other) = default;

CLock::~CLock() {
    m_section.Leave();
}

}  // namespace ORX
