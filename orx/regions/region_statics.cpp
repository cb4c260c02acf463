#include "orx/regions/region_statics.h"

#include <cmath>

#include "orx/geom/shared/area_moments.h"
#include "orx/polyline/shared/loop_moments.h"

namespace ORX {

namespace {

template <class Polyline>
bool regionStatics(COrxArrayTempl<Polyline> const& region, double& area, COrxPoint3d& centroid,
                   double& ix, double& iy, double& ixy) {
    if (region.isEmpty()) {
        return false;
    }
    COrxPoint3d const origin = region[0][0].startPoint();
    internal::AreaMoments total;
    for (int k = 0; k < static_cast<int>(region.len()); ++k) {
        Polyline const& loop = region[k];
        if (!internal::isFiniteLoop(loop)) {
            return false;
        }
        internal::AreaMoments const m = internal::loopMoments(loop, origin);
        double const positive = m.area < 0.0 ? -1.0 : 1.0;
        total.add(m, k == 0 ? positive : -positive);
    }
    internal::CentralMoments c;
    if (!internal::toCentral(total, COrxPoint3d::tol * COrxPoint3d::tol, c)) {
        return false;
    }
    area = c.area;
    centroid.set(origin.x + c.cx, origin.y + c.cy, origin.z);
    ix = c.ix;
    iy = c.iy;
    ixy = c.ixy;
    return true;
}

}  // namespace

bool g_region_statics(COrxArrayTempl<COrxVertexArray> const& region, double& area,
                      COrxPoint3d& centroid, double& ix, double& iy, double& ixy) {
    return regionStatics(region, area, centroid, ix, iy, ixy);
}

bool g_region_statics(COrxArrayTempl<COrxVertexArrayEx> const& region, double& area,
                      COrxPoint3d& centroid, double& ix, double& iy, double& ixy) {
    return regionStatics(region, area, centroid, ix, iy, ixy);
}

}  // namespace ORX
