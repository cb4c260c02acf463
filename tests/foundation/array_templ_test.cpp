#include "orx/foundation/array_templ.h"

#include <gtest/gtest.h>

#include <limits>

#include "orx/foundation/array_templ_impl.h"
#include "orx/geom/point.h"
#include "orx/geom/vector.h"

namespace {

COrxArrayTempl<int> ints(std::initializer_list<int> values) {
    COrxArrayTempl<int> a;
    for (int v : values) {
        a.append(v);
    }
    return a;
}

}  // namespace

namespace orx_test {

// An element that counts its copies, to show that the array relocates bitwise.
struct Tracked : COrxObj {
    static int copies;
    int value = 0;
    Tracked() = default;
    explicit Tracked(int v) : value(v) {}
    Tracked(Tracked const& other) : COrxObj(other), value(other.value) { ++copies; }
    Tracked& operator=(Tracked const& other) {
        value = other.value;
        return *this;
    }
    bool operator==(Tracked const& other) const { return value == other.value; }
};
int Tracked::copies = 0;

}  // namespace orx_test

template class COrxArrayTempl<orx_test::Tracked>;
using orx_test::Tracked;

TEST(COrxArrayTemplTest, NegativeIndexesFoldByTheUnsignedRule) {
    COrxArrayTempl<int> a = ints({10, 20, 30});
    EXPECT_EQ(a[-1], 30);
    EXPECT_EQ(a[-3], 10);
    // (3 + (-4)) mod 2^32 = 4294967295, which is divisible by 3.
    EXPECT_EQ(a[-4], 10);
    // (3 + (-5)) mod 2^32 = 4294967294 -> remainder 2.
    EXPECT_EQ(a[-5], 30);
    COrxArrayTempl<int> const& c = a;
    EXPECT_EQ(c[-1], 30);
    EXPECT_EQ(c[-4], 10);

    COrxArrayTempl<int> one = ints({7});
    EXPECT_EQ(one[-1], 7);
    EXPECT_EQ(one[-100], 7);
    EXPECT_EQ(a.len(), 3u);
}

TEST(COrxArrayTemplTest, MutableIndexPastTheEndGrowsConstIndexReturnsDummy) {
    COrxArrayTempl<int> grown;
    grown[5] = 42;
    EXPECT_EQ(grown.len(), 6u);
    EXPECT_EQ(grown[5], 42);
    EXPECT_EQ(grown.capacity(), 8u);

    COrxArrayTempl<int> const untouched;
    EXPECT_EQ(untouched[5], 0);
    EXPECT_EQ(untouched[-1], 0);
    EXPECT_EQ(untouched.len(), 0u);
    EXPECT_EQ(untouched.capacity(), 0u);
}

TEST(COrxArrayTemplTest, DummiesAreSharedAndWritable) {
    COrxArrayTempl<int> first;
    COrxArrayTempl<int> second;
    int& dummy = first[-1];  // negative index on an empty array
    EXPECT_EQ(first.len(), 0u);
    EXPECT_EQ(&dummy, &second[-7]);
    dummy = 99;
    EXPECT_EQ(second[-1], 99);
    dummy = 0;  // nothing resets the dummy; leave it as found

    COrxArrayTempl<int> const empty;
    EXPECT_NE(&empty[0], &dummy);  // the const dummy is a second object
}

TEST(COrxArrayTemplTest, NewClassSlotsAreDefaultObjectsEvenAfterRemoval) {
    COrxArrayTempl<COrxPoint3d> points;
    points.append(COrxPoint3d(1, 1, 1)).append(COrxPoint3d(2, 2, 2));
    points.removeAt(0).removeAt(0);  // removed objects linger past the length
    points[2] = COrxPoint3d(5, 5, 5);
    ASSERT_EQ(points.len(), 3u);
    EXPECT_EQ(points[0], COrxPoint3d(0, 0, 0));
    EXPECT_EQ(points[1], COrxPoint3d(0, 0, 0));

    points.setLogicalLength(1);
    points.setLogicalLength(3);
    EXPECT_EQ(points[2], COrxPoint3d(0, 0, 0));
}

TEST(COrxArrayTemplTest, InsertAtShiftsAndExtendsPastTheEnd) {
    COrxArrayTempl<int> a = ints({1, 2});
    a.insertAt(1, 9);
    EXPECT_EQ(a, ints({1, 9, 2}));
    a.insertAt(0, 8);
    EXPECT_EQ(a, ints({8, 1, 9, 2}));

    COrxArrayTempl<COrxPoint3d> points;
    points.append(COrxPoint3d(1, 0, 0)).append(COrxPoint3d(2, 0, 0));
    points.insertAt(10, COrxPoint3d(7, 7, 7));
    ASSERT_EQ(points.len(), 11u);
    EXPECT_EQ(points[10], COrxPoint3d(7, 7, 7));
    EXPECT_EQ(points[5], COrxPoint3d(0, 0, 0));
    EXPECT_EQ(points[1], COrxPoint3d(2, 0, 0));
}

TEST(COrxArrayTemplTest, GrowthDoublesFromEightAndNeverShrinks) {
    COrxArrayTempl<double> a;
    EXPECT_EQ(a.capacity(), 0u);
    for (int k = 0; k < 9; ++k) {
        a.append(k);
    }
    EXPECT_EQ(a.capacity(), 16u);
    a.setLogicalLength(33);
    EXPECT_EQ(a.capacity(), 64u);
    for (int k = 0; k < 30; ++k) {
        a.removeAt(0);
    }
    EXPECT_EQ(a.capacity(), 64u);
    a.setLogicalLength(0);
    EXPECT_EQ(a.capacity(), 64u);
    a.removeAll();
    EXPECT_EQ(a.capacity(), 0u);
    EXPECT_EQ(a.entry(), nullptr);
}

TEST(COrxArrayTemplTest, AppendingAnOwnElementOfAFullArraySurvivesTheMove) {
    COrxArrayTempl<COrxPoint3d> points;
    for (int k = 0; k < 8; ++k) {
        points.append(COrxPoint3d(k, 2 * k, 0));
    }
    ASSERT_EQ(points.len(), points.capacity());
    points.append(points[3]);
    EXPECT_EQ(points[8], COrxPoint3d(3, 6, 0));

    for (int k = 9; k < 16; ++k) {
        points.append(COrxPoint3d(k, 0, 0));
    }
    ASSERT_EQ(points.len(), points.capacity());
    points.insertAt(0, points[-1]);
    EXPECT_EQ(points[0], COrxPoint3d(15, 0, 0));
    EXPECT_EQ(points[-1], COrxPoint3d(15, 0, 0));
    EXPECT_EQ(points.len(), 17u);

    // Inserting an element that the shift moves.
    COrxArrayTempl<int> a = ints({1, 2, 3});
    a.insertAt(0, a[2]);
    EXPECT_EQ(a, ints({3, 1, 2, 3}));

    COrxArrayTempl<int> b = ints({1, 2, 3});
    b += b;
    EXPECT_EQ(b, ints({1, 2, 3, 1, 2, 3}));
}

TEST(COrxArrayTemplTest, RelocationNeverCopiesElements) {
    COrxArrayTempl<Tracked> a;
    for (int k = 0; k < 20; ++k) {
        a.append(Tracked(k));
    }
    Tracked::copies = 0;
    a.setLogicalLength(100);  // growth
    a.setLogicalLength(20);
    a.revert();
    a.removeAt(3);
    a.insertAt(5, Tracked(77));
    a.swap(0, 1);
    EXPECT_EQ(Tracked::copies, 0);
    EXPECT_EQ(a[5].value, 77);
    EXPECT_EQ(a[0].value, 18);
    EXPECT_EQ(a[1].value, 19);
}

TEST(COrxArrayTemplTest, SlicesFollowTheUnsignedRightRule) {
    COrxArrayTempl<int> a = ints({1, 2, 3});
    EXPECT_TRUE(a.right(5).isEmpty());
    EXPECT_EQ(a.right(2), ints({2, 3}));
    EXPECT_EQ(a.right(3), a);
    EXPECT_EQ(a.left(5), a);
    EXPECT_EQ(a.left(1), ints({1}));
    EXPECT_EQ(a.mid(1, 5), ints({2, 3}));
    EXPECT_TRUE(a.mid(1, 0).isEmpty());
    EXPECT_TRUE(a.mid(3, 1).isEmpty());
}

TEST(COrxArrayTemplTest, RemovalTouchesOnlyTheFirstMatchAndIgnoresBadIndexes) {
    COrxArrayTempl<int> a = ints({4, 5, 4});
    a.remove(4);
    EXPECT_EQ(a, ints({5, 4}));
    a.remove(9);
    a.removeAt(2);
    EXPECT_EQ(a, ints({5, 4}));

    COrxArrayTempl<int> const c = ints({1, 2, 3});
    EXPECT_EQ(c.removeAt(1), ints({1, 3}));
    EXPECT_EQ(c.removeAt(7), c);
    EXPECT_EQ(c.append(4), ints({1, 2, 3, 4}));
    EXPECT_EQ(c.len(), 3u);
}

TEST(COrxArrayTemplTest, SearchUsesTheElementEquality) {
    COrxArrayTempl<COrxPoint3d> points;
    points.append(COrxPoint3d(1, 1, 0));
    points.appendUniq(COrxPoint3d(1 + 5e-6, 1, 0));  // within COrxPoint3d::tol
    EXPECT_EQ(points.len(), 1u);
    points.consUniq(COrxPoint3d(2, 2, 0));
    EXPECT_EQ(points[0], COrxPoint3d(2, 2, 0));

    unsigned long where = 77;
    EXPECT_FALSE(points.indexOf(COrxPoint3d(3, 3, 0), where));
    EXPECT_EQ(where, 77u);
    EXPECT_TRUE(points.indexOf(COrxPoint3d(1, 1, 1e-6), where));
    EXPECT_EQ(where, 1u);

    COrxArrayTempl<double> doubles;
    doubles.append(std::numeric_limits<double>::quiet_NaN());
    EXPECT_FALSE(doubles.contains(doubles[0]));  // NaN never equals itself
}

TEST(COrxArrayTemplTest, SortIsStableAndLeavesVectorsInPlace) {
    COrxArrayTempl<int> a = ints({3, 1, 2, 1});
    a.sort();
    EXPECT_EQ(a, ints({1, 1, 2, 3}));

    // Sorting by the whole part only: equal keys keep their earlier order.
    COrxArrayTempl<double> d;
    d.append(3.5).append(1.2).append(2.0).append(1.1).append(1.7);
    d.sort([](void const* l, void const* r) {
        int const left = static_cast<int>(*static_cast<double const*>(l));
        int const right = static_cast<int>(*static_cast<double const*>(r));
        return left - right;
    });
    EXPECT_EQ(d[0], 1.2);
    EXPECT_EQ(d[1], 1.1);
    EXPECT_EQ(d[2], 1.7);
    EXPECT_EQ(d[3], 2.0);
    EXPECT_EQ(d[4], 3.5);

    COrxArrayTempl<COrxVector3d> v;
    v.append(COrxVector3d(3, 0, 0)).append(COrxVector3d(1, 0, 0)).append(COrxVector3d(2, 0, 0));
    v.sort();
    EXPECT_EQ(v[0].x, 3.0);
    EXPECT_EQ(v[1].x, 1.0);
    EXPECT_EQ(v[2].x, 2.0);

    COrxArrayTempl<COrxPoint3d> p;
    p.append(COrxPoint3d(1, 2, 0)).append(COrxPoint3d(1, 1, 5)).append(COrxPoint3d(0, 9, 9));
    p.sort();
    EXPECT_EQ(p[0], COrxPoint3d(0, 9, 9));
    EXPECT_EQ(p[1], COrxPoint3d(1, 1, 5));
}

TEST(COrxArrayTemplTest, OrderingComparesElementsThenLengths) {
    EXPECT_TRUE(ints({1, 2}) < ints({1, 2, 0}));
    EXPECT_FALSE(ints({1, 2}) < ints({1, 2}));
    EXPECT_FALSE(ints({1, 2, 0}) < ints({1, 2}));
    EXPECT_TRUE(ints({}) < ints({0}));
    EXPECT_TRUE(ints({1, 5}) < ints({2}));
    COrxArrayTempl<int> a = ints({1});
    EXPECT_FALSE(a < a);
    EXPECT_EQ(a, a);
    EXPECT_NE(ints({1}), ints({1, 1}));
}

TEST(COrxArrayTemplTest, SetOperatorsKeepOrderAndDuplicates) {
    EXPECT_EQ(ints({1, 1, 2}) | ints({3, 2, 4, 3}), ints({1, 1, 2, 3, 4}));
    EXPECT_EQ(ints({4, 1, 2, 1}) & ints({1, 4}), ints({4, 1, 1}));
    EXPECT_EQ(ints({1, 2}) + ints({2}), ints({1, 2, 2}));
    COrxArrayTempl<int> a = ints({1, 2});
    a |= a;
    a &= a;
    EXPECT_EQ(a, ints({1, 2}));
    a &= ints({});
    EXPECT_TRUE(a.isEmpty());
}

TEST(COrxArrayTemplTest, CopiesAreDeepAndAssignmentKeepsCapacity) {
    COrxArrayTempl<COrxPoint3d> a;
    for (int k = 0; k < 20; ++k) {
        a.append(COrxPoint3d(k, 0, 0));
    }
    COrxArrayTempl<COrxPoint3d> b(a);
    b[0].x = 100;
    EXPECT_EQ(a[0].x, 0.0);
    EXPECT_EQ(b.capacity(), 32u);

    COrxArrayTempl<COrxPoint3d> small;
    small.append(COrxPoint3d(1, 1, 1));
    a = small;
    EXPECT_EQ(a.len(), 1u);
    EXPECT_EQ(a.capacity(), 32u);
    EXPECT_EQ(a.reverse(), small);
}
