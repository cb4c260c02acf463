// Geometry helpers of the commands: grouping a file's closed loops into regions by nesting,
// region areas, and the per-polyline report of `orx info`.
#ifndef ORX_TOOL_SHAPE_INFO_H
#define ORX_TOOL_SHAPE_INFO_H

#include <string>
#include <vector>

#include "orx/foundation/array_templ.h"
#include "orx/polyline/vertex_array.h"

namespace orxtool {

using Region = COrxArrayTempl<COrxVertexArray>;

struct RegionGrouping {
    struct Entry {
        Region region;             // outer loop first, then the holes; all counter-clockwise
        std::vector<int> sources;  // the polyline index (0-based) of each loop
    };
    std::vector<Entry> regions;
    std::vector<int> open;     // polylines that are not closed loops
    std::vector<int> leftOut;  // closed loops that cross or touch another loop
};

// The closed polylines grouped into regions by nesting (ORX::g_vll_regions_prepare, then
// ORX::g_vll_regions without flags): a loop inside a region's outer loop is one of its holes,
// a loop inside a hole a region of its own. Loops that cross or touch another take no part.
RegionGrouping groupRegions(std::vector<COrxVertexArray> const& polylines);

// The regions alone.
std::vector<Region> regionsOf(std::vector<COrxVertexArray> const& polylines);

// The area of the outer loop minus the areas of the holes (exact for arcs).
double regionArea(Region const& region);

// The loops of regions as polylines, region by region, outer loop before holes.
std::vector<COrxVertexArray> loopsOf(std::vector<Region> const& regions);

// The `orx info` lines of polyline `index` (0-based): segments and arcs, closed or open,
// length, signed area and orientation (closed only), extents, layer and elevation, and the
// section properties of a closed one. Measured without overflow up to the largest
// coordinates (safe_measures.h, section_report.h).
std::string polylineReport(int index, COrxVertexArray const& polyline, std::string const& layer);

// Why a computed polyline is no usable shape, or an empty text when it is one: it has no
// segment, two of its corners fell onto one point (coordinates so large that the
// dimensions vanish in rounding, or missing dimensions), or it is closed and encloses no
// area.
std::string collapseProblem(COrxVertexArray const& polyline);

// "region N: outer polyline A, holes B, C: area X", then the region's section properties.
std::string regionReport(int index, RegionGrouping::Entry const& entry);

}  // namespace orxtool

#endif  // ORX_TOOL_SHAPE_INFO_H
