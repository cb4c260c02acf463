// Member definitions of COrxMapTempl<K, V>. Included by the file that instantiates the
// exported maps and by code that instantiates a map of its own.
#ifndef ORX_FOUNDATION_MAP_IMPL_H
#define ORX_FOUNDATION_MAP_IMPL_H

#include <cstring>
#include <new>

#include "orx/foundation/array_templ_impl.h"
#include "orx/foundation/map.h"

namespace ORX {
namespace internal {

template <class K>
inline bool mapKeyEqual(K const& a, K const& b) {
    return a == b;
}

template <class K>
inline bool mapKeyGreater(K const& a, K const& b) {
    return a > b;
}

// COrxString's order treats the null string as empty while its equality does not; the
// search needs one consistent order, so the null string sorts just before the empty one.
inline bool mapKeyGreater(COrxString const& a, COrxString const& b) {
    if (a > b) {
        return true;
    }
    if (b > a) {
        return false;
    }
    return b.isNull() && !a.isNull();
}

}  // namespace internal
}  // namespace ORX

template <class K, class V>
COrxMapTempl<K, V>::COrxMapTempl() : m_table(nullptr), m_count(0), m_capacity(0) {}

template <class K, class V>
COrxMapTempl<K, V>::COrxMapTempl(COrxMapTempl const& other)
    : COrxObj(other), m_table(nullptr), m_count(0), m_capacity(0) {
    *this = other;
}

template <class K, class V>
COrxMapTempl<K, V>::~COrxMapTempl() {
    removeAll();
}

template <class K, class V>
COrxMapTempl<K, V>& COrxMapTempl<K, V>::operator=(COrxMapTempl const& other) {
    if (this == &other) {
        return *this;
    }
    removeAll();
    for (std::uint32_t k = 0; k < other.m_count; ++k) {
        data const* source = other.m_table[k];
        data* entry = new (std::nothrow) data{source->key, source->value};
        if (entry == nullptr || !insertAt(m_count, entry)) {
            delete entry;
            break;
        }
    }
    return *this;
}

template <class K, class V>
void COrxMapTempl<K, V>::removeAll() {
    for (std::uint32_t k = 0; k < m_count; ++k) {
        delete m_table[k];
    }
    delete[] m_table;
    m_table = nullptr;
    m_count = 0;
    m_capacity = 0;
}

template <class K, class V>
bool COrxMapTempl<K, V>::find(K const& key, unsigned long& index) const {
    if (m_count == 0) {
        index = 0;
        return false;
    }
    std::uint32_t step = 1;
    while (step <= m_count / 2) {
        step *= 2;  // the largest power of two not above the count
    }
    std::uint32_t i = step - 1;
    for (;;) {
        if (i < m_count && ORX::internal::mapKeyEqual(m_table[i]->key, key)) {
            index = i;
            return true;
        }
        bool const down = i >= m_count || ORX::internal::mapKeyGreater(m_table[i]->key, key);
        if (step == 1) {
            index = down ? i : i + 1;
            return false;
        }
        step /= 2;
        i = down ? i - step : i + step;
    }
}

template <class K, class V>
bool COrxMapTempl<K, V>::grow() {
    if (m_count < m_capacity) {
        return true;
    }
    std::uint64_t const capacity = m_capacity == 0 ? 16 : 2 * std::uint64_t{m_capacity};
    if (capacity > UINT32_MAX) {
        return false;
    }
    data** table = new (std::nothrow) data*[capacity]();
    if (table == nullptr) {
        return false;
    }
    if (m_count > 0) {
        // NOLINTNEXTLINE(bugprone-sizeof-expression): the table holds pointers
        std::memcpy(table, m_table, m_count * sizeof(*table));
    }
    delete[] m_table;
    m_table = table;
    m_capacity = static_cast<std::uint32_t>(capacity);
    return true;
}

template <class K, class V>
bool COrxMapTempl<K, V>::insertAt(unsigned long index, data* entry) {
    if (!grow()) {
        return false;
    }
    // NOLINTNEXTLINE(bugprone-sizeof-expression): the table holds pointers
    std::memmove(m_table + index + 1, m_table + index, (m_count - index) * sizeof(*m_table));
    m_table[index] = entry;
    ++m_count;
    return true;
}

template <class K, class V>
V& COrxMapTempl<K, V>::outOfMemoryValue() {
    static V value{};
    return value;
}

template <class K, class V>
bool COrxMapTempl<K, V>::setAt(K const& key, V const& value) {
    unsigned long index = 0;
    if (find(key, index)) {
        m_table[index]->value = value;
        return true;
    }
    data* entry = new (std::nothrow) data{key, value};
    if (entry == nullptr || !insertAt(index, entry)) {
        delete entry;
    }
    return false;
}

template <class K, class V>
V& COrxMapTempl<K, V>::operator[](K const& key) {
    unsigned long index = 0;
    if (find(key, index)) {
        return m_table[index]->value;
    }
    data* entry = new (std::nothrow) data{key, V()};
    if (entry == nullptr || !insertAt(index, entry)) {
        delete entry;
        return outOfMemoryValue();
    }
    return entry->value;
}

template <class K, class V>
bool COrxMapTempl<K, V>::getAt(K const& key, V& value) const {
    unsigned long index = 0;
    if (!find(key, index)) {
        return false;
    }
    value = m_table[index]->value;
    return true;
}

template <class K, class V>
bool COrxMapTempl<K, V>::getAt(K const& key, V*& value) const {
    unsigned long index = 0;
    if (!find(key, index)) {
        return false;
    }
    value = &m_table[index]->value;
    return true;
}

template <class K, class V>
bool COrxMapTempl<K, V>::hasKey(K const& key) const {
    unsigned long index = 0;
    return find(key, index);
}

template <class K, class V>
unsigned long COrxMapTempl<K, V>::len() const {
    return m_count;
}

template <class K, class V>
bool COrxMapTempl<K, V>::isEmpty() const {
    return m_count == 0;
}

template <class K, class V>
unsigned long COrxMapTempl<K, V>::capacity() const {
    return m_capacity;
}

template <class K, class V>
bool COrxMapTempl<K, V>::removeAt(K const& key) {
    unsigned long index = 0;
    if (!find(key, index)) {
        return false;
    }
    delete m_table[index];
    --m_count;
    // NOLINTNEXTLINE(bugprone-sizeof-expression): the table holds pointers
    std::memmove(m_table + index, m_table + index + 1, (m_count - index) * sizeof(*m_table));
    m_table[m_count] = nullptr;
    return true;
}

template <class K, class V>
bool COrxMapTempl<K, V>::getAtIndex(unsigned long index, V& value) const {
    if (index >= m_count) {
        return false;
    }
    value = m_table[index]->value;
    return true;
}

template <class K, class V>
bool COrxMapTempl<K, V>::getAtIndex(unsigned long index, V*& value) const {
    if (index >= m_count) {
        return false;
    }
    value = &m_table[index]->value;
    return true;
}

template <class K, class V>
bool COrxMapTempl<K, V>::getAtIndex(unsigned long index, K& key, V& value) const {
    if (index >= m_count) {
        return false;
    }
    key = m_table[index]->key;
    value = m_table[index]->value;
    return true;
}

template <class K, class V>
bool COrxMapTempl<K, V>::getAtIndex(unsigned long index, K& key, V*& value) const {
    if (index >= m_count) {
        return false;
    }
    key = m_table[index]->key;
    value = &m_table[index]->value;
    return true;
}

template <class K, class V>
bool COrxMapTempl<K, V>::keyAtIndex(unsigned long index, K& key) const {
    if (index >= m_count) {
        return false;
    }
    key = m_table[index]->key;
    return true;
}

template <class K, class V>
void COrxMapTempl<K, V>::getDir(COrxArrayTempl<K>& keys) const {
    keys.removeAll();
    for (std::uint32_t k = 0; k < m_count; ++k) {
        keys.append(m_table[k]->key);
    }
}

#endif  // ORX_FOUNDATION_MAP_IMPL_H
