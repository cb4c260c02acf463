#include "numbers.h"

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string>
#include <system_error>

#include "message_text.h"
#include "tool_error.h"

namespace orxtool {

namespace {

std::string_view trimmed(std::string_view text) {
    char const* blanks = " \t\r\n";
    std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return {};
    }
    std::size_t last = text.find_last_not_of(blanks);
    return text.substr(first, last - first + 1);
}

}  // namespace

std::optional<double> parseFinite(std::string_view text) {
    text = trimmed(text);
    if (!text.empty() && text.front() == '+') {
        text.remove_prefix(1);
    }
    if (text.empty()) {
        return std::nullopt;
    }
    double value = 0.0;
    char const* end = text.data() + text.size();
    auto [ptr, ec] = std::from_chars(text.data(), end, value);
    if (ptr != end || (ec != std::errc() && ec != std::errc::result_out_of_range)) {
        return std::nullopt;
    }
    if (ec == std::errc::result_out_of_range) {
        // A well-formed number beyond the range: strtod tells an underflow, which reads as
        // 0 (or the nearest tiny double), from an overflow, which gives infinity.
        value = std::strtod(std::string(text).c_str(), nullptr);
    }
    if (!std::isfinite(value)) {
        return std::nullopt;
    }
    return value;
}

std::optional<long> parseInteger(std::string_view text) {
    text = trimmed(text);
    long value = 0;
    char const* end = text.data() + text.size();
    auto [ptr, ec] = std::from_chars(text.data(), end, value);
    if (text.empty() || ec != std::errc() || ptr != end) {
        return std::nullopt;
    }
    return value;
}

std::vector<double> parseNumberList(std::string const& text, std::string const& what) {
    std::vector<double> numbers;
    if (trimmed(text).empty()) {
        return numbers;
    }
    std::size_t start = 0;
    while (true) {
        std::size_t comma = text.find(',', start);
        std::string item = text.substr(start, comma == std::string::npos ? comma : comma - start);
        std::optional<double> value = parseFinite(item);
        if (!value) {
            throw ToolError(what + ": " + quotedInput(item) + " is not a finite number");
        }
        numbers.push_back(*value);
        if (comma == std::string::npos) {
            return numbers;
        }
        start = comma + 1;
    }
}

std::string exactText(double value) {
    char buffer[64];
    auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    return std::string(buffer, result.ptr);
}

std::string shortText(double value, int digits) {
    if (value == 0.0) {
        return "0";  // also for -0, which reads oddly in a report or a label
    }
    if (std::isnan(value)) {
        return "nan";  // whatever its sign bit
    }
    char buffer[64];
    auto result =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, digits);
    return std::string(buffer, result.ptr);
}

std::string reportText(double value) {
    return shortText(value, kReportDigits);
}

std::string measureText(double value) {
    return std::isinf(value) ? reportText(value) + " (beyond the range of doubles)"
                             : reportText(value);
}

std::string pointText(double x, double y) {
    return "(" + reportText(x) + ", " + reportText(y) + ")";
}

}  // namespace orxtool
