// COrxVertex: construction, equality and the arc quantities.
#include "orx/polyline/vertex.h"

#include <cmath>

#include "orx/geom/functions.h"
#include "orx/plane_geometry/plane_geometry.h"

namespace {

// Z x (end - start): the left-hand normal of the chord, not normalised.
COrxVector3d chordLeftNormal(COrxPoint3d const& start, COrxPoint3d const& end) {
    return COrxVector3d::kZAxis * (end - start);
}

COrxPoint3d midpoint(COrxPoint3d const& a, COrxPoint3d const& b) {
    return COrxPoint3d((a.x + b.x) / 2, (a.y + b.y) / 2, (a.z + b.z) / 2);
}

}  // namespace

COrxVertex::COrxVertex() : m_bulge(0.0), m_tag(0) {}

COrxVertex::COrxVertex(COrxVertex const& other)
    : COrxObj(other),
      m_start(other.m_start),
      m_end(other.m_end),
      m_bulge(other.m_bulge),
      m_tag(other.m_tag) {}

COrxVertex& COrxVertex::operator=(COrxVertex const& other) {
    m_start = other.m_start;
    m_end = other.m_end;
    m_bulge = other.m_bulge;
    m_tag = other.m_tag;
    return *this;
}

COrxVertex::COrxVertex(COrxPoint3d const& start, COrxPoint3d const& end, double bulge)
    : m_start(start), m_end(end), m_bulge(bulge), m_tag(0) {}

COrxVertex::COrxVertex(COrxPoint3d const& start, COrxPoint3d const& through, COrxPoint3d const& end)
    : m_start(start), m_end(end), m_bulge(0.0), m_tag(0) {
    double bulge = 0.0;
    if (ORX::g_arc3p_bulg(start, through, end, bulge)) {
        m_bulge = bulge;
    }
}

COrxVertex::COrxVertex(COrxPoint3d const& centre, double radius, double startAngle, double endAngle)
    : m_start(ORX::polar(centre, startAngle, radius)),
      m_end(ORX::polar(centre, endAngle, radius)),
      m_bulge(ORX::g_arc_bulg(startAngle, endAngle)),
      m_tag(0) {}

COrxVertex::~COrxVertex() = default;

COrxVertex& COrxVertex::set(COrxPoint3d const& start, COrxPoint3d const& end, double bulge) {
    m_start = start;
    m_end = end;
    m_bulge = bulge;
    return *this;
}

COrxVertex& COrxVertex::setTag(int tag) {
    m_tag = tag;
    return *this;
}

bool COrxVertex::operator==(COrxVertex const& other) const {
    if (this == &other) {
        return true;
    }
    return std::fabs(m_bulge - other.m_bulge) < ORX::kBulgeEqualTol && m_start == other.m_start &&
           m_end == other.m_end;
}

bool COrxVertex::radius(double& r) const {
    if (isStraight()) {
        return false;
    }
    r = m_start.distanceTo(m_end) * 0.25 * std::fabs(1.0 / m_bulge + m_bulge);
    return true;
}

double COrxVertex::radius() const {
    double r = ORX::nan();
    radius(r);
    return r;
}

bool COrxVertex::center(COrxPoint3d& c) const {
    if (isStraight()) {
        return false;
    }
    if (m_start == m_end) {
        c = midpoint(m_start, m_end);
        return true;
    }
    double const d = m_start.distanceTo(m_end);
    COrxVector3d const u = chordLeftNormal(m_start, m_end).normal();
    double const h = d / 4 * (1.0 / m_bulge + m_bulge) - m_bulge * d / 2;
    c = midpoint(m_start, m_end) + u * h;
    return true;
}

COrxPoint3d COrxVertex::center() const {
    COrxPoint3d c(ORX::nan(), ORX::nan(), ORX::nan());
    center(c);
    return c;
}

bool COrxVertex::toArc(COrxPoint3d& centre, double& r, double& startAngle, double& endAngle) const {
    if (!center(centre)) {
        return false;
    }
    radius(r);
    if (m_bulge > 0.0) {
        startAngle = ORX::angle(centre, m_start);
        endAngle = ORX::angle(centre, m_end);
    } else {
        startAngle = ORX::angle(centre, m_end);
        endAngle = ORX::angle(centre, m_start);
    }
    return true;
}

double COrxVertex::bulgLen() const {
    double const chord = m_start.distanceTo(m_end);
    if (isStraight()) {
        return chord;
    }
    double const theta = std::fabs(4.0 * std::atan(m_bulge));
    return chord / (2.0 * std::sin(theta / 2)) * theta;
}

COrxPoint3d COrxVertex::mid() const {
    COrxPoint3d const m = midpoint(m_start, m_end);
    if (isStraight() || m_start == m_end) {
        return m;
    }
    return m - chordLeftNormal(m_start, m_end) * (m_bulge / 2);
}
