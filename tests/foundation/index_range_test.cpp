// The index loops over arrays: every index once, in order, as an int; nothing for an empty
// array or a start at or beyond the end.
#include <gtest/gtest.h>

#include <vector>

#include "orx/foundation/array_templ.h"
#include "orx/foundation/shared/index_range.h"

namespace {

template <class Range>
std::vector<int> collect(Range const& range) {
    std::vector<int> out;
    for (int k : range) {
        out.push_back(k);
    }
    return out;
}

TEST(IndexRangeTest, VisitsEveryIndexInOrder) {
    COrxArrayTempl<double> list;
    EXPECT_TRUE(collect(ORX::internal::indices(list)).empty());
    list.append(1.5);
    list.append(2.5);
    list.append(3.5);
    EXPECT_EQ(collect(ORX::internal::indices(list)), (std::vector<int>{0, 1, 2}));
}

TEST(IndexRangeTest, StartsWhereAskedAndNeverRunsBackwards) {
    COrxArrayTempl<double> list;
    list.append(1.0);
    list.append(2.0);
    EXPECT_EQ(collect(ORX::internal::indicesFrom(1, list)), (std::vector<int>{1}));
    EXPECT_TRUE(collect(ORX::internal::indicesFrom(2, list)).empty());
    EXPECT_TRUE(collect(ORX::internal::indicesFrom(5, list)).empty());
}

}  // namespace
