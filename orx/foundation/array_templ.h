// COrxArrayTempl<T>: the library's typed growable array.
//
// Every list that crosses the interface is one of these: points, strings, doubles,
// polylines, lists of polylines. Its rules, which callers rely on:
// - capacity is 0 or 8 * 2^k and never shrinks; elements move as raw bytes (every T is
//   bitwise relocatable), so growth, removal, reversal and sorting run no copy constructors;
// - a negative index counts from the end; the mutable operator[] extends the array when the
//   index lies past the end, the const one answers with a shared dummy element instead;
// - equality and ordering are those of T (tolerant for points, exact for doubles).
//
//     COrxArrayTempl<int> a;
//     a.append(3).append(1).append(2).sort();   // {1, 2, 3}
//     int last = a[-1];                           // 3
//     a[5] = 9;                                   // length 6
#ifndef ORX_FOUNDATION_ARRAY_TEMPL_H
#define ORX_FOUNDATION_ARRAY_TEMPL_H

#include <cstdint>

#include "orx/foundation/obj.h"

template <class T>
class ORX_TEMPLATE_API COrxArrayTempl : public COrxObj {
public:
    COrxArrayTempl();
    // Deep copy: reserves the source length and assigns element by element.
    COrxArrayTempl(COrxArrayTempl const& other);
    ~COrxArrayTempl() override;
    // Self-assignment does nothing; surplus capacity is kept.
    COrxArrayTempl& operator=(COrxArrayTempl const& other);

    // Releases the block: length and capacity 0.
    COrxArrayTempl& removeAll();
    // Reserves n (grow only) and sets the length to n. New slots of a class T hold default
    // objects; new scalar slots are uninitialised. Returns n.
    unsigned long setLogicalLength(unsigned long n);

    unsigned long len() const;
    bool isEmpty() const;
    unsigned long capacity() const;
    // The element block itself (null while the capacity is 0).
    T* entry();
    T const* entry() const;

    // A negative i counts from the end: with n elements it becomes ((n + i) mod 2^32) mod n
    // in unsigned 32-bit arithmetic (0 when n is 1), so indexes below -n fold back into range.
    // The mutable form extends the array when the index is past the end (and returns the
    // shared mutable dummy for a negative index on an empty array); the const form returns
    // the shared const dummy for any index it cannot serve and never changes the array.
    T& operator[](int i);
    T const& operator[](int i) const;

    COrxArrayTempl& append(T const& x);
    COrxArrayTempl append(T const& x) const;
    // Appends x / inserts it at index 0 unless contains(x).
    COrxArrayTempl& appendUniq(T const& x);
    COrxArrayTempl& consUniq(T const& x);
    // New length max(length, i) + 1: an index past the end leaves a gap of default (class T)
    // or uninitialised (scalar T) elements, deliberately.
    COrxArrayTempl& insertAt(unsigned long i, T const& x);
    // Index >= length: no change (the const form returns a full copy).
    COrxArrayTempl& removeAt(unsigned long i);
    COrxArrayTempl removeAt(unsigned long i) const;
    // Removes the first element equal to x only.
    COrxArrayTempl& remove(T const& x);

    bool contains(T const& x) const;
    int indexOf(T const& x) const;
    // As above; i is left untouched when nothing is found.
    bool indexOf(T const& x, unsigned long& i) const;

    // Copies of the elements at start, start + 1, ... while fewer than count are copied and
    // the index is below the length. right(n) starts at length - n in unsigned 32-bit
    // arithmetic, so right of more than the whole array is empty (deliberate).
    COrxArrayTempl mid(unsigned long start, unsigned long count) const;
    COrxArrayTempl left(unsigned long n) const;
    COrxArrayTempl right(unsigned long n) const;

    COrxArrayTempl reverse() const;
    COrxArrayTempl& revert();
    // Exchanges two elements bitwise, without a bounds check.
    void swap(unsigned long i, unsigned long j);

    // Stable bubble sort with early exit, by T's '>' or by compare(&a, &b) > 0.
    COrxArrayTempl& sort();
    COrxArrayTempl& sort(int (*compare)(void const*, void const*));

    bool operator==(COrxArrayTempl const& other) const;
    bool operator!=(COrxArrayTempl const& other) const;
    // Element-wise by T's equality; at the first unequal pair T's '<' decides; otherwise the
    // shorter array is less.
    bool operator<(COrxArrayTempl const& other) const;

    // Concatenation (also of an array with itself).
    COrxArrayTempl operator+(COrxArrayTempl const& other) const;
    COrxArrayTempl& operator+=(COrxArrayTempl const& other);
    // Intersection: the elements of this array that other contains, in this array's order.
    COrxArrayTempl operator&(COrxArrayTempl const& other) const;
    COrxArrayTempl& operator&=(COrxArrayTempl const& other);
    // Union: appends the elements of other not yet contained, in other's order.
    COrxArrayTempl operator|(COrxArrayTempl const& other) const;
    COrxArrayTempl& operator|=(COrxArrayTempl const& other);

private:
    // Index folding shared by both operator[] forms; -1 for a negative index on an empty array.
    static long long foldIndex(int i, std::uint32_t length);
    bool allocate(unsigned long n);
    void resetSlots(std::uint32_t from, std::uint32_t to);
    bool holds(T const& x) const;
    // The stable bubble sort with early exit both sort() forms run.
    template <class Greater>
    void bubbleSort(Greater greater);
    void storeAt(std::uint32_t i, T const& x);
    static T& mutableDummy();
    static T const& constDummy();

    std::uint32_t m_capacity;
    std::uint32_t m_length;
    T* m_data;
};

// The instantiations for scalar element types; those for class elements are declared beside
// their element classes.
ORX_EXTERN_TEMPLATE(COrxArrayTempl<unsigned char>);
ORX_EXTERN_TEMPLATE(COrxArrayTempl<short>);
ORX_EXTERN_TEMPLATE(COrxArrayTempl<int>);
ORX_EXTERN_TEMPLATE(COrxArrayTempl<double>);
ORX_EXTERN_TEMPLATE(COrxArrayTempl<void*>);

#endif  // ORX_FOUNDATION_ARRAY_TEMPL_H
