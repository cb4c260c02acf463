// COrxString: backslash escapes, HTML character references and the \U+hhhh escapes of
// characters a narrow code page cannot hold. Each escaping function has an inverse that
// gives back the original text exactly.
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

#include "orx/foundation/internal/string_internal.h"
#include "orx/foundation/string.h"

namespace {

using ORX::internal::hexDigitValue;
using View = std::wstring_view;

// The control characters with a letter escape, and their letters.
constexpr wchar_t kControlCharacters[] = L"\t\n\r\a\b\f\v";
constexpr wchar_t kControlLetters[] = L"tnrabfv";

void appendHex(std::wstring& out, std::uint32_t value, int digits) {
    wchar_t text[12];
    std::swprintf(text, 12, L"%0*x", digits, static_cast<unsigned int>(value));
    out += text;
}

void appendDecimal(std::wstring& out, std::uint32_t value) {
    out += std::to_wstring(value);
}

// Reads exactly `digits` hex digits at text[at]; -1 when they are not all there.
long readHex(View text, std::size_t at, int digits) {
    if (at + static_cast<std::size_t>(digits) > text.size()) {
        return -1;
    }
    long value = 0;
    for (int k = 0; k < digits; ++k) {
        int const digit = hexDigitValue(text[at + static_cast<std::size_t>(k)]);
        if (digit < 0) {
            return -1;
        }
        value = value * 16 + digit;
    }
    return value;
}

View textOf(wchar_t const* buffer, int length) {
    return View(buffer, static_cast<std::size_t>(length));
}

// --- HTML ---------------------------------------------------------------------------------

struct NamedReference {
    wchar_t const* name;
    std::uint32_t code;
};

constexpr NamedReference kNamedReferences[] = {
    {L"amp", 0x26},   {L"lt", 0x3C},    {L"gt", 0x3E},   {L"quot", 0x22},   {L"apos", 0x27},
    {L"nbsp", 0xA0},  {L"copy", 0xA9},  {L"reg", 0xAE},  {L"deg", 0xB0},    {L"euro", 0x20AC},
    {L"sect", 0xA7},  {L"micro", 0xB5}, {L"para", 0xB6}, {L"middot", 0xB7}, {L"auml", 0xE4},
    {L"ouml", 0xF6},  {L"uuml", 0xFC},  {L"Auml", 0xC4}, {L"Ouml", 0xD6},   {L"Uuml", 0xDC},
    {L"szlig", 0xDF},
};

// The longest reference name the decoder looks at ("#x10FFFF" and the named ones fit).
constexpr std::size_t kMaxReferenceLength = 10;
// The largest code point a numeric reference may name.
constexpr std::uint32_t kMaxCodePoint = 0x10FFFF;

// The code point named by the reference body (between '&' and ';'), or 0 when there is
// none.
std::uint32_t referencedCode(View body) {
    if (body.size() >= 2 && body[0] == L'#') {
        bool const hex = body[1] == L'x' || body[1] == L'X';
        View const digits = body.substr(hex ? 2 : 1);
        if (digits.empty()) {
            return 0;
        }
        std::uint32_t value = 0;
        for (wchar_t c : digits) {
            int const digit = hex ? hexDigitValue(c) : (c >= L'0' && c <= L'9' ? c - L'0' : -1);
            if (digit < 0) {
                return 0;
            }
            value = value * (hex ? 16 : 10) + static_cast<std::uint32_t>(digit);
            if (value > kMaxCodePoint) {
                return 0;
            }
        }
        return value;
    }
    for (NamedReference const& named : kNamedReferences) {
        if (body == named.name) {
            return named.code;
        }
    }
    return 0;
}

bool isHtmlSpecial(wchar_t c) {
    return c == L'&' || c == L'<' || c == L'>' || c == L'"' || c == L'\'';
}

void appendHtmlSpecial(std::wstring& out, wchar_t c) {
    switch (c) {
        case L'&':
            out += L"&amp;";
            break;
        case L'<':
            out += L"&lt;";
            break;
        case L'>':
            out += L"&gt;";
            break;
        case L'"':
            out += L"&quot;";
            break;
        default:
            out += L"&#39;";
            break;
    }
}

// Escapes the markup characters, and the characters for which numeric(character) holds as
// decimal references.
template <class Predicate>
std::wstring escapeHtmlText(View text, Predicate numeric) {
    std::wstring out;
    out.reserve(text.size());
    while (!text.empty()) {
        std::size_t const n = ORX::internal::characterLength(text);
        View const character = text.substr(0, n);
        std::uint32_t const code = ORX::internal::codePoint(character);
        if (n == 1 && isHtmlSpecial(text[0])) {
            appendHtmlSpecial(out, text[0]);
        } else if (numeric(character) && code <= kMaxCodePoint) {
            // A 32-bit wchar_t beyond U+10FFFF is no character and no reference could name
            // it: it stays as it is, so that decoding gives it back.
            out += L"&#";
            appendDecimal(out, code);
            out += L';';
        } else {
            out.append(character);
        }
        text.remove_prefix(n);
    }
    return out;
}

}  // namespace

COrxString& COrxString::escape() {
    if (m_buffer == nullptr) {
        return *this;
    }
    std::wstring out;
    for (wchar_t c : textOf(m_buffer, length())) {
        View const controls(kControlCharacters);
        std::size_t const letter = controls.find(c);
        if (c == L'\\') {
            out += L"\\\\";
        } else if (letter != View::npos) {
            out += L'\\';
            out += kControlLetters[letter];
        } else if ((c > 0 && c < 0x20) || c == 0x7F) {
            out += L"\\x";
            appendHex(out, static_cast<std::uint32_t>(c), 2);
        } else {
            out += c;
        }
    }
    return assign(out.c_str(), static_cast<std::uint32_t>(out.size()));
}

COrxString& COrxString::unEscape() {
    if (m_buffer == nullptr) {
        return *this;
    }
    View const text = textOf(m_buffer, length());
    std::wstring out;
    for (std::size_t k = 0; k < text.size(); ++k) {
        if (text[k] != L'\\' || k + 1 == text.size()) {
            out += text[k];
            continue;
        }
        wchar_t const next = text[k + 1];
        std::size_t const letter = View(kControlLetters).find(next);
        long const hex = next == L'x' ? readHex(text, k + 2, 2) : -1;
        if (next == L'\\') {
            out += L'\\';
            ++k;
        } else if (letter != View::npos) {
            out += kControlCharacters[letter];
            ++k;
        } else if (hex > 0) {
            out += static_cast<wchar_t>(hex);
            k += 3;
        } else {
            out += text[k];  // not an escape: the backslash stays
        }
    }
    return assign(out.c_str(), static_cast<std::uint32_t>(out.size()));
}

COrxString& COrxString::escapeHtmlSpecial() {
    if (m_buffer == nullptr) {
        return *this;
    }
    std::wstring const out = escapeHtmlText(textOf(m_buffer, length()), [](View) { return false; });
    return assign(out.c_str(), static_cast<std::uint32_t>(out.size()));
}

COrxString& COrxString::escapeHtml(wchar_t const* extra) {
    if (m_buffer == nullptr) {
        return *this;
    }
    View const listed(extra != nullptr ? extra : L"");
    std::wstring const out = escapeHtmlText(textOf(m_buffer, length()), [&](View character) {
        return ORX::internal::codePoint(character) > 0x7F ||
               (character.size() == 1 && listed.find(character[0]) != View::npos);
    });
    return assign(out.c_str(), static_cast<std::uint32_t>(out.size()));
}

COrxString& COrxString::unEscapeHtml() {
    if (m_buffer == nullptr) {
        return *this;
    }
    View const text = textOf(m_buffer, length());
    std::wstring out;
    for (std::size_t k = 0; k < text.size(); ++k) {
        std::size_t const end =
            text[k] == L'&' ? text.substr(k, kMaxReferenceLength + 2).find(L';') : View::npos;
        std::uint32_t const code =
            end != View::npos ? referencedCode(text.substr(k + 1, end - 1)) : 0;
        if (code == 0) {
            out += text[k];
            continue;
        }
        ORX::internal::appendCodePoint(out, code);
        k += end;
    }
    return assign(out.c_str(), static_cast<std::uint32_t>(out.size()));
}

COrxString& COrxString::escapeWideChar() {
    if (m_buffer == nullptr) {
        return *this;
    }
    std::wstring const out = ORX::internal::escapeWideChars(
        textOf(m_buffer, length()),
        [](View character) { return ORX::internal::codePoint(character) > 0x7F; });
    return assign(out.c_str(), static_cast<std::uint32_t>(out.size()));
}

COrxString& COrxString::unEscapeWideChar() {
    if (m_buffer == nullptr) {
        return *this;
    }
    std::wstring const out = ORX::internal::unescapeWideChars(textOf(m_buffer, length()));
    return assign(out.c_str(), static_cast<std::uint32_t>(out.size()));
}

namespace ORX {
namespace internal {

namespace {

// The text that introduces an escape, behind the backslash.
constexpr wchar_t kEscapeMark[] = L"U+";
// The escape of the backslash itself.
constexpr std::uint32_t kBackslash = 0x5C;
// What stands for a 32-bit wchar_t beyond U+10FFFF, which no pair of escapes can name.
constexpr std::uint32_t kReplacementCharacter = 0xFFFD;

void appendEscape(std::wstring& out, std::uint32_t unit) {
    out += L'\\';
    out += kEscapeMark;
    appendHex(out, unit, 4);
}

// A backslash at text[at] that the decoder would take for the start of an escape.
bool startsLookalike(View text, std::size_t at) {
    return text[at] == L'\\' && text.substr(at + 1, 2) == kEscapeMark;
}

// The unit of the escape at text[at], or -1.
long escapedUnit(View text, std::size_t at) {
    if (text[at] != L'\\' || text.substr(at + 1, 2) != kEscapeMark) {
        return -1;
    }
    return readHex(text, at + 3, 4);
}

// The length of one escape: backslash, "U+" and four digits.
constexpr std::size_t kEscapeLength = 7;

}  // namespace

std::wstring escapeWideChars(View text, std::function<bool(View)> const& mustEscape) {
    std::wstring out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        std::size_t const n = characterLength(text.substr(at));
        View const character = text.substr(at, n);
        if (mustEscape(character)) {
            // One escape per UTF-16 code unit, so both platforms write the same text.
            std::uint32_t code = codePoint(character);
            if (n == 2 || (!kUtf16 && code > 0xFFFF && code <= 0x10FFFF)) {
                appendEscape(out, 0xD800 + ((code - 0x10000) >> 10));
                appendEscape(out, 0xDC00 + ((code - 0x10000) & 0x3FF));
            } else {
                appendEscape(out, code <= 0xFFFF ? code : kReplacementCharacter);
            }
        } else if (startsLookalike(text, at)) {
            appendEscape(out, kBackslash);
        } else {
            out.append(character);
        }
        at += n;
    }
    return out;
}

bool hasEscapeLookalike(View text) {
    for (std::size_t at = text.find(L'\\'); at != View::npos; at = text.find(L'\\', at + 1)) {
        if (startsLookalike(text, at)) {
            return true;
        }
    }
    return false;
}

std::wstring unescapeWideChars(View text) {
    std::wstring out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        long const unit = escapedUnit(text, at);
        if (unit < 0) {
            out += text[at++];
            continue;
        }
        at += kEscapeLength;
        auto code = static_cast<std::uint32_t>(unit);
        if (!kUtf16 && isHighSurrogate(code) && at < text.size()) {
            // UTF-32: an escaped pair is one character.
            long const low = escapedUnit(text, at);
            if (low >= 0 && isLowSurrogate(static_cast<std::uint32_t>(low))) {
                code =
                    0x10000 + ((code - 0xD800) << 10) + (static_cast<std::uint32_t>(low) - 0xDC00);
                at += kEscapeLength;
            }
        }
        out += static_cast<wchar_t>(code);
    }
    return out;
}

}  // namespace internal
}  // namespace ORX
