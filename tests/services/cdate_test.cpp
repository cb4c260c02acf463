#include <gtest/gtest.h>

#include <ctime>
#include <limits>
#include <random>
#include <tuple>

#include "orx/services/date_time.h"
#include "test_support.h"

namespace {

using Fields = std::tuple<int, int, int, int, int, int>;

// The first second of the year 3000: the round trip stays below the last convertible day.
constexpr __int64 kYear3000 = 32503680000LL;

Fields fieldsOf(tm const& t) {
    return {t.tm_year + 1900, t.tm_mon + 1, t.tm_mday, t.tm_hour, t.tm_min, t.tm_sec};
}

}  // namespace

TEST(CDateTest, ReadsDigitsAsDateAndTimeAndRollsOverlongFieldsOver) {
    struct Case {
        double cdate;
        Fields expected;
    };
    Case const cases[] = {
        {20180315.143005, {2018, 3, 15, 14, 30, 5}},
        {20180315.235959, {2018, 3, 15, 23, 59, 59}},
        {19000101.0, {1900, 1, 1, 0, 0, 0}},
        {20181315.0, {2019, 1, 15, 0, 0, 0}},    // month 13
        {20180300.12, {2018, 2, 28, 12, 0, 0}},  // day 0
    };
    for (Case const& c : cases) {
        tm fields{};
        ASSERT_TRUE(ORX::acadCDateToTm(&fields, c.cdate)) << std::fixed << c.cdate;
        EXPECT_EQ(fieldsOf(fields), c.expected) << std::fixed << c.cdate;
    }
    tm fields{};
    ASSERT_TRUE(ORX::acadCDateToTm(&fields, 20180315.143005));
    EXPECT_EQ(fields.tm_wday, 4);  // normalised: a Thursday
    EXPECT_TRUE(ORX::acadCDateToTm(&fields, 99999999.0));
}

TEST(CDateTest, RefusesValuesOutsideTheDateRangeAndMonthZero) {
    double const inf = std::numeric_limits<double>::infinity();
    for (double cdate : {19000100.0, 18991231.0, 20180015.12, 99999999.5, -20180315.0, inf, -inf,
                         std::numeric_limits<double>::quiet_NaN()}) {
        tm fields{};
        fields.tm_year = 99;
        EXPECT_FALSE(ORX::acadCDateToTm(&fields, cdate)) << cdate;
        EXPECT_EQ(fields.tm_year, 99);  // untouched
        __int64 t = 7;
        EXPECT_FALSE(ORX::acadCDateToTime(t, cdate)) << cdate;
        EXPECT_EQ(t, 7);
    }
    EXPECT_FALSE(ORX::acadCDateToTm(nullptr, 20180315.143005));
}

TEST(CDateTest, SecondsRoundTripThroughCDate) {
    orx_test::ScopedEnv zone("TZ", std::string("ABC-2"));  // every local time exists exactly once
    std::mt19937_64 random(20180315);
    std::uniform_int_distribution<__int64> anyTime(0, kYear3000);
    for (int i = 0; i < 2000; ++i) {
        // Every tenth case ends a minute, where rounding would spill into the next one.
        __int64 const t = i % 10 == 0 ? anyTime(random) / 60 * 60 + 59 : anyTime(random);
        double cdate = 0.0;
        __int64 back = -1;
        ASSERT_TRUE(ORX::timeToAcadCDate(cdate, t)) << t;
        ASSERT_TRUE(ORX::acadCDateToTime(back, cdate)) << t;
        ASSERT_EQ(back, t) << std::fixed << cdate;
    }
    double cdate = 0.0;
    ASSERT_TRUE(ORX::timeToAcadCDate(cdate, 1521124205));  // 2018-03-15 14:30:05 GMT
    EXPECT_EQ(cdate, 20180315.163005);                     // the local time's digits, exactly
    EXPECT_FALSE(ORX::timeToAcadCDate(cdate, -1));
    EXPECT_FALSE(ORX::tmToAcadCDate(cdate, nullptr));
}
