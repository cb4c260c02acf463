#include "orx/plane_geometry/shared/circle_probe.h"

#include <cmath>

#include "orx/plane_geometry/shared/arc_frame.h"

namespace ORX {
namespace internal {

namespace {

// Bound on the rounding of a frame coordinate and of the curve's value near the circle,
// relative to the size of the coordinates (a generous multiple of the double epsilon).
constexpr double kRoundingBound = 1e-14;

}  // namespace

CircleProbe::CircleProbe(COrxPoint3d const& start, COrxPoint3d const& end, double bulge) {
    double const dx = end.x - start.x, dy = end.y - start.y;
    double const squared = dx * dx + dy * dy;
    // Only well-scaled segments: no overflow, underflow or NaN anywhere below, and ends and
    // heights the chord frame itself accepts.
    m_usable = squared > 1e-200 && squared < 1e200 && std::isfinite(bulge) &&
               std::isfinite(start.z) && std::isfinite(end.z) && std::isfinite(start.x + start.y);
    if (!m_usable) {
        return;
    }
    double const chord = std::sqrt(squared);
    m_h = chord / 2;
    m_cu = dx / (chord * m_h);
    m_cv = dy / (chord * m_h);
    m_mx = start.x + dx / 2;
    m_my = start.y + dy / 2;
    double kappa = 0.0;
    curvatureTerms(bulge, kappa, m_gamma);
    m_a = (bulge < 0.0 ? -1.0 : 1.0) * kappa / 2;
}

bool CircleProbe::surelyNear(double x, double y, double tol) const {
    double const rx = x - m_mx, ry = y - m_my;
    double const fx = rx * m_cu + ry * m_cv, fy = ry * m_cu - rx * m_cv;
    double const size = 1 + fx * fx + fy * fy;
    double const value = m_a * (size - 2) - m_gamma * fy;
    // Within a quarter of the band even after the rounding of the frame coordinates (each
    // relative to |r| / h, the point's distance in half chords) and of the value itself.
    double const rounding = kRoundingBound * size;
    return 4 * m_h * (std::fabs(value) + rounding) <= tol;
}

bool CircleProbe::surelyHolds(COrxPoint3d const& start, COrxPoint3d const& end, double bulge,
                              double tol) const {
    if (!m_usable) {
        return false;
    }
    double const dx = end.x - start.x, dy = end.y - start.y;
    double const mx = (start.x + end.x) / 2 + dy * (bulge / 2);
    double const my = (start.y + end.y) / 2 - dx * (bulge / 2);
    return surelyNear(start.x, start.y, tol) && surelyNear(end.x, end.y, tol) &&
           surelyNear(mx, my, tol);
}

}  // namespace internal
}  // namespace ORX
