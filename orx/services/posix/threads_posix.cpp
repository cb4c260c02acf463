// Threads and the re-entrant lock on Linux: pthreads and a recursive mutex.
#include <pthread.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <new>

#include "orx/services/handles.h"
#include "orx/services/internal/os_handles.h"
#include "orx/services/posix/handle_table.h"
#include "orx/services/threads.h"

namespace ORX {
namespace {

static_assert(sizeof(pthread_mutex_t) <= kCriticalSectionBytes, "the lock record must fit");
static_assert(alignof(pthread_mutex_t) <= 8, "the lock record must be aligned");

// Windows' CREATE_SUSPENDED.
constexpr unsigned long kCreateSuspended = 0x4;
// Nice steps per Windows priority step, and the nice range of Linux.
constexpr int kNicePerPriority = 5;
constexpr int kHighestNice = -20;
constexpr int kLowestNice = 19;

// The handle object of a thread: signalled once the thread function has returned.
class ThreadObject : public internal::HandleObject {
public:
    void finish() {
        std::lock_guard<std::mutex> const lock(m_mutex);
        m_finished = true;
        m_ended.notify_all();
    }

    bool wait(unsigned long milliseconds) override {
        std::unique_lock<std::mutex> lock(m_mutex);
        auto const finished = [this] { return m_finished; };
        if (milliseconds == kWaitForever) {
            m_ended.wait(lock, finished);
            return true;
        }
        return m_ended.wait_for(lock, std::chrono::milliseconds(milliseconds), finished);
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_ended;
    bool m_finished = false;
};

struct ThreadStart {
    unsigned long (*fn)(void*);
    void* arg;
    int nice;
    std::shared_ptr<ThreadObject> object;
};

void* threadMain(void* parameter) {
    std::unique_ptr<ThreadStart> const start(static_cast<ThreadStart*>(parameter));
    if (start->nice != 0) {
        // Linux keeps a nice value per thread; a refused raise leaves the normal one.
        setpriority(PRIO_PROCESS, static_cast<id_t>(gettid()), start->nice);
    }
    start->fn(start->arg);
    start->object->finish();
    return nullptr;
}

int niceOf(int priority) {
    long const nice = -static_cast<long>(priority) * kNicePerPriority;
    return static_cast<int>(std::clamp<long>(nice, kHighestNice, kLowestNice));
}

// Starts a detached thread: nobody joins it, its handle waits on the ThreadObject instead.
int startDetached(ThreadStart* start) {
    pthread_attr_t attributes;
    int result = pthread_attr_init(&attributes);
    if (result == 0) {
        pthread_attr_setdetachstate(&attributes, PTHREAD_CREATE_DETACHED);
        pthread_t thread;
        result = pthread_create(&thread, &attributes, &threadMain, start);
        pthread_attr_destroy(&attributes);
    }
    return result;
}

pthread_mutex_t* mutexIn(unsigned char* record) {
    return std::launder(reinterpret_cast<pthread_mutex_t*>(record));
}

}  // namespace

void* runThread(unsigned long (*fn)(void*), void* arg, int priority, unsigned long flags) {
    if (fn == nullptr || (flags & kCreateSuspended) != 0) {
        errno = EINVAL;
        return nullptr;
    }
    auto object = std::make_shared<ThreadObject>();
    void* const handle = internal::openHandle(object);
    auto* const start = new ThreadStart{fn, arg, niceOf(priority), std::move(object)};
    int const result = startDetached(start);
    if (result != 0) {
        delete start;
        internal::closeOsHandle(handle);
        errno = result;
        return nullptr;
    }
    return handle;
}

CCriticalSect::CCriticalSect() {
    pthread_mutexattr_t attributes;
    pthread_mutexattr_init(&attributes);
    pthread_mutexattr_settype(&attributes, PTHREAD_MUTEX_RECURSIVE);
    pthread_mutex_init(new (m_section) pthread_mutex_t, &attributes);
    pthread_mutexattr_destroy(&attributes);
}

CCriticalSect::~CCriticalSect() {
    pthread_mutex_destroy(mutexIn(m_section));
}

void CCriticalSect::Enter() {
    pthread_mutex_lock(mutexIn(m_section));
}

void CCriticalSect::Leave() {
    pthread_mutex_unlock(mutexIn(m_section));
}

}  // namespace ORX
