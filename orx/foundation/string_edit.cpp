// COrxString: insertion, slices, padding, replacement, trimming, case, reversal, quotes and
// searching.
#include <algorithm>
#include <cwchar>
#include <string>
#include <string_view>

#include "orx/foundation/internal/string_internal.h"
#include "orx/foundation/internal/string_platform.h"
#include "orx/foundation/string.h"

using ORX::internal::kMaxCapacity;

namespace {

// The characters trim() removes, exactly these four.
bool isTrimmed(wchar_t c) {
    return c == L' ' || c == L'\t' || c == L'\n' || c == L'\r';
}

}  // namespace

COrxString& COrxString::insertAt(unsigned int pos, wchar_t const* text) {
    std::uint32_t const n = static_cast<std::uint32_t>(length());
    if (text == nullptr || pos > n) {
        return *this;
    }
    if (ownsText(text)) {
        // Making room moves the text the pointer refers to.
        std::wstring const copy(text);
        return insertAt(pos, copy.c_str());
    }
    std::uint32_t const count = static_cast<std::uint32_t>(std::wcslen(text));
    if (count > kMaxCapacity - n || !allocBuffer(n + count)) {
        return *this;
    }
    std::wmemmove(m_buffer + pos + count, m_buffer + pos, n - pos);
    std::wmemcpy(m_buffer + pos, text, count);
    cutAt(n + count);
    return *this;
}

COrxString& COrxString::insertAt(unsigned int pos, wchar_t c) {
    wchar_t const text[2] = {c, 0};
    return insertAt(pos, text);
}

COrxString COrxString::left(unsigned int n) const {
    if (n >= static_cast<unsigned int>(length())) {
        return *this;
    }
    COrxString part;
    return part.assign(m_buffer, n);
}

COrxString COrxString::right(unsigned int n) const {
    unsigned int const total = static_cast<unsigned int>(length());
    if (n >= total) {
        return *this;
    }
    COrxString part;
    return part.assign(m_buffer + (total - n), n);
}

COrxString COrxString::mid(unsigned int start, unsigned int count) const {
    if (m_buffer == nullptr) {
        return kNull;
    }
    unsigned int const total = static_cast<unsigned int>(length());
    COrxString part;
    if (start >= total) {
        return part.assign(m_buffer, 0);
    }
    return part.assign(m_buffer + start, std::min(count, total - start));
}

COrxString& COrxString::lfill(unsigned int n, wchar_t c) {
    std::uint32_t const total = static_cast<std::uint32_t>(length());
    if (c == 0 || n <= total || n > kMaxCapacity || !allocBuffer(n)) {
        return *this;
    }
    std::uint32_t const pad = n - total;
    std::wmemmove(m_buffer + pad, m_buffer, total);
    std::wmemset(m_buffer, c, pad);
    cutAt(n);
    return *this;
}

COrxString& COrxString::rfill(unsigned int n, wchar_t c) {
    std::uint32_t const total = static_cast<std::uint32_t>(length());
    if (c == 0 || n <= total || n > kMaxCapacity || !allocBuffer(n)) {
        return *this;
    }
    std::wmemset(m_buffer + total, c, n - total);
    cutAt(n);
    return *this;
}

COrxString& COrxString::replace(wchar_t const* from, wchar_t const* to) {
    if (m_buffer == nullptr || from == nullptr || from[0] == 0) {
        return *this;
    }
    if (to == nullptr) {
        to = L"";
    }
    if (from[1] == 0 && to[0] != 0 && to[1] == 0) {
        return replace(from[0], to[0]);
    }
    std::wstring_view const text(m_buffer, static_cast<std::size_t>(length()));
    std::wstring_view const pattern(from);
    std::size_t at = text.find(pattern);
    if (at == std::wstring_view::npos) {
        return *this;
    }
    // Built aside: from and to may point into this buffer.
    std::wstring result;
    std::size_t start = 0;
    while (at != std::wstring_view::npos) {
        result.append(text.substr(start, at - start)).append(to);
        start = at + pattern.size();
        at = text.find(pattern, start);
    }
    result.append(text.substr(start));
    if (result.size() > kMaxCapacity) {
        return *this;
    }
    return assign(result.c_str(), static_cast<std::uint32_t>(result.size()));
}

COrxString& COrxString::replace(wchar_t from, wchar_t to) {
    if (m_buffer == nullptr || from == 0) {
        return *this;
    }
    int const n = length();
    int cut = -1;
    for (int k = 0; k < n; ++k) {
        if (m_buffer[k] == from) {
            m_buffer[k] = to;
            if (to == 0 && cut < 0) {
                cut = k;
            }
        }
    }
    if (cut >= 0 && m_length >= 0) {
        m_length = cut;
    }
    return *this;
}

COrxString& COrxString::trim() {
    return trimRight().trimLeft();
}

COrxString& COrxString::trimLeft() {
    if (m_buffer == nullptr) {
        return *this;
    }
    std::uint32_t const n = static_cast<std::uint32_t>(length());
    std::uint32_t skip = 0;
    while (skip < n && isTrimmed(m_buffer[skip])) {
        ++skip;
    }
    std::wmemmove(m_buffer, m_buffer + skip, n - skip);
    cutAt(n - skip);
    return *this;
}

COrxString& COrxString::trimRight() {
    if (m_buffer == nullptr) {
        return *this;
    }
    std::uint32_t n = static_cast<std::uint32_t>(length());
    while (n > 0 && isTrimmed(m_buffer[n - 1])) {
        --n;
    }
    cutAt(n);
    return *this;
}

COrxString& COrxString::makeLower() {
    if (m_buffer != nullptr) {
        ORX::internal::mapCase(m_buffer, length(), false);
    }
    return *this;
}

COrxString& COrxString::makeUpper() {
    if (m_buffer != nullptr) {
        ORX::internal::mapCase(m_buffer, length(), true);
    }
    return *this;
}

COrxString COrxString::reverse() const {
    COrxString copy(*this);
    return copy.revert();
}

COrxString& COrxString::revert() {
    if (m_buffer == nullptr) {
        return *this;
    }
    int const n = length();
    std::reverse(m_buffer, m_buffer + n);
    if (ORX::internal::kUtf16) {
        // Reversal put each surrogate pair's low half first; put the pairs back in order.
        for (int k = 0; k + 1 < n; ++k) {
            if (ORX::internal::isLowSurrogate(static_cast<std::uint16_t>(m_buffer[k])) &&
                ORX::internal::isHighSurrogate(static_cast<std::uint16_t>(m_buffer[k + 1]))) {
                std::swap(m_buffer[k], m_buffer[k + 1]);
                ++k;
            }
        }
    }
    return *this;
}

COrxString& COrxString::quote() {
    std::uint32_t const n = static_cast<std::uint32_t>(length());
    if (n > kMaxCapacity - 2 || !allocBuffer(n + 2)) {
        return *this;
    }
    std::wmemmove(m_buffer + 1, m_buffer, n);
    m_buffer[0] = L'"';
    m_buffer[n + 1] = L'"';
    cutAt(n + 2);
    return *this;
}

COrxString& COrxString::unQuote() {
    std::uint32_t const n = static_cast<std::uint32_t>(length());
    if (n < 2 || m_buffer[0] != L'"' || m_buffer[n - 1] != L'"') {
        return *this;
    }
    std::wmemmove(m_buffer, m_buffer + 1, n - 2);
    cutAt(n - 2);
    return *this;
}

int COrxString::find(wchar_t const* text) const {
    if (m_buffer == nullptr || text == nullptr) {
        return -1;
    }
    std::size_t const at =
        std::wstring_view(m_buffer, static_cast<std::size_t>(length())).find(text);
    return at == std::wstring_view::npos ? -1 : static_cast<int>(at);
}

int COrxString::find(wchar_t c) const {
    if (m_buffer == nullptr || c == 0) {
        return -1;
    }
    std::size_t const at = std::wstring_view(m_buffer, static_cast<std::size_t>(length())).find(c);
    return at == std::wstring_view::npos ? -1 : static_cast<int>(at);
}

COrxString& COrxString::expandEnvironmentStrings() {
    if (m_buffer == nullptr) {
        return *this;
    }
    std::wstring const expanded = ORX::internal::expandEnvironment(
        std::wstring(m_buffer, static_cast<std::size_t>(length())));
    if (expanded.size() > kMaxCapacity) {
        return *this;
    }
    return assign(expanded.c_str(), static_cast<std::uint32_t>(expanded.size()));
}
