// COrxString::format and the formatter behind it.
//
// Client code is written for Windows, where %s and %c in a wide format take a wide string
// and a wide character. The C runtimes do not agree on that: glibc's wide printf follows
// C99 (%s is narrow), and so does MinGW-w64's own implementation, to which its headers route
// vswprintf in C++ mode; msvcrt's _vsnwprintf has the Windows argument conventions but
// writes three-digit exponents and "1.#INF", unlike the current Windows runtime. So the
// library parses the format itself, with the Windows conventions for the arguments, and
// formats each number with the C99 narrow formatter, which writes the same text on every
// platform. Infinities and NaNs are written here ("inf", "nan"), since runtimes disagree.
#include <algorithm>
#include <cmath>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <cwchar>
#include <exception>
#include <memory>
#include <string>
#include <utility>

#include "orx/foundation/internal/string_internal.h"
#include "orx/foundation/string.h"

namespace {

// The output of one format call: writes what fits, counts everything. With no room at all
// it only measures.
class Output {
public:
    Output(wchar_t* buffer, std::size_t size) : m_buffer(buffer), m_size(size), m_count(0) {}

    void put(wchar_t c) {
        if (m_count < m_size) {
            m_buffer[m_count] = c;
        }
        ++m_count;
    }
    void put(wchar_t const* text, std::size_t n) {
        std::size_t const fitting = std::min(n, room());
        if (fitting > 0) {
            std::copy(text, text + fitting, m_buffer + m_count);
        }
        m_count += n;
    }
    void repeat(wchar_t c, std::size_t n) {
        std::size_t const fitting = std::min(n, room());
        if (fitting > 0) {
            std::fill(m_buffer + m_count, m_buffer + m_count + fitting, c);
        }
        m_count += n;
    }
    // The length of the whole text, also of what did not fit.
    std::size_t count() const { return m_count; }
    // The count written, or -1 when the text and its terminator did not fit.
    int finish() {
        if (m_count >= m_size || m_count > ORX::internal::kMaxCapacity) {
            if (m_size > 0) {
                m_buffer[m_size - 1] = 0;
            }
            return -1;
        }
        m_buffer[m_count] = 0;
        return static_cast<int>(m_count);
    }

private:
    std::size_t room() const { return m_count < m_size ? m_size - m_count : 0; }

    wchar_t* m_buffer;
    std::size_t m_size;
    std::size_t m_count;
};

// A copy of a va_list that ends with its scope, also when formatting throws.
struct ArgumentsCopy {
    explicit ArgumentsCopy(va_list original) { va_copy(args, original); }
    ~ArgumentsCopy() { va_end(args); }
    ArgumentsCopy(ArgumentsCopy const&) = delete;
    ArgumentsCopy& operator=(ArgumentsCopy const&) = delete;

    va_list args;
};

// The size of an argument, from the length modifier.
enum class Size { Default, Char, Short, Long, LongLong, LongDouble, Pointer, Wide };

// One conversion: its flags, width, precision (-1: none given), length and character.
struct Directive {
    bool left = false;       // '-'
    bool plus = false;       // '+'
    bool space = false;      // ' '
    bool alternate = false;  // '#'
    bool zero = false;       // '0'
    int width = 0;
    int precision = -1;
    Size size = Size::Default;
    wchar_t conversion = 0;
};

int readNumber(wchar_t const*& p) {
    long value = 0;
    while (*p >= L'0' && *p <= L'9') {
        if (value < 100000000) {
            value = value * 10 + (*p - L'0');
        }
        ++p;
    }
    return static_cast<int>(value);
}

// Parses the flags, width, precision and length of a conversion after its '%'; p ends on
// the conversion character (or the terminator).
Directive parseDirective(wchar_t const*& p, va_list& args) {
    Directive directive;
    for (;; ++p) {
        if (*p == L'-') {
            directive.left = true;
        } else if (*p == L'+') {
            directive.plus = true;
        } else if (*p == L' ') {
            directive.space = true;
        } else if (*p == L'#') {
            directive.alternate = true;
        } else if (*p == L'0') {
            directive.zero = true;
        } else {
            break;
        }
    }
    if (*p == L'*') {
        ++p;
        directive.width = va_arg(args, int);
        if (directive.width < 0) {
            directive.left = true;
            directive.width = directive.width == INT32_MIN ? 0 : -directive.width;
        }
    } else {
        directive.width = readNumber(p);
    }
    if (*p == L'.') {
        ++p;
        if (*p == L'*') {
            ++p;
            directive.precision = va_arg(args, int);
            if (directive.precision < 0) {
                directive.precision = -1;
            }
        } else {
            directive.precision = readNumber(p);
        }
    }
    if (p[0] == L'h' && p[1] == L'h') {
        directive.size = Size::Char;
        p += 2;
    } else if (p[0] == L'l' && p[1] == L'l') {
        directive.size = Size::LongLong;
        p += 2;
    } else if (p[0] == L'I' && p[1] == L'6' && p[2] == L'4') {
        directive.size = Size::LongLong;
        p += 3;
    } else if (p[0] == L'I' && p[1] == L'3' && p[2] == L'2') {
        directive.size = Size::Default;
        p += 3;
    } else if (*p == L'h') {
        directive.size = Size::Short;
        ++p;
    } else if (*p == L'l') {
        directive.size = Size::Long;
        ++p;
    } else if (*p == L'w') {
        directive.size = Size::Wide;
        ++p;
    } else if (*p == L'L') {
        directive.size = Size::LongDouble;
        ++p;
    } else if (*p == L'I' || *p == L'z' || *p == L't') {
        directive.size = Size::Pointer;
        ++p;
    } else if (*p == L'j') {
        directive.size = Size::LongLong;
        ++p;
    }
    directive.conversion = *p;
    return directive;
}

// Writes text padded to the width: zeros with the '0' flag (as Windows pads strings),
// spaces otherwise.
void putPadded(Output& out, Directive const& directive, wchar_t const* text, std::size_t n) {
    std::size_t const width = static_cast<std::size_t>(directive.width);
    std::size_t const pad = width > n ? width - n : 0;
    if (!directive.left) {
        out.repeat(directive.zero ? L'0' : L' ', pad);
    }
    out.put(text, n);
    if (directive.left) {
        out.repeat(L' ', pad);
    }
}

// Narrow text read as Latin-1 (each byte the character of the same number), as the Windows
// runtime reads it in the "C" locale.
std::wstring widen(char const* text, std::size_t n) {
    std::wstring wide(n, L'\0');
    for (std::size_t k = 0; k < n; ++k) {
        wide[k] = static_cast<wchar_t>(static_cast<unsigned char>(text[k]));
    }
    return wide;
}

// Whether a string or character conversion takes a narrow argument.
bool isNarrow(Directive const& directive) {
    bool const upper = directive.conversion == L'S' || directive.conversion == L'C';
    if (directive.size == Size::Short || directive.size == Size::Char) {
        return true;
    }
    if (directive.size == Size::Long || directive.size == Size::Wide) {
        return false;
    }
    return upper;
}

void formatString(Output& out, Directive const& directive, va_list& args) {
    std::size_t const limit =
        directive.precision < 0 ? SIZE_MAX : static_cast<std::size_t>(directive.precision);
    if (isNarrow(directive)) {
        char const* text = va_arg(args, char const*);
        if (text == nullptr) {
            text = "(null)";
        }
        std::size_t n = 0;
        while (n < limit && text[n] != 0) {
            ++n;
        }
        std::wstring const wide = widen(text, n);
        putPadded(out, directive, wide.c_str(), n);
    } else {
        wchar_t const* text = va_arg(args, wchar_t const*);
        if (text == nullptr) {
            text = L"(null)";
        }
        std::size_t n = 0;
        while (n < limit && text[n] != 0) {
            ++n;
        }
        putPadded(out, directive, text, n);
    }
}

void formatCharacter(Output& out, Directive const& directive, va_list& args) {
    // Both kinds arrive promoted to int.
    int const value = va_arg(args, int);
    wchar_t const c = isNarrow(directive) ? static_cast<wchar_t>(static_cast<unsigned char>(value))
                                          : static_cast<wchar_t>(value);
    putPadded(out, directive, &c, 1);
}

// The C99 narrow formatter: MinGW-w64's own on Windows (the Microsoft one writes other
// exponents), the C library's elsewhere. The directive is one the parser above rebuilt from
// the caller's format, never a literal, so clang's check for literal formats is off here.
#if defined(__clang__)
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wformat-nonliteral"
#endif
int cFormatV(char* buffer, std::size_t size, char const* directive, va_list args) {
#if defined(__MINGW32__)
    return __mingw_vsnprintf(buffer, size, directive, args);
#else
    return std::vsnprintf(buffer, size, directive, args);
#endif
}
#if defined(__clang__)
#pragma clang diagnostic pop
#endif

int cFormat(char* buffer, std::size_t size, char const* directive, ...) {
    va_list args;
    va_start(args, directive);
    int const n = cFormatV(buffer, size, directive, args);
    va_end(args);
    return n;
}

// The narrow directive "%<flags><width>.<precision><length><conversion>".
std::string narrowDirective(Directive const& directive, char const* length, char conversion) {
    std::string text = "%";
    std::pair<bool, char> const flags[] = {{directive.left, '-'},
                                           {directive.plus, '+'},
                                           {directive.space, ' '},
                                           {directive.alternate, '#'},
                                           {directive.zero, '0'}};
    for (auto const& flag : flags) {
        if (flag.first) {
            text += flag.second;
        }
    }
    if (directive.width > 0) {
        text += std::to_string(directive.width);
    }
    if (directive.precision >= 0) {
        text += '.' + std::to_string(directive.precision);
    }
    text += length;
    text += conversion;
    return text;
}

// Formats one value with the C99 formatter and writes it widened (the text is ASCII).
template <class T>
void putCFormatted(Output& out, std::string const& directive, T value) {
    char small[64];
    int const n = cFormat(small, sizeof small, directive.c_str(), value);
    if (n < 0) {
        return;
    }
    std::string large;
    char const* text = small;
    if (static_cast<std::size_t>(n) >= sizeof small) {
        large.resize(static_cast<std::size_t>(n) + 1);
        cFormat(&large[0], large.size(), directive.c_str(), value);
        text = large.c_str();
    }
    for (int k = 0; k < n; ++k) {
        out.put(static_cast<wchar_t>(static_cast<unsigned char>(text[k])));
    }
}

void formatInteger(Output& out, Directive const& directive, va_list& args) {
    char const conversion =
        static_cast<char>(directive.conversion == L'i' ? L'd' : directive.conversion);
    bool const isSigned = conversion == 'd';
    long long value = 0;
    unsigned long long bits = 0;
    switch (directive.size) {
        case Size::Char: {
            int const raw = va_arg(args, int);  // promoted to int
            value = static_cast<signed char>(raw);
            bits = static_cast<unsigned char>(raw);
            break;
        }
        case Size::Short: {
            int const raw = va_arg(args, int);
            value = static_cast<short>(raw);
            bits = static_cast<unsigned short>(raw);
            break;
        }
        case Size::Long:
            value = va_arg(args, long);
            bits = static_cast<unsigned long>(value);
            break;
        case Size::LongLong:
            value = va_arg(args, long long);
            bits = static_cast<unsigned long long>(value);
            break;
        case Size::Pointer:
            value = static_cast<long long>(va_arg(args, std::ptrdiff_t));
            bits = static_cast<std::size_t>(value);
            break;
        default:
            value = va_arg(args, int);
            bits = static_cast<unsigned int>(value);
            break;
    }
    std::string const text = narrowDirective(directive, "ll", conversion);
    if (isSigned) {
        putCFormatted(out, text, value);
    } else {
        putCFormatted(out, text, bits);
    }
}

void formatNonFinite(Output& out, Directive const& directive, double value) {
    bool const upper = directive.conversion >= L'A' && directive.conversion <= L'Z';
    std::wstring text;
    if (std::isnan(value)) {
        text = upper ? L"NAN" : L"nan";
    } else {
        text =
            std::signbit(value) ? L"-" : (directive.plus ? L"+" : (directive.space ? L" " : L""));
        text += upper ? L"INF" : L"inf";
    }
    Directive padding = directive;
    padding.zero = false;
    putPadded(out, padding, text.c_str(), text.size());
}

void formatFloat(Output& out, Directive const& directive, va_list& args) {
    char const conversion = static_cast<char>(directive.conversion);
    if (directive.size == Size::LongDouble) {
        long double const value = va_arg(args, long double);
        if (!std::isfinite(value)) {
            formatNonFinite(out, directive, static_cast<double>(value));
            return;
        }
        putCFormatted(out, narrowDirective(directive, "L", conversion), value);
        return;
    }
    double const value = va_arg(args, double);
    if (!std::isfinite(value)) {
        formatNonFinite(out, directive, value);
        return;
    }
    putCFormatted(out, narrowDirective(directive, "", conversion), value);
}

// Windows writes a pointer as all its hex digits in upper case ("0X" first with '#').
void formatPointer(Output& out, Directive const& directive, va_list& args) {
    auto const value = reinterpret_cast<std::uintptr_t>(va_arg(args, void*));
    std::wstring text = directive.alternate ? L"0X" : L"";
    for (int shift = static_cast<int>(sizeof(void*)) * 8 - 4; shift >= 0; shift -= 4) {
        text += L"0123456789ABCDEF"[(value >> shift) & 0xF];
    }
    Directive padding = directive;
    padding.zero = false;
    putPadded(out, padding, text.c_str(), text.size());
}

// Formats one conversion; false when the conversion character is unknown.
bool formatConversion(Output& out, Directive const& directive, va_list& args) {
    switch (directive.conversion) {
        case L'%':
            out.put(L'%');
            return true;
        case L's':
        case L'S':
            formatString(out, directive, args);
            return true;
        case L'c':
        case L'C':
            formatCharacter(out, directive, args);
            return true;
        case L'd':
        case L'i':
        case L'u':
        case L'o':
        case L'x':
        case L'X':
            formatInteger(out, directive, args);
            return true;
        case L'e':
        case L'E':
        case L'f':
        case L'F':
        case L'g':
        case L'G':
        case L'a':
        case L'A':
            formatFloat(out, directive, args);
            return true;
        case L'p':
            formatPointer(out, directive, args);
            return true;
        case L'n':
            (void)va_arg(args, void*);  // writes nothing, like the current Windows runtime
            return true;
        default:
            return false;
    }
}

// Formats the whole text into out; the caller's arguments are left for another pass.
void formatInto(Output& out, wchar_t const* fmt, va_list args) {
    ArgumentsCopy work(args);
    for (wchar_t const* p = fmt; *p != 0; ++p) {
        if (*p != L'%') {
            out.put(*p);
            continue;
        }
        wchar_t const* const start = p;
        ++p;
        Directive const directive = parseDirective(p, work.args);
        if (*p == 0) {
            out.put(start, static_cast<std::size_t>(p - start));  // a directive cut off by the end
            break;
        }
        if (!formatConversion(out, directive, work.args)) {
            out.put(start, static_cast<std::size_t>(p - start) + 1);  // copied as written
        }
    }
}

}  // namespace

namespace ORX {
namespace internal {

int formatWide(wchar_t* buffer, std::size_t size, wchar_t const* fmt, va_list args) {
    Output out(buffer, size);
    formatInto(out, fmt, args);
    return out.finish();
}

std::size_t formattedLength(wchar_t const* fmt, va_list args) {
    Output out(nullptr, 0);
    formatInto(out, fmt, args);
    return out.count();
}

}  // namespace internal
}  // namespace ORX

COrxString& COrxString::format(wchar_t const* fmt, ...) {
    va_list args;
    va_start(args, fmt);
    formatV(fmt, args);
    va_end(args);
    return *this;
}

// Measures the text first and formats it once into a scratch buffer of that size: the
// arguments may point into this string, so it cannot be formatted in place. Only allocation
// failures are caught (they give the null string); a fault translated into an exception
// while reading an argument goes on to the caller's handler.
COrxString& COrxString::formatV(wchar_t const* fmt, va_list args) {
    if (fmt == nullptr) {
        return setNull();
    }
    try {
        std::size_t const length = ORX::internal::formattedLength(fmt, args);
        if (length > ORX::internal::kMaxCapacity) {
            return setNull();
        }
        auto const scratch = std::make_unique<wchar_t[]>(length + 1);
        int const written = ORX::internal::formatWide(scratch.get(), length + 1, fmt, args);
        if (written < 0 || !allocBuffer(static_cast<std::uint32_t>(written))) {
            return setNull();
        }
        return assign(scratch.get(), static_cast<std::uint32_t>(written));
    } catch (std::exception const&) {
        return setNull();
    }
}
