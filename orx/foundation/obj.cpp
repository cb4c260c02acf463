#include "orx/foundation/obj.h"

#include "orx/foundation/shared/block_cache.h"

COrxObj::~COrxObj() = default;

void* COrxObj::operator new(std::size_t size) noexcept {
    return ORX::internal::allocateBlock(size, true);
}

void* COrxObj::operator new[](std::size_t size) noexcept {
    return operator new(size);
}

void COrxObj::operator delete(void* block) noexcept {
    ORX::internal::releaseBlock(block);
}

void COrxObj::operator delete[](void* block) noexcept {
    ORX::internal::releaseBlock(block);
}
