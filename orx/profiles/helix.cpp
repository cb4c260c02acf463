// COrxHelix: fields, validation, transformation and the geometric queries, which all go
// through the frame of internal/helix_geometry.h.
#include "orx/profiles/helix.h"

#include <cmath>

#include "orx/geom/functions.h"
#include "orx/geom/shared/finite.h"
#include "orx/plane_geometry/lines.h"
#include "orx/profiles/internal/helix_geometry.h"

namespace {

ORX::internal::HelixGeometry geometryOf(COrxHelix const& h) {
    return ORX::internal::helixGeometry(h.startPoint(), h.axisPoint(), h.axisVector(),
                                        h.topRadius(), h.turns(), h.turnHeight(), h.orientation());
}

}  // namespace

COrxHelix::COrxHelix()
    : m_topRadius(0.0),
      m_turns(0.0),
      m_turnHeight(0.0),
      m_startPoint(1.0, 0.0, 0.0),
      m_axisPoint(0.0, 0.0, 0.0),
      m_axisVector(COrxVector3d::kZAxis),
      m_orientation(true) {}

COrxHelix::COrxHelix(double topRadius, double turns, double turnHeight,
                     COrxPoint3d const& axisPoint, COrxPoint3d const& startPoint,
                     COrxVector3d const& axisVector, bool orientation) {
    set(topRadius, turns, turnHeight, axisPoint, startPoint, axisVector, orientation);
}

COrxHelix::COrxHelix(COrxHelix const& other) = default;
COrxHelix& COrxHelix::operator=(COrxHelix const& other) = default;
COrxHelix::~COrxHelix() = default;

COrxHelix& COrxHelix::set(double topRadius, double turns, double turnHeight,
                          COrxPoint3d const& axisPoint, COrxPoint3d const& startPoint,
                          COrxVector3d const& axisVector, bool orientation) {
    m_topRadius = topRadius;
    m_turns = turns;
    m_turnHeight = turnHeight;
    m_startPoint = startPoint;
    m_axisPoint = axisPoint;
    m_axisVector = axisVector;
    m_orientation = orientation;
    return validate();
}

COrxHelix& COrxHelix::validate() {
    m_axisVector.normalize();
    COrxPoint3d const axisEnd = m_axisPoint + m_axisVector;
    COrxPoint3d const startFoot = ORX::g_lotp(m_axisPoint, axisEnd, m_startPoint);
    COrxPoint3d const endFoot = ORX::g_lotp(m_axisPoint, axisEnd, endPoint());
    COrxVector3d const rise = endFoot - startFoot;
    if (rise != COrxVector3d::kNull && ORX::sprod(rise, m_axisVector) < 0) {
        m_axisVector = -m_axisVector;
        m_turnHeight = -m_turnHeight;
    }
    return *this;
}

double COrxHelix::height() const {
    return m_turns * m_turnHeight;
}

COrxHelix& COrxHelix::setTopRadius(double r) {
    m_topRadius = r;
    return validate();
}

COrxHelix& COrxHelix::setTurns(double turns) {
    m_turns = turns;
    return *this;
}

COrxHelix& COrxHelix::setTurnHeight(double h) {
    m_turnHeight = h;
    return *this;
}

COrxHelix& COrxHelix::setOrientation(bool counterClockwise) {
    m_orientation = counterClockwise;
    return *this;
}

COrxHelix& COrxHelix::setStartPoint(COrxPoint3d const& p) {
    m_startPoint = p;
    return *this;
}

COrxHelix& COrxHelix::setAxisPoint(COrxPoint3d const& p) {
    m_axisPoint = p;
    return *this;
}

COrxHelix& COrxHelix::setAxisVector(COrxVector3d const& v) {
    m_axisVector = v;
    return *this;
}

double COrxHelix::baseRadius() const {
    COrxPoint3d const foot =
        ORX::g_lotp(m_axisPoint, m_axisPoint + m_axisVector.normal(), m_startPoint);
    return m_startPoint.distanceTo(foot);
}

double COrxHelix::len() const {
    ORX::internal::HelixGeometry const g = geometryOf(*this);
    return g.valid ? std::fabs(ORX::internal::lengthBetween(g, 0.0, g.totalAngle)) : ORX::nan();
}

double COrxHelix::len(double a0, double a1) const {
    ORX::internal::HelixGeometry const g = geometryOf(*this);
    double const length = ORX::internal::lengthBetween(g, a0, a1);
    return g.valid && std::isfinite(length) ? std::fabs(length) : ORX::nan();
}

bool COrxHelix::pointAtAng(double ang, COrxPoint3d& p, bool bounded) const {
    ORX::internal::HelixGeometry const g = geometryOf(*this);
    if (!g.valid || !std::isfinite(ang) || (bounded && !ORX::internal::inRange(g, ang))) {
        return false;
    }
    p = ORX::internal::pointAt(g, ang);
    return true;
}

COrxPoint3d COrxHelix::pointAtLen(double d, bool bounded) const {
    ORX::internal::HelixGeometry const g = geometryOf(*this);
    double t = 0.0;
    if ((bounded && !(d >= 0 && d <= len())) || !ORX::internal::angleAtLength(g, d, t)) {
        return ORX::internal::nanPoint();
    }
    if (bounded) {
        // The root of the full length may land an ulp past the end angle.
        t = std::fmin(std::fmax(t, std::fmin(0.0, g.totalAngle)), std::fmax(0.0, g.totalAngle));
    }
    return ORX::internal::pointAt(g, t);
}

bool COrxHelix::angAtPoint(COrxPoint3d const& p, double& ang, bool bounded) const {
    return ORX::internal::angleOfPoint(geometryOf(*this), p, bounded, ang);
}

COrxVector3d COrxHelix::vectorAtAng(double ang, bool bounded) const {
    ORX::internal::HelixGeometry const g = geometryOf(*this);
    if (!g.valid || !std::isfinite(ang) || (bounded && !ORX::internal::inRange(g, ang))) {
        return COrxVector3d::kNull;
    }
    COrxVector3d const tangent = ORX::internal::tangentAt(g, ang);
    // Towards the end: against growing t when the turns are negative.
    return g.totalAngle < 0 ? -tangent : tangent;
}

COrxVector3d COrxHelix::vectorAtPoint(COrxPoint3d const& p) const {
    double t = 0.0;
    return angAtPoint(p, t, true) ? vectorAtAng(t, true) : COrxVector3d::kNull;
}

COrxVector3d COrxHelix::startVector() const {
    return vectorAtAng(0.0, false);
}

COrxVector3d COrxHelix::endVector() const {
    return vectorAtAng(ORX::kTwoPi * m_turns, false);
}

COrxPoint3d COrxHelix::endPoint() const {
    ORX::internal::HelixGeometry const g = geometryOf(*this);
    return g.valid ? ORX::internal::pointAt(g, g.totalAngle) : ORX::internal::nanPoint();
}

bool COrxHelix::isPoint(COrxPoint3d const& p) const {
    double t = 0.0;
    return angAtPoint(p, t, true);
}

COrxMatrix3d COrxHelix::mtx() const {
    return ORX::internal::frameMatrix(geometryOf(*this));
}

COrxHelix& COrxHelix::transformBy(double const (*m)[4]) {
    double const det = ORX::internal::linearDeterminant(m);
    double const scale = std::cbrt(std::fabs(det));
    m_startPoint *= m;
    m_axisPoint *= m;
    m_axisVector *= m;
    m_axisVector.normalize();
    m_topRadius *= scale;
    m_turnHeight *= scale;
    if (det < 0) {
        m_orientation = !m_orientation;
    }
    return *this;
}

COrxHelix COrxHelix::getTransformedCopy(double const (*m)[4]) const {
    COrxHelix copy(*this);
    return copy.transformBy(m);
}

bool COrxHelix::operator==(COrxHelix const& other) const {
    double const tol = COrxPoint3d::tol;
    return std::fabs(m_topRadius - other.m_topRadius) <= tol &&
           std::fabs(m_turns - other.m_turns) <= ORX::kHelixTurnsEqualTol &&
           std::fabs(m_turnHeight - other.m_turnHeight) <= tol &&
           m_startPoint == other.m_startPoint && m_axisPoint == other.m_axisPoint &&
           m_axisVector == other.m_axisVector && m_orientation == other.m_orientation;
}

bool COrxHelix::operator!=(COrxHelix const& other) const {
    return !(*this == other);
}

COrxString COrxHelix::dump() const {
    COrxString text;
    text.format(
        L"helix start (%g, %g, %g) axis point (%g, %g, %g) axis (%g, %g, %g) "
        L"radius %g to %g, %g turns of %g, %s",
        m_startPoint.x, m_startPoint.y, m_startPoint.z, m_axisPoint.x, m_axisPoint.y, m_axisPoint.z,
        m_axisVector.x, m_axisVector.y, m_axisVector.z, baseRadius(), m_topRadius, m_turns,
        m_turnHeight, m_orientation ? L"counter-clockwise" : L"clockwise");
    return text;
}
