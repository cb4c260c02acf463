// orx outline: one profile outline from its code and dimensions.
#include <cstdio>

#include "commands.h"
#include "numbers.h"
#include "orx/profiles/outline.h"
#include "profile_samples.h"
#include "shape_info.h"
#include "tool_error.h"

namespace orxtool {

namespace {

bool libraryKnowsCode(int code) {
    for (int i = 0; i < ORX::kOutlineTableSize; ++i) {
        if (code > 0 && ORX::g_outline_code(i) == static_cast<unsigned int>(code)) {
            return true;
        }
    }
    return false;
}

std::string knownCodes() {
    std::string codes;
    for (int i = 0; i < ORX::kOutlineTableSize; ++i) {
        codes += (i > 0 ? ", " : "") + std::to_string(ORX::g_outline_code(i));
    }
    return codes;
}

}  // namespace

int runOutline(int code, std::string const& dimsText, std::string const& offsetText,
               std::string const& output) {
    if (!libraryKnowsCode(code)) {
        throw ToolError("unknown profile code " + std::to_string(code) +
                        " (known: " + knownCodes() + ")");
    }
    std::vector<double> dims = parseNumberList(dimsText, "--dims");
    std::vector<double> offset = parseNumberList(offsetText, "--offset");
    if (!offset.empty() && offset.size() != 2) {
        throw ToolError("--offset: expected X,Y");
    }
    ProfileSample const* sample = findProfileSample(code);
    if (sample != nullptr && dims.size() < sample->minDims) {
        throw ToolError("profile code " + std::to_string(code) + " (" + sample->name +
                        ") needs at least " + std::to_string(sample->minDims) +
                        " dimensions, got " + std::to_string(dims.size()));
    }
    COrxArrayTempl<double> libraryDims;
    for (double d : dims) {
        libraryDims.append(d);
    }
    COrxVector3d move =
        offset.empty() ? COrxVector3d(0, 0, 0) : COrxVector3d(offset[0], offset[1], 0);
    COrxVertexArray outline = ORX::g_outline(code, move, libraryDims);
    if (outline.isEmpty()) {
        // The library refuses an outline that collapses or overflows; say which input did it.
        bool const atOrigin = !ORX::g_outline(code, COrxVector3d(0, 0, 0), libraryDims).isEmpty();
        if (atOrigin) {
            throw ToolError("profile code " + std::to_string(code) +
                            ": the offset moves the outline beyond the range of numbers");
        }
        std::string const given = dims.empty()        ? std::string("no dimensions given")
                                  : sample != nullptr ? describeDims(*sample, dims)
                                                      : std::string();
        throw ToolError("profile code " + std::to_string(code) +
                        " gives no outline for these dimensions" +
                        (given.empty() ? std::string() : " (" + given + ")"));
    }
    std::string problem = collapseProblem(outline);
    if (!problem.empty()) {
        throw ToolError("profile code " + std::to_string(code) + ": the outline " + problem +
                        "; nothing written" +
                        (sample != nullptr && !dims.empty()
                             ? " (" + describeDims(*sample, dims) + ")"
                             : " (no dimensions given)"));
    }
    writeResult(output, {outline}, {});
    std::printf("%s: profile %d, %s\n", output.c_str(), code,
                counted(static_cast<std::size_t>(outline.len()), "segment").c_str());
    return 0;
}

}  // namespace orxtool
