#include "orx/geom/shared/line_intersection.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "orx/geom/functions.h"
#include "orx/geom/shared/finite.h"
#include "orx/geom/vector.h"

namespace ORX {
namespace internal {

namespace {

// The widened bounding boxes of the segments a-b and c-d are apart in x or in y.
bool boxesApart(COrxPoint3d const& a, COrxPoint3d const& b, COrxPoint3d const& c,
                COrxPoint3d const& d, double t) {
    bool const apartX = std::max(a.x, b.x) + t < std::min(c.x, d.x) - t ||
                        std::max(c.x, d.x) + t < std::min(a.x, b.x) - t;
    bool const apartY = std::max(a.y, b.y) + t < std::min(c.y, d.y) - t ||
                        std::max(c.y, d.y) + t < std::min(a.y, b.y) - t;
    return apartX || apartY;
}

}  // namespace

COrxPoint3d lineFoot(COrxPoint3d const& a, COrxPoint3d const& b, COrxPoint3d const& p) {
    if (b == a) {
        return a;
    }
    COrxVector3d const u = (b - a).normalize();
    return a + u * sprod(p - a, u);
}

bool pointOnSegment(COrxPoint3d const& a, COrxPoint3d const& b, COrxPoint3d const& p) {
    if (!allValid(a, b, p)) {
        return false;
    }
    if (p == a || p == b) {
        return true;
    }
    if (a == b) {
        return false;
    }
    COrxPoint3d const f = lineFoot(a, b, p);
    if (p.distanceTo(f) > COrxPoint3d::tol) {
        return false;
    }
    // The foot lies between the ends: f - a and b - f point the same way. Decided by the
    // foot's share of b - a rather than by comparing the two unit vectors, whose directions
    // a foot next to an end leaves with only the digits that the coordinates' size spares.
    COrxVector3d const along = b - a;
    double const share = sprod(p - a, along) / sprod(along, along);
    return share >= 0.0 && share <= 1.0;
}

bool intersectLines(COrxPoint3d const& p1, COrxPoint3d const& p2, COrxPoint3d const& p3,
                    COrxPoint3d const& p4, bool bounded, COrxPoint3d& out) {
    if (!allValid(p1, p2, p3, p4)) {
        return false;
    }
    double const t = COrxPoint3d::tol;
    if (bounded && boxesApart(p1, p2, p3, p4, t)) {
        return false;
    }
    COrxPoint3d const* first[2] = {&p1, &p2};
    COrxPoint3d const* second[2] = {&p3, &p4};
    if (std::fabs(p2.x - p1.x) < t) {
        if (std::fabs(p4.x - p3.x) < t || std::fabs(p2.y - p1.y) < t) {
            return false;
        }
        std::swap(first[0], second[0]);
        std::swap(first[1], second[1]);
    }
    COrxPoint3d const& a = *first[0];
    COrxPoint3d const& b = *first[1];
    COrxPoint3d const& c = *second[0];
    COrxPoint3d const& d = *second[1];
    // The slopes decide the vertical and parallel cases; the point itself is computed from
    // the first line's start, so that it does not depend on where the lines lie.
    double const m1 = (b.y - a.y) / (b.x - a.x);
    double const dx2 = d.x - c.x;
    double along = 0.0;  // of the point on the first line, as a share of b - a
    if (std::fabs(dx2) < kVerticalDx) {
        along = (d.x - a.x) / (b.x - a.x);
    } else {
        double const m2 = (d.y - c.y) / dx2;
        if (std::fabs(m1 - m2) < kParallelSlope) {
            return false;
        }
        double const ex = b.x - a.x, ey = b.y - a.y, fx = d.x - c.x, fy = d.y - c.y;
        along = ((c.x - a.x) * fy - (c.y - a.y) * fx) / (ex * fy - ey * fx);
    }
    COrxPoint3d const hit(a.x + along * (b.x - a.x), a.y + along * (b.y - a.y), a.z);
    if (!hit.isValid() ||
        (bounded && !(pointOnSegment(p1, p2, hit) && pointOnSegment(p3, p4, hit)))) {
        return false;
    }
    out = hit;
    return true;
}

}  // namespace internal
}  // namespace ORX
