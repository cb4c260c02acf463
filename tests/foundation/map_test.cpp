#include "orx/foundation/map.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <utility>
#include <vector>

#include "orx/foundation/ptr_map.h"

namespace {

using IntMap = COrxMapTempl<int, COrxString>;
using StringMap = COrxMapTempl<COrxString, COrxString>;
using ListMap = COrxMapTempl<COrxString, COrxArrayTempl<COrxString>>;

COrxString text(int n) {
    return COrxString().format(L"v%d", n);
}

// The reference: an unsorted list searched linearly.
struct Reference {
    std::vector<std::pair<int, int>> entries;

    int* find(int key) {
        for (auto& entry : entries) {
            if (entry.first == key) {
                return &entry.second;
            }
        }
        return nullptr;
    }
    // Where a new key belongs: the number of smaller keys.
    unsigned long rank(int key) const {
        unsigned long smaller = 0;
        for (auto const& entry : entries) {
            smaller += entry.first < key ? 1 : 0;
        }
        return smaller;
    }
    std::vector<int> sortedKeys() const {
        std::vector<int> keys;
        for (auto const& entry : entries) {
            keys.push_back(entry.first);
        }
        std::sort(keys.begin(), keys.end());
        return keys;
    }
};

void expectSameContents(IntMap const& map, Reference const& reference) {
    ASSERT_EQ(map.len(), reference.entries.size());
    COrxArrayTempl<int> keys;
    map.getDir(keys);
    std::vector<int> const expected = reference.sortedKeys();
    ASSERT_EQ(keys.len(), expected.size());
    for (unsigned long k = 0; k < keys.len(); ++k) {
        EXPECT_EQ(keys[static_cast<int>(k)], expected[k]);  // sorted, unique
    }
}

class Handles : public ORX::CPtrMap {
public:
    using CPtrMap::decrRef;
    using CPtrMap::incrRef;
    using CPtrMap::newRef;
    using CPtrMap::ptrAt;
    using CPtrMap::refCount;
};

}  // namespace

TEST(COrxMapTemplTest, KeysStaySortedAndSetAtTellsWhetherTheKeyExisted) {
    IntMap map;
    EXPECT_FALSE(map.setAt(5, L"five"));
    EXPECT_FALSE(map.setAt(1, L"one"));
    EXPECT_FALSE(map.setAt(3, L"three"));
    EXPECT_TRUE(map.setAt(3, L"THREE"));
    COrxArrayTempl<int> keys;
    map.getDir(keys);
    ASSERT_EQ(keys.len(), 3ul);
    EXPECT_EQ(keys[0], 1);
    EXPECT_EQ(keys[1], 3);
    EXPECT_EQ(keys[2], 5);
    int key = -1;
    EXPECT_FALSE(map.keyAtIndex(3, key));
    EXPECT_EQ(key, -1);
    EXPECT_TRUE(map.keyAtIndex(2, key));
    EXPECT_EQ(key, 5);

    COrxString value;
    EXPECT_TRUE(map.getAt(3, value));
    EXPECT_TRUE(value == L"THREE");
    EXPECT_FALSE(map.getAt(4, value));
    EXPECT_TRUE(value == L"THREE");
    COrxString* stored = nullptr;
    ASSERT_TRUE(map.getAt(1, stored));
    *stored = L"uno";
    EXPECT_TRUE(map[1] == L"uno");
    EXPECT_TRUE(map.getAtIndex(0, value));
    EXPECT_TRUE(value == L"uno");
    EXPECT_TRUE(map.getAtIndex(2, key, value));
    EXPECT_EQ(key, 5);
    EXPECT_TRUE(map.getAtIndex(1, key, stored));
    EXPECT_TRUE(*stored == L"THREE");
    EXPECT_FALSE(map.getAtIndex(3, key, stored));
    EXPECT_FALSE(map.getAtIndex(3, stored));

    EXPECT_TRUE(map.removeAt(3));
    EXPECT_FALSE(map.removeAt(3));
    EXPECT_FALSE(map.hasKey(3));
    EXPECT_EQ(map.len(), 2ul);
}

TEST(COrxMapTemplTest, IndexingAddsADefaultValue) {
    IntMap map;
    map.setAt(2, L"two");
    EXPECT_TRUE(map[7].isNull());
    EXPECT_EQ(map.len(), 2ul);
    map[0] = L"zero";
    COrxString value;
    EXPECT_TRUE(map.getAtIndex(0, value));
    EXPECT_TRUE(value == L"zero");
    EXPECT_TRUE(map[2] == L"two");
    EXPECT_EQ(map.len(), 3ul);
}

TEST(COrxMapTemplTest, TableGrowsFrom16ByDoublingAndValuesStayPut) {
    IntMap map;
    EXPECT_EQ(map.capacity(), 0ul);
    map.setAt(100, L"first");
    COrxString* first = nullptr;
    map.getAt(100, first);
    for (int k = 0; k < 15; ++k) {
        map.setAt(k, text(k));
    }
    EXPECT_EQ(map.capacity(), 16ul);
    map.setAt(16, text(16));  // the seventeenth
    EXPECT_EQ(map.capacity(), 32ul);
    for (int k = 17; k < 33; ++k) {
        map.setAt(k, text(k));
    }
    EXPECT_EQ(map.capacity(), 64ul);
    COrxString* again = nullptr;
    map.getAt(100, again);
    EXPECT_EQ(again, first);  // entries are separate objects: only pointers moved
    while (!map.isEmpty()) {
        int key = 0;
        map.keyAtIndex(0, key);
        map.removeAt(key);
    }
    EXPECT_EQ(map.capacity(), 64ul);
    map.removeAll();
    EXPECT_EQ(map.capacity(), 0ul);
}

TEST(COrxMapTemplTest, BinarySearchAgreesWithALinearSearch) {
    std::mt19937 random(1234567);
    for (int set = 0; set < 300; ++set) {
        int const keyRange = 1 + set % 97;
        std::uniform_int_distribution<int> keys(-keyRange, keyRange);
        std::uniform_int_distribution<int> operation(0, 9);
        IntMap map;
        Reference reference;
        for (int step = 0; step < 120; ++step) {
            int const key = keys(random);
            int const op = operation(random);
            if (op < 5) {
                bool const existed = reference.find(key) != nullptr;
                unsigned long const place = reference.rank(key);
                ASSERT_EQ(map.setAt(key, text(step)), existed);
                if (existed) {
                    *reference.find(key) = step;
                } else {
                    reference.entries.emplace_back(key, step);
                    int atPlace = 0;
                    ASSERT_TRUE(map.keyAtIndex(place, atPlace));
                    ASSERT_EQ(atPlace, key);  // inserted where the linear search puts it
                }
            } else if (op < 7) {
                bool const existed = reference.find(key) != nullptr;
                ASSERT_EQ(map.removeAt(key), existed);
                reference.entries.erase(
                    std::remove_if(reference.entries.begin(), reference.entries.end(),
                                   [key](auto const& entry) { return entry.first == key; }),
                    reference.entries.end());
            } else {
                COrxString value;
                int const* expected = reference.find(key);
                ASSERT_EQ(map.getAt(key, value), expected != nullptr);
                if (expected != nullptr) {
                    ASSERT_TRUE(value == text(*expected));
                }
            }
        }
        expectSameContents(map, reference);
        for (int key = -keyRange - 1; key <= keyRange + 1; ++key) {
            ASSERT_EQ(map.hasKey(key), reference.find(key) != nullptr);
        }
    }
}

TEST(COrxMapTemplTest, StringKeysTellNullFromEmpty) {
    StringMap map;
    EXPECT_FALSE(map.setAt(L"b", L"2"));
    EXPECT_FALSE(map.setAt(COrxString(L""), L"empty"));
    EXPECT_FALSE(map.setAt(COrxString(), L"null"));
    EXPECT_FALSE(map.setAt(L"a", L"1"));
    EXPECT_EQ(map.len(), 4ul);
    COrxString value;
    EXPECT_TRUE(map.getAt(COrxString(), value));
    EXPECT_TRUE(value == L"null");
    EXPECT_TRUE(map.getAt(COrxString(L""), value));
    EXPECT_TRUE(value == L"empty");
    COrxArrayTempl<COrxString> keys;
    map.getDir(keys);
    ASSERT_EQ(keys.len(), 4ul);
    EXPECT_TRUE(keys[0].isNull());
    EXPECT_TRUE(keys[1] == L"");
    EXPECT_TRUE(keys[2] == L"a");
    EXPECT_TRUE(keys[3] == L"b");
    EXPECT_TRUE(map.removeAt(COrxString()));
    EXPECT_TRUE(map.hasKey(COrxString(L"")));
}

TEST(COrxMapTemplTest, CopiesAreDeep) {
    ListMap lists;
    COrxArrayTempl<COrxString> members;
    members.append(COrxString(L"x")).append(COrxString(L"y"));
    lists.setAt(L"letters", members);
    ListMap copy(lists);
    COrxArrayTempl<COrxString>* stored = nullptr;
    ASSERT_TRUE(copy.getAt(L"letters", stored));
    stored->append(COrxString(L"z"));
    COrxArrayTempl<COrxString> original;
    ASSERT_TRUE(lists.getAt(L"letters", original));
    EXPECT_EQ(original.len(), 2ul);
    EXPECT_EQ(stored->len(), 3ul);
    lists = copy;
    lists = lists;
    ASSERT_TRUE(lists.getAt(L"letters", original));
    EXPECT_EQ(original.len(), 3ul);
}

TEST(CPtrMapTest, FreedReferencesAreReusedFirstFreedFirst) {
    int a = 1;
    int b = 2;
    int c = 3;
    int const first = Handles::newRef(&a);
    EXPECT_EQ(first, 0);  // the first reference of the process
    EXPECT_EQ(Handles::decrRef(first), 0);
    EXPECT_EQ(Handles::newRef(&b), 0);  // reference 0 again
    EXPECT_EQ(Handles::ptrAt(0), &b);

    int const one = Handles::newRef(&a);
    int const two = Handles::newRef(&c);
    EXPECT_EQ(one, 1);
    EXPECT_EQ(two, 2);
    Handles::incrRef(one);
    EXPECT_EQ(Handles::refCount(one), 2);
    EXPECT_EQ(Handles::decrRef(two), 0);
    EXPECT_EQ(Handles::decrRef(one), 1);
    EXPECT_EQ(Handles::decrRef(one), 0);
    EXPECT_EQ(Handles::ptrAt(two), &c);   // the pointer is neither freed nor cleared
    EXPECT_EQ(Handles::newRef(&a), two);  // freed first
    EXPECT_EQ(Handles::newRef(&b), one);
    EXPECT_EQ(Handles::newRef(&c), 3);  // the table grows only when nothing is free

    EXPECT_EQ(Handles::decrRef(99), -1);
    EXPECT_EQ(Handles::decrRef(-1), -1);
    Handles::incrRef(99);
    EXPECT_EQ(Handles::ptrAt(99), nullptr);
    EXPECT_EQ(Handles::refCount(-5), -1);
}
