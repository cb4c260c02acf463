#include "orx/geom/functions.h"

#include <cmath>
#include <cstdint>
#include <cstring>

namespace ORX {

namespace {
// atan2 brought into [0, 2pi]: one subtraction, then one addition, as callers expect
// (a tiny negative angle gives exactly 2pi).
double directionAngle(double dy, double dx) {
    double r = std::atan2(dy, dx);
    if (r >= kTwoPi) {
        r -= kTwoPi;
    }
    if (r < 0.0) {
        r += kTwoPi;
    }
    return r;
}
}  // namespace

double sprod(double const* a, double const* b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

double vabs(double* v) {
    return std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]);
}

double angle(double const* a, double const* b) {
    return directionAngle(b[1] - a[1], b[0] - a[0]);
}

double angle(COrxVector3d const& v) {
    return directionAngle(v.y, v.x);
}

double angle(COrxPoint3d const& a, COrxPoint3d const& b) {
    return angle(b - a);
}

COrxPoint3d polar(COrxPoint3d const& p, double a, double d) {
    return COrxPoint3d(p.x + d * std::cos(a), p.y + d * std::sin(a), p.z);
}

COrxVector3d polar(double a, double d) {
    return COrxVector3d(d * std::cos(a), d * std::sin(a), 0.0);
}

COrxPoint3d p_min(COrxPoint3d const& a, COrxPoint3d const& b) {
    return COrxPoint3d(a.x < b.x ? a.x : b.x, a.y < b.y ? a.y : b.y, a.z < b.z ? a.z : b.z);
}

COrxPoint3d p_max(COrxPoint3d const& a, COrxPoint3d const& b) {
    return COrxPoint3d(a.x > b.x ? a.x : b.x, a.y > b.y ? a.y : b.y, a.z > b.z ? a.z : b.z);
}

double nan() {
    std::uint64_t const bits = 0x7FFFFFFFFFFFFFFFull;
    double value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

double round(double x, double step) {
    if (step < kMinRoundStep) {
        return x;
    }
    return std::floor(x / step + 0.5) * step;
}

}  // namespace ORX
