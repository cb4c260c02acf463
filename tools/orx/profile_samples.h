// What the tool knows about each profile code beyond the library's table: a short name, the
// minimum number of dimensions (for a clear message before the library's plain empty
// outline), what each dimension means, and sample dimensions for the gallery.
#ifndef ORX_TOOL_PROFILE_SAMPLES_H
#define ORX_TOOL_PROFILE_SAMPLES_H

#include <string>
#include <vector>

namespace orxtool {

struct ProfileSample {
    int code;
    char const* name;
    std::size_t minDims;
    std::vector<char const*> dimNames;  // d0, d1, ... as far as they have a fixed meaning
    std::vector<double> dims;           // sample dimensions for the gallery
};

// The samples in the order of the library's outline table.
std::vector<ProfileSample> const& profileSamples();

// The sample of `code`; null when the tool has none.
ProfileSample const* findProfileSample(int code);

// "d0 = 200 (width), d1 = 120 (height)".
std::string describeDims(ProfileSample const& sample, std::vector<double> const& dims);

// One line per code of the library's outline table: the code, its name and what each
// dimension means ("  27  rounded rectangle: d0 width, d1 height, d2 radius").
std::string profileCodeList();

}  // namespace orxtool

#endif  // ORX_TOOL_PROFILE_SAMPLES_H
