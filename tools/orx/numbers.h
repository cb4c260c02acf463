// Number text of the tool's formats: strict parsing that refuses what would not survive a
// round trip (NaN, infinities, overflow, trailing junk), and the shortest text that reads
// back to the same double.
#ifndef ORX_TOOL_NUMBERS_H
#define ORX_TOOL_NUMBERS_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orxtool {

// The finite double the whole text spells (surrounding blanks and one leading '+' allowed);
// nothing for anything else, "nan", "inf" and values too large included. A value too small
// for a double ("1e-400") reads as 0, as it would in any program.
std::optional<double> parseFinite(std::string_view text);

// The integer the whole text spells (surrounding blanks allowed); nothing otherwise.
std::optional<long> parseInteger(std::string_view text);

// Comma-separated finite doubles ("1,2.5,-3"). Throws ToolError naming `what` and the bad
// item; an empty text gives an empty list.
std::vector<double> parseNumberList(std::string const& text, std::string const& what);

// The shortest text that parses back to exactly `value` ("0.1", "1e+300", "-0").
std::string exactText(double value);

// Compact text for humans and pictures: `digits` significant digits, no trailing zeros.
std::string shortText(double value, int digits);

// Significant digits of the numbers in reports: enough to compare, few enough to read.
constexpr int kReportDigits = 10;

// A number of a report (`orx info`, `orx locate`): shortText with kReportDigits.
std::string reportText(double value);

// A measure of a report: a length, area or moment of finite coordinates may still exceed the
// largest double, and then reads "inf (beyond the range of doubles)".
std::string measureText(double value);

// A point of a report: "(x, y)" in reportText.
std::string pointText(double x, double y);

}  // namespace orxtool

#endif  // ORX_TOOL_NUMBERS_H
