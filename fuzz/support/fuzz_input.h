// FuzzInput: typed values read from the bytes of a fuzz input, front to back.
//
// Once the bytes run out every read gives zero (false, the first choice, 0.0), so that every
// input decodes to some operands and a fuzzer's small edits make small changes to them.
// Read one value per statement, never two in the arguments of one call: compilers evaluate
// arguments in different orders, and the replay programs (g++, MinGW) must decode an input
// exactly as the fuzzer (clang) did.
//
//     FuzzInput in(data, size);
//     int count = in.between(1, 8);
//     double x = in.number();        // mostly small whole numbers, sometimes extreme values
#ifndef ORX_FUZZ_SUPPORT_FUZZ_INPUT_H
#define ORX_FUZZ_SUPPORT_FUZZ_INPUT_H

#include <cstddef>
#include <cstdint>
#include <string>

class FuzzInput {
public:
    FuzzInput(std::uint8_t const* data, std::size_t size);

    bool atEnd() const { return m_next == m_size; }

    std::uint8_t byte();
    std::uint16_t u16();
    std::uint32_t u32();
    bool flag();
    // A number in [0, n); 0 when n is 0.
    unsigned below(unsigned n);
    // A number in [lo, hi].
    int between(int lo, int hi);
    // Eight bytes taken as a double: every bit pattern, NaN and the infinities included.
    double raw();
    // A number for a coordinate, distance or dimension: mostly whole numbers and simple
    // fractions (so that points coincide and segments run along each other), sometimes a
    // value at the edges (tiny, huge, the point tolerance, an infinity, NaN).
    double number();
    // Up to maxLength bytes, the length read first.
    std::string bytes(std::size_t maxLength);
    // The bytes not read yet.
    std::string rest();

private:
    std::uint8_t const* m_data;
    std::size_t m_size;
    std::size_t m_next;
};

#endif  // ORX_FUZZ_SUPPORT_FUZZ_INPUT_H
