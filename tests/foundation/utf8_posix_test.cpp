// The Linux conversion of the system's text: valid UTF-8 decodes to its code points, and any
// bytes at all come back unchanged, since names on Linux need not be UTF-8. The conversion
// is internal to the library, so its source is built into this program.
#include <gtest/gtest.h>

#include <string>

#include "orx/foundation/shared/utf8.h"

using ORX::internal::fromUtf8;
using ORX::internal::toUtf8;

TEST(Utf8PosixTest, ValidTextDecodesToItsCodePoints) {
    std::string const bytes = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80";  // a, é, €, U+1F600
    EXPECT_EQ(fromUtf8(bytes), std::wstring(L"a\u00E9\u20AC") + static_cast<wchar_t>(0x1F600));
    EXPECT_EQ(toUtf8(fromUtf8(bytes)), bytes);
    EXPECT_EQ(fromUtf8(std::string("x\0y", 3)), std::wstring(L"x\0y", 3));
}

TEST(Utf8PosixTest, InvalidBytesSurviveTheRoundTrip) {
    struct Case {
        char const* name;
        std::string bytes;
    };
    Case const cases[] = {
        {"stray byte", "dir\xFF"},
        {"lone continuation", "\x80x\xBF"},
        {"overlong", "\xC0\x80\xE0\x80\xAF"},
        {"encoded surrogate", "\xED\xA0\x80"},
        {"beyond U+10FFFF", "\xF4\x90\x80\x80"},
        {"cut off at the end", "ok\xE2\x82"},
        {"cut off by a lead byte", "\xE2\xC3\xA9"},
    };
    for (Case const& c : cases) {
        std::wstring const wide = fromUtf8(c.bytes);
        EXPECT_EQ(toUtf8(wide), c.bytes) << c.name;
        EXPECT_EQ(wide.find(L'\uFFFD'), std::wstring::npos) << c.name;
    }
    // One escape per undecodable byte; the valid sequence after a bad one still decodes.
    EXPECT_EQ(fromUtf8("\xFF\xC3\xA9"), std::wstring(L"\xDCFF\u00E9"));
}

TEST(Utf8PosixTest, WideTextWithoutBytesIsLeftOut) {
    std::wstring const tooLarge(1, static_cast<wchar_t>(0x110000));
    EXPECT_EQ(toUtf8(L"a" + tooLarge + L"b"), "ab");
}
