// COrxString: storage, comparison, access and concatenation. The editing operations are in
// string_edit.cpp, the escapes in string_escape.cpp, formatting in string_format.cpp and the
// code-page conversion in string_code_page.cpp.
#include "orx/foundation/string.h"

#include <cwchar>
#include <functional>
#include <new>
#include <string>

#include "orx/foundation/internal/string_internal.h"

namespace {

using ORX::internal::kInitialCapacity;
using ORX::internal::kMaxCapacity;

// Length of text up to its first NUL, looking at no more than limit characters.
std::uint32_t boundedLength(wchar_t const* text, std::uint32_t limit) {
    std::uint32_t n = 0;
    while (n < limit && text[n] != 0) {
        ++n;
    }
    return n;
}

// Folds a negative index by the rule of COrxArrayTempl's operator[].
std::uint32_t foldIndex(int i, int length) {
    if (i >= 0) {
        return static_cast<std::uint32_t>(i);
    }
    if (length < 2) {
        return 0;
    }
    std::uint32_t const n = static_cast<std::uint32_t>(length);
    return (n + static_cast<std::uint32_t>(i)) % n;
}

}  // namespace

COrxString const COrxString::kNull;

COrxString::COrxString() : m_buffer(nullptr), m_capacity(0), m_length(0) {}

COrxString::COrxString(wchar_t const* text) : COrxString() {
    *this = text;
}

COrxString::COrxString(COrxString const& other)
    : COrxObj(other), m_buffer(nullptr), m_capacity(0), m_length(0) {
    *this = other;
}

COrxString::~COrxString() {
    delete[] m_buffer;
}

COrxString& COrxString::operator=(COrxString const& other) {
    if (this == &other) {
        return *this;
    }
    if (other.m_buffer == nullptr) {
        return setNull();
    }
    return assign(other.m_buffer, static_cast<std::uint32_t>(other.length()));
}

COrxString& COrxString::operator=(wchar_t const* text) {
    if (text == nullptr) {
        return setNull();
    }
    return assign(text, static_cast<std::uint32_t>(std::wcslen(text)));
}

COrxString& COrxString::setNull() {
    delete[] m_buffer;
    m_buffer = nullptr;
    m_capacity = 0;
    m_length = 0;
    return *this;
}

bool COrxString::isNull() const {
    return m_buffer == nullptr;
}

int COrxString::len() const {
    return length();
}

int COrxString::length() const {
    if (m_buffer == nullptr) {
        return 0;
    }
    if (m_length >= 0) {
        return m_length;
    }
    return static_cast<int>(boundedLength(m_buffer, m_capacity));
}

bool COrxString::allocBuffer(std::uint32_t n) {
    if (m_buffer != nullptr && n <= m_capacity) {
        return true;
    }
    if (n > kMaxCapacity) {
        return false;
    }
    std::uint32_t capacity = m_buffer != nullptr ? m_capacity : kInitialCapacity;
    while (capacity < n) {
        capacity *= 2;
    }
    wchar_t* block = new (std::nothrow) wchar_t[capacity + 1]();
    if (block == nullptr) {
        return false;
    }
    if (m_buffer != nullptr) {
        std::wmemcpy(block, m_buffer, m_capacity + 1);
        delete[] m_buffer;
    }
    m_buffer = block;
    m_capacity = capacity;
    return true;
}

bool COrxString::ownsText(wchar_t const* text) const {
    std::less_equal<wchar_t const*> notAfter;
    return m_buffer != nullptr && notAfter(m_buffer, text) &&
           !notAfter(m_buffer + m_capacity + 1, text);
}

COrxString& COrxString::assign(wchar_t const* text, std::uint32_t count) {
    // Text inside the buffer needs no room beyond the capacity, so the buffer stays where it
    // is and an overlapping move suffices.
    if (!allocBuffer(count)) {
        return *this;
    }
    std::wmemmove(m_buffer, text, count);
    cutAt(count);
    return *this;
}

void COrxString::cutAt(std::uint32_t n) {
    m_buffer[n] = 0;
    m_length = static_cast<std::int32_t>(n);
}

wchar_t* COrxString::GetBuffer(unsigned int n) {
    if (!allocBuffer(n)) {
        return nullptr;
    }
    m_length = -1;
    return m_buffer;
}

void COrxString::ReleaseBuffer() {
    if (m_buffer == nullptr || m_length >= 0) {
        return;
    }
    cutAt(boundedLength(m_buffer, m_capacity));
}

COrxString::operator wchar_t const*() const {
    return m_buffer;
}

bool COrxString::operator==(COrxString const& other) const {
    if (this == &other || (m_buffer == nullptr && other.m_buffer == nullptr)) {
        return true;
    }
    if (m_buffer == nullptr || other.m_buffer == nullptr) {
        return false;
    }
    int const n = length();
    return n == other.length() && std::wmemcmp(m_buffer, other.m_buffer, n) == 0;
}

bool COrxString::operator==(wchar_t const* text) const {
    if (text == m_buffer) {
        return true;
    }
    if (m_buffer == nullptr || text == nullptr) {
        return false;
    }
    return std::wcscmp(m_buffer, text) == 0;
}

bool COrxString::operator!=(COrxString const& other) const {
    return !(*this == other);
}

bool COrxString::operator!=(wchar_t const* text) const {
    return !(*this == text);
}

int COrxString::compare(wchar_t const* text) const {
    wchar_t const* a = m_buffer != nullptr ? m_buffer : L"";
    wchar_t const* b = text != nullptr ? text : L"";
    // Compared as unsigned codes, whatever the signedness of wchar_t.
    for (;; ++a, ++b) {
        auto const ca = static_cast<std::uint32_t>(*a);
        auto const cb = static_cast<std::uint32_t>(*b);
        if (ca != cb) {
            return ca < cb ? -1 : 1;
        }
        if (ca == 0) {
            return 0;
        }
    }
}

bool COrxString::operator<(wchar_t const* text) const {
    return compare(text) < 0;
}

bool COrxString::operator<=(wchar_t const* text) const {
    return compare(text) <= 0;
}

bool COrxString::operator>(wchar_t const* text) const {
    return compare(text) > 0;
}

bool COrxString::operator>=(wchar_t const* text) const {
    return compare(text) >= 0;
}

wchar_t COrxString::operator[](int i) const {
    int const n = length();
    std::uint32_t const index = foldIndex(i, n);
    return index < static_cast<std::uint32_t>(n) ? m_buffer[index] : 0;
}

COrxString& COrxString::setAt(int i, wchar_t c) {
    int const n = length();
    std::uint32_t const index = foldIndex(i, n);
    // One slot more than the index, so that the text stays terminated when c extends it.
    if (index >= kMaxCapacity || !allocBuffer(index + 1)) {
        return *this;
    }
    m_buffer[index] = c;
    if (m_length < 0) {
        return *this;  // suspended by GetBuffer: counted on release
    }
    if (c == 0 && index < static_cast<std::uint32_t>(n)) {
        m_length = static_cast<std::int32_t>(index);
    } else if (c != 0 && index == static_cast<std::uint32_t>(n)) {
        cutAt(index + 1);
    }
    return *this;
}

COrxString& COrxString::append(wchar_t const* text, std::uint32_t count) {
    if (ownsText(text)) {
        // Growing would release the buffer the text lives in.
        std::wstring const copy(text, count);
        return append(copy.c_str(), count);
    }
    std::uint32_t const n = static_cast<std::uint32_t>(length());
    if (count > kMaxCapacity - n || !allocBuffer(n + count)) {
        return *this;
    }
    std::wmemcpy(m_buffer + n, text, count);
    cutAt(n + count);
    return *this;
}

COrxString& COrxString::operator+=(COrxString const& other) {
    if (other.m_buffer == nullptr) {
        return *this;
    }
    return append(other.m_buffer, static_cast<std::uint32_t>(other.length()));
}

COrxString& COrxString::operator+=(wchar_t const* text) {
    if (text == nullptr) {
        return *this;
    }
    return append(text, static_cast<std::uint32_t>(std::wcslen(text)));
}

COrxString& COrxString::operator+=(wchar_t c) {
    if (c == 0) {
        return *this;
    }
    return append(&c, 1);
}

COrxString COrxString::operator+(COrxString const& other) const {
    COrxString sum(*this);
    sum += other;
    return sum;
}

COrxString COrxString::operator+(wchar_t c) const {
    COrxString sum(*this);
    sum += c;
    return sum;
}

COrxString operator+(wchar_t const* left, COrxString const& right) {
    COrxString sum(left);
    sum += right;
    return sum;
}

bool operator==(wchar_t const* left, COrxString const& right) {
    return right == left;
}

bool operator!=(wchar_t const* left, COrxString const& right) {
    return right != left;
}
