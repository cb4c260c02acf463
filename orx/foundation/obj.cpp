#include "orx/foundation/obj.h"

#include <cstdlib>
#include <cstring>

COrxObj::~COrxObj() = default;

void* COrxObj::operator new(std::size_t size) noexcept {
    void* block = std::malloc(size);
    if (block != nullptr) {
        std::memset(block, 0, size);
    }
    return block;
}

void* COrxObj::operator new[](std::size_t size) noexcept {
    return operator new(size);
}

void COrxObj::operator delete(void* block) noexcept {
    std::free(block);
}

void COrxObj::operator delete[](void* block) noexcept {
    operator delete(block);
}
