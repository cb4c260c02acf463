// COrxVertex: construction, equality and the arc quantities.
#include "orx/polyline/vertex.h"

#include <cmath>

#include "orx/geom/functions.h"
#include "orx/plane_geometry/plane_geometry.h"

COrxVertex::COrxVertex() : m_bulge(0.0), m_tag(0) {}

COrxVertex::COrxVertex(COrxVertex const& other) = default;

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

// The arc quantities are those of the plane-geometry bulge functions, which compute them
// from the chord and the bulge: a bulge so small that its centre would overflow makes the
// segment behave as its straight chord (no centre, no radius).
bool COrxVertex::radius(double& r) const {
    if (isStraight()) {
        return false;
    }
    double const value = ORX::g_bulg_rad(m_start, m_end, m_bulge);
    if (std::isnan(value)) {
        return false;
    }
    r = value;
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
    COrxPoint3d const centre = ORX::g_bulg_cen(m_start, m_end, m_bulge);
    if (!centre.isValid()) {
        return false;
    }
    c = centre;
    return true;
}

COrxPoint3d COrxVertex::center() const {
    COrxPoint3d c(ORX::nan(), ORX::nan(), ORX::nan());
    center(c);
    return c;
}

bool COrxVertex::toArc(COrxPoint3d& centre, double& r, double& startAngle, double& endAngle) const {
    COrxPoint3d c;
    double radiusValue = 0.0;
    if (!center(c) || !radius(radiusValue)) {
        return false;
    }
    centre = c;
    r = radiusValue;
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
    return ORX::g_bulg_len(m_start, m_end, m_bulge);
}

COrxPoint3d COrxVertex::mid() const {
    return ORX::g_bulg_mid(m_start, m_end, m_bulge);
}
