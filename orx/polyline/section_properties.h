// Section properties of closed bulge polylines: area, centroid and second moments of area,
// exact for arcs (no flattening), the principal moments, the radii of gyration and the
// elastic section moduli. The region variant, outer loop minus holes, is in
// orx/regions/region_statics.h.
//
//     double area, ix, iy, ixy, i1, i2, angle;
//     COrxPoint3d centroid;
//     if (ORX::g_vl_statics(outline, area, centroid, ix, iy, ixy)) {
//         ORX::g_statics_principal(ix, iy, ixy, i1, i2, angle);
//     }
//
// The integrals are those of Green's theorem over the closed outline, taken segment by
// segment about a local origin (the first point), so that coordinates far from the origin
// (1e6 and more) keep the digits of the result:
// - each segment contributes the triangle (origin, start, end): with c = x0 y1 - x1 y0,
//   area c / 2, integral of x c (x0 + x1) / 6, of x^2 c (x0^2 + x0 x1 + x1^2) / 12, of
//   x y c (2 x0 y0 + x0 y1 + x1 y0 + 2 x1 y1) / 24 (y alike);
// - an arc of radius r spanning 2a (a = 2 atan |bulge|, s = sin a, k = cos a) adds the
//   circular segment between arc and chord (a positive bulge adds it, a negative one takes
//   it away): area r^2 (a - s k), first moment about the chord r^3 (2/3 s^3 - k (a - s k)),
//   second moment along the chord r^4 ((a - s k)/4 - s^3 k/6), across it
//   r^4 ((a + s k)/4 - s k^3/2 - 4/3 k s^3 + k^2 (a - s k)), carried into the drawing's
//   axes from the chord's midpoint; flat arcs take the Taylor series of the same integrals;
// - the moments are moved to the centroid by the parallel-axis theorem.
// The outputs mean what those of g_pl_statics mean: the area is positive for either
// orientation, ix = integral of y'^2, iy = integral of x'^2, ixy = integral of x'y' about
// the axes through the centroid parallel to X and Y. Z is ignored (the centroid takes the
// first point's z). A polyline that crosses itself gives the net values.
#ifndef ORX_POLYLINE_SECTION_PROPERTIES_H
#define ORX_POLYLINE_SECTION_PROPERTIES_H

#include "orx/foundation/platform.h"
#include "orx/geom/point.h"
#include "orx/polyline/vertex_array.h"

namespace ORX {

// Area, centroid and second moments of the area the closed polyline encloses. False,
// outputs untouched, when the polyline is not closed, has a point or bulge that is not
// finite, encloses an area not above COrxPoint3d::tol squared, or a result overflows.
ORX_API bool g_vl_statics(COrxVertexArray const& vl, double& area, COrxPoint3d& centroid,
                          double& ix, double& iy, double& ixy);

// The principal second moments i1 >= i2 = (ix + iy)/2 +- sqrt(((ix - iy)/2)^2 + ixy^2) and
// the direction angle of the first principal axis (the one i1 is taken about),
// angle = atan2(-2 ixy, ix - iy) / 2 in (-pi/2, pi/2] counter-clockwise from +X: the moment
// about an axis of angle w is ix cos^2 w + iy sin^2 w - 2 ixy sin w cos w. Equal moments
// without product (a circle, a square) give angle 0. NaN input gives NaN outputs.
ORX_API void g_statics_principal(double ix, double iy, double ixy, double& i1, double& i2,
                                 double& angle);

// Radii of gyration about the centroid axes: rx = sqrt(ix / area), ry = sqrt(iy / area).
// False, outputs untouched, for an area not above 0 or moments below 0 or not finite.
ORX_API bool g_statics_gyration(double area, double ix, double iy, double& rx, double& ry);

// Elastic section moduli about the centroid axes, from the extents min, max of the section
// (COrxVertexArray::extents): the moment divided by the distance from the centroid to the
// farthest fibre on each side, wxTop = ix / (max.y - c.y), wxBottom = ix / (c.y - min.y),
// wyRight = iy / (max.x - c.x), wyLeft = iy / (c.x - min.x). The smaller of each pair is
// the one that limits the bending stress. False, outputs untouched, when the centroid does
// not lie strictly inside the extents or a value is not finite.
ORX_API bool g_statics_moduli(COrxPoint3d const& centroid, double ix, double iy,
                              COrxPoint3d const& min, COrxPoint3d const& max, double& wxTop,
                              double& wxBottom, double& wyRight, double& wyLeft);

}  // namespace ORX

#endif  // ORX_POLYLINE_SECTION_PROPERTIES_H
