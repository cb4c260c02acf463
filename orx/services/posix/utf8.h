// UTF-8 and wide text on Linux (wchar_t holds one code point). Bytes that are not valid
// UTF-8, as Linux file names may contain, become U+DC80..U+DCFF and turn back into the same
// bytes, so that a name survives the round trip.
#ifndef ORX_SERVICES_POSIX_UTF8_H
#define ORX_SERVICES_POSIX_UTF8_H

#include <string>
#include <string_view>

namespace ORX::internal {

std::wstring fromUtf8(std::string_view text);
std::string toUtf8(std::wstring_view text);

}  // namespace ORX::internal

#endif  // ORX_SERVICES_POSIX_UTF8_H
