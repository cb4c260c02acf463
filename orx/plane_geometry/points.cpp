#include "orx/plane_geometry/points.h"

#include <cmath>

#include "orx/plane_geometry/internal/finite.h"

#include "orx/geom/functions.h"
#include "orx/geom/vector.h"

namespace ORX {

double g_dist2d(COrxPoint3d const& p, COrxPoint3d const& q) {
    return internal::planLength(q.x - p.x, q.y - p.y);
}

COrxPoint3d g_midp3d(COrxPoint3d const& p, COrxPoint3d const& q) {
    return COrxPoint3d((p.x + q.x) / 2, (p.y + q.y) / 2, (p.z + q.z) / 2);
}

COrxPoint3d g_nrm_p(COrxPoint3d const& p) {
    auto snap = [](double c) { return std::fabs(c) < COrxPoint3d::tol ? 0.0 : c; };
    return COrxPoint3d(snap(p.x), snap(p.y), snap(p.z));
}

COrxPoint3d g_p_mrx(COrxPoint3d p) {
    p.x = -p.x;
    return p;
}

COrxPoint3d g_p_mry(COrxPoint3d p) {
    p.y = -p.y;
    return p;
}

int g_point_orient(COrxPoint3d const& p0, COrxPoint3d const& p1, COrxPoint3d const& p2) {
    return ((p1 - p0) * (p2 - p0)).z < 0.0 ? -1 : 1;
}

double g_dist_w1(COrxPoint3d const& p0, COrxPoint3d const& p1, double w) {
    return sprod(p1 - p0, polar(w, 1.0));
}

double g_dist_w(COrxPoint3d const& p0, COrxPoint3d const& p1, double w) {
    return std::fabs(g_dist_w1(p0, p1, w));
}

double g_aabs(COrxPoint3d const& p1, COrxPoint3d const& p2, COrxPoint3d const& p3) {
    double const length = g_dist2d(p1, p2);
    if (!(length > COrxPoint3d::tol)) {
        return g_dist2d(p1, p3);
    }
    // Across the unit direction, so that long lines and far points do not overflow the
    // product.
    double const ux = (p2.x - p1.x) / length, uy = (p2.y - p1.y) / length;
    return internal::finiteOrNan(std::fabs(ux * (p3.y - p1.y) - uy * (p3.x - p1.x)));
}

COrxPoint3d g_p_rnd(COrxPoint3d const& p, double step) {
    return COrxPoint3d(round(p.x, step), round(p.y, step), round(p.z, step));
}

COrxPoint3d g_p_stretch(COrxPoint3d const& p, COrxPoint3d const& base, double w, double factor) {
    COrxVector3d const along = polar(w, 1.0);
    double const part = sprod(p - base, along);
    return p + along * (part * (factor - 1.0));
}

}  // namespace ORX
