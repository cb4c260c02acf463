// ASCII DXF: reading and writing LWPOLYLINE entities.
//
// A DXF file is a sequence of pairs of lines, a group code and its value. The tool reads the
// ENTITIES section; of each LWPOLYLINE it takes the vertex count (90), the flags (70, bit 1 =
// closed), the elevation (38), the points (10 starts a vertex with x, 20 gives its y), the
// bulges (42, for the segment leaving the vertex) and the extrusion direction (210/220/230:
// a polyline seen from below, (0, 0, -1), is mirrored into the XY plane). Every other entity
// is skipped and counted. Writing produces the smallest file of that form: one ENTITIES
// section, one LWPOLYLINE per vertex list on layer "0", numbers in their shortest exact text
// so that reading them back gives the same doubles.
#ifndef ORX_TOOL_DXF_FORMAT_H
#define ORX_TOOL_DXF_FORMAT_H

#include <map>
#include <string>
#include <vector>

#include "drawing.h"

namespace orxtool {

struct DxfContent {
    std::vector<VertexList> lists;
    // Entities that were not read, by type name ("CIRCLE" -> 2).
    std::map<std::string, int> skipped;
};

// Throws ToolError "file:line: ..." for text that is not ASCII DXF, malformed or non-finite
// numbers, a polyline with fewer than two points or a vertex count that does not match.
DxfContent readDxf(std::string const& text, std::string const& file);

std::string writeDxf(std::vector<VertexList> const& lists);

}  // namespace orxtool

#endif  // ORX_TOOL_DXF_FORMAT_H
