// Queries on one bulge segment given by its two ends and its bulge: radius, the point at a
// distance along it, the distance along it to a point, the distance of a point from it, the
// foot of a point on its line or circle, and cutting it in two.
//
// Every function works in the frame of the chord (relative to its midpoint, in half chords),
// never through the centre: the results do not depend on where the segment lies, and a tiny
// bulge gives its arc to the digits of the chord (a bulge of 1e-300 behaves as the straight
// chord, as its geometry is). Arcs are planar; their points take the z of the chord midpoint,
// straight segments interpolate z. A segment whose ends coincide in the plan has no frame:
// the functions then treat it as the point p1.
//
//     COrxPoint3d const a(0, 0, 0), b(10, 0, 0);
//     COrxPoint3d half = ORX::g_bulg_pt_at(a, b, 1e-9, ORX::g_bulg_len(a, b, 1e-9) / 2);
//     // (5, -5e-9): the arc's midpoint, to the digits of the chord
#ifndef ORX_PLANE_GEOMETRY_BULGE_SEGMENT_H
#define ORX_PLANE_GEOMETRY_BULGE_SEGMENT_H

#include "orx/foundation/platform.h"
#include "orx/geom/point.h"

namespace ORX {

// The radius, chord / 4 * |1/bulge + bulge|; NaN for a straight segment and for a bulge so
// small that the radius overflows (the arc is its chord).
ORX_API double g_bulg_rad(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge);

// The signed area between the chord and the arc (the circular segment): positive for a
// positive bulge, r^2 / 2 (theta - sin theta) with theta = 4 atan(bulge); 0 for a straight
// segment. Evaluated without cancelling for a tiny bulge (about 2/3 chord * sagitta).
ORX_API double g_bulg_area(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge);

// The point at dist along the segment from p1. Outside [0, length] the line or circle is
// extrapolated. NaN coordinates for a non-finite dist.
ORX_API COrxPoint3d g_bulg_pt_at(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge,
                                 double dist);

// The distance along the segment from p1 to the foot of p (g_bulg_lotp): negative before p1,
// above the length beyond p2; for an arc the feet outside it count from the nearer end.
ORX_API double g_bulg_dist_at(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge,
                              COrxPoint3d const& p);

// The plan distance from p to the segment itself: to its line or circle where the foot lies
// on the segment, else to the nearer end. NaN for NaN input.
ORX_API double g_bulg_pt_dist(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge,
                              COrxPoint3d const& p);

// The plan distance from p to the segment's infinite line or full circle; NaN for a segment
// whose ends coincide and for NaN input.
ORX_API double g_bulg_circ_dist(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge,
                                COrxPoint3d const& p);

// The foot of p on the segment's infinite line, or on its full circle (radially); p1 for a
// segment whose ends coincide.
ORX_API COrxPoint3d g_bulg_lotp(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge,
                                COrxPoint3d const& p);

// Cuts the segment at the foot of p: the cut point on the segment and the bulges of the two
// pieces (p1 to cut, cut to p2), which lie on the segment's own line or circle and together
// make it up. False, outputs untouched, when the foot lies outside the segment or within
// COrxPoint3d::tol of an end (for an arc in the plan, as its points are planar): such a cut
// would make a piece of no length or one that runs the long way round the circle.
ORX_API bool g_bulg_cut(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge,
                        COrxPoint3d const& p, COrxPoint3d& cut, double& bulge1, double& bulge2);

// The bulge of the arc on the same circle from p1 to the foot of q, turning the same way:
// its sweep is the angle from p1 to the foot in the arc's sense, in [0, 2pi). 0 for a
// straight segment.
ORX_API double g_bulg_to(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge,
                         COrxPoint3d const& q);
// The same for the arc from the foot of q to p2.
ORX_API double g_bulg_from(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge,
                           COrxPoint3d const& q);

// The segment's share of the winding number of p: the crossing of its chord with the ray
// from p towards +x (+1 upwards, -1 downwards, the lower end counted and the upper not),
// plus the sign of the bulge when p lies inside the circular segment between the chord and
// the arc. Summed over a closed polyline it is the polyline's winding number at p. Decided
// exactly, without a tolerance: a point exactly on a chord's line counts as moved a little
// towards -x and a hair up (as the half-open rule at the ends does), one exactly on a circle
// as outside it. 0 for NaN input.
ORX_API int g_bulg_winding(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge,
                           COrxPoint3d const& p);

}  // namespace ORX

#endif  // ORX_PLANE_GEOMETRY_BULGE_SEGMENT_H
