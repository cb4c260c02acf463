#include "orx/geom/point.h"

#include <cmath>

#include "orx/geom/vector.h"

double COrxPoint3d::tol = 1e-05;
COrxPoint3d const COrxPoint3d::kOrigin(0.0, 0.0, 0.0);

COrxPoint3d::~COrxPoint3d() = default;

COrxPoint3d& COrxPoint3d::set(double px, double py, double pz) {
    x = px;
    y = py;
    z = pz;
    return *this;
}

bool COrxPoint3d::operator==(COrxPoint3d const& q) const {
    if (this == &q) {
        return true;
    }
    double const dx = x - q.x;
    double const dy = y - q.y;
    double const dz = z - q.z;
    if (std::fabs(dx) > tol || std::fabs(dy) > tol || std::fabs(dz) > tol) {
        return false;
    }
    return std::sqrt(dx * dx + dy * dy + dz * dz) <= tol;
}

bool COrxPoint3d::operator<(COrxPoint3d const& q) const {
    if (x != q.x) {
        return x < q.x;
    }
    if (y != q.y) {
        return y < q.y;
    }
    return z < q.z;
}

bool COrxPoint3d::operator>(COrxPoint3d const& q) const {
    return q < *this;
}

COrxVector3d COrxPoint3d::operator-(COrxPoint3d const& q) const {
    return COrxVector3d(x - q.x, y - q.y, z - q.z);
}

COrxPoint3d COrxPoint3d::operator+(COrxVector3d const& v) const {
    return COrxPoint3d(x + v.x, y + v.y, z + v.z);
}

COrxPoint3d COrxPoint3d::operator-(COrxVector3d const& v) const {
    return COrxPoint3d(x - v.x, y - v.y, z - v.z);
}

COrxPoint3d& COrxPoint3d::operator+=(COrxVector3d const& v) {
    x += v.x;
    y += v.y;
    z += v.z;
    return *this;
}

COrxPoint3d& COrxPoint3d::operator-=(COrxVector3d const& v) {
    x -= v.x;
    y -= v.y;
    z -= v.z;
    return *this;
}

COrxPoint3d COrxPoint3d::operator*(double const (*m)[4]) const {
    COrxPoint3d p(*this);
    return p *= m;
}

COrxPoint3d& COrxPoint3d::operator*=(double const (*m)[4]) {
    double const h[4] = {x, y, z, 1.0};
    double w[4];
    for (int r = 0; r < 4; ++r) {
        w[r] = m[r][0] * h[0] + m[r][1] * h[1] + m[r][2] * h[2] + m[r][3] * h[3];
    }
    return set(w[0] / w[3], w[1] / w[3], w[2] / w[3]);
}

double COrxPoint3d::distanceTo(COrxPoint3d const& q) const {
    return (q - *this).abs();
}

bool COrxPoint3d::isValid() const {
    return std::isfinite(x) && std::isfinite(y) && std::isfinite(z);
}

COrxPoint3d COrxPoint3d::scale(COrxPoint3d s) const {
    return COrxPoint3d(x * s.x, y * s.y, z * s.z);
}

// The two classes have the same layout by design; callers view one as the other in place.
COrxVector3d& COrxPoint3d::asVector() {
    return *reinterpret_cast<COrxVector3d*>(this);
}

COrxVector3d const& COrxPoint3d::asVector() const {
    return *reinterpret_cast<COrxVector3d const*>(this);
}
