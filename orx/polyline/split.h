// Splitting a polyline into pieces at points on it or at distances along it.
//
//     COrxArrayTempl<double> at;
//     at.append(250.0).append(700.0);
//     COrxArrayTempl<COrxVertexArray> pieces = ORX::g_vl_split_dist(axis, at);  // 3 pieces
//
// A segment cut inside is broken into two along its own line or circle (as
// COrxVertexArray::breakVertex does), so consecutive pieces meet exactly at the cut and
// joining them in order (COrxVertexArray::join) gives back the polyline's path. Cuts closer
// together than the point tolerance count once.
// - An open polyline cut at k places gives k + 1 pieces, the first from its start, the last
//   to its end; cuts at the start or end themselves are passed over.
// - A closed polyline is a loop: k cuts give k pieces, the first starting at the first cut
//   along the polyline, the last running from the last cut through the start point back to
//   the first cut. A cut at the start point opens the loop there.
// Without a cut the result is the polyline itself, one piece; an empty polyline gives the
// empty list.
#ifndef ORX_POLYLINE_SPLIT_H
#define ORX_POLYLINE_SPLIT_H

#include "orx/foundation/array_templ.h"
#include "orx/foundation/platform.h"
#include "orx/geom/point_array.h"
#include "orx/polyline/vertex_array.h"

namespace ORX {

// Cut at every point of `points` that lies on vl (point tolerance; where the polyline passes
// a point more than once, at the first passage, as COrxVertexArray::distAtPoint finds it).
// Points off the polyline are passed over.
ORX_API COrxArrayTempl<COrxVertexArray> g_vl_split(COrxVertexArray const& vl,
                                                   COrxPoint3dArray const& points);

// Cut at every distance along vl from its start (arc lengths on arcs), in any order.
// Distances that are not finite or lie outside [0, geomLength()] are passed over.
ORX_API COrxArrayTempl<COrxVertexArray> g_vl_split_dist(COrxVertexArray const& vl,
                                                        COrxArrayTempl<double> const& distances);

}  // namespace ORX

#endif  // ORX_POLYLINE_SPLIT_H
