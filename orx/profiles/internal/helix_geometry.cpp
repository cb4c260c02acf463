// The conical helix in its own frame: points, tangents, lengths and their inverses.
#include "orx/profiles/internal/helix_geometry.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "orx/geom/functions.h"
#include "orx/plane_geometry/lines.h"

namespace ORX {
namespace internal {
namespace {

// angleAtLength doubles its search interval at most this often (2^1100 radians is past any
// double, so the search gives up on a helix without length instead of looping).
constexpr int kMaxBracketDoublings = 1100;
// Newton steps of angleAtLength; it converges in a handful, the bound only ends a stall.
constexpr int kMaxNewtonSteps = 200;

double radiusAt(HelixGeometry const& g, double t) {
    return g.baseRadius + g.radiusRate * t;
}

// |P'(t)|.
double speedAt(HelixGeometry const& g, double t) {
    double const r = radiusAt(g, t);
    return std::sqrt(g.radiusRate * g.radiusRate + g.riseRate * g.riseRate + r * r);
}

// Length over dt of a piece whose radius runs linearly from u0 to u1, both >= 0:
//     integral of sqrt(A + u^2) dt,  A = k^2 + c^2,  u = u0 + k t.
// Its antiderivative in u is (u S + A asinh(u / sqrt(A))) / 2 with S = sqrt(A + u^2); the
// difference of the two ends, divided by k, is rewritten without subtracting nearly equal
// numbers, so that it holds for k = 0 (the cylinder) and any k near it:
//     u1 S1 - u0 S0 = (u1 - u0)(u0 + u1)(A + u0^2 + u1^2) / (u1 S1 + u0 S0),
//     asinh(u1 / sqrt(A)) - asinh(u0 / sqrt(A)) = asinh(x),
//         x = (u1 - u0) q,  q = (u0 + u1) / (u1 S0 + u0 S1),
// and (u1 - u0) / k = dt, so
//     length = dt [ (u0 + u1)(A + u0^2 + u1^2) / (2 (u1 S1 + u0 S0)) + A q / 2 asinh(x) / x ].
// For a cylinder (u0 = u1 = r) this is dt sqrt(r^2 + c^2).
double pieceLength(double dt, double u0, double u1, double a) {
    if (u0 == 0 && u1 == 0) {
        return std::sqrt(a) * dt;  // on the axis: the rise alone
    }
    double const s0 = std::sqrt(a + u0 * u0), s1 = std::sqrt(a + u1 * u1);
    double const chordTerm = (u0 + u1) * (a + u0 * u0 + u1 * u1) / (2 * (u1 * s1 + u0 * s0));
    if (a == 0) {
        return dt * chordTerm;  // a flat spiral of constant radius change, no rise
    }
    double const q = (u0 + u1) / (u1 * s0 + u0 * s1);
    double const x = (u1 - u0) * q;
    double const asinhRatio = x == 0 ? 1.0 : std::asinh(x) / x;
    return dt * (chordTerm + a * q / 2 * asinhRatio);
}

void consider(HelixGeometry const& g, COrxPoint3d const& p, bool bounded, double t, double& best,
              double& bestDistance) {
    if (!std::isfinite(t) || (bounded && !inRange(g, t))) {
        return;
    }
    double const d = pointAt(g, t).distanceTo(p);
    if (d < bestDistance) {
        best = t;
        bestDistance = d;
    }
}

// The three turns around the estimate est of a point seen at the polar angle phi.
void considerTurns(HelixGeometry const& g, COrxPoint3d const& p, bool bounded, double phi,
                   double est, double& best, double& bestDistance) {
    double const n = std::round((est - phi) / kTwoPi);
    for (double dn = -1; dn <= 1; ++dn) {
        consider(g, p, bounded, phi + (n + dn) * kTwoPi, best, bestDistance);
    }
}

}  // namespace

double linearDeterminant(double const (*m)[4]) {
    return m[0][0] * (m[1][1] * m[2][2] - m[1][2] * m[2][1]) -
           m[0][1] * (m[1][0] * m[2][2] - m[1][2] * m[2][0]) +
           m[0][2] * (m[1][0] * m[2][1] - m[1][1] * m[2][0]);
}

COrxVector3d perpendicularTo(COrxVector3d const& z) {
    COrxMatrix3d planeToWorld;
    planeToWorld.setToPlaneToWorld(z);
    return planeToWorld.axis(0);
}

HelixGeometry helixGeometry(COrxPoint3d const& startPoint, COrxPoint3d const& axisPoint,
                            COrxVector3d const& axisVector, double topRadius, double turns,
                            double turnHeight, bool counterClockwise) {
    HelixGeometry g{};
    g.zAxis = axisVector.normal();
    g.origin = g_lotp(axisPoint, axisPoint + g.zAxis, startPoint);
    COrxVector3d const radial = startPoint - g.origin;
    g.baseRadius = radial.abs();
    g.xAxis =
        g.baseRadius > COrxPoint3d::tol ? radial * (1 / g.baseRadius) : perpendicularTo(g.zAxis);
    g.yAxis = g.zAxis * g.xAxis;
    g.sense = counterClockwise ? 1.0 : -1.0;
    g.totalAngle = kTwoPi * turns;
    // Without turns the helix is its start point, whatever the turn height says (a bar with
    // no part of a turn hands on height / 0).
    bool const turning = g.totalAngle != 0;
    g.radiusRate = turning ? (topRadius - g.baseRadius) / g.totalAngle : 0.0;
    g.riseRate = turning ? turnHeight / kTwoPi : 0.0;
    g.valid = g.zAxis != COrxVector3d::kNull && startPoint.isValid() && g.origin.isValid() &&
              std::isfinite(g.baseRadius) && std::isfinite(g.totalAngle) &&
              std::isfinite(g.radiusRate) && std::isfinite(g.riseRate);
    return g;
}

COrxMatrix3d frameMatrix(HelixGeometry const& g) {
    COrxMatrix3d m;
    m.setCoordSystem(g.origin, g.xAxis, g.yAxis, g.zAxis);
    return m;
}

bool inRange(HelixGeometry const& g, double t) {
    return t >= std::min(0.0, g.totalAngle) && t <= std::max(0.0, g.totalAngle);
}

COrxPoint3d pointAt(HelixGeometry const& g, double t) {
    double const r = radiusAt(g, t);
    return g.origin + g.xAxis * (r * std::cos(t)) + g.yAxis * (r * g.sense * std::sin(t)) +
           g.zAxis * (g.riseRate * t);
}

COrxVector3d tangentAt(HelixGeometry const& g, double t) {
    double const r = radiusAt(g, t), k = g.radiusRate;
    double const c = std::cos(t), s = std::sin(t);
    COrxVector3d const d =
        g.xAxis * (k * c - r * s) + g.yAxis * (g.sense * (k * s + r * c)) + g.zAxis * g.riseRate;
    double const length = d.abs();
    if (!(length > 0) || !std::isfinite(length)) {
        return COrxVector3d::kNull;
    }
    return d * (1 / length);
}

// A piece on which the radius changes sign (the helix passes through the axis) is split
// where it is zero, since the closed form wants radii of one sign.
double lengthBetween(HelixGeometry const& g, double t0, double t1) {
    if (t0 == t1) {
        return 0.0;
    }
    double const a = g.radiusRate * g.radiusRate + g.riseRate * g.riseRate;
    double const r0 = radiusAt(g, t0), r1 = radiusAt(g, t1);
    if (r0 * r1 < 0) {
        double const tz = t0 - r0 / g.radiusRate;
        return pieceLength(tz - t0, std::fabs(r0), 0.0, a) +
               pieceLength(t1 - tz, 0.0, std::fabs(r1), a);
    }
    return pieceLength(t1 - t0, std::fabs(r0), std::fabs(r1), a);
}

// Solves L(0, dir * tau) * dir = |length| for tau >= 0, dir the direction of T: L grows with
// tau at the rate |P'|, so the root is bracketed by doubling and then found by Newton steps
// that fall back to bisection when they leave the bracket.
bool angleAtLength(HelixGeometry const& g, double length, double& t) {
    if (!g.valid || !std::isfinite(length)) {
        return false;
    }
    double const dir = (g.totalAngle < 0) != (length < 0) ? -1.0 : 1.0;
    double const target = std::fabs(length);
    if (target == 0) {
        t = 0.0;
        return true;
    }
    auto excess = [&](double tau) { return std::fabs(lengthBetween(g, 0.0, dir * tau)) - target; };
    double lo = 0.0, hi = 1.0;
    int doublings = 0;
    while (excess(hi) < 0) {
        if (++doublings > kMaxBracketDoublings || !std::isfinite(hi)) {
            return false;
        }
        lo = hi;
        hi *= 2;
    }
    double tau = (lo + hi) / 2;
    for (int step = 0; step < kMaxNewtonSteps; ++step) {
        double const f = excess(tau);
        if (f == 0) {
            break;
        }
        (f < 0 ? lo : hi) = tau;
        double next = tau - f / speedAt(g, dir * tau);
        if (!(next > lo && next < hi)) {
            next = (lo + hi) / 2;
        }
        if (next == tau) {
            break;
        }
        tau = next;
    }
    t = dir * tau;
    return true;
}

// The polar angle of p in the frame fixes t up to whole turns; the turn comes from the height
// (t = z / c), else from the radius (t = (rho - r0) / k, or the turn on the far side of the
// axis where the radius has changed sign), else it is the first one. The nearest of the
// candidate turns, and of the two ends, must give back p.
bool angleOfPoint(HelixGeometry const& g, COrxPoint3d const& p, bool bounded, double& t) {
    if (!g.valid || !p.isValid()) {
        return false;
    }
    COrxVector3d const d = p - g.origin;
    double const x = sprod(d, g.xAxis), y = sprod(d, g.yAxis), z = sprod(d, g.zAxis);
    double phi = std::atan2(g.sense * y, x);
    if (phi < 0) {
        phi += kTwoPi;
    }
    double const rho = std::hypot(x, y);
    double best = 0.0, bestDistance = std::numeric_limits<double>::infinity();
    consider(g, p, bounded, 0.0, best, bestDistance);
    consider(g, p, bounded, g.totalAngle, best, bestDistance);
    if (g.riseRate != 0) {
        double const est = z / g.riseRate;
        considerTurns(g, p, bounded, phi, est, best, bestDistance);
        consider(g, p, bounded, est, best, bestDistance);  // on the axis phi says nothing
    } else if (g.radiusRate != 0) {
        considerTurns(g, p, bounded, phi, (rho - g.baseRadius) / g.radiusRate, best, bestDistance);
        considerTurns(g, p, bounded, phi + kPi, (-rho - g.baseRadius) / g.radiusRate, best,
                      bestDistance);
    } else {
        considerTurns(g, p, bounded, phi, phi, best, bestDistance);
    }
    if (!(pointAt(g, best) == p)) {
        return false;
    }
    t = best;
    return true;
}

}  // namespace internal
}  // namespace ORX
