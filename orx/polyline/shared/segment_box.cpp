#include "orx/polyline/shared/segment_box.h"

#include <algorithm>
#include <cmath>

#include "orx/geom/functions.h"
#include "orx/plane_geometry/plane_geometry.h"

namespace ORX {
namespace internal {

namespace {

// Reported points lie within about two point tolerances of a segment; twice that again.
constexpr double kMarginTolerances = 4.0;
// Relative rounding allowance for large coordinates.
constexpr double kMarginRelative = 1e-9;

void include(SegmentBox& box, COrxPoint3d const& p) {
    box.xmin = std::min(box.xmin, p.x);
    box.ymin = std::min(box.ymin, p.y);
    box.xmax = std::max(box.xmax, p.x);
    box.ymax = std::max(box.ymax, p.y);
}

SegmentBox nanBox() {
    return SegmentBox{nan(), nan(), nan(), nan()};
}

// The end points' box, NaN when one is not finite.
SegmentBox chordBox(COrxVertex const& v) {
    COrxPoint3d const& s = v.startPoint();
    COrxPoint3d const& e = v.endPoint();
    SegmentBox box{s.x, s.y, s.x, s.y};
    include(box, e);
    return finiteBox(box) ? box : nanBox();
}

// How far the arc reaches beyond its chord midpoint in the direction (dx, dy) (a unit axis),
// when that direction is one of its radial directions: (h / kappa) (1 - gamma cos delta),
// delta the angle between it and the sagitta's direction, written as 2 sin^2(theta/4) + gamma
// 2 sin^2(delta/2) so that a nearly straight arc does not cancel; false when the direction
// lies outside the sweep. kappa = sin(theta/2), gamma = cos(theta/2) and sin^2(theta/4) come
// from the bulge itself, not from its angle: for an arc a hair's breadth short of the full
// circle the angle rounds to pi and its sine would be off by orders of magnitude. A reach
// beyond the largest double is infinite, so the box still holds the arc.
bool arcReach(COrxVertex const& v, double dx, double dy, double& reach) {
    double const b = std::fabs(v.bulge());
    double const cx = v.endPoint().x - v.startPoint().x, cy = v.endPoint().y - v.startPoint().y;
    double const chord = std::hypot(cx, cy);
    if (!(chord > 0.0)) {
        return false;
    }
    double const sign = v.bulge() < 0.0 ? -1.0 : 1.0;
    // The sagitta points right of the chord for a positive bulge.
    double const sx = sign * cy / chord, sy = -sign * cx / chord;
    double const delta = std::atan2(sx * dy - sy * dx, sx * dx + sy * dy);
    if (std::fabs(delta) > 2 * std::atan(b)) {
        return false;
    }
    // With u = min(b, 1/b) every quotient below stays within range for any finite bulge.
    double const u = b <= 1.0 ? b : 1.0 / b;
    double const kappa = 2 * u / (1 + u * u);  // 2b / (1 + b^2)
    double const gamma =
        (b <= 1.0 ? 1.0 : -1.0) * (1 - u * u) / (1 + u * u);  // (1 - b^2) / (1 + b^2)
    double const sinQuarterSquared = b <= 1.0 ? b * b / (1 + b * b) : 1 / (1 + u * u);
    double const sinHalf = std::sin(delta / 2);
    reach = chord / 2 / kappa * (2 * sinQuarterSquared + gamma * 2 * sinHalf * sinHalf);
    return !std::isnan(reach);
}

}  // namespace

SegmentBox tightBox(COrxVertex const& v) {
    SegmentBox box = chordBox(v);
    if (v.isStraight() || std::isnan(box.xmin) || !std::isfinite(v.bulge())) {
        return std::isfinite(v.bulge()) ? box : nanBox();
    }
    double const mx = (v.startPoint().x + v.endPoint().x) / 2;
    double const my = (v.startPoint().y + v.endPoint().y) / 2;
    double reach = 0.0;
    if (arcReach(v, 1, 0, reach)) {
        box.xmax = std::max(box.xmax, mx + reach);
    }
    if (arcReach(v, -1, 0, reach)) {
        box.xmin = std::min(box.xmin, mx - reach);
    }
    if (arcReach(v, 0, 1, reach)) {
        box.ymax = std::max(box.ymax, my + reach);
    }
    if (arcReach(v, 0, -1, reach)) {
        box.ymin = std::min(box.ymin, my - reach);
    }
    return box;
}

SegmentBox segmentBox(COrxVertex const& v) {
    double const b = v.bulge();
    if (b == 0.0) {
        return chordBox(v);
    }
    if (!(std::fabs(b) <= 1.0)) {
        return tightBox(v);
    }
    // The sagitta |b| chord / 2, bounded without a square root by |dx| + |dy| >= chord.
    SegmentBox const box = chordBox(v);
    double const dx = v.endPoint().x - v.startPoint().x, dy = v.endPoint().y - v.startPoint().y;
    return widened(box, std::fabs(b) * (std::fabs(dx) + std::fabs(dy)) / 2);
}

double pruneMargin(SegmentBox const& box) {
    // The largest magnitude of the coordinates: max(-min, max) on each axis. An inverted box
    // (of nothing) gets a negative margin and so stays apart from everything.
    double const size = std::max(std::max(-box.xmin, box.xmax), std::max(-box.ymin, box.ymax));
    return kMarginTolerances * COrxPoint3d::tol + kMarginRelative * size;
}

SegmentBox widened(SegmentBox box, double margin) {
    box.xmin -= margin;
    box.ymin -= margin;
    box.xmax += margin;
    box.ymax += margin;
    return box;
}

SegmentBox prunedBox(SegmentBox const& box) {
    return widened(box, pruneMargin(box));
}

bool finiteBox(SegmentBox const& box) {
    return std::isfinite(box.xmin) && std::isfinite(box.ymin) && std::isfinite(box.xmax) &&
           std::isfinite(box.ymax);
}

bool mayOverlap(SegmentBox const& a, SegmentBox const& b) {
    double const margin = pruneMargin(a) + pruneMargin(b);
    return !(a.xmax + margin < b.xmin || b.xmax + margin < a.xmin || a.ymax + margin < b.ymin ||
             b.ymax + margin < a.ymin);
}

bool mayContain(SegmentBox const& box, COrxPoint3d const& p) {
    SegmentBox const wide = prunedBox(box);
    return !(p.x < wide.xmin || p.x > wide.xmax || p.y < wide.ymin || p.y > wide.ymax);
}

bool mayCross(SegmentBox const& tight, COrxPoint3d const& p, COrxPoint3d const& q) {
    SegmentBox const box = prunedBox(tight);
    // Slab test of the segment p + t (q - p), t in [0, 1], against the box.
    double t0 = 0.0, t1 = 1.0;
    double const start[2] = {p.x, p.y};
    double const delta[2] = {q.x - p.x, q.y - p.y};
    double const lo[2] = {box.xmin, box.ymin};
    double const hi[2] = {box.xmax, box.ymax};
    for (int axis = 0; axis < 2; ++axis) {
        if (delta[axis] == 0.0) {
            if (start[axis] < lo[axis] || start[axis] > hi[axis]) {
                return false;
            }
            continue;
        }
        double const ta = (lo[axis] - start[axis]) / delta[axis];
        double const tb = (hi[axis] - start[axis]) / delta[axis];
        double const enter = std::min(ta, tb), leave = std::max(ta, tb);
        if (enter > t0) {
            t0 = enter;
        }
        if (leave < t1) {
            t1 = leave;
        }
        if (t0 > t1) {
            return false;
        }
    }
    return true;  // also when some value was NaN: every comparison above was false
}

SegmentBox polylineBox(COrxVertexArray const& vl) {
    SegmentBox box{HUGE_VAL, HUGE_VAL, -HUGE_VAL, -HUGE_VAL};
    for (int k = 0; k < vl.len(); ++k) {
        SegmentBox const s = segmentBox(vl[k]);
        if (std::isnan(s.xmin) || std::isnan(s.ymin) || std::isnan(s.xmax) || std::isnan(s.ymax)) {
            return s;
        }
        box = {std::min(box.xmin, s.xmin), std::min(box.ymin, s.ymin), std::max(box.xmax, s.xmax),
               std::max(box.ymax, s.ymax)};
    }
    return box;
}

SegmentBoxes segmentBoxes(COrxVertexArray const& vl) {
    SegmentBoxes boxes;
    boxes.reserve(static_cast<std::size_t>(vl.len()));
    for (int k = 0; k < vl.len(); ++k) {
        boxes.push_back(segmentBox(vl[k]));
    }
    return boxes;
}

}  // namespace internal
}  // namespace ORX
