// Number text: lengths and other reals written and read in the unit formats of drawings.
//
// Modes of Orx::lFormat; the modes with feet and inches take the value in inches:
//   lScientific     1.5500E+01       precision: digits after the point
//   lDecimal        15.5000          precision: digits after the point
//   lEngineering    1'-3.5000"       feet and decimal inches; precision as above
//   lArchitectural  1'-3 1/2"        feet and inches with a fraction of denominator
//                                    2^precision at most (reduced)
//   lFractional     15 1/2           a whole number and such a fraction
//
//     COrxString text = orxRtoS(20180315.143005, Orx::lDecimal, 8);   // "20180315.14300500"
//     double inches;
//     orxAtoF(L"1'-3 1/2\"", inches);                                 // 15.5
#ifndef ORX_FOUNDATION_NUMBER_TEXT_H
#define ORX_FOUNDATION_NUMBER_TEXT_H

#include "orx/foundation/platform.h"
#include "orx/foundation/string.h"

namespace Orx {

enum lFormat {
    lScientific = 1,
    lDecimal = 2,
    lEngineering = 3,
    lArchitectural = 4,
    lFractional = 5,
};

}  // namespace Orx

// The value as text in the mode. precision is clamped to 0..20 for the decimal modes and to
// 0..8 (denominators up to 256) for the fractional ones. Values round to the nearest unit
// of the last place (decimal modes: as printf rounds, the binary value exactly; fractions:
// halves away from zero); a result that rounds to zero carries no minus sign. A NaN or
// infinite value, an unknown mode, or a fractional value too large to be counted exactly in
// its units (2^53 of them) gives the null string.
ORX_API COrxString orxRtoS(double value, Orx::lFormat format, int precision);

// Reads a number in any of the modes above (surrounding white space allowed, a sign before
// all, feet with ', inches optionally closed with ", a fraction after the whole number set
// off by a space or a hyphen, "1'-3" or "15-1/2" too). False, with value untouched, for a
// null or empty text, anything else in the text, a zero denominator, or a result beyond the
// range of double.
ORX_API bool orxAtoF(wchar_t const* text, double& value);

#endif  // ORX_FOUNDATION_NUMBER_TEXT_H
