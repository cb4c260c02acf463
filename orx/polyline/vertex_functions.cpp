#include "orx/polyline/vertex_functions.h"

#include <cmath>

#include "orx/geom/functions.h"
#include "orx/plane_geometry/plane_geometry.h"
#include "orx/plane_geometry/shared/bulge_sweep.h"

namespace ORX {

namespace {

// Truncation toward zero of a non-negative quotient, kept within the int range.
int truncatedCount(double quotient) {
    if (!(quotient < kMaxArcPieces)) {
        return kMaxArcPieces;  // also +inf
    }
    return static_cast<int>(quotient);
}

}  // namespace

double vx_start_angle(COrxVertex const& v) {
    return g_ang(angle(v.startPoint(), v.endPoint()) - internal::bulgeSweep(v.bulge()) * 0.5);
}

double vx_end_angle(COrxVertex const& v) {
    return g_ang(angle(v.endPoint(), v.startPoint()) + internal::bulgeSweep(v.bulge()) * 0.5);
}

COrxVector3d vx_start_dir(COrxVertex const& v) {
    return polar(vx_start_angle(v), 1.0);
}

COrxVector3d vx_end_dir(COrxVertex const& v) {
    return polar(vx_end_angle(v), 1.0);
}

int g_vx_split_n(COrxVertex const& v, double tol) {
    if (v.isStraight()) {
        return 0;
    }
    double const theta = std::fabs(internal::bulgeSweep(v.bulge()));
    double const r = v.radius();
    int const quarters = truncatedCount(theta / kHalfPi);
    double const step = std::acos((r - tol) / r);
    if (std::isnan(step)) {
        return quarters;
    }
    int const byDeviation = truncatedCount((theta / 2) / step);
    return quarters > byDeviation ? quarters : byDeviation;
}

int g_bulg_split(COrxVertex const& v) {
    if (v.isStraight()) {
        return 0;
    }
    double const r = v.radius();
    double const pieces = kPi / (2.0 * std::atan(std::sqrt(r * r - (r / 4) * (r / 4)) / r));
    return std::isfinite(pieces) ? static_cast<int>(pieces) : 2;
}

bool g_vx_is_tang(COrxVertex const& s1, COrxVertex const& s2, COrxPoint3d const& p) {
    double const w1 = s1.wTan(p);
    double const w2 = s2.wTan(p);
    return g_ang_equal(w1, w2, kTangentAngleTol) || g_ang_equal(w1, w2 + kPi, kTangentAngleTol);
}

bool g_vx_trim(COrxVertex& s1, COrxVertex& s2) {
    if (s1.endPoint() == s2.startPoint() || g_vx_is_tang(s1, s2, s1.endPoint())) {
        return false;
    }
    COrxPoint3d const gapMiddle = g_midp3d(s1.endPoint(), s2.startPoint());
    COrxPoint3d meeting;
    if (!s1.intNear(s2, gapMiddle, meeting) || s1.coLinear(s2)) {
        return false;
    }
    s1.setEndPoint(meeting);
    s2.setStartPoint(meeting);
    return true;
}

}  // namespace ORX
