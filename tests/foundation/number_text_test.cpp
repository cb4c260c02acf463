#include "orx/foundation/number_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

TEST(NumberTextTest, DecimalModeGivesTheDigitsAfterThePoint) {
    EXPECT_EQ(orxRtoS(20180315.143005, Orx::lDecimal, 8), L"20180315.14300500");
    EXPECT_EQ(orxRtoS(-2.5, Orx::lDecimal, 2), L"-2.50");
    EXPECT_EQ(orxRtoS(2.675, Orx::lDecimal, 2), L"2.67");  // the binary value rounds
    EXPECT_EQ(orxRtoS(1.5, Orx::lDecimal, 0), L"2");
    EXPECT_EQ(orxRtoS(-1e-12, Orx::lDecimal, 4), L"0.0000");
    EXPECT_EQ(orxRtoS(3.0, Orx::lDecimal, -3), L"3");
    EXPECT_EQ(orxRtoS(0.1, Orx::lDecimal, 99), L"0.10000000000000000555");
}

TEST(NumberTextTest, FeetAndFractionsCarryAndRound) {
    EXPECT_EQ(orxRtoS(15.5, Orx::lScientific, 4), L"1.5500E+01");
    EXPECT_EQ(orxRtoS(-1e-9, Orx::lScientific, 1), L"-1.0E-09");
    EXPECT_EQ(orxRtoS(-0.0, Orx::lScientific, 1), L"0.0E+00");
    EXPECT_EQ(orxRtoS(15.5, Orx::lEngineering, 2), L"1'-3.50\"");
    EXPECT_EQ(orxRtoS(-15.5, Orx::lEngineering, 1), L"-1'-3.5\"");
    EXPECT_EQ(orxRtoS(23.999, Orx::lEngineering, 2), L"2'-0.00\"");  // carried
    EXPECT_EQ(orxRtoS(3.25, Orx::lEngineering, 2), L"0'-3.25\"");
    EXPECT_EQ(orxRtoS(15.5, Orx::lArchitectural, 4), L"1'-3 1/2\"");
    EXPECT_EQ(orxRtoS(12.0, Orx::lArchitectural, 4), L"1'-0\"");
    EXPECT_EQ(orxRtoS(0.3, Orx::lArchitectural, 3), L"0'-0 1/4\"");
    EXPECT_EQ(orxRtoS(-23.97, Orx::lArchitectural, 2), L"-2'-0\"");
    EXPECT_EQ(orxRtoS(15.5, Orx::lFractional, 4), L"15 1/2");
    EXPECT_EQ(orxRtoS(-0.75, Orx::lFractional, 4), L"-3/4");
    EXPECT_EQ(orxRtoS(-0.01, Orx::lFractional, 2), L"0");
    EXPECT_EQ(orxRtoS(2.2, Orx::lFractional, 0), L"2");
}

TEST(NumberTextTest, BadInputGivesTheNullString) {
    double const nan = std::numeric_limits<double>::quiet_NaN();
    double const inf = std::numeric_limits<double>::infinity();
    EXPECT_TRUE(orxRtoS(nan, Orx::lDecimal, 2).isNull());
    EXPECT_TRUE(orxRtoS(inf, Orx::lScientific, 2).isNull());
    EXPECT_TRUE(orxRtoS(-inf, Orx::lArchitectural, 2).isNull());
    EXPECT_TRUE(orxRtoS(1.0, static_cast<Orx::lFormat>(9), 2).isNull());
    EXPECT_TRUE(orxRtoS(1e300, Orx::lFractional, 4).isNull());
    EXPECT_EQ(orxRtoS(1e300, Orx::lDecimal, 2).len(), 304);
}

TEST(NumberTextTest, ReadingAcceptsEveryMode) {
    struct Case {
        wchar_t const* text;
        double value;
    };
    Case const cases[] = {
        {L"15.5", 15.5},       {L" -2 ", -2.0},         {L"1.55E+01", 15.5}, {L"1'-3.50\"", 15.5},
        {L"1'-3 1/2\"", 15.5}, {L"-1'-3 1/2\"", -15.5}, {L"1' 3\"", 15.0},   {L"2'", 24.0},
        {L"1'-3", 15.0},       {L"0'-0 3/8\"", 0.375},  {L"15 1/2", 15.5},   {L"15-1/2", 15.5},
        {L"3/4", 0.75},        {L"-3/4", -0.75},        {L"7\"", 7.0},       {L"+.5", 0.5},
    };
    for (Case const& c : cases) {
        double value = -999.0;
        EXPECT_TRUE(orxAtoF(c.text, value)) << (&c - cases);
        EXPECT_DOUBLE_EQ(value, c.value) << (&c - cases);
    }
    wchar_t const* const rejected[] = {L"",      L"  ",  L"abc", L"1/0",   L"3-1", L"1'-x",
                                       L"1e999", L"--1", L"1 2", L"1/2/3", L"'",   L"1\"2"};
    for (wchar_t const* text : rejected) {
        double value = -999.0;
        EXPECT_FALSE(orxAtoF(text, value)) << (&text - rejected);
        EXPECT_EQ(value, -999.0);
    }
    double untouched = 1.0;
    EXPECT_FALSE(orxAtoF(nullptr, untouched));
}

TEST(NumberTextTest, WrittenTextReadsBackWithinItsPrecision) {
    std::mt19937 random(4711);
    std::uniform_real_distribution<double> values(-5000.0, 5000.0);
    for (int round = 0; round < 300; ++round) {
        double const value = values(random);
        double back = 0.0;
        ASSERT_TRUE(orxAtoF(orxRtoS(value, Orx::lScientific, 6), back));
        EXPECT_NEAR(back, value, 1e-6 * std::fabs(value) + 1e-12);
        ASSERT_TRUE(orxAtoF(orxRtoS(value, Orx::lDecimal, 4), back));
        EXPECT_NEAR(back, value, 0.5e-4 + 1e-9);
        ASSERT_TRUE(orxAtoF(orxRtoS(value, Orx::lEngineering, 3), back));
        EXPECT_NEAR(back, value, 0.5e-3 + 1e-9);
        ASSERT_TRUE(orxAtoF(orxRtoS(value, Orx::lArchitectural, 4), back));
        EXPECT_NEAR(back, value, 1.0 / 32 + 1e-9);
        ASSERT_TRUE(orxAtoF(orxRtoS(value, Orx::lFractional, 3), back));
        EXPECT_NEAR(back, value, 1.0 / 16 + 1e-9);
    }
}
