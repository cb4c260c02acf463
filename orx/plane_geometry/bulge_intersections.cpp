// Where two bulge segments meet, in the frame of their chords.
#include <cmath>

#include <initializer_list>
#include <utility>
#include "orx/geom/shared/finite.h"

#include "orx/plane_geometry/bulge_segment.h"
#include "orx/plane_geometry/bulges.h"
#include "orx/plane_geometry/intersections.h"
#include "orx/plane_geometry/lines.h"
#include "orx/plane_geometry/shared/arc_frame.h"
#include "orx/plane_geometry/shared/curve.h"

namespace ORX {

namespace {

using internal::ArcFrame;
using internal::Curve;
using internal::Meeting;

struct Segment {
    COrxPoint3d start;
    COrxPoint3d end;
    double bulge;
};

// The arc lies within the tolerance of the other's circle at its ends and its middle.
bool onCircleOf(Segment const& s, ArcFrame const& other) {
    auto near = [&other](COrxPoint3d const& p) {
        return std::fabs(other.circleDistance(other.toFrame(p))) * other.halfChord() <=
               COrxPoint3d::tol;
    };
    // The midpoint last: most pairs are told apart by an end.
    return near(s.start) && near(s.end) && near(g_bulg_mid(s.start, s.end, s.bulge));
}

// Two arcs of one circle (or an arc and a straight segment on one line) meet in their common
// end points only: the first's ends that are ends of the second, then the second's ends that
// are ends of the first and not yet listed.
void commonEnds(COrxPoint3dArray& pts, Segment const& a, Segment const& b) {
    for (COrxPoint3d const& e : {a.start, a.end}) {
        if ((e == b.start || e == b.end) && pts.indexOf(e) < 0) {
            pts.append(e);
        }
    }
    for (COrxPoint3d const& e : {b.start, b.end}) {
        if ((e == a.start || e == a.end) && pts.indexOf(e) < 0) {
            pts.append(e);
        }
    }
}

// The unit direction of the straight segment, turned so that the parameter g_cli0 uses (x,
// or y for a steep line) grows along it.
void lineDirection(Segment const& line, double& wx, double& wy) {
    double const dx = line.end.x - line.start.x, dy = line.end.y - line.start.y;
    double const length = internal::planLength(dx, dy);
    wx = dx / length;
    wy = dy / length;
    if (std::fabs(dy) <= std::fabs(dx) ? wx < 0.0 : wy < 0.0) {
        wx = -wx;
        wy = -wy;
    }
}

// Near a tangency the two meeting points of a line and a circle, or of two circles, move by
// sqrt(2 R d) when the curves move by d: the rounding of coordinates of size X (a few units in
// the last place, d = kRoundingShare X) then splits one touching point into two points apart
// by far more than the tolerance, and cutting at both leaves slivers that rounding splits
// again. Points closer than that spread are one touching point, as points closer than the
// tolerance are; at coordinates near the origin the spread is below the tolerance.
constexpr double kRoundingShare = 8.0 * 2.220446049250313e-16;

// Segments whose boxes are farther apart than this many point tolerances, and this share of
// their coordinates' size for rounding, cannot meet.
constexpr double kApartTolerances = 4.0;
constexpr double kApartRelative = 1e-9;

double tangencySpread(double radius, double size) {
    double const spread = std::sqrt(2 * radius * kRoundingShare * size);
    return std::isfinite(spread) ? spread : 0.0;
}

double worldRadius(ArcFrame const& frame) {
    return frame.radius() * frame.halfChord();
}

// The arc (first) against the straight segment or the other arc, in offsets from the arc's
// chord midpoint.
Meeting meet(ArcFrame const& arc, Segment const& other, ArcFrame const& otherFrame,
             COrxPoint3d const& origin, double size) {
    double const t = COrxPoint3d::tol;
    Curve const circle = arc.curveAbout(origin.x, origin.y);
    if (other.bulge == 0.0) {
        double wx = 0.0, wy = 0.0;
        lineDirection(other, wx, wy);
        double const merge = std::fmax(t / 2, tangencySpread(worldRadius(arc), size));
        return internal::lineMeetsCurve(other.start.x - origin.x, other.start.y - origin.y, wx, wy,
                                        circle, {merge, t});
    }
    Curve const second = otherFrame.curveAbout(origin.x, origin.y);
    double const radius = std::fmax(worldRadius(arc), worldRadius(otherFrame));
    internal::MeetingTolerance const tol{std::fmax(kTouchArcLength, tangencySpread(radius, size)),
                                         t};
    // The more curved circle first, as g_aai was given it.
    bool const arcFirst = std::fabs(circle.a) * internal::curveScale(second) >=
                          std::fabs(second.a) * internal::curveScale(circle);
    return arcFirst ? internal::circleMeetsCircle(circle, second, tol)
                    : internal::circleMeetsCircle(second, circle, tol);
}

// The largest plan coordinate of the two segments.
double sizeOf(Segment const& a, Segment const& b) {
    double size = 0.0;
    for (COrxPoint3d const& p : {a.start, a.end, b.start, b.end}) {
        size = std::fmax(size, std::fmax(std::fabs(p.x), std::fabs(p.y)));
    }
    return size;
}

// The loose plan box of a segment: the chord's box widened by a bound of the sagitta for an
// arc up to a half circle; false for a longer arc (no cheap box).
bool looseBox(COrxPoint3d const& s, COrxPoint3d const& e, double bulge, double box[4]) {
    double const b = std::fabs(bulge);
    if (!(b <= 1.0)) {
        return false;
    }
    double const bow = b * (std::fabs(e.x - s.x) + std::fabs(e.y - s.y)) / 2;
    box[0] = (s.x < e.x ? s.x : e.x) - bow;
    box[1] = (s.y < e.y ? s.y : e.y) - bow;
    box[2] = (s.x < e.x ? e.x : s.x) + bow;
    box[3] = (s.y < e.y ? e.y : s.y) + bow;
    return true;
}

// The two segments lie too far apart to meet within the tolerance: every point reported lies
// within a few tolerances of both. Comparisons are written so that NaN never says "apart".
bool farApart(COrxPoint3d const& s1, COrxPoint3d const& e1, double b1, COrxPoint3d const& s2,
              COrxPoint3d const& e2, double b2) {
    double p[4], q[4];
    if (!looseBox(s1, e1, b1, p) || !looseBox(s2, e2, b2, q)) {
        return false;
    }
    double size = 0.0;
    for (int k = 0; k < 4; ++k) {
        size = std::max(size, std::max(std::fabs(p[k]), std::fabs(q[k])));
    }
    double const margin = kApartTolerances * COrxPoint3d::tol + kApartRelative * size;
    return p[2] + margin < q[0] || q[2] + margin < p[0] || p[3] + margin < q[1] ||
           q[3] + margin < p[1];
}

bool segmentInters(COrxPoint3dArray& pts, Segment const& a, Segment const& b, bool extended) {
    COrxPoint3d crossing;
    if (inters(a.start, a.end, b.start, b.end, !extended, crossing)) {
        pts.append(crossing);
    }
    return !pts.isEmpty();
}

}  // namespace

bool g_bulg_int(COrxPoint3dArray& pts, COrxPoint3d const& s1, COrxPoint3d const& e1, double b1,
                COrxPoint3d const& s2, COrxPoint3d const& e2, double b2, bool extended) {
    pts.setLogicalLength(0);
    if (!extended && farApart(s1, e1, b1, s2, e2, b2)) {
        return false;
    }
    Segment a{s1, e1, b1}, b{s2, e2, b2};
    if (b1 == 0.0 && b2 == 0.0) {
        return segmentInters(pts, a, b, extended);
    }
    if (b1 == 0.0) {
        std::swap(a, b);  // the arc first
    }
    ArcFrame const arc(a.start, a.end, a.bulge), other(b.start, b.end, b.bulge);
    if (!arc.valid() || !other.valid()) {
        return false;
    }
    // Two arcs of one circle, or an arc within the tolerance of a straight segment's line
    // whose ends lie on its circle (an arc so flat that the two run together): they meet
    // along the whole overlap, and only its ends are points. A touching point in between,
    // which the near-tangency rule below would make of them, cuts an overlap where nothing
    // crosses, and the halves overlap again.
    if (onCircleOf(b, arc) && onCircleOf(a, other)) {
        commonEnds(pts, Segment{s1, e1, b1}, Segment{s2, e2, b2});
        return !pts.isEmpty();
    }
    COrxPoint3d const origin = arc.middle();
    Meeting const m = meet(arc, b, other, origin, sizeOf(a, b));
    double const t = COrxPoint3d::tol;
    for (int k = 0; k < m.count; ++k) {
        COrxPoint3d const p(origin.x + m.x[k], origin.y + m.y[k], origin.z);
        if (!p.isValid()) {
            continue;
        }
        if (extended || (arc.halfChord() * arc.distanceToSegment(arc.toFrame(p)) <= t &&
                         other.halfChord() * other.distanceToSegment(other.toFrame(p)) <= t)) {
            pts.append(p);
        }
    }
    return !pts.isEmpty();
}

}  // namespace ORX
