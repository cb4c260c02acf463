// The decimal number reader shared by ORX::atof and orxAtoF.
#ifndef ORX_FOUNDATION_INTERNAL_NUMBER_SCAN_H
#define ORX_FOUNDATION_INTERNAL_NUMBER_SCAN_H

#include <cstddef>
#include <string_view>

namespace ORX {
namespace internal {

// Reads an unsigned decimal number at the start of text: digits with an optional point and
// fraction digits (at least one digit in all), then an optional exponent (e or E, optional
// sign, digits; not read without its digits). The point is '.', whatever the locale.
// Returns the number of characters read, 0 when text does not start with a number. A value
// beyond the range of double reads as infinity, one too small as 0.
std::size_t scanUnsignedDecimal(std::wstring_view text, double& value);

}  // namespace internal
}  // namespace ORX

#endif  // ORX_FOUNDATION_INTERNAL_NUMBER_SCAN_H
