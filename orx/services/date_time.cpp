#include "orx/services/date_time.h"

#include <ctime>

#include "orx/services/internal/calendar.h"

namespace ORX {
namespace {

// The first year a CDateTime accepts (seconds since 1970 start there) and the last a
// SYSTEMTIME holds.
constexpr int kFirstYear = 1970;
constexpr int kLastYear = 30827;
constexpr unsigned int kLastHour = 23;
constexpr unsigned int kLastMinute = 59;
constexpr unsigned int kLastSecond = 59;
// tm counts years from 1900 and months from 0.
constexpr int kTmYearBase = 1900;

bool inConvertibleRange(__int64 t) {
    return t >= kEarliestTime && t <= kLatestTime;
}

bool isLeapYear(int year) {
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

}  // namespace

CDateTime::CDateTime() : m_time{1970, 1, 0, 1, 0, 0, 0, 0}, m_gmt(false) {}

int CDateTime::year() const {
    return m_time.wYear;
}

int CDateTime::month() const {
    return m_time.wMonth;
}

int CDateTime::day() const {
    return m_time.wDay;
}

int CDateTime::hour() const {
    return m_time.wHour;
}

int CDateTime::minute() const {
    return m_time.wMinute;
}

int CDateTime::second() const {
    return m_time.wSecond;
}

bool CDateTime::isGMT() const {
    return m_gmt;
}

void CDateTime::setGMT(bool gmt) {
    m_gmt = gmt;
}

bool CDateTime::setYear(int year) {
    if (year < kFirstYear || year > kLastYear) {
        return false;
    }
    m_time.wYear = static_cast<unsigned short>(year);
    return true;
}

bool CDateTime::setMonth(int month) {
    if (month < 1 || month > 12 || m_time.wDay > daysPerMonth(month)) {
        return false;
    }
    m_time.wMonth = static_cast<unsigned short>(month);
    return true;
}

bool CDateTime::setDay(int day) {
    if (day < 1 || day > daysPerMonth(m_time.wMonth)) {
        return false;
    }
    m_time.wDay = static_cast<unsigned short>(day);
    return true;
}

// Compared unsigned, so that negative values are refused with the too large ones.
bool CDateTime::setHour(int hour) {
    if (static_cast<unsigned int>(hour) > kLastHour) {
        return false;
    }
    m_time.wHour = static_cast<unsigned short>(hour);
    return true;
}

bool CDateTime::setMinute(int minute) {
    if (static_cast<unsigned int>(minute) > kLastMinute) {
        return false;
    }
    m_time.wMinute = static_cast<unsigned short>(minute);
    return true;
}

bool CDateTime::setSecond(int second) {
    if (static_cast<unsigned int>(second) > kLastSecond) {
        return false;
    }
    m_time.wSecond = static_cast<unsigned short>(second);
    return true;
}

int CDateTime::daysPerMonth(int month) const {
    static int const kDays[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (month < 1 || month > 12) {
        return 0;
    }
    if (month == 2 && isLeapYear(m_time.wYear)) {
        return 29;
    }
    return kDays[month - 1];
}

CDateTime CDateTime::now(bool gmt) {
    CDateTime value;
    value.m_gmt = gmt;
    value = static_cast<__int64>(std::time(nullptr));
    return value;
}

CDateTime& CDateTime::operator=(__int64 t) {
    timeToSystemTime(&m_time, t, !m_gmt);
    return *this;
}

CDateTime::operator __int64() const {
    return time();
}

__int64 CDateTime::time() const {
    __int64 t = -1;
    systemTimeToTime(t, &m_time, !m_gmt);
    return t;
}

CDateTime CDateTime::toGMT() const {
    CDateTime result(*this);
    if (!m_gmt && internal::localToGmt(m_time, result.m_time)) {
        result.m_gmt = true;
    }
    return result;
}

CDateTime CDateTime::toLocal() const {
    CDateTime result(*this);
    if (m_gmt && internal::gmtToLocal(m_time, result.m_time)) {
        result.m_gmt = false;
    }
    return result;
}

bool CDateTime::timeToTm(tm* out, __int64 t, bool local) {
    tm fields{};
    if (out == nullptr || !inConvertibleRange(t) || !internal::breakDownTime(t, local, fields)) {
        return false;
    }
    *out = fields;
    return true;
}

bool CDateTime::tmToTime(__int64& t, tm* in, bool local) {
    if (in == nullptr) {
        return false;
    }
    __int64 const seconds = internal::makeTime(*in, local);
    if (!inConvertibleRange(seconds)) {
        return false;
    }
    t = seconds;
    return true;
}

bool CDateTime::systemTimeToTm(tm* out, SYSTEMTIME const* in, bool gmt) {
    if (out == nullptr || in == nullptr) {
        return false;
    }
    tm fields{};
    fields.tm_year = in->wYear - kTmYearBase;
    fields.tm_mon = in->wMonth - 1;
    fields.tm_mday = in->wDay;
    fields.tm_hour = in->wHour;
    fields.tm_min = in->wMinute;
    fields.tm_sec = in->wSecond;
    fields.tm_wday = in->wDayOfWeek;
    fields.tm_isdst = -1;
    internal::makeTime(fields, !gmt);  // normalises; a time it cannot represent stays as is
    *out = fields;
    return true;
}

bool CDateTime::systemTimeToTime(__int64& t, SYSTEMTIME const* in, bool local) {
    tm fields{};
    return systemTimeToTm(&fields, in, !local) && tmToTime(t, &fields, local);
}

bool CDateTime::timeToSystemTime(SYSTEMTIME* out, __int64 t, bool local) {
    tm fields{};
    return out != nullptr && timeToTm(&fields, t, local) && tmToSystemTime(out, &fields);
}

bool CDateTime::tmToSystemTime(SYSTEMTIME* out, tm const* in) {
    if (out == nullptr || in == nullptr) {
        return false;
    }
    out->wYear = static_cast<unsigned short>(in->tm_year + kTmYearBase);
    out->wMonth = static_cast<unsigned short>(in->tm_mon + 1);
    out->wDayOfWeek = static_cast<unsigned short>(in->tm_wday);
    out->wDay = static_cast<unsigned short>(in->tm_mday);
    out->wHour = static_cast<unsigned short>(in->tm_hour);
    out->wMinute = static_cast<unsigned short>(in->tm_min);
    out->wSecond = static_cast<unsigned short>(in->tm_sec);
    out->wMilliseconds = 0;
    return true;
}

}  // namespace ORX
