// A small PNG reader for the picture tests: 8-bit RGB or RGBA, not interlaced (what the
// SVG renderer writes), with its own inflate so the tests need no image library.
#ifndef ORX_TESTS_TOOL_PNG_IMAGE_H
#define ORX_TESTS_TOOL_PNG_IMAGE_H

#include <cstdint>
#include <string>
#include <vector>

struct PngImage {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> rgba;  // 4 bytes per pixel, rows top to bottom

    std::uint8_t alpha(int x, int y) const {
        return rgba[(static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                     static_cast<std::size_t>(x)) *
                        4 +
                    3];
    }
};

// False (with `error` set) for a file that is missing, damaged or of another PNG kind.
bool readPng(std::string const& path, PngImage& image, std::string& error);

#endif  // ORX_TESTS_TOOL_PNG_IMAGE_H
