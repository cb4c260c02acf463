// COrxVertex: one segment of a polyline, straight or a circular arc in the XY plane.
//
// A segment is its start point, its end point and its bulge, tan(theta / 4) of the signed
// included angle theta: positive runs counter-clockwise seen from +Z, |bulge| = 1 is a half
// circle, and exactly 0.0 is a straight segment (never tested with a tolerance). Centre,
// radius, angles, length and midpoint are derived on demand; nothing derived is stored.
// Z is carried along; the arc construction is planar. Every arc quantity is computed from the
// chord and the bulge relative to the chord (see orx/plane_geometry/bulge_segment.h), so that
// a segment far from the origin behaves as it does near it and a tiny bulge gives its arc
// to the digits of the chord; a bulge so small that the centre overflows (below about
// 1e-308) makes the segment behave as its straight chord everywhere.
//
//     COrxVertex quarter(COrxPoint3d(1, 0, 0), COrxPoint3d(0, 1, 0), std::tan(ORX::kPi / 8));
//     COrxPoint3d c = quarter.center();           // (0, 0, 0)
//     double length = quarter.bulgLen();          // pi / 2
//     COrxPoint3d half = quarter.mid();           // on the arc, at 45 degrees
#ifndef ORX_POLYLINE_VERTEX_H
#define ORX_POLYLINE_VERTEX_H

#include "orx/foundation/obj.h"
#include "orx/geom/point.h"
#include "orx/geom/point_array.h"
#include "orx/geom/vector.h"

namespace ORX {
// Bulges closer than this compare equal in COrxVertex::operator==.
constexpr double kBulgeEqualTol = 1e-5;
// Angular tolerance (radians) of the tangency and side tests on segments.
constexpr double kTangentAngleTol = 1e-5;
}  // namespace ORX

class ORX_API COrxVertex : public COrxObj {
public:
    // Filter flags of intersectWith, tested in this order; a point is dropped on the first hit.
    enum IntersectFlags : unsigned int {
        kSkipTangent = 0x1,    // the two segments touch tangentially at the point
        kSkipOwnEnds = 0x2,    // the point is this segment's start or end point
        kSkipOtherEnds = 0x4,  // the point is the other segment's start or end point
        kExtended = 0x100,     // infinite lines and full circles instead of the segments
    };

    // Both points at the origin, bulge 0, tag 0.
    COrxVertex();
    COrxVertex(COrxVertex const& other);
    COrxVertex& operator=(COrxVertex const& other);
    COrxVertex(COrxPoint3d const& start, COrxPoint3d const& end, double bulge);
    // The arc from start through `through` to end (straight when the three are collinear).
    COrxVertex(COrxPoint3d const& start, COrxPoint3d const& through, COrxPoint3d const& end);
    // The counter-clockwise arc about centre from startAngle to endAngle (radians).
    COrxVertex(COrxPoint3d const& centre, double radius, double startAngle, double endAngle);
    ~COrxVertex() override;

    // Overwrites the geometry; the tag is kept.
    COrxVertex& set(COrxPoint3d const& start, COrxPoint3d const& end, double bulge);

    COrxPoint3d const& startPoint() const { return m_start; }
    COrxPoint3d const& endPoint() const { return m_end; }
    double bulge() const { return m_bulge; }
    // The caller's tag: 0 from every constructor but the copy; ignored by equality and left
    // alone by the geometric operations.
    int tag() const { return m_tag; }
    COrxVertex& setTag(int tag);
    bool isStraight() const { return m_bulge == 0.0; }

    // Same end points (point tolerance) and bulges closer than ORX::kBulgeEqualTol. A segment
    // and its reverse are different.
    bool operator==(COrxVertex const& other) const;
    bool operator!=(COrxVertex const& other) const { return !(*this == other); }

    // --- Arc quantities (false / NaN for a straight segment, and for an arc whose centre
    // overflows) ---
    // r = chord / 4 * |1/b + b|.
    bool radius(double& r) const;
    double radius() const;
    // The centre; for an arc whose ends coincide, the midpoint of the two ends.
    bool center(COrxPoint3d& c) const;
    COrxPoint3d center() const;
    // Centre, radius and the two angles of the arc as a counter-clockwise arc: for a negative
    // bulge the angles are taken from the end point and the start point, swapped.
    bool toArc(COrxPoint3d& centre, double& radius, double& startAngle, double& endAngle) const;
    // Length along the segment: the chord when straight, r * theta for an arc.
    double bulgLen() const;
    // The point halfway along the segment.
    COrxPoint3d mid() const;

    // --- Editing ---
    // Swaps the ends and negates the bulge (a zero bulge stays exactly 0).
    COrxVertex& revert();
    // A reverted copy, with tag 0.
    COrxVertex reverse() const;
    // Reverts, then takes the rest of the circle: from the old end back to the old start,
    // turning the same way as the arc did.
    COrxVertex& complement();
    // A copy whose end point is moved to other's end point with setEndPoint, so an arc keeps
    // its circle: merges two consecutive pieces of one line or circle.
    COrxVertex unite(COrxVertex const& other) const;
    COrxVertex& move(COrxVector3d const& v);
    // Rotation about the Z axis through centre.
    COrxVertex& rotate(double angle, COrxPoint3d const& centre);
    // Transforms both points; an arc's bulge changes sign when the matrix mirrors.
    COrxVertex& transformBy(double const (*m)[4]);
    COrxVertex getTransformedCopy(double const (*m)[4]) const;
    // Mirrors at the line through p with direction angle, negating the bulge.
    COrxVertex& mirror(double angle, COrxPoint3d const& p);
    // Straight: the end becomes q. Arc: centre and radius stay, q is projected radially onto
    // the circle, and the bulge is recomputed with the same sense of rotation.
    COrxVertex& setEndPoint(COrxPoint3d const& q);
    COrxVertex& setStartPoint(COrxPoint3d const& q);
    // Parallel offset, positive to the right of the direction of travel. An arc whose radius
    // would turn negative collapses: both ends move to the centre (deliberately no error).
    // Nothing happens for d = 0 or a non-finite d.
    COrxVertex& offset(double d);
    // Offset so that the segment (its line or circle) passes through p.
    COrxVertex& offset(COrxPoint3d p);

    // --- Point queries ---
    // p lies on the segment: within COrxPoint3d::tol of an end, of a straight segment
    // (g_line_pt), or of the arc itself (within its sweep the distance to the circle, beyond
    // it the distance to the nearer end, so a point just before an arc's start is not on it).
    bool isPoint(COrxPoint3d const& p) const;
    // Perpendicular foot on the infinite line, or the point of the full circle in the
    // direction of p; the start point for a segment whose ends coincide.
    COrxPoint3d lotp(COrxPoint3d const& p) const;
    // Distance along the segment from its start to p; false when p is not on it.
    bool distAtPoint(double& dist, COrxPoint3d const& p) const;
    // The point at dist along the segment. With bounded, false outside [0, bulgLen()];
    // without, the line or circle is extrapolated.
    bool pointAtDist(COrxPoint3d& p, double dist, bool bounded) const;
    // +1 when p lies left of the direction of travel, -1 right, 0 on the line or circle.
    int orientp(COrxPoint3d const& p) const;
    // Direction angle of the tangent at p in the direction of travel, in [0, 2pi).
    double wTan(COrxPoint3d const& p) const;
    // Both straight on one line, or both arcs turning the same way with each one's ends and
    // midpoint within COrxPoint3d::tol of the other's circle (compared on the circles, since
    // a nearly straight arc's centre is too far away to compare within the tolerance).
    bool coLinear(COrxVertex const& other) const;

    // --- Intersections ---
    // Replaces pts with the points where the two segments meet (see IntersectFlags), in the
    // order found; true when some point is left. Line-line, line-arc and arc-arc alike are
    // computed from the chords (g_bulg_int) rather than through the centres.
    bool intersectWith(COrxPoint3dArray& pts, COrxVertex const& other, unsigned int flags) const;
    COrxPoint3dArray intersectWith(COrxVertex const& other, unsigned int flags) const;
    // The crossing of the two chords (bulges ignored): zero or one point.
    COrxPoint3dArray intersectWithBulg0(COrxVertex const& other) const;
    // The meeting point of the extended segments (infinite lines, full circles) nearest to
    // `near`; false when they do not meet.
    bool intNear(COrxVertex const& other, COrxPoint3d const& near, COrxPoint3d& result) const;

private:
    // p lies too far from the segment to be on it (a cheap test before the exact one).
    bool farFrom(COrxPoint3d const& p) const;
    // This arc's ends and midpoint lie within the tolerance of the other's circle.
    bool onCircleOf(COrxVertex const& other) const;
    // The ends differ in the plan, so an arc has a chord and a circle.
    bool hasChord() const;
    void findIntersections(COrxPoint3dArray& pts, COrxVertex const& other, bool extended) const;
    void filterIntersections(COrxPoint3dArray& pts, COrxVertex const& other,
                             unsigned int flags) const;

    COrxPoint3d m_start;
    COrxPoint3d m_end;
    double m_bulge;
    int m_tag;
};

#endif  // ORX_POLYLINE_VERTEX_H
