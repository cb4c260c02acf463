// The generators behind ORX::g_outline, one per section code, and the helpers they share.
// Implementation only: the codes, their dimensions and corner orders are documented in
// orx/profiles/outline.h.
#ifndef ORX_PROFILES_INTERNAL_OUTLINE_GENERATORS_H
#define ORX_PROFILES_INTERNAL_OUTLINE_GENERATORS_H

#include <initializer_list>

#include "orx/foundation/array_templ.h"
#include "orx/geom/functions.h"
#include "orx/geom/point.h"
#include "orx/geom/vector.h"
#include "orx/polyline/vertex_array.h"

namespace ORX {
namespace internal {

using Dims = COrxArrayTempl<double>;

// Every generator takes the offset and the dimensions and returns the finished outline, or
// the empty outline when the dimensions do not make one.
using OutlineGenerator = COrxVertexArray (*)(COrxVector3d const& offset, Dims const& dims);

// Factor from the degrees of angle dimensions to radians.
constexpr double kDegToRad = 3.141592653589793 / 180.0;
// Codes 33, 803 and 804 give a circle when their two extents differ by less than this.
constexpr double kRoundExtentTol = 1e-05;
// pi / 8, a quarter of a quarter circle's included angle: its tangent is the bulge of the
// rounded corners.
constexpr double kQuarterCircleBulgeAngle = 0.39269908169872414;
// Code 18 without an arc rise reads this as its fourth dimension.
constexpr double kPointedArchNoRise = -1.0;
// Code 30 refuses polygons with more corners (a whole number of that size is a typing error
// rather than a plate, and would only cost memory).
constexpr int kMaxPolygonCorners = 1000;

// Dimension i: dims[i] when i is below the length, else 0.0 (never memory past the end).
double dim(Dims const& dims, int i);
// dims holds at least n entries.
bool hasDims(Dims const& dims, int n);
inline COrxPoint3d xy(double x, double y) {
    return COrxPoint3d(x, y, 0.0);
}
// The closed polygon through the corners (straight segments, COrxVertexArray::fromPoints).
COrxVertexArray polygon(std::initializer_list<COrxPoint3d> corners);
COrxVertexArray polygon(COrxPoint3dArray const& corners);
// The last step of every generator: the local outline moved by offset through
// COrxVertexArray::transformBy with a translation matrix.
COrxVertexArray placed(COrxVertexArray outline, COrxVector3d const& offset);
// Bulge of the arc that spans the signed angle w: tan(w / 4).
double spanBulge(double w);

// Three-centred arch over the span from (-a, 0) to (a, 0) with its crown at (0, f), the
// construction of codes 15 and 804. Valid for 0 < f <= a.
struct BasketArch {
    COrxPoint3d rightTangent;  // where the right springing arc meets the crown arc
    COrxPoint3d leftTangent;   // its mirror image
    double springBulge;        // bulge of each springing arc
    double crownBulge;         // bulge of the crown arc
};
BasketArch basketArch(double a, double f);

// Codes 1 to 12, 21, 28, 30, 31, 34 (outline_polygons.cpp).
COrxVertexArray rectangle(COrxVector3d const& offset, Dims const& dims);           // 1
COrxVertexArray rightTrapezoid(COrxVector3d const& offset, Dims const& dims);      // 2
COrxVertexArray taper(COrxVector3d const& offset, Dims const& dims);               // 3
COrxVertexArray quadrilateral(COrxVector3d const& offset, Dims const& dims);       // 4
COrxVertexArray gable(COrxVector3d const& offset, Dims const& dims);               // 5
COrxVertexArray flatTopHexagon(COrxVector3d const& offset, Dims const& dims);      // 6
COrxVertexArray symmetricTrapezoid(COrxVector3d const& offset, Dims const& dims);  // 7
COrxVertexArray trapezoid(COrxVector3d const& offset, Dims const& dims);           // 8
COrxVertexArray rightTriangle(COrxVector3d const& offset, Dims const& dims);       // 9
COrxVertexArray isoscelesTriangle(COrxVector3d const& offset, Dims const& dims);   // 10
COrxVertexArray house(COrxVector3d const& offset, Dims const& dims);               // 11
COrxVertexArray triangle(COrxVector3d const& offset, Dims const& dims);            // 12
COrxVertexArray parallelogram(COrxVector3d const& offset, Dims const& dims);       // 21
COrxVertexArray diamond(COrxVector3d const& offset, Dims const& dims);             // 28
COrxVertexArray regularPolygon(COrxVector3d const& offset, Dims const& dims);      // 30
COrxVertexArray notchedRectangle(COrxVector3d const& offset, Dims const& dims);    // 31
COrxVertexArray hexagon(COrxVector3d const& offset, Dims const& dims);             // 34

// Codes 13, 14, 15, 17, 18, 19 (outline_arches.cpp).
COrxVertexArray segmentalArch(COrxVector3d const& offset, Dims const& dims);        // 13
COrxVertexArray semicircularArch(COrxVector3d const& offset, Dims const& dims);     // 14
COrxVertexArray basketHandleArch(COrxVector3d const& offset, Dims const& dims);     // 15
COrxVertexArray roundedTopRectangle(COrxVector3d const& offset, Dims const& dims);  // 17
COrxVertexArray pointedArch(COrxVector3d const& offset, Dims const& dims);          // 18
COrxVertexArray circularSegment(COrxVector3d const& offset, Dims const& dims);      // 19

// Codes 22, 23, 33, 801 to 804 (outline_round.cpp).
COrxVertexArray circleThroughOrigin(COrxVector3d const& offset, Dims const& dims);  // 22
COrxVertexArray ringSegment(COrxVector3d const& offset, Dims const& dims);          // 23
COrxVertexArray slot(COrxVector3d const& offset, Dims const& dims);                 // 33
COrxVertexArray slotWithHead(COrxVector3d const& offset, Dims const& dims);         // 801
COrxVertexArray circleAboutOrigin(COrxVector3d const& offset, Dims const& dims);    // 802
COrxVertexArray centredSlot(COrxVector3d const& offset, Dims const& dims);          // 803
COrxVertexArray oval(COrxVector3d const& offset, Dims const& dims);                 // 804

// Codes 24, 224, 324, 27, 227, 327 (outline_corners.cpp).
COrxVertexArray chamferedRectangle(COrxVector3d const& offset, Dims const& dims);  // 24
COrxVertexArray chamferedTop(COrxVector3d const& offset, Dims const& dims);        // 224
COrxVertexArray chamferedCorner(COrxVector3d const& offset, Dims const& dims);     // 324
COrxVertexArray roundedRectangle(COrxVector3d const& offset, Dims const& dims);    // 27
COrxVertexArray roundedTop(COrxVector3d const& offset, Dims const& dims);          // 227
COrxVertexArray roundedCorner(COrxVector3d const& offset, Dims const& dims);       // 327

// Code 901 (outline_coordinates.cpp).
COrxVertexArray coordinatePolygon(COrxVector3d const& offset, Dims const& dims);  // 901

}  // namespace internal
}  // namespace ORX

#endif  // ORX_PROFILES_INTERNAL_OUTLINE_GENERATORS_H
