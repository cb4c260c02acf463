#include "orx/foundation/code_pages.h"

#include <gtest/gtest.h>

#include <cwchar>
#include <memory>
#include <string>

#include "orx/foundation/string.h"

namespace {

using Converter = char* (*)(char*&, char const*);

// The conversion as a std::string ("!null" for a null result).
std::string converted(Converter convert, char const* text) {
    char* out = reinterpret_cast<char*>(1);
    char* const result = convert(out, text);
    std::unique_ptr<char[]> owner(out);
    EXPECT_EQ(result, out);
    return out == nullptr ? std::string("!null") : std::string(out);
}

// The OEM code page of the Arabic countries, for which glibc has no converter.
constexpr int kArabicDos = 720;

// Bytes 1 to 255 in order.
std::string everyByte() {
    std::string bytes;
    for (int b = 1; b < 256; ++b) {
        bytes += static_cast<char>(b);
    }
    return bytes;
}

}  // namespace

TEST(OemAnsiTest, EveryByteRoundTripsBothWays) {
    std::string const bytes = everyByte();
    EXPECT_EQ(converted(ORX::winToDos, converted(ORX::dosToWin, bytes.c_str()).c_str()), bytes);
    EXPECT_EQ(converted(ORX::dosToWin, converted(ORX::winToDos, bytes.c_str()).c_str()), bytes);
    EXPECT_EQ(converted(ORX::dosToWin, "plain text"), "plain text");
    EXPECT_EQ(converted(ORX::dosToWin, nullptr), "!null");
    EXPECT_EQ(converted(ORX::winToDos, ""), "");
}

TEST(OemAnsiTest, ConvertsBetweenTheSystemCodePages) {
    COrxString const text(L"\u00c4rger \u00fcber \u00df");  // in both code pages
    char* oemBytes = nullptr;
    char* ansiBytes = nullptr;
    std::unique_ptr<char[]> oem(text.toMultiByte(oemBytes, 1));
    std::unique_ptr<char[]> ansi(text.toMultiByte(ansiBytes, 0));
    ASSERT_NE(oem, nullptr);
    ASSERT_NE(ansi, nullptr);
    EXPECT_EQ(converted(ORX::dosToWin, oem.get()), ansi.get());
    EXPECT_EQ(converted(ORX::winToDos, ansi.get()), oem.get());
#ifndef _WIN32
    // OEM 850 and ANSI 1252; the box-drawing line travels as an escape.
    EXPECT_EQ(converted(ORX::dosToWin, "\x8E\x81\xC4"), "\xC4\xFC\\U+2500");
    EXPECT_EQ(converted(ORX::winToDos, "\xC4\xFC\\U+2500"), "\x8E\x81\xC4");
#endif
}

TEST(CodePageOfCountryTest, LooksUpTheTableByCodeOrName) {
    EXPECT_EQ(ORX::codePage(L"DE", false), 1252);
    EXPECT_EQ(ORX::codePage(L"germany", true), 850);
    EXPECT_EQ(ORX::codePage(L"pl", false), 1250);
    EXPECT_EQ(ORX::codePage(L"PL", true), 852);
    EXPECT_EQ(ORX::codePage(L"Japan", false), 932);
    EXPECT_EQ(ORX::codePage(L"US", true), 437);
    EXPECT_EQ(ORX::codePage(L"XX", false), -1);
    EXPECT_EQ(ORX::codePage(L"", false), -1);
    EXPECT_EQ(ORX::codePage(L"Germ", false), -1);
    EXPECT_GT(ORX::codePage(nullptr, false), 1);
    EXPECT_GT(ORX::codePage(nullptr, true), 1);
#ifndef _WIN32
    EXPECT_EQ(ORX::codePage(nullptr, false), 1252);
    EXPECT_EQ(ORX::codePage(nullptr, true), 850);
#endif
}

TEST(CountryTableTest, IsOrderedAndEveryCodePageConverts) {
    unsigned long count = 0;
    ORX::CountryEntry const* const table = ORX::orxDlCountrys(count);
    ASSERT_NE(table, nullptr);
    ASSERT_GT(count, 50ul);
    for (unsigned long k = 0; k < count; ++k) {
        ORX::CountryEntry const& country = table[k];
        EXPECT_EQ(std::wcslen(country.isoCode), 2u) << k;
        if (k > 0) {
            EXPECT_LT(std::wcscmp(table[k - 1].isoCode, country.isoCode), 0) << country.isoCode;
        }
        for (int codePage : {country.ansiCodePage, country.oemCodePage}) {
#ifndef _WIN32
            if (codePage == kArabicDos) {
                continue;
            }
#endif
            EXPECT_EQ(COrxString().fromMultiByte("abc", codePage), L"abc")
                << country.isoCode << " " << codePage;
        }
        EXPECT_EQ(ORX::codePage(country.name, false), country.ansiCodePage) << country.isoCode;
    }
}
