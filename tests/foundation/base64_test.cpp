#include "orx/foundation/base64.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

COrxArrayTempl<unsigned char> bytesOf(std::string const& s) {
    COrxArrayTempl<unsigned char> bytes;
    for (char c : s) {
        bytes.append(static_cast<unsigned char>(c));
    }
    return bytes;
}

}  // namespace

TEST(Base64Test, EncodesTheStandardVectors) {
    // RFC 4648, section 10.
    char const* const vectors[][2] = {{"", ""},
                                      {"f", "Zg=="},
                                      {"fo", "Zm8="},
                                      {"foo", "Zm9v"},
                                      {"foob", "Zm9vYg=="},
                                      {"fooba", "Zm9vYmE="},
                                      {"foobar", "Zm9vYmFy"}};
    for (auto const& v : vectors) {
        COrxString const encoded = ORX::base64Encode(bytesOf(v[0]));
        EXPECT_FALSE(encoded.isNull());
        EXPECT_EQ(std::wstring(encoded), std::wstring(v[1], v[1] + std::string(v[1]).size()));
        COrxArrayTempl<unsigned char> decoded;
        ASSERT_TRUE(ORX::base64Decode(decoded, encoded)) << v[1];
        EXPECT_EQ(decoded, bytesOf(v[0])) << v[1];
    }
    unsigned char const highBits[] = {0xFB, 0xFF, 0xBF};
    EXPECT_EQ(ORX::base64Encode(highBits, 3), L"+/+/");
    EXPECT_TRUE(ORX::base64Encode(nullptr, 1).isNull());
    EXPECT_EQ(ORX::base64Encode(nullptr, 0), L"");
}

TEST(Base64Test, EveryByteStringRoundTrips) {
    std::mt19937 random(20170523);
    for (int length = 0; length < 200; ++length) {
        COrxArrayTempl<unsigned char> bytes;
        for (int k = 0; k < length; ++k) {
            bytes.append(static_cast<unsigned char>(random()));
        }
        COrxArrayTempl<unsigned char> back;
        ASSERT_TRUE(ORX::base64Decode(back, ORX::base64Encode(bytes))) << length;
        EXPECT_EQ(back, bytes) << length;
    }
}

TEST(Base64Test, DecodingSkipsLineBreaksAndRejectsBadInput) {
    COrxArrayTempl<unsigned char> bytes;
    ASSERT_TRUE(ORX::base64Decode(bytes, L" Zm9v\r\nYmFy\t"));
    EXPECT_EQ(bytes, bytesOf("foobar"));

    wchar_t const* const bad[] = {
        L"Zm9",       // length
        L"Zm9v!mFy",  // outside the alphabet
        L"Zg==Zm9v",  // padding before the end
        L"Z===",      // too much padding
        L"Zm=v",      // padding in the middle
        L"Zh==",      // unused bits not zero
        L"Zm9=",      // ... of the two-byte form
        L"Zm9v\u00e4A==",
    };
    for (wchar_t const* text : bad) {
        COrxArrayTempl<unsigned char> untouched = bytesOf("x");
        EXPECT_FALSE(ORX::base64Decode(untouched, text)) << text;
        EXPECT_EQ(untouched, bytesOf("x")) << text;
    }
    EXPECT_FALSE(ORX::base64Decode(bytes, nullptr));
    ASSERT_TRUE(ORX::base64Decode(bytes, L""));
    EXPECT_TRUE(bytes.isEmpty());
}
