// Environment expansion and case mapping on Windows.
#include <windows.h>

#include <string>

#include "orx/foundation/internal/string_platform.h"

namespace ORX {
namespace internal {

std::wstring expandEnvironment(std::wstring const& text) {
    DWORD const needed = ExpandEnvironmentStringsW(text.c_str(), nullptr, 0);
    if (needed == 0) {
        return text;
    }
    std::wstring expanded(needed, L'\0');
    DWORD const written = ExpandEnvironmentStringsW(text.c_str(), &expanded[0], needed);
    if (written == 0 || written > needed) {
        return text;
    }
    expanded.resize(written - 1);  // the count includes the terminator
    return expanded;
}

void mapCase(wchar_t* text, int count, bool upper) {
    if (count <= 0) {
        return;
    }
    // Plain case mapping: in place is allowed for exactly these two flags.
    LCMapStringW(LOCALE_USER_DEFAULT, upper ? LCMAP_UPPERCASE : LCMAP_LOWERCASE, text, count, text,
                 count);
}

}  // namespace internal
}  // namespace ORX
