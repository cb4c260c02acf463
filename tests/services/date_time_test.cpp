#include "orx/services/date_time.h"

#include <gtest/gtest.h>

#include <ctime>
#include <string>
#include <tuple>

#include "test_support.h"

namespace {

using Fields = std::tuple<int, int, int, int, int, int>;

// 2018-03-15 14:30:05 GMT, a Thursday.
constexpr __int64 kSample = 1521124205;
// The time zone of the tests that need one: two hours east of GMT, no summer time.
constexpr char const* kZonePlus2 = "ABC-2";

Fields fieldsOf(ORX::CDateTime const& dt) {
    return {dt.year(), dt.month(), dt.day(), dt.hour(), dt.minute(), dt.second()};
}

ORX::CDateTime at(__int64 t, bool gmt) {
    ORX::CDateTime dt;
    dt.setGMT(gmt);
    dt = t;
    return dt;
}

}  // namespace

TEST(CDateTimeTest, SettersRefuseDatesThatDoNotExist) {
    ORX::CDateTime dt;
    ASSERT_TRUE(dt.setYear(2016));
    ASSERT_TRUE(dt.setDay(30));
    EXPECT_FALSE(dt.setMonth(2));  // no 30 February; the day is not moved
    ASSERT_TRUE(dt.setDay(29));
    EXPECT_TRUE(dt.setMonth(2));  // 2016 is a leap year

    ASSERT_TRUE(dt.setDay(28));
    ASSERT_TRUE(dt.setYear(2100));
    EXPECT_FALSE(dt.setDay(29));  // divisible by 100: no leap year
    ASSERT_TRUE(dt.setYear(2000));
    EXPECT_TRUE(dt.setDay(29));  // divisible by 400: a leap year
    ASSERT_TRUE(dt.setMonth(4));
    ASSERT_TRUE(dt.setHour(23));
    ASSERT_TRUE(dt.setMinute(59));
    ASSERT_TRUE(dt.setSecond(59));

    EXPECT_FALSE(dt.setDay(31));
    EXPECT_FALSE(dt.setDay(0));
    EXPECT_FALSE(dt.setMonth(0));
    EXPECT_FALSE(dt.setMonth(13));
    EXPECT_FALSE(dt.setYear(1969));
    EXPECT_FALSE(dt.setYear(30828));
    EXPECT_FALSE(dt.setHour(24));
    EXPECT_FALSE(dt.setHour(-1));
    EXPECT_FALSE(dt.setMinute(60));
    EXPECT_FALSE(dt.setMinute(-1));
    EXPECT_FALSE(dt.setSecond(60));
    EXPECT_FALSE(dt.setSecond(-2147483647 - 1));
    EXPECT_EQ(fieldsOf(dt), Fields(2000, 4, 29, 23, 59, 59));
}

TEST(CDateTimeTest, SecondsConvertAsGmtOrLocalByTheFlag) {
    orx_test::ScopedEnv zone("TZ", std::string(kZonePlus2));
    EXPECT_EQ(fieldsOf(at(kSample, true)), Fields(2018, 3, 15, 14, 30, 5));
    EXPECT_EQ(static_cast<__int64>(at(kSample, true)), kSample);
    EXPECT_EQ(fieldsOf(at(kSample, false)), Fields(2018, 3, 15, 16, 30, 5));
    EXPECT_EQ(at(kSample, false).time(), kSample);

    // The default value is local midnight of 1 January 1970, before the first second here.
    ORX::CDateTime const start;
    EXPECT_FALSE(start.isGMT());
    EXPECT_EQ(fieldsOf(start), Fields(1970, 1, 1, 0, 0, 0));
    EXPECT_EQ(start.time(), -1);

    // Seconds outside the range leave the value unchanged.
    ORX::CDateTime last = at(ORX::kLatestTime, true);
    EXPECT_EQ(fieldsOf(last), Fields(3000, 12, 31, 23, 59, 59));
    last = ORX::kLatestTime + 1;
    last = -1;
    EXPECT_EQ(last.time(), ORX::kLatestTime);
}

TEST(CDateTimeTest, ToGmtAndToLocalGiveTheSameMoment) {
#ifndef _WIN32  // Windows converts with the system's zone, which TZ does not change
    orx_test::ScopedEnv zone("TZ", std::string(kZonePlus2));
#endif
    ORX::CDateTime const local = at(kSample, false);
    ORX::CDateTime const gmt = local.toGMT();
    EXPECT_TRUE(gmt.isGMT());
    EXPECT_EQ(fieldsOf(gmt), fieldsOf(at(kSample, true)));
    EXPECT_EQ(fieldsOf(gmt.toGMT()), fieldsOf(gmt));
    ORX::CDateTime const back = gmt.toLocal();
    EXPECT_FALSE(back.isGMT());
    EXPECT_EQ(fieldsOf(back), fieldsOf(local));
    EXPECT_EQ(fieldsOf(local.toLocal()), fieldsOf(local));
}

TEST(CDateTimeTest, NowIsTheCurrentTimeWithItsFlag) {
    std::time_t const before = std::time(nullptr);
    ORX::CDateTime const gmt = ORX::CDateTime::now(true);
    ORX::CDateTime const local = ORX::CDateTime::now(false);
    EXPECT_TRUE(gmt.isGMT());
    EXPECT_FALSE(local.isGMT());
    EXPECT_GE(gmt.time(), before);
    EXPECT_LE(local.time(), std::time(nullptr));
}

TEST(CDateTimeConversionTest, TmConversionsNormaliseAndRefuseBadInput) {
    tm fields{};
    fields.tm_year = 118;
    fields.tm_mday = 32;  // 32 January 2018
    __int64 t = 7;
    ASSERT_TRUE(ORX::CDateTime::tmToTime(t, &fields, false));
    EXPECT_EQ(t, 1517443200);  // 2018-02-01 00:00:00 GMT, a Thursday
    EXPECT_EQ(std::make_tuple(fields.tm_mon, fields.tm_mday, fields.tm_wday),
              std::make_tuple(1, 1, 4));

    fields.tm_year = 69;  // 1969: before the first second
    EXPECT_FALSE(ORX::CDateTime::tmToTime(t, &fields, false));
    EXPECT_FALSE(ORX::CDateTime::tmToTime(t, nullptr, false));
    EXPECT_EQ(t, 1517443200);
    EXPECT_FALSE(ORX::CDateTime::timeToTm(nullptr, kSample, false));
    EXPECT_FALSE(ORX::CDateTime::timeToTm(&fields, -1, false));
    EXPECT_FALSE(ORX::CDateTime::timeToTm(&fields, ORX::kLatestTime + 1, false));

    SYSTEMTIME st{};
    st.wMilliseconds = 999;
    ASSERT_TRUE(ORX::CDateTime::timeToSystemTime(&st, kSample, false));
    EXPECT_EQ(std::make_tuple(st.wDayOfWeek, st.wMilliseconds), std::make_tuple(4, 0));
    EXPECT_FALSE(ORX::CDateTime::systemTimeToTm(nullptr, &st, true));
    EXPECT_FALSE(ORX::CDateTime::systemTimeToTime(t, nullptr, true));
    EXPECT_FALSE(ORX::CDateTime::tmToSystemTime(&st, nullptr));
}

// The words come from the C library's locale, so only the numbers are checked.
TEST(DateTimeTextTest, JoinsDateAndTimeAndMarksGmt) {
    orx_test::ScopedEnv zone("TZ", std::string(kZonePlus2));
    COrxString out;
    std::wstring const gmtShort = ORX::dateTime(out, at(kSample, true), false);
    EXPECT_EQ(std::wstring(out), gmtShort);
    EXPECT_NE(gmtShort.find(L"2018"), std::wstring::npos) << gmtShort;
    EXPECT_NE(gmtShort.find(L"30:05"), std::wstring::npos) << gmtShort;
    EXPECT_EQ(gmtShort.substr(gmtShort.size() - 4), L" GMT");
    EXPECT_GT(std::wstring(ORX::dateTime(out, at(kSample, true), true)).size(), gmtShort.size());

    std::wstring const local = ORX::dateTime(out, kSample, false);
    EXPECT_EQ(local, std::wstring(ORX::dateTime(out, at(kSample, false), false)));
    EXPECT_EQ(local.find(L"GMT"), std::wstring::npos) << local;
}
