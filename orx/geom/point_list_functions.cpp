#include "orx/geom/point_list_functions.h"

#include <cmath>

#include "orx/geom/functions.h"
#include "orx/geom/matrix.h"
#include "orx/geom/shared/angle_range.h"
#include "orx/geom/shared/area_moments.h"
#include "orx/geom/tolerance.h"

namespace ORX {

namespace {

bool allValid(COrxPoint3dArray const& pl) {
    for (int k = 0; k < pl.len(); ++k) {
        if (!pl[k].isValid()) {
            return false;
        }
    }
    return true;
}

}  // namespace

bool g_pl_max(COrxPoint3d& out, COrxPoint3dArray const& pl) {
    COrxPoint3d low;
    return pl.extents(low, out);
}

bool g_pl_min(COrxPoint3d& out, COrxPoint3dArray const& pl) {
    COrxPoint3d high;
    return pl.extents(out, high);
}

bool g_pl_orient(COrxPoint3dArray const& pl, COrxVector3d const& normal) {
    int const n = pl.len();
    if (n < 3) {
        return true;
    }
    COrxPoint3dArray local(pl);
    if (normal != COrxVector3d::kZAxis) {
        COrxMatrix3d toPlane;
        local.transformBy(toPlane.setToWorldToPlane(normal));
    }
    double twiceArea = 0.0;
    for (int i = 0; i < n; ++i) {
        COrxPoint3d const& p = local[i];
        COrxPoint3d const& q = local[(i + 1) % n];
        twiceArea += (q.y - p.y) * (q.x + p.x);
    }
    return twiceArea > 0.0;
}

bool g_pl_equal(COrxPoint3dArray const& a, COrxPoint3dArray const& b, double tol) {
    COrxPoint3dTol const scope(tol);
    return a == b;
}

bool g_pl_extmax(COrxPoint3d& first, COrxPoint3d& second, COrxPoint3dArray const& pl) {
    int const n = pl.len();
    if (n < 2 || !allValid(pl)) {
        return false;
    }
    int bestI = 0, bestJ = 1;
    double best = -1.0;
    for (int i = 0; i + 1 < n; ++i) {
        for (int j = i + 1; j < n; ++j) {
            double const d = pl[i].distanceTo(pl[j]);
            if (d > best) {
                best = d;
                bestI = i;
                bestJ = j;
            }
        }
    }
    first = pl[bestI];
    second = pl[bestJ];
    return true;
}

bool g_pl_extrect(COrxPoint3dArray& rect, COrxPoint3dArray const& pl, double margin) {
    COrxPoint3d low, high;
    if (!std::isfinite(margin) || !allValid(pl) || !pl.extents(low, high)) {
        return false;
    }
    double const x0 = low.x - margin, x1 = high.x + margin;
    double const y0 = low.y - margin, y1 = high.y + margin;
    if (x1 < x0 || y1 < y0) {
        return false;
    }
    rect.setLogicalLength(0);
    rect.append(COrxPoint3d(x0, y0, low.z)).append(COrxPoint3d(x1, y0, low.z));
    rect.append(COrxPoint3d(x1, y1, low.z)).append(COrxPoint3d(x0, y1, low.z));
    return true;
}

bool g_pl_sort_arcw(CMapDoubleToPoint& out, COrxPoint3dArray const& pl, COrxPoint3d const& centre,
                    double startAngle) {
    if (pl.isEmpty()) {
        return false;
    }
    CMapDoubleToPoint pairs;
    for (int k = 0; k < pl.len(); ++k) {
        pairs.append(internal::angleInTurn(angle(centre, pl[k]) - startAngle), pl[k]);
    }
    pairs.sort();
    out = pairs;
    return true;
}

bool g_pl_statics(COrxPoint3dArray const& pl, double& area, COrxPoint3d& centroid, double& ix,
                  double& iy, double& ixy) {
    if (pl.len() < 3 || !allValid(pl)) {
        return false;
    }
    // Shoelace sums relative to the first point, so that coordinates far from the origin do
    // not cancel away the digits of the result.
    COrxPoint3d const& ref = pl[0];
    internal::AreaMoments sums;
    int const n = pl.len();
    for (int i = 0; i < n; ++i) {
        COrxPoint3d const& p = pl[i];
        COrxPoint3d const& q = pl[(i + 1) % n];
        sums.addTriangle(p.x - ref.x, p.y - ref.y, q.x - ref.x, q.y - ref.y);
    }
    internal::CentralMoments c;
    if (!internal::toCentral(sums, COrxPoint3d::tol * COrxPoint3d::tol, c)) {
        return false;
    }
    area = c.area;
    ix = c.ix;
    iy = c.iy;
    ixy = c.ixy;
    centroid.set(ref.x + c.cx, ref.y + c.cy, ref.z);
    return true;
}

}  // namespace ORX
