// Time conversions and locale texts on Linux: the C library, its time zone (TZ) and its
// locale of the user's settings.
#include <langinfo.h>
#include <clocale>
#include <ctime>
#include <cwchar>

#include <string>

#include "orx/foundation/shared/utf8.h"
#include "orx/services/internal/calendar.h"

namespace ORX::internal {
namespace {

// The size of the text buffers, in characters, as on Windows.
constexpr std::size_t kTextCharacters = 260;
// The long date: weekday, day, month name and year in the locale's language.
constexpr wchar_t const* kLongDateFormat = L"%A, %-d %B %Y";
constexpr int kTmYearBase = 1900;

tm fieldsOf(SYSTEMTIME const& time) {
    tm fields{};
    fields.tm_year = time.wYear - kTmYearBase;
    fields.tm_mon = time.wMonth - 1;
    fields.tm_mday = time.wDay;
    fields.tm_hour = time.wHour;
    fields.tm_min = time.wMinute;
    fields.tm_sec = time.wSecond;
    fields.tm_isdst = -1;
    return fields;
}

void copyFields(tm const& fields, unsigned short milliseconds, SYSTEMTIME& time) {
    time.wYear = static_cast<unsigned short>(fields.tm_year + kTmYearBase);
    time.wMonth = static_cast<unsigned short>(fields.tm_mon + 1);
    time.wDayOfWeek = static_cast<unsigned short>(fields.tm_wday);
    time.wDay = static_cast<unsigned short>(fields.tm_mday);
    time.wHour = static_cast<unsigned short>(fields.tm_hour);
    time.wMinute = static_cast<unsigned short>(fields.tm_min);
    time.wSecond = static_cast<unsigned short>(fields.tm_sec);
    time.wMilliseconds = milliseconds;
}

// The fields of a SYSTEMTIME with the day of week and of year filled in for the formats
// that name the weekday.
tm formattableFields(SYSTEMTIME const& time) {
    tm fields = fieldsOf(time);
    tm normalised = fields;
    if (timegm(&normalised) != -1) {
        fields.tm_wday = normalised.tm_wday;
        fields.tm_yday = normalised.tm_yday;
    }
    return fields;
}

// The time-formatting locale of the user's settings, the C locale when they name one that is
// not installed; released when the object ends.
class UserTimeLocale {
public:
    UserTimeLocale() : m_locale(newlocale(LC_TIME_MASK, "", locale_t{})) {
        if (m_locale == locale_t{}) {
            m_locale = newlocale(LC_TIME_MASK, "C", locale_t{});
        }
    }
    ~UserTimeLocale() {
        if (m_locale != locale_t{}) {
            freelocale(m_locale);
        }
    }
    UserTimeLocale(UserTimeLocale const&) = delete;
    UserTimeLocale& operator=(UserTimeLocale const&) = delete;

    bool valid() const { return m_locale != locale_t{}; }

    // The locale's date format with "%y" widened to "%Y", so that years always have four
    // digits, as the short dates of Windows locales have.
    std::wstring shortDateFormat() const {
        std::wstring format = fromUtf8(nl_langinfo_l(D_FMT, m_locale));
        for (std::size_t at = format.find(L"%y"); at != std::wstring::npos;
             at = format.find(L"%y", at + 2)) {
            format[at + 1] = L'Y';
        }
        return format;
    }

    std::wstring format(wchar_t const* pattern, tm const& fields) const {
        wchar_t text[kTextCharacters];
        std::size_t const length = wcsftime_l(text, kTextCharacters, pattern, &fields, m_locale);
        return std::wstring(text, length);
    }

private:
    locale_t m_locale;
};

}  // namespace

bool breakDownTime(__int64 t, bool local, tm& out) {
    time_t const seconds = static_cast<time_t>(t);
    return (local ? localtime_r(&seconds, &out) : gmtime_r(&seconds, &out)) != nullptr;
}

__int64 makeTime(tm& fields, bool local) {
    return static_cast<__int64>(local ? mktime(&fields) : timegm(&fields));
}

bool localToGmt(SYSTEMTIME const& local, SYSTEMTIME& gmt) {
    tm fields = fieldsOf(local);
    time_t const seconds = mktime(&fields);
    tm broken{};
    if (seconds == -1 || gmtime_r(&seconds, &broken) == nullptr) {
        return false;
    }
    copyFields(broken, local.wMilliseconds, gmt);
    return true;
}

bool gmtToLocal(SYSTEMTIME const& gmt, SYSTEMTIME& local) {
    tm fields = fieldsOf(gmt);
    time_t const seconds = timegm(&fields);
    tm broken{};
    if (seconds == -1 || localtime_r(&seconds, &broken) == nullptr) {
        return false;
    }
    copyFields(broken, gmt.wMilliseconds, local);
    return true;
}

std::wstring localeDateText(SYSTEMTIME const& time, bool longDate) {
    UserTimeLocale const locale;
    if (!locale.valid()) {
        return std::wstring();
    }
    tm const fields = formattableFields(time);
    return longDate ? locale.format(kLongDateFormat, fields)
                    : locale.format(locale.shortDateFormat().c_str(), fields);
}

std::wstring localeTimeText(SYSTEMTIME const& time) {
    UserTimeLocale const locale;
    if (!locale.valid()) {
        return std::wstring();
    }
    return locale.format(L"%X", formattableFields(time));
}

}  // namespace ORX::internal
