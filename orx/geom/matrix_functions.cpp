#include "orx/geom/matrix_functions.h"

#include <cmath>

#include "orx/foundation/string.h"
#include "orx/geom/functions.h"

namespace {

// The side keyword compares with the string class's equality (a null side is neither "L"
// nor "R").
double turnAngle(double a, wchar_t const* side, bool negativeX) {
    if (COrxString(side) == L"L") {
        return negativeX ? 0.0 : a - ORX::kPi;
    }
    if (COrxString(side) == L"R") {
        return negativeX ? ORX::kPi - a : 0.0;
    }
    return negativeX ? (ORX::kPi - a) / 2 : -(ORX::kPi - a) / 2;
}

}  // namespace

namespace ORX {

bool mtxIsMir(double const (*m)[4]) {
    COrxVector3d const r0(m[0]), r1(m[1]), r2(m[2]);
    return sprod(r0 * r1, r2) < 0.0;
}

void g_mtx_copy(double (*dst)[4], double const (*src)[4]) {
    for (int r = 0; r < 4; ++r) {
        for (int c = 0; c < 4; ++c) {
            dst[r][c] = src[r][c];
        }
    }
}

bool g_mtx_2d(COrxMatrix3d& m, double x, double y, double angle, double fy, double fx) {
    double const c = std::cos(angle);
    double const s = std::sin(angle);
    m.setCoordSystem(COrxPoint3d(x, y, 0.0), COrxVector3d(c, s, 0.0) * fx,
                     COrxVector3d(-s, c, 0.0) * fy, COrxVector3d(0.0, 0.0, std::fabs(fx)));
    return true;
}

bool plToMtx(double (*m)[4], COrxPoint3dArray const& pts) {
    if (pts.len() < 3) {
        return false;
    }
    for (int c = 0; c < 4; ++c) {
        // The const index answers (0, 0, 0) for a missing fourth point.
        COrxPoint3d const p = c < pts.len() ? pts[c] : COrxPoint3d::kOrigin;
        m[0][c] = p.x;
        m[1][c] = p.y;
        m[2][c] = p.z;
        m[3][c] = c < 3 ? 0.0 : 1.0;
    }
    return true;
}

COrxPoint3dArray& mtxToPl(COrxPoint3dArray& pts, double const (*m)[4]) {
    pts.setLogicalLength(4);
    for (int c = 0; c < 4; ++c) {
        pts[c].set(m[0][c], m[1][c], m[2][c]);
    }
    return pts;
}

COrxPoint3dArray plPlaneProje(COrxPlane const& plane, COrxPoint3dArray const& pts,
                              COrxVector3d const& dir) {
    COrxPoint3dArray projected;
    for (int i = 0; i < pts.len(); ++i) {
        COrxPoint3d hit;
        if (plane.intersectWith(pts[i], dir, hit)) {
            projected.append(hit);
        }
    }
    return projected;
}

}  // namespace ORX

COrxMatrix3d orx_g_mtx_ang2d(COrxMatrix3d const& m, double a, wchar_t const* side) {
    double const angle = turnAngle(a, side, m.translation().x < 0.0);
    COrxMatrix3d turn;
    turn.setToRotation(angle, COrxVector3d::kZAxis, COrxPoint3d::kOrigin);
    return turn * m;
}

COrxMatrix3d orx_g_mtx_ang2d(COrxMatrix3d const& m, double a, int side) {
    wchar_t const* const keyword = side == 1 ? L"L" : side == 2 ? L"R" : L"C";
    return orx_g_mtx_ang2d(m, a, keyword);
}
