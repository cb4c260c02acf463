// Offset of one segment of a polyline, its neighbours following it.
//
//     ORX::g_vl_offset_vx(plate, 2, -15.0);   // move edge 2 of the plate 15 outwards (left)
#ifndef ORX_POLYLINE_SEGMENT_OFFSET_H
#define ORX_POLYLINE_SEGMENT_OFFSET_H

#include "orx/foundation/platform.h"
#include "orx/polyline/vertex_array.h"

namespace ORX {

// Moves segment i of vl parallel by d (positive to the right of the direction of travel, as
// COrxVertex::offset; an arc keeps its centre and changes its radius) and makes the segments
// that met its ends meet it again: each neighbour is trimmed or extended along its own line or
// circle to the meeting point nearest the gap (ORX::g_vx_trim). Where a neighbour cannot
// reach the moved segment (they are parallel, tangent, or on one line or circle), a straight
// segment bridges the gap instead, so the polyline stays connected. On a closed polyline the
// first and last segments are neighbours; a neighbour that did not meet segment i is left
// alone. A negative i counts from the end.
// False, vl unchanged: i out of range, d zero or not finite, an arc whose radius would drop
// to the point tolerance or below, or a segment (moved or neighbour) that the move would turn
// over or shorten to nothing.
ORX_API bool g_vl_offset_vx(COrxVertexArray& vl, int i, double d);

}  // namespace ORX

#endif  // ORX_POLYLINE_SEGMENT_OFFSET_H
