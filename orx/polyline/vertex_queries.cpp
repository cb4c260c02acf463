// COrxVertex: where a point lies relative to the segment.
#include <cmath>

#include "orx/geom/functions.h"
#include "orx/plane_geometry/plane_geometry.h"
#include "orx/polyline/vertex.h"

namespace {

// Angle swept from a0 to a1 in the direction given by the bulge's sign, in [0, 2pi).
double sweptAngle(double a0, double a1, double bulge) {
    return bulge > 0.0 ? ORX::g_ang(a1 - a0) : ORX::g_ang(a0 - a1);
}

}  // namespace

bool COrxVertex::isPoint(COrxPoint3d const& p) const {
    if (p == m_start || p == m_end) {
        return true;
    }
    if (isStraight()) {
        return ORX::g_line_pt(m_start, m_end, p);
    }
    COrxPoint3d c;
    double r = 0.0, a0 = 0.0, a1 = 0.0;
    toArc(c, r, a0, a1);
    return ORX::g_arc_pt(c, r, a0, a1, p);
}

COrxPoint3d COrxVertex::lotp(COrxPoint3d const& p) const {
    if (m_start == m_end) {
        return m_start;
    }
    if (isStraight()) {
        return ORX::g_lotp(m_start, m_end, p);
    }
    COrxPoint3d const c = center();
    return ORX::polar(c, ORX::angle(c, p), c.distanceTo(m_start));
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
        COrxPoint3d const c = center();
        dist = sweptAngle(ORX::angle(c, m_start), ORX::angle(c, p), m_bulge) * radius();
    }
    return true;
}

bool COrxVertex::pointAtDist(COrxPoint3d& p, double dist, bool bounded) const {
    if (!std::isfinite(dist) || (bounded && (dist < 0.0 || dist > bulgLen()))) {
        return false;
    }
    if (isStraight()) {
        p = m_start + (m_end - m_start).normal() * dist;
        return true;
    }
    COrxPoint3d const c = center();
    double const r = radius();
    double const a0 = ORX::angle(c, m_start);
    p = ORX::polar(c, m_bulge > 0.0 ? a0 + dist / r : a0 - dist / r, r);
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
    if (isStraight()) {
        return ORX::angle(m_start, m_end);
    }
    double const radial = ORX::angle(center(), p);
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
    return center() == other.center() && std::fabs(radius() - other.radius()) <= COrxPoint3d::tol;
}
