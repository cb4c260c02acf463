#include "orx/services/perf_timer.h"

#include <vector>

#include "orx/foundation/map.h"
#include "orx/foundation/map_impl.h"

namespace ORX {
namespace {

struct PerfEntry {
    COrxString name;
    int calls;
    double topLevelSeconds;
    double nestedSeconds;
};

// The entries in order of first use, and the index of each name's entry.
struct PerfTable {
    std::vector<PerfEntry> entries;
    COrxMapTempl<COrxString, int> indexOfName;
};

PerfTable& perfTable() {
    static PerfTable table;
    return table;
}

}  // namespace

int CPerfTimer::m_Level = 0;

CPerfTimer::CPerfTimer(wchar_t const* name) : m_name(name), m_timer(true) {
    ++m_Level;
}

CPerfTimer::CPerfTimer(CPerfTimer const& other) : m_name(other.m_name), m_timer(other.m_timer) {
    ++m_Level;
}

CPerfTimer& CPerfTimer::operator=(CPerfTimer const& other) = default;

CPerfTimer::~CPerfTimer() {
    --m_Level;
    double seconds = m_timer.stop();
    if (seconds < kLeastPerfSeconds) {
        seconds = kLeastPerfSeconds;
    }
    addPerfTime(m_name, seconds, m_Level == 0);
}

void addPerfTime(wchar_t const* name, double seconds, bool topLevel) {
    PerfTable& table = perfTable();
    COrxString const key(name);
    int index = 0;
    if (!table.indexOfName.getAt(key, index)) {
        index = static_cast<int>(table.entries.size());
        table.entries.push_back(PerfEntry{key, 0, 0.0, 0.0});
        table.indexOfName.setAt(key, index);
    }
    PerfEntry& entry = table.entries[static_cast<std::size_t>(index)];
    (topLevel ? entry.topLevelSeconds : entry.nestedSeconds) += seconds;
    ++entry.calls;
}

bool perfEntryAtIndex(int i, COrxString& name, double& topLevelSeconds, double& nestedSeconds,
                      int& calls) {
    PerfTable const& table = perfTable();
    if (i < 0 || static_cast<std::size_t>(i) >= table.entries.size()) {
        return false;
    }
    PerfEntry const& entry = table.entries[static_cast<std::size_t>(i)];
    name = entry.name;
    topLevelSeconds = entry.topLevelSeconds;
    nestedSeconds = entry.nestedSeconds;
    calls = entry.calls;
    return true;
}

void perfReset() {
    PerfTable& table = perfTable();
    table.entries.clear();
    table.indexOfName.removeAll();
}

}  // namespace ORX
