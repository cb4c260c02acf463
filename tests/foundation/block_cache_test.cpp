#include "orx/foundation/shared/block_cache.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <vector>

#include "orx/foundation/shared/plain_block.h"
#include "orx/geom/point.h"
#include "orx/polyline/vertex.h"

namespace {

using ORX::internal::BlockCache;

constexpr std::size_t kLarge = BlockCache::kSmallestKept;

void* largeBlock(std::size_t size) {
    return std::malloc(size);
}

}  // namespace

TEST(BlockCacheTest, KeepsLargeBlocksAndHandsOutTheSmallestThatFits) {
    BlockCache cache;
    void* small = std::malloc(kLarge - 1);
    EXPECT_FALSE(cache.keep(small, kLarge - 1));
    std::free(small);

    void* const big = largeBlock(4 * kLarge);
    void* const medium = largeBlock(2 * kLarge);
    ASSERT_TRUE(cache.keep(big, 4 * kLarge));
    ASSERT_TRUE(cache.keep(medium, 2 * kLarge));

    std::size_t size = 0;
    EXPECT_EQ(cache.take(kLarge / 2, size), nullptr);  // both more than twice too large
    EXPECT_EQ(cache.take(8 * kLarge, size), nullptr);  // none large enough
    EXPECT_EQ(cache.take(kLarge + 1, size), medium);   // the smaller of those that fit
    EXPECT_EQ(size, 2 * kLarge);
    EXPECT_EQ(cache.take(kLarge + 1, size), nullptr);  // the big one is more than twice
    EXPECT_EQ(cache.take(3 * kLarge, size), big);
    EXPECT_EQ(cache.keptBlocks(), 0);
    std::free(medium);
    std::free(big);
}

TEST(BlockCacheTest, GivesUpTheOldestBlocksBeyondItsBounds) {
    BlockCache cache;
    std::vector<void*> blocks;
    for (int k = 0; k < BlockCache::kMostBlocks + 3; ++k) {
        blocks.push_back(largeBlock(kLarge + static_cast<std::size_t>(k)));
        ASSERT_TRUE(cache.keep(blocks.back(), kLarge + static_cast<std::size_t>(k)));
    }
    EXPECT_EQ(cache.keptBlocks(), BlockCache::kMostBlocks);
    std::size_t size = 0;
    void* const oldestKept = cache.take(kLarge, size);
    EXPECT_EQ(oldestKept, blocks[3]);  // 0, 1 and 2 were freed
    std::free(oldestKept);

    // A block of half the byte bound leaves room for one more of its size only.
    BlockCache bytes;
    std::size_t const half = BlockCache::kMostBytes / 2;
    EXPECT_FALSE(bytes.keep(nullptr, half + 1));
    for (int k = 0; k < 3; ++k) {
        ASSERT_TRUE(bytes.keep(largeBlock(half), half));
    }
    EXPECT_EQ(bytes.keptBlocks(), 2);
}

TEST(BlockCacheTest, ReusedBlocksComeBackZeroedWhenAsked) {
    std::size_t const size = 3 * kLarge;
    for (int round = 0; round < 3; ++round) {
        auto* block = static_cast<unsigned char*>(ORX::internal::allocateBlock(size, true));
        ASSERT_NE(block, nullptr);
        for (std::size_t k = 0; k < size; ++k) {
            ASSERT_EQ(block[k], 0) << "round " << round << " byte " << k;
        }
        std::memset(block, 0xAB, size);
        ORX::internal::releaseBlock(block);
    }
}

// A plain block holds exactly the bytes array-new gives its slots, and growing it keeps the
// objects it holds.
TEST(PlainBlockTest, SlotsAreTheBytesOfArrayNewAndGrowingKeepsTheObjects) {
    COrxVertex* const reference = new COrxVertex[4];
    COrxVertex* block = ORX::internal::newPlainBlock<COrxVertex>(4);
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(std::memcmp(static_cast<void*>(block), static_cast<void*>(reference),
                          4 * sizeof(COrxVertex)),
              0);
    delete[] reference;

    block[1].set(COrxPoint3d(1, 2, 3), COrxPoint3d(4, 5, 6), 0.5).setTag(7);
    ASSERT_TRUE(ORX::internal::growPlainBlock(block, 2, 64));
    EXPECT_EQ(block[1].startPoint(), COrxPoint3d(1, 2, 3));
    EXPECT_EQ(block[1].bulge(), 0.5);
    EXPECT_EQ(block[1].tag(), 7);
    EXPECT_EQ(block[63].endPoint(), COrxPoint3d());
    EXPECT_EQ(block[63].bulge(), 0.0);
    ORX::internal::deletePlainBlock(block);
}
