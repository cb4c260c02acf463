#include "safe_measures.h"

#include <algorithm>
#include <cmath>

#include "orx/polyline/polyline_functions.h"

namespace orxtool {

namespace {

// Coordinates up to 2^kLargestExponent are measured as they are: their squares and products
// (about 2^600) stay far inside the range of doubles. Larger ones are scaled down to it.
constexpr int kLargestExponent = 300;

// The binary exponent by which the polyline is scaled down (0: not at all).
int scaleExponent(COrxVertexArray const& polyline) {
    double largest = 0.0;
    for (int i = 0; i < polyline.len(); ++i) {
        for (COrxPoint3d const* p : {&polyline[i].startPoint(), &polyline[i].endPoint()}) {
            largest = std::max({largest, std::fabs(p->x), std::fabs(p->y), std::fabs(p->z)});
        }
    }
    if (!std::isfinite(largest) || largest <= std::ldexp(1.0, kLargestExponent)) {
        return 0;
    }
    return std::ilogb(largest) - kLargestExponent;
}

}  // namespace

COrxPoint3d scaled(COrxPoint3d const& p, int exponent) {
    return COrxPoint3d(std::ldexp(p.x, exponent), std::ldexp(p.y, exponent),
                       std::ldexp(p.z, exponent));
}

COrxVertexArray scaledCopy(COrxVertexArray const& polyline, int exponent) {
    COrxVertexArray copy;
    for (int i = 0; i < polyline.len(); ++i) {
        COrxVertex const& v = polyline[i];
        copy.append(COrxVertex(scaled(v.startPoint(), exponent), scaled(v.endPoint(), exponent),
                               v.bulge()));
    }
    return copy;
}

double safeArea(COrxVertexArray const& polyline) {
    int e = scaleExponent(polyline);
    return e == 0 ? ORX::g_vl_area(polyline)
                  : std::ldexp(ORX::g_vl_area(scaledCopy(polyline, -e)), 2 * e);
}

double safeLength(COrxVertexArray const& polyline) {
    int e = scaleExponent(polyline);
    return e == 0 ? polyline.geomLength() : std::ldexp(scaledCopy(polyline, -e).geomLength(), e);
}

bool isCounterClockwise(COrxVertexArray const& polyline) {
    int e = scaleExponent(polyline);
    return ORX::g_vl_orient(e == 0 ? polyline : scaledCopy(polyline, -e), COrxVector3d::kZAxis);
}

bool safeExtents(COrxVertexArray const& polyline, COrxPoint3d& lo, COrxPoint3d& hi) {
    int e = scaleExponent(polyline);
    if (e == 0) {
        return polyline.extents(lo, hi);
    }
    if (!scaledCopy(polyline, -e).extents(lo, hi)) {
        return false;
    }
    lo = scaled(lo, e);
    hi = scaled(hi, e);
    return true;
}

}  // namespace orxtool
