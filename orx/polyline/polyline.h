// Bulge polylines: the segment (COrxVertex, straight or a circular arc given by its bulge)
// and the polyline (COrxVertexArray), the library's central data structure.
//
//     COrxVertexArray outline;
//     outline.append(COrxPoint3d(4, 0, 0), 0.0);           // starts at the origin
//     outline.append(COrxPoint3d(4, 2, 0), 1.0);           // half circle to (4, 2)
//     outline.append(COrxPoint3d(0, 2, 0), 0.0);
//     outline.append(COrxPoint3d(0, 0, 0), 0.0);           // closed: ends where it starts
//     bool ccw = ORX::g_vl_orient(outline, COrxVector3d::kZAxis);
#ifndef ORX_POLYLINE_POLYLINE_H
#define ORX_POLYLINE_POLYLINE_H

#include "orx/polyline/corners.h"
#include "orx/polyline/polyline_functions.h"
#include "orx/polyline/section_properties.h"
#include "orx/polyline/segment_offset.h"
#include "orx/polyline/split.h"
#include "orx/polyline/vertex.h"
#include "orx/polyline/vertex_array.h"
#include "orx/polyline/vertex_array_ex.h"
#include "orx/polyline/vertex_functions.h"
#include "orx/polyline/vertex_tools.h"

#endif  // ORX_POLYLINE_POLYLINE_H
