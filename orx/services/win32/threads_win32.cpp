// Threads and the re-entrant lock on Windows: CreateThread and a critical section.
#include <windows.h>

#include <new>

#include "orx/services/threads.h"

namespace ORX {
namespace {

static_assert(sizeof(CRITICAL_SECTION) <= kCriticalSectionBytes, "the lock record must fit");
static_assert(alignof(CRITICAL_SECTION) <= 8, "the lock record must be aligned");

CRITICAL_SECTION* sectionIn(unsigned char* record) {
    return std::launder(reinterpret_cast<CRITICAL_SECTION*>(record));
}

}  // namespace

void* runThread(unsigned long (*fn)(void*), void* arg, int priority, unsigned long flags) {
    if (fn == nullptr) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    HANDLE const thread = CreateThread(nullptr, 0, fn, arg, flags, nullptr);
    if (thread != nullptr) {
        SetThreadPriority(thread, priority);
    }
    return thread;
}

CCriticalSect::CCriticalSect() {
    InitializeCriticalSection(new (m_section) CRITICAL_SECTION);
}

CCriticalSect::~CCriticalSect() {
    DeleteCriticalSection(sectionIn(m_section));
}

void CCriticalSect::Enter() {
    EnterCriticalSection(sectionIn(m_section));
}

void CCriticalSect::Leave() {
    LeaveCriticalSection(sectionIn(m_section));
}

}  // namespace ORX
