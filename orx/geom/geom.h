// Geometric primitives: points and vectors with the process-wide tolerances, the tolerance
// scope guard, and the free functions on coordinates.
//
//     COrxPoint3d a(0, 0, 0), b(3, 4, 0);
//     double d = a.distanceTo(b);                 // 5
//     double w = ORX::angle(a, b);                // direction of b seen from a, in [0, 2pi]
//     COrxPoint3d c = ORX::polar(a, w, 10.0);     // 10 units along that direction
//     bool same = (c == COrxPoint3d(6, 8, 0));    // within COrxPoint3d::tol
#ifndef ORX_GEOM_GEOM_H
#define ORX_GEOM_GEOM_H

#include "orx/geom/functions.h"
#include "orx/geom/point.h"
#include "orx/geom/tolerance.h"
#include "orx/geom/vector.h"

#endif  // ORX_GEOM_GEOM_H
