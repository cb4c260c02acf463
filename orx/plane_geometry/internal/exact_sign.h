// Signs of small polynomials in double coordinates, decided exactly.
//
// Each test first evaluates in double precision with a bound on its rounding error and
// answers at once when the value is farther from zero than the bound; only when it is not
// (the point lies on, or within rounding of, the line or circle) the value is summed again
// without any rounding, as an expansion: a sum of doubles whose parts do not overlap. Used
// where a decision must not depend on a tolerance: which side of an outline a point lies.
#ifndef ORX_PLANE_GEOMETRY_INTERNAL_EXACT_SIGN_H
#define ORX_PLANE_GEOMETRY_INTERNAL_EXACT_SIGN_H

namespace ORX {
namespace internal {

// The sign (+1, 0, -1) of the cross product (b - a) x (c - a): +1 when c lies left of the
// line from a to b. Coordinates whose products would overflow fall back to the double value.
int orientationSign(double ax, double ay, double bx, double by, double cx, double cy);

// The sign of kappa (p - s).(p - e) - gamma ((e - s) x (p - s)): negative when p lies inside
// the circle through s and e whose arc of curvature kappa (in half chords, for a positive
// bulge; see ArcFrame) bulges to the right of s -> e, with gamma = (1 - b^2) / (1 + b^2).
// For a negative bulge pass -gamma.
int circleSideSign(double sx, double sy, double ex, double ey, double px, double py, double kappa,
                   double gamma);

}  // namespace internal
}  // namespace ORX

#endif  // ORX_PLANE_GEOMETRY_INTERNAL_EXACT_SIGN_H
