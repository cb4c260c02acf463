// Region operations between two lists of regions (each input file may hold several).
//
// The library combines one region with one region; a file's loops may group into several
// disjoint regions, so the tool extends the operations to lists:
// - union: every region of b is merged into the regions of a that it meets, one after the
//   other; regions that meet nothing stay as they are;
// - sect: the intersections of every region of a with every region of b;
// - diff: every region of a minus all regions of b (ORX::reglDiff per region of a).
// All loops must run counter-clockwise (as ORX::g_vll_regions_prepare leaves them).
#ifndef ORX_TOOL_REGION_OPERATIONS_H
#define ORX_TOOL_REGION_OPERATIONS_H

#include <string>
#include <vector>

#include "shape_info.h"

namespace orxtool {

enum class RegionOperation { kUnion, kSect, kDiff };

// "union", "sect" or "diff"; throws ToolError for anything else.
RegionOperation regionOperation(std::string const& name);

std::vector<Region> combineRegions(RegionOperation op, std::vector<Region> const& a,
                                   std::vector<Region> const& b);

}  // namespace orxtool

#endif  // ORX_TOOL_REGION_OPERATIONS_H
