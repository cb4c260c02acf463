// Profile outlines by type code: the closed outline of a plate or bar cross-section from a
// numeric section code and a short list of dimensions.
//
// The codes are the callers' vocabulary and are kept exactly. Every outline is built in the
// XY plane (z = 0) around its reference point at the local origin and finally moved by the
// offset (a plain translation through COrxVertexArray::transformBy). Dimension i reads as
// 0.0 when dims has no entry i. Outlines are closed; the polygon shapes run
// counter-clockwise. Angles among the dimensions are degrees.
//
// Failure is the empty outline: an unknown code (16, 20, 25, 26, 29, 32 and every code not
// listed below), fewer dimensions than the minimum, a failed validity test, or a dimension
// or offset that is not finite. Nothing is thrown. Whatever the dimensions, an outline that
// is returned is closed, has finite corners and bulges, no segment whose ends coincide
// (point tolerance), and is wider than the point tolerance on average (twice its area over
// its perimeter, also where these exceed the range of doubles): finite dimensions that
// mean nothing (a zero width, a negative length, an opening narrower than the tolerance)
// and offsets so far out that the corners fall together give the empty outline instead.
//
// d0, d1, ... are the dimensions; "norm" marks outlines cleaned with norm(false), which drops
// the zero-length segments a zero dimension leaves (and merges collinear neighbours). Arcs
// are given as "bulge b" of the segment that ends at the next corner.
//
// code min  shape, dimensions, corners in traversal order
// ---- ---  ----------------------------------------------------------------------------------
//  1   2   rectangle d0 x d1: (0,0) (d0,0) (d0,d1) (0,d1)
//  2   3   trapezoid with a vertical side; needs d0 > 0, d1 > 0. d2 < 0: (0,0) (d0,0) (d0,d1)
//          (d0+d2,d1); d2 > 0: (0,0) (d0,0) (d2,d1) (0,d1); d2 = 0: (0,0) (d0,0) (0,d1)
//  3   3   taper, sides |d1| (left) and |d2| (right), width |d0|: (0,0) (|d0|,0) (|d0|,|d2|)
//          (0,|d1|); norm
//  4   4   quadrilateral with a vertical side; needs d0 > 0, d1 > 0. d3 < 0: (0,0) (d0,0)
//          (d0,d1) (d0+d3,d2); d3 >= 0: (0,0) (d0,0) (d3,d2) (0,d1)
//  5   4   gable: (0,0) (d0,0) (d0,d2) (x,max(d1,d2)) (0,d1), ridge x = d3 from the higher
//          side (x = d3 when d1 > d2, else d0 - d3)
//  6   4   hexagon, sides d2, ridge height d1, top flat 2*d3 (d3 >= 0) or |d3| (d3 < 0):
//          (0,0) (d0,0) (d0,d2) (d0-a,d1) (a,d1) (0,d2)
//  7   3   symmetric trapezoid, top flat 2*d2 (d2 >= 0) or |d2| (d2 < 0): (0,0) (d0,0)
//          (d0-a,d1) (a,d1)
//  8   4   trapezoid, top from x = d2, length d3: (0,0) (d0,0) (d2+d3,d1) (d2,d1)
//  9   2   right triangle, base |d0|, height d1, right angle left (d0 >= 0) or right (d0 < 0)
// 10   2   isosceles triangle: (0,0) (d0,0) (d0/2,d1)
// 11   3   house: (0,0) (d0,0) (d0,d2) (d0/2,d1) (0,d2)
// 12   3   triangle: (0,0) (d0,0) (d2,d1)
// 13   3   segmental arch, width d0, crown d1, sides s = d2 (d2 > 0) or d1 + d2 (d2 <= 0):
//          (0,0) (d0,0) (d0,s) bulge (d1-s)/(d0/2) (0,s); s = 0: (0,0) (d0,0) bulge ...
// 14   2   semicircular arch, width d0, crown d1: (0,0) (d0,0) (d0,s) bulge 1 (0,s),
//          s = max(0, d1 - d0/2); s = 0: the half disc (0,0) (d0,0) bulge 1
// 15   3   three-centred (basket-handle) arch, see below
// 17   3   rectangle d0 x d1 with quarter-circle upper corners of radius r = d1 - d2:
//          (0,0) (d0,0) (d0,d2) bulge tan(pi/8) (d0-r,d1) (r,d1) bulge tan(pi/8) (0,d2); norm
// 18   3   pointed arch, width d0 > 0, crown d1, sides d2, optional arc rise d3:
//          (0,0) (d0,0) (d0,d2) arc (d0/2,d1) arc (0,d2); with d3 > 0 each arc's bulge is
//          d3 over half its chord, else the arcs have the radius g_tang_radius(min(f, d0/2),
//          max(f, d0/2)), f = d1 - d2; empty when that gives no arc (d1 = d2, no d3)
// 19   2   circular segment, chord d0 > 0, rise d1 > 0 (no arc without them):
//          (0,0) (d0,0) arc [(d0/2,d1) arc when d1 > d0/2] back to (0,0)
// 21   3   parallelogram with vertical sides d1, base at d2 degrees, base length d0 (d0 >= 0)
//          or horizontal width |d0| (d0 < 0, not with a vertical base): (0,0) P P+(0,d1)
//          (0,d1)
// 22   1   circle, diameter d0 from (0,0) to (d0,0) (d0 >= 0) or radius |d0| about the
//          origin (d0 < 0): two half circles, bulge 1 each
// 23   3   ring segment or sector, see below
// 24   3   rectangle with four chamfered corners, see below (224, 324: fewer corners)
// 27   3   rectangle with four rounded corners, see below (227, 327: fewer corners)
// 28   1   square on its corner about the origin, side d0 (d0 >= 0) or diagonal |d0|
//          (d0 < 0): (-h,0) (0,-h) (h,0) (0,h), h = sqrt(0.5)*d0 or d0/2
// 30   2   regular polygon, see below
// 31   4   rectangle with a rectangular notch, see below
// 33   2   slot d0 (along X) x d1 with semicircular ends, or the circle of diameter d0 when
//          |d0 - d1| < 1e-05; the lower end touches the origin (upright slot) or the left end
//          does (d0 > d1)
// 34   0   regular hexagon about the origin, across flats d0, corners at 30, 90, ... 330 deg
//          (empty without d0 or with d0 = 0: the corners would all lie at the origin)
// 801  3   slot of width d0 and length d1 with one half-circle end and one end on the circle
//          of diameter D = max(d2, d0): (d0/2,0) bulge 1 (-d0/2,0) (-d0/2,e) arc (d0/2,e),
//          the arc counter-clockwise about (0, D/2 - d1 + d0/2) (the far end lies d1 below
//          the top); d0 and d1 swapped and the result turned a quarter clockwise when d0 > d1
// 802  1   circle about the origin, diameter d0 (d0 >= 0) or radius |d0| (d0 < 0)
// 803  2   slot centred on the origin, see below
// 804  2   oval centred on the origin, see below
// 901  6   polygon through coordinate pairs, see below
//
// Some of the constructions above cross or overlap themselves for some dimensions; they are
// kept as built, since callers draw these codes with exactly these corners:
// - 5 with d3 > d0 and d1 = d2: the ridge lies on the line of the top, which then runs back
//   over itself;
// - 6 with a top flat at least as wide as the base (2 d3 >= d0, or -d3 >= d0) and the
//   ridge lower than the sides (d1 < d2): the top then crosses or runs back along the
//   sides; level with them (d1 = d2) a wider top passes through the side corners. A wider
//   top above the sides (d1 > d2) is a simple, overhanging outline;
// - 13 with the sides more than half the width above the crown (d2 - d1 > d0/2): the arc
//   then spans more than a half circle and swings out across the sides;
// - 17 with r = d1 - d2 > d0/2: the two quarter circles overlap;
// - 18 with a rise d3 so large (near the chord length) that an arc swings out across a side
//   or into the other arc.
// Code 801 never crosses itself for positive dimensions (the swap keeps the slot at least
// as long as wide). With d2 > d0 its far end is a round head wider than the slot (a
// keyhole); when d1 is short against d2 that circle reaches past the half-circle end, and
// the outline becomes a disc with the slot as a notch cut into it from the far side (10, 10,
// 20: sides from y = 0 up to 13.66, disc down to y = -5). With d0 = d1 and d2 <= d0 its two
// straight sides have length zero.
//
// The shapes below complete the table in the same conventions. Each is a closed,
// counter-clockwise outline that does not touch itself for valid dimensions.
//
// code min  dimensions; corners; invalid (empty outline)
// ---- ---  ----------------------------------------------------------------------------------
// 15   3   Three-centred arch on a rectangle (window and door heads flatter than a half
//          circle). d0 span, d1 crown height, d2 springing (side) height; rise f = d1 - d2,
//          a = d0/2. The crown arc has radius R = g_korb_3m(a, f), the two springing arcs
//          r = d (d - a + f) / (2a) with d = sqrt(a^2 + f^2); they meet tangentially at T
//          and T' = mirror of T. Corners (0,0) (d0,0) (d0,d2) bulge tan(phi/4) T
//          bulge tan((pi - 2 phi)/4) T' bulge tan(phi/4) (0,d2), phi the angle each
//          springing arc spans; norm (d2 = 0 drops the sides, f = a leaves one half circle;
//          a rise within the point tolerance above a is taken as a, so that decimal input
//          such as 25.4, 12.8, 0.1 reaches the half circle). Invalid: d0 <= 0, d2 < 0,
//          f <= 0, f > a.
// 23   3   Ring segment (curved flange plates, ring stiffeners) about the origin, starting on
//          +X. d0 outer radius, d1 inner radius (0 gives the circular sector), d2 angle in
//          degrees. Corners (d1,0) (d0,0) bulge tan(w/4) (d0 cos w, d0 sin w)
//          (d1 cos w, d1 sin w) bulge -tan(w/4) back to (d1,0); with d1 = 0 the inner arc is
//          left out: (0,0) (d0,0) bulge tan(w/4) (d0 cos w, d0 sin w). Invalid: d0 <= 0,
//          d1 < 0, d1 >= d0, d2 <= 0, d2 >= 360, and an angle so close to 0 or 360 that an
//          arc's ends coincide under the point tolerance (359.999999 on radius 10).
// 24   3   Rectangle d0 x d1 with all four corners chamfered (sniped plates). d2 chamfer leg
//          along X, d3 leg along Y (0 or absent: d3 = d2). Corners (c,0) (d0-c,0) (d0,e)
//          (d0,d1-e) (d0-c,d1) (c,d1) (0,d1-e) (0,e), c = d2, e = d3; norm. Invalid:
//          d0 <= 0, d1 <= 0, d2 < 0, d3 < 0, 2c > d0, 2e > d1.
// 224  3   As 24, the two upper corners only: (0,0) (d0,0) (d0,d1-e) (d0-c,d1) (c,d1)
//          (0,d1-e); norm. Invalid as 24 but with e > d1 in place of 2e > d1.
// 324  3   As 24, the upper right corner only: (0,0) (d0,0) (d0,d1-e) (d0-c,d1) (0,d1);
//          norm. Invalid as 24 but with c > d0 and e > d1.
// 27   3   Rectangle d0 x d1 with all four corners rounded to radius r = d2 (quarter
//          circles, bulge tan(pi/8)). Corners (r,0) (d0-r,0) arc (d0,r) (d0,d1-r) arc
//          (d0-r,d1) (r,d1) arc (0,d1-r) (0,r) arc back to (r,0); norm, which drops the
//          zero-length sides and merges arcs of one circle: with 2r = d0 = d1 the result is
//          the circle as two arcs starting at (r,d1). Invalid: d0 <= 0, d1 <= 0, r < 0,
//          2r > d0, 2r > d1.
// 227  3   As 27, the two upper corners only (the radius given directly, unlike code 17):
//          (0,0) (d0,0) (d0,d1-r) arc (d0-r,d1) (r,d1) arc (0,d1-r); norm. Invalid as 27
//          but with r > d1 in place of 2r > d1.
// 327  3   As 27, the upper right corner only: (0,0) (d0,0) (d0,d1-r) arc (d0-r,d1) (0,d1);
//          norm. Invalid as 27 but with r > d0 and r > d1.
// 30   2   Regular polygon about the origin, standing on a horizontal side. d0 number of
//          corners n (a whole number), d1 diameter of the circumscribed circle. Corner k at
//          angle -pi/2 - pi/n + 2 pi k/n, k = 0 .. n-1 (corner 0 bottom left, first side
//          along +X). Invalid: n not whole, n < 3, n > 1000, d1 <= 0.
// 31   4   Rectangle d0 x d1 with a rectangular notch at the upper right corner (coped
//          plates, L-shaped plates). d2 notch width along X, d3 notch depth along Y.
//          Corners (0,0) (d0,0) (d0,d1-d3) (d0-d2,d1-d3) (d0-d2,d1) (0,d1); norm (a zero
//          notch leaves the rectangle). Invalid: d0 <= 0, d1 <= 0, d2 < 0, d3 < 0,
//          d2 >= d0, d3 >= d1.
// 803  2   Slotted hole centred on the origin, d0 long along X and d1 wide along Y, with
//          half-circle ends on the longer axis. d0 > d1, r = d1/2, l = d0/2 - r: corners
//          (-l,-r) (l,-r) bulge 1 (l,r) (-l,r) bulge 1 back; d1 > d0: the same slot built
//          along X and turned a quarter counter-clockwise, so it starts at (r,-l);
//          |d0 - d1| < 1e-05: the circle (r,0) bulge 1 (-r,0) bulge 1 back, r = d0/2.
//          Invalid: d0 <= 0, d1 <= 0.
// 804  2   Oval centred on the origin (four-centred ellipse: the top and bottom halves are
//          the three-centred arch of code 15 over the longer axis), d0 along X, d1 along Y.
//          d0 > d1, a = d0/2, b = d1/2: corners (a,0) T1 T2 (-a,0) T3 T4, with T1, T2 the
//          tangent points of the upper half and T3, T4 those of the lower one, all six
//          segments arcs (springing arc, crown arc, springing arc, ...); d1 > d0: built along
//          X and turned a quarter counter-clockwise (it starts at (0,b)); |d0 - d1| < 1e-05:
//          the circle as for 803. Invalid: d0 <= 0, d1 <= 0.
// 901  6   Polygon through coordinate pairs (any plate outline): corner k is
//          (d[2k], d[2k+1]) in local coordinates, so the offset moves the whole polygon.
//          Consecutive repeated corners (and a last corner repeating the first) are dropped.
//          Corners in the order given when that runs counter-clockwise, else reversed
//          (starting at the first corner). Invalid: an odd number of dimensions, fewer
//          than three distinct corners, no area, two sides that meet anywhere but at their
//          shared corner (crossing, touching or overlapping).
//
//     COrxArrayTempl<double> dims;
//     dims.append(200.0).append(120.0).append(15.0);                 // 24: snipes 15 x 15
//     COrxVertexArray plate = ORX::g_outline(24, COrxVector3d(50, 0, 0), dims);
//     if (plate.isEmpty()) { /* unknown code or invalid dimensions */ }
#ifndef ORX_PROFILES_OUTLINE_H
#define ORX_PROFILES_OUTLINE_H

#include "orx/foundation/array_templ.h"
#include "orx/foundation/platform.h"
#include "orx/geom/vector.h"
#include "orx/polyline/vertex_array.h"

namespace ORX {

// Number of records of the outline table; the table is searched from its first record and
// ends after this many (no sentinel).
constexpr int kOutlineTableSize = 37;

// The outline of section `type` built from dims and moved by offset; the empty outline on
// failure (see the table above).
ORX_API COrxVertexArray g_outline(int type, COrxVector3d const& offset,
                                  COrxArrayTempl<double> const& dims);

// The type code of record i of the outline table (0 <= i < kOutlineTableSize), in table
// order; 0 for any other i. Lets callers list every code the table holds.
ORX_API unsigned int g_outline_code(int i);

}  // namespace ORX

#endif  // ORX_PROFILES_OUTLINE_H
