#include "orx/foundation/ptr_map.h"

#include <algorithm>
#include <climits>
#include <deque>
#include <vector>

namespace {

struct Data {
    int count;
    void* pointer;
    bool queued;  // waiting in the free list
};

// The records, indexed by reference.
std::vector<Data>& records() {
    static std::vector<Data> table;
    return table;
}

// References whose count dropped to 0, in the order they were freed.
std::deque<int>& freeList() {
    static std::deque<int> list;
    return list;
}

Data* record(int i) {
    std::vector<Data>& table = records();
    if (i < 0 || static_cast<std::size_t>(i) >= table.size()) {
        return nullptr;
    }
    return &table[static_cast<std::size_t>(i)];
}

}  // namespace

namespace ORX {

int CPtrMap::newRef(void* p) {
    std::vector<Data>& table = records();
    std::deque<int>& freed = freeList();
    int index = 0;
    if (!freed.empty()) {
        index = freed.front();
        freed.pop_front();
    } else {
        if (table.size() >= static_cast<std::size_t>(INT_MAX)) {
            return -1;
        }
        index = static_cast<int>(table.size());
        table.push_back(Data{0, nullptr, false});
    }
    table[static_cast<std::size_t>(index)] = Data{1, p, false};
    return index;
}

// A holder that counts a freed reference up again takes it back: it leaves the free list,
// so that newRef cannot hand it out a second time under the holder.
void CPtrMap::incrRef(int i) {
    Data* data = record(i);
    if (data == nullptr) {
        return;
    }
    if (++data->count > 0 && data->queued) {
        std::deque<int>& freed = freeList();
        freed.erase(std::find(freed.begin(), freed.end(), i));
        data->queued = false;
    }
}

int CPtrMap::decrRef(int i) {
    Data* data = record(i);
    if (data == nullptr) {
        return -1;
    }
    if (--data->count == 0 && !data->queued) {
        freeList().push_back(i);
        data->queued = true;
    }
    return data->count;
}

void* CPtrMap::ptrAt(int i) {
    Data const* data = record(i);
    return data != nullptr ? data->pointer : nullptr;
}

int CPtrMap::refCount(int i) {
    Data const* data = record(i);
    return data != nullptr ? data->count : -1;
}

}  // namespace ORX
