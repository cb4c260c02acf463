// Measures of polylines that stay finite up to the largest coordinates a double holds.
//
// Lengths, areas and orientation square coordinates on the way (a chord, a cross product),
// so above about 1e154 they overflow to infinity and NaN. These functions measure an exact
// copy scaled down by a power of two (which changes no digit) and scale the result back;
// polylines of ordinary size are measured as they are, so the point tolerance keeps its
// meaning. A result beyond the range of doubles is infinite, never NaN.
#ifndef ORX_TOOL_SAFE_MEASURES_H
#define ORX_TOOL_SAFE_MEASURES_H

#include "orx/polyline/vertex_array.h"

namespace orxtool {

// The signed area (positive counter-clockwise) of a closed polyline, with the circular
// segment of every arc; NaN for an open or empty one.
double safeArea(COrxVertexArray const& polyline);

// The length along every segment.
double safeLength(COrxVertexArray const& polyline);

// The closed polyline runs counter-clockwise seen from +Z.
bool isCounterClockwise(COrxVertexArray const& polyline);

// The tight axis-aligned box; false for an empty polyline.
bool safeExtents(COrxVertexArray const& polyline, COrxPoint3d& lo, COrxPoint3d& hi);

// The point with every coordinate multiplied by 2^exponent (exact unless it under- or
// overflows).
COrxPoint3d scaled(COrxPoint3d const& p, int exponent);

// A copy of the polyline scaled by 2^exponent about the origin; bulges are kept, so arcs
// stay the same arcs.
COrxVertexArray scaledCopy(COrxVertexArray const& polyline, int exponent);

}  // namespace orxtool

#endif  // ORX_TOOL_SAFE_MEASURES_H
