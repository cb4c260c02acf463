#include "orx/foundation/text_increment.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::wstring text(COrxString const& s) {
    return s.isNull() ? std::wstring(L"<null>") : std::wstring(s);
}

}  // namespace

TEST(StrIncrementTest, CountsTheRunUp) {
    struct Case {
        wchar_t const* name;
        wchar_t const* next;
    };
    Case const cases[] = {
        {L"Plate9", L"Plate10"},  // a carry that lengthens the run
        {L"B-09", L"B-10"},       // leading zeros kept
        {L"B-099", L"B-100"},     // ... while one can take the carry
        {L"P000", L"P001"},
        {L"99", L"100"},
        {L"Plan 3.dwg", L"Plan 4.dwg"},  // the last digit run counts, the tail stays
        {L"12a", L"13a"},                // digits before letters
        {L"A", L"B"},
        {L"Z", L"AA"},  // letters carry as spreadsheet columns do
        {L"AZ", L"BA"},
        {L"ZZ", L"AAA"},
        {L"Axis c", L"Axis d"},
        {L"Axis-zz", L"Axis-aaa"},
        {L"Plate", L"Plate1"},              // no run: mixed case
        {L"Tr\u00e4ger", L"Tr\u00e4ger1"},  // no run: not ASCII
        {L"-", L"-1"},
        {L"", L"1"},
    };
    for (Case const& c : cases) {
        EXPECT_EQ(text(ORX::str_increment(c.name)), c.next) << c.name;
    }
    EXPECT_TRUE(ORX::str_increment(nullptr).isNull());
}

TEST(StrIncrementTest, CountingOnFromTheStartVisitsEveryNameOnce) {
    COrxString name(L"Z8");
    for (int k = 0; k < 3; ++k) {
        name = ORX::str_increment(name);
    }
    EXPECT_EQ(text(name), L"Z11");
    COrxString letters(L"Y");
    for (int k = 0; k < 28; ++k) {
        letters = ORX::str_increment(letters);
    }
    EXPECT_EQ(text(letters), L"BA");  // Z, AA ... AZ, BA
}

TEST(StrIncrParseTest, SplitsStemDelimiterRunAndTail) {
    struct Case {
        wchar_t const* name;
        ORX::IncrType type;
        wchar_t const* stem;
        wchar_t const* delimiter;
        wchar_t const* run;
        wchar_t const* tail;
    };
    Case const cases[] = {
        {L"B-09", ORX::IncrType::digits, L"B", L"-", L"09", L""},
        {L"Plan 3.dwg", ORX::IncrType::digits, L"Plan", L" ", L"3", L".dwg"},
        {L"Plate9", ORX::IncrType::digits, L"Plate", L"", L"9", L""},
        {L"Axis - C", ORX::IncrType::upperLetters, L"Axis", L" - ", L"C", L""},
        {L"c", ORX::IncrType::lowerLetters, L"", L"", L"c", L""},
    };
    for (Case const& c : cases) {
        COrxString stem, delimiter, run, tail;
        ASSERT_TRUE(ORX::str_incr_parse(c.name, stem, delimiter, run, tail)) << c.name;
        EXPECT_EQ(text(stem) + L"|" + text(delimiter) + L"|" + text(run) + L"|" + text(tail),
                  std::wstring(c.stem) + L"|" + c.delimiter + L"|" + c.run + L"|" + c.tail);
        EXPECT_EQ(ORX::str_incr_type(c.name), c.type) << c.name;
        EXPECT_EQ(text(ORX::str_incr_delimit(c.name)), c.delimiter) << c.name;
        EXPECT_EQ(text(ORX::str_name(c.name)), c.stem) << c.name;
    }

    COrxString untouched(L"x");
    EXPECT_FALSE(ORX::str_incr_parse(L"Plate", untouched, untouched, untouched, untouched));
    EXPECT_FALSE(ORX::str_incr_parse(nullptr, untouched, untouched, untouched, untouched));
    EXPECT_EQ(text(untouched), L"x");
    EXPECT_EQ(ORX::str_incr_type(L"Plate"), ORX::IncrType::none);
    EXPECT_EQ(ORX::str_incr_type(nullptr), ORX::IncrType::none);
    EXPECT_EQ(text(ORX::str_incr_delimit(L"Plate")), L"");
    EXPECT_EQ(text(ORX::str_name(L"Plate")), L"Plate");
    EXPECT_TRUE(ORX::str_name(nullptr).isNull());
    EXPECT_TRUE(ORX::str_incr_delimit(nullptr).isNull());
}
