// The element storage of the library's arrays (COrxArrayTempl, COrxPoint3dArray,
// COrxVertexArray): one block of constructed elements that grows by one policy and moves its
// elements as raw bytes. Each array keeps its own pointer and counts (their layout is part of
// the interface) and grows its block, and moves elements within it, with these functions.
//
// Every value class of the library is bitwise relocatable: moving an element copies its
// bytes, table pointer included, and runs no copy constructor, which callers rely on.
#ifndef ORX_FOUNDATION_SHARED_RELOCATABLE_BLOCK_H
#define ORX_FOUNDATION_SHARED_RELOCATABLE_BLOCK_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>
#include <type_traits>

namespace ORX {
namespace internal {

// The capacity of an array's first block.
constexpr std::uint64_t kFirstBlockCapacity = 8;

// The capacity a block of `capacity` slots grows to so that `wanted` elements fit: doubled
// (from kFirstBlockCapacity when empty) until they do. Where one more doubling would pass
// limit, the largest count the array can index, exactly `wanted` is taken instead.
// Callers see the result through capacity(); wanted must not exceed limit.
inline std::uint64_t grownCapacity(std::uint64_t capacity, std::uint64_t wanted,
                                   std::uint64_t limit) {
    while (capacity < wanted) {
        if (capacity > limit / 2) {
            return wanted;
        }
        capacity = capacity * 2 > kFirstBlockCapacity ? capacity * 2 : kFirstBlockCapacity;
    }
    return capacity;
}

// Exchanges two elements byte for byte.
template <class T>
inline void swapBytes(T& a, T& b) {
    alignas(T) unsigned char scratch[sizeof(T)];
    std::memcpy(scratch, static_cast<void*>(&a), sizeof(T));
    std::memcpy(static_cast<void*>(&a), static_cast<void*>(&b), sizeof(T));
    std::memcpy(static_cast<void*>(&b), scratch, sizeof(T));
}

// A block of count slots, or null when there is no memory. Class elements come from
// array-new, so every slot holds a default object (the library's classes also zero the bytes
// first and report failure with null); scalar slots stay uninitialised.
template <class T>
inline T* newBlock(std::size_t count) {
    if constexpr (std::is_class<T>::value) {
        return new T[count];
    } else {
        return new (std::nothrow) T[count];
    }
}

// Replaces block by a new one of `capacity` slots that holds the first `used` elements at
// the same indexes; the slots from `used` on hold default objects (class T). The moved
// elements trade places with the new block's default objects, so that the old block is
// destroyed normally. False, with block and its elements untouched, when the allocation
// fails.
template <class T>
inline bool growBlock(T*& block, std::size_t used, std::size_t capacity) {
    T* const grown = newBlock<T>(capacity);
    if (grown == nullptr) {
        return false;
    }
    for (std::size_t k = 0; k < used; ++k) {
        swapBytes(grown[k], block[k]);
    }
    delete[] block;
    block = grown;
    return true;
}

}  // namespace internal
}  // namespace ORX

#endif  // ORX_FOUNDATION_SHARED_RELOCATABLE_BLOCK_H
