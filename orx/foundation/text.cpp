#include "orx/foundation/text.h"

#include <algorithm>
#include <limits>
#include <string>
#include <string_view>

#include "orx/foundation/internal/number_scan.h"
#include "orx/foundation/shared/index_range.h"

namespace ORX {

namespace {

bool isBlank(wchar_t c) {
    return c == L' ' || c == L'\t';
}

bool isSeparator(wchar_t c, std::wstring_view separators) {
    return separators.find(c) != std::wstring_view::npos;
}

bool isPathSeparator(wchar_t c) {
    return c == L'\\' || c == L'/';
}

// Reads the quoted field whose opening quote is at `at`, and the blanks after it; `at` ends
// on the separator that ends the field, or at the end. False when the quote is never closed
// or something else follows it.
bool readQuotedField(std::wstring_view line, std::wstring_view separators, std::size_t& at,
                     std::wstring& field) {
    for (++at;; ++at) {
        if (at >= line.size()) {
            return false;
        }
        if (line[at] == L'"') {
            if (at + 1 < line.size() && line[at + 1] == L'"') {
                ++at;  // "" is one quote
            } else {
                break;
            }
        }
        field += line[at];
    }
    ++at;
    while (at < line.size() && isBlank(line[at]) && !isSeparator(line[at], separators)) {
        ++at;
    }
    return at == line.size() || isSeparator(line[at], separators);
}

// Reads the field that starts at `at`; `at` ends on its separator, or at the end.
bool readField(std::wstring_view line, std::wstring_view separators, std::size_t& at,
               std::wstring& field) {
    std::size_t start = at;
    while (start < line.size() && isBlank(line[start]) && !isSeparator(line[start], separators)) {
        ++start;
    }
    if (start < line.size() && line[start] == L'"') {
        at = start;
        return readQuotedField(line, separators, at, field);
    }
    std::size_t const end = std::min(line.find_first_of(separators, at), line.size());
    field = line.substr(at, end - at);
    at = end;
    return true;
}

}  // namespace

COrxString implode(COrxArrayTempl<COrxString> const& list, wchar_t const* sep) {
    if (list.isEmpty()) {
        return COrxString::kNull;
    }
    COrxString joined(list[0]);
    for (int k : ORX::internal::indicesFrom(1, list)) {
        joined += sep;
        joined += list[k];
    }
    return joined;
}

unsigned long strTok(COrxArrayTempl<COrxString>& tokens, wchar_t const* text, wchar_t const* sep,
                     bool keepEmpty) {
    if (text == nullptr) {
        return 0;
    }
    std::wstring_view const rest(text);
    std::wstring_view const separators(sep != nullptr ? sep : L"");
    unsigned long count = 0;
    std::size_t start = 0;
    for (;;) {
        std::size_t const end = rest.find_first_of(separators, start);
        std::wstring_view const token = rest.substr(
            start, end == std::wstring_view::npos ? std::wstring_view::npos : end - start);
        if (keepEmpty || !token.empty()) {
            tokens.append(COrxString(std::wstring(token).c_str()));
            ++count;
        }
        if (end == std::wstring_view::npos) {
            return count;
        }
        start = end + 1;
    }
}

COrxArrayTempl<COrxString> explode(wchar_t const* text, wchar_t const* sep, bool keepEmpty) {
    COrxArrayTempl<COrxString> tokens;
    strTok(tokens, text, sep, keepEmpty);
    return tokens;
}

bool parse(COrxArrayTempl<COrxString>& fields, wchar_t const* text, wchar_t const* sep) {
    if (text == nullptr) {
        return false;
    }
    std::wstring_view const line(text);
    std::wstring_view const separators(sep != nullptr ? sep : L"");
    COrxArrayTempl<COrxString> found;
    for (std::size_t at = 0;; ++at) {
        std::wstring field;
        if (!readField(line, separators, at, field)) {
            return false;
        }
        found.append(COrxString(field.c_str()));
        if (at >= line.size()) {
            break;
        }
    }
    fields = found;
    return true;
}

COrxString& removeLastSlash(COrxString& path) {
    wchar_t const* const text = path;
    int const length = path.len();
    int root = 0;
    if (length >= 3 && text[1] == L':' && isPathSeparator(text[2])) {
        root = 3;
    } else if (length >= 1 && isPathSeparator(text[0])) {
        root = 1;
    }
    int kept = length;
    while (kept > root && isPathSeparator(text[kept - 1])) {
        --kept;
    }
    if (kept < length) {
        path = path.left(static_cast<unsigned int>(kept));
    }
    return path;
}

double atof(wchar_t const* text) {
    if (text == nullptr) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    std::wstring_view view(text);
    while (!view.empty() &&
           (view.front() == L' ' || (view.front() >= L'\t' && view.front() <= L'\r'))) {
        view.remove_prefix(1);
    }
    bool const negative = !view.empty() && view.front() == L'-';
    if (!view.empty() && (view.front() == L'-' || view.front() == L'+')) {
        view.remove_prefix(1);
    }
    double value = 0.0;
    if (internal::scanUnsignedDecimal(view, value) == 0) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    return negative ? -value : value;
}

}  // namespace ORX
