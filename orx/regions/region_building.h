// Building regions from an unordered set of closed loops.
#ifndef ORX_REGIONS_REGION_BUILDING_H
#define ORX_REGIONS_REGION_BUILDING_H

#include "orx/foundation/array_templ.h"
#include "orx/foundation/platform.h"
#include "orx/polyline/vertex_array.h"
#include "orx/polyline/vertex_array_ex.h"

namespace ORX {

// Flags of g_vll_regions.
enum RegionBuildFlags : unsigned long {
    // Loops nested deeper than a hole (islands in holes, at even depth 2, 4, ...) are set
    // aside instead of becoming outer loops of regions of their own.
    kRegionsDropIslands = 0x1,
    // Regions hold their outer loop only; holes are left out.
    kRegionsOuterOnly = 0x2,
    // Loops that cross or touch another loop take part like all others (their crossings are
    // only noted); without this flag they are left out of the result.
    kRegionsKeepCrossing = 0x4,
};

// True when loop i lies inside loop j: the two do not meet and the midpoint of i's first
// segment is strictly inside j. False for a loop of fewer than two segments.
ORX_API bool g_vl_vl_inside(COrxVertexArray const& i, COrxVertexArray const& j);

// Regions from an unordered set of closed loops, by containment. Every pair of loops is
// intersected; loops that meet are "crossing" (see kRegionsKeepCrossing). Every other loop
// gets its containers (g_vl_vl_inside) and from them its direct container and its depth (the
// number of containers):
// - depth 0: an outer loop, one region each, in index order;
// - odd depth: a hole of the region whose outer loop is its direct container (unless
//   kRegionsOuterOnly); dropped when that container is no outer loop;
// - even depth 2, 4, ...: an island, an outer loop of a region of its own after the others,
//   in index order (unless kRegionsDropIslands, which sets it aside).
// Higher flag bits are ignored. When the containment cannot be reduced to direct containers
// (contradictory nesting from degenerate loops), the result is empty.
// Only loops whose boxes overlap are intersected and tested for containment; the pairs
// skipped can neither meet nor contain one another, so the regions are those of asking every
// pair, but rand() (drawn by the point test's restarts) is called less often.
ORX_API COrxArrayTempl<COrxArrayTempl<COrxVertexArray>> g_vll_regions(
    COrxArrayTempl<COrxVertexArray> const& loops, unsigned long flags);

// The same for extended loops; each loop keeps its attributes.
ORX_API COrxArrayTempl<COrxArrayTempl<COrxVertexArrayEx>> g_vll_regions(
    COrxArrayTempl<COrxVertexArrayEx> const& loops, unsigned long flags);

// The intended preparation before g_vll_regions: keeps only the non-empty closed loops and
// orients each counter-clockwise against refNormal(). Returns the list.
ORX_API COrxArrayTempl<COrxVertexArray>& g_vll_regions_prepare(
    COrxArrayTempl<COrxVertexArray>& loops);

}  // namespace ORX

#endif  // ORX_REGIONS_REGION_BUILDING_H
