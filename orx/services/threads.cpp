#include "orx/services/threads.h"

namespace ORX {

CLock::CLock(CCriticalSect& section) : m_section(section) {
    m_section.Enter();
}

CLock::CLock(CLock const& other) : m_section(other.m_section) {}

CLock::~CLock() {
    m_section.Leave();
}

}  // namespace ORX
