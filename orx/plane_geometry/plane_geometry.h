// Plane geometry: angles, arcs, bulges, tangents, intersections and nearest points.
#ifndef ORX_PLANE_GEOMETRY_PLANE_GEOMETRY_H
#define ORX_PLANE_GEOMETRY_PLANE_GEOMETRY_H

#endif  // ORX_PLANE_GEOMETRY_PLANE_GEOMETRY_H
