// Threads and locks: ORX::runThread starts a thread, ORX::CCriticalSect is a re-entrant lock
// and ORX::CLock holds one for a scope.
//
//     ORX::CCriticalSect section;
//     unsigned long work(void* data) {
//         ORX::CLock lock(section);         // entered here, left at the end of the scope
//         ...
//     }
//     ORX::CSmartHandle thread(ORX::runThread(&work, &data, 0, 0));
//
// These are the library's only thread starter and only lock; no library function locks
// anything itself, so callers that share the library's process-wide state across threads
// serialise those calls with a CCriticalSect of their own.
#ifndef ORX_SERVICES_THREADS_H
#define ORX_SERVICES_THREADS_H

#include "orx/foundation/platform.h"

namespace ORX {

// Bytes of the lock record a CCriticalSect holds: a CRITICAL_SECTION on Windows x64, a
// pthread_mutex_t on Linux x86-64 (both 40 bytes).
constexpr int kCriticalSectionBytes = 40;

// Starts `fn(arg)` on a new thread with the given priority (THREAD_PRIORITY_NORMAL = 0) and
// creation flags, and returns its handle, which the caller closes (ORX::CSmartHandle);
// null when no thread was started (a null `fn` included), with the reason left for
// ORX::lastErrorString.
// Windows: CreateThread with default security and stack size, then SetThreadPriority.
// Linux: a pthread; the handle is an entry of the library's handle table (see handles.h),
// signalled when the thread has ended. The priority becomes the thread's nice value,
// -5 per step (THREAD_PRIORITY_LOWEST -2 gives 10, IDLE -15 gives 19, HIGHEST 2 gives -10,
// TIME_CRITICAL 15 gives -20), clamped to -20..19; a priority the process may not take (a
// raise without the privilege) is left at the normal level, as a failed SetThreadPriority
// does. The creation flags are ignored except CREATE_SUSPENDED (0x4), which is refused
// (null), as there is no way to resume the thread.
ORX_API void* runThread(unsigned long (*fn)(void*), void* arg, int priority, unsigned long flags);

// A re-entrant lock: the thread that entered it may enter it again, and must leave it as often.
// Windows: a critical section; Linux: a recursive mutex.
class ORX_API CCriticalSect {
public:
    CCriticalSect();
    ~CCriticalSect();
    // Copy construction and assignment copy the lock record as raw bytes without
    // initialising a new one (assignment neither releases the old one). This is kept
    // deliberately, as existing callers copy objects that contain a section; a copy is not
    // an independent lock and must not be used as one.
    CCriticalSect(CCriticalSect const& other);
    CCriticalSect& operator=(CCriticalSect const& other);

    void Enter();
    void Leave();

private:
    alignas(8) unsigned char m_section[kCriticalSectionBytes];
};

// Enters a section for the lifetime of the lock.
class ORX_API CLock {
public:
    explicit CLock(CCriticalSect& section);
    // A copy refers to the same section without entering it, yet leaves it on destruction
    // too. Kept deliberately (callers never copy a lock); such a copy leaves the section once
    // more than it entered it.
    CLock(CLock const& other);
    ~CLock();
    CLock& operator=(CLock const&) = delete;

private:
    CCriticalSect& m_section;
};

}  // namespace ORX

#endif  // ORX_SERVICES_THREADS_H
