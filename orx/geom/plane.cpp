#include "orx/geom/plane.h"

#include <cmath>

#include "orx/geom/functions.h"
#include "orx/geom/matrix.h"
#include "orx/geom/shared/line_intersection.h"

COrxPlane::COrxPlane() : m_origin(0.0, 0.0, 0.0), m_normal(COrxVector3d::kZAxis) {}

COrxPlane::COrxPlane(COrxPlane const& other)
    : COrxObj(other), m_origin(other.m_origin), m_normal(other.m_normal) {}

COrxPlane::COrxPlane(COrxPoint3d const& origin, COrxVector3d const& normal) {
    set(origin, normal);
}

COrxPlane::COrxPlane(COrxPoint3d const& p1, COrxPoint3d const& p2, COrxPoint3d const& p3) {
    set(p1, p2, p3);
}

COrxPlane::~COrxPlane() = default;

COrxPlane& COrxPlane::operator=(COrxPlane const& other) {
    m_origin = other.m_origin;
    m_normal = other.m_normal;
    return *this;
}

COrxPlane& COrxPlane::set(COrxPoint3d const& origin, COrxVector3d const& normal) {
    m_origin = origin;
    return setNormal(normal);
}

COrxPlane& COrxPlane::set(COrxPoint3d const& p1, COrxPoint3d const& p2, COrxPoint3d const& p3) {
    return set(p2, (p1 - p2) * (p3 - p2));
}

COrxPlane& COrxPlane::setPosition(COrxPoint3d const& origin) {
    m_origin = origin;
    return *this;
}

COrxPlane& COrxPlane::setNormal(COrxVector3d const& n) {
    m_normal = n.normal();
    return *this;
}

COrxPoint3d COrxPlane::position() const {
    return m_origin;
}

COrxVector3d COrxPlane::normal() const {
    return m_normal;
}

bool COrxPlane::operator==(COrxPlane const& other) const {
    return this == &other || (m_origin == other.m_origin && m_normal == other.m_normal);
}

bool COrxPlane::operator!=(COrxPlane const& other) const {
    return !(*this == other);
}

COrxPlane& COrxPlane::transformBy(double const (*m)[4]) {
    m_origin *= m;
    m_normal *= m;
    return *this;
}

COrxPlane COrxPlane::getTransformedCopy(double const (*m)[4]) const {
    COrxPlane copy(*this);
    return copy.transformBy(m);
}

bool COrxPlane::intersectWith(COrxPlane const& other, COrxPoint3d& p, COrxVector3d& d) const {
    COrxVector3d const& u = m_normal;
    COrxVector3d const& w = other.m_normal;
    if (u == w || u == -w) {
        return false;
    }
    COrxVector3d const direction = (u * w).normalize();
    COrxMatrix3d toLine;
    toLine.setToWorldToPlane(direction);
    // Seen along the meeting line, each plane is a line: through its origin, along the
    // in-plane direction perpendicular to the meeting line.
    COrxPoint3d const a1 = m_origin * toLine;
    COrxPoint3d const a2 = (m_origin + u * direction) * toLine;
    COrxPoint3d const b1 = other.m_origin * toLine;
    COrxPoint3d const b2 = (other.m_origin + w * direction) * toLine;
    COrxPoint3d meeting;
    if (!ORX::internal::intersectLines(a1, a2, b1, b2, false, meeting)) {
        return false;
    }
    COrxPoint3d const onBoth = meeting * toLine.inverse();
    if (!onBoth.isValid()) {
        return false;
    }
    p = onBoth;
    d = direction;
    return true;
}

bool COrxPlane::intersectWith(COrxPoint3d const& q, COrxVector3d const& v, COrxPoint3d& p) const {
    COrxVector3d const unit = v.normal();
    if (unit == COrxVector3d::kNull || std::fabs(ORX::sprod(m_normal, unit)) < COrxVector3d::tol) {
        return false;
    }
    double const t = ORX::sprod(m_normal, m_origin - q) / ORX::sprod(m_normal, v);
    COrxPoint3d const hit = q + v * t;
    if (!hit.isValid()) {
        return false;
    }
    p = hit;
    return true;
}

bool COrxPlane::intersectWith(COrxPoint3d const& q1, COrxPoint3d const& q2, COrxPoint3d& p) const {
    COrxVector3d const v = q2 - q1;
    COrxPoint3d hit;
    if (!intersectWith(q1, v, hit)) {
        return false;
    }
    double const t = ORX::sprod(hit - q1, v) / ORX::sprod(v, v);
    if (!(hit == q1 || hit == q2 || (t >= 0.0 && t <= 1.0))) {
        return false;
    }
    p = hit;
    return true;
}
