// COrxVertex: where a point lies relative to the segment.
#include <cmath>
#include <initializer_list>

#include "orx/geom/functions.h"
#include "orx/plane_geometry/plane_geometry.h"
#include "orx/plane_geometry/shared/arc_frame.h"
#include "orx/polyline/vertex.h"

bool COrxVertex::isPoint(COrxPoint3d const& p) const {
    if (p == m_start || p == m_end) {
        return true;
    }
    if (farFrom(p)) {
        return false;
    }
    if (isStraight()) {
        return ORX::g_line_pt(m_start, m_end, p);
    }
    // The distance to the arc itself: beyond its ends the distance to the nearer end.
    return ORX::g_bulg_pt_dist(m_start, m_end, m_bulge, p) <= COrxPoint3d::tol;
}

COrxPoint3d COrxVertex::lotp(COrxPoint3d const& p) const {
    if (m_start == m_end) {
        return m_start;
    }
    if (isStraight()) {
        return ORX::g_lotp(m_start, m_end, p);
    }
    return ORX::g_bulg_lotp(m_start, m_end, m_bulge, p);
}

bool COrxVertex::distAtPoint(double& dist, COrxPoint3d const& p) const {
    if (!isPoint(p)) {
        return false;
    }
    if (p == m_start) {
        dist = 0.0;
    } else if (p == m_end) {
        dist = bulgLen();
    } else if (isStraight()) {
        dist = m_start.distanceTo(p);
    } else {
        dist =
            std::fmin(std::fmax(0.0, ORX::g_bulg_dist_at(m_start, m_end, m_bulge, p)), bulgLen());
    }
    return true;
}

bool COrxVertex::pointAtDist(COrxPoint3d& p, double dist, bool bounded) const {
    if (!std::isfinite(dist) || (bounded && (dist < 0.0 || dist > bulgLen()))) {
        return false;
    }
    p = ORX::g_bulg_pt_at(m_start, m_end, m_bulge, dist);
    return true;
}

int COrxVertex::orientp(COrxPoint3d const& p) const {
    COrxPoint3d const foot = lotp(p);
    if (p == foot) {
        return 0;
    }
    double const tangent = wTan(foot);
    return ORX::g_ang_equal(ORX::angle(foot, p), tangent + ORX::kHalfPi, ORX::kTangentAngleTol)
               ? 1
               : -1;
}

double COrxVertex::wTan(COrxPoint3d const& p) const {
    COrxPoint3d c;
    if (!center(c)) {
        return ORX::angle(m_start, m_end);  // straight, or an arc that is its chord
    }
    double const radial = ORX::angle(c, p);
    return ORX::g_ang(m_bulge > 0.0 ? radial + ORX::kHalfPi : radial - ORX::kHalfPi);
}

bool COrxVertex::coLinear(COrxVertex const& other) const {
    if (isStraight() != other.isStraight()) {
        return false;
    }
    if (isStraight()) {
        // Both ends of the other segment lie on this segment's infinite line.
        return ORX::g_lotp(m_start, m_end, other.m_start) == other.m_start &&
               ORX::g_lotp(m_start, m_end, other.m_end) == other.m_end;
    }
    if ((m_bulge > 0.0) != (other.m_bulge > 0.0)) {
        return false;
    }
    // One circle: each arc's ends and midpoint lie on the other's circle. Compared on the
    // circles themselves rather than through the centres, which a nearly straight arc puts
    // too far away to compare within the tolerance.
    return onCircleOf(other) && other.onCircleOf(*this);
}

// p lies outside the segment's box widened by the tolerance (an arc up to a half circle lies
// within a bound of its sagitta of its chord): it cannot be on the segment. NaN is never far.
bool COrxVertex::farFrom(COrxPoint3d const& p) const {
    double const b = std::fabs(m_bulge);
    if (!(b <= 1.0)) {
        return false;
    }
    double const reach = b * (std::fabs(m_end.x - m_start.x) + std::fabs(m_end.y - m_start.y)) / 2 +
                         2 * COrxPoint3d::tol;
    return (p.x + reach < m_start.x && p.x + reach < m_end.x) ||
           (p.x - reach > m_start.x && p.x - reach > m_end.x) ||
           (p.y + reach < m_start.y && p.y + reach < m_end.y) ||
           (p.y - reach > m_start.y && p.y - reach > m_end.y);
}

bool COrxVertex::onCircleOf(COrxVertex const& other) const {
    ORX::internal::ArcFrame const frame(other.m_start, other.m_end, other.m_bulge);
    return frame.valid() && frame.holdsArc(m_start, m_end, m_bulge);
}
