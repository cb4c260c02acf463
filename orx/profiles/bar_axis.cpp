// COrxBarAxis: fields, validation, radii and turns, and the queries, which a helical bar
// hands to its COrxHelix.
#include "orx/profiles/bar_axis.h"

#include <algorithm>
#include <climits>
#include <cmath>

#include "orx/geom/functions.h"
#include "orx/geom/shared/finite.h"
#include "orx/plane_geometry/lines.h"
#include "orx/profiles/internal/helix_geometry.h"

namespace {

// What the radii, height and turns of a straight bar read.
constexpr double kNoHelixValue = -1.0;

// A double brought to an int: truncated into the int range, 0 for NaN.
int clampedInt(double v) {
    if (std::isnan(v)) {
        return 0;
    }
    return static_cast<int>(std::min(std::max(v, double(INT_MIN)), double(INT_MAX)));
}

}  // namespace

COrxBarAxis::COrxBarAxis()
    : m_axisVector(COrxVector3d::kZAxis), m_turns(0), m_orientation(1), m_twist(0.0) {
    validate();
}

COrxBarAxis::COrxBarAxis(COrxBarAxis const& other) = default;

COrxBarAxis::COrxBarAxis(COrxPoint3d const& start, COrxPoint3d const& end,
                         COrxPoint3d const& axisPoint, COrxVector3d const& axisVector, int turns,
                         int orientation, double twist) {
    set(start, end, axisPoint, axisVector, turns, orientation, twist);
}

COrxBarAxis& COrxBarAxis::operator=(COrxBarAxis const& other) = default;
COrxBarAxis::~COrxBarAxis() = default;

COrxBarAxis& COrxBarAxis::set(COrxPoint3d const& start, COrxPoint3d const& end,
                              COrxPoint3d const& axisPoint, COrxVector3d const& axisVector,
                              int turns, int orientation, double twist) {
    m_start = start;
    m_end = end;
    m_axisPoint = axisPoint;
    m_axisVector = axisVector;
    m_turns = turns;
    m_orientation = orientation;
    m_twist = twist;
    return validate();
}

COrxBarAxis& COrxBarAxis::validate() {
    if (isStraight()) {
        return *this;
    }
    m_axisVector.normalize();
    COrxVector3d const rise = footOf(m_end) - footOf(m_start);
    if (rise != COrxVector3d::kNull && ORX::sprod(rise, m_axisVector) < 0) {
        m_axisVector = -m_axisVector;
    }
    return *this;
}

COrxBarAxis& COrxBarAxis::setStartPoint(COrxPoint3d const& p) {
    m_start = p;
    return *this;
}

COrxBarAxis& COrxBarAxis::setEndPoint(COrxPoint3d const& p) {
    m_end = p;
    return *this;
}

COrxBarAxis& COrxBarAxis::setAxisPoint(COrxPoint3d const& p) {
    m_axisPoint = p;
    return *this;
}

COrxBarAxis& COrxBarAxis::setAxisVector(COrxVector3d const& v) {
    m_axisVector = v;
    return *this;
}

COrxBarAxis& COrxBarAxis::setTurns(int turns) {
    m_turns = turns;
    return *this;
}

COrxBarAxis& COrxBarAxis::setOrientation(int orientation) {
    m_orientation = orientation;
    return *this;
}

COrxBarAxis& COrxBarAxis::setTwist(double twist) {
    m_twist = twist;
    return *this;
}

COrxPoint3d COrxBarAxis::footOf(COrxPoint3d const& p) const {
    return ORX::g_lotp(m_axisPoint, m_axisPoint + m_axisVector, p);
}

double COrxBarAxis::baseRadius() const {
    return isStraight() ? kNoHelixValue : m_start.distanceTo(footOf(m_start));
}

double COrxBarAxis::topRadius() const {
    return isStraight() ? kNoHelixValue : m_end.distanceTo(footOf(m_end));
}

double COrxBarAxis::height() const {
    return isStraight() ? kNoHelixValue : footOf(m_start).distanceTo(footOf(m_end));
}

double COrxBarAxis::turnsExact() const {
    if (isStraight()) {
        return kNoHelixValue;
    }
    COrxVector3d r = m_end - footOf(m_end);
    COrxVector3d const x = mtx().axis(0);
    double a = 0.0;
    if (r != COrxVector3d::kNull) {
        r.normalize();
        // Clamped: rounding may push the cosine of parallel unit vectors past 1.
        a = std::acos(std::min(1.0, std::max(-1.0, ORX::sprod(x, r))));
        COrxVector3d const side = r * x;
        if (side.x + side.y + side.z > 0 && a != 0) {
            a = ORX::kTwoPi - a;
        }
    }
    if (m_orientation < 0 && a != 0) {
        a = ORX::kTwoPi - a;
    }
    return m_turns + a / ORX::kTwoPi;
}

double COrxBarAxis::turnHeight() const {
    return isStraight() ? kNoHelixValue : height() / turnsExact();
}

COrxHelix COrxBarAxis::helix() const {
    double const turns = turnsExact();
    return COrxHelix(topRadius(), turns, height() / turns, m_axisPoint, m_start, m_axisVector,
                     m_orientation > 0);
}

bool COrxBarAxis::toHelix(COrxHelix& h) const {
    if (isStraight()) {
        return false;
    }
    h = helix();
    return m_twist == 0.0;
}

COrxBarAxis& COrxBarAxis::fromHelix(COrxHelix const& h) {
    m_start = h.startPoint();
    m_end = h.endPoint();
    m_axisPoint = h.axisPoint();
    m_axisVector = h.axisVector();
    m_orientation = h.orientation() ? 1 : -1;
    m_turns = 0;
    validate();
    // The end point fixes the part of a turn; the whole turns make up the rest of h's.
    m_turns = clampedInt(std::round(h.turns() - turnsExact()));
    return *this;
}

double COrxBarAxis::len() const {
    return isStraight() ? m_start.distanceTo(m_end) : helix().len();
}

double COrxBarAxis::len(double a0, double a1) const {
    return isStraight() ? ORX::nan() : helix().len(a0, a1);
}

bool COrxBarAxis::pointAtAng(double ang, COrxPoint3d& p, bool bounded) const {
    return !isStraight() && helix().pointAtAng(ang, p, bounded);
}

COrxPoint3d COrxBarAxis::pointAtLen(double d, bool bounded) const {
    if (!isStraight()) {
        return helix().pointAtLen(d, bounded);
    }
    double const length = len();
    if (!std::isfinite(d) || (bounded && !(d >= 0 && d <= length)) || !(length > 0)) {
        return d == 0 ? m_start : ORX::internal::nanPoint();
    }
    return m_start + (m_end - m_start) * (d / length);
}

bool COrxBarAxis::angAtPoint(COrxPoint3d const& p, double& ang, bool bounded) const {
    return !isStraight() && helix().angAtPoint(p, ang, bounded);
}

COrxVector3d COrxBarAxis::vectorAtAng(double ang, bool bounded) const {
    return isStraight() ? COrxVector3d::kNull : helix().vectorAtAng(ang, bounded);
}

COrxVector3d COrxBarAxis::vectorAtPoint(COrxPoint3d const& p) const {
    if (!isStraight()) {
        return helix().vectorAtPoint(p);
    }
    return ORX::g_line_pt(m_start, m_end, p) ? (m_end - m_start).normal() : COrxVector3d::kNull;
}

COrxVector3d COrxBarAxis::startVector() const {
    return isStraight() ? (m_end - m_start).normal() : helix().startVector();
}

COrxVector3d COrxBarAxis::endVector() const {
    return isStraight() ? (m_end - m_start).normal() : helix().endVector();
}

bool COrxBarAxis::isPoint(COrxPoint3d const& p) const {
    return isStraight() ? ORX::g_line_pt(m_start, m_end, p) : helix().isPoint(p);
}

COrxMatrix3d COrxBarAxis::mtx() const {
    COrxMatrix3d m;
    if (isStraight()) {
        COrxVector3d z = (m_end - m_start).normal();
        if (z == COrxVector3d::kNull) {
            z = COrxVector3d::kZAxis;
        }
        COrxVector3d const x = ORX::internal::perpendicularTo(z);
        return m.setCoordSystem(m_start, x, z * x, z);
    }
    // The frame depends on start point and axis only: the same as the helix's.
    return ORX::internal::frameMatrix(
        ORX::internal::helixGeometry(m_start, m_axisPoint, m_axisVector, 0.0, 0.0, 0.0, true));
}

COrxBarAxis& COrxBarAxis::transformBy(double const (*m)[4]) {
    m_start *= m;
    m_end *= m;
    m_axisPoint *= m;
    m_axisVector *= m;
    m_axisVector.normalize();
    if (ORX::internal::linearDeterminant(m) < 0) {
        m_orientation = -m_orientation;
        m_twist = -m_twist;
    }
    return validate();
}

COrxBarAxis COrxBarAxis::getTransformedCopy(double const (*m)[4]) const {
    COrxBarAxis copy(*this);
    return copy.transformBy(m);
}

bool COrxBarAxis::operator==(COrxBarAxis const& other) const {
    return m_start == other.m_start && m_end == other.m_end && m_axisPoint == other.m_axisPoint &&
           m_axisVector == other.m_axisVector && m_turns == other.m_turns &&
           m_orientation == other.m_orientation &&
           std::fabs(m_twist - other.m_twist) <= COrxVector3d::tol;
}

bool COrxBarAxis::operator!=(COrxBarAxis const& other) const {
    return !(*this == other);
}
