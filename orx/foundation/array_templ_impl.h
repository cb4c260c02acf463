// Member definitions of COrxArrayTempl<T>. Included by the files that instantiate the template
// explicitly (the library exports those instantiations, so their dummies live once, in the
// library) and by code that wants the members inlined.
#ifndef ORX_FOUNDATION_ARRAY_TEMPL_IMPL_H
#define ORX_FOUNDATION_ARRAY_TEMPL_IMPL_H

#include <functional>
#include <type_traits>
#include <utility>

#include "orx/foundation/array_templ.h"
#include "orx/foundation/shared/relocatable_block.h"

namespace ORX {
namespace internal {

template <class T, class = void>
struct HasOrder : std::false_type {};
template <class T>
struct HasOrder<T, std::void_t<decltype(std::declval<T const&>() > std::declval<T const&>()),
                               decltype(std::declval<T const&>() < std::declval<T const&>())>>
    : std::true_type {};

// T's own '>' and '<'. Note that for COrxVector3d these resolve to a comparison of the two
// storage positions (through the vector's conversion to a pointer to double): sort() of a
// vector array therefore never exchanges anything, which callers rely on. Types with no
// order at all are compared the same way, by position.
template <class T>
inline bool elementGreater(T const& a, T const& b) {
    if constexpr (HasOrder<T>::value) {
        return a > b;
    } else {
        return &a > &b;
    }
}

template <class T>
inline bool elementLess(T const& a, T const& b) {
    if constexpr (HasOrder<T>::value) {
        return a < b;
    } else {
        return &a < &b;
    }
}

}  // namespace internal
}  // namespace ORX

template <class T>
COrxArrayTempl<T>::COrxArrayTempl() : m_capacity(0), m_length(0), m_data(nullptr) {}

template <class T>
COrxArrayTempl<T>::COrxArrayTempl(COrxArrayTempl const& other)
    : COrxObj(other), m_capacity(0), m_length(0), m_data(nullptr) {
    *this = other;
}

template <class T>
COrxArrayTempl<T>::~COrxArrayTempl() {
    removeAll();
}

template <class T>
COrxArrayTempl<T>& COrxArrayTempl<T>::operator=(COrxArrayTempl const& other) {
    if (this == &other || !allocate(other.m_length)) {
        return *this;
    }
    for (std::uint32_t k = 0; k < other.m_length; ++k) {
        m_data[k] = other.m_data[k];
    }
    m_length = other.m_length;
    return *this;
}

template <class T>
unsigned long COrxArrayTempl<T>::len() const {
    return m_length;
}

template <class T>
bool COrxArrayTempl<T>::isEmpty() const {
    return m_length == 0;
}

template <class T>
unsigned long COrxArrayTempl<T>::capacity() const {
    return m_capacity;
}

template <class T>
T* COrxArrayTempl<T>::entry() {
    return m_data;
}

template <class T>
T const* COrxArrayTempl<T>::entry() const {
    return m_data;
}

template <class T>
long long COrxArrayTempl<T>::foldIndex(int i, std::uint32_t length) {
    if (i >= 0) {
        return i;
    }
    if (length == 0) {
        return -1;
    }
    if (length == 1) {
        return 0;
    }
    return (length + static_cast<std::uint32_t>(i)) % length;
}

template <class T>
T& COrxArrayTempl<T>::operator[](int i) {
    long long index = foldIndex(i, m_length);
    if (index < 0) {
        return mutableDummy();
    }
    if (index >= m_length) {
        unsigned long const wanted = static_cast<unsigned long>(index) + 1;
        if (setLogicalLength(wanted) != wanted) {
            return mutableDummy();  // the block could not grow
        }
    }
    return m_data[index];
}

template <class T>
T const& COrxArrayTempl<T>::operator[](int i) const {
    long long index = foldIndex(i, m_length);
    if (index < 0 || index >= m_length) {
        return constDummy();
    }
    return m_data[index];
}

template <class T>
COrxArrayTempl<T>& COrxArrayTempl<T>::removeAll() {
    delete[] m_data;
    m_data = nullptr;
    m_capacity = 0;
    m_length = 0;
    return *this;
}

template <class T>
bool COrxArrayTempl<T>::allocate(unsigned long n) {
    if (n <= m_capacity) {
        return true;
    }
    if (n > UINT32_MAX) {
        return false;
    }
    std::uint64_t const capacity = ORX::internal::grownCapacity(m_capacity, n, UINT32_MAX);
    if (!ORX::internal::growBlock(m_data, m_length, static_cast<std::size_t>(capacity))) {
        return false;
    }
    m_capacity = static_cast<std::uint32_t>(capacity);
    return true;
}

template <class T>
void COrxArrayTempl<T>::resetSlots(std::uint32_t from, std::uint32_t to) {
    // Slots past the length may still hold removed elements; new class slots must read as
    // default objects.
    if constexpr (std::is_class<T>::value) {
        for (std::uint32_t k = from; k < to; ++k) {
            m_data[k] = T();
        }
    } else {
        (void)from;
        (void)to;
    }
}

template <class T>
bool COrxArrayTempl<T>::holds(T const& x) const {
    std::less_equal<T const*> notAfter;
    return m_data != nullptr && notAfter(m_data, &x) && !notAfter(m_data + m_capacity, &x);
}

template <class T>
void COrxArrayTempl<T>::storeAt(std::uint32_t i, T const& x) {
    m_data[i] = x;
}

template <class T>
unsigned long COrxArrayTempl<T>::setLogicalLength(unsigned long n) {
    if (!allocate(n)) {
        return m_length;
    }
    if (n > m_length) {
        resetSlots(m_length, static_cast<std::uint32_t>(n));
    }
    m_length = static_cast<std::uint32_t>(n);
    return n;
}

template <class T>
T& COrxArrayTempl<T>::mutableDummy() {
    static T dummy{};
    return dummy;
}

template <class T>
T const& COrxArrayTempl<T>::constDummy() {
    static T const dummy{};
    return dummy;
}

template <class T>
COrxArrayTempl<T>& COrxArrayTempl<T>::append(T const& x) {
    if (m_length == m_capacity && holds(x)) {
        // x lives in the block that is about to move: keep a copy across the growth.
        T copy(x);
        if (allocate(m_length + 1ul)) {
            storeAt(m_length++, copy);
        }
    } else if (allocate(m_length + 1ul)) {
        storeAt(m_length++, x);
    }
    return *this;
}

template <class T>
COrxArrayTempl<T> COrxArrayTempl<T>::append(T const& x) const {
    COrxArrayTempl copy(*this);
    copy.append(x);
    return copy;
}

template <class T>
COrxArrayTempl<T>& COrxArrayTempl<T>::appendUniq(T const& x) {
    if (!contains(x)) {
        append(x);
    }
    return *this;
}

template <class T>
COrxArrayTempl<T>& COrxArrayTempl<T>::consUniq(T const& x) {
    if (!contains(x)) {
        insertAt(0, x);
    }
    return *this;
}

template <class T>
COrxArrayTempl<T>& COrxArrayTempl<T>::insertAt(unsigned long i, T const& x) {
    if (i >= UINT32_MAX) {
        return *this;
    }
    if (holds(x)) {
        // Shifting (or growing) would move x under the reference.
        T copy(x);
        return insertAt(i, copy);
    }
    std::uint32_t const at = static_cast<std::uint32_t>(i);
    std::uint32_t const newLength = (at > m_length ? at : m_length) + 1;
    if (!allocate(newLength)) {
        return *this;
    }
    if (at >= m_length) {
        resetSlots(m_length, at);
    } else {
        // The spare object at the old end travels down to the insertion slot.
        for (std::uint32_t k = m_length; k > at; --k) {
            ORX::internal::swapBytes(m_data[k], m_data[k - 1]);
        }
    }
    storeAt(at, x);
    m_length = newLength;
    return *this;
}

template <class T>
COrxArrayTempl<T>& COrxArrayTempl<T>::removeAt(unsigned long i) {
    if (i >= m_length) {
        return *this;
    }
    // The removed object ends just past the new length, alive until overwritten.
    for (std::uint32_t k = static_cast<std::uint32_t>(i); k + 1 < m_length; ++k) {
        ORX::internal::swapBytes(m_data[k], m_data[k + 1]);
    }
    --m_length;
    return *this;
}

template <class T>
COrxArrayTempl<T> COrxArrayTempl<T>::removeAt(unsigned long i) const {
    COrxArrayTempl copy(*this);
    copy.removeAt(i);
    return copy;
}

template <class T>
COrxArrayTempl<T>& COrxArrayTempl<T>::remove(T const& x) {
    int const index = indexOf(x);
    if (index >= 0) {
        removeAt(static_cast<unsigned long>(index));
    }
    return *this;
}

template <class T>
bool COrxArrayTempl<T>::contains(T const& x) const {
    return indexOf(x) >= 0;
}

template <class T>
int COrxArrayTempl<T>::indexOf(T const& x) const {
    for (std::uint32_t k = 0; k < m_length; ++k) {
        if (m_data[k] == x) {
            return static_cast<int>(k);
        }
    }
    return -1;
}

template <class T>
bool COrxArrayTempl<T>::indexOf(T const& x, unsigned long& i) const {
    int const index = indexOf(x);
    if (index < 0) {
        return false;
    }
    i = static_cast<unsigned long>(index);
    return true;
}

template <class T>
COrxArrayTempl<T> COrxArrayTempl<T>::mid(unsigned long start, unsigned long count) const {
    COrxArrayTempl out;
    if (start >= m_length || count == 0) {
        return out;
    }
    unsigned long const available = m_length - start;
    out.allocate(count < available ? count : available);
    for (unsigned long k = start; k < m_length && out.m_length < count; ++k) {
        out.append(m_data[k]);
    }
    return out;
}

template <class T>
COrxArrayTempl<T> COrxArrayTempl<T>::left(unsigned long n) const {
    return mid(0, n);
}

template <class T>
COrxArrayTempl<T> COrxArrayTempl<T>::right(unsigned long n) const {
    std::uint32_t const start = m_length - static_cast<std::uint32_t>(n);
    return mid(start, UINT32_MAX);
}

template <class T>
COrxArrayTempl<T> COrxArrayTempl<T>::reverse() const {
    COrxArrayTempl copy(*this);
    copy.revert();
    return copy;
}

template <class T>
COrxArrayTempl<T>& COrxArrayTempl<T>::revert() {
    for (std::uint32_t k = 0; k < m_length / 2; ++k) {
        ORX::internal::swapBytes(m_data[k], m_data[m_length - 1 - k]);
    }
    return *this;
}

template <class T>
void COrxArrayTempl<T>::swap(unsigned long i, unsigned long j) {
    ORX::internal::swapBytes(m_data[i], m_data[j]);
}

template <class T>
template <class Greater>
void COrxArrayTempl<T>::bubbleSort(Greater greater) {
    for (std::uint32_t pass = 0; pass + 1 < m_length; ++pass) {
        bool exchanged = false;
        for (std::uint32_t j = 1; j < m_length - pass; ++j) {
            if (greater(m_data[j - 1], m_data[j])) {
                ORX::internal::swapBytes(m_data[j - 1], m_data[j]);
                exchanged = true;
            }
        }
        if (!exchanged) {
            break;
        }
    }
}

template <class T>
COrxArrayTempl<T>& COrxArrayTempl<T>::sort() {
    bubbleSort([](T const& a, T const& b) { return ORX::internal::elementGreater(a, b); });
    return *this;
}

template <class T>
COrxArrayTempl<T>& COrxArrayTempl<T>::sort(int (*compare)(void const*, void const*)) {
    bubbleSort([compare](T const& a, T const& b) { return compare(&a, &b) > 0; });
    return *this;
}

template <class T>
bool COrxArrayTempl<T>::operator==(COrxArrayTempl const& other) const {
    if (this == &other) {
        return true;
    }
    if (m_length != other.m_length) {
        return false;
    }
    for (std::uint32_t k = 0; k < m_length; ++k) {
        if (!(m_data[k] == other.m_data[k])) {
            return false;
        }
    }
    return true;
}

template <class T>
bool COrxArrayTempl<T>::operator!=(COrxArrayTempl const& other) const {
    return !(*this == other);
}

template <class T>
bool COrxArrayTempl<T>::operator<(COrxArrayTempl const& other) const {
    if (this == &other) {
        return false;
    }
    std::uint32_t const common = m_length < other.m_length ? m_length : other.m_length;
    for (std::uint32_t k = 0; k < common; ++k) {
        if (!(m_data[k] == other.m_data[k])) {
            return ORX::internal::elementLess(m_data[k], other.m_data[k]);
        }
    }
    return m_length < other.m_length;
}

template <class T>
COrxArrayTempl<T> COrxArrayTempl<T>::operator+(COrxArrayTempl const& other) const {
    COrxArrayTempl copy(*this);
    copy += other;
    return copy;
}

template <class T>
COrxArrayTempl<T>& COrxArrayTempl<T>::operator+=(COrxArrayTempl const& other) {
    // Reserving first keeps other's elements in place when other is this array.
    std::uint32_t const count = other.m_length;
    if (!allocate(static_cast<unsigned long>(m_length) + count)) {
        return *this;
    }
    for (std::uint32_t k = 0; k < count; ++k) {
        storeAt(m_length++, other.m_data[k]);
    }
    return *this;
}

template <class T>
COrxArrayTempl<T> COrxArrayTempl<T>::operator&(COrxArrayTempl const& other) const {
    COrxArrayTempl copy(*this);
    copy &= other;
    return copy;
}

template <class T>
COrxArrayTempl<T>& COrxArrayTempl<T>::operator&=(COrxArrayTempl const& other) {
    if (this == &other) {
        return *this;
    }
    COrxArrayTempl common;
    for (std::uint32_t k = 0; k < m_length; ++k) {
        if (other.contains(m_data[k])) {
            common.append(m_data[k]);
        }
    }
    // Adds something only where equality is not transitive (tolerant points).
    for (std::uint32_t k = 0; k < other.m_length; ++k) {
        if (contains(other.m_data[k]) && !common.contains(other.m_data[k])) {
            common.append(other.m_data[k]);
        }
    }
    return *this = common;
}

template <class T>
COrxArrayTempl<T> COrxArrayTempl<T>::operator|(COrxArrayTempl const& other) const {
    COrxArrayTempl copy(*this);
    copy |= other;
    return copy;
}

template <class T>
COrxArrayTempl<T>& COrxArrayTempl<T>::operator|=(COrxArrayTempl const& other) {
    if (this == &other) {
        return *this;
    }
    for (std::uint32_t k = 0; k < other.m_length; ++k) {
        if (!contains(other.m_data[k])) {
            append(other.m_data[k]);
        }
    }
    return *this;
}

#endif  // ORX_FOUNDATION_ARRAY_TEMPL_IMPL_H
