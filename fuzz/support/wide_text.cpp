#include "wide_text.h"

#include <cstdio>

namespace {

// The characters the string functions treat specially: escapes, references, wildcards,
// alternatives, quotes, environment references and hex digits.
wchar_t const kSpecial[] = L"\\%&;#U+*?,<>\"' xX0123456789abcdefABCDEFampltgquoEnvs\t\n\r";
constexpr unsigned kSpecialCount = sizeof(kSpecial) / sizeof(kSpecial[0]) - 1;

// Code points outside ASCII: Latin-1 letters and signs, the byte order mark, the euro sign,
// a CJK character, the replacement character and one beyond the Basic Multilingual Plane.
char32_t const kWide[] = {0xA0,  0xA9,   0xB0,   0xE4,   0xE9,   0xDF,    0xFF,    0x152,
                          0x3A9, 0x20AC, 0x4E2D, 0xFEFF, 0xFFFD, 0x1F600, 0x10FFFF};
constexpr unsigned kWideCount = sizeof(kWide) / sizeof(kWide[0]);

// Units a well-formed text never holds: unpaired surrogates and, where wchar_t has 32
// bits, values past the last code point.
char32_t const kMalformed[] = {0xD800, 0xDBFF, 0xDC00, 0xDFFF, 0x110000, 0x7FFFFFFF};
constexpr unsigned kMalformedCount = sizeof(kMalformed) / sizeof(kMalformed[0]);

void appendCodePoint(std::wstring& text, char32_t c) {
    if (sizeof(wchar_t) == 2 && c > 0xFFFF) {
        if (c > 0x10FFFF) {
            text += static_cast<wchar_t>(0xFFFF);
            return;
        }
        char32_t const v = c - 0x10000;
        text += static_cast<wchar_t>(0xD800 + (v >> 10));
        text += static_cast<wchar_t>(0xDC00 + (v & 0x3FF));
        return;
    }
    text += static_cast<wchar_t>(c);
}

}  // namespace

std::wstring decodeWideText(FuzzInput& in, std::size_t maxLength, bool wellFormed) {
    std::size_t const length = in.below(static_cast<unsigned>(maxLength) + 1);
    std::wstring text;
    for (std::size_t i = 0; i < length && !in.atEnd(); ++i) {
        std::uint8_t const kind = in.byte();
        if (kind < 96) {
            text += static_cast<wchar_t>(L' ' + kind % 95);
        } else if (kind < 176) {
            text += kSpecial[in.below(kSpecialCount)];
        } else if (kind < 216) {
            appendCodePoint(text, kWide[in.below(kWideCount)]);
        } else if (kind < 232) {
            text += static_cast<wchar_t>(1 + in.below(31));
        } else if (kind < 248 || wellFormed) {
            appendCodePoint(text, 0xA0 + in.u16() % 0xD700);
        } else {
            char32_t const c = kMalformed[in.below(kMalformedCount)];
            // 16 bits hold no value past the last code point: a non-character instead.
            text += static_cast<wchar_t>(sizeof(wchar_t) == 2 && c > 0xFFFF ? 0xFFFF : c);
        }
    }
    return text;
}

std::wstring decodeAsciiName(FuzzInput& in, std::size_t maxLength) {
    wchar_t const alphabet[] = L"abcXYZ019_ .-";
    std::size_t const length = in.below(static_cast<unsigned>(maxLength) + 1);
    std::wstring name;
    for (std::size_t i = 0; i < length; ++i) {
        name += alphabet[in.below(sizeof(alphabet) / sizeof(alphabet[0]) - 1)];
    }
    return name;
}

std::string printable(std::wstring const& text) {
    std::string out;
    for (wchar_t c : text) {
        if (c >= 0x20 && c < 0x7F) {
            out += static_cast<char>(c);
        } else {
            char hex[24];
            std::snprintf(hex, sizeof hex, "\\x{%lx}", static_cast<unsigned long>(c));
            out += hex;
        }
    }
    return out;
}
