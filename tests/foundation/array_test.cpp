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

TEST(COrxArrayTest, BaseSetLengthDoublesFromEight) {
    Counted a;
    EXPECT_EQ(a.capacity(), 0);
    EXPECT_EQ(a.setLogicalLength(1), 1);
    EXPECT_EQ(a.lastNewCapacity, 8);
    EXPECT_EQ(a.setLogicalLength(9), 9);
    EXPECT_EQ(a.lastNewCapacity, 16);
    EXPECT_EQ(a.setLogicalLength(100), 100);
    EXPECT_EQ(a.capacity(), 128);

    a.lastNewCapacity = -1;
    EXPECT_EQ(a.setLogicalLength(50), 50);  // within the capacity: setLength is not called
    EXPECT_EQ(a.lastNewCapacity, -1);
    EXPECT_EQ(a.capacity(), 128);
}

TEST(COrxArrayTest, NegativeLengthAndClear) {
    Counted a;
    a.setLogicalLength(5);
    EXPECT_EQ(a.setLogicalLength(-3), 0);
    EXPECT_TRUE(a.isEmpty());
    a.setLogicalLength(4);
    a.clear();
    EXPECT_EQ(a.len(), 0);
    EXPECT_EQ(a.capacity(), 8);

    Counted copy;
    a.setLogicalLength(3);
    static_cast<COrxArray&>(copy) = a;
    EXPECT_EQ(copy.len(), 3);
    EXPECT_EQ(copy.capacity(), 8);
}
