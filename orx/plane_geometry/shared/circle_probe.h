// A quick, one-sided form of ArcFrame::holdsArc for long runs of arcs on one circle, such as
// a fine polygon of arcs that norm merges: it answers "certainly within the tolerance" for
// segments whose ends and middle lie well inside the tolerance band of the circle, with a
// few multiplications per point and no square root or division, and answers "cannot tell"
// otherwise. A caller asks ArcFrame::holdsArc whenever it cannot tell, so its answers are
// those of holdsArc alone.
//
// It evaluates the frame's circle at the point as ArcFrame does (the distance is at most
// twice that value, see ArcFrame::nearCircle), with its own rounding of the frame
// coordinates: it accepts only values under a quarter of the band, less a bound on how far
// that rounding can move them.
#ifndef ORX_PLANE_GEOMETRY_SHARED_CIRCLE_PROBE_H
#define ORX_PLANE_GEOMETRY_SHARED_CIRCLE_PROBE_H

#include "orx/geom/point.h"

namespace ORX {
namespace internal {

class CircleProbe {
public:
    // The circle (or line) of the segment start-end-bulge.
    CircleProbe(COrxPoint3d const& start, COrxPoint3d const& end, double bulge);

    // True only when the segment start-end-bulge certainly lies within tol of this circle at
    // its ends and its middle (holdsArc would answer true); false when that cannot be told
    // this way.
    bool surelyHolds(COrxPoint3d const& start, COrxPoint3d const& end, double bulge,
                     double tol) const;

private:
    bool surelyNear(double x, double y, double tol) const;

    double m_mx = 0.0, m_my = 0.0;  // chord midpoint
    double m_cu = 0.0, m_cv = 0.0;  // unit chord direction over the half chord
    double m_h = 0.0;               // half chord
    double m_a = 0.0;               // the frame curve a (x^2 + y^2 - 1) - gamma y
    double m_gamma = 0.0;
    bool m_usable = false;
};

}  // namespace internal
}  // namespace ORX

#endif  // ORX_PLANE_GEOMETRY_SHARED_CIRCLE_PROBE_H
