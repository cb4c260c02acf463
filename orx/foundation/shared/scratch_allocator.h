// Working lists of the geometry engine whose memory comes from the block cache.
//
// The box lists, spans and index tables of an operation on a large outline take hundreds of
// kilobytes each and live for one call. From the C runtime such blocks come as fresh pages
// on every call, each faulted in at its first touch; through the block cache the next call
// reuses them. Small lists pass through to malloc as before.
#ifndef ORX_FOUNDATION_SHARED_SCRATCH_ALLOCATOR_H
#define ORX_FOUNDATION_SHARED_SCRATCH_ALLOCATOR_H

#include <cstddef>
#include <new>
#include <vector>

#include "orx/foundation/shared/block_cache.h"

namespace ORX {
namespace internal {

template <class T>
struct ScratchAllocator {
    using value_type = T;

    ScratchAllocator() noexcept = default;
    template <class U>
    ScratchAllocator(ScratchAllocator<U> const&) noexcept {}

    // T may itself be a pointer (lists of segment references): its size is the one wanted.
    static constexpr std::size_t kElementBytes = sizeof(T);  // NOLINT(bugprone-sizeof-expression)

    T* allocate(std::size_t n) {
        if (n > static_cast<std::size_t>(-1) / kElementBytes) {
            throw std::bad_array_new_length();
        }
        void* const block = allocateBlock(n * kElementBytes, false);
        if (block == nullptr) {
            throw std::bad_alloc();
        }
        return static_cast<T*>(block);
    }

    void deallocate(T* block, std::size_t) noexcept { releaseBlock(block); }
};

template <class T, class U>
bool operator==(ScratchAllocator<T> const&, ScratchAllocator<U> const&) noexcept {
    return true;
}

template <class T, class U>
bool operator!=(ScratchAllocator<T> const&, ScratchAllocator<U> const&) noexcept {
    return false;
}

template <class T>
using ScratchVector = std::vector<T, ScratchAllocator<T>>;

}  // namespace internal
}  // namespace ORX

#endif  // ORX_FOUNDATION_SHARED_SCRATCH_ALLOCATOR_H
