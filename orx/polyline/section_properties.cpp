#include "orx/polyline/section_properties.h"

#include <cmath>

#include "orx/geom/functions.h"
#include "orx/geom/shared/area_moments.h"
#include "orx/polyline/shared/loop_moments.h"

namespace ORX {

bool g_vl_statics(COrxVertexArray const& vl, double& area, COrxPoint3d& centroid, double& ix,
                  double& iy, double& ixy) {
    if (!internal::isFiniteLoop(vl)) {
        return false;
    }
    COrxPoint3d const& origin = vl[0].startPoint();
    internal::CentralMoments c;
    if (!internal::toCentral(internal::loopMoments(vl, origin), COrxPoint3d::tol * COrxPoint3d::tol,
                             c)) {
        return false;
    }
    area = c.area;
    centroid.set(origin.x + c.cx, origin.y + c.cy, origin.z);
    ix = c.ix;
    iy = c.iy;
    ixy = c.ixy;
    return true;
}

void g_statics_principal(double ix, double iy, double ixy, double& i1, double& i2, double& angle) {
    double const mean = (ix + iy) / 2;
    double const spread = std::hypot((ix - iy) / 2, ixy);
    i1 = mean + spread;
    i2 = mean - spread;
    angle = std::atan2(-2 * ixy, ix - iy) / 2;
    if (angle == -kHalfPi) {
        angle = kHalfPi;  // keep the range half open: (-pi/2, pi/2]
    }
}

bool g_statics_gyration(double area, double ix, double iy, double& rx, double& ry) {
    if (!(area > 0) || !(ix >= 0) || !(iy >= 0) || !std::isfinite(area + ix + iy)) {
        return false;
    }
    rx = std::sqrt(ix / area);
    ry = std::sqrt(iy / area);
    return true;
}

bool g_statics_moduli(COrxPoint3d const& centroid, double ix, double iy, COrxPoint3d const& min,
                      COrxPoint3d const& max, double& wxTop, double& wxBottom, double& wyRight,
                      double& wyLeft) {
    double const top = max.y - centroid.y, bottom = centroid.y - min.y;
    double const right = max.x - centroid.x, left = centroid.x - min.x;
    if (!(top > 0 && bottom > 0 && right > 0 && left > 0) ||
        !std::isfinite(ix + iy + top + bottom + right + left)) {
        return false;
    }
    wxTop = ix / top;
    wxBottom = ix / bottom;
    wyRight = iy / right;
    wyLeft = iy / left;
    return true;
}

}  // namespace ORX
