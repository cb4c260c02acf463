// Boolean operations on closed polylines and on regions with holes, and building regions
// from loops.
//
//     COrxVertexArray u = ORX::g_vl_bool(a, b, COrxVertexArray::boolUnion);
//     COrxArrayTempl<COrxArrayTempl<COrxVertexArray>> out;
//     if (ORX::g_region_diff(plate, holes, out)) { ... }
//     int where = ORX::g_vll_pt_inside(out[0], p);   // 1 inside, 0 on the boundary, -1 outside
//     COrxOutlineIndex plate(out[0]);                 // the same, for many points
#ifndef ORX_REGIONS_REGIONS_H
#define ORX_REGIONS_REGIONS_H

#include "orx/regions/bool_operation.h"
#include "orx/regions/outline_index.h"
#include "orx/regions/region.h"
#include "orx/regions/region_building.h"
#include "orx/regions/region_lists.h"
#include "orx/regions/region_statics.h"

#endif  // ORX_REGIONS_REGIONS_H
