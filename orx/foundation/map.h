// COrxMapTempl<K, V>: an ordered map kept as a sorted table of pointers to entries.
//
// Lookup is a uniform binary search; insertion and removal shift the pointers after the
// position. Its rules, which callers rely on:
// - setAt returns true when the key already existed (its value replaced) and false when it
//   added an entry: the opposite of a was-added flag, deliberately;
// - operator[] adds a default value for a missing key;
// - the table starts at 16 entries and doubles; entries are separate heap objects, so
//   pointers to values stay valid until their entry is removed.
// Keys order by K's '==' and '>'; string keys order by COrxString's, with the null string
// before the empty string (the string's own order does not tell them apart, its equality
// does, and the map needs the two to agree).
//
//     COrxMapTempl<int, COrxString> names;
//     names.setAt(5, L"five");                   // false: added
//     names[1] = L"one";
//     COrxArrayTempl<int> keys;
//     names.getDir(keys);                        // {1, 5}
#ifndef ORX_FOUNDATION_MAP_H
#define ORX_FOUNDATION_MAP_H

#include <cstdint>

#include "orx/foundation/array_templ.h"
#include "orx/foundation/obj.h"
#include "orx/foundation/string.h"

template <class K, class V>
class ORX_TEMPLATE_API COrxMapTempl : public COrxObj {
public:
    COrxMapTempl();
    // Deep copy of every entry.
    COrxMapTempl(COrxMapTempl const& other);
    ~COrxMapTempl() override;
    COrxMapTempl& operator=(COrxMapTempl const& other);

    // Destroys every entry and releases the table.
    void removeAll();

    // Stores value under key. True when the key existed (value replaced), false when a new
    // entry was added (also when memory ran out and nothing was added).
    bool setAt(K const& key, V const& value);
    // The stored value, or a new default value inserted at its sorted place.
    V& operator[](K const& key);
    // False when key is absent; value untouched then.
    bool getAt(K const& key, V& value) const;
    // A pointer to the stored value (valid until the entry is removed).
    bool getAt(K const& key, V*& value) const;
    bool hasKey(K const& key) const;
    unsigned long len() const;
    bool isEmpty() const;
    // The number of entry slots of the table: 0, then 16 * 2^k.
    unsigned long capacity() const;
    // Destroys the entry; false when the key is absent.
    bool removeAt(K const& key);

    // By position in key order; false (outputs untouched) unless index < len().
    bool getAtIndex(unsigned long index, V& value) const;
    bool getAtIndex(unsigned long index, V*& value) const;
    bool getAtIndex(unsigned long index, K& key, V& value) const;
    bool getAtIndex(unsigned long index, K& key, V*& value) const;
    bool keyAtIndex(unsigned long index, K& key) const;
    // All keys in ascending order (the list is replaced).
    void getDir(COrxArrayTempl<K>& keys) const;

private:
    struct data {
        K key;
        V value;
    };

    // The uniform binary search: true with the index of the key, or false with the index at
    // which it would be inserted.
    bool find(K const& key, unsigned long& index) const;
    bool grow();
    bool insertAt(unsigned long index, data* entry);
    static V& outOfMemoryValue();

    data** m_table;
    std::uint32_t m_count;
    std::uint32_t m_capacity;
};

ORX_EXTERN_TEMPLATE(COrxMapTempl<int, COrxString>);
ORX_EXTERN_TEMPLATE(COrxMapTempl<COrxString, COrxString>);
ORX_EXTERN_TEMPLATE(COrxMapTempl<COrxString, COrxArrayTempl<COrxString>>);

#endif  // ORX_FOUNDATION_MAP_H
