#include "orx/foundation/shared/relocatable_block.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>

#include "orx/foundation/array_templ.h"
#include "orx/foundation/array_templ_impl.h"
#include "orx/foundation/obj.h"

namespace orx_test {

// An element whose allocation can be made to fail, and that counts its copies and
// destructions, to watch what the block does with its elements.
struct Scarce : COrxObj {
    static bool outOfMemory;
    static int copies;
    static int destroyed;
    int value = 0;

    Scarce() = default;
    explicit Scarce(int v) : value(v) {}
    Scarce(Scarce const& other) : COrxObj(other), value(other.value) { ++copies; }
    Scarce& operator=(Scarce const& other) = default;
    ~Scarce() override { ++destroyed; }
    bool operator==(Scarce const& other) const { return value == other.value; }

    static void* operator new[](std::size_t size) noexcept {
        return outOfMemory ? nullptr : COrxObj::operator new[](size);
    }
    static void operator delete[](void* block) noexcept { COrxObj::operator delete[](block); }
};
bool Scarce::outOfMemory = false;
int Scarce::copies = 0;
int Scarce::destroyed = 0;

// Turns allocation failure on for one scope.
struct NoMemory {
    NoMemory() { Scarce::outOfMemory = true; }
    ~NoMemory() { Scarce::outOfMemory = false; }
};

}  // namespace orx_test

template class COrxArrayTempl<orx_test::Scarce>;
using ORX::internal::grownCapacity;
using orx_test::NoMemory;
using orx_test::Scarce;

TEST(RelocatableBlockTest, GrowthDoublesFromEightUntilTheLimitIsNear) {
    std::uint64_t const intLimit = INT_MAX;
    std::uint64_t const wordLimit = UINT32_MAX;
    struct Case {
        std::uint64_t capacity, wanted, limit, grown;
    } const cases[] = {
        {0, 1, intLimit, 8},
        {0, 8, intLimit, 8},
        {0, 9, intLimit, 16},
        {8, 9, wordLimit, 16},
        {16, 100, wordLimit, 128},
        {64, 10, intLimit, 64},  // enough room already: no growth, no shrinking
        {0, 0, intLimit, 0},
        // A doubling that would pass the limit takes exactly what is asked.
        {1u << 29, 1u << 30, intLimit, 1u << 30},
        {1u << 30, (1u << 30) + 1, intLimit, (1u << 30) + 1},
        {1u << 30, (1u << 30) + 1, wordLimit, 1u << 31},
        {8, (1u << 31) + 5, wordLimit, (1u << 31) + 5},
        {8, wordLimit, wordLimit, wordLimit},
    };
    for (Case const& c : cases) {
        EXPECT_EQ(grownCapacity(c.capacity, c.wanted, c.limit), c.grown)
            << c.capacity << " for " << c.wanted << " up to " << c.limit;
    }
}

TEST(RelocatableBlockTest, GrowingMovesTheElementsBytewise) {
    Scarce* block = ORX::internal::newBlock<Scarce>(8);
    ASSERT_NE(block, nullptr);
    for (int k = 0; k < 5; ++k) {
        block[k].value = 10 * k + 1;
    }
    Scarce::copies = 0;
    Scarce::destroyed = 0;
    ASSERT_TRUE(ORX::internal::growBlock(block, 5, 16));
    for (int k = 0; k < 5; ++k) {
        EXPECT_EQ(block[k].value, 10 * k + 1);
    }
    for (int k = 5; k < 16; ++k) {
        EXPECT_EQ(block[k].value, 0);  // a default object, as in a fresh block
    }
    EXPECT_EQ(Scarce::copies, 0);
    EXPECT_EQ(Scarce::destroyed, 8);  // the old block with the defaults it received
    delete[] block;
}

TEST(RelocatableBlockTest, AFailedAllocationLeavesTheArrayAsItWas) {
    Scarce* block = nullptr;
    {
        NoMemory noMemory;
        EXPECT_FALSE(ORX::internal::growBlock(block, 0, 8));
    }
    EXPECT_EQ(block, nullptr);

    COrxArrayTempl<Scarce> a;
    for (int k = 0; k < 8; ++k) {
        a.append(Scarce(k));
    }
    Scarce const* const before = a.entry();
    {
        NoMemory noMemory;
        a.append(Scarce(8));
        EXPECT_EQ(a.setLogicalLength(20), 8u);
        EXPECT_EQ(a[12], Scarce());  // the shared dummy: the array cannot reach index 12
    }
    EXPECT_EQ(a.len(), 8u);
    EXPECT_EQ(a.capacity(), 8u);
    EXPECT_EQ(a.entry(), before);
    for (int k = 0; k < 8; ++k) {
        EXPECT_EQ(a[k].value, k);
    }
    a.append(Scarce(8));  // memory is back: the array grows as usual
    EXPECT_EQ(a.capacity(), 16u);
    EXPECT_EQ(a[8].value, 8);
}
