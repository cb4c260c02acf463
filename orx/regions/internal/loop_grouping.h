// Grouping the closed loops of a boolean result into regions by their sense.
#ifndef ORX_REGIONS_INTERNAL_LOOP_GROUPING_H
#define ORX_REGIONS_INTERNAL_LOOP_GROUPING_H

#include "orx/foundation/array_templ.h"
#include "orx/polyline/vertex_array.h"

namespace ORX {
namespace internal {

// The loops that run as the operands' outer loops did (counter-clockwise or not) are outer
// loops, one region each in their order; the others are holes (the operation keeps the area
// on the same side of every edge). A hole goes to the smallest outer loop around it, tested
// at a point of the hole off that loop; a hole that none holds is left out. Holes are turned
// back to the outer loops' sense. Only outer loops whose box holds the hole's are tested, each
// through a strip index made once.
COrxArrayTempl<COrxArrayTempl<COrxVertexArray>> groupBySense(
    COrxArrayTempl<COrxVertexArray> const& loops, bool counterClockwise);

}  // namespace internal
}  // namespace ORX

#endif  // ORX_REGIONS_INTERNAL_LOOP_GROUPING_H
