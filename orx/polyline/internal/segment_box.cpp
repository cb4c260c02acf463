#include "orx/polyline/internal/segment_box.h"

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

SegmentBox widened(SegmentBox box, double margin) {
    box.xmin -= margin;
    box.ymin -= margin;
    box.xmax += margin;
    box.ymax += margin;
    return box;
}

bool hasNan(SegmentBox const& b) {
    return std::isnan(b.xmin) || std::isnan(b.ymin) || std::isnan(b.xmax) || std::isnan(b.ymax);
}

}  // namespace

SegmentBox segmentBox(COrxVertex const& v) {
    COrxPoint3d const& s = v.startPoint();
    COrxPoint3d const& e = v.endPoint();
    SegmentBox box{s.x, s.y, s.x, s.y};
    include(box, e);
    if (hasNan(box) || std::isnan(e.x) || std::isnan(e.y)) {
        return SegmentBox{nan(), nan(), nan(), nan()};
    }
    COrxPoint3d c;
    double r = 0.0, a0 = 0.0, a1 = 0.0;
    if (v.toArc(c, r, a0, a1)) {
        double const sweep = g_ang(a1 - a0);
        for (int quarter = 0; quarter < 4; ++quarter) {
            double const direction = quarter * kHalfPi;
            if (g_ang(direction - a0) <= sweep) {
                include(box, polar(c, direction, r));
            }
        }
        if (!std::isfinite(r)) {
            return SegmentBox{nan(), nan(), nan(), nan()};
        }
    }
    return box;
}

double pruneMargin(SegmentBox const& box) {
    double const size = std::max(
        {std::fabs(box.xmin), std::fabs(box.ymin), std::fabs(box.xmax), std::fabs(box.ymax)});
    return kMarginTolerances * COrxPoint3d::tol + kMarginRelative * size;
}

bool mayOverlap(SegmentBox const& a, SegmentBox const& b) {
    double const margin = pruneMargin(a) + pruneMargin(b);
    return !(a.xmax + margin < b.xmin || b.xmax + margin < a.xmin || a.ymax + margin < b.ymin ||
             b.ymax + margin < a.ymin);
}

bool mayContain(SegmentBox const& box, COrxPoint3d const& p) {
    SegmentBox const wide = widened(box, pruneMargin(box));
    return !(p.x < wide.xmin || p.x > wide.xmax || p.y < wide.ymin || p.y > wide.ymax);
}

bool mayCross(SegmentBox const& tight, COrxPoint3d const& p, COrxPoint3d const& q) {
    SegmentBox const box = widened(tight, pruneMargin(tight));
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

std::vector<SegmentBox> segmentBoxes(COrxVertexArray const& vl) {
    std::vector<SegmentBox> boxes;
    boxes.reserve(static_cast<std::size_t>(vl.len()));
    for (int k = 0; k < vl.len(); ++k) {
        boxes.push_back(segmentBox(vl[k]));
    }
    return boxes;
}

}  // namespace internal
}  // namespace ORX
