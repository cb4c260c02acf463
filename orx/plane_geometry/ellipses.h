// Points of an ellipse and the conversion between its parameter and its polar angle.
//
// An ellipse has semi-axes a (along its own x axis) and b; the point of parameter t is
// (a cos t, b sin t) in its own axes, and its polar angle w is the direction of that point
// seen from the centre. Both are radians in [0, 2pi) and lie in the same quadrant. A
// semi-axis that is not positive and finite gives NaN.
#ifndef ORX_PLANE_GEOMETRY_ELLIPSES_H
#define ORX_PLANE_GEOMETRY_ELLIPSES_H

#include "orx/foundation/platform.h"
#include "orx/geom/point.h"

namespace ORX {

// The point of parameter t of the ellipse about centre whose own x axis points in the
// direction rotation: centre + R(rotation) (a cos t, b sin t, 0); z of the centre.
ORX_API COrxPoint3d g_ellips_pt(COrxPoint3d const& centre, double a, double b, double rotation,
                                double t);
// The parameter of the point seen under the polar angle w: atan2(a sin w, b cos w).
ORX_API double g_elps_p(double a, double b, double w);
// The polar angle of the point of parameter t: atan2(b sin t, a cos t).
ORX_API double g_elps_w(double a, double b, double t);

}  // namespace ORX

#endif  // ORX_PLANE_GEOMETRY_ELLIPSES_H
