#include "orx/foundation/text.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/lists.h"

using orx_test::list;

TEST(TextTest, ImplodeJoinsWithTheSeparator) {
    EXPECT_TRUE(ORX::implode(COrxArrayTempl<COrxString>(), L",").isNull());
    EXPECT_EQ(ORX::implode(list({L"a", L"", L"b"}), L", "), L"a, , b");
    EXPECT_EQ(ORX::implode(list({L"a", L"b"}), nullptr), L"ab");
    EXPECT_EQ(ORX::implode(list({L"", L""}), L";"), L";");
}

TEST(TextTest, TokensDropOrKeepEmptyOnes) {
    EXPECT_EQ(ORX::explode(L"  a b,,c ", L" ,", false), list({L"a", L"b", L"c"}));
    EXPECT_EQ(ORX::explode(L"a,,b,", L",", true), list({L"a", L"", L"b", L""}));
    EXPECT_EQ(ORX::explode(L"", L",", true), list({L""}));
    EXPECT_TRUE(ORX::explode(L"", L",", false).isEmpty());
    EXPECT_TRUE(ORX::explode(L",,,", L",", false).isEmpty());
    EXPECT_EQ(ORX::explode(L"a b", L"", true), list({L"a b"}));
    EXPECT_TRUE(ORX::explode(nullptr, L",", true).isEmpty());
    EXPECT_FALSE(ORX::explode(L",x", L",", true)[0].isNull());  // empty, not null

    // strTok appends to what the list holds and counts what it added.
    COrxArrayTempl<COrxString> tokens = list({L"first"});
    EXPECT_EQ(ORX::strTok(tokens, L"x;y", L";", false), 2ul);
    EXPECT_EQ(tokens, list({L"first", L"x", L"y"}));

    // With kept empties, implode undoes explode.
    wchar_t const* const texts[] = {L"", L",", L"a", L",a,,b,", L"a,b"};
    for (wchar_t const* text : texts) {
        EXPECT_EQ(ORX::implode(ORX::explode(text, L",", true), L","), text);
    }
}

TEST(TextTest, AtofReadsTheLeadingDecimalNumber) {
    EXPECT_EQ(ORX::atof(L"20180315.143005"), 20180315.143005);
    EXPECT_EQ(ORX::atof(L"  -2.5e3xyz"), -2500.0);
    EXPECT_EQ(ORX::atof(L"+.5"), 0.5);
    EXPECT_EQ(ORX::atof(L"7."), 7.0);
    EXPECT_EQ(ORX::atof(L"1e"), 1.0);   // an exponent without digits is not read
    EXPECT_EQ(ORX::atof(L"1,5"), 1.0);  // the point is '.' whatever the locale
    EXPECT_EQ(ORX::atof(L"0.1"), 0.1);  // correctly rounded
    EXPECT_EQ(ORX::atof(L"-1e999"), -HUGE_VAL);
    EXPECT_EQ(ORX::atof(L"1e-999"), 0.0);
    EXPECT_EQ(ORX::atof(L"0.000000001e-320"), 0.0);
    EXPECT_EQ(ORX::atof(L"123456789012345678901234567890e300"), HUGE_VAL);
    EXPECT_TRUE(std::isnan(ORX::atof(L"abc")));
    EXPECT_TRUE(std::isnan(ORX::atof(L"-")));
    EXPECT_TRUE(std::isnan(ORX::atof(L".")));
    EXPECT_TRUE(std::isnan(ORX::atof(L"inf")));
    EXPECT_TRUE(std::isnan(ORX::atof(nullptr)));
}
