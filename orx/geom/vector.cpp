#include "orx/geom/vector.h"

#include <algorithm>
#include <cmath>

#include "orx/geom/functions.h"
#include "orx/geom/point.h"

namespace {
// isOrthoTo's threshold on the raw dot product.
constexpr double kOrthoDotLimit = 1e-09;
}  // namespace

double COrxVector3d::tol = 1e-07;
COrxVector3d const COrxVector3d::kNull(0.0, 0.0, 0.0);
COrxVector3d const COrxVector3d::kXAxis(1.0, 0.0, 0.0);
COrxVector3d const COrxVector3d::kYAxis(0.0, 1.0, 0.0);
COrxVector3d const COrxVector3d::kZAxis(0.0, 0.0, 1.0);

COrxVector3d::~COrxVector3d() = default;

COrxVector3d& COrxVector3d::operator=(double const* xyz) {
    return set(xyz[0], xyz[1], xyz[2]);
}

COrxVector3d& COrxVector3d::set(double vx, double vy, double vz) {
    x = vx;
    y = vy;
    z = vz;
    return *this;
}

bool COrxVector3d::operator==(COrxVector3d const& v) const {
    if (this == &v) {
        return true;
    }
    return std::fabs(x - v.x) <= tol && std::fabs(y - v.y) <= tol && std::fabs(z - v.z) <= tol;
}

COrxVector3d COrxVector3d::operator+(COrxVector3d const& v) const {
    return COrxVector3d(x + v.x, y + v.y, z + v.z);
}

COrxVector3d COrxVector3d::operator-(COrxVector3d const& v) const {
    return COrxVector3d(x - v.x, y - v.y, z - v.z);
}

COrxVector3d COrxVector3d::operator-() const {
    return COrxVector3d(-x, -y, -z);
}

COrxVector3d& COrxVector3d::operator+=(COrxVector3d const& v) {
    return set(x + v.x, y + v.y, z + v.z);
}

COrxVector3d& COrxVector3d::operator-=(COrxVector3d const& v) {
    return set(x - v.x, y - v.y, z - v.z);
}

COrxVector3d COrxVector3d::operator*(double f) const {
    return COrxVector3d(x * f, y * f, z * f);
}

COrxVector3d& COrxVector3d::operator*=(double f) {
    return set(x * f, y * f, z * f);
}

COrxVector3d COrxVector3d::operator*(COrxVector3d const& b) const {
    return COrxVector3d(y * b.z - b.y * z, b.x * z - x * b.z, b.y * x - b.x * y);
}

COrxVector3d& COrxVector3d::operator*=(COrxVector3d const& b) {
    return *this = *this * b;
}

COrxVector3d COrxVector3d::operator*(double const (*m)[4]) const {
    COrxVector3d v(*this);
    return v *= m;
}

COrxVector3d& COrxVector3d::operator*=(double const (*m)[4]) {
    double w[4];
    for (int r = 0; r < 3; ++r) {
        w[r] = m[r][0] * x + m[r][1] * y + m[r][2] * z;
    }
    w[3] = m[3][0] * x + m[3][1] * y + m[3][2] * z + m[3][3];
    return set(w[0] / w[3], w[1] / w[3], w[2] / w[3]);
}

double COrxVector3d::abs() const {
    double const squares = x * x + y * y + z * z;
    if (squares > 1e-290 && squares < 1e300) {
        return std::sqrt(squares);  // nothing overflowed or lost its bits below the normals
    }
    if (std::isnan(squares)) {
        return squares;
    }
    // Lengths beyond 1e150 or below 1e-145: measured in units of the largest component, so
    // that a vector of 1e300 has the length 1e300, not an overflow.
    double const largest = std::fmax(std::fabs(x), std::fmax(std::fabs(y), std::fabs(z)));
    if (largest == 0.0 || std::isinf(largest)) {
        return largest;
    }
    double const ux = x / largest, uy = y / largest, uz = z / largest;
    return largest * std::sqrt(ux * ux + uy * uy + uz * uz);
}

COrxVector3d& COrxVector3d::normalize() {
    double const length = abs();
    if (length < tol || !std::isfinite(length)) {
        return set(0.0, 0.0, 0.0);
    }
    return set(x / length, y / length, z / length);
}

COrxVector3d COrxVector3d::normal() const {
    COrxVector3d v(*this);
    return v.normalize();
}

double COrxVector3d::angleTo(COrxVector3d const& v) const {
    if (*this == kNull || v == kNull) {
        return ORX::nan();
    }
    double const cosine = ORX::sprod(*this, v) / (abs() * v.abs());
    return std::acos(std::clamp(cosine, -1.0, 1.0));
}

bool COrxVector3d::isOrthoTo(COrxVector3d const& v) const {
    return std::fabs(ORX::sprod(*this, v)) < kOrthoDotLimit;
}

bool COrxVector3d::isParallelTo(COrxVector3d v) const {
    COrxVector3d const n = normal();
    v.normalize();
    return n == v || n == -v;
}

COrxVector3d& COrxVector3d::scale(COrxPoint3d const& s) {
    return set(x * s.x, y * s.y, z * s.z);
}

bool COrxVector3d::isValid() const {
    return std::isfinite(x) && std::isfinite(y) && std::isfinite(z);
}

COrxPoint3d& COrxVector3d::asPoint() {
    return *reinterpret_cast<COrxPoint3d*>(this);
}

COrxPoint3d const& COrxVector3d::asPoint() const {
    return *reinterpret_cast<COrxPoint3d const*>(this);
}

COrxVector3d operator*(double f, COrxVector3d const& v) {
    return v * f;
}
