// Rounding and cutting the corners of polylines: fillets (a tangent arc of a given radius)
// and chamfers (a straight cut at given distances from the corner), of the corner between
// two consecutive segments or of every corner of a polyline.
//
//     COrxVertexArray plate = ...;                    // a closed outline
//     if (!ORX::g_vl_fillet_all(plate, 5.0)) { /* some corner too small: plate unchanged */ }
//     ORX::g_vl_chamfer(plate, 2, 10.0, 5.0);         // the corner at the end of segment 2
//
// A corner is the joint where one segment ends at the start of the next (point tolerance)
// and their directions differ by at least ORX::kTangentAngleTol; a smooth joint (tangent
// segments) has no corner, and neither has a cusp, where the second segment runs straight
// back. The segments next to a corner are shortened along their own line or circle, so an
// arc stays an arc of the same circle. A segment that a fillet or chamfer shortens to
// nothing is dropped from the polyline.
//
// Failure is false with every argument unchanged: a radius or distance that is not a
// positive finite number, no corner at the joint, or a corner too small for it (the
// fillet's tangent point or the chamfer's cut point would lie beyond the far end of a
// segment), or a result that would not be finite (a segment whose circle is too large for
// doubles).
#ifndef ORX_POLYLINE_CORNERS_H
#define ORX_POLYLINE_CORNERS_H

#include "orx/foundation/platform.h"
#include "orx/polyline/vertex.h"
#include "orx/polyline/vertex_array.h"

namespace ORX {

// The fillet of radius r in the corner where s1 ends and s2 starts: arc receives the arc from
// s1's new end to s2's new start, tangent to both, turning the way the corner turns (its
// centre lies r from both segments' lines or circles, inside the corner; of several such
// centres the one nearest the corner). s1 ends and s2 starts at the tangent points.
ORX_API bool g_vx_fillet(COrxVertex& s1, COrxVertex& s2, double radius, COrxVertex& arc);

// The chamfer of the corner where s1 ends and s2 starts: cut receives the straight segment
// from the point d1 back along s1 from the corner to the point d2 along s2 (distances along
// the segments, arc lengths on arcs); s1 and s2 are shortened to it.
ORX_API bool g_vx_chamfer(COrxVertex& s1, COrxVertex& s2, double d1, double d2, COrxVertex& cut);

// The fillet or chamfer of one corner of vl: the corner where segment `corner` ends (a
// negative index counts from the end; the last segment's end is a corner of a closed
// polyline only). The new segment is inserted after segment `corner` (appended for the
// closing corner). The one-distance chamfer cuts d on both sides.
ORX_API bool g_vl_fillet(COrxVertexArray& vl, int corner, double radius);
ORX_API bool g_vl_chamfer(COrxVertexArray& vl, int corner, double d1, double d2);
ORX_API bool g_vl_chamfer(COrxVertexArray& vl, int corner, double d);

// Every corner of vl, in order (the closing corner of a closed polyline last), each fillet
// or chamfer fitted to the segments as the corners before it left them: two corners at the
// ends of one segment must fit on it together. Smooth joints and gaps are passed over. All
// or nothing: when one corner fails, vl is unchanged. True also when vl has no corner.
ORX_API bool g_vl_fillet_all(COrxVertexArray& vl, double radius);
ORX_API bool g_vl_chamfer_all(COrxVertexArray& vl, double d1, double d2);
ORX_API bool g_vl_chamfer_all(COrxVertexArray& vl, double d);

}  // namespace ORX

#endif  // ORX_POLYLINE_CORNERS_H
