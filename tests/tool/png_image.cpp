#include "png_image.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace {

using Bytes = std::vector<std::uint8_t>;

// A deflate stream read bit by bit, least significant bit first.
struct BitReader {
    Bytes const& data;
    std::size_t bit;  // the position, in bits from the start of `data`

    unsigned bits(int n) {
        unsigned value = 0;
        for (int i = 0; i < n; ++i, ++bit) {
            if (bit / 8 >= data.size()) {
                throw std::runtime_error("compressed data ends early");
            }
            value |= ((data[bit / 8] >> bit % 8) & 1u) << i;
        }
        return value;
    }
};

// A canonical Huffman code given by its code lengths, decoded one bit at a time.
struct Huffman {
    std::array<int, 16> count{};  // codes of each length
    std::vector<int> symbols;     // in code order

    explicit Huffman(std::vector<int> const& lengths) : symbols(lengths.size()) {
        for (int len : lengths) {
            ++count[len];
        }
        count[0] = 0;
        std::array<int, 17> offset{};
        for (int len = 1; len < 16; ++len) {
            offset[len + 1] = offset[len] + count[len];
        }
        for (std::size_t symbol = 0; symbol < lengths.size(); ++symbol) {
            if (lengths[symbol] != 0) {
                symbols[offset[lengths[symbol]]++] = static_cast<int>(symbol);
            }
        }
    }

    int decode(BitReader& in) const {
        int code = 0, first = 0, index = 0;
        for (int len = 1; len < 16; ++len) {
            code |= static_cast<int>(in.bits(1));
            if (code - first < count[len]) {
                return symbols[index + code - first];
            }
            index += count[len];
            first = (first + count[len]) << 1;
            code <<= 1;
        }
        throw std::runtime_error("bad Huffman code");
    }
};

constexpr int kLengthBase[] = {3,  4,  5,  6,  7,  8,  9,  10, 11,  13,  15,  17,  19,  23, 27,
                               31, 35, 43, 51, 59, 67, 83, 99, 115, 131, 163, 195, 227, 258};
constexpr int kLengthExtra[] = {0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 2, 2, 2,
                                2, 3, 3, 3, 3, 4, 4, 4, 4, 5, 5, 5, 5, 0};
constexpr int kDistanceBase[] = {1,    2,    3,    4,    5,    7,    9,    13,    17,    25,
                                 33,   49,   65,   97,   129,  193,  257,  385,   513,   769,
                                 1025, 1537, 2049, 3073, 4097, 6145, 8193, 12289, 16385, 24577};
constexpr int kDistanceExtra[] = {0, 0, 0, 0, 1, 1, 2, 2,  3,  3,  4,  4,  5,  5,  6,
                                  6, 7, 7, 8, 8, 9, 9, 10, 10, 11, 11, 12, 12, 13, 13};

void inflateBlock(BitReader& in, Bytes& out, Huffman const& literals, Huffman const& distances) {
    for (int symbol = literals.decode(in); symbol != 256; symbol = literals.decode(in)) {
        if (symbol < 256) {
            out.push_back(static_cast<std::uint8_t>(symbol));
            continue;
        }
        symbol -= 257;
        if (symbol >= 29) {
            throw std::runtime_error("bad length code");
        }
        unsigned const length = kLengthBase[symbol] + in.bits(kLengthExtra[symbol]);
        int const d = distances.decode(in);
        if (d >= 30) {
            throw std::runtime_error("bad distance code");
        }
        std::size_t const distance = kDistanceBase[d] + in.bits(kDistanceExtra[d]);
        if (distance > out.size()) {
            throw std::runtime_error("distance too far back");
        }
        for (unsigned i = 0; i < length; ++i) {
            out.push_back(out[out.size() - distance]);
        }
    }
}

// The code lengths of a block with its own Huffman codes: literals first, then distances.
std::vector<int> dynamicLengths(BitReader& in, int& literalCount) {
    static constexpr int kOrder[19] = {16, 17, 18, 0, 8,  7, 9,  6, 10, 5,
                                       11, 4,  12, 3, 13, 2, 14, 1, 15};
    literalCount = static_cast<int>(in.bits(5)) + 257;
    std::size_t const total = literalCount + in.bits(5) + 1;
    int const codeLengthCount = static_cast<int>(in.bits(4)) + 4;
    std::vector<int> codeLengthLengths(19, 0);
    for (int i = 0; i < codeLengthCount; ++i) {
        codeLengthLengths[kOrder[i]] = static_cast<int>(in.bits(3));
    }
    Huffman const codeLengths(codeLengthLengths);
    std::vector<int> lengths;
    while (lengths.size() < total) {
        int const symbol = codeLengths.decode(in);
        if (symbol < 16) {
            lengths.push_back(symbol);
        } else if (symbol == 16) {
            if (lengths.empty()) {
                throw std::runtime_error("repeat with no previous length");
            }
            int const previous = lengths.back();
            lengths.insert(lengths.end(), 3 + in.bits(2), previous);
        } else {
            lengths.insert(lengths.end(), symbol == 17 ? 3 + in.bits(3) : 11 + in.bits(7), 0);
        }
    }
    return lengths;
}

Bytes inflateZlib(Bytes const& data) {
    if (data.size() < 2 || (data[0] & 0x0f) != 8) {
        throw std::runtime_error("not a deflate stream");
    }
    BitReader in{data, 16};
    Bytes out;
    for (bool last = false; !last;) {
        last = in.bits(1) != 0;
        unsigned const type = in.bits(2);
        if (type == 0) {
            in.bit = (in.bit + 7) / 8 * 8;
            unsigned const length = in.bits(16);
            in.bits(16);  // the one's complement of the length
            for (unsigned i = 0; i < length; ++i) {
                out.push_back(static_cast<std::uint8_t>(in.bits(8)));
            }
            continue;
        }
        std::vector<int> lengths(288, 8);  // type 1: the fixed codes
        int literalCount = 288;
        if (type == 1) {
            std::fill(lengths.begin() + 144, lengths.begin() + 256, 9);
            std::fill(lengths.begin() + 256, lengths.begin() + 280, 7);
            lengths.insert(lengths.end(), 30, 5);
        } else if (type == 2) {
            lengths = dynamicLengths(in, literalCount);
        } else {
            throw std::runtime_error("bad block type");
        }
        inflateBlock(in, out, Huffman({lengths.begin(), lengths.begin() + literalCount}),
                     Huffman({lengths.begin() + literalCount, lengths.end()}));
    }
    return out;
}

std::size_t bigEndian(Bytes const& b, std::size_t at) {
    return std::size_t{b[at]} << 24 | std::size_t{b[at + 1]} << 16 | std::size_t{b[at + 2]} << 8 |
           b[at + 3];
}

int paeth(int a, int b, int c) {
    int const p = a + b - c;
    int const pa = std::abs(p - a), pb = std::abs(p - b), pc = std::abs(p - c);
    if (pa <= pb && pa <= pc) {
        return a;
    }
    return pb <= pc ? b : c;
}

// Undoes the per-row filters; rows are 1 filter byte + width * channels bytes.
Bytes unfilter(Bytes const& raw, std::size_t width, std::size_t height, std::size_t channels) {
    std::size_t const stride = width * channels;
    if (raw.size() < (stride + 1) * height) {
        throw std::runtime_error("image data too short");
    }
    Bytes pixels(stride * height);
    for (std::size_t y = 0; y < height; ++y) {
        int const filter = raw[y * (stride + 1)];
        std::uint8_t const* in = &raw[y * (stride + 1) + 1];
        std::uint8_t* row = &pixels[y * stride];
        std::uint8_t const* up = y > 0 ? row - stride : nullptr;
        for (std::size_t i = 0; i < stride; ++i) {
            int const a = i >= channels ? row[i - channels] : 0;
            int const b = up ? up[i] : 0;
            int const c = up && i >= channels ? up[i - channels] : 0;
            int const predicted[] = {0, a, b, (a + b) / 2, paeth(a, b, c)};
            if (filter > 4) {
                throw std::runtime_error("bad row filter");
            }
            row[i] = static_cast<std::uint8_t>(in[i] + predicted[filter]);
        }
    }
    return pixels;
}

}  // namespace

bool readPng(std::string const& path, PngImage& image, std::string& error) {
    std::ifstream file(path, std::ios::binary);
    Bytes data((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    static constexpr std::uint8_t kSignature[8] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n'};
    if (data.size() < 8 || !std::equal(kSignature, kSignature + 8, data.begin())) {
        error = path + ": not a PNG file";
        return false;
    }
    try {
        Bytes compressed;
        bool header = false;
        for (std::size_t at = 8; at + 12 <= data.size();) {
            std::size_t const length = bigEndian(data, at), body = at + 8;
            std::string const type(data.begin() + at + 4, data.begin() + body);
            if (body + length > data.size()) {
                throw std::runtime_error("chunk runs past the end");
            }
            if (type == "IHDR") {
                image.width = static_cast<int>(bigEndian(data, body));
                image.height = static_cast<int>(bigEndian(data, body + 4));
                // Bit depth 8, colour type 6 (RGBA), no interlace.
                if (data[body + 8] != 8 || data[body + 9] != 6 || data[body + 12] != 0) {
                    throw std::runtime_error("only 8-bit RGBA without interlace is read");
                }
                header = true;
            } else if (type == "IDAT") {
                compressed.insert(compressed.end(), data.begin() + body,
                                  data.begin() + body + length);
            }
            at = body + length + 4;  // the CRC is not checked
        }
        if (!header) {
            throw std::runtime_error("no image header");
        }
        Bytes const pixels = unfilter(inflateZlib(compressed), image.width, image.height, 4);
        image.alphas.clear();
        for (std::size_t i = 3; i < pixels.size(); i += 4) {
            image.alphas.push_back(pixels[i]);
        }
    } catch (std::exception const& e) {
        error = path + ": " + e.what();
        return false;
    }
    return true;
}
