// orx offset: every polyline of a file offset by one distance.
#include <cstdio>

#include "commands.h"
#include "file_formats.h"
#include "numbers.h"
#include "shape_info.h"
#include "tool_error.h"

namespace orxtool {

int runOffset(std::string const& input, std::string const& distanceText,
              std::string const& output) {
    std::vector<double> distance = parseNumberList(distanceText, "--distance");
    if (distance.size() != 1) {
        throw ToolError("--distance: expected one number");
    }
    Drawing drawing = readDrawing(input);
    std::vector<COrxVertexArray> result;
    for (std::size_t i = 0; i < drawing.polylines.size(); ++i) {
        COrxVertexArray polyline = drawing.polylines[i];
        // Bridged: where trimming cannot join two offset segments (an arc that collapsed to
        // its centre) a straight segment keeps the result in one piece.
        polyline.offset(distance[0], true);
        std::string problem = collapseProblem(polyline);
        if (!problem.empty()) {
            throw ToolError(input + ": polyline " + std::to_string(i + 1) + " offset by " +
                            shortText(distance[0], 10) + " " + problem + "; nothing written");
        }
        result.push_back(polyline);
    }
    writeResult(output, result, drawing.layers);
    std::printf("%s: %s\n", output.c_str(), counted(result.size(), "polyline").c_str());
    return 0;
}

}  // namespace orxtool
