#include "fuzz_input.h"

#include <cmath>
#include <cstring>
#include <limits>

namespace {

// Values at the edges of what the library must take: the point tolerance and its
// neighbours, site coordinates, magnitudes near the range of doubles, and non-numbers.
double const kEdgeValues[] = {
    0.0,
    -0.0,
    1e-5,
    2e-5,
    0.99e-5,
    1e-9,
    1e-300,
    std::numeric_limits<double>::denorm_min(),
    0.1,
    1.0 / 3.0,
    3.14159265358979323846,
    1.41421356237309504880,
    1e7,
    12345678.9,
    1e15,
    1e154,
    1e300,
    std::numeric_limits<double>::max(),
    std::numeric_limits<double>::infinity(),
    std::numeric_limits<double>::quiet_NaN(),
};

constexpr unsigned kEdgeCount = sizeof(kEdgeValues) / sizeof(kEdgeValues[0]);

}  // namespace

FuzzInput::FuzzInput(std::uint8_t const* data, std::size_t size)
    : m_data(data), m_size(size), m_next(0) {}

std::uint8_t FuzzInput::byte() {
    return m_next < m_size ? m_data[m_next++] : 0;
}

std::uint16_t FuzzInput::u16() {
    std::uint16_t const low = byte();
    return static_cast<std::uint16_t>(low | byte() << 8);
}

std::uint32_t FuzzInput::u32() {
    std::uint32_t const low = u16();
    return low | static_cast<std::uint32_t>(u16()) << 16;
}

bool FuzzInput::flag() {
    return (byte() & 1) != 0;
}

unsigned FuzzInput::below(unsigned n) {
    if (n == 0) {
        return 0;
    }
    return n <= 256 ? byte() % n : u32() % n;
}

int FuzzInput::between(int lo, int hi) {
    return lo + static_cast<int>(below(static_cast<unsigned>(hi - lo) + 1));
}

double FuzzInput::raw() {
    std::uint64_t const bits = u32() | static_cast<std::uint64_t>(u32()) << 32;
    double value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

double FuzzInput::number() {
    std::uint8_t const kind = byte();
    double const sign = (kind & 1) != 0 ? -1.0 : 1.0;
    switch (kind >> 5) {
        case 4:  // a fraction in 1/1024
            return sign * u16() / 1024.0;
        case 5:  // an edge value
            return sign * kEdgeValues[below(kEdgeCount)];
        case 6: {  // a whole number times a power of ten
            int const digits = static_cast<std::int8_t>(byte());
            return digits * std::pow(10.0, between(-12, 12));
        }
        case 7:
            return raw();
        default:  // half of all: a small whole number
            return static_cast<std::int8_t>(byte());
    }
}

std::string FuzzInput::bytes(std::size_t maxLength) {
    std::size_t length = below(static_cast<unsigned>(maxLength) + 1);
    std::string text;
    while (length-- > 0 && !atEnd()) {
        text += static_cast<char>(byte());
    }
    return text;
}

std::string FuzzInput::rest() {
    if (atEnd()) {
        return std::string();
    }
    std::string text(reinterpret_cast<char const*>(m_data) + m_next, m_size - m_next);
    m_next = m_size;
    return text;
}
