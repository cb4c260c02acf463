#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>

#include "orx/foundation/string.h"

namespace {

// toMultiByte into a std::string (the escape "!null" stands for a null result).
std::string toBytes(COrxString const& s, int codePage) {
    char* out = reinterpret_cast<char*>(1);
    char* const result = s.toMultiByte(out, codePage);
    std::unique_ptr<char[]> owner(out);
    EXPECT_EQ(result, out);
    return out == nullptr ? std::string("!null") : std::string(out);
}

COrxString fromBytes(char const* bytes, int codePage) {
    return COrxString().fromMultiByte(bytes, codePage);
}

// FNV-1a over the code of each character.
std::uint32_t fingerprint(COrxString const& s) {
    std::uint32_t hash = 2166136261u;
    for (int k = 0; k < s.len(); ++k) {
        hash = (hash ^ static_cast<std::uint32_t>(s[k])) * 16777619u;
    }
    return hash;
}

}  // namespace

TEST(CodePageTest, NullInputAndUnknownCodePagesGiveNull) {
    EXPECT_TRUE(COrxString(L"x").fromMultiByte(nullptr, 1252).isNull());
    EXPECT_TRUE(COrxString(L"x").fromMultiByte("abc", 12345).isNull());
    EXPECT_EQ(toBytes(COrxString(), 1252), "!null");
    EXPECT_EQ(toBytes(COrxString(L"abc"), -1), "!null");
    EXPECT_EQ(fromBytes("", 1252), L"");
    EXPECT_EQ(toBytes(COrxString(L""), 65001), "");
}

TEST(CodePageTest, Utf8BytesAndIllFormedInput) {
    COrxString const text(L"a\u00e4\u20ac\U0001F600");
    EXPECT_EQ(toBytes(text, 65001), "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80");
    EXPECT_EQ(fromBytes("a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80", 65001), text);
    // UTF-8 carries no escapes: the text comes back as written.
    EXPECT_EQ(fromBytes("\\U+0041", 65001), L"\\U+0041");
    EXPECT_EQ(fromBytes("a\xFF"
                        "b",
                        65001),
              L"a\uFFFDb");
    EXPECT_EQ(fromBytes("a\xC3", 65001), L"a\uFFFD");
    EXPECT_EQ(fromBytes("a\xE2\x82"
                        "b",
                        65001),
              L"a\uFFFDb");
    wchar_t const lone[] = {L'a', static_cast<wchar_t>(0xD800), L'b', 0};
    EXPECT_EQ(toBytes(COrxString(lone), 65001),
              "a\xEF\xBF\xBD"
              "b");
}

TEST(CodePageTest, CharactersOutsideTheCodePageSurviveTheRoundTrip) {
    COrxString const text(L"Gr\u00fc\u00dfe \u20ac \u4e2d \u263a \U0001F600 \\U+0041 \\ ok");
    // The same bytes in both builds: escapes by UTF-16 code unit, the literal look-alike
    // escaped too.
    EXPECT_EQ(toBytes(text, 1252),
              "Gr\xFC\xDF"
              "e \x80 \\U+4e2d \\U+263a \\U+d83d\\U+de00 \\U+005cU+0041 \\ ok");
    EXPECT_EQ(fromBytes(toBytes(text, 1252).c_str(), 1252), text);
    int const codePages[] = {437,  850,  852,  866,   932,   936,   1250,  1251,  1252,
                             1253, 1254, 1257, 20866, 28591, 28592, 28595, 28599, 28605};
    for (int codePage : codePages) {
        std::string const bytes = toBytes(text, codePage);
        EXPECT_EQ(fromBytes(bytes.c_str(), codePage), text) << codePage;
    }
    // Text without anything to escape converts as is.
    EXPECT_EQ(toBytes(COrxString(L"plain \\ text"), 1252), "plain \\ text");
}

TEST(CodePageTest, DoubleByteCodePages) {
    EXPECT_EQ(fromBytes("\x93\xFA\x96\x7B", 932), L"\u65e5\u672c");
    EXPECT_EQ(toBytes(COrxString(L"\u65e5\u672c"), 932), "\x93\xFA\x96\x7B");
    EXPECT_EQ(fromBytes("\xD6\xD0\xCE\xC4\x80", 936), L"\u4e2d\u6587\u20ac");
    EXPECT_EQ(toBytes(COrxString(L"\u4e2d\u6587\u20ac"), 936), "\xD6\xD0\xCE\xC4\x80");
    EXPECT_EQ(fromBytes("\\~", 932), L"\\~");
    // Single bytes Windows assigns although glibc does not.
    EXPECT_EQ(fromBytes("\x80\xA0\xFD", 932), L"\u0080\uf8f0\uf8f1");
    EXPECT_EQ(toBytes(COrxString(L"\u0080\uf8f0"), 932), "\x80\xA0");
    // No look-alike stands in for a missing character: the yen sign is escaped, not 0x5C.
    EXPECT_EQ(toBytes(COrxString(L"\u00a5\u00e4"), 932), "\\U+00a5\\U+00e4");
}

TEST(CodePageTest, EveryByteOfTheSingleByteCodePagesDecodesAsOnWindows) {
    struct Table {
        int codePage;
        std::uint32_t fingerprint;  // of the characters Windows gives bytes 1 to 255
    };
    Table const tables[] = {
        {437, 0x8f326242u},   {850, 0xffd4286eu},   {852, 0xb97b41e1u},   {866, 0xff193c0fu},
        {1250, 0x3b6dceb7u},  {1251, 0x5f3b5ea3u},  {1252, 0x80500a1du},  {1253, 0x72241cd8u},
        {1254, 0x3a126fe1u},  {1257, 0x140067e5u},  {20866, 0x0927ade7u}, {28591, 0x6622da47u},
        {28592, 0x48bd1158u}, {28595, 0x287ce263u}, {28599, 0x067582d4u}, {28605, 0x8fb44d0du},
    };
    char bytes[256];
    for (int b = 1; b < 256; ++b) {
        bytes[b - 1] = static_cast<char>(b);
    }
    bytes[255] = 0;
    for (Table const& table : tables) {
        COrxString const text = fromBytes(bytes, table.codePage);
        ASSERT_EQ(text.len(), 255) << table.codePage;
        EXPECT_EQ(fingerprint(text), table.fingerprint) << table.codePage;
        // And every one of them converts back to its byte.
        EXPECT_EQ(toBytes(text, table.codePage), std::string(bytes)) << table.codePage;
    }
    // The five bytes of 1252 that Windows maps to the control characters of their number.
    EXPECT_EQ(fromBytes("\x81\x8D\x8F\x90\x9D", 1252), L"\u0081\u008d\u008f\u0090\u009d");
    EXPECT_EQ(fromBytes("\x80\x9F\xFF", 1252), L"\u20ac\u0178\u00ff");
}

TEST(CodePageTest, CodePagesBeyondTheWesternOnesConvertBothWays) {
    struct Case {
        int codePage;
        char const* bytes;
        wchar_t const* text;
    };
    Case const cases[] = {
        {874, "\xA1\x80", L"\u0e01\u20ac"},      // Thai
        {949, "\xB0\xA1", L"\uac00"},            // Korean
        {950, "\xA4\xA4", L"\u4e2d"},            // Traditional Chinese
        {1255, "\xE0\xF9", L"\u05d0\u05e9"},     // Hebrew, letters without points
        {1256, "\xC7", L"\u0627"},               // Arabic
        {1258, "\xC3", L"\u0102"},               // Vietnamese
        {737, "\x80", L"\u0391"},                // Greek (DOS)
        {10000, "\x80", L"\u00c4"},              // Mac Roman
        {21866, "\xA4", L"\u0454"},              // Cyrillic (KOI8-U)
        {20127, "plain ASCII", L"plain ASCII"},  // US-ASCII
        {28597, "\xE1", L"\u03b1"},              // ISO 8859-7
    };
    for (Case const& c : cases) {
        EXPECT_EQ(fromBytes(c.bytes, c.codePage), c.text) << c.codePage;
        EXPECT_EQ(toBytes(COrxString(c.text), c.codePage), c.bytes) << c.codePage;
        // What the code page cannot hold travels as an escape here too.
        COrxString const foreign(L"\u2603");
        EXPECT_EQ(fromBytes(toBytes(foreign, c.codePage).c_str(), c.codePage), foreign)
            << c.codePage;
    }
}

TEST(CodePageTest, TheSystemCodePagesConvert) {
    for (int codePage : {0, 1}) {
        EXPECT_EQ(fromBytes("abc 123", codePage), L"abc 123") << codePage;
        EXPECT_EQ(toBytes(COrxString(L"abc 123"), codePage), "abc 123") << codePage;
    }
#ifndef _WIN32
    // Linux has no system code pages: ANSI stands for 1252 and OEM for 850.
    EXPECT_EQ(fromBytes("\x80\xFC", 0), L"\u20ac\u00fc");
    EXPECT_EQ(fromBytes("\x81\xD5", 1), L"\u00fc\u0131");
    EXPECT_EQ(toBytes(COrxString(L"\u00fc"), 1), "\x81");
#endif
}
