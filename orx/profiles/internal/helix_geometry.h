// The conical helix in its own frame: the formulas behind COrxHelix and COrxBarAxis.
//
// With O the foot of the start point on the axis, X the unit direction from O to the start
// point, Z the unit axis vector, Y = Z x X, s = +1 for a counter-clockwise winding about Z
// and -1 for a clockwise one, the point at angle t is
//     P(t) = O + r(t) (cos t X + s sin t Y) + c t Z,   r(t) = r0 + k t,
// r0 the base radius, k the change of radius per radian and c the rise per radian. t = 0 is
// the start point and t = T = 2 pi turns the end point.
#ifndef ORX_PROFILES_INTERNAL_HELIX_GEOMETRY_H
#define ORX_PROFILES_INTERNAL_HELIX_GEOMETRY_H

#include "orx/geom/matrix.h"
#include "orx/geom/point.h"
#include "orx/geom/vector.h"

namespace ORX {
namespace internal {

struct HelixGeometry {
    bool valid;          // finite numbers and an axis of some length
    COrxPoint3d origin;  // O
    COrxVector3d xAxis;  // X (the plane rule's x axis when the start lies on the axis)
    COrxVector3d yAxis;  // Y
    COrxVector3d zAxis;  // Z
    double sense;        // s
    double baseRadius;   // r0
    double radiusRate;   // k: (top radius - r0) / T, 0 when T = 0
    double riseRate;     // c: turn height / (2 pi), 0 when T = 0
    double totalAngle;   // T
};

// The frame through startPoint about the line (axisPoint, axisVector); turns and turnHeight
// as COrxHelix holds them.
HelixGeometry helixGeometry(COrxPoint3d const& startPoint, COrxPoint3d const& axisPoint,
                            COrxVector3d const& axisVector, double topRadius, double turns,
                            double turnHeight, bool counterClockwise);

// The frame as a matrix: origin O, axes X, Y, Z.
COrxMatrix3d frameMatrix(HelixGeometry const& g);
// Determinant of the upper 3x3 block of m: negative for a mirroring matrix, the cube of the
// scale for a similarity.
double linearDeterminant(double const (*m)[4]);
// A unit vector perpendicular to z (the x axis of COrxMatrix3d::setToPlaneToWorld).
COrxVector3d perpendicularTo(COrxVector3d const& z);

// t lies between 0 and T (both included).
bool inRange(HelixGeometry const& g, double t);
COrxPoint3d pointAt(HelixGeometry const& g, double t);
// The unit tangent P'(t) / |P'(t)| in the direction of growing t; the null vector where the
// helix has no direction (radius, its change and the rise all zero).
COrxVector3d tangentAt(HelixGeometry const& g, double t);
// Signed length from t0 to t1 (negative when t1 < t0), closed form (see the source).
double lengthBetween(HelixGeometry const& g, double t0, double t1);
// The angle t at which the length from the start, signed in the direction of T, is `length`;
// false when no such angle can be found (a helix without length).
bool angleAtLength(HelixGeometry const& g, double length, double& t);
// The angle of p when p lies on the helix (point tolerance): the turn is taken from the
// height along the axis, else from the radius, else the first turn. Within the point
// tolerance of an end of the range [0, T] the end's own angle is returned.
bool angleOfPoint(HelixGeometry const& g, COrxPoint3d const& p, bool bounded, double& t);

}  // namespace internal
}  // namespace ORX

#endif  // ORX_PROFILES_INTERNAL_HELIX_GEOMETRY_H
