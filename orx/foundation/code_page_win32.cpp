// Code-page conversion on Windows: MultiByteToWideChar and WideCharToMultiByte.
#include <windows.h>

#include <climits>
#include <cwchar>
#include <string>
#include <string_view>

#include "orx/foundation/internal/string_platform.h"

namespace ORX {
namespace internal {

namespace {

// The flags and used-default-character report for a code page: UTF-8 and the stateful
// code pages accept neither.
struct EncodeOptions {
    DWORD flags;
    bool reportsDefault;
};

EncodeOptions optionsFor(int codePage) {
    if (codePage == kUtf8CodePage) {
        return {0, false};
    }
    return {WC_NO_BEST_FIT_CHARS, true};
}

// Converts with the options; -1 when the system refuses them.
int encode(std::wstring_view text, int codePage, EncodeOptions options, char* out, int size,
           BOOL* usedDefault) {
    return WideCharToMultiByte(static_cast<UINT>(codePage), options.flags, text.data(),
                               static_cast<int>(text.size()), out, size, nullptr,
                               options.reportsDefault ? usedDefault : nullptr);
}

// The default code page of a kind for a locale; fallback when it cannot be had.
int localeCodePage(LCID locale, LCTYPE kind, int fallback) {
    wchar_t digits[8] = {};
    if (GetLocaleInfoW(locale, kind, digits, 8) == 0) {
        return fallback;
    }
    int const number = static_cast<int>(std::wcstol(digits, nullptr, 10));
    return number > 0 ? number : fallback;
}

}  // namespace

// The conversion calls take the system numbers too, but IsValidCodePage refuses them, and
// the flags a code page accepts depend on the code page they stand for.
int resolveSystemCodePage(int codePage) {
    switch (codePage) {
        case CP_ACP:
            return static_cast<int>(GetACP());
        case CP_OEMCP:
            return static_cast<int>(GetOEMCP());
        case CP_MACCP:
            return localeCodePage(LOCALE_SYSTEM_DEFAULT, LOCALE_IDEFAULTMACCODEPAGE, codePage);
        case CP_THREAD_ACP:
            return localeCodePage(GetThreadLocale(), LOCALE_IDEFAULTANSICODEPAGE,
                                  static_cast<int>(GetACP()));
        default:
            return codePage;
    }
}

bool decodeCodePage(std::string_view bytes, int codePage, std::wstring& text) {
    codePage = resolveSystemCodePage(codePage);
    if (!IsValidCodePage(static_cast<UINT>(codePage)) || bytes.size() > INT_MAX) {
        return false;
    }
    if (bytes.empty()) {
        text.clear();
        return true;
    }
    int const count = static_cast<int>(bytes.size());
    int const needed =
        MultiByteToWideChar(static_cast<UINT>(codePage), 0, bytes.data(), count, nullptr, 0);
    if (needed <= 0) {
        return false;
    }
    std::wstring wide(static_cast<std::size_t>(needed), L'\0');
    MultiByteToWideChar(static_cast<UINT>(codePage), 0, bytes.data(), count, &wide[0], needed);
    text.swap(wide);
    return true;
}

bool encodeCodePage(std::wstring_view text, int codePage, std::string& bytes, bool& lossless) {
    codePage = resolveSystemCodePage(codePage);
    if (!IsValidCodePage(static_cast<UINT>(codePage)) || text.size() > INT_MAX) {
        return false;
    }
    if (text.empty()) {
        bytes.clear();
        lossless = true;
        return true;
    }
    EncodeOptions options = optionsFor(codePage);
    BOOL usedDefault = FALSE;
    int needed = encode(text, codePage, options, nullptr, 0, &usedDefault);
    if (needed <= 0 && GetLastError() == ERROR_INVALID_FLAGS) {
        options = {0, false};  // a code page that takes no flags
        needed = encode(text, codePage, options, nullptr, 0, &usedDefault);
    }
    if (needed <= 0) {
        return false;
    }
    std::string narrow(static_cast<std::size_t>(needed), '\0');
    usedDefault = FALSE;
    encode(text, codePage, options, &narrow[0], needed, &usedDefault);
    bytes.swap(narrow);
    lossless = usedDefault == FALSE;
    return true;
}

}  // namespace internal
}  // namespace ORX
