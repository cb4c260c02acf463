#include "orx/geom/functions.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>

TEST(GeomFunctionsTest, AnglesLieInZeroToTwoPiInclusiveAndPolarKeepsTheHeight) {
    EXPECT_EQ(ORX::angle(COrxVector3d(1, -1e-300, 0)), 6.283185307179586);
    EXPECT_EQ(ORX::angle(COrxVector3d(0, 0, 0)), 0.0);
    EXPECT_EQ(ORX::angle(COrxVector3d(0, -1, 0)), 3 * ORX::kHalfPi);
    EXPECT_EQ(ORX::angle(COrxPoint3d(1, 1, 0), COrxPoint3d(1, 3, 5)), ORX::kHalfPi);
    double const ra[3] = {1, 1, 0}, rb[3] = {0, 0, 0};
    EXPECT_DOUBLE_EQ(ORX::angle(ra, rb), 5 * ORX::kPi / 4);
    EXPECT_EQ(ORX::polar(COrxPoint3d(1, 2, 7), ORX::kHalfPi, 3), COrxPoint3d(1, 5, 7));  // keeps z
}

TEST(GeomFunctionsTest, RoundingHalvesAwayUpwards) {
    EXPECT_EQ(ORX::round(2.5, 1.0), 3.0);
    EXPECT_EQ(ORX::round(-2.5, 1.0), -2.0);
    EXPECT_EQ(ORX::round(7.3, 0.0), 7.3);
    EXPECT_EQ(ORX::round(7.3, 1e-10), 7.3);
    EXPECT_DOUBLE_EQ(ORX::round(7.3, 0.5), 7.5);
}

TEST(GeomFunctionsTest, NanHasTheLibraryBitPattern) {
    double const value = ORX::nan();
    std::uint64_t bits;
    std::memcpy(&bits, &value, sizeof bits);
    EXPECT_EQ(bits, 0x7FFFFFFFFFFFFFFFull);
}
