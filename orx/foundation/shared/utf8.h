// The one conversion between the system's text (UTF-8 bytes) and wide text on Linux, where
// wchar_t holds one code point: environment values, file names, registry text, process
// arguments all go through it, so that a name read in one place finds the same thing in
// another.
//
// Lossless for any bytes: bytes that are not valid UTF-8, as Linux file names and environment
// values may hold, become U+DC80..U+DCFF (one per byte) and turn back into the same bytes.
// (The code-page conversions of COrxString keep Windows' answers instead, U+FFFD, since they
// convert text, not names.)
#ifndef ORX_FOUNDATION_SHARED_UTF8_H
#define ORX_FOUNDATION_SHARED_UTF8_H

#include <string>
#include <string_view>

namespace ORX::internal {

std::wstring fromUtf8(std::string_view text);
// Characters beyond U+10FFFF have no bytes and are left out.
std::string toUtf8(std::wstring_view text);

}  // namespace ORX::internal

#endif  // ORX_FOUNDATION_SHARED_UTF8_H
