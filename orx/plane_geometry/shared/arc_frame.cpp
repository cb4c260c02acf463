#include "orx/plane_geometry/shared/arc_frame.h"

#include <cmath>

#include "orx/geom/shared/finite.h"

#include "orx/geom/functions.h"
#include "orx/plane_geometry/shared/bulge_sweep.h"
#include "orx/plane_geometry/shared/curve.h"

namespace ORX {
namespace internal {

namespace {

// The arc's circle in its own frame, divided by 1 + b^2 so that no bulge overflows it:
// (kappa/2) s (x^2 + y^2 - 1) - gamma y = 0 with kappa the curvature in half chords, gamma
// = (1 - b^2) / (1 + b^2) and s the sign of b. Its gradient has length 1 on the circle. For
// a flat arc the chord line y = 0, with the distance positive on the right as the arcs' is
// outside.
Curve frameCurve(double kappa, double gamma, double sign) {
    double const a = sign * kappa / 2;
    return {a, 0.0, -gamma, -a};
}

}  // namespace

void curvatureTerms(double bulge, double& kappa, double& gamma) {
    // Both are unchanged when b turns into 1/b (gamma changes sign): above 1 they are
    // written in 1/b so that b^2 cannot overflow.
    double const b = std::fabs(bulge);
    double const c = b <= 1.0 ? b : 1 / b;
    kappa = 2 * c / (1 + c * c);
    gamma = (b <= 1.0 ? 1.0 : -1.0) * (1 - c * c) / (1 + c * c);
}

ArcFrame::ArcFrame(COrxPoint3d const& start, COrxPoint3d const& end, double bulge) : m_b(bulge) {
    double const dx = end.x - start.x, dy = end.y - start.y;
    double const chord = planLength(dx, dy);
    m_h = chord / 2;
    // A chord of the smallest subnormal length has no half: the frame would divide by zero,
    // so such a segment has coinciding ends, as one of length zero.
    m_valid = m_h > 0.0 && std::isfinite(chord) && std::isfinite(bulge) && std::isfinite(start.z) &&
              std::isfinite(end.z);
    m_ux = m_valid ? dx / chord : 1.0;
    m_uy = m_valid ? dy / chord : 0.0;
    m_mx = start.x + dx / 2;
    m_my = start.y + dy / 2;
    m_mz = start.z + (end.z - start.z) / 2;
    m_sign = bulge < 0.0 ? -1.0 : 1.0;
    curvatureTerms(bulge, m_kappa, m_gamma);
}

bool ArcFrame::flat() const {
    return std::fabs(m_b) < kFlatBulge;
}

FramePoint ArcFrame::toFrame(double x, double y) const {
    double const rx = x - m_mx, ry = y - m_my;
    return {(rx * m_ux + ry * m_uy) / m_h, (ry * m_ux - rx * m_uy) / m_h};
}

COrxPoint3d ArcFrame::toWorld(FramePoint const& q) const {
    return COrxPoint3d(m_mx + m_h * (q.x * m_ux - q.y * m_uy),
                       m_my + m_h * (q.x * m_uy + q.y * m_ux), m_mz);
}

void ArcFrame::toWorldDirection(FramePoint const& v, double& dx, double& dy) const {
    dx = m_h * (v.x * m_ux - v.y * m_uy);
    dy = m_h * (v.x * m_uy + v.y * m_ux);
}

double ArcFrame::sweepAngle() const {
    return bulgeSweep(std::fabs(m_b));
}

double ArcFrame::radius() const {
    return 1 / m_kappa;
}

double ArcFrame::centreY() const {
    return m_sign * m_gamma / m_kappa;
}

// The cross products of the start's and the end's radius with q's, seen from the centre in
// the arc's sense, divided by the positive R^2 / kappa so that they stay finite as the centre
// runs away: >= 0 when q lies beyond the start's radius, before the end's.
double ArcFrame::sigmaStart(FramePoint const& q) const {
    return m_gamma * (1 + q.x) - m_sign * m_kappa * q.y;
}

double ArcFrame::sigmaEnd(FramePoint const& q) const {
    return m_gamma * (1 - q.x) - m_sign * m_kappa * q.y;
}

// The angle from the start's radius to q's in the arc's sense, in (-pi, pi]: atan2 of the
// cross and the dot product of the two radii, both divided by R^2.
double ArcFrame::angleFromStart(FramePoint const& q) const {
    double const dot =
        m_gamma * m_gamma - m_sign * m_gamma * m_kappa * q.y - m_kappa * m_kappa * q.x;
    return std::atan2(m_kappa * sigmaStart(q), dot);
}

double ArcFrame::circleDistance(FramePoint const& q) const {
    return curveDistance(frameCurve(m_kappa, m_gamma, m_sign), q.x, q.y);
}

bool ArcFrame::inSweep(FramePoint const& q) const {
    if (flat()) {
        return q.x >= -1.0 && q.x <= 1.0;
    }
    bool const afterStart = sigmaStart(q) >= 0.0;
    bool const beforeEnd = sigmaEnd(q) >= 0.0;
    // Up to a half circle the sector is where both hold; beyond it, where either does.
    return std::fabs(m_b) <= 1.0 ? afterStart && beforeEnd : afterStart || beforeEnd;
}

double ArcFrame::distanceToSegment(FramePoint const& q) const {
    if (inSweep(q)) {
        return std::fabs(circleDistance(q));
    }
    return nearerEndDistance(q);
}

double ArcFrame::nearerEndDistance(FramePoint const& q) const {
    return std::fmin(planLength(q.x + 1, q.y), planLength(q.x - 1, q.y));
}

FramePoint ArcFrame::foot(FramePoint const& q) const {
    FramePoint f = q;
    curveFoot(frameCurve(m_kappa, m_gamma, m_sign), f.x, f.y);
    return f;
}

double ArcFrame::fraction(FramePoint const& q) const {
    if (flat()) {
        return (1 + q.x) / 2;
    }
    double const sweep = sweepAngle();
    double phi = angleFromStart(q);
    // Outside the arc, count from the nearer end: the gap of the circle is split in halves.
    if (phi < -(kTwoPi - sweep) / 2) {
        phi += kTwoPi;
    }
    return phi / sweep;
}

FramePoint ArcFrame::pointAt(double t) const {
    if (flat()) {
        return {-1 + 2 * t, 0.0};
    }
    // The chord from the start to the point: 2R sin(t |theta| / 2) long, turned from the
    // chord by (t - 1) theta / 2 (theta signed).
    double const quarter = std::atan(m_b);
    double const length = 2 / m_kappa * std::sin(t * 2 * std::fabs(quarter));
    double const turn = (t - 1) * 2 * quarter;
    return {-1 + length * std::cos(turn), length * std::sin(turn)};
}

double ArcFrame::sweepTo(FramePoint const& q) const {
    double phi = flat() ? fraction(q) * sweepAngle() : angleFromStart(q);
    if (phi < 0.0) {
        phi += kTwoPi;
    }
    return phi;
}

bool ArcFrame::nearCircle(FramePoint const& q, double tol) const {
    // The frame's curve has unit scale (kappa^2 + gamma^2 = 1), so the distance is at most
    // twice the curve's value: a value within a quarter of the band answers for it. Rounding
    // cannot turn that answer, and a NaN or overflowed value takes the full computation.
    Curve const c = frameCurve(m_kappa, m_gamma, m_sign);
    if (4 * m_h * std::fabs(curveValue(c, q.x, q.y)) <= tol) {
        return true;
    }
    return m_h * std::fabs(curveDistance(c, q.x, q.y)) <= tol;
}

bool ArcFrame::nearSegment(FramePoint const& q, double tol) const {
    if (inSweep(q)) {
        return nearCircle(q, tol);
    }
    return m_h * nearerEndDistance(q) <= tol;
}

bool ArcFrame::holdsArc(COrxPoint3d const& start, COrxPoint3d const& end, double bulge) const {
    auto near = [this](double x, double y) { return nearCircle(toFrame(x, y), COrxPoint3d::tol); };
    // The middle (as g_bulg_mid gives it for an arc) last: most pairs are told apart by an end.
    double const dx = end.x - start.x, dy = end.y - start.y;
    double const mx = (start.x + end.x) / 2 + dy * (bulge / 2);
    double const my = (start.y + end.y) / 2 - dx * (bulge / 2);
    return near(start.x, start.y) && near(end.x, end.y) && near(mx, my);
}

Curve ArcFrame::curveAbout(double ox, double oy) const {
    // h^2 times the frame's circle, rewritten in world offsets q from the origin: with m the
    // chord midpoint and n the chord's left normal, a |q - m|^2 - gamma h n.(q - m) - a h^2.
    double const a = m_sign * m_kappa / 2;
    double const mx = m_mx - ox, my = m_my - oy;
    double const nx = -m_uy, ny = m_ux;
    double const c = m_gamma * m_h;
    return {a, -2 * a * mx - c * nx, -2 * a * my - c * ny,
            a * (mx * mx + my * my - m_h * m_h) + c * (mx * nx + my * ny)};
}

COrxPoint3d ArcFrame::middle() const {
    return COrxPoint3d(m_mx, m_my, m_mz);
}

}  // namespace internal
}  // namespace ORX
