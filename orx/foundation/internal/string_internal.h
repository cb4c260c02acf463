// Limits and helpers shared by the source files of COrxString.
#ifndef ORX_FOUNDATION_INTERNAL_STRING_INTERNAL_H
#define ORX_FOUNDATION_INTERNAL_STRING_INTERNAL_H

#include <cstdarg>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace ORX {
namespace internal {

// The capacity a new string buffer starts with, in characters.
constexpr std::uint32_t kInitialCapacity = 16;
// The largest capacity a string grows to (2^30 characters): the length is a signed 32-bit
// number and the doubling must stay within 32 bits.
constexpr std::uint32_t kMaxCapacity = 1u << 30;

// wchar_t holds UTF-16 code units (Windows) rather than UTF-32 code points (Linux).
constexpr bool kUtf16 = sizeof(wchar_t) == 2;

inline bool isHighSurrogate(std::uint32_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}

inline bool isLowSurrogate(std::uint32_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

// The number of wchar_t that make the character at the start of text: 2 for a surrogate
// pair in UTF-16, else 1 (0 for empty text).
inline std::size_t characterLength(std::wstring_view text) {
    if (text.empty()) {
        return 0;
    }
    if (kUtf16 && text.size() >= 2 && isHighSurrogate(static_cast<std::uint16_t>(text[0])) &&
        isLowSurrogate(static_cast<std::uint16_t>(text[1]))) {
        return 2;
    }
    return 1;
}

// The code point of a character of one or two wchar_t (see characterLength).
inline std::uint32_t codePoint(std::wstring_view character) {
    auto const first = static_cast<std::uint32_t>(character[0]);
    if (kUtf16) {
        std::uint32_t const high = first & 0xFFFF;
        if (character.size() == 2) {
            auto const low = static_cast<std::uint32_t>(character[1]) & 0xFFFF;
            return 0x10000 + ((high - 0xD800) << 10) + (low - 0xDC00);
        }
        return high;
    }
    return first;
}

// Appends a code point as one or two wchar_t.
inline void appendCodePoint(std::wstring& out, std::uint32_t code) {
    if (kUtf16 && code > 0xFFFF) {
        out += static_cast<wchar_t>(0xD800 + ((code - 0x10000) >> 10));
        out += static_cast<wchar_t>(0xDC00 + ((code - 0x10000) & 0x3FF));
    } else {
        out += static_cast<wchar_t>(code);
    }
}

// Value of a hex digit, or -1.
inline int hexDigitValue(wchar_t c) {
    if (c >= L'0' && c <= L'9') {
        return c - L'0';
    }
    if (c >= L'a' && c <= L'f') {
        return c - L'a' + 10;
    }
    if (c >= L'A' && c <= L'F') {
        return c - L'A' + 10;
    }
    return -1;
}

// The \U+hhhh escapes of COrxString::escapeWideChar, with the set of characters to escape
// given by mustEscape (called with one character of one or two wchar_t).
std::wstring escapeWideChars(std::wstring_view text,
                             std::function<bool(std::wstring_view)> const& mustEscape);
// Whether escapeWideChars must rewrite a backslash of text (one followed by "U+").
bool hasEscapeLookalike(std::wstring_view text);
std::wstring unescapeWideChars(std::wstring_view text);

// printf-style formatting with Windows' wide-format conventions into buffer of size
// characters (terminator included). Returns the number of characters written, or -1 when
// the result and its terminator do not fit.
int formatWide(wchar_t* buffer, std::size_t size, wchar_t const* fmt, va_list args);
// The length formatWide's result has (terminator not counted), without writing it.
std::size_t formattedLength(wchar_t const* fmt, va_list args);

}  // namespace internal
}  // namespace ORX

#endif  // ORX_FOUNDATION_INTERNAL_STRING_INTERNAL_H
