// Section properties of a region: its outer loop minus its holes, exact for arcs, with the
// formulas and output meanings of g_vl_statics (orx/polyline/section_properties.h).
#ifndef ORX_REGIONS_REGION_STATICS_H
#define ORX_REGIONS_REGION_STATICS_H

#include "orx/foundation/array_templ.h"
#include "orx/foundation/platform.h"
#include "orx/geom/point.h"
#include "orx/polyline/vertex_array.h"
#include "orx/polyline/vertex_array_ex.h"

namespace ORX {

// Area, centroid and second moments about the centroid axes of the region: entry 0 is the
// outer loop, every further entry a hole, whatever the loops' orientations (each loop's
// area counts with the sign that makes it positive, the holes' taken away). All loops are
// integrated about the outer loop's first point. False, outputs untouched, for an empty
// region, a loop that is not closed or not finite, or a remaining area not above
// COrxPoint3d::tol squared. Holes are trusted to lie inside the outer loop and apart from
// each other, as the region operations leave them.
ORX_API bool g_region_statics(COrxArrayTempl<COrxVertexArray> const& region, double& area,
                              COrxPoint3d& centroid, double& ix, double& iy, double& ixy);
// The same for a region of polylines with attributes (the attributes play no part).
ORX_API bool g_region_statics(COrxArrayTempl<COrxVertexArrayEx> const& region, double& area,
                              COrxPoint3d& centroid, double& ix, double& iy, double& ixy);

}  // namespace ORX

#endif  // ORX_REGIONS_REGION_STATICS_H
