#include "orx/foundation/hex_text.h"

#include <string>
#include <string_view>

#include "orx/foundation/internal/string_internal.h"

namespace ORX {

namespace {

constexpr wchar_t const* kHexDigits = L"0123456789abcdef";
// Bytes per line of a dump, and per group within a line.
constexpr unsigned long kDumpLineBytes = 16;
constexpr unsigned long kDumpGroupBytes = 8;
// Digits of the offset at the start of a dump line.
constexpr int kDumpOffsetDigits = 8;

void appendHex(std::wstring& text, unsigned long long value, int digits) {
    for (int k = digits - 1; k >= 0; --k) {
        text += kHexDigits[(value >> (4 * k)) & 0xF];
    }
}

bool isBlank(wchar_t c) {
    return c == L' ' || c == L'\t';
}

bool isPrintable(unsigned char byte) {
    return byte >= 0x20 && byte < 0x7F;
}

void appendDumpLine(std::wstring& text, unsigned char const* line, unsigned long count,
                    unsigned long offset) {
    appendHex(text, offset, kDumpOffsetDigits);
    for (unsigned long k = 0; k < kDumpLineBytes; ++k) {
        text += k % kDumpGroupBytes == 0 ? L"  " : L" ";
        if (k < count) {
            appendHex(text, line[k], 2);
        } else {
            text += L"  ";
        }
    }
    text += L"  |";
    for (unsigned long k = 0; k < count; ++k) {
        text += isPrintable(line[k]) ? static_cast<wchar_t>(line[k]) : L'.';
    }
    text += L"|\n";
}

}  // namespace

COrxString ltox(unsigned long long value) {
    int digits = 1;
    while (digits < 16 && (value >> (4 * digits)) != 0) {
        ++digits;
    }
    std::wstring text;
    appendHex(text, value, digits);
    return COrxString(text.c_str());
}

bool xtol(wchar_t const* text, unsigned long long& value) {
    if (text == nullptr) {
        return false;
    }
    std::wstring_view rest(text);
    while (!rest.empty() && isBlank(rest.front())) {
        rest.remove_prefix(1);
    }
    while (!rest.empty() && isBlank(rest.back())) {
        rest.remove_suffix(1);
    }
    if (rest.size() >= 2 && rest[0] == L'0' && (rest[1] == L'x' || rest[1] == L'X')) {
        rest.remove_prefix(2);
    }
    if (rest.empty()) {
        return false;
    }
    unsigned long long number = 0;
    for (wchar_t c : rest) {
        int const digit = internal::hexDigitValue(c);
        if (digit < 0 || (number >> 60) != 0) {
            return false;
        }
        number = (number << 4) | static_cast<unsigned long long>(digit);
    }
    value = number;
    return true;
}

COrxString dump(unsigned char const* data, unsigned long size) {
    if (data == nullptr && size > 0) {
        return COrxString::kNull;
    }
    std::wstring text;
    for (unsigned long offset = 0; offset < size; offset += kDumpLineBytes) {
        unsigned long const count = size - offset < kDumpLineBytes ? size - offset : kDumpLineBytes;
        appendDumpLine(text, data + offset, count, offset);
    }
    return COrxString(text.c_str());
}

}  // namespace ORX
