#include "orx/foundation/shared/block_cache.h"

#include <cstddef>
#include <cstdlib>
#include <cstring>

// Under AddressSanitizer a kept block is marked unaddressable, so that a use after free of a
// large array is still reported although the block is not given back to the runtime.
#if defined(__SANITIZE_ADDRESS__)
#define ORX_BLOCK_CACHE_POISONS 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define ORX_BLOCK_CACHE_POISONS 1
#endif
#endif
#ifdef ORX_BLOCK_CACHE_POISONS
#include <sanitizer/asan_interface.h>
#endif

namespace ORX {
namespace internal {

namespace {

void markKept(void* block, std::size_t size) {
#ifdef ORX_BLOCK_CACHE_POISONS
    ASAN_POISON_MEMORY_REGION(block, size);
#else
    (void)block;
    (void)size;
#endif
}

void markInUse(void* block, std::size_t size) {
#ifdef ORX_BLOCK_CACHE_POISONS
    ASAN_UNPOISON_MEMORY_REGION(block, size);
#else
    (void)block;
    (void)size;
#endif
}

// Every block of allocateBlock starts with a header that records the size of the whole
// block (header included), so that releasing it can offer it to the cache. The header keeps
// the alignment malloc gives.
constexpr std::size_t kHeaderBytes = alignof(std::max_align_t);
static_assert(kHeaderBytes >= sizeof(std::size_t), "the header must hold a size");

std::size_t& recordedSize(void* whole) {
    return *static_cast<std::size_t*>(whole);
}

}  // namespace

void* allocateBlock(std::size_t size, bool zeroed) noexcept {
    if (size > static_cast<std::size_t>(-1) - kHeaderBytes) {
        return nullptr;
    }
    std::size_t const wanted = size + kHeaderBytes;
    std::size_t wholeSize = wanted;
    void* whole = wanted >= BlockCache::kSmallestKept
                      ? BlockCache::process().take(wanted, wholeSize)
                      : nullptr;
    bool const reused = whole != nullptr;
    if (!reused) {
        // Fresh memory from calloc comes zeroed by the system, without a pass of its own.
        whole = zeroed ? std::calloc(1, wanted) : std::malloc(wanted);
        wholeSize = wanted;
        if (whole == nullptr) {
            return nullptr;
        }
    }
    recordedSize(whole) = wholeSize;
    void* const block = static_cast<unsigned char*>(whole) + kHeaderBytes;
    if (reused && zeroed) {
        std::memset(block, 0, size);
    }
    return block;
}

void releaseBlock(void* block) noexcept {
    if (block == nullptr) {
        return;
    }
    void* const whole = static_cast<unsigned char*>(block) - kHeaderBytes;
    std::size_t const wholeSize = recordedSize(whole);
    if (wholeSize < BlockCache::kSmallestKept || !BlockCache::process().keep(whole, wholeSize)) {
        std::free(whole);
    }
}

BlockCache::~BlockCache() {
    for (int k = 0; k < m_count; ++k) {
        markInUse(m_kept[k].block, m_kept[k].size);
        std::free(m_kept[k].block);
    }
}

BlockCache& BlockCache::process() {
    static BlockCache* const cache = new BlockCache;
    return *cache;
}

void* BlockCache::take(std::size_t size, std::size_t& blockSize) {
    std::lock_guard<std::mutex> const hold(m_lock);
    int best = -1;
    for (int k = 0; k < m_count; ++k) {
        std::size_t const kept = m_kept[k].size;
        if (kept >= size && kept / 2 <= size && (best < 0 || kept < m_kept[best].size)) {
            best = k;
        }
    }
    if (best < 0) {
        return nullptr;
    }
    Kept const chosen = m_kept[best];
    for (int k = best + 1; k < m_count; ++k) {
        m_kept[k - 1] = m_kept[k];
    }
    --m_count;
    m_bytes -= chosen.size;
    markInUse(chosen.block, chosen.size);
    blockSize = chosen.size;
    return chosen.block;
}

bool BlockCache::keep(void* block, std::size_t blockSize) {
    if (blockSize < kSmallestKept || blockSize > kMostBytes / 2) {
        return false;
    }
    std::lock_guard<std::mutex> const hold(m_lock);
    while (m_count == kMostBlocks || m_bytes + blockSize > kMostBytes) {
        giveUpOldest();
    }
    markKept(block, blockSize);
    m_kept[m_count++] = Kept{block, blockSize};
    m_bytes += blockSize;
    return true;
}

int BlockCache::keptBlocks() const {
    std::lock_guard<std::mutex> const hold(m_lock);
    return m_count;
}

void BlockCache::giveUpOldest() {
    Kept const oldest = m_kept[0];
    for (int k = 1; k < m_count; ++k) {
        m_kept[k - 1] = m_kept[k];
    }
    --m_count;
    m_bytes -= oldest.size;
    markInUse(oldest.block, oldest.size);
    std::free(oldest.block);
}

}  // namespace internal
}  // namespace ORX
