// Geometric operands decoded from a fuzz input: points, bulges, segments, polylines, closed
// outlines and regions.
//
// The decoders favour what the geometry finds hard: points on a coarse grid (shared corners,
// collinear and overlapping edges), half circles and tiny or huge bulges, outlines placed at
// site coordinates or shrunk to the point tolerance, and second operands made from the first
// (the same outline, reversed, moved by a hair, cut at an extra vertex). Now and then a value
// is not finite at all.
#ifndef ORX_FUZZ_SUPPORT_SHAPES_H
#define ORX_FUZZ_SUPPORT_SHAPES_H

#include "fuzz_input.h"
#include "orx/foundation/array_templ.h"
#include "orx/geom/point.h"
#include "orx/polyline/vertex.h"
#include "orx/polyline/vertex_array.h"

using Region = COrxArrayTempl<COrxVertexArray>;
using RegionList = COrxArrayTempl<Region>;

// A point in the XY plane (z is almost always 0).
COrxPoint3d decodePoint(FuzzInput& in);
// A bulge: often exactly 0 (straight), often a half or quarter circle, sometimes extreme.
double decodeBulge(FuzzInput& in);
COrxVertex decodeSegment(FuzzInput& in);

// 1 to maxSegments segments through decoded points; a closed one (at least two segments)
// ends where it started.
COrxVertexArray decodePolyline(FuzzInput& in, bool closed, int maxSegments);
// A closed outline (a polygon with arcs, a circle or a rectangle), moved to a decoded place
// and scaled by a decoded factor.
COrxVertexArray decodeLoop(FuzzInput& in);
// A second closed operand: often made from `first` so that the two share edges.
COrxVertexArray decodeRelatedLoop(FuzzInput& in, COrxVertexArray const& first);
// An outer loop and up to three holes, some of them made from the outer loop.
Region decodeRegion(FuzzInput& in);

#endif  // ORX_FUZZ_SUPPORT_SHAPES_H
