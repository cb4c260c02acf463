// The commands of the orx tool. Each returns the exit status; bad input throws ToolError,
// which main reports as one line with status 2.
#ifndef ORX_TOOL_COMMANDS_H
#define ORX_TOOL_COMMANDS_H

#include <string>
#include <vector>

#include "drawing.h"
#include "shape_info.h"
#include "svg_picture.h"

namespace orxtool {

// The library version text and the build's platform.
int runVersion();

// The outline of profile `code` from comma-separated dimensions, moved by "X,Y".
int runOutline(int code, std::string const& dims, std::string const& offset,
               std::string const& output);

// union, diff or sect of the first closed polyline of each input.
int runBool(std::string const& operation, std::string const& first, std::string const& second,
            std::string const& output);

// union, diff or sect of the regions built from each input's closed loops.
int runRegion(std::string const& operation, std::string const& first, std::string const& second,
              std::string const& output);

// The report of every polyline and region of the file.
int runInfo(std::string const& input);

// Every polyline of the file offset by `distance` (positive to the right of the direction
// of travel), each on its layer.
int runOffset(std::string const& input, std::string const& distance, std::string const& output);

// The same polylines in another format (DXF, JSON or SVG).
int runConvert(std::string const& input, std::string const& output);

// A picture of the files, one colour each: regions filled, open polylines stroked.
int runRender(std::vector<std::string> const& inputs, std::string const& output, bool markers);

// The gallery of profiles, booleans and regions in `directory`.
int runDemo(std::string const& directory);

// The closed polylines after the tool's grouping into regions (groupRegions, shape_info.h);
// `layer` becomes the layer of the first region's outer loop. Says on standard error how
// many polylines take no part; throws ToolError when no region results.
std::vector<Region> inputRegions(Drawing const& drawing, std::string& layer);

// Where each point ("X,Y") lies: inside, on the boundary of or outside the regions of the
// file's closed loops, one line per point.
int runLocate(std::string const& input, std::vector<std::string> const& points);

// Shared by the commands and the gallery: closed loops grouped into filled regions, the
// rest stroked, optionally with vertex markers.
void drawPolylines(SvgPicture& picture, std::vector<COrxVertexArray> const& polylines,
                   std::string const& colour, bool markers);

// Writes the polylines as DXF or JSON, each on its layer ("0" where `layers` has none), or
// draws them as SVG, by the file name.
void writeResult(std::string const& path, std::vector<COrxVertexArray> const& polylines,
                 std::vector<std::string> const& layers);

// "1 segment", "2 segments".
std::string counted(std::size_t count, std::string const& what);

}  // namespace orxtool

#endif  // ORX_TOOL_COMMANDS_H
