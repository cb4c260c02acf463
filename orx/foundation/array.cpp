#include "orx/foundation/array.h"

#include <climits>
#include <cstdint>

#include "orx/foundation/shared/relocatable_block.h"

COrxArray::COrxArray() : m_capacity(0), m_length(0) {}

COrxArray::COrxArray(COrxArray const& other)
    : COrxObj(other), m_capacity(other.m_capacity), m_length(other.m_length) {}

COrxArray& COrxArray::operator=(COrxArray const& other) {
    m_capacity = other.m_capacity;
    m_length = other.m_length;
    return *this;
}

COrxArray::~COrxArray() = default;

void COrxArray::clear() {
    m_length = 0;
}

int COrxArray::setLogicalLength(int n) {
    if (n > m_capacity) {
        setLength(n);
    }
    m_length = n < 0 ? 0 : n;
    return m_length;
}

int COrxArray::setLength(int n) {
    m_length = n < 0 ? 0 : n;
    if (m_length <= m_capacity) {
        return 0;
    }
    m_capacity = nextCapacity(m_capacity, m_length);
    return m_capacity;
}

int COrxArray::nextCapacity(int capacity, int n) {
    if (n <= capacity) {
        return capacity;
    }
    return static_cast<int>(ORX::internal::grownCapacity(static_cast<std::uint64_t>(capacity),
                                                         static_cast<std::uint64_t>(n), INT_MAX));
}
