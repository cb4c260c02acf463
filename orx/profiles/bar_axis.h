// COrxBarAxis: the axis a bar (member) runs along: straight from its start point to its end
// point, or wound as a helix about an axis line (spiral stringers, handrails, coiled bars),
// possibly conical (another radius at the end than at the start).
//
// Orientation 0 is the straight bar; a positive orientation winds counter-clockwise about
// the axis vector, a negative one clockwise. A helical bar makes `turns` whole turns plus
// the part of a turn from the start point's direction to the end point's (turnsExact), and
// converts to a COrxHelix (toHelix) for its points, tangents and lengths: the angle queries
// measure from the start point about the axis vector as COrxHelix does. A straight bar has
// no angles: its angle queries fail (false, NaN, null vector) while the length and point
// queries run along the segment.
//
//     COrxBarAxis rail(COrxPoint3d(1, 0, 0), COrxPoint3d(0, 1, 3), COrxPoint3d(0, 0, 0),
//                      COrxVector3d::kZAxis, 2, 1, 0.0);   // 2.25 turns up to z = 3
//     double turns = rail.turnsExact();                    // 2.25
//     COrxHelix h;
//     rail.toHelix(h);                                     // the same curve as a helix
#ifndef ORX_PROFILES_BAR_AXIS_H
#define ORX_PROFILES_BAR_AXIS_H

#include "orx/foundation/obj.h"
#include "orx/geom/matrix.h"
#include "orx/geom/point.h"
#include "orx/geom/vector.h"
#include "orx/profiles/helix.h"

class ORX_API COrxBarAxis : public COrxObj {
public:
    // All three points at the origin, axis (0, 0, 1), 0 turns, orientation 1, twist 0.
    COrxBarAxis();
    COrxBarAxis(COrxBarAxis const& other);
    // As set().
    COrxBarAxis(COrxPoint3d const& start, COrxPoint3d const& end, COrxPoint3d const& axisPoint,
                COrxVector3d const& axisVector, int turns, int orientation, double twist);
    COrxBarAxis& operator=(COrxBarAxis const& other);
    ~COrxBarAxis() override;

    // Stores the fields, then validate().
    COrxBarAxis& set(COrxPoint3d const& start, COrxPoint3d const& end, COrxPoint3d const& axisPoint,
                     COrxVector3d const& axisVector, int turns, int orientation, double twist);
    // Nothing for a straight bar. Otherwise normalises the axis vector and, when the end
    // point's foot on the axis line lies before the start point's (the axis points from end
    // to start), reverses it, so that the axis always points from start to end.
    COrxBarAxis& validate();

    COrxPoint3d startPoint() const { return m_start; }
    COrxPoint3d endPoint() const { return m_end; }
    COrxPoint3d axisPoint() const { return m_axisPoint; }
    COrxVector3d axisVector() const { return m_axisVector; }
    int turns() const { return m_turns; }
    int orientation() const { return m_orientation; }
    // Rotation of the section along the bar.
    double Twist() const { return m_twist; }

    // The setters store their value only (no validation).
    COrxBarAxis& setStartPoint(COrxPoint3d const& p);
    COrxBarAxis& setEndPoint(COrxPoint3d const& p);
    COrxBarAxis& setAxisPoint(COrxPoint3d const& p);
    COrxBarAxis& setAxisVector(COrxVector3d const& v);
    COrxBarAxis& setTurns(int turns);
    COrxBarAxis& setOrientation(int orientation);
    COrxBarAxis& setTwist(double twist);

    // Distance of the start / end point from the axis line, distance between their feet on
    // it; -1.0 for a straight bar.
    double baseRadius() const;
    double topRadius() const;
    double height() const;
    // Whole turns plus the angle from the start point's radial direction (the x axis of
    // mtx()) to the end point's, as a part of a turn; -1.0 for a straight bar. The angle is
    // arccos of the two radial directions, replaced by 2 pi minus itself when the sum of the
    // three components of (end radial x start radial) is positive, and again for a
    // clockwise bar. The test on the component sum rather than along the axis is deliberate
    // and kept: callers rely on these values. (For an axis whose components sum to a
    // negative number the part of a turn comes out as its complement.)
    double turnsExact() const;
    // height() / turnsExact(); -1.0 for a straight bar.
    double turnHeight() const;

    // The straight distance start-end for a straight bar, else the helix's length.
    double len() const;
    // Helix length between two angles; NaN for a straight bar.
    double len(double a0, double a1) const;
    // The helix queries of COrxHelix on toHelix's helix; a straight bar has no angles.
    bool pointAtAng(double ang, COrxPoint3d& p, bool bounded) const;
    // For a straight bar the point at distance d from the start towards the end.
    COrxPoint3d pointAtLen(double d, bool bounded) const;
    bool angAtPoint(COrxPoint3d const& p, double& ang, bool bounded) const;
    COrxVector3d vectorAtAng(double ang, bool bounded) const;
    // For a straight bar its direction at any point of the segment.
    COrxVector3d vectorAtPoint(COrxPoint3d const& p) const;
    COrxVector3d startVector() const;
    COrxVector3d endVector() const;
    bool isPoint(COrxPoint3d const& p) const;
    // The bar's local system. Helical: origin at the start point's foot on the axis, x
    // radial towards the start point, z along the axis vector, y = z x x. Straight: origin
    // at the start point, z towards the end point, x and y by the plane rule of
    // COrxMatrix3d::setToPlaneToWorld.
    COrxMatrix3d mtx() const;

    // False for a straight bar (h untouched). Otherwise h.set(topRadius(), turnsExact(),
    // height() / turnsExact(), axis point, start point, axis vector, orientation > 0), and
    // true only when the twist is 0.0: a twisted bar fills h but reports false, since a
    // helix cannot carry the twist.
    bool toHelix(COrxHelix& h) const;
    // Start, end, axis point and axis vector from h, the winding from its orientation, and
    // the whole turns chosen so that turnsExact() comes nearest h's turns; the twist is
    // kept. Then validate().
    COrxBarAxis& fromHelix(COrxHelix const& h);

    // Transforms the points and the axis vector; a mirroring matrix reverses the winding and
    // the twist. Then validate().
    COrxBarAxis& transformBy(double const (*m)[4]);
    COrxBarAxis getTransformedCopy(double const (*m)[4]) const;

    // Points and axis under their tolerances, equal turns and orientation, twists within
    // COrxVector3d::tol.
    bool operator==(COrxBarAxis const& other) const;
    bool operator!=(COrxBarAxis const& other) const;

private:
    bool isStraight() const { return m_orientation == 0; }
    COrxPoint3d footOf(COrxPoint3d const& p) const;
    // The helix of toHelix, whatever the twist.
    COrxHelix helix() const;

    COrxPoint3d m_start;
    COrxPoint3d m_end;
    COrxPoint3d m_axisPoint;
    COrxVector3d m_axisVector;
    int m_turns;
    int m_orientation;
    double m_twist;
};

#endif  // ORX_PROFILES_BAR_AXIS_H
