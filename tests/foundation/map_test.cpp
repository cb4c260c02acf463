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
    EXPECT_TRUE(map.setAt(5, L"FIVE"));
    EXPECT_TRUE(map[3].isNull());  // indexing adds a default value
    COrxArrayTempl<int> keys;
    map.getDir(keys);
    EXPECT_EQ(keys.len(), 3);
    EXPECT_EQ(keys[0], 1);
    EXPECT_EQ(keys[1], 3);
    EXPECT_EQ(keys[2], 5);

    int key = -1;
    COrxString value;
    COrxString* stored = nullptr;
    EXPECT_FALSE(map.getAtIndex(3, key, stored));
    EXPECT_FALSE(map.getAt(4, value));
    EXPECT_EQ(key, -1);
    EXPECT_EQ(stored, nullptr);
    EXPECT_TRUE(value.isNull());  // outputs untouched
    EXPECT_TRUE(map.getAtIndex(2, key, value));
    EXPECT_EQ(key, 5);
    EXPECT_EQ(value, L"FIVE");
    ASSERT_TRUE(map.getAt(1, stored));
    *stored = L"uno";
    EXPECT_EQ(map[1], L"uno");
    EXPECT_TRUE(map.removeAt(3));
    EXPECT_FALSE(map.removeAt(3));
    EXPECT_FALSE(map.hasKey(3));
}

TEST(COrxMapTemplTest, TableGrowsFrom16ByDoublingAndValuesStayPut) {
    IntMap map;
    map.setAt(100, L"first");
    COrxString* first = nullptr;
    map.getAt(100, first);
    for (int k = 0; k < 15; ++k) {
        map.setAt(k, text(k));
    }
    EXPECT_EQ(map.capacity(), 16ul);
    map.setAt(16, text(16));  // the seventeenth
    EXPECT_EQ(map.capacity(), 32ul);
    COrxString* again = nullptr;
    map.getAt(100, again);
    EXPECT_EQ(again, first);  // entries are separate objects: only pointers moved
    map.removeAll();
    EXPECT_EQ(map.capacity(), 0ul);
}

TEST(COrxMapTemplTest, BinarySearchAgreesWithALinearSearch) {
    std::mt19937 random(1234567);
    for (int set = 0; set < 300; ++set) {
        int const keyRange = 1 + set % 97;
        std::uniform_int_distribution<int> keys(-keyRange, keyRange), operation(0, 9);
        IntMap map;
        std::vector<std::pair<int, int>> reference;  // unsorted, searched linearly
        auto find = [&reference](int key) {
            return std::find_if(reference.begin(), reference.end(),
                                [key](auto const& e) { return e.first == key; });
        };
        for (int step = 0; step < 120; ++step) {
            int const key = keys(random);
            auto const found = find(key);
            bool const existed = found != reference.end();
            int const op = operation(random);
            if (op < 5) {
                ASSERT_EQ(map.setAt(key, text(step)), existed);
                if (existed) {
                    found->second = step;
                    continue;
                }
                // Inserted where the linear search puts it: after every smaller key.
                auto const place = std::count_if(reference.begin(), reference.end(),
                                                 [key](auto const& e) { return e.first < key; });
                reference.emplace_back(key, step);
                int atPlace = 0;
                ASSERT_TRUE(map.keyAtIndex(static_cast<unsigned long>(place), atPlace));
                ASSERT_EQ(atPlace, key);
            } else if (op < 7) {
                ASSERT_EQ(map.removeAt(key), existed);
                if (existed) {
                    reference.erase(found);
                }
            } else {
                COrxString value;
                ASSERT_EQ(map.getAt(key, value), existed);
                if (existed) {
                    ASSERT_EQ(value, text(found->second));
                }
            }
        }
        // As many keys, sorted and unique, and each key of the range present as expected.
        COrxArrayTempl<int> dir;
        map.getDir(dir);
        ASSERT_EQ(dir.len(), reference.size());
        for (int k = 1; k < static_cast<int>(dir.len()); ++k) {
            ASSERT_LT(dir[k - 1], dir[k]);
        }
        for (int key = -keyRange - 1; key <= keyRange + 1; ++key) {
            ASSERT_EQ(map.hasKey(key), find(key) != reference.end());
        }
    }
}

TEST(COrxMapTemplTest, StringKeysTellNullFromEmpty) {
    StringMap map;
    map.setAt(L"b", L"2");
    map.setAt(COrxString(L""), L"empty");
    EXPECT_FALSE(map.setAt(COrxString(), L"null"));
    map.setAt(L"a", L"1");
    COrxString value;
    EXPECT_TRUE(map.getAt(COrxString(), value));
    EXPECT_EQ(value, L"null");
    COrxArrayTempl<COrxString> keys;
    map.getDir(keys);
    ASSERT_EQ(keys.len(), 4ul);
    EXPECT_TRUE(keys[0].isNull());
    EXPECT_EQ(keys[1], L"");
    EXPECT_EQ(keys[2], L"a");
    EXPECT_TRUE(map.removeAt(COrxString()));
    EXPECT_TRUE(map.hasKey(COrxString(L"")));
}

TEST(COrxMapTemplTest, CopiesAreDeep) {
    ListMap lists;
    lists[L"letters"].append(COrxString(L"x"));
    ListMap copy(lists);
    copy[L"letters"].append(COrxString(L"y"));
    EXPECT_EQ(lists[L"letters"].len(), 1ul);
    lists = copy;
    lists = lists;
    EXPECT_EQ(lists[L"letters"].len(), 2ul);
}

TEST(CPtrMapTest, FreedReferencesAreReusedFirstFreedFirst) {
    int a = 1, b = 2, c = 3;
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

// A reference counted back up from 0 is in use again: it is not handed out twice.
TEST(CPtrMapTest, AReferenceTakenBackIsNotHandedOutAgain) {
    int a = 1, b = 2, c = 3;
    int const ref = Handles::newRef(&a);
    EXPECT_EQ(Handles::decrRef(ref), 0);
    Handles::incrRef(ref);
    EXPECT_EQ(Handles::decrRef(ref), 0);
    Handles::incrRef(ref);
    int const other = Handles::newRef(&b);
    int const third = Handles::newRef(&c);
    EXPECT_NE(other, ref);
    EXPECT_NE(third, ref);
    EXPECT_NE(third, other);
    EXPECT_EQ(Handles::ptrAt(ref), &a);
}
