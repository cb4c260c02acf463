// The chord frame of a bulge segment: every arc quantity computed from the chord and the
// bulge, never through the centre.
//
// An arc of bulge b is fixed by its chord: with the origin at the chord midpoint, x along the
// chord (start at x = -1, end at x = +1), y to the chord's left and half the chord as the unit,
// its circle is
//     G(x, y) = b (x^2 + y^2 - 1) + (b^2 - 1) y = 0
// and the arc is the part of it on the side of the sagitta (the arc midpoint is (0, -b)). The
// centre (0, (1 - b^2) / 2b) runs away to infinity as b goes to 0, and a formula that goes
// through it loses the chord's digits in the centre's; in this frame the circle degenerates
// smoothly into the chord line y = 0, so a tiny bulge behaves as its chord. Coordinates are
// taken relative to the chord midpoint, so results do not depend on where the segment lies.
#ifndef ORX_PLANE_GEOMETRY_SHARED_ARC_FRAME_H
#define ORX_PLANE_GEOMETRY_SHARED_ARC_FRAME_H

#include "orx/geom/point.h"
#include "orx/plane_geometry/shared/curve.h"

namespace ORX {
namespace internal {

// Below this |bulge| the arc is its chord wherever a formula would divide by the bulge: the
// sagitta is then less than 1e-200 of the chord, far below the resolution of any coordinate.
constexpr double kFlatBulge = 1e-200;

// The curvature of the arc in half chords, kappa = 2|b| / (1 + b^2), and gamma = (1 - b^2) /
// (1 + b^2), written so that neither a tiny nor a huge bulge overflows.
void curvatureTerms(double bulge, double& kappa, double& gamma);

// A point in the frame, in half chords.
struct FramePoint {
    double x;
    double y;
};

class ArcFrame {
public:
    // The frame of the segment; not valid() when the ends coincide exactly in the plan or a
    // value is not finite.
    ArcFrame(COrxPoint3d const& start, COrxPoint3d const& end, double bulge);

    bool valid() const { return m_valid; }
    double bulge() const { return m_b; }
    // Half the plan chord, the frame's unit length.
    double halfChord() const { return m_h; }
    // The chord and the arc coincide for every formula here.
    bool flat() const;

    FramePoint toFrame(COrxPoint3d const& p) const { return toFrame(p.x, p.y); }
    FramePoint toFrame(double x, double y) const;
    // The world point of a frame point, at the height of the chord midpoint.
    COrxPoint3d toWorld(FramePoint const& q) const;
    // The world vector of a frame vector (plan), in drawing units.
    void toWorldDirection(FramePoint const& v, double& dx, double& dy) const;

    // |theta| = 4 atan|b|, the angle the arc turns through.
    double sweepAngle() const;
    // Radius in half chords, (1 + b^2) / 2|b|; infinite for a flat arc.
    double radius() const;
    // The centre's y in the frame, (1 - b^2) / 2b (its x is 0); infinite for a flat arc.
    double centreY() const;

    // Signed distance from q to the circle, in half chords: positive outside the disc. For a
    // straight or flat segment the distance to the chord line, positive on its right.
    double circleDistance(FramePoint const& q) const;
    // q lies in the arc's sector (seen from the centre), or for a straight segment its foot
    // lies between the ends.
    bool inSweep(FramePoint const& q) const;
    // Distance from q to the segment itself, in half chords: to the circle inside the sweep,
    // else to the nearer end.
    double distanceToSegment(FramePoint const& q) const;
    // The foot of q on the circle (radially) or on the chord line.
    FramePoint foot(FramePoint const& q) const;
    // Where the foot of q lies along the segment as a share of its length: 0 at the start, 1
    // at the end, outside [0, 1] beyond them (on the side of the nearer end).
    double fraction(FramePoint const& q) const;
    // The point at the share t of the length (extrapolated along the circle or line outside
    // [0, 1]).
    FramePoint pointAt(double t) const;
    // The angle the arc turns through from its start to the foot of q in its own sense, in
    // [0, 2pi): the sweep of the arc that setEndPoint(q) makes.
    double sweepTo(FramePoint const& q) const;

    // h |circleDistance(q)| <= tol and h distanceToSegment(q) <= tol, with h the half chord:
    // the same answers, but a point well inside the band is told without a square root.
    bool nearCircle(FramePoint const& q, double tol) const;
    bool nearSegment(FramePoint const& q, double tol) const;

    // The segment start-end-bulge lies within the point tolerance of this circle (or line)
    // at its ends and at its middle.
    bool holdsArc(COrxPoint3d const& start, COrxPoint3d const& end, double bulge) const;

    // The segment's circle (or line) in drawing units relative to the world point (ox, oy).
    Curve curveAbout(double ox, double oy) const;
    // The chord midpoint.
    COrxPoint3d middle() const;

private:
    double sigmaStart(FramePoint const& q) const;
    double sigmaEnd(FramePoint const& q) const;
    double angleFromStart(FramePoint const& q) const;
    double nearerEndDistance(FramePoint const& q) const;

    double m_mx, m_my, m_mz;  // chord midpoint
    double m_ux, m_uy;        // unit chord direction
    double m_h;
    double m_b;
    double m_sign;   // of the bulge, +1 for 0
    double m_kappa;  // curvature in half chords, 2|b| / (1 + b^2)
    double m_gamma;  // (1 - b^2) / (1 + b^2)
    bool m_valid;
};

}  // namespace internal
}  // namespace ORX

#endif  // ORX_PLANE_GEOMETRY_SHARED_ARC_FRAME_H
