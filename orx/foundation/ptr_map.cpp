#include "orx/foundation/ptr_map.h"

#include <climits>
#include <deque>
#include <vector>

namespace {

struct Data {
    int count;
    void* pointer;
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
        table.push_back(Data{0, nullptr});
    }
    table[static_cast<std::size_t>(index)] = Data{1, p};
    return index;
}

void CPtrMap::incrRef(int i) {
    if (Data* data = record(i)) {
        ++data->count;
    }
}

int CPtrMap::decrRef(int i) {
    Data* data = record(i);
    if (data == nullptr) {
        return -1;
    }
    if (--data->count == 0) {
        freeList().push_back(i);
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
