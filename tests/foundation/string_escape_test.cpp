#include <gtest/gtest.h>

#include <iterator>
#include <random>
#include <string>

#include "orx/foundation/string.h"

#if defined(_WIN32)
#include <windows.h>
#else
#include <cstdlib>
#endif

namespace {

// Texts of characters that each escape must handle: markup, backslashes, controls,
// Latin-1, the euro sign, a character outside the Basic Multilingual Plane (two wchar_t on
// Windows, one on Linux) and look-alikes of the escapes themselves.
std::wstring randomText(std::mt19937& random) {
    static wchar_t const* const pieces[] = {
        L"a",      L"Z",      L" ",          L"&",  L"<",        L">",     L"\"",
        L"'",      L"\\",     L"\t",         L"\n", L"\x01",     L"\x7f",  L"\u00e4",
        L"\u00df", L"\u20ac", L"\U0001F600", L"U+", L"\\U+0041", L"&amp;", L"&#65;",
        L"\\x41",  L"\\n",    L"%",          L";",  L"#",        L"x"};
    std::uniform_int_distribution<int> count(0, 12);
    std::uniform_int_distribution<std::size_t> pick(0, std::size(pieces) - 1);
    std::wstring text;
    for (int k = count(random); k > 0; --k) {
        text += pieces[pick(random)];
    }
    return text;
}

// ORX_TEST_EXPAND = "W\u00e4rme", UTF-8 encoded in the POSIX environment.
void setTestVariable() {
#if defined(_WIN32)
    SetEnvironmentVariableW(L"ORX_TEST_EXPAND", L"W\u00e4rme");
#else
    setenv("ORX_TEST_EXPAND", "W\xC3\xA4rme", 1);
#endif
}

}  // namespace

TEST(COrxStringEscapeTest, BackslashEscapes) {
    COrxString s(L"a\\b\tc\nd\re\x01\x1f\x7f\a\b\f\v\u00e4");
    s.escape();
    EXPECT_EQ(s, L"a\\\\b\\tc\\nd\\re\\x01\\x1f\\x7f\\a\\b\\f\\v\u00e4");
    s.unEscape();
    EXPECT_EQ(s, L"a\\b\tc\nd\re\x01\x1f\x7f\a\b\f\v\u00e4");
    // Sequences that escape() never writes are kept as written.
    EXPECT_EQ(COrxString(L"\\q \\x4 \\x00 \\xg1 end\\").unEscape(), L"\\q \\x4 \\x00 \\xg1 end\\");
    EXPECT_EQ(COrxString(L"\\x41\\X41\\x4a").unEscape(), L"A\\X41J");
    EXPECT_TRUE(COrxString().escape().isNull());
}

TEST(COrxStringEscapeTest, HtmlReferences) {
    EXPECT_EQ(COrxString(L"<a href=\"x\">&'</a>").escapeHtmlSpecial(),
              L"&lt;a href=&quot;x&quot;&gt;&amp;&#39;&lt;/a&gt;");
    EXPECT_EQ(COrxString(L"\u00e4\n<\U0001F600").escapeHtml(L"\n"), L"&#228;&#10;&lt;&#128512;");
    EXPECT_EQ(COrxString(L"plain").escapeHtml(nullptr), L"plain");
    EXPECT_EQ(COrxString(L"&amp;lt; &#x41;&#65;&euro;&nbsp;&szlig;&#128512;").unEscapeHtml(),
              L"&lt; AA\u20ac\u00a0\u00df\U0001F600");
    // Not references: kept as written.
    wchar_t const* const kept[] = {L"&foo;", L"&#;",           L"& text;", L"&#1114112;",
                                   L"&#x;",  L"&#12a;",        L"&amp",    L"&",
                                   L"&#0;",  L"&verylongname;"};
    for (wchar_t const* text : kept) {
        EXPECT_EQ(COrxString(text).unEscapeHtml(), text);
    }
}

TEST(COrxStringEscapeTest, WideCharacterEscapes) {
    COrxString s(L"Gr\u00fc\u00dfe \u20ac \U0001F600 \\U+0041 \\x");
    s.escapeWideChar();
    // The same text on both platforms: one escape per UTF-16 code unit.
    EXPECT_EQ(s, L"Gr\\U+00fc\\U+00dfe \\U+20ac \\U+d83d\\U+de00 \\U+005cU+0041 \\x");
    s.unEscapeWideChar();
    EXPECT_EQ(s, L"Gr\u00fc\u00dfe \u20ac \U0001F600 \\U+0041 \\x");
    EXPECT_EQ(COrxString(L"\\U+00FC\\U+00f \\U+\\U+zzzz").unEscapeWideChar(),
              L"\u00fc\\U+00f \\U+\\U+zzzz");
}

TEST(COrxStringEscapeTest, EveryEscapeRoundTripsOnRandomTexts) {
    std::mt19937 random(20240531);
    for (int round = 0; round < 500; ++round) {
        std::wstring const text = randomText(random);
        COrxString const original(text.c_str());
        EXPECT_EQ(COrxString(original).escape().unEscape(), original);
        EXPECT_EQ(COrxString(original).escapeHtmlSpecial().unEscapeHtml(), original);
        EXPECT_EQ(COrxString(original).escapeHtml(L"\t\n").unEscapeHtml(), original);
        COrxString ascii(original);
        EXPECT_EQ(COrxString(ascii.escapeWideChar()).unEscapeWideChar(), original);
        for (int k = 0; k < ascii.len(); ++k) {
            EXPECT_LT(static_cast<unsigned>(ascii[k]), 0x80u);  // nothing outside ASCII
        }
    }
}

TEST(COrxStringEscapeTest, EnvironmentReferencesExpandAndUnknownOnesStay) {
    setTestVariable();
    COrxString s(
        L"x%ORX_TEST_EXPAND%y|%orx_test_expand%|%ORX_TEST_UNDEFINED%ORX_TEST_EXPAND%|"
        L"100%|%%|%");
    s.expandEnvironmentStrings();
    EXPECT_EQ(s, L"xW\u00e4rmey|W\u00e4rme|%ORX_TEST_UNDEFINED%ORX_TEST_EXPAND%|100%|%%|%");
    EXPECT_TRUE(COrxString().expandEnvironmentStrings().isNull());
    EXPECT_EQ(COrxString(L"").expandEnvironmentStrings(), L"");
}
