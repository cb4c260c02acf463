// COrxVertexArray: storage, copying, comparison and element access.
#include "orx/polyline/vertex_array.h"

#include <climits>
#include <cstddef>
#include <cstdint>

#include "orx/foundation/shared/plain_block.h"
#include "orx/foundation/shared/relocatable_block.h"

COrxVertexArray::COrxVertexArray() : m_normal(COrxVector3d::kZAxis), m_vertices(nullptr) {}

COrxVertexArray::COrxVertexArray(COrxVertex const& v) : COrxVertexArray() {
    append(v);
}

COrxVertexArray::COrxVertexArray(COrxVertexArray const& other) : COrxVertexArray() {
    *this = other;
}

COrxVertexArray& COrxVertexArray::operator=(COrxVertexArray const& other) {
    if (this == &other) {
        return *this;
    }
    m_normal = other.m_normal;
    if (setLogicalLength(other.len()) != other.len()) {
        return *this;  // no memory for the copy
    }
    ORX::internal::copyPlain(m_vertices, other.m_vertices, static_cast<std::size_t>(other.len()));
    return *this;
}

COrxVertexArray::~COrxVertexArray() {
    ORX::internal::deletePlainBlock(m_vertices);
}

bool COrxVertexArray::operator==(COrxVertexArray const& other) const {
    if (this == &other) {
        return true;
    }
    if (len() != other.len()) {
        return false;
    }
    for (int k = 0; k < len(); ++k) {
        if (m_vertices[k] != other.m_vertices[k]) {
            return false;
        }
    }
    return true;
}

COrxVertexArray COrxVertexArray::operator+(COrxVertexArray const& other) const {
    COrxVertexArray sum(*this);
    return sum += other;
}

COrxVertexArray& COrxVertexArray::operator+=(COrxVertexArray const& other) {
    // Reserving first keeps other's segments in place when other is this polyline.
    int const count = other.len();
    int const start = len();
    if (setLogicalLength(start + count) != start + count) {
        return *this;
    }
    ORX::internal::copyPlain(m_vertices + start, other.m_vertices, static_cast<std::size_t>(count));
    return *this;
}

int COrxVertexArray::setLength(int n) {
    int const used = len();
    bool const grows = n > capacity();
    if (grows &&
        !ORX::internal::growPlainBlock(m_vertices, static_cast<std::size_t>(used),
                                       static_cast<std::size_t>(nextCapacity(capacity(), n)))) {
        return used;  // out of memory: nothing changed
    }
    COrxArray::setLength(n);
    if (!grows && len() > used) {
        resetSlots(used, len());  // a new block holds fresh segments already
    }
    return len();
}

int COrxVertexArray::setLogicalLength(int n) {
    if (n > capacity()) {
        int const used = len();
        return setLength(n) == n ? n : used;  // setLength sets the logical length too
    }
    int const used = len();
    COrxArray::setLogicalLength(n);
    if (len() > used) {
        resetSlots(used, len());
    }
    return len();
}

void COrxVertexArray::resetSlots(int from, int to) {
    // Slots past the length may still hold removed segments.
    ORX::internal::fillDefaults(m_vertices + from, static_cast<std::size_t>(to - from));
}

void COrxVertexArray::shiftUp(int from) {
    for (int k = len() - 1; k > from; --k) {
        ORX::internal::swapBytes(m_vertices[k], m_vertices[k - 1]);
    }
}

void COrxVertexArray::shiftDown(int from) {
    for (int k = from; k + 1 < len(); ++k) {
        ORX::internal::swapBytes(m_vertices[k], m_vertices[k + 1]);
    }
}

bool COrxVertexArray::isMember(COrxVertex const& v) const {
    auto const address = reinterpret_cast<std::uintptr_t>(&v);
    auto const block = reinterpret_cast<std::uintptr_t>(m_vertices);
    if (m_vertices == nullptr || address < block) {
        return false;
    }
    // The upper bound is inclusive, deliberately: the slot just past the end counts too.
    return (address - block) / sizeof(COrxVertex) <= static_cast<std::uintptr_t>(len());
}

int COrxVertexArray::foldIndex(int i) const {
    int const n = len();
    if (i >= 0 || n == 0) {
        return i;
    }
    if (n == 1) {
        return 0;
    }
    // A true modulo, so that indexes below -length also land in range.
    int const remainder = i % n;
    return remainder < 0 ? remainder + n : remainder;
}

COrxVertex& COrxVertexArray::operator[](int i) {
    int const index = foldIndex(i);
    if (index < 0 || index == INT_MAX) {
        return sharedDefault();
    }
    if (index >= len() && setLogicalLength(index + 1) != index + 1) {
        return sharedDefault();  // no memory to grow
    }
    return m_vertices[index];
}

COrxVertex const& COrxVertexArray::operator[](int i) const {
    int const index = foldIndex(i);
    if (index < 0 || index >= len()) {
        return sharedConstDefault();
    }
    return m_vertices[index];
}

COrxVertex& COrxVertexArray::sharedDefault() {
    static COrxVertex standIn;
    return standIn;
}

COrxVertex const& COrxVertexArray::sharedConstDefault() {
    static COrxVertex const standIn;
    return standIn;
}
