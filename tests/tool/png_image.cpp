#include "png_image.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace {

using Bytes = std::vector<std::uint8_t>;

// Reads a deflate stream bit by bit, least significant bit first.
class BitReader {
public:
    explicit BitReader(Bytes const& data, std::size_t start) : m_data(data), m_pos(start) {}

    unsigned bits(int n) {
        unsigned value = 0;
        for (int i = 0; i < n; ++i) {
            if (m_pos >= m_data.size()) {
                throw std::runtime_error("compressed data ends early");
            }
            value |= ((m_data[m_pos] >> m_bit) & 1u) << i;
            if (++m_bit == 8) {
                m_bit = 0;
                ++m_pos;
            }
        }
        return value;
    }

    void alignToByte() {
        if (m_bit != 0) {
            m_bit = 0;
            ++m_pos;
        }
    }

    std::uint8_t byte() { return static_cast<std::uint8_t>(bits(8)); }

private:
    Bytes const& m_data;
    std::size_t m_pos;
    int m_bit = 0;
};

// A canonical Huffman code given by its code lengths, decoded one bit at a time.
class Huffman {
public:
    explicit Huffman(std::vector<int> const& lengths) {
        for (int len : lengths) {
            ++m_count[static_cast<std::size_t>(len)];
        }
        m_count[0] = 0;
        std::array<int, 17> offset{};
        for (int len = 1; len < 16; ++len) {
            offset[static_cast<std::size_t>(len + 1)] =
                offset[static_cast<std::size_t>(len)] + m_count[static_cast<std::size_t>(len)];
        }
        m_symbols.resize(lengths.size());
        for (std::size_t symbol = 0; symbol < lengths.size(); ++symbol) {
            if (lengths[symbol] != 0) {
                m_symbols[static_cast<std::size_t>(
                    offset[static_cast<std::size_t>(lengths[symbol])]++)] =
                    static_cast<int>(symbol);
            }
        }
    }

    int decode(BitReader& in) const {
        int code = 0, first = 0, index = 0;
        for (int len = 1; len < 16; ++len) {
            code |= static_cast<int>(in.bits(1));
            int count = m_count[static_cast<std::size_t>(len)];
            if (code - first < count) {
                return m_symbols[static_cast<std::size_t>(index + code - first)];
            }
            index += count;
            first = (first + count) << 1;
            code <<= 1;
        }
        throw std::runtime_error("bad Huffman code");
    }

private:
    std::array<int, 16> m_count{};
    std::vector<int> m_symbols;
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
    while (true) {
        int symbol = literals.decode(in);
        if (symbol < 256) {
            out.push_back(static_cast<std::uint8_t>(symbol));
        } else if (symbol == 256) {
            return;
        } else {
            symbol -= 257;
            if (symbol >= 29) {
                throw std::runtime_error("bad length code");
            }
            int length = kLengthBase[symbol] + static_cast<int>(in.bits(kLengthExtra[symbol]));
            int d = distances.decode(in);
            if (d >= 30) {
                throw std::runtime_error("bad distance code");
            }
            std::size_t distance =
                static_cast<std::size_t>(kDistanceBase[d]) + in.bits(kDistanceExtra[d]);
            if (distance > out.size()) {
                throw std::runtime_error("distance too far back");
            }
            for (int i = 0; i < length; ++i) {
                out.push_back(out[out.size() - distance]);
            }
        }
    }
}

void dynamicTables(BitReader& in, std::vector<int>& literalLengths,
                   std::vector<int>& distanceLengths) {
    static constexpr int kOrder[19] = {16, 17, 18, 0, 8,  7, 9,  6, 10, 5,
                                       11, 4,  12, 3, 13, 2, 14, 1, 15};
    int literalCount = static_cast<int>(in.bits(5)) + 257;
    int distanceCount = static_cast<int>(in.bits(5)) + 1;
    int codeLengthCount = static_cast<int>(in.bits(4)) + 4;
    std::vector<int> codeLengthLengths(19, 0);
    for (int i = 0; i < codeLengthCount; ++i) {
        codeLengthLengths[static_cast<std::size_t>(kOrder[i])] = static_cast<int>(in.bits(3));
    }
    Huffman codeLengths(codeLengthLengths);
    std::vector<int> lengths;
    while (static_cast<int>(lengths.size()) < literalCount + distanceCount) {
        int symbol = codeLengths.decode(in);
        if (symbol < 16) {
            lengths.push_back(symbol);
            continue;
        }
        int repeat = 0, value = 0;
        if (symbol == 16) {
            if (lengths.empty()) {
                throw std::runtime_error("repeat with no previous length");
            }
            value = lengths.back();
            repeat = 3 + static_cast<int>(in.bits(2));
        } else if (symbol == 17) {
            repeat = 3 + static_cast<int>(in.bits(3));
        } else {
            repeat = 11 + static_cast<int>(in.bits(7));
        }
        lengths.insert(lengths.end(), static_cast<std::size_t>(repeat), value);
    }
    literalLengths.assign(lengths.begin(), lengths.begin() + literalCount);
    distanceLengths.assign(lengths.begin() + literalCount, lengths.end());
}

Bytes inflateZlib(Bytes const& data) {
    if (data.size() < 2 || (data[0] & 0x0f) != 8) {
        throw std::runtime_error("not a deflate stream");
    }
    BitReader in(data, 2);
    Bytes out;
    bool last = false;
    while (!last) {
        last = in.bits(1) != 0;
        unsigned type = in.bits(2);
        if (type == 0) {
            in.alignToByte();
            unsigned length = in.bits(16);
            in.bits(16);  // the one's complement of the length
            for (unsigned i = 0; i < length; ++i) {
                out.push_back(in.byte());
            }
        } else if (type == 1) {
            std::vector<int> literalLengths(288, 8), distanceLengths(30, 5);
            std::fill(literalLengths.begin() + 144, literalLengths.begin() + 256, 9);
            std::fill(literalLengths.begin() + 256, literalLengths.begin() + 280, 7);
            inflateBlock(in, out, Huffman(literalLengths), Huffman(distanceLengths));
        } else if (type == 2) {
            std::vector<int> literalLengths, distanceLengths;
            dynamicTables(in, literalLengths, distanceLengths);
            inflateBlock(in, out, Huffman(literalLengths), Huffman(distanceLengths));
        } else {
            throw std::runtime_error("bad block type");
        }
    }
    return out;
}

std::uint32_t bigEndian(Bytes const& b, std::size_t at) {
    return (std::uint32_t{b[at]} << 24) | (std::uint32_t{b[at + 1]} << 16) |
           (std::uint32_t{b[at + 2]} << 8) | std::uint32_t{b[at + 3]};
}

int paeth(int a, int b, int c) {
    int p = a + b - c;
    int pa = std::abs(p - a), pb = std::abs(p - b), pc = std::abs(p - c);
    if (pa <= pb && pa <= pc) {
        return a;
    }
    return pb <= pc ? b : c;
}

// Undoes the per-row filters in place; rows are 1 filter byte + width * channels bytes.
Bytes unfilter(Bytes const& raw, int width, int height, int channels) {
    std::size_t stride = static_cast<std::size_t>(width) * static_cast<std::size_t>(channels);
    if (raw.size() < (stride + 1) * static_cast<std::size_t>(height)) {
        throw std::runtime_error("image data too short");
    }
    Bytes pixels(stride * static_cast<std::size_t>(height));
    for (std::size_t y = 0; y < static_cast<std::size_t>(height); ++y) {
        int filter = raw[y * (stride + 1)];
        std::uint8_t const* in = &raw[y * (stride + 1) + 1];
        std::uint8_t* row = &pixels[y * stride];
        std::uint8_t const* up = y > 0 ? row - stride : nullptr;
        for (std::size_t i = 0; i < stride; ++i) {
            int a = i >= static_cast<std::size_t>(channels)
                        ? row[i - static_cast<std::size_t>(channels)]
                        : 0;
            int b = up ? up[i] : 0;
            int c = up && i >= static_cast<std::size_t>(channels)
                        ? up[i - static_cast<std::size_t>(channels)]
                        : 0;
            int predicted = 0;
            switch (filter) {
                case 0:
                    predicted = 0;
                    break;
                case 1:
                    predicted = a;
                    break;
                case 2:
                    predicted = b;
                    break;
                case 3:
                    predicted = (a + b) / 2;
                    break;
                case 4:
                    predicted = paeth(a, b, c);
                    break;
                default:
                    throw std::runtime_error("bad row filter");
            }
            row[i] = static_cast<std::uint8_t>(in[i] + predicted);
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
        int channels = 0;
        for (std::size_t at = 8; at + 12 <= data.size();) {
            std::size_t length = bigEndian(data, at);
            std::string type(data.begin() + static_cast<std::ptrdiff_t>(at + 4),
                             data.begin() + static_cast<std::ptrdiff_t>(at + 8));
            std::size_t body = at + 8;
            if (body + length > data.size()) {
                throw std::runtime_error("chunk runs past the end");
            }
            if (type == "IHDR") {
                image.width = static_cast<int>(bigEndian(data, body));
                image.height = static_cast<int>(bigEndian(data, body + 4));
                int depth = data[body + 8], colour = data[body + 9], interlace = data[body + 12];
                if (depth != 8 || (colour != 6 && colour != 2) || interlace != 0) {
                    throw std::runtime_error("only 8-bit RGB(A) without interlace is read");
                }
                channels = colour == 6 ? 4 : 3;
            } else if (type == "IDAT") {
                compressed.insert(compressed.end(),
                                  data.begin() + static_cast<std::ptrdiff_t>(body),
                                  data.begin() + static_cast<std::ptrdiff_t>(body + length));
            }
            at = body + length + 4;  // the CRC is not checked
        }
        if (channels == 0) {
            throw std::runtime_error("no image header");
        }
        Bytes pixels = unfilter(inflateZlib(compressed), image.width, image.height, channels);
        image.rgba.clear();
        for (std::size_t i = 0; i < pixels.size(); i += static_cast<std::size_t>(channels)) {
            image.rgba.insert(image.rgba.end(), pixels.begin() + static_cast<std::ptrdiff_t>(i),
                              pixels.begin() + static_cast<std::ptrdiff_t>(i) + 3);
            image.rgba.push_back(channels == 4 ? pixels[i + 3] : 255);
        }
    } catch (std::exception const& e) {
        error = path + ": " + e.what();
        return false;
    }
    return true;
}
