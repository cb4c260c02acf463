#include <cerrno>
#include <clocale>
#include <cstring>
#include <cwchar>
#include <string>

#include "orx/services/diagnostics.h"

namespace ORX {
namespace {

// The process-wide text behind lastErrorString().
std::wstring g_lastError;

// strerror's text is in the locale's multibyte encoding; a byte that does not decode is
// taken as Latin-1 so that nothing is lost.
std::wstring widened(char const* text) {
    std::wstring wide;
    std::mbstate_t state{};
    std::size_t const length = std::strlen(text);
    std::size_t at = 0;
    while (at < length) {
        wchar_t character = 0;
        std::size_t const used = std::mbrtowc(&character, text + at, length - at, &state);
        if (used == 0 || used > length - at) {
            character = static_cast<unsigned char>(text[at]);
            state = std::mbstate_t{};
            wide += character;
            ++at;
            continue;
        }
        wide += character;
        at += used;
    }
    return wide;
}

}  // namespace

wchar_t const* lastErrorString() {
    int const error = errno;
    char buffer[256];
    // The GNU strerror_r returns the text, in `buffer` or in static storage.
    g_lastError = widened(strerror_r(error, buffer, sizeof buffer));
    return g_lastError.c_str();
}

}  // namespace ORX
