// Number text: orxRtoS, orxAtoF and the decimal reader behind them and ORX::atof.
#include "orx/foundation/number_text.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "orx/foundation/internal/number_scan.h"

namespace {

// The largest number of digits after the point of the decimal modes.
constexpr int kMaxDecimalDigits = 20;
// The largest power of two of the fractional modes' denominators (1/256).
constexpr int kMaxFractionBits = 8;
constexpr long long kInchesPerFoot = 12;
// The largest count of fraction units a double holds exactly (2^53).
constexpr double kMaxExactUnits = 9007199254740992.0;

bool isDigit(wchar_t c) {
    return c >= L'0' && c <= L'9';
}

int clamp(int value, int low, int high) {
    return value < low ? low : (value > high ? high : value);
}

// Whether a decimal text that overflowed double was large (else it was too small): the
// position of its first significant digit relative to the point, plus its exponent.
bool overflowsUp(std::string_view text) {
    long position = 0;
    bool pastPoint = false;
    bool found = false;
    std::size_t at = 0;
    for (; at < text.size() && text[at] != 'e' && text[at] != 'E'; ++at) {
        if (text[at] == '.') {
            pastPoint = true;
        } else if (!found && text[at] == '0') {
            position -= pastPoint ? 1 : 0;
        } else {
            found = true;
            position += pastPoint ? 0 : 1;
        }
    }
    long exponent = 0;
    bool negative = false;
    for (++at; at < text.size(); ++at) {
        if (text[at] == '-') {
            negative = true;
        } else if (text[at] != '+' && exponent < 100000) {
            exponent = exponent * 10 + (text[at] - '0');
        }
    }
    return found && position + (negative ? -exponent : exponent) > 0;
}

// Drops the minus sign of a text whose number part (before any exponent) has no non-zero
// digit: a negative value that rounds to zero is written as zero.
COrxString& dropNegativeZero(COrxString& text) {
    if (text[0] != L'-') {
        return text;
    }
    for (int k = 1; k < text.len() && text[k] != L'E'; ++k) {
        if (text[k] >= L'1' && text[k] <= L'9') {
            return text;
        }
    }
    text = text.mid(1, static_cast<unsigned int>(text.len()));
    return text;
}

COrxString fixedText(double value, int digits) {
    COrxString text;
    text.format(L"%.*f", digits, value);
    return dropNegativeZero(text);
}

// Feet and decimal inches of a magnitude: F'-I".
COrxString engineeringText(double magnitude, int digits) {
    double feet = std::floor(magnitude / static_cast<double>(kInchesPerFoot));
    double const inches = magnitude - feet * static_cast<double>(kInchesPerFoot);
    COrxString inchText = fixedText(inches, digits);
    double rounded = 0.0;
    ORX::internal::scanUnsignedDecimal(static_cast<wchar_t const*>(inchText), rounded);
    if (rounded >= static_cast<double>(kInchesPerFoot)) {
        feet += 1.0;  // the inches rounded up to a whole foot
        inchText = fixedText(0.0, digits);
    }
    COrxString text;
    text.format(L"%.0f'-%s\"", feet, static_cast<wchar_t const*>(inchText));
    return text;
}

// "N/D" reduced, appended after a space when text is not empty.
void appendFraction(COrxString& text, long long numerator, long long denominator) {
    while (numerator % 2 == 0 && denominator > 1) {
        numerator /= 2;
        denominator /= 2;
    }
    COrxString fraction;
    fraction.format(L"%s%lld/%lld", text.len() > 0 ? L" " : L"", numerator, denominator);
    text += fraction;
}

COrxString fractionalText(long long units, long long denominator) {
    long long const whole = units / denominator;
    long long const numerator = units % denominator;
    COrxString text(L"");
    if (whole > 0 || numerator == 0) {
        text.format(L"%lld", whole);
    }
    if (numerator > 0) {
        appendFraction(text, numerator, denominator);
    }
    return text;
}

COrxString architecturalText(long long units, long long denominator) {
    long long const perFoot = kInchesPerFoot * denominator;
    long long const numerator = units % denominator;
    COrxString text;
    text.format(L"%lld'-%lld", units / perFoot, (units % perFoot) / denominator);
    if (numerator > 0) {
        appendFraction(text, numerator, denominator);
    }
    text += L'"';
    return text;
}

// Reads a length in any of the modes; see orxAtoF.
class LengthReader {
public:
    explicit LengthReader(std::wstring_view text) : m_text(text), m_at(0) {}

    bool read(double& value) {
        skipSpaces();
        bool negative = false;
        if (accept(L'-')) {
            negative = true;
        } else {
            accept(L'+');
        }
        skipSpaces();
        double magnitude = 0.0;
        if (!readLength(magnitude)) {
            return false;
        }
        skipSpaces();
        if (m_at != m_text.size() || !std::isfinite(magnitude)) {
            return false;
        }
        value = negative ? -magnitude : magnitude;
        return true;
    }

private:
    bool readLength(double& inches) {
        double first = 0.0;
        if (!readMixed(first)) {
            return false;
        }
        skipSpaces();
        if (!accept(L'\'')) {
            accept(L'"');
            inches = first;
            return true;
        }
        inches = first * static_cast<double>(kInchesPerFoot);
        std::size_t const afterFeet = m_at;
        skipSpaces();
        accept(L'-');
        skipSpaces();
        double more = 0.0;
        if (readMixed(more)) {
            skipSpaces();
            accept(L'"');
            inches += more;
        } else {
            m_at = afterFeet;  // feet alone
        }
        return true;
    }

    // A decimal number, a fraction N/D, or a whole number and a fraction set off by white
    // space or a hyphen.
    bool readMixed(double& value) {
        std::size_t const start = m_at;
        if (readFraction(value)) {
            return true;
        }
        m_at = start;
        double number = 0.0;
        std::size_t const length = ORX::internal::scanUnsignedDecimal(m_text.substr(m_at), number);
        if (length == 0) {
            return false;
        }
        m_at += length;
        if (isWholeNumber(m_text.substr(start, length))) {
            std::size_t const afterNumber = m_at;
            bool const spaced = skipSpaces();
            bool const hyphen = accept(L'-');
            skipSpaces();
            double fraction = 0.0;
            if ((spaced || hyphen) && readFraction(fraction)) {
                value = number + fraction;
                return true;
            }
            m_at = afterNumber;
        }
        value = number;
        return true;
    }

    bool readFraction(double& value) {
        double numerator = 0.0;
        double denominator = 0.0;
        if (!readWhole(numerator) || !accept(L'/') || !readWhole(denominator) ||
            denominator == 0.0) {
            return false;
        }
        value = numerator / denominator;
        return true;
    }

    bool readWhole(double& value) {
        std::size_t const start = m_at;
        value = 0.0;
        while (m_at < m_text.size() && isDigit(m_text[m_at])) {
            value = value * 10.0 + (m_text[m_at++] - L'0');
        }
        return m_at > start;
    }

    static bool isWholeNumber(std::wstring_view text) {
        for (wchar_t c : text) {
            if (!isDigit(c)) {
                return false;
            }
        }
        return true;
    }

    bool skipSpaces() {
        std::size_t const start = m_at;
        while (m_at < m_text.size() && (m_text[m_at] == L' ' || m_text[m_at] == L'\t' ||
                                        m_text[m_at] == L'\n' || m_text[m_at] == L'\r')) {
            ++m_at;
        }
        return m_at > start;
    }

    bool accept(wchar_t c) {
        if (m_at < m_text.size() && m_text[m_at] == c) {
            ++m_at;
            return true;
        }
        return false;
    }

    std::wstring_view m_text;
    std::size_t m_at;
};

}  // namespace

namespace ORX {
namespace internal {

std::size_t scanUnsignedDecimal(std::wstring_view text, double& value) {
    std::size_t at = 0;
    std::size_t digits = 0;
    for (; at < text.size() && isDigit(text[at]); ++at) {
        ++digits;
    }
    if (at < text.size() && text[at] == L'.') {
        for (++at; at < text.size() && isDigit(text[at]); ++at) {
            ++digits;
        }
    }
    if (digits == 0) {
        return 0;
    }
    std::size_t end = at;
    if (at < text.size() && (text[at] == L'e' || text[at] == L'E')) {
        std::size_t exponent = at + 1;
        if (exponent < text.size() && (text[exponent] == L'+' || text[exponent] == L'-')) {
            ++exponent;
        }
        std::size_t const firstDigit = exponent;
        while (exponent < text.size() && isDigit(text[exponent])) {
            ++exponent;
        }
        if (exponent > firstDigit) {
            end = exponent;
        }
    }
    std::string const ascii(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(end));
    double parsed = 0.0;
    std::from_chars_result const result =
        std::from_chars(ascii.data(), ascii.data() + ascii.size(), parsed);
    if (result.ec == std::errc::result_out_of_range) {
        parsed = overflowsUp(ascii) ? std::numeric_limits<double>::infinity() : 0.0;
    }
    value = parsed;
    return end;
}

}  // namespace internal
}  // namespace ORX

COrxString orxRtoS(double value, Orx::lFormat format, int precision) {
    if (!std::isfinite(value)) {
        return COrxString::kNull;
    }
    int const digits = clamp(precision, 0, kMaxDecimalDigits);
    double const magnitude = std::fabs(value);
    COrxString text;
    switch (format) {
        case Orx::lScientific:
            text.format(L"%.*E", digits, value);
            return dropNegativeZero(text);
        case Orx::lDecimal:
            return fixedText(value, digits);
        case Orx::lEngineering:
            text = engineeringText(magnitude, digits);
            break;
        case Orx::lArchitectural:
        case Orx::lFractional: {
            long long const denominator = 1LL << clamp(precision, 0, kMaxFractionBits);
            double const units = std::round(magnitude * static_cast<double>(denominator));
            if (!(units <= kMaxExactUnits)) {
                return COrxString::kNull;
            }
            auto const count = static_cast<long long>(units);
            text = format == Orx::lFractional ? fractionalText(count, denominator)
                                              : architecturalText(count, denominator);
            if (count == 0) {
                return text;  // no sign for what rounded to zero
            }
            break;
        }
        default:
            return COrxString::kNull;
    }
    if (value < 0.0) {
        text = L"-" + text;
        dropNegativeZero(text);
    }
    return text;
}

bool orxAtoF(wchar_t const* text, double& value) {
    if (text == nullptr) {
        return false;
    }
    return LengthReader(text).read(value);
}
