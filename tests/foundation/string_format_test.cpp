#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "orx/foundation/string.h"

namespace {

// The formatted text, narrowed for readable failure messages (the expected texts are ASCII).
template <class... Args>
std::string formatted(wchar_t const* fmt, Args... args) {
    COrxString s;
    s.format(fmt, args...);
    std::string out;
    for (int k = 0; k < s.len(); ++k) {
        out += static_cast<char>(s[k]);
    }
    return out;
}

}  // namespace

// The same texts are expected in the Linux and the Windows builds.
TEST(COrxStringFormatTest, StringsAndCharactersFollowTheWindowsConventions) {
    EXPECT_EQ(formatted(L"%s|%S", L"wide", "narrow"), "wide|narrow");
    EXPECT_EQ(formatted(L"%ls|%hs|%ws", L"a", "b", L"c"), "a|b|c");
    EXPECT_EQ(formatted(L"%c%C%lc%hc", L'w', 'n', L'x', 'y'), "wnxy");
    EXPECT_EQ(formatted(L"[%6s][%-6s][%.2s][%6.2s]", L"abc", L"abc", L"abc", L"abc"),
              "[   abc][abc   ][ab][    ab]");
    EXPECT_EQ(formatted(L"[%05s][%-3c]", L"ab", L'q'), "[000ab][q  ]");
    EXPECT_EQ(formatted(L"[%*s][%-*s][%.*s]", 4, L"x", 4, L"y", 1, L"zz"), "[   x][y   ][z]");
    EXPECT_EQ(formatted(L"[%*s]", -3, L"x"), "[x  ]");
    EXPECT_EQ(formatted(L"%s|%S", static_cast<wchar_t const*>(nullptr),
                        static_cast<char const*>(nullptr)),
              "(null)|(null)");
}

TEST(COrxStringFormatTest, IntegersFollowC99) {
    EXPECT_EQ(formatted(L"%d|%i|%u|%x|%X|%o", -42, 7, 3000000000u, 255, 255, 8),
              "-42|7|3000000000|ff|FF|10");
    EXPECT_EQ(
        formatted(L"[%5d][%-5d][%05d][%+d][% d][%.3d][%#x][%#o]", 42, 42, -42, 42, 42, 7, 255, 8),
        "[   42][42   ][-0042][+42][ 42][007][0xff][010]");
    EXPECT_EQ(formatted(L"%lld|%I64d|%I64u|%llx", -1234567890123LL, 1LL << 40,
                        18446744073709551615ULL, 0x1234567890ULL),
              "-1234567890123|1099511627776|18446744073709551615|1234567890");
    EXPECT_EQ(formatted(L"%hd|%hu|%hhd|%hhu", 70000, 70000, 300, 300), "4464|4464|44|44");
    EXPECT_EQ(formatted(L"%ld|%lu|%zu|%Iu|%I32d", -5L, 5UL, std::size_t{6}, std::size_t{7}, 8),
              "-5|5|6|7|8");
    EXPECT_EQ(formatted(L"%x", -1), "ffffffff");
}

TEST(COrxStringFormatTest, FloatingPointWritesTheSameTextEverywhere) {
    EXPECT_EQ(formatted(L"%f|%.2f|%8.3f|%-8.1f|%08.2f", 3.14159, 2.675, -1.5, 2.25, -3.14159),
              "3.141590|2.67|  -1.500|2.2     |-0003.14");
    EXPECT_EQ(formatted(L"%g|%g|%g|%g|%G", 0.0001, 123456.0, 1234567.0, 1e-5, 1e-10),
              "0.0001|123456|1.23457e+06|1e-05|1E-10");
    EXPECT_EQ(formatted(L"%e|%.2E|%#.0f|%#g", 12345.678, 0.000123, 3.0, 1.5),
              "1.234568e+04|1.23E-04|3.|1.50000");
    EXPECT_EQ(formatted(L"%.0f|%.0f|%.1f", 0.5, 1.5, 0.05), "0|2|0.1");
    EXPECT_EQ(formatted(L"%.17g|%.3Lf", 0.1, static_cast<long double>(2.5)),
              "0.10000000000000001|2.500");
    double const inf = std::numeric_limits<double>::infinity();
    double const nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(
        formatted(L"%f|%e|%g|%+f|%F|%6.2f|%-5f|%05f", inf, -inf, nan, inf, inf, nan, inf, -inf),
        "inf|-inf|nan|+inf|INF|   nan|inf  | -inf");
}

TEST(COrxStringFormatTest, PercentPointerAndOddConversions) {
    EXPECT_EQ(formatted(L"100%% sure"), "100% sure");
    std::string const pointer = formatted(L"%p", reinterpret_cast<void*>(0x12ab));
    EXPECT_EQ(pointer, std::string(sizeof(void*) * 2 - 4, '0') + "12AB");
    EXPECT_EQ(formatted(L"[%y|%k]%d", 5), "[%y|%k]5");  // unknown: copied, no argument used
    EXPECT_EQ(formatted(L"tail %"), "tail %");
    EXPECT_EQ(formatted(L"tail %-5"), "tail %-5");
    int ignored = 0;
    EXPECT_EQ(formatted(L"a%nb", &ignored), "ab");
    EXPECT_EQ(ignored, 0);
}

TEST(COrxStringFormatTest, LongResultsKeepEveryCharacter) {
    std::wstring const part(100, L'x');
    COrxString s;
    s.format(L"%s-%s-%s", part.c_str(), part.c_str(), part.c_str());  // 302 characters
    ASSERT_EQ(s.len(), 302);
    EXPECT_EQ(s[100], L'-');
    EXPECT_EQ(s[-1], L'x');
    // Around the string's own capacities (it doubles from 16 characters).
    std::wstring const edge(127, L'e');
    EXPECT_EQ(COrxString().format(L"%s", edge.c_str()).len(), 127);
    EXPECT_EQ(COrxString().format(L"%s!", edge.c_str()).len(), 128);
    std::wstring const big(70000, L'b');
    EXPECT_EQ(COrxString().format(L"%s%d", big.c_str(), 12).len(), 70002);
}

TEST(COrxStringFormatTest, AResultBeyondTheLargestStringIsMeasuredNotMade) {
    // 2^30 + 2 characters: the null string, told from the length alone (the padding is
    // counted, not written, so this takes no memory and no time).
    int const half = (1 << 29) + 1;
    COrxString s(L"before");
    EXPECT_TRUE(s.format(L"%*s%*s", half, L"a", half, L"b").isNull());
    // The arguments are read again for the text itself: a width taken from them and an
    // argument of the string being formatted both survive the measuring.
    s = L"abc";
    s.format(L"[%*s|%s]", 5, static_cast<wchar_t const*>(s), static_cast<wchar_t const*>(s));
    EXPECT_EQ(std::wstring(s), L"[  abc|abc]");
}

TEST(COrxStringFormatTest, NullFormatGivesTheNullString) {
    COrxString s(L"before");
    EXPECT_TRUE(s.format(nullptr).isNull());
    EXPECT_EQ(s.format(L"").len(), 0);
    EXPECT_FALSE(s.isNull());
}
