// Chains of loose lines and arcs: the polylines a drawing of single LINE and ARC entities
// means.
//
// Segments are joined where an end of one meets an end of another within the point
// tolerance (COrxPoint3d::tol, heights included) and both lie on the same layer; a segment
// is turned round where the chain needs it. Each chain starts with the first unused segment
// in file order and grows at its end, then at its start, always taking the first segment in
// file order that fits; a chain that comes back to its start is closed. Where three or more
// ends meet, the chains therefore follow the order of the file.
#ifndef ORX_TOOL_SEGMENT_CHAINS_H
#define ORX_TOOL_SEGMENT_CHAINS_H

#include <vector>

#include "dxf_entities.h"

namespace orxtool {

struct Chain {
    COrxVertexArray polyline;
    std::string layer;
};

// Every segment ends up in exactly one chain. Cost grows as n log n with the number of
// segments (the ends are found through a grid of cells one tolerance wide).
std::vector<Chain> chainSegments(std::vector<LooseSegment> const& segments);

}  // namespace orxtool

#endif  // ORX_TOOL_SEGMENT_CHAINS_H
