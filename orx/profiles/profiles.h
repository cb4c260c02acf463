// Profile sections and members: the outlines of plate and bar sections by type code
// (outline.h), the axis of a straight or helical bar (bar_axis.h) and the conical helix it
// converts to (helix.h), meshes of faces over shared points (mesh.h) and dash patterns for
// drawing lines (line_parm.h).
//
//     COrxArrayTempl<double> dims;
//     dims.append(300.0).append(200.0);
//     COrxVertexArray plate = ORX::g_outline(1, COrxVector3d(10, 0, 0), dims);  // 300 x 200
//     COrxBarAxis stringer(start, end, axisPoint, COrxVector3d::kZAxis, 1, 1, 0.0);
//     double length = stringer.len();                 // along the helix through start and end
#ifndef ORX_PROFILES_PROFILES_H
#define ORX_PROFILES_PROFILES_H

#include "orx/profiles/bar_axis.h"
#include "orx/profiles/helix.h"
#include "orx/profiles/line_parm.h"
#include "orx/profiles/mesh.h"
#include "orx/profiles/outline.h"

#endif  // ORX_PROFILES_PROFILES_H
