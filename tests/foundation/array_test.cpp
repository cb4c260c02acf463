#include "orx/foundation/array.h"

#include <gtest/gtest.h>

namespace {

// The smallest derived class: it records what the base body reports.
class Counted : public COrxArray {
public:
    int lastNewCapacity = -1;

protected:
    int setLength(int n) override {
        lastNewCapacity = COrxArray::setLength(n);
        return len();
    }
};

}  // namespace

TEST(COrxArrayTest, BaseSetLengthDoublesFromEightAndIsCalledOnlyToGrow) {
    Counted a;
    EXPECT_EQ(a.setLogicalLength(9), 9);
    EXPECT_EQ(a.lastNewCapacity, 16);
    a.lastNewCapacity = -1;
    EXPECT_EQ(a.setLogicalLength(5), 5);
    EXPECT_EQ(a.lastNewCapacity, -1);
    EXPECT_EQ(a.setLogicalLength(-3), 0);
    a.clear();
    EXPECT_EQ(a.capacity(), 16);
}
