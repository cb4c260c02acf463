// Dates and times: ORX::CDateTime, a calendar value in local time or GMT; conversions
// between SYSTEMTIME, the C library's tm and seconds since 1970; date text in the user's
// locale; and the CAD host's CDATE, a real number whose digits read YYYYMMDD.HHMMSS.
//
//     ORX::CDateTime when = ORX::CDateTime::now(false);      // local time, milliseconds 0
//     when.setDay(1);                                        // false if refused
//     __int64 seconds = when;                                // seconds since 1970
//     COrxString text;
//     ORX::dateTime(text, when, true);                       // long date and time
//     double cdate;
//     ORX::timeToAcadCDate(cdate, seconds);                  // 20180301.143005
//
// Seconds since 1970 are converted only from 0 (1970-01-01 00:00:00 GMT) to 32535215999
// (3000-12-31 23:59:59 GMT), the range the Windows C runtime handles, on both platforms.
// Local time follows the C library's time zone (TZ on Linux; on Windows TZ when set, else
// the system's zone), except toGMT and toLocal on Windows, which use the system's zone.
#ifndef ORX_SERVICES_DATE_TIME_H
#define ORX_SERVICES_DATE_TIME_H

#include <ctime>

#include "orx/foundation/platform.h"
#include "orx/foundation/string.h"
#include "orx/services/windows_types.h"

namespace ORX {

// The first second a CDateTime converts to and from seconds, and the last.
constexpr __int64 kEarliestTime = 0;
constexpr __int64 kLatestTime = 32535215999LL;

// A calendar date and time: a SYSTEMTIME and whether it is GMT (otherwise local time). The
// default value is 1970-01-01 00:00:00.000 local (day of week 0). The setters refuse values
// that do not fit and then leave the value unchanged.
class ORX_API CDateTime {
public:
    CDateTime();
    CDateTime(CDateTime const& other) = default;
    CDateTime& operator=(CDateTime const& other) = default;

    int year() const;
    int month() const;  // 1 to 12
    int day() const;
    int hour() const;
    int minute() const;
    int second() const;
    bool isGMT() const;
    // Only changes the flag; the fields keep their values.
    void setGMT(bool gmt);

    // Refuses years before 1970 and after 30827 (the last a SYSTEMTIME holds); the day is
    // not checked (29 February may remain in another year).
    bool setYear(int year);
    // Refuses months outside 1 to 12, and a month in which the current day does not exist:
    // 31 January cannot become February. Kept so deliberately; callers set the day first.
    bool setMonth(int month);
    // Refuses days below 1 or beyond the length of the current month.
    bool setDay(int day);
    // Refuse hours above 23 and minutes and seconds above 59, and negative values.
    bool setHour(int hour);
    bool setMinute(int minute);
    bool setSecond(int second);

    // The current time in GMT or local time, flagged accordingly; milliseconds 0.
    static CDateTime now(bool gmt);
    // Breaks t down as local time, or as GMT when the value is flagged GMT; milliseconds 0.
    // A t outside kEarliestTime..kLatestTime leaves the value unchanged.
    CDateTime& operator=(__int64 t);
    // The seconds since 1970 of the value, read as local time or GMT by its flag; -1 when
    // it lies outside kEarliestTime..kLatestTime.
    operator __int64() const;
    __int64 time() const;

    // The same moment in GMT (a GMT value is returned as it is), and in local time (a local
    // value as it is). A value that cannot be converted is returned unchanged, with its flag.
    // Windows: the system's time-zone rules for that date; Linux: the C library's (TZ).
    CDateTime toGMT() const;
    CDateTime toLocal() const;

    // Conversions; `local` chooses local time (true) or GMT, and false means nothing was
    // written. tm fields follow the C library (years since 1900, months 0 to 11).
    // Seconds to tm; false for a null tm or t outside kEarliestTime..kLatestTime.
    static bool timeToTm(tm* out, __int64 t, bool local);
    // tm to seconds; the tm is normalised (as mktime does: 32 January becomes 1 February,
    // day of week and of year are filled in). False for a null tm or a result outside
    // kEarliestTime..kLatestTime.
    static bool tmToTime(__int64& t, tm* in, bool local);
    // Copies the fields, then normalises as GMT when `gmt`, else as local time (deciding
    // summer time itself: tm_isdst is set to -1). True unless a pointer is null.
    static bool systemTimeToTm(tm* out, SYSTEMTIME const* in, bool gmt);
    // systemTimeToTm (as GMT unless local), then tmToTime.
    static bool systemTimeToTime(__int64& t, SYSTEMTIME const* in, bool local);
    // timeToTm, then tmToSystemTime.
    static bool timeToSystemTime(SYSTEMTIME* out, __int64 t, bool local);
    // Copies the fields (month + 1, year + 1900, day of week), milliseconds 0. True unless a
    // pointer is null.
    static bool tmToSystemTime(SYSTEMTIME* out, tm const* in);

private:
    // The length of a month of the value's year; 0 outside 1 to 12.
    int daysPerMonth(int month) const;

    SYSTEMTIME m_time;
    bool m_gmt;
};

// out = date + " " + time in the user's locale, with " GMT" after the time for a GMT value;
// returns out's text. longDate chooses the long date form.
// Windows: GetDateFormatW (DATE_LONGDATE or DATE_SHORTDATE) and GetTimeFormatW (the locale's
// own time format, LOCALE_NOUSEROVERRIDE) of the user's default locale.
// Linux: the C library's locale of the user's settings (LC_ALL, LC_TIME, LANG): short date
// as the locale's date format (%x) with the year always in four digits, long date as
// "%A, %-d %B %Y" (weekday, day, month name, year: "Thursday, 15 March 2018"), time as the
// locale's time format (%X); the C locale gives "03/15/2018 14:30:05".
ORX_API wchar_t const* dateTime(COrxString& out, CDateTime const& dt, bool longDate);
// The same for the local time of t (a t that cannot be converted gives the default value).
ORX_API wchar_t const* dateTime(COrxString& out, __int64 t, bool longDate);

// CDATE, the CAD host's date as a real number YYYYMMDD.HHMMSS (20180315.143005).
// The tm's fields as a CDATE (they are written as they are, not normalised). False only for
// a null tm.
ORX_API bool tmToAcadCDate(double& cdate, tm* in);
// A CDATE as a tm, normalised as local time (month 13 becomes January of the next year, day
// 0 the last of the month before). False, out untouched, for a null tm, a value that is not
// finite or lies outside 19000101.0 to 99999999.0, and a month of 0. The seconds are read
// from the value rounded to 8 decimals.
ORX_API bool acadCDateToTm(tm* out, double cdate);
// Seconds since 1970 to a CDATE of the local time and back (through a tm); false when
// either step fails.
ORX_API bool timeToAcadCDate(double& cdate, __int64 t);
ORX_API bool acadCDateToTime(__int64& t, double cdate);

}  // namespace ORX

#endif  // ORX_SERVICES_DATE_TIME_H
