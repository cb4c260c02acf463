#include "orx/foundation/obj.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

namespace {

struct Probe : COrxObj {
    int values[6] = {1, 2, 3, 4, 5, 6};
};

bool allZero(void const* block, std::size_t size) {
    auto const* bytes = static_cast<unsigned char const*>(block);
    return std::all_of(bytes, bytes + size, [](unsigned char b) { return b == 0; });
}

// Leaves freed blocks full of non-zero bytes, so a zero block is the allocator's doing.
void dirtyTheHeap(std::size_t size) {
    for (int k = 0; k < 32; ++k) {
        void* junk = ::operator new(size);
        std::memset(junk, 0xAB, size);
        ::operator delete(junk);
    }
}

}  // namespace

TEST(COrxObjTest, ClassAllocationZeroFillsTheWholeBlock) {
    dirtyTheHeap(sizeof(Probe));
    void* one = Probe::operator new(sizeof(Probe));
    ASSERT_NE(one, nullptr);
    EXPECT_TRUE(allZero(one, sizeof(Probe)));
    Probe::operator delete(one);

    std::size_t const arrayBytes = 5 * sizeof(Probe) + 16;
    dirtyTheHeap(arrayBytes);
    void* many = Probe::operator new[](arrayBytes);
    ASSERT_NE(many, nullptr);
    EXPECT_TRUE(allZero(many, arrayBytes));
    Probe::operator delete[](many);
}

TEST(COrxObjTest, ArrayNewConstructsEveryElementAndPlacementNewStillWorks) {
    Probe* many = new Probe[3];
    EXPECT_EQ(many[2].values[5], 6);
    delete[] many;

    alignas(Probe) unsigned char buffer[sizeof(Probe)];
    Probe* placed = new (buffer) Probe;
    EXPECT_EQ(static_cast<void*>(placed), static_cast<void*>(buffer));
    EXPECT_EQ(placed->values[0], 1);
    placed->~Probe();
}
