#include "orx/plane_geometry/ellipses.h"

#include <cmath>

#include "orx/geom/functions.h"
#include "orx/geom/shared/finite.h"
#include "orx/plane_geometry/angles.h"

namespace ORX {

namespace {
bool semiAxesValid(double a, double b) {
    return std::isfinite(a) && std::isfinite(b) && a > 0.0 && b > 0.0;
}
}  // namespace

COrxPoint3d g_ellips_pt(COrxPoint3d const& centre, double a, double b, double rotation, double t) {
    if (!semiAxesValid(a, b) || !internal::allFinite(rotation, t)) {
        return internal::nanPoint();
    }
    double const u = a * std::cos(t), v = b * std::sin(t);
    double const c = std::cos(rotation), s = std::sin(rotation);
    return COrxPoint3d(centre.x + u * c - v * s, centre.y + u * s + v * c, centre.z);
}

double g_elps_p(double a, double b, double w) {
    if (!semiAxesValid(a, b)) {
        return nan();
    }
    return g_ang(std::atan2(a * std::sin(w), b * std::cos(w)));
}

double g_elps_w(double a, double b, double t) {
    if (!semiAxesValid(a, b)) {
        return nan();
    }
    return g_ang(std::atan2(b * std::sin(t), a * std::cos(t)));
}

}  // namespace ORX
