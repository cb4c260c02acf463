// Free functions on points, vectors and raw double triples: dot product, length, direction
// angles, polar points, component-wise extremes, the "no answer" NaN and step rounding.
#ifndef ORX_GEOM_FUNCTIONS_H
#define ORX_GEOM_FUNCTIONS_H

#include "orx/foundation/platform.h"
#include "orx/geom/point.h"
#include "orx/geom/vector.h"

namespace ORX {

constexpr double kPi = 3.141592653589793;
constexpr double kHalfPi = 1.5707963267948966;
constexpr double kTwoPi = 6.283185307179586;
// round() leaves its input unchanged for steps below this.
constexpr double kMinRoundStep = 1e-09;

// a[0]*b[0] + a[1]*b[1] + a[2]*b[2].
ORX_API double sprod(double const* a, double const* b);
// Euclidean length of the triple v.
ORX_API double vabs(double* v);

// Direction angles of plan vectors: atan2 brought into [0, 2pi] by one subtraction of 2pi
// (when >= 2pi) and one addition (when negative). A tiny negative angle therefore gives
// exactly 2pi, and the zero vector gives 0.
ORX_API double angle(double const* a, double const* b);  // from a to b
ORX_API double angle(COrxVector3d const& v);
ORX_API double angle(COrxPoint3d const& a, COrxPoint3d const& b);  // angle(b - a)

// (p.x + d cos a, p.y + d sin a, p.z).
ORX_API COrxPoint3d polar(COrxPoint3d const& p, double a, double d);
// (d cos a, d sin a, 0).
ORX_API COrxVector3d polar(double a, double d);

ORX_API COrxPoint3d p_min(COrxPoint3d const& a, COrxPoint3d const& b);
ORX_API COrxPoint3d p_max(COrxPoint3d const& a, COrxPoint3d const& b);

// The one "no answer" value of the library's double functions: the quiet NaN with bit
// pattern 0x7FFFFFFFFFFFFFFF.
ORX_API double nan();

// floor(x / step + 0.5) * step; x unchanged when step < kMinRoundStep.
ORX_API double round(double x, double step);

}  // namespace ORX

#endif  // ORX_GEOM_FUNCTIONS_H
