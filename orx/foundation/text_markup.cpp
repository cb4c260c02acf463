#include "orx/foundation/text_markup.h"

#include <cstdint>
#include <string>
#include <string_view>

#include "orx/foundation/internal/string_internal.h"

namespace ORX {

namespace {

// What opens and closes the RTF document: version 1, the ANSI character set, font 0.
constexpr wchar_t const* kRtfOpening = L"{\\rtf1\\ansi\\deff0 ";
constexpr wchar_t const* kRtfClosing = L"}";
constexpr wchar_t const* kRtfParagraph = L"\\par\n";

// A UTF-16 code unit as RTF writes it: a signed 16-bit number.
void appendUnicodeUnit(std::wstring& rtf, std::uint32_t unit) {
    auto const number = static_cast<std::int16_t>(static_cast<std::uint16_t>(unit));
    rtf += L"\\u" + std::to_wstring(number) + L'?';
}

void appendCharacter(std::wstring& rtf, std::wstring_view character) {
    std::uint32_t const code = internal::codePoint(character);
    if (code > 0xFFFF) {
        appendUnicodeUnit(rtf, 0xD800 + ((code - 0x10000) >> 10));
        appendUnicodeUnit(rtf, 0xDC00 + ((code - 0x10000) & 0x3FF));
    } else if (code > 0x7F) {
        appendUnicodeUnit(rtf, code);
    } else if (code == L'\\' || code == L'{' || code == L'}') {
        rtf += L'\\';
        rtf += static_cast<wchar_t>(code);
    } else if (code == L'\t') {
        rtf += L"\\tab ";
    } else if (code >= 0x20 && code != 0x7F) {
        rtf += static_cast<wchar_t>(code);
    }
}

}  // namespace

COrxString htmlSpecialChars(wchar_t const* text) {
    COrxString escaped(text);
    return escaped.escapeHtmlSpecial();
}

COrxString txtToRTF(wchar_t const* text) {
    if (text == nullptr) {
        return COrxString::kNull;
    }
    std::wstring rtf = kRtfOpening;
    std::wstring_view rest(text);
    while (!rest.empty()) {
        if (rest.front() == L'\r' || rest.front() == L'\n') {
            bool const crlf = rest.size() >= 2 && rest[0] == L'\r' && rest[1] == L'\n';
            rtf += kRtfParagraph;
            rest.remove_prefix(crlf ? 2 : 1);
            continue;
        }
        std::size_t const length = internal::characterLength(rest);
        appendCharacter(rtf, rest.substr(0, length));
        rest.remove_prefix(length);
    }
    return COrxString((rtf + kRtfClosing).c_str());
}

}  // namespace ORX
