// COrxObj: the root of every value class of the library.
#ifndef ORX_FOUNDATION_OBJ_H
#define ORX_FOUNDATION_OBJ_H

#include <cstddef>

#include "orx/foundation/platform.h"

// Carries no data. Its class-level allocation fills every new block with zero bytes, so an
// object of a derived class (and each element of an array created with array-new) starts as
// all-zero bytes before its constructor runs. A failed allocation returns null.
class ORX_API COrxObj {
public:
    COrxObj() = default;
    COrxObj(COrxObj const&) = default;
    COrxObj& operator=(COrxObj const&) = default;
    virtual ~COrxObj();

    static void* operator new(std::size_t size) noexcept;
    static void* operator new[](std::size_t size) noexcept;
    static void operator delete(void* block) noexcept;
    static void operator delete[](void* block) noexcept;

    // Placement forms, hidden otherwise by the class-level allocation above.
    static void* operator new(std::size_t, void* where) noexcept { return where; }
    static void operator delete(void*, void*) noexcept {}
};

#endif  // ORX_FOUNDATION_OBJ_H
