// Plane geometry: angles, arcs, bulges, tangents, intersections and nearest points.
//
// Free functions in namespace ORX on points and point lists in the XY plane (z is carried
// along): direction angles and their classes (angles.h), arcs and bulge segments (bulges.h),
// tangent circles and basket arcs (tangents.h), straight lines and nearest points (lines.h),
// small point helpers (points.h), circle, arc and line intersections (intersections.h) and
// ellipses (ellipses.h). Angles are radians counter-clockwise from +X; a positive bulge turns
// counter-clockwise. No answer is NaN for a double and false for a bool (outputs untouched
// unless a function says otherwise); the point tolerance COrxPoint3d::tol decides coincidence.
//
//     COrxPoint3dArray hits;
//     ORX::g_cci(hits, COrxPoint3d(0, 0, 0), 5.0, COrxPoint3d(8, 0, 0), 5.0);  // (4, 3), (4, -3)
//     double bulge;
//     ORX::g_arcrad_bulg(bulge, hits[0], hits[1], 5.0);  // the minor arc between them
//     bool on = ORX::g_arc_pt(COrxPoint3d(0, 0, 0), 5.0, 0.0, ORX::kHalfPi, hits[0]);  // true
#ifndef ORX_PLANE_GEOMETRY_PLANE_GEOMETRY_H
#define ORX_PLANE_GEOMETRY_PLANE_GEOMETRY_H

#include "orx/plane_geometry/angles.h"
#include "orx/plane_geometry/bulge_segment.h"
#include "orx/plane_geometry/bulges.h"
#include "orx/plane_geometry/ellipses.h"
#include "orx/plane_geometry/intersections.h"
#include "orx/plane_geometry/lines.h"
#include "orx/plane_geometry/points.h"
#include "orx/plane_geometry/tangents.h"

#endif  // ORX_PLANE_GEOMETRY_PLANE_GEOMETRY_H
