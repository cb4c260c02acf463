// A handful of large freed blocks, kept for the next allocations of about their size.
//
// The arrays of a large outline take blocks of megabytes, and a boolean operation makes and
// frees several of them (its operand copies, its pieces). The C runtime hands such blocks
// back to the system on free and maps fresh pages for the next, whose first touch costs a
// fault each: on an outline of 10,000 segments a third of a union's time went to those
// faults. Blocks kept here stay mapped, so repeated operations on large outlines reuse them.
// What is kept is bounded (kMostBlocks blocks, kMostBytes bytes, oldest given up first), and
// blocks under kSmallestKept are never kept: the runtime's own heap serves those well.
#ifndef ORX_FOUNDATION_SHARED_BLOCK_CACHE_H
#define ORX_FOUNDATION_SHARED_BLOCK_CACHE_H

#include <cstddef>
#include <mutex>

namespace ORX {
namespace internal {

class BlockCache {
public:
    static constexpr std::size_t kSmallestKept = std::size_t{32} << 10;
    static constexpr std::size_t kMostBytes = std::size_t{64} << 20;
    static constexpr int kMostBlocks = 32;

    BlockCache() = default;
    BlockCache(BlockCache const&) = delete;
    BlockCache& operator=(BlockCache const&) = delete;
    ~BlockCache();  // frees what is kept

    // The cache of the process. Never destroyed, so that blocks freed by static destructors
    // of any order still find it.
    static BlockCache& process();

    // A kept block of at least `size` bytes and at most twice that, the smallest such, with
    // its size in `blockSize`; null when none is kept. The block's bytes are as they were.
    void* take(std::size_t size, std::size_t& blockSize);

    // Keeps a block of blockSize bytes from malloc; false when it is too small or too large
    // to keep, and the caller frees it. Keeping it may free the oldest kept blocks.
    bool keep(void* block, std::size_t blockSize);

    int keptBlocks() const;

private:
    struct Kept {
        void* block;
        std::size_t size;
    };

    void giveUpOldest();  // the lock is held

    mutable std::mutex m_lock;
    Kept m_kept[kMostBlocks] = {};  // oldest first
    int m_count = 0;
    std::size_t m_bytes = 0;
};

// A block of at least `size` bytes, from the process's cache when it keeps one that fits, else
// from the C runtime; its first `size` bytes are zero when `zeroed` asks for it, undefined
// otherwise. Null when there is no memory. The block carries a header before the returned
// address that records its size for releaseBlock.
void* allocateBlock(std::size_t size, bool zeroed) noexcept;

// Gives a block of allocateBlock back: to the cache when it keeps it, else to free. Null does
// nothing.
void releaseBlock(void* block) noexcept;

}  // namespace internal
}  // namespace ORX

#endif  // ORX_FOUNDATION_SHARED_BLOCK_CACHE_H
