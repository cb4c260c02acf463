// Base64 (RFC 4648): bytes as text of the standard alphabet A-Z a-z 0-9 + /, padded with '='
// to a multiple of four characters.
//
//     unsigned char const bytes[] = {'O', 'r', 'x'};
//     COrxString text = ORX::base64Encode(bytes, 3);          // "T3J4"
//     COrxArrayTempl<unsigned char> back;
//     ORX::base64Decode(back, text);                           // {'O', 'r', 'x'}
#ifndef ORX_FOUNDATION_BASE64_H
#define ORX_FOUNDATION_BASE64_H

#include "orx/foundation/array_templ.h"
#include "orx/foundation/platform.h"
#include "orx/foundation/string.h"

namespace ORX {

// The size bytes at data as one line of Base64 text (no line breaks). No bytes give the empty
// string; a null data with a non-zero size gives the null string.
ORX_API COrxString base64Encode(unsigned char const* data, unsigned long size);
ORX_API COrxString base64Encode(COrxArrayTempl<unsigned char> const& bytes);

// Decodes Base64 text into bytes, replacing the contents of bytes. Spaces, tabs and line
// breaks anywhere in the text are skipped (text wrapped at 76 characters decodes). Only the
// canonical form is accepted: false, with bytes untouched, for a null text, a character
// outside the alphabet, a length (without the skipped characters) that is not a multiple of
// four, padding anywhere but in the last one or two places, or unused bits in the last
// character that are not zero. The empty text gives no bytes.
ORX_API bool base64Decode(COrxArrayTempl<unsigned char>& bytes, wchar_t const* text);

}  // namespace ORX

#endif  // ORX_FOUNDATION_BASE64_H
