// The C library's and the system's time conversions behind date_time.h, one implementation
// per platform: win32/calendar_win32.cpp and posix/calendar_posix.cpp.
#ifndef ORX_SERVICES_INTERNAL_CALENDAR_H
#define ORX_SERVICES_INTERNAL_CALENDAR_H

#include <ctime>
#include <string>

#include "orx/foundation/platform.h"
#include "orx/services/windows_types.h"

namespace ORX::internal {

// Seconds since 1970 broken down as local time or GMT (_localtime64/_gmtime64,
// localtime_r/gmtime_r); false when the C library cannot.
bool breakDownTime(__int64 t, bool local, tm& out);
// A tm read as local time or GMT, and normalised in place (_mktime64/_mkgmtime64,
// mktime/timegm); -1 when the C library cannot represent it.
__int64 makeTime(tm& fields, bool local);

// Local time to GMT and back with the current time-zone rules; false when the time cannot be
// converted. Milliseconds are carried over.
bool localToGmt(SYSTEMTIME const& local, SYSTEMTIME& gmt);
bool gmtToLocal(SYSTEMTIME const& gmt, SYSTEMTIME& local);

// The date and the time of a SYSTEMTIME as the user's locale writes them (see dateTime in
// date_time.h); empty when the system cannot format them. The day of week is ignored.
std::wstring localeDateText(SYSTEMTIME const& time, bool longDate);
std::wstring localeTimeText(SYSTEMTIME const& time);

}  // namespace ORX::internal

#endif  // ORX_SERVICES_INTERNAL_CALENDAR_H
