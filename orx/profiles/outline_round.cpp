// Outline generators of the round sections: circles, the ring segment, the slots and the oval.
#include <algorithm>
#include <cmath>
#include <utility>

#include "orx/plane_geometry/bulges.h"
#include "orx/polyline/vertex.h"
#include "orx/profiles/internal/outline_generators.h"

namespace ORX {
namespace internal {
namespace {

// Two half circles from `from` to `to` and back, each bulge 1 (counter-clockwise).
COrxVertexArray halfCircles(COrxPoint3d const& from, COrxPoint3d const& to) {
    COrxVertexArray outline;
    outline.append(COrxVertex(from, to, 1.0)).append(COrxVertex(to, from, 1.0));
    return outline;
}

// The slot of overall length `length` along X and width `width` centred on the origin.
COrxVertexArray slotAlongX(double length, double width) {
    double const r = width / 2, l = length / 2 - r;
    COrxVertexArray outline;
    outline.append(COrxVertex(xy(-l, -r), xy(l, -r), 0.0))
        .append(COrxVertex(xy(l, -r), xy(l, r), 1.0))
        .append(COrxVertex(xy(l, r), xy(-l, r), 0.0))
        .append(COrxVertex(xy(-l, r), xy(-l, -r), 1.0));
    return outline;
}

// The four-centred oval of half axes a (along X) and b < a, from the three-centred arch over
// the X axis and its mirror image.
COrxVertexArray ovalAlongX(double a, double b) {
    BasketArch const arch = basketArch(a, b);
    COrxPoint3d const t1 = arch.rightTangent, t2 = arch.leftTangent;
    COrxPoint3d const t3 = xy(t2.x, -t2.y), t4 = xy(t1.x, -t1.y);
    COrxVertexArray outline;
    outline.append(COrxVertex(xy(a, 0), t1, arch.springBulge))
        .append(COrxVertex(t1, t2, arch.crownBulge))
        .append(COrxVertex(t2, xy(-a, 0), arch.springBulge))
        .append(COrxVertex(xy(-a, 0), t3, arch.springBulge))
        .append(COrxVertex(t3, t4, arch.crownBulge))
        .append(COrxVertex(t4, xy(a, 0), arch.springBulge));
    return outline;
}

// The extents of codes 803 and 804 are equal enough to make a circle.
bool roundExtents(double d0, double d1) {
    return std::fabs(d0 - d1) < kRoundExtentTol;
}

}  // namespace

COrxVertexArray circleThroughOrigin(COrxVector3d const& offset, Dims const& dims) {
    if (!hasDims(dims, 1)) {
        return COrxVertexArray();
    }
    double const d0 = dim(dims, 0);
    if (d0 >= 0) {
        return placed(halfCircles(xy(0, 0), xy(d0, 0)), offset);
    }
    return placed(halfCircles(xy(d0, 0), xy(-d0, 0)), offset);
}

COrxVertexArray ringSegment(COrxVector3d const& offset, Dims const& dims) {
    double const outer = dim(dims, 0), inner = dim(dims, 1), degrees = dim(dims, 2);
    if (!hasDims(dims, 3) || !(outer > 0) || !(inner >= 0 && inner < outer) ||
        !(degrees > 0 && degrees < 360)) {
        return COrxVertexArray();
    }
    double const w = degrees * kDegToRad;
    double const bulge = spanBulge(w);
    COrxPoint3d const origin = xy(0, 0);
    COrxPoint3d const outerEnd = polar(origin, w, outer);
    COrxVertexArray outline;
    if (inner == 0) {
        outline.append(COrxVertex(origin, xy(outer, 0), 0.0))
            .append(COrxVertex(xy(outer, 0), outerEnd, bulge))
            .append(COrxVertex(outerEnd, origin, 0.0));
    } else {
        COrxPoint3d const innerEnd = polar(origin, w, inner);
        outline.append(COrxVertex(xy(inner, 0), xy(outer, 0), 0.0))
            .append(COrxVertex(xy(outer, 0), outerEnd, bulge))
            .append(COrxVertex(outerEnd, innerEnd, 0.0))
            .append(COrxVertex(innerEnd, xy(inner, 0), -bulge));
    }
    return placed(outline, offset);
}

COrxVertexArray slot(COrxVector3d const& offset, Dims const& dims) {
    if (!hasDims(dims, 2)) {
        return COrxVertexArray();
    }
    double const d0 = dim(dims, 0), d1 = dim(dims, 1);
    if (std::fabs(d0 - d1) < kRoundExtentTol) {
        return placed(halfCircles(xy(d0 / 2, d0 / 2), xy(-d0 / 2, d0 / 2)), offset);
    }
    double const length = std::max(d0, d1), r = std::min(d0, d1) / 2;
    COrxVertexArray outline = polygon({xy(-r, r), xy(r, r), xy(r, length - r), xy(-r, length - r)});
    outline[0].set(outline[0].startPoint(), outline[0].endPoint(), 1.0);
    outline[2].set(outline[2].startPoint(), outline[2].endPoint(), 1.0);
    if (d0 > d1) {
        outline.rotate(-kHalfPi, xy(0, 0));
    }
    return placed(outline, offset);
}

// The far end lies on the circle of diameter max(d2, d0) about (0, y), taken as the
// counter-clockwise arc about that centre: for d2 > d0 a head wider than the slot.
COrxVertexArray slotWithHead(COrxVector3d const& offset, Dims const& dims) {
    if (!hasDims(dims, 3)) {
        return COrxVertexArray();
    }
    double width = dim(dims, 0), length = dim(dims, 1);
    double const headDiameter = dim(dims, 2);
    bool const across = width > length;
    if (across) {
        std::swap(width, length);
    }
    double const half = width / 2;
    double const r = std::max(headDiameter, width) / 2;
    double const s = std::sqrt(r * r - half * half);
    double const y = r - length + half;
    COrxPoint3d const headLeft = xy(-half, y + s), headRight = xy(half, y + s);
    COrxVertexArray outline;
    outline.append(COrxVertex(xy(half, 0), xy(-half, 0), 1.0))
        .append(COrxVertex(xy(-half, 0), headLeft, 0.0))
        .append(COrxVertex(headLeft, headRight, g_arcmp_bulg(xy(0, y), headLeft, headRight)))
        .append(COrxVertex(headRight, xy(half, 0), 0.0));
    if (across) {
        outline.rotate(-kHalfPi, xy(0, 0));
    }
    return placed(outline, offset);
}

COrxVertexArray circleAboutOrigin(COrxVector3d const& offset, Dims const& dims) {
    if (!hasDims(dims, 1)) {
        return COrxVertexArray();
    }
    double const d0 = dim(dims, 0);
    double const r = d0 >= 0 ? d0 / 2 : -d0;
    return placed(halfCircles(xy(r, 0), xy(-r, 0)), offset);
}

COrxVertexArray centredSlot(COrxVector3d const& offset, Dims const& dims) {
    double const d0 = dim(dims, 0), d1 = dim(dims, 1);
    if (!hasDims(dims, 2) || !(d0 > 0 && d1 > 0)) {
        return COrxVertexArray();
    }
    if (roundExtents(d0, d1)) {
        return placed(halfCircles(xy(d0 / 2, 0), xy(-d0 / 2, 0)), offset);
    }
    COrxVertexArray outline = slotAlongX(std::max(d0, d1), std::min(d0, d1));
    if (d1 > d0) {
        outline.rotate(kHalfPi, xy(0, 0));
    }
    return placed(outline, offset);
}

COrxVertexArray oval(COrxVector3d const& offset, Dims const& dims) {
    double const d0 = dim(dims, 0), d1 = dim(dims, 1);
    if (!hasDims(dims, 2) || !(d0 > 0 && d1 > 0)) {
        return COrxVertexArray();
    }
    if (roundExtents(d0, d1)) {
        return placed(halfCircles(xy(d0 / 2, 0), xy(-d0 / 2, 0)), offset);
    }
    COrxVertexArray outline = ovalAlongX(std::max(d0, d1) / 2, std::min(d0, d1) / 2);
    if (d1 > d0) {
        outline.rotate(kHalfPi, xy(0, 0));
    }
    return placed(outline, offset);
}

}  // namespace internal
}  // namespace ORX
