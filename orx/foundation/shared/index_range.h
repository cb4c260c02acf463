// Index loops over the library's arrays, whose len() is unsigned long while operator[] takes
// an int:
//
//     for (int k : ORX::internal::indices(list)) { use(list[k]); }
//
// gives k = 0, 1, ..., len() - 1 as an int, so that no access needs a cast. The length is
// read once, when the loop starts: a loop that changes the length needs a plain for.
#ifndef ORX_FOUNDATION_SHARED_INDEX_RANGE_H
#define ORX_FOUNDATION_SHARED_INDEX_RANGE_H

namespace ORX {
namespace internal {

class IndexRange {
public:
    class Iterator {
    public:
        explicit Iterator(int k) : m_k(k) {}
        int operator*() const { return m_k; }
        Iterator& operator++() {
            ++m_k;
            return *this;
        }
        bool operator!=(Iterator const& other) const { return m_k != other.m_k; }

    private:
        int m_k;
    };

    // The indices from first up to end (excluded); none when end <= first.
    IndexRange(int first, int end) : m_first(first), m_end(end < first ? first : end) {}

    Iterator begin() const { return Iterator(m_first); }
    Iterator end() const { return Iterator(m_end); }

private:
    int m_first;
    int m_end;
};

// The indices of every element of list.
template <class List>
IndexRange indices(List const& list) {
    return IndexRange(0, static_cast<int>(list.len()));
}

// The indices of list from first on.
template <class List>
IndexRange indicesFrom(int first, List const& list) {
    return IndexRange(first, static_cast<int>(list.len()));
}

}  // namespace internal
}  // namespace ORX

#endif  // ORX_FOUNDATION_SHARED_INDEX_RANGE_H
