// Conversions between lists of plain and extended polylines and regions, and small adapters
// on lists of loops.
#ifndef ORX_REGIONS_REGION_LISTS_H
#define ORX_REGIONS_REGION_LISTS_H

#include "orx/foundation/array_templ.h"
#include "orx/foundation/platform.h"
#include "orx/polyline/vertex_array.h"
#include "orx/polyline/vertex_array_ex.h"

// Element by element: extended to plain drops the attributes; plain to extended gives each
// polyline attribute 0 and an empty text.
ORX_API COrxArrayTempl<COrxArrayTempl<COrxVertexArray>> orxReglExToRegl(
    COrxArrayTempl<COrxArrayTempl<COrxVertexArrayEx>> const& regions);
ORX_API COrxArrayTempl<COrxArrayTempl<COrxVertexArrayEx>> orxReglToReglEx(
    COrxArrayTempl<COrxArrayTempl<COrxVertexArray>> const& regions);
ORX_API COrxArrayTempl<COrxVertexArray> orxVllExToVll(
    COrxArrayTempl<COrxVertexArrayEx> const& loops);
ORX_API COrxArrayTempl<COrxVertexArrayEx> orxVllToVllEx(
    COrxArrayTempl<COrxVertexArray> const& loops);

// The plain polylines of an extended list (orxVllExToVll under its older name).
ORX_API COrxArrayTempl<COrxVertexArray> orx_g_gvll(COrxArrayTempl<COrxVertexArrayEx> const& loops);

// Moves every polyline of the list by v; returns the list.
ORX_API COrxArrayTempl<COrxVertexArray>& orx_g_vll_move(COrxArrayTempl<COrxVertexArray>& loops,
                                                        COrxVector3d const& v);

#endif  // ORX_REGIONS_REGION_LISTS_H
