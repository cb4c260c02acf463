// Lines and circles as one kind of curve, and where two of them meet.
//
// A curve is the zero set of a (x^2 + y^2) + lx x + ly y + f in coordinates relative to a
// chosen origin near the curves: a circle when a != 0, a line when a = 0. An arc of tiny bulge
// has a tiny a and stays well scaled, where its centre and radius would not; so the meeting
// points of nearly straight arcs keep the digits of their chords.
#ifndef ORX_PLANE_GEOMETRY_SHARED_CURVE_H
#define ORX_PLANE_GEOMETRY_SHARED_CURVE_H

namespace ORX {
namespace internal {

struct Curve {
    double a;
    double lx;
    double ly;
    double f;
};

// The curve's value at (x, y): zero on it.
double curveValue(Curve const& c, double x, double y);
// |grad| on the curve: twice |a| times the radius for a circle, |(lx, ly)| for a line.
double curveScale(Curve const& c);
// Signed distance from (x, y) to the curve, positive outside a circle when a > 0 (on the
// side the gradient points to).
double curveDistance(Curve const& c, double x, double y);
// The foot of (x, y) on the curve: radially onto a circle, perpendicularly onto a line.
void curveFoot(Curve const& c, double& x, double& y);

// Up to two meeting points, in the order the functions below state.
struct Meeting {
    int count = 0;
    double x[2] = {0.0, 0.0};
    double y[2] = {0.0, 0.0};
    void add(double px, double py);
};

// The tolerances of a meeting: two roots closer than 2 * mergeHalf along the line become one
// point; a line that misses a circle by less than touchGap touches it (one point, on the
// line); two circles whose gap or overlap is less than touchGap touch.
struct MeetingTolerance {
    double mergeHalf;
    double touchGap;
};

// The line through (px, py) with the unit direction (wx, wy) against a curve: the points in
// the order of the line's direction. A line against a line meets once unless parallel.
Meeting lineMeetsCurve(double px, double py, double wx, double wy, Curve const& c,
                       MeetingTolerance const& tol);

// Two circles (a != 0 for both): the point left of the direction from the first centre to
// the second comes first. Touching circles give one point: on the first circle where they
// touch from outside, on the larger one where one lies inside the other. Concentric circles
// give none; callers test for one and the same circle first.
Meeting circleMeetsCircle(Curve const& c1, Curve const& c2, MeetingTolerance const& tol);

}  // namespace internal
}  // namespace ORX

#endif  // ORX_PLANE_GEOMETRY_SHARED_CURVE_H
