// ORX::dateTime: the date and time texts come from the platform (internal/calendar.h); the
// way they are joined is the same everywhere.
#include <string>

#include "orx/services/date_time.h"
#include "orx/services/internal/calendar.h"

namespace ORX {
namespace {

SYSTEMTIME systemTimeOf(CDateTime const& dt) {
    SYSTEMTIME time{};
    time.wYear = static_cast<unsigned short>(dt.year());
    time.wMonth = static_cast<unsigned short>(dt.month());
    time.wDay = static_cast<unsigned short>(dt.day());
    time.wHour = static_cast<unsigned short>(dt.hour());
    time.wMinute = static_cast<unsigned short>(dt.minute());
    time.wSecond = static_cast<unsigned short>(dt.second());
    return time;
}

}  // namespace

wchar_t const* dateTime(COrxString& out, CDateTime const& dt, bool longDate) {
    SYSTEMTIME const time = systemTimeOf(dt);
    std::wstring text = internal::localeDateText(time, longDate);
    text += L' ';
    text += internal::localeTimeText(time);
    if (dt.isGMT()) {
        text += L" GMT";
    }
    out = text.c_str();
    return out;
}

wchar_t const* dateTime(COrxString& out, __int64 t, bool longDate) {
    CDateTime local;
    local = t;
    return dateTime(out, local, longDate);
}

}  // namespace ORX
