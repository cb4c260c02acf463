// ASCII DXF: reading polylines, lines, arcs and circles; writing polylines.
//
// A DXF file is a sequence of pairs of lines, a group code and its value. The reader takes
// the ENTITIES section of any version from R12 on: LWPOLYLINE and 2D POLYLINE (with its
// VERTEX entities) as polylines with their bulges, CIRCLE as a closed loop of two half arcs,
// and LINE and ARC as loose segments that are chained into polylines where their ends meet
// (segment_chains.h). Each keeps its layer (8) and height (38 or 30). Other entities are
// skipped and counted. The writer produces a complete R2000 drawing (see dxf_writer.cpp) with
// one LWPOLYLINE per vertex list, numbers in their shortest exact text so that reading them
// back gives the same doubles.
#ifndef ORX_TOOL_DXF_FORMAT_H
#define ORX_TOOL_DXF_FORMAT_H

#include <map>
#include <string>
#include <vector>

#include "drawing.h"

namespace orxtool {

struct DxfContent {
    // The polylines in file order, then the chains in the order of their first segments.
    std::vector<VertexList> lists;
    std::map<std::string, int> read;     // entities read, by type ("LINE" -> 4)
    std::map<std::string, int> skipped;  // entities not read, by type or reason
    int chainedSegments = 0;             // lines and arcs ...
    int chains = 0;                      // ... chained into this many polylines

    // "4 LINE, 2 ARC, 1 CIRCLE; 6 lines and arcs chained into 2 polylines".
    std::string summary() const;
};

// Throws ToolError "file:line: ..." for text that is not ASCII DXF, malformed or non-finite
// numbers, a polyline with fewer than two points, a vertex count that does not match, and
// entities that do not lie in the XY plane.
DxfContent readDxf(std::string const& text, std::string const& file);

// The R2000 drawing of the lists, each on its layer.
std::string writeDxf(std::vector<VertexList> const& lists);

}  // namespace orxtool

#endif  // ORX_TOOL_DXF_FORMAT_H
