// Element blocks of the plain value classes: COrxVertex and COrxPoint3d, whose objects are
// their bytes. Copying such an object's bytes makes an equal object (table pointer included)
// and its destructor does nothing, so a block of them is filled by copying one default
// object into every slot and released without running a destructor per slot. The polyline
// and point arrays keep their blocks this way: a slot holds exactly the bytes array-new
// would give it (zero bytes, then the default constructor), at the cost of one pass of
// stores over the block instead of a constructor and a destructor call per slot.
#ifndef ORX_FOUNDATION_SHARED_PLAIN_BLOCK_H
#define ORX_FOUNDATION_SHARED_PLAIN_BLOCK_H

#include <cstddef>
#include <cstring>
#include <new>

#include "orx/foundation/shared/block_cache.h"

namespace ORX {
namespace internal {

// Puts a default object into each of count slots.
template <class T>
inline void fillDefaults(T* slots, std::size_t count) {
    alignas(T) unsigned char prototype[sizeof(T)] = {};
    ::new (static_cast<void*>(prototype)) T;
    for (std::size_t k = 0; k < count; ++k) {
        std::memcpy(static_cast<void*>(slots + k), prototype, sizeof(T));
    }
}

// Copies count objects byte for byte onto the objects at `to` (the two runs do not overlap).
template <class T>
inline void copyPlain(T* to, T const* from, std::size_t count) {
    if (count > 0) {
        std::memcpy(static_cast<void*>(to), static_cast<void const*>(from), count * sizeof(T));
    }
}

// A block of count slots whose first `used` objects are copies of from's and the rest
// default objects; null when there is no memory.
template <class T>
inline T* newPlainBlock(std::size_t count, T const* from = nullptr, std::size_t used = 0) {
    if (count > static_cast<std::size_t>(-1) / sizeof(T)) {
        return nullptr;
    }
    T* const block = static_cast<T*>(allocateBlock(count * sizeof(T), false));
    if (block != nullptr) {
        copyPlain(block, from, used);
        fillDefaults(block + used, count - used);
    }
    return block;
}

// Releases a block of newPlainBlock; null does nothing.
template <class T>
inline void deletePlainBlock(T* block) {
    releaseBlock(block);
}

// Replaces block by one of `capacity` slots that holds its first `used` objects at the same
// indexes and default objects after them. False, with block untouched, when there is no
// memory.
template <class T>
inline bool growPlainBlock(T*& block, std::size_t used, std::size_t capacity) {
    T* const grown = newPlainBlock(capacity, block, used);
    if (grown == nullptr) {
        return false;
    }
    deletePlainBlock(block);
    block = grown;
    return true;
}

}  // namespace internal
}  // namespace ORX

#endif  // ORX_FOUNDATION_SHARED_PLAIN_BLOCK_H
