#include "profile_samples.h"

#include <cstdio>

#include "numbers.h"
#include "orx/profiles/outline.h"

namespace orxtool {

std::vector<ProfileSample> const& profileSamples() {
    static std::vector<ProfileSample> const kSamples = {
        {1, "rectangle", 2, {"width", "height"}, {200, 120}},
        {2,
         "trapezoid with a vertical side",
         3,
         {"width", "height", "top offset"},
         {200, 120, -60}},
        {3, "taper", 3, {"width", "left side", "right side"}, {200, 80, 140}},
        {4,
         "quadrilateral with a vertical side",
         4,
         {"width", "left side", "corner height", "corner x"},
         {200, 150, 110, 140}},
        {5, "gable", 4, {"width", "left side", "right side", "ridge offset"}, {200, 150, 100, 60}},
        {6,
         "hexagon with a top flat",
         4,
         {"width", "ridge height", "side height", "half top flat"},
         {200, 160, 100, 40}},
        {7, "symmetric trapezoid", 3, {"width", "height", "half top flat"}, {200, 100, 50}},
        {8, "trapezoid", 4, {"width", "height", "top start", "top length"}, {200, 100, 40, 120}},
        {9, "right triangle", 2, {"base", "height"}, {160, 100}},
        {10, "isosceles triangle", 2, {"base", "height"}, {160, 100}},
        {11, "house", 3, {"width", "ridge height", "eaves height"}, {160, 140, 90}},
        {12, "triangle", 3, {"base", "height", "apex x"}, {200, 120, 60}},
        {13, "segmental arch", 3, {"width", "crown height", "side height"}, {200, 140, 100}},
        {14, "semicircular arch", 2, {"width", "crown height"}, {200, 180}},
        {15, "three-centred arch", 3, {"span", "crown height", "springing height"}, {240, 160, 80}},
        {17,
         "rectangle with rounded upper corners",
         3,
         {"width", "height", "side height"},
         {200, 150, 110}},
        {18,
         "pointed arch",
         3,
         {"width", "crown height", "side height", "arc rise"},
         {200, 260, 100}},
        {19, "circular segment", 2, {"chord", "rise"}, {200, 60}},
        {21, "parallelogram", 3, {"base length", "side height", "base angle"}, {160, 80, 20}},
        {22, "circle", 1, {"diameter"}, {100}},
        {23, "ring segment", 3, {"outer radius", "inner radius", "angle"}, {100, 60, 120}},
        {24,
         "chamfered rectangle",
         3,
         {"width", "height", "chamfer x", "chamfer y"},
         {200, 120, 20, 15}},
        {27, "rounded rectangle", 3, {"width", "height", "radius"}, {200, 120, 25}},
        {28, "square on its corner", 1, {"side"}, {100}},
        {30, "regular polygon", 2, {"corners", "diameter"}, {7, 100}},
        {31,
         "notched rectangle",
         4,
         {"width", "height", "notch width", "notch depth"},
         {200, 120, 60, 40}},
        {33, "slot", 2, {"length", "width"}, {160, 60}},
        {34, "regular hexagon", 0, {"across flats"}, {100}},
        {224,
         "rectangle with chamfered upper corners",
         3,
         {"width", "height", "chamfer x", "chamfer y"},
         {200, 120, 20, 15}},
        {227,
         "rectangle with rounded upper corners",
         3,
         {"width", "height", "radius"},
         {200, 120, 25}},
        {324,
         "rectangle with one chamfered corner",
         3,
         {"width", "height", "chamfer x", "chamfer y"},
         {200, 120, 30, 20}},
        {327,
         "rectangle with one rounded corner",
         3,
         {"width", "height", "radius"},
         {200, 120, 40}},
        {801, "slot with a round head", 3, {"width", "length", "head diameter"}, {60, 160, 90}},
        {802, "circle about the origin", 1, {"diameter"}, {100}},
        {803, "slotted hole", 2, {"length", "width"}, {160, 60}},
        {804, "oval", 2, {"width", "height"}, {200, 120}},
        {901,
         "polygon through coordinates",
         6,
         {},
         {0, 0, 200, 0, 200, 60, 120, 60, 80, 140, 0, 140}},
    };
    return kSamples;
}

ProfileSample const* findProfileSample(int code) {
    for (ProfileSample const& sample : profileSamples()) {
        if (sample.code == code) {
            return &sample;
        }
    }
    return nullptr;
}

std::string describeDims(ProfileSample const& sample, std::vector<double> const& dims) {
    std::string text;
    for (std::size_t i = 0; i < dims.size(); ++i) {
        text += (i > 0 ? ", d" : "d") + std::to_string(i) + " = " + shortText(dims[i], 8);
        if (i < sample.dimNames.size()) {
            text += std::string(" (") + sample.dimNames[i] + ")";
        }
    }
    return text;
}

namespace {

std::string dimensionMeanings(ProfileSample const& sample) {
    if (sample.dimNames.empty()) {
        return "x0,y0,x1,y1,... the corners";
    }
    std::string text;
    for (std::size_t i = 0; i < sample.dimNames.size(); ++i) {
        text += (i > 0 ? ", d" : "d") + std::to_string(i) + " " + sample.dimNames[i];
        if (i >= sample.minDims) {
            text += " (optional)";
        }
    }
    return text;
}

}  // namespace

std::string profileCodeList() {
    std::string list;
    for (int i = 0; i < ORX::kOutlineTableSize; ++i) {
        int code = static_cast<int>(ORX::g_outline_code(i));
        ProfileSample const* sample = findProfileSample(code);
        char number[16];
        std::snprintf(number, sizeof number, "%5d  ", code);
        list += number;
        list += sample != nullptr ? std::string(sample->name) + ": " + dimensionMeanings(*sample)
                                  : std::string("(no description)");
        list += "\n";
    }
    return list;
}

}  // namespace orxtool
