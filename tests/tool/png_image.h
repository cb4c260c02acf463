// A small PNG reader for the picture tests: 8-bit RGBA, not interlaced (what the SVG
// renderer writes), with its own inflate so the tests need no image library.
#ifndef ORX_TESTS_TOOL_PNG_IMAGE_H
#define ORX_TESTS_TOOL_PNG_IMAGE_H

#include <cstdint>
#include <string>
#include <vector>

struct PngImage {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> alphas;  // one per pixel, rows top to bottom

    int alpha(int x, int y) const { return alphas[std::size_t(y) * std::size_t(width) + x]; }
};

// False (with `error` set) for a file that is missing, damaged or of another PNG kind.
bool readPng(std::string const& path, PngImage& image, std::string& error);

#endif  // ORX_TESTS_TOOL_PNG_IMAGE_H
