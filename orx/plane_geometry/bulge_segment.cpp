#include "orx/plane_geometry/bulge_segment.h"

#include <cmath>

#include "orx/geom/functions.h"
#include "orx/geom/shared/finite.h"
#include "orx/plane_geometry/bulges.h"
#include "orx/plane_geometry/internal/exact_sign.h"
#include "orx/plane_geometry/shared/arc_frame.h"
#include "orx/plane_geometry/shared/bulge_sweep.h"

namespace ORX {

namespace {

using internal::ArcFrame;

using internal::FramePoint;

// An arc's points lie at the height of its chord midpoint, so its ends count as reached in
// the plan: with ends at two heights, a 3D comparison would let a cut through beside an end
// and leave a piece of no length in the plan, which cuts again and again.
bool nearInPlan(COrxPoint3d const& p, COrxPoint3d const& q) {
    return std::hypot(p.x - q.x, p.y - q.y) <= COrxPoint3d::tol;
}

// The bulge of an arc that turns through sweep (>= 0) in the sense of `sense`.
double bulgeOfSweep(double sweep, double sense) {
    double const b = std::tan(sweep / 4);
    return sense < 0.0 ? -b : b;
}

// theta - sin(theta), summed from its series below an angle of 1 where the difference
// would cancel (the terms fall by a factor of at least 20 each).
double thetaMinusSine(double theta) {
    if (!(std::fabs(theta) < 1.0)) {
        return theta - std::sin(theta);
    }
    double const square = theta * theta;
    double term = theta * square / 6;
    double sum = 0.0;
    for (int k = 1; k < 12 && term != 0.0; ++k) {
        sum += term;
        term *= -square / ((2 * k + 2) * (2 * k + 3));
    }
    return sum;
}

COrxPoint3d straightPoint(COrxPoint3d const& p1, COrxPoint3d const& p2, double t) {
    return p1 + (p2 - p1) * t;
}

// The side of the chord p1 -> p2 that p lies on (+1 left). A point exactly on the chord's
// line counts as moved by (-e, e^2) for an infinitely small e: a little towards -x, and on a
// level chord a little up. The ray's half-open rule (a point level with an end counts as
// above it) moves points the same way, so every segment sees the same moved point.
int chordSide(COrxPoint3d const& p1, COrxPoint3d const& p2, COrxPoint3d const& p) {
    int const side = internal::orientationSign(p1.x, p1.y, p2.x, p2.y, p.x, p.y);
    if (side != 0) {
        return side;
    }
    double const dy = p2.y - p1.y, dx = p2.x - p1.x;
    return dy != 0.0 ? (dy > 0.0 ? 1 : -1) : (dx > 0.0 ? 1 : -1);
}

// p lies inside the circular segment: on the sagitta's side of the chord (the right for a
// positive bulge) and inside the circle.
bool inCircularSegment(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge,
                       COrxPoint3d const& p) {
    if (std::fabs(bulge) < internal::kFlatBulge) {
        return false;  // the arc is its chord: no area between them
    }
    double const sign = bulge > 0.0 ? 1.0 : -1.0;
    if (sign * chordSide(p1, p2, p) >= 0) {
        return false;
    }
    double kappa = 0.0, gamma = 0.0;
    internal::curvatureTerms(bulge, kappa, gamma);
    return internal::circleSideSign(p1.x, p1.y, p2.x, p2.y, p.x, p.y, kappa, sign * gamma) < 0;
}

}  // namespace

int g_bulg_winding(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge,
                   COrxPoint3d const& p) {
    int winding = 0;
    bool const up = p1.y <= p.y && p.y < p2.y;
    bool const down = p2.y <= p.y && p.y < p1.y;
    if (up || down) {
        int const side = chordSide(p1, p2, p);
        winding += up && side > 0 ? 1 : 0;
        winding -= down && side < 0 ? 1 : 0;
    }
    if (bulge != 0.0 && std::isfinite(bulge) && inCircularSegment(p1, p2, bulge, p)) {
        winding += bulge > 0.0 ? 1 : -1;
    }
    return winding;
}

double g_bulg_area(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge) {
    if (bulge == 0.0) {
        return 0.0;
    }
    // r = chord / (2 sin(theta/2)): r^2 / 2 (theta - sin theta) without forming r.
    double const dx = p2.x - p1.x, dy = p2.y - p1.y;
    double const theta = internal::bulgeSweep(bulge);
    double const half = std::sin(theta / 2);
    double const area = (dx * dx + dy * dy) / (8 * half * half) * thetaMinusSine(theta);
    return std::isfinite(area) ? area : nan();
}

double g_bulg_rad(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge) {
    if (bulge == 0.0) {
        return nan();
    }
    ArcFrame const frame(p1, p2, bulge);
    if (!frame.valid()) {
        // Ends that coincide: a circle of no size, as the formula gives it.
        return std::isfinite(bulge) && p1.isValid() && p2.isValid() ? 0.0 : nan();
    }
    return internal::finiteOrNan(frame.halfChord() * frame.radius());
}

COrxPoint3d g_bulg_pt_at(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge, double dist) {
    double const length = g_bulg_len(p1, p2, bulge);
    if (!std::isfinite(dist) || !std::isfinite(length)) {
        return internal::nanPoint();
    }
    if (length == 0.0) {
        return p1;
    }
    if (bulge == 0.0) {
        return straightPoint(p1, p2, dist / length);
    }
    ArcFrame const frame(p1, p2, bulge);
    return frame.valid() ? frame.toWorld(frame.pointAt(dist / length)) : p1;
}

double g_bulg_dist_at(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge,
                      COrxPoint3d const& p) {
    double const length = g_bulg_len(p1, p2, bulge);
    ArcFrame const frame(p1, p2, bulge);
    if (!frame.valid() || !p.isValid()) {
        return p.isValid() && length == 0.0 ? 0.0 : nan();
    }
    return internal::finiteOrNan(length * frame.fraction(frame.toFrame(p)));
}

double g_bulg_pt_dist(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge,
                      COrxPoint3d const& p) {
    ArcFrame const frame(p1, p2, bulge);
    if (!p.isValid()) {
        return nan();
    }
    if (!frame.valid()) {
        return p1.isValid() ? internal::planLength(p.x - p1.x, p.y - p1.y) : nan();
    }
    FramePoint const q = frame.toFrame(p);
    if (!std::isfinite(q.x) || !std::isfinite(q.y)) {
        // p lies more than the range of doubles away, counted in half chords: next to that
        // distance the segment is a point, and the nearer end is as near as rounding tells.
        return std::fmin(internal::planLength(p.x - p1.x, p.y - p1.y),
                         internal::planLength(p.x - p2.x, p.y - p2.y));
    }
    return frame.halfChord() * frame.distanceToSegment(q);
}

double g_bulg_circ_dist(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge,
                        COrxPoint3d const& p) {
    ArcFrame const frame(p1, p2, bulge);
    if (!frame.valid() || !p.isValid()) {
        return nan();
    }
    return frame.halfChord() * std::fabs(frame.circleDistance(frame.toFrame(p)));
}

COrxPoint3d g_bulg_lotp(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge,
                        COrxPoint3d const& p) {
    ArcFrame const frame(p1, p2, bulge);
    if (!frame.valid()) {
        return p1;
    }
    if (bulge == 0.0) {
        return straightPoint(p1, p2, frame.fraction(frame.toFrame(p)));
    }
    return frame.toWorld(frame.foot(frame.toFrame(p)));
}

bool g_bulg_cut(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge, COrxPoint3d const& p,
                COrxPoint3d& cut, double& bulge1, double& bulge2) {
    ArcFrame const frame(p1, p2, bulge);
    if (!frame.valid() || !p.isValid()) {
        return false;
    }
    double const t = frame.fraction(frame.toFrame(p));
    if (!(t > 0.0 && t < 1.0)) {
        return false;
    }
    COrxPoint3d const at =
        bulge == 0.0 ? straightPoint(p1, p2, t) : frame.toWorld(frame.pointAt(t));
    if (bulge == 0.0 ? (at == p1 || at == p2) : (nearInPlan(at, p1) || nearInPlan(at, p2))) {
        return false;
    }
    // The pieces turn through the shares t and 1 - t of the angle: tan(t atan(b)).
    double const quarter = std::atan(bulge);
    cut = at;
    bulge1 = bulge == 0.0 ? 0.0 : std::tan(t * quarter);
    bulge2 = bulge == 0.0 ? 0.0 : std::tan((1 - t) * quarter);
    return true;
}

double g_bulg_to(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge, COrxPoint3d const& q) {
    ArcFrame const frame(p1, p2, bulge);
    if (bulge == 0.0 || !frame.valid()) {
        return bulge == 0.0 ? 0.0 : nan();
    }
    return bulgeOfSweep(frame.sweepTo(frame.toFrame(q)), bulge);
}

double g_bulg_from(COrxPoint3d const& p1, COrxPoint3d const& p2, double bulge,
                   COrxPoint3d const& q) {
    ArcFrame const frame(p1, p2, bulge);
    if (bulge == 0.0 || !frame.valid()) {
        return bulge == 0.0 ? 0.0 : nan();
    }
    double rest = frame.sweepAngle() - frame.sweepTo(frame.toFrame(q));
    if (rest < 0.0) {
        rest += kTwoPi;
    }
    return bulgeOfSweep(rest, bulge);
}

}  // namespace ORX
