#include "orx/foundation/array_templ.h"

#include <gtest/gtest.h>

#include <limits>

#include "orx/foundation/array_templ_impl.h"
#include "orx/geom/point.h"
#include "orx/geom/vector.h"

namespace {

template <class T>
COrxArrayTempl<T> arr(std::initializer_list<T> values) {
    COrxArrayTempl<T> a;
    for (T const& v : values) {
        a.append(v);
    }
    return a;
}

using P = COrxPoint3d;

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
    COrxArrayTempl<int> a = arr({10, 20, 30});
    COrxArrayTempl<int> const& c = a;
    EXPECT_EQ(a[-1], 30);
    EXPECT_EQ(a[-3], 10);
    EXPECT_EQ(a[-4], 10);  // (3 - 4) mod 2^32 = 4294967295, divisible by 3
    EXPECT_EQ(a[-5], 30);  // 4294967294 mod 3 = 2
    EXPECT_EQ(c[-4], 10);
    EXPECT_EQ(arr({7})[-100], 7);
}

TEST(COrxArrayTemplTest, PastTheEndTheMutableIndexGrowsTheConstOneGivesADummy) {
    COrxArrayTempl<int> grown;
    grown[5] = 42;
    EXPECT_EQ(grown.len(), 6u);
    EXPECT_EQ(grown.capacity(), 8u);
    COrxArrayTempl<int> const untouched;
    EXPECT_EQ(untouched[5], 0);
    EXPECT_EQ(untouched[-1], 0);
    EXPECT_EQ(untouched.capacity(), 0u);

    // A negative index on an empty array gives the shared, writable dummy.
    COrxArrayTempl<int> first, second;
    int& dummy = first[-1];
    EXPECT_EQ(first.len(), 0u);
    EXPECT_EQ(&dummy, &second[-7]);
    dummy = 99;
    EXPECT_EQ(second[-1], 99);
    dummy = 0;                         // nothing resets the dummy; leave it as found
    EXPECT_NE(&untouched[0], &dummy);  // the const dummy is a second object
}

TEST(COrxArrayTemplTest, NewClassSlotsAreDefaultObjectsEvenAfterRemoval) {
    COrxArrayTempl<P> points = arr({P(1, 1, 1), P(2, 2, 2)});
    points.removeAt(0).removeAt(0);  // removed objects linger past the length
    points[2] = P(5, 5, 5);
    EXPECT_EQ(points, arr({P(), P(), P(5, 5, 5)}));
    points.setLogicalLength(1);
    points.setLogicalLength(3);
    EXPECT_EQ(points[2], P());
    points.insertAt(10, P(7, 7, 7));  // past the end: a gap of default points
    ASSERT_EQ(points.len(), 11u);
    EXPECT_EQ(points[5], P());

    COrxArrayTempl<int> a = arr({1, 2});
    a.insertAt(1, 9).insertAt(0, 8);
    EXPECT_EQ(a, arr({8, 1, 9, 2}));
}

TEST(COrxArrayTemplTest, GrowthDoublesFromEightAndNeverShrinks) {
    COrxArrayTempl<double> a;
    for (int k = 0; k < 9; ++k) {
        a.append(k);
    }
    EXPECT_EQ(a.capacity(), 16u);
    a.setLogicalLength(33);
    EXPECT_EQ(a.capacity(), 64u);
    for (int k = 0; k < 30; ++k) {
        a.removeAt(0);
    }
    a.setLogicalLength(0);
    EXPECT_EQ(a.capacity(), 64u);
    a.removeAll();
    EXPECT_EQ(a.capacity(), 0u);
    EXPECT_EQ(a.entry(), nullptr);
}

TEST(COrxArrayTemplTest, AppendingAnOwnElementOfAFullArraySurvivesTheMove) {
    COrxArrayTempl<P> points;
    for (int k = 0; k < 8; ++k) {
        points.append(P(k, 2 * k, 0));
    }
    ASSERT_EQ(points.len(), points.capacity());
    points.append(points[3]);
    EXPECT_EQ(points[8], P(3, 6, 0));
    points[15] = P(15, 0, 0);
    ASSERT_EQ(points.len(), points.capacity());
    points.insertAt(0, points[-1]);
    EXPECT_EQ(points[0], P(15, 0, 0));
    EXPECT_EQ(points[-1], P(15, 0, 0));

    COrxArrayTempl<int> a = arr({1, 2, 3});
    a.insertAt(0, a[2]);  // an element that the shift moves
    EXPECT_EQ(a, arr({3, 1, 2, 3}));
    a += a;
    EXPECT_EQ(a, arr({3, 1, 2, 3, 3, 1, 2, 3}));
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
}

TEST(COrxArrayTemplTest, SlicesFollowTheUnsignedRightRule) {
    COrxArrayTempl<int> const a = arr({1, 2, 3});
    EXPECT_TRUE(a.right(5).isEmpty());
    EXPECT_EQ(a.right(2), arr({2, 3}));
    EXPECT_EQ(a.left(5), a);
    EXPECT_EQ(a.mid(1, 5), arr({2, 3}));
    EXPECT_TRUE(a.mid(3, 1).isEmpty());
}

TEST(COrxArrayTemplTest, RemovalTouchesOnlyTheFirstMatchAndIgnoresBadIndexes) {
    COrxArrayTempl<int> a = arr({4, 5, 4});
    a.remove(4).remove(9).removeAt(2);
    EXPECT_EQ(a, arr({5, 4}));
    COrxArrayTempl<int> const c = arr({1, 2, 3});
    EXPECT_EQ(c.removeAt(1), arr({1, 3}));
    EXPECT_EQ(c.removeAt(7), c);
}

TEST(COrxArrayTemplTest, SearchUsesTheElementEquality) {
    COrxArrayTempl<P> points = arr({P(1, 1, 0)});
    points.appendUniq(P(1 + 5e-6, 1, 0));  // within COrxPoint3d::tol
    points.consUniq(P(2, 2, 0));
    EXPECT_EQ(points, arr({P(2, 2, 0), P(1, 1, 0)}));
    unsigned long where = 77;
    EXPECT_FALSE(points.indexOf(P(3, 3, 0), where));
    EXPECT_EQ(where, 77u);
    EXPECT_TRUE(points.indexOf(P(1, 1, 1e-6), where));
    EXPECT_EQ(where, 1u);
    COrxArrayTempl<double> const nan = arr({std::numeric_limits<double>::quiet_NaN()});
    EXPECT_FALSE(nan.contains(nan[0]));  // NaN never equals itself
}

TEST(COrxArrayTemplTest, SortIsStableAndLeavesVectorsInPlace) {
    EXPECT_EQ(arr({3, 1, 2, 1}).sort(), arr({1, 1, 2, 3}));
    // Sorting by the whole part only: equal keys keep their earlier order.
    COrxArrayTempl<double> d = arr({3.5, 1.2, 2.0, 1.1, 1.7});
    d.sort([](void const* l, void const* r) {
        return static_cast<int>(*static_cast<double const*>(l)) -
               static_cast<int>(*static_cast<double const*>(r));
    });
    EXPECT_EQ(d, arr({1.2, 1.1, 1.7, 2.0, 3.5}));
    // Vectors have no order: nothing moves.
    COrxArrayTempl<COrxVector3d> v = arr({COrxVector3d(3, 0, 0), COrxVector3d(1, 0, 0)});
    EXPECT_EQ(v.sort()[0].x, 3.0);
    EXPECT_EQ(arr({P(1, 2, 0), P(1, 1, 5), P(0, 9, 9)}).sort(),
              arr({P(0, 9, 9), P(1, 1, 5), P(1, 2, 0)}));
}

TEST(COrxArrayTemplTest, OrderingComparesElementsThenLengths) {
    EXPECT_LT(arr({1, 2}), arr({1, 2, 0}));
    EXPECT_FALSE(arr({1, 2}) < arr({1, 2}));
    EXPECT_LT(arr<int>({}), arr({0}));
    EXPECT_LT(arr({1, 5}), arr({2}));
    EXPECT_NE(arr({1}), arr({1, 1}));
}

TEST(COrxArrayTemplTest, SetOperatorsKeepOrderAndDuplicates) {
    EXPECT_EQ(arr({1, 1, 2}) | arr({3, 2, 4, 3}), arr({1, 1, 2, 3, 4}));
    EXPECT_EQ(arr({4, 1, 2, 1}) & arr({1, 4}), arr({4, 1, 1}));
    EXPECT_EQ(arr({1, 2}) + arr({2}), arr({1, 2, 2}));
    COrxArrayTempl<int> a = arr({1, 2});
    EXPECT_EQ((a |= a) &= a, arr({1, 2}));
}

TEST(COrxArrayTemplTest, CopiesAreDeepAndAssignmentKeepsCapacity) {
    COrxArrayTempl<P> a;
    a.setLogicalLength(20);
    COrxArrayTempl<P> b(a);
    b[0].x = 100;
    EXPECT_EQ(a[0].x, 0.0);
    a = arr({P(1, 1, 1)});
    EXPECT_EQ(a.capacity(), 32u);
}
