// COrxVertex: editing (direction, transformations, moving an end along the circle, offset).
#include <cmath>

#include "orx/geom/functions.h"
#include "orx/geom/matrix.h"
#include "orx/geom/matrix_functions.h"
#include "orx/geom/plane.h"
#include "orx/plane_geometry/plane_geometry.h"
#include "orx/plane_geometry/shared/bulge_sweep.h"
#include "orx/polyline/vertex.h"

namespace {

// Negation that keeps a straight segment's bulge exactly +0.0.
double negatedBulge(double bulge) {
    return bulge == 0.0 ? 0.0 : -bulge;
}

}  // namespace

COrxVertex& COrxVertex::revert() {
    COrxPoint3d const start = m_start;
    m_start = m_end;
    m_end = start;
    m_bulge = negatedBulge(m_bulge);
    return *this;
}

COrxVertex COrxVertex::reverse() const {
    COrxVertex copy(m_start, m_end, m_bulge);
    return copy.revert();
}

COrxVertex& COrxVertex::complement() {
    revert();
    if (!isStraight()) {
        m_bulge = std::tan((ORX::internal::bulgeSweep(m_bulge) - ORX::kTwoPi) / 4.0);
    }
    return *this;
}

COrxVertex COrxVertex::unite(COrxVertex const& other) const {
    COrxVertex united(*this);
    if (&other != this) {
        united.setEndPoint(other.m_end);
    }
    return united;
}

COrxVertex& COrxVertex::move(COrxVector3d const& v) {
    m_start += v;
    m_end += v;
    return *this;
}

COrxVertex& COrxVertex::rotate(double angle, COrxPoint3d const& centre) {
    COrxMatrix3d rotation;
    rotation.setToRotation(angle, COrxVector3d::kZAxis, centre);
    return transformBy(rotation);
}

COrxVertex& COrxVertex::transformBy(double const (*m)[4]) {
    m_start *= m;
    m_end *= m;
    if (!isStraight() && ORX::mtxIsMir(m)) {
        m_bulge = -m_bulge;
    }
    return *this;
}

COrxVertex COrxVertex::getTransformedCopy(double const (*m)[4]) const {
    COrxVertex copy(*this);
    return copy.transformBy(m);
}

COrxVertex& COrxVertex::mirror(double angle, COrxPoint3d const& p) {
    COrxMatrix3d reflection;
    reflection.setToMirroring(COrxPlane(p, COrxVector3d(-std::sin(angle), std::cos(angle), 0)));
    m_start *= reflection;
    m_end *= reflection;
    m_bulge = negatedBulge(m_bulge);
    return *this;
}

// An arc keeps its circle: the new end is the radial foot of q, and the new bulge turns
// through the angle from the start to it in the arc's own sense (computed from the chord,
// see g_bulg_to). A segment whose ends coincide has no circle to keep and takes q as it is.
COrxVertex& COrxVertex::setEndPoint(COrxPoint3d const& q) {
    if (isStraight() || !hasChord()) {
        m_end = q;
        return *this;
    }
    double const bulge = ORX::g_bulg_to(m_start, m_end, m_bulge, q);
    m_end = ORX::g_bulg_lotp(m_start, m_end, m_bulge, q);
    m_bulge = bulge;
    return *this;
}

COrxVertex& COrxVertex::setStartPoint(COrxPoint3d const& q) {
    if (isStraight() || !hasChord()) {
        m_start = q;
        return *this;
    }
    double const bulge = ORX::g_bulg_from(m_start, m_end, m_bulge, q);
    m_start = ORX::g_bulg_lotp(m_start, m_end, m_bulge, q);
    m_bulge = bulge;
    return *this;
}

bool COrxVertex::hasChord() const {
    return m_start.x != m_end.x || m_start.y != m_end.y;
}

COrxVertex& COrxVertex::offset(double d) {
    if (d == 0.0 || !std::isfinite(d)) {
        return *this;
    }
    COrxPoint3d c;
    double r = 0.0;
    if (!center(c) || !radius(r)) {
        COrxVector3d const right = (COrxVector3d::kZAxis * (m_start - m_end)).normal();
        return move(right * d);
    }
    double const signedD = m_bulge > 0.0 ? d : -d;
    if (r + signedD < 0.0) {
        m_start = c;  // the arc collapses onto its centre; the bulge is kept
        m_end = c;
        return *this;
    }
    m_start += (m_start - c).normal() * signedD;
    m_end += (m_end - c).normal() * signedD;
    return *this;
}

COrxVertex& COrxVertex::offset(COrxPoint3d p) {
    COrxPoint3d const foot = lotp(p);
    int const side = orientp(p);
    if (side == 0) {
        return *this;
    }
    // Positive offsets go to the right of the direction of travel.
    return offset(side > 0 ? -foot.distanceTo(p) : foot.distanceTo(p));
}
