#include "orx/geom/map_double_to_point.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <type_traits>
#include <utility>

#include "orx/geom/functions.h"

namespace {
COrxPoint3d const N(0, 0, 0), P(1, 0, 0), Q(2, 0, 0), S(3, 0, 0);
}  // namespace

TEST(CMapDoubleToPointTest, SortIsStableAndKeepsPairsWithoutAParameterLast) {
    ORX::CMapDoubleToPoint map;
    EXPECT_FALSE(map.sort());
    map.append(2.0, P);
    map.append(ORX::nan(), N);
    map.append(1.0, Q);
    map.append(2.0, S);
    ASSERT_TRUE(map.sort());
    double const expectedT[] = {1.0, 2.0, 2.0};
    COrxPoint3d const expectedP[] = {Q, P, S, N};
    double t = 0;
    COrxPoint3d p;
    for (int i = 0; i < 4; ++i) {
        ASSERT_TRUE(map.getAt(i, t, p));
        if (i == 3) {
            EXPECT_TRUE(std::isnan(t)) << i;
        } else {
            EXPECT_EQ(t, expectedT[i]) << i;
        }
        EXPECT_EQ(p, expectedP[i]) << i;
    }
}

TEST(CMapDoubleToPointTest, BothListsStayPaired) {
    ORX::CMapDoubleToPoint map;
    EXPECT_FALSE(map.insertAt(1, 1.0, P));
    EXPECT_TRUE(map.insertAt(0, 3.0, S));
    EXPECT_TRUE(map.insertAt(0, 1.0, P));
    EXPECT_TRUE(map.insertAt(1, 2.0, Q));
    EXPECT_FALSE(map.insertAt(-1, 0.0, P));
    double t = 9;
    COrxPoint3d p(9, 9, 9);
    EXPECT_FALSE(map.getAt(3, t, p));
    EXPECT_FALSE(map.getAt(-1, t, p));
    EXPECT_EQ(t, 9.0);
    EXPECT_EQ(p, COrxPoint3d(9, 9, 9));
    EXPECT_TRUE(map.getAt(1, t, p));
    EXPECT_EQ(t, 2.0);
    EXPECT_EQ(p, Q);

    EXPECT_EQ(map.setLogicalLength(5), 5u);
    EXPECT_EQ(map.getPtLst()[4], COrxPoint3d::kOrigin);
    map.setLogicalLength(2);
    ORX::CMapDoubleToPoint const copy(map);
    map.append(7.0, S);
    EXPECT_EQ(copy.getPtLst().len(), 2);  // a deep copy
}

namespace {

// Callable on a CMapDoubleToPoint: the base array's members that would edit one list only
// must not be.
template <typename Edit, typename = void>
struct Compiles : std::false_type {};
template <typename Edit>
struct Compiles<
    Edit, std::void_t<decltype(std::declval<Edit>()(std::declval<ORX::CMapDoubleToPoint&>()))>>
    : std::true_type {};

auto const appendUniq = [](auto& m) -> decltype(m.appendUniq(1.0)) { return m.appendUniq(1.0); };
auto const consUniq = [](auto& m) -> decltype(m.consUniq(1.0)) { return m.consUniq(1.0); };
auto const removeValue = [](auto& m) -> decltype(m.remove(1.0)) { return m.remove(1.0); };
auto const addList = [](auto& m) -> decltype(m += m) { return m += m; };
auto const intersectList = [](auto& m) -> decltype(m &= m) { return m &= m; };
auto const uniteList = [](auto& m) -> decltype(m |= m) { return m |= m; };
static_assert(!Compiles<decltype(appendUniq)>::value && !Compiles<decltype(consUniq)>::value &&
                  !Compiles<decltype(removeValue)>::value && !Compiles<decltype(addList)>::value &&
                  !Compiles<decltype(intersectList)>::value &&
                  !Compiles<decltype(uniteList)>::value,
              "an inherited member edits the parameters without their points");

}  // namespace

// Every edit the base array offers keeps the pairs together: parameter k stays with the
// point (k, 0, 0).
TEST(CMapDoubleToPointTest, InheritedEditsChangeBothLists) {
    struct Case {
        char const* name;
        void (*edit)(ORX::CMapDoubleToPoint&);
        int length;
    };
    Case const cases[] = {
        {"removeAt(0)", [](ORX::CMapDoubleToPoint& m) { m.removeAt(0); }, 2},
        {"removeAt(3)", [](ORX::CMapDoubleToPoint& m) { m.removeAt(3); }, 3},
        {"removeAll", [](ORX::CMapDoubleToPoint& m) { m.removeAll(); }, 0},
        {"revert", [](ORX::CMapDoubleToPoint& m) { m.revert(); }, 3},
        {"swap(0, 2)", [](ORX::CMapDoubleToPoint& m) { m.swap(0, 2); }, 3},
        {"swap(0, 3)", [](ORX::CMapDoubleToPoint& m) { m.swap(0, 3); }, 3},
        {"[-1] = 2", [](ORX::CMapDoubleToPoint& m) { m[-1] = 2.0; }, 3},
        {"[4] = 0", [](ORX::CMapDoubleToPoint& m) { m[4] = 0.0; }, 5},
    };
    for (Case const& c : cases) {
        ORX::CMapDoubleToPoint map;
        for (int k = 0; k < 3; ++k) {
            map.append(k, COrxPoint3d(k, 0, 0));
        }
        c.edit(map);
        EXPECT_EQ(static_cast<int>(map.len()), c.length) << c.name;
        EXPECT_EQ(map.getPtLst().len(), c.length) << c.name;
        for (int i = 0; i < std::min(c.length, 3); ++i) {
            double t = -1;
            COrxPoint3d p;
            ASSERT_TRUE(map.getAt(i, t, p)) << c.name;
            EXPECT_EQ(p, COrxPoint3d(t, 0, 0)) << c.name << " pair " << i;
        }
    }
}
