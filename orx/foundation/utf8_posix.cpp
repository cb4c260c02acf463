#include "orx/foundation/shared/utf8.h"

namespace ORX::internal {
namespace {

// Where undecodable bytes 0x80..0xFF go, and the largest code point.
constexpr char32_t kEscapedByteBase = 0xDC00;
constexpr char32_t kEscapedFirst = 0xDC80;
constexpr char32_t kEscapedLast = 0xDCFF;
constexpr char32_t kMaxCodePoint = 0x10FFFF;

bool isContinuation(unsigned char byte) {
    return (byte & 0xC0) == 0x80;
}

// The length of the sequence a lead byte opens, its payload bits and the smallest code point
// that may use that length (shorter forms are invalid); 0 for a byte that opens none.
int sequenceLength(unsigned char lead, char32_t& bits, char32_t& smallest) {
    if (lead < 0x80) {
        bits = lead;
        smallest = 0;
        return 1;
    }
    if ((lead & 0xE0) == 0xC0) {
        bits = lead & 0x1F;
        smallest = 0x80;
        return 2;
    }
    if ((lead & 0xF0) == 0xE0) {
        bits = lead & 0x0F;
        smallest = 0x800;
        return 3;
    }
    if ((lead & 0xF8) == 0xF0) {
        bits = lead & 0x07;
        smallest = 0x10000;
        return 4;
    }
    return 0;
}

// Decodes one sequence at text[at]; returns its length, or 0 when it is not valid UTF-8.
std::size_t decodeOne(std::string_view text, std::size_t at, char32_t& codePoint) {
    char32_t smallest = 0;
    int const length = sequenceLength(static_cast<unsigned char>(text[at]), codePoint, smallest);
    if (length == 0 || at + static_cast<std::size_t>(length) > text.size()) {
        return 0;
    }
    for (int i = 1; i < length; ++i) {
        auto const byte = static_cast<unsigned char>(text[at + static_cast<std::size_t>(i)]);
        if (!isContinuation(byte)) {
            return 0;
        }
        codePoint = (codePoint << 6) | (byte & 0x3F);
    }
    bool const surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    if (codePoint < smallest || codePoint > kMaxCodePoint || surrogate) {
        return 0;
    }
    return static_cast<std::size_t>(length);
}

void appendUtf8(std::string& out, char32_t c) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

}  // namespace

std::wstring fromUtf8(std::string_view text) {
    std::wstring wide;
    std::size_t at = 0;
    while (at < text.size()) {
        char32_t codePoint = 0;
        std::size_t const length = decodeOne(text, at, codePoint);
        if (length == 0) {
            codePoint = kEscapedByteBase + static_cast<unsigned char>(text[at]);
            ++at;
        } else {
            at += length;
        }
        wide += static_cast<wchar_t>(codePoint);
    }
    return wide;
}

std::string toUtf8(std::wstring_view text) {
    std::string out;
    for (wchar_t const character : text) {
        auto const c = static_cast<char32_t>(character);
        if (c >= kEscapedFirst && c <= kEscapedLast) {
            out += static_cast<char>(c - kEscapedByteBase);
        } else if (c <= kMaxCodePoint) {
            appendUtf8(out, c);
        }
    }
    return out;
}

}  // namespace ORX::internal
