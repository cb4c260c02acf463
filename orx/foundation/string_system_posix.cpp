// Environment expansion and case mapping on Linux.
#include <clocale>
#include <cwctype>

#include <cstdlib>
#include <cwctype>
#include <string>
#include <string_view>

#include "orx/foundation/internal/string_platform.h"
#include "orx/foundation/shared/utf8.h"

extern char** environ;

namespace ORX {
namespace internal {

namespace {

bool equalIgnoringAsciiCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) {
        return false;
    }
    for (std::size_t k = 0; k < a.size(); ++k) {
        auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
        if (lower(a[k]) != lower(b[k])) {
            return false;
        }
    }
    return true;
}

// The value of a variable: an exact match first, then one whose name differs only in case,
// since client code written for Windows does not mind the case of names. The value is decoded
// as the services decode names, so that an expanded %TEMP% names the folder tmp_dir() does.
bool lookUp(std::wstring_view name, std::wstring& value) {
    std::string const key = toUtf8(name);
    if (char const* exact = std::getenv(key.c_str())) {
        value = fromUtf8(exact);
        return true;
    }
    for (char** entry = environ; entry != nullptr && *entry != nullptr; ++entry) {
        std::string_view const line(*entry);
        std::size_t const equals = line.find('=');
        if (equals != std::string_view::npos &&
            equalIgnoringAsciiCase(line.substr(0, equals), key)) {
            value = fromUtf8(line.substr(equals + 1));
            return true;
        }
    }
    return false;
}

// The C.UTF-8 locale, whose towupper/towlower map all of Unicode (the "C" locale maps ASCII
// only). Null when it cannot be had; the process locale serves then.
locale_t caseLocale() {
    static locale_t const locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", locale_t{});
    return locale;
}

}  // namespace

std::wstring expandEnvironment(std::wstring const& text) {
    // As Windows does it: a %NAME% whose name is unknown (or empty) is copied as written,
    // both percent signs, and scanning goes on after it; a lone % stays.
    std::wstring out;
    std::size_t at = 0;
    while (at < text.size()) {
        std::size_t const open = text.find(L'%', at);
        std::size_t const close =
            open == std::wstring::npos ? std::wstring::npos : text.find(L'%', open + 1);
        if (close == std::wstring::npos) {
            out.append(text, at, std::wstring::npos);
            break;
        }
        out.append(text, at, open - at);
        std::wstring value;
        std::wstring_view const name(text.data() + open + 1, close - open - 1);
        if (!name.empty() && lookUp(name, value)) {
            out += value;
        } else {
            out.append(text, open, close - open + 1);
        }
        at = close + 1;
    }
    return out;
}

void mapCase(wchar_t* text, int count, bool upper) {
    locale_t const locale = caseLocale();
    for (int k = 0; k < count; ++k) {
        auto const c = static_cast<wint_t>(text[k]);
        if (locale != locale_t{}) {
            text[k] = static_cast<wchar_t>(upper ? towupper_l(c, locale) : towlower_l(c, locale));
        } else {
            text[k] = static_cast<wchar_t>(upper ? std::towupper(c) : std::towlower(c));
        }
    }
}

}  // namespace internal
}  // namespace ORX
