#include "orx/foundation/text.h"

#include <limits>
#include <string>
#include <string_view>

#include "orx/foundation/internal/number_scan.h"

namespace ORX {

COrxString implode(COrxArrayTempl<COrxString> const& list, wchar_t const* sep) {
    if (list.isEmpty()) {
        return COrxString::kNull;
    }
    COrxString joined(list[0]);
    for (unsigned long k = 1; k < list.len(); ++k) {
        joined += sep;
        joined += list[static_cast<int>(k)];
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
