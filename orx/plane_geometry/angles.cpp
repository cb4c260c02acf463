#include "orx/plane_geometry/angles.h"

#include <cmath>

#include "orx/geom/functions.h"
#include "orx/geom/shared/angle_range.h"
#include "orx/geom/shared/finite.h"

namespace ORX {

namespace {

bool near(double y, double target) {
    return std::fabs(y - target) < kAxisSnapTol;
}

// Direction of the leg from `from` to `to`; false when the leg has no length.
bool legAngle(COrxPoint3d const& from, COrxPoint3d const& to, double& w) {
    if (!internal::allValid(from, to) || from == to) {
        return false;
    }
    w = angle(from, to);
    return true;
}

}  // namespace

double g_ang(double w) {
    return internal::angleInTurn(w);
}

double g_signed_ang(double w) {
    if (!std::isfinite(w)) {
        return nan();
    }
    w = internal::shortenForLoop(w, kTwoPi);
    while (w > kPi) {
        w -= kTwoPi;
    }
    while (w < -kPi) {
        w += kTwoPi;
    }
    return w;
}

double g_dir_nrm(double w) {
    if (!std::isfinite(w)) {
        return nan();
    }
    w = internal::shortenForLoop(w, kPi);
    while (w >= kPi) {
        w -= kPi;
    }
    if (near(w, kPi) || near(w, 0.0)) {
        return 0.0;
    }
    return w;
}

bool g_ang_equal(double a, double b, double tol) {
    double const d = std::fabs(g_ang(a) - g_ang(b));
    return d < tol || kTwoPi - d < tol;
}

double g_dw(double a, double b) {
    double const d = std::fabs(a - b);
    return d > kPi ? d - kPi : d;
}

double g_dw1(double a, double b) {
    return g_rnd_quad(g_ang(kPi - (a - b)));
}

double g_qw(double w) {
    if (!std::isfinite(w)) {
        return nan();
    }
    if (w < 0.0) {
        return -g_qw(-w);
    }
    // In doubles, so that no angle overflows an integer.
    double const k = std::fmod(std::trunc((w + kPi / 4) / kHalfPi), 4.0);
    return k * kHalfPi;
}

double g_rnd_quad(double w) {
    double const y = g_ang(w);
    double const q = g_qw(y);
    if (std::fabs(y - q) < kAxisSnapTol || std::fabs(y - (q + kTwoPi)) < kAxisSnapTol) {
        return q;
    }
    return y;
}

double g_w_halb(double a, double b) {
    double const half = (a + b) / 2;
    return std::fabs(a - b) > kPi ? half + kPi : half;
}

double g_w_mid(double a, double b) {
    return g_ang(a + g_ang(b - a) / 2);
}

double g_w_3eck(double a, double b, double c) {
    return std::acos((a * a + b * b - c * c) / (2 * a * b));
}

int g_oktant(double w) {
    double const y = g_ang(w);
    if (std::isnan(y)) {
        return -1;
    }
    if (near(y, 0.0) || near(y, kTwoPi)) {
        return 0;
    }
    if (near(y, kPi)) {
        return 4;
    }
    if (near(y, kHalfPi)) {
        return 2;
    }
    if (near(y, 3 * kHalfPi)) {
        return 6;
    }
    return y < kHalfPi ? 1 : y < kPi ? 3 : y < 3 * kHalfPi ? 5 : 7;
}

int g_sextant(double w) {
    double const y = g_ang(w);
    if (std::isnan(y)) {
        return -1;
    }
    if (near(y, 0.0) || near(y, kTwoPi)) {
        return 0;
    }
    double const step = kPi / 4;
    for (int k = 1; k < 8; ++k) {
        if (near(y, k * step)) {
            return 2 * k;
        }
    }
    for (int k = 1; k < 8; ++k) {
        if (y < k * step) {
            return 2 * k - 1;
        }
    }
    return 15;
}

double g_delta_w(COrxPoint3d const& p0, COrxPoint3d const& p1, COrxPoint3d const& p2) {
    double in, out;
    if (!legAngle(p0, p1, in) || !legAngle(p1, p2, out)) {
        return nan();
    }
    return g_signed_ang(out - in);
}

double g_delta_w1(COrxPoint3d const& p0, COrxPoint3d const& p1, COrxPoint3d const& p2) {
    double back, out;
    if (!legAngle(p1, p0, back) || !legAngle(p1, p2, out)) {
        return nan();
    }
    return g_ang(out - back);
}

double g_delta_w2(COrxPoint3d const& p0, COrxPoint3d const& p1, COrxPoint3d const& p2) {
    double back, out;
    if (!legAngle(p1, p0, back) || !legAngle(p1, p2, out)) {
        return nan();
    }
    return std::fabs(g_signed_ang(out - back));
}

double g_v_ang(COrxVector3d const& a, COrxVector3d const& b) {
    COrxVector3d const planA(a.x, a.y, 0.0), planB(b.x, b.y, 0.0);
    if (!internal::allValid(a, b) || planA == COrxVector3d::kNull || planB == COrxVector3d::kNull) {
        return nan();
    }
    return g_ang(angle(planB) - angle(planA));
}

}  // namespace ORX
