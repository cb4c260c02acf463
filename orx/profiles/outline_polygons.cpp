// Outline generators of the straight-sided sections: rectangles, trapezoids, gables,
// triangles, the parallelogram, the diamond, the notched rectangle and the regular polygons.
#include <cmath>

#include "orx/profiles/internal/outline_generators.h"

namespace ORX {
namespace internal {
namespace {

// Code 34 puts its first corner a twelfth of a turn above +X and steps by a sixth of a turn.
constexpr double kTwelfthTurn = 0.5235987755982988;
constexpr double kSixthTurn = 1.0471975511965976;
// Code 21 takes its base as vertical when the cosine of its angle is below this: a base
// that steep would have to be a million million times the width asked for.
constexpr double kVerticalBaseCosine = 1e-12;

// Half the difference between the base d0 and the top flat: a negative t is the whole flat,
// a positive one half of it (deliberately asymmetric; codes 6 and 7 are drawn that way).
double flatInset(double d0, double t) {
    return t < 0 ? (t + d0) / 2 : (d0 - 2 * t) / 2;
}

}  // namespace

COrxVertexArray rectangle(COrxVector3d const& offset, Dims const& dims) {
    if (!hasDims(dims, 2)) {
        return COrxVertexArray();
    }
    double const w = dim(dims, 0), h = dim(dims, 1);
    return placed(polygon({xy(0, 0), xy(w, 0), xy(w, h), xy(0, h)}), offset);
}

COrxVertexArray rightTrapezoid(COrxVector3d const& offset, Dims const& dims) {
    double const d0 = dim(dims, 0), d1 = dim(dims, 1), d2 = dim(dims, 2);
    if (!hasDims(dims, 3) || !(d0 > 0 && d1 > 0)) {
        return COrxVertexArray();
    }
    if (d2 < 0) {
        return placed(polygon({xy(0, 0), xy(d0, 0), xy(d0, d1), xy(d0 + d2, d1)}), offset);
    }
    if (d2 > 0) {
        return placed(polygon({xy(0, 0), xy(d0, 0), xy(d2, d1), xy(0, d1)}), offset);
    }
    return placed(polygon({xy(0, 0), xy(d0, 0), xy(0, d1)}), offset);
}

COrxVertexArray taper(COrxVector3d const& offset, Dims const& dims) {
    if (!hasDims(dims, 3)) {
        return COrxVertexArray();
    }
    double const w = std::fabs(dim(dims, 0));
    double const left = std::fabs(dim(dims, 1)), right = std::fabs(dim(dims, 2));
    COrxVertexArray outline = polygon({xy(0, 0), xy(w, 0), xy(w, right), xy(0, left)});
    return placed(outline.norm(false), offset);
}

COrxVertexArray quadrilateral(COrxVector3d const& offset, Dims const& dims) {
    double const d0 = dim(dims, 0), d1 = dim(dims, 1), d2 = dim(dims, 2), d3 = dim(dims, 3);
    if (!hasDims(dims, 4) || !(d0 > 0 && d1 > 0)) {
        return COrxVertexArray();
    }
    if (d3 < 0) {
        return placed(polygon({xy(0, 0), xy(d0, 0), xy(d0, d1), xy(d0 + d3, d2)}), offset);
    }
    return placed(polygon({xy(0, 0), xy(d0, 0), xy(d3, d2), xy(0, d1)}), offset);
}

COrxVertexArray gable(COrxVector3d const& offset, Dims const& dims) {
    if (!hasDims(dims, 4)) {
        return COrxVertexArray();
    }
    double const d0 = dim(dims, 0), d1 = dim(dims, 1), d2 = dim(dims, 2), d3 = dim(dims, 3);
    double const ridgeX = d1 > d2 ? d3 : d0 - d3;
    double const ridgeY = std::fmax(d1, d2);
    return placed(polygon({xy(0, 0), xy(d0, 0), xy(d0, d2), xy(ridgeX, ridgeY), xy(0, d1)}),
                  offset);
}

COrxVertexArray flatTopHexagon(COrxVector3d const& offset, Dims const& dims) {
    if (!hasDims(dims, 4)) {
        return COrxVertexArray();
    }
    double const d0 = dim(dims, 0), d1 = dim(dims, 1), d2 = dim(dims, 2);
    double const a = flatInset(d0, dim(dims, 3));
    return placed(polygon({xy(0, 0), xy(d0, 0), xy(d0, d2), xy(d0 - a, d1), xy(a, d1), xy(0, d2)}),
                  offset);
}

COrxVertexArray symmetricTrapezoid(COrxVector3d const& offset, Dims const& dims) {
    if (!hasDims(dims, 3)) {
        return COrxVertexArray();
    }
    double const d0 = dim(dims, 0), d1 = dim(dims, 1);
    double const a = flatInset(d0, dim(dims, 2));
    return placed(polygon({xy(0, 0), xy(d0, 0), xy(d0 - a, d1), xy(a, d1)}), offset);
}

COrxVertexArray trapezoid(COrxVector3d const& offset, Dims const& dims) {
    if (!hasDims(dims, 4)) {
        return COrxVertexArray();
    }
    double const d0 = dim(dims, 0), d1 = dim(dims, 1), d2 = dim(dims, 2), d3 = dim(dims, 3);
    return placed(polygon({xy(0, 0), xy(d0, 0), xy(d2 + d3, d1), xy(d2, d1)}), offset);
}

COrxVertexArray rightTriangle(COrxVector3d const& offset, Dims const& dims) {
    if (!hasDims(dims, 2)) {
        return COrxVertexArray();
    }
    double const d0 = dim(dims, 0), base = std::fabs(d0), d1 = dim(dims, 1);
    double const topX = d0 >= 0 ? 0.0 : base;
    return placed(polygon({xy(0, 0), xy(base, 0), xy(topX, d1)}), offset);
}

COrxVertexArray isoscelesTriangle(COrxVector3d const& offset, Dims const& dims) {
    if (!hasDims(dims, 2)) {
        return COrxVertexArray();
    }
    double const d0 = dim(dims, 0), d1 = dim(dims, 1);
    return placed(polygon({xy(0, 0), xy(d0, 0), xy(d0 / 2, d1)}), offset);
}

COrxVertexArray house(COrxVector3d const& offset, Dims const& dims) {
    if (!hasDims(dims, 3)) {
        return COrxVertexArray();
    }
    double const d0 = dim(dims, 0), d1 = dim(dims, 1), d2 = dim(dims, 2);
    return placed(polygon({xy(0, 0), xy(d0, 0), xy(d0, d2), xy(d0 / 2, d1), xy(0, d2)}), offset);
}

COrxVertexArray triangle(COrxVector3d const& offset, Dims const& dims) {
    if (!hasDims(dims, 3)) {
        return COrxVertexArray();
    }
    double const d0 = dim(dims, 0), d1 = dim(dims, 1), d2 = dim(dims, 2);
    return placed(polygon({xy(0, 0), xy(d0, 0), xy(d2, d1)}), offset);
}

// The upper corners are stepped from the lower ones with polar() at a right angle, so their
// x carries the tiny d1 cos(pi/2) term; callers compare corners with the point tolerance.
// A horizontal width (d0 < 0) cannot be met by a vertical base: the cosine of a right angle
// in degrees comes out as a rounding error, not 0, and would give a base of some 1e18.
COrxVertexArray parallelogram(COrxVector3d const& offset, Dims const& dims) {
    double const d0 = dim(dims, 0), d1 = dim(dims, 1);
    double const a = dim(dims, 2) * kDegToRad;
    if (!hasDims(dims, 3) || (d0 < 0 && std::fabs(std::cos(a)) < kVerticalBaseCosine)) {
        return COrxVertexArray();
    }
    double const baseLength = d0 >= 0 ? d0 : -(d0 / std::cos(a));
    COrxPoint3d const origin = xy(0, 0);
    COrxPoint3d const baseEnd = polar(origin, a, baseLength);
    return placed(
        polygon({origin, baseEnd, polar(baseEnd, kHalfPi, d1), polar(origin, kHalfPi, d1)}),
        offset);
}

// For a negative d0 the half-diagonal is d0 / 2 itself, negative: the same square, entered
// at its right corner instead of its left one.
COrxVertexArray diamond(COrxVector3d const& offset, Dims const& dims) {
    if (!hasDims(dims, 1)) {
        return COrxVertexArray();
    }
    double const d0 = dim(dims, 0);
    double const h = d0 >= 0 ? std::sqrt(0.5) * std::fabs(d0) : d0 * 0.5;
    return placed(polygon({xy(-h, 0), xy(0, -h), xy(h, 0), xy(0, h)}), offset);
}

COrxVertexArray regularPolygon(COrxVector3d const& offset, Dims const& dims) {
    double const n = dim(dims, 0), diameter = dim(dims, 1);
    if (!hasDims(dims, 2) || n != std::floor(n) || n < 3 || n > kMaxPolygonCorners ||
        !(diameter > 0)) {
        return COrxVertexArray();
    }
    int const corners = static_cast<int>(n);
    double const step = kTwoPi / corners;
    double const first = -kHalfPi - step / 2;
    COrxPoint3dArray points;
    for (int k = 0; k < corners; ++k) {
        points.append(polar(xy(0, 0), first + k * step, diameter / 2));
    }
    return placed(polygon(points), offset);
}

COrxVertexArray notchedRectangle(COrxVector3d const& offset, Dims const& dims) {
    double const w = dim(dims, 0), h = dim(dims, 1);
    double const notchW = dim(dims, 2), notchH = dim(dims, 3);
    if (!hasDims(dims, 4) || !(w > 0 && h > 0) || !(notchW >= 0 && notchW < w) ||
        !(notchH >= 0 && notchH < h)) {
        return COrxVertexArray();
    }
    COrxVertexArray outline = polygon({xy(0, 0), xy(w, 0), xy(w, h - notchH),
                                       xy(w - notchW, h - notchH), xy(w - notchW, h), xy(0, h)});
    return placed(outline.norm(false), offset);
}

// Corners at 30, 90, ..., 330 degrees on the circumscribed circle. An absent or zero d0
// gives six corners at the origin, which the dispatcher refuses.
COrxVertexArray hexagon(COrxVector3d const& offset, Dims const& dims) {
    double const acrossFlats = dim(dims, 0);
    double const r = (acrossFlats / 2) / std::cos(kTwelfthTurn);
    COrxPoint3dArray points;
    double t = kTwelfthTurn;
    for (int k = 0; k < 6; ++k, t += kSixthTurn) {
        points.append(polar(xy(0, 0), t, r));
    }
    return placed(polygon(points), offset);
}

}  // namespace internal
}  // namespace ORX
