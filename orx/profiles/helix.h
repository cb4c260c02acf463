// COrxHelix: a helix about an axis line, cylindrical or conical, with a whole or fractional
// number of turns: the pure geometry a helical bar (COrxBarAxis) converts to for its points,
// tangents and lengths.
//
// The helix starts at the start point; its base radius is the start point's distance from
// the axis line. Angles t are measured from the start point about the axis vector, growing
// in the winding sense (counter-clockwise about the axis vector when orientation() is true).
// With O the start point's foot on the axis, X the unit vector from O to the start point,
// Z the unit axis vector, Y = Z x X and s = +1 (counter-clockwise) or -1 (clockwise):
//     P(t) = O + r(t) (cos t X + s sin t Y) + h t / (2 pi) Z,
//     r(t) = r0 + (r1 - r0) t / T,   T = 2 pi turns,
// r0 the base radius, r1 the top radius and h the turn height. So the radius changes
// linearly with the angle from base to top (a conical helix; r0 = r1 is a cylinder), and
// the end point is P(T). With k = (r1 - r0) / T and c = h / (2 pi) the length from t0 to
// t1 is the integral of |P'(t)| = sqrt(k^2 + c^2 + r(t)^2), taken in closed form
// (u sqrt(A + u^2) + A asinh(u / sqrt(A))) / (2k) between the two radii, A = k^2 + c^2, and
// written so that it stays exact as k goes to 0, where it becomes
// |t1 - t0| sqrt(r^2 + c^2): one turn of a cylinder is sqrt((2 pi r)^2 + h^2).
//
// A helix of no turns is its start point: length 0, and its turn height is not read.
//
// The bool `bounded` of the queries limits them to the helix between start (t = 0) and end
// (t = T); without it the same formula is followed beyond both ends. Queries on a helix
// without an axis direction, or with numbers that are not finite, fail: false, NaN lengths,
// NaN points, null vectors.
//
//     COrxHelix coil(0.5, 3.0, 0.2, COrxPoint3d(0, 0, 0), COrxPoint3d(0.5, 0, 0),
//                    COrxVector3d::kZAxis, true);      // 3 turns, 0.6 high
//     double length = coil.len();                     // 3 sqrt((pi)^2 + 0.04)
//     COrxPoint3d p;
//     coil.pointAtAng(ORX::kHalfPi, p, true);         // (0, 0.5, 0.05)
#ifndef ORX_PROFILES_HELIX_H
#define ORX_PROFILES_HELIX_H

#include "orx/foundation/obj.h"
#include "orx/foundation/string.h"
#include "orx/geom/matrix.h"
#include "orx/geom/point.h"
#include "orx/geom/vector.h"

namespace ORX {
// Turns of two helices closer than this compare equal.
constexpr double kHelixTurnsEqualTol = 1e-9;
}  // namespace ORX

class ORX_API COrxHelix : public COrxObj {
public:
    // Top radius 0, 0 turns, turn height 0, axis point at the origin, start point (1, 0, 0),
    // axis (0, 0, 1), counter-clockwise.
    COrxHelix();
    // As set().
    COrxHelix(double topRadius, double turns, double turnHeight, COrxPoint3d const& axisPoint,
              COrxPoint3d const& startPoint, COrxVector3d const& axisVector, bool orientation);
    COrxHelix(COrxHelix const& other);
    COrxHelix& operator=(COrxHelix const& other);
    ~COrxHelix() override;

    // Stores the fields, then validate().
    COrxHelix& set(double topRadius, double turns, double turnHeight, COrxPoint3d const& axisPoint,
                   COrxPoint3d const& startPoint, COrxVector3d const& axisVector, bool orientation);
    // Normalises the axis vector; when the end point's foot on the axis lies before the start
    // point's foot (the axis points from end to start), reverses the axis vector and negates
    // the turn height. The winding sense is then read about the reversed axis.
    COrxHelix& validate();

    double topRadius() const { return m_topRadius; }
    double turns() const { return m_turns; }
    double turnHeight() const { return m_turnHeight; }
    // turns * turn height.
    double height() const;
    // True: counter-clockwise about the axis vector.
    bool orientation() const { return m_orientation; }
    COrxPoint3d startPoint() const { return m_startPoint; }
    COrxPoint3d axisPoint() const { return m_axisPoint; }
    COrxVector3d axisVector() const { return m_axisVector; }

    // Sets the top radius and validates again. The other setters store their value only.
    COrxHelix& setTopRadius(double r);
    COrxHelix& setTurns(double turns);
    COrxHelix& setTurnHeight(double h);
    COrxHelix& setOrientation(bool counterClockwise);
    COrxHelix& setStartPoint(COrxPoint3d const& p);
    COrxHelix& setAxisPoint(COrxPoint3d const& p);
    COrxHelix& setAxisVector(COrxVector3d const& v);

    // Distance of the start point from the axis line.
    double baseRadius() const;
    // Length from start to end.
    double len() const;
    // Length along the helix between the angles a0 and a1 (either order), >= 0.
    double len(double a0, double a1) const;
    // P(ang); false (p untouched) outside [0, T] when bounded.
    bool pointAtAng(double ang, COrxPoint3d& p, bool bounded) const;
    // The point at the distance d along the helix from the start towards the end (negative d
    // before the start); NaN point outside [0, len()] when bounded.
    COrxPoint3d pointAtLen(double d, bool bounded) const;
    // The angle of a point on the helix (point tolerance); false (ang untouched) when p is
    // not on it, or lies beyond start or end when bounded. Where the turns overlap (no rise
    // and no change of radius), the first turn's angle.
    bool angAtPoint(COrxPoint3d const& p, double& ang, bool bounded) const;
    // Unit tangent at the angle, pointing from start to end; the null vector outside [0, T]
    // when bounded.
    COrxVector3d vectorAtAng(double ang, bool bounded) const;
    // Unit tangent at a point of the helix between start and end; the null vector elsewhere.
    COrxVector3d vectorAtPoint(COrxPoint3d const& p) const;
    COrxVector3d startVector() const;
    COrxVector3d endVector() const;
    // P(T).
    COrxPoint3d endPoint() const;
    // p lies on the helix between start and end (point tolerance).
    bool isPoint(COrxPoint3d const& p) const;
    // The helix's frame: origin O, axes X, Y, Z as above (X by the plane rule of
    // COrxMatrix3d::setToPlaneToWorld when the start point lies on the axis).
    COrxMatrix3d mtx() const;

    // Transforms start point, axis point and axis vector; radius and turn height scale with
    // the matrix's scale (cube root of its determinant), and a mirroring matrix reverses the
    // winding. Meant for rigid motions, mirroring and uniform scaling.
    COrxHelix& transformBy(double const (*m)[4]);
    COrxHelix getTransformedCopy(double const (*m)[4]) const;

    // Points and axis under their tolerances, radius and turn height within the point
    // tolerance, turns within ORX::kHelixTurnsEqualTol, the same winding.
    bool operator==(COrxHelix const& other) const;
    bool operator!=(COrxHelix const& other) const;

    // One line describing the helix, for logs and test failures.
    COrxString dump() const;

private:
    double m_topRadius;
    double m_turns;
    double m_turnHeight;
    COrxPoint3d m_startPoint;
    COrxPoint3d m_axisPoint;
    COrxVector3d m_axisVector;
    bool m_orientation;
};

#endif  // ORX_PROFILES_HELIX_H
