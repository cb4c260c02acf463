// JSON: the tool's own exchange form of polylines.
//
//     [
//       {"closed": true, "layer": "plate", "elevation": 0,
//        "vertices": [{"x": 0, "y": 0, "bulge": 0}, {"x": 4, "y": 0, "bulge": 1}, ...]},
//       ...
//     ]
//
// A list of polylines; each has a list of vertices, a closed flag (false when absent), a
// layer name ("0" when absent) and an elevation, the height of every point (0 when absent).
// The bulge of a vertex belongs to the segment that leaves it (0 when absent): tan(theta/4)
// of the arc's included angle, positive counter-clockwise; on the last vertex of an open
// polyline it is 0. Numbers are written with round-trip precision.
#ifndef ORX_TOOL_JSON_FORMAT_H
#define ORX_TOOL_JSON_FORMAT_H

#include <string>
#include <vector>

#include "drawing.h"

namespace orxtool {

// Throws ToolError naming the file and the line (syntax) or the polyline and vertex (content)
// for text that is not JSON of the form above, non-numbers, numbers out of range and bad
// layer names. A number too small for a double reads as 0, as the JSON parser makes it.
std::vector<VertexList> readJson(std::string const& text, std::string const& file);

// A layer name is written as UTF-8 of the same length: each byte that is not part of UTF-8
// (a code page's letter from an older DXF file) becomes '_', so the file always reads back.
std::string writeJson(std::vector<VertexList> const& lists);

}  // namespace orxtool

#endif  // ORX_TOOL_JSON_FORMAT_H
