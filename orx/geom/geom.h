// Geometric primitives: points and vectors with the process-wide tolerances, the tolerance
// scope guard, and the free functions on coordinates; 4x4 matrices, planes, point lists
// with their functions, and the sortable list of (parameter, point) pairs.
//
//     COrxPoint3d a(0, 0, 0), b(3, 4, 0);
//     double d = a.distanceTo(b);                 // 5
//     double w = ORX::angle(a, b);                // direction of b seen from a, in [0, 2pi]
//     COrxPoint3d c = ORX::polar(a, w, 10.0);     // 10 units along that direction
//     bool same = (c == COrxPoint3d(6, 8, 0));    // within COrxPoint3d::tol
//     COrxPoint3dArray pts;
//     pts.append(a).append(c).rotate(ORX::kPi, a); // half a turn about a
#ifndef ORX_GEOM_GEOM_H
#define ORX_GEOM_GEOM_H

#include "orx/geom/functions.h"
#include "orx/geom/map_double_to_point.h"
#include "orx/geom/matrix.h"
#include "orx/geom/matrix_functions.h"
#include "orx/geom/plane.h"
#include "orx/geom/point.h"
#include "orx/geom/point_array.h"
#include "orx/geom/point_list_functions.h"
#include "orx/geom/tolerance.h"
#include "orx/geom/vector.h"

#endif  // ORX_GEOM_GEOM_H
