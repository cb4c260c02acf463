// Time conversions and locale texts on Windows: the C runtime's 64-bit time functions, the
// system's time-zone conversion and its locale formatting.
#include <windows.h>

#include <time.h>

#include <string>

#include "orx/services/internal/calendar.h"

namespace ORX::internal {
namespace {

// The size of the text buffers, in characters.
constexpr int kTextCharacters = 260;

}  // namespace

bool breakDownTime(__int64 t, bool local, tm& out) {
    __time64_t const seconds = t;
    tm const* broken = local ? _localtime64(&seconds) : _gmtime64(&seconds);
    if (broken == nullptr) {
        return false;
    }
    out = *broken;
    return true;
}

__int64 makeTime(tm& fields, bool local) {
    return local ? _mktime64(&fields) : _mkgmtime64(&fields);
}

bool localToGmt(SYSTEMTIME const& local, SYSTEMTIME& gmt) {
    TIME_ZONE_INFORMATION zone{};
    GetTimeZoneInformation(&zone);
    return TzSpecificLocalTimeToSystemTime(&zone, &local, &gmt) != 0;
}

bool gmtToLocal(SYSTEMTIME const& gmt, SYSTEMTIME& local) {
    TIME_ZONE_INFORMATION zone{};
    GetTimeZoneInformation(&zone);
    return SystemTimeToTzSpecificLocalTime(&zone, &gmt, &local) != 0;
}

std::wstring localeDateText(SYSTEMTIME const& time, bool longDate) {
    wchar_t text[kTextCharacters];
    int const length =
        GetDateFormatW(LOCALE_USER_DEFAULT, longDate ? DATE_LONGDATE : DATE_SHORTDATE, &time,
                       nullptr, text, kTextCharacters);
    return length > 0 ? std::wstring(text) : std::wstring();
}

std::wstring localeTimeText(SYSTEMTIME const& time) {
    wchar_t text[kTextCharacters];
    int const length = GetTimeFormatW(LOCALE_USER_DEFAULT, LOCALE_NOUSEROVERRIDE, &time, nullptr,
                                      text, kTextCharacters);
    return length > 0 ? std::wstring(text) : std::wstring();
}

}  // namespace ORX::internal
