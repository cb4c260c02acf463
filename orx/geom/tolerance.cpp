#include "orx/geom/tolerance.h"

#include "orx/geom/point.h"

COrxPoint3dTol::COrxPoint3dTol() : m_saved(COrxPoint3d::tol) {}

COrxPoint3dTol::COrxPoint3dTol(double t) : m_saved(COrxPoint3d::tol) {
    *this = t;
}

COrxPoint3dTol::COrxPoint3dTol(COrxPoint3dTol const& other) = default;

COrxPoint3dTol::~COrxPoint3dTol() {
    COrxPoint3d::tol = m_saved;
}

COrxPoint3dTol& COrxPoint3dTol::operator=(double t) {
    if (t > ORX::kMinPointTol) {
        COrxPoint3d::tol = t;
    }
    return *this;
}
