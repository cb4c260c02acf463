// orx locate: where points lie with respect to the regions of a drawing.
#include <cstdio>

#include "commands.h"
#include "file_formats.h"
#include "message_text.h"
#include "numbers.h"
#include "orx/regions/outline_index.h"
#include "tool_error.h"

namespace orxtool {

namespace {

// The points of the command line, each "X,Y"; point N (1-based) is named in messages.
std::vector<COrxPoint3d> parsePoints(std::vector<std::string> const& texts) {
    std::vector<COrxPoint3d> points;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        std::string const name = "point " + std::to_string(i + 1);
        std::vector<double> xy = parseNumberList(texts[i], name);
        if (xy.size() != 2) {
            throw ToolError(name + ": expected X,Y, got " + quotedInput(texts[i]));
        }
        points.emplace_back(xy[0], xy[1], 0.0);
    }
    return points;
}

// "inside region N", "on the boundary of region N" or "outside". The regions do not
// overlap (loops that cross or touch take no part), so the first that holds the point is
// the only one.
std::string placeOf(std::vector<COrxOutlineIndex> const& regions, COrxPoint3d const& p) {
    for (std::size_t r = 0; r < regions.size(); ++r) {
        int const where = regions[r].locate(p);
        if (where >= 0) {
            return (where == 1 ? "inside region " : "on the boundary of region ") +
                   std::to_string(r + 1);
        }
    }
    return "outside";
}

}  // namespace

int runLocate(std::string const& input, std::vector<std::string> const& pointTexts) {
    std::vector<COrxPoint3d> const points = parsePoints(pointTexts);
    std::string layer;
    std::vector<COrxOutlineIndex> regions;
    for (Region const& region : inputRegions(readDrawing(input), layer)) {
        regions.emplace_back(region);  // indexed once for all the points
    }
    for (COrxPoint3d const& p : points) {
        // Exact: the point as given, not rounded onto a boundary it does not lie on.
        std::printf("(%s, %s): %s\n", exactText(p.x).c_str(), exactText(p.y).c_str(),
                    placeOf(regions, p).c_str());
    }
    return 0;
}

}  // namespace orxtool
