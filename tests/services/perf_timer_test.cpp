#include "orx/services/perf_timer.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace {

struct Entry {
    std::wstring name;
    double topLevel;
    double nested;
    int calls;
};

std::vector<Entry> table() {
    std::vector<Entry> entries;
    Entry entry{};
    COrxString name;
    while (ORX::perfEntryAtIndex(static_cast<int>(entries.size()), name, entry.topLevel,
                                 entry.nested, entry.calls)) {
        entry.name = std::wstring(name);
        entries.push_back(entry);
    }
    return entries;
}

class CPerfTimerTest : public testing::Test {
protected:
    CPerfTimerTest() { ORX::perfReset(); }
    ~CPerfTimerTest() override { ORX::perfReset(); }
};

}  // namespace

TEST_F(CPerfTimerTest, NestedTimersAddToTheNestedTimeOfTheirName) {
    {
        ORX::CPerfTimer outer(L"draw");
        {
            ORX::CPerfTimer walls(L"walls");
            ORX::CPerfTimer recursive(L"draw");
            EXPECT_EQ(ORX::CPerfTimer::m_Level, 3);
        }
        ORX::CPerfTimer roof(L"roof");
        ORX::CPerfTimer copy(roof);  // a timer of its own, one level deeper
        ORX::CPerfTimer renamed(L"unused");
        renamed = copy;
        EXPECT_EQ(ORX::CPerfTimer::m_Level, 4);
    }
    EXPECT_EQ(ORX::CPerfTimer::m_Level, 0);

    // In order of first addition: the innermost timer ends first.
    std::vector<Entry> const entries = table();
    ASSERT_EQ(entries.size(), 3u);
    Entry const& draw = entries[0];
    EXPECT_EQ(draw.name, L"draw");
    EXPECT_EQ(draw.calls, 2);
    EXPECT_GE(draw.nested, ORX::kLeastPerfSeconds);
    EXPECT_GE(draw.topLevel, draw.nested);  // the outer call includes the recursive one
    for (Entry const& inner : {entries[1], entries[2]}) {
        EXPECT_EQ(inner.topLevel, 0.0);
        EXPECT_GE(inner.nested, ORX::kLeastPerfSeconds);
    }
    EXPECT_EQ(entries[1].name, L"walls");
    EXPECT_EQ(entries[1].calls, 1);
    EXPECT_EQ(entries[2].name, L"roof");
    EXPECT_EQ(entries[2].calls, 3);  // roof, its copy, and the timer assigned from the copy
}

TEST_F(CPerfTimerTest, TableAddsUpPerNameAndResets) {
    ORX::addPerfTime(L"b", 1.5, true);
    ORX::addPerfTime(L"a", 0.25, false);
    ORX::addPerfTime(L"b", 0.5, false);
    ORX::addPerfTime(L"b", 2.0, true);
    std::vector<Entry> const entries = table();
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(std::make_tuple(entries[0].name, entries[0].topLevel, entries[0].nested,
                              entries[0].calls, entries[1].name),
              std::make_tuple(std::wstring(L"b"), 3.5, 0.5, 3, std::wstring(L"a")));

    COrxString name(L"untouched");
    double seconds = -1.0;
    int calls = -1;
    EXPECT_FALSE(ORX::perfEntryAtIndex(-1, name, seconds, seconds, calls));
    EXPECT_EQ(std::wstring(name) + std::to_wstring(calls), L"untouched-1");

    ORX::perfReset();
    EXPECT_TRUE(table().empty());
    ORX::addPerfTime(L"a", 1.0, true);
    EXPECT_EQ(table()[0].calls, 1);  // counting starts afresh
}
