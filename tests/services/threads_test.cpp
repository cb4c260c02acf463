#include "orx/services/threads.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <utility>
#include <vector>

#include "orx/services/diagnostics.h"
#include "orx/services/handles.h"

namespace {

// Long enough for a blocked thread to have tried its lock, short enough for the suite.
constexpr unsigned long kBlockedMs = 50;
// Far beyond what any of these threads needs; a failure rather than a hang if it breaks.
constexpr unsigned long kPatienceMs = 10000;
constexpr int kThreadPriorityBelowNormal = -1;
// Increments per thread: enough for unlocked threads to collide many times.
constexpr long kIncrements = 20000;

struct Counter {
    ORX::CCriticalSect section;
    long value = 0;
};

unsigned long incrementUnderLock(void* data) {
    auto* const counter = static_cast<Counter*>(data);
    for (long i = 0; i < kIncrements; ++i) {
        ORX::CLock const lock(counter->section);
        counter->value = counter->value + 1;
    }
    return 0;
}

struct Entry {
    ORX::CCriticalSect* section;
    std::atomic<bool> entered{false};
};

unsigned long enterAndLeave(void* data) {
    auto* const entry = static_cast<Entry*>(data);
    entry->section->Enter();
    entry->entered = true;
    entry->section->Leave();
    return 0;
}

ORX::CSmartHandle startEnterAndLeave(Entry& entry) {
    ORX::CSmartHandle thread(ORX::runThread(&enterAndLeave, &entry, 0, 0));
    EXPECT_FALSE(thread.isClosed());
    return thread;
}

unsigned long doNothing(void*) {
    return 0;
}

}  // namespace

TEST(RunThreadTest, LockedIncrementsFromSeveralThreadsAreNotLost) {
    Counter counter;
    std::vector<ORX::CSmartHandle> threads;
    for (int i = 0; i < 4; ++i) {
        int const priority = i % 2 == 0 ? 0 : kThreadPriorityBelowNormal;
        threads.emplace_back(ORX::runThread(&incrementUnderLock, &counter, priority, 0));
        ASSERT_FALSE(threads.back().isClosed());
    }
    for (ORX::CSmartHandle const& thread : threads) {
        EXPECT_TRUE(ORX::waitForHandle(thread.handle(), ORX::kWaitForever));
    }
    EXPECT_EQ(counter.value, 4 * kIncrements);
}

TEST(RunThreadTest, RefusesANullFunctionAndSaysWhy) {
    EXPECT_EQ(ORX::runThread(nullptr, nullptr, 0, 0), nullptr);
    EXPECT_NE(std::wstring(ORX::lastErrorString()), L"");
}

TEST(CCriticalSectTest, IsReEnteredByItsOwnerAndExcludesOthers) {
    ORX::CCriticalSect section;
    section.Enter();
    section.Enter();  // a second entry by the owner does not deadlock
    Entry entry{&section};
    ORX::CSmartHandle const thread = startEnterAndLeave(entry);

    EXPECT_FALSE(ORX::waitForHandle(thread.handle(), kBlockedMs));
    section.Leave();
    EXPECT_FALSE(ORX::waitForHandle(thread.handle(), kBlockedMs)) << "entered twice, left once";
    EXPECT_FALSE(entry.entered);
    section.Leave();
    EXPECT_TRUE(ORX::waitForHandle(thread.handle(), kPatienceMs));
    EXPECT_TRUE(entry.entered);
}

TEST(CLockTest, LeavesOnScopeExitAndACopyLeavesOnceMore) {
    ORX::CCriticalSect section;
    section.Enter();
    {
        ORX::CLock const lock(section);
        ORX::CLock const copy(lock);  // enters nothing, yet leaves
    }
    // Entered twice (Enter, lock), left twice (lock, copy): free for another thread.
    Entry entry{&section};
    ORX::CSmartHandle const thread = startEnterAndLeave(entry);
    EXPECT_TRUE(ORX::waitForHandle(thread.handle(), kPatienceMs));
    EXPECT_TRUE(entry.entered);
}

TEST(CSmartHandleTest, OwnsOneHandleClosesItOnceAndCopiesOwnADuplicate) {
    ORX::CSmartHandle empty;
    EXPECT_TRUE(empty.isClosed());
    EXPECT_FALSE(empty.close());
    EXPECT_FALSE(ORX::waitForHandle(empty.handle(), 0));  // nothing to wait for

    ORX::CSmartHandle thread(ORX::runThread(&doNothing, nullptr, 0, 0));
    ASSERT_FALSE(thread.isClosed());
    void* const handle = thread.handle();
    thread = handle;  // assigning the held handle keeps it open
    ORX::CSmartHandle const copy(thread);
    ORX::CSmartHandle assigned;
    assigned = thread;
    EXPECT_NE(copy.handle(), handle);
    ORX::CSmartHandle owner(thread.detach());  // handed over without closing
    EXPECT_TRUE(thread.isClosed());
    EXPECT_EQ(owner.handle(), handle);
    EXPECT_TRUE(owner.close());
    EXPECT_FALSE(owner.close());

    EXPECT_TRUE(ORX::waitForHandle(copy.handle(), kPatienceMs));  // open after the original
    ORX::CSmartHandle const moved(std::move(assigned));
    EXPECT_TRUE(assigned.isClosed());
    EXPECT_TRUE(ORX::waitForHandle(moved.handle(), kPatienceMs));
}
