#include "orx/foundation/code_pages.h"

#include "orx/foundation/internal/string_platform.h"
#include "orx/foundation/string.h"

namespace ORX {

namespace {

// The system code page numbers the conversion takes.
constexpr int kAnsiCodePage = 0;
constexpr int kOemCodePage = 1;

char* convert(char*& out, char const* text, int fromCodePage, int toCodePage) {
    out = nullptr;
    COrxString wide;
    if (text == nullptr || wide.fromMultiByte(text, fromCodePage).isNull()) {
        return nullptr;
    }
    return wide.toMultiByte(out, toCodePage);
}

// ASCII case-insensitive equality; null equals nothing.
bool sameIgnoringCase(wchar_t const* a, wchar_t const* b) {
    auto const lower = [](wchar_t c) {
        return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c;
    };
    for (; *a != L'\0' && lower(*a) == lower(*b); ++a, ++b) {
    }
    return lower(*a) == lower(*b);
}

}  // namespace

char* dosToWin(char*& out, char const* text) {
    return convert(out, text, kOemCodePage, kAnsiCodePage);
}

char* winToDos(char*& out, char const* text) {
    return convert(out, text, kAnsiCodePage, kOemCodePage);
}

int codePage(wchar_t const* country, bool oem) {
    if (country == nullptr) {
        return internal::resolveSystemCodePage(oem ? kOemCodePage : kAnsiCodePage);
    }
    unsigned long count = 0;
    CountryEntry const* const table = orxDlCountrys(count);
    for (unsigned long k = 0; k < count; ++k) {
        if (sameIgnoringCase(country, table[k].isoCode) ||
            sameIgnoringCase(country, table[k].name)) {
            return oem ? table[k].oemCodePage : table[k].ansiCodePage;
        }
    }
    return -1;
}

}  // namespace ORX
