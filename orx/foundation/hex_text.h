// Numbers and bytes as hexadecimal text.
//
//     ORX::ltox(255);                          // "ff"
//     unsigned long long value;
//     ORX::xtol(L"0x1F", value);               // true, 31
//     ORX::dump(bytes, 20);                    // two lines, as below
#ifndef ORX_FOUNDATION_HEX_TEXT_H
#define ORX_FOUNDATION_HEX_TEXT_H

#include "orx/foundation/platform.h"
#include "orx/foundation/string.h"

namespace ORX {

// The number in lower-case hex digits, without a prefix or leading zeros ("0" for 0), as
// printf's %llx writes it.
ORX_API COrxString ltox(unsigned long long value);

// Reads a hex number: surrounding spaces and tabs, an optional "0x" or "0X", then one or more
// hex digits of either case. False, with value untouched, for a null text, no digits, any
// other character, or a number beyond 64 bits.
ORX_API bool xtol(wchar_t const* text, unsigned long long& value);

// The bytes as a hex dump, 16 to a line, each line ended by '\n':
//     00000000  4f 72 78 20 62 61 73 65  20 6c 69 62 72 61 72 79  |Orx base library|
//     00000010  0a 00 ff 41                                       |...A|
// the offset in eight hex digits, the bytes in two groups of eight, and the bytes again as
// ASCII with '.' for anything not printable. No bytes give the empty string; a null data with
// a non-zero size gives the null string.
ORX_API COrxString dump(unsigned char const* data, unsigned long size);

}  // namespace ORX

#endif  // ORX_FOUNDATION_HEX_TEXT_H
