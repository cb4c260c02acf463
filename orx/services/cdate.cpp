// The CAD host's CDATE: a double whose decimal digits read YYYYMMDD.HHMMSS.
#include <cmath>
#include <cwchar>

#include "orx/foundation/number_text.h"
#include "orx/foundation/text.h"
#include "orx/services/date_time.h"
#include "orx/services/internal/calendar.h"

namespace ORX {
namespace {

// The CDATE range that is read: 1900-01-01 to the largest eight-digit date.
constexpr double kEarliestCDate = 19000101.0;
constexpr double kLatestCDate = 99999999.0;
// The CDATE is written with this many decimals and read as text of this length, padded
// with leading zeros: eight date digits, the point and eight fraction digits.
constexpr int kCDateDecimals = 8;
constexpr unsigned int kCDateTextLength = 17;
// tm counts years from 1900 and months from 0.
constexpr int kTmYearBase = 1900;

}  // namespace

bool tmToAcadCDate(double& cdate, tm* in) {
    if (in == nullptr) {
        return false;
    }
    COrxString text;
    text.format(L"%04d%02d%02d.%02d%02d%02d", in->tm_year + kTmYearBase, in->tm_mon + 1,
                in->tm_mday, in->tm_hour, in->tm_min, in->tm_sec);
    cdate = ORX::atof(text);
    return true;
}

bool acadCDateToTm(tm* out, double cdate) {
    if (out == nullptr || !std::isfinite(cdate) || cdate < kEarliestCDate || cdate > kLatestCDate) {
        return false;
    }
    COrxString text = orxRtoS(cdate, Orx::lDecimal, kCDateDecimals);
    text.lfill(kCDateTextLength, L'0');
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    // Year, month, day, the decimal point skipped, hour, minute, second.
    std::swscanf(text, L"%4d%2d%2d%*c%2d%2d%2d", &year, &month, &day, &hour, &minute, &second);
    if (month < 1) {
        return false;
    }
    tm fields{};
    fields.tm_year = year - kTmYearBase;
    fields.tm_mon = month - 1;
    fields.tm_mday = day;
    fields.tm_hour = hour;
    fields.tm_min = minute;
    fields.tm_sec = second;
    fields.tm_isdst = -1;
    internal::makeTime(fields, true);  // normalises as _mktime64 does
    *out = fields;
    return true;
}

bool timeToAcadCDate(double& cdate, __int64 t) {
    tm fields{};
    return CDateTime::timeToTm(&fields, t, true) && tmToAcadCDate(cdate, &fields);
}

bool acadCDateToTime(__int64& t, double cdate) {
    tm fields{};
    return acadCDateToTm(&fields, cdate) && CDateTime::tmToTime(t, &fields, true);
}

}  // namespace ORX
