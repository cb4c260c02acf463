#include "orx/polyline/vertex_tools.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "orx/geom/functions.h"
#include "orx/plane_geometry/plane_geometry.h"
#include "orx/plane_geometry/shared/bulge_sweep.h"
#include "orx/polyline/vertex_functions.h"

bool orx_g_vx_vx(COrxPoint3d const& p1, COrxPoint3d const& p2, COrxVertex& v, bool keepBulge) {
    if (!p1.isValid() || !p2.isValid() || p1 == p2) {
        return false;
    }
    v.set(p1, p2, keepBulge ? v.bulge() : 0.0);
    return true;
}

namespace ORX {

namespace {

// Replaces pts with the candidates that lie on v; true when any did.
bool keepOnSegment(COrxVertex const& v, COrxPoint3dArray const& candidates, COrxPoint3dArray& pts) {
    COrxPoint3dArray kept;
    for (int k = 0; k < candidates.len(); ++k) {
        if (v.isPoint(candidates[k])) {
            kept.appendUniq(candidates[k]);
        }
    }
    pts = kept;
    return !pts.isEmpty();
}

// Stable order of pts by a key per point; points without a key (not on the path) go last.
int sortByKey(COrxPoint3dArray& pts, std::vector<double> const& keys, std::vector<bool> const& on) {
    std::vector<int> order(static_cast<std::size_t>(pts.len()));
    for (std::size_t k = 0; k < order.size(); ++k) {
        order[k] = static_cast<int>(k);
    }
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
        if (on[a] != on[b]) {
            return static_cast<bool>(on[a]);
        }
        return on[a] && keys[a] < keys[b];
    });
    COrxPoint3dArray const before(pts);
    int count = 0;
    for (std::size_t k = 0; k < order.size(); ++k) {
        pts[static_cast<int>(k)] = before[order[k]];
        count += on[k] ? 1 : 0;
    }
    return count;
}

}  // namespace

double g_vx_ang(COrxVertex const& v1, COrxVertex const& v2) {
    double const arriving = g_ang(vx_end_angle(v1) + kPi);  // vx_end_angle points back
    double const turn = g_signed_ang(vx_start_angle(v2) - arriving);
    return turn == -kPi ? kPi : turn;
}

bool g_vx_colinear(COrxVertex const& v1, COrxVertex const& v2, double tol) {
    if (v1.isStraight() != v2.isStraight()) {
        return false;
    }
    if (v1.isStraight()) {
        COrxPoint3d const& a = v1.startPoint();
        COrxPoint3d const& b = v1.endPoint();
        return g_lotp(a, b, v2.startPoint()).distanceTo(v2.startPoint()) <= tol &&
               g_lotp(a, b, v2.endPoint()).distanceTo(v2.endPoint()) <= tol;
    }
    if ((v1.bulge() > 0.0) != (v2.bulge() > 0.0)) {
        return false;
    }
    return v1.center().distanceTo(v2.center()) <= tol &&
           std::fabs(v1.radius() - v2.radius()) <= tol;
}

double g_vx_lotd(COrxVertex const& v, COrxPoint3d const& p) {
    if (!p.isValid()) {
        return nan();
    }
    return p.distanceTo(v.lotp(p));
}

COrxVertex g_vx_parallel(COrxVertex const& v, double d) {
    COrxVertex copy(v);
    return copy.offset(d);
}

COrxVertex& g_vx_rnd(COrxVertex& v, double step) {
    COrxPoint3d const& s = v.startPoint();
    COrxPoint3d const& e = v.endPoint();
    return v.set(COrxPoint3d(round(s.x, step), round(s.y, step), round(s.z, step)),
                 COrxPoint3d(round(e.x, step), round(e.y, step), round(e.z, step)), v.bulge());
}

int g_vx_search(COrxVertexArray const& vl, COrxPoint3d const& p) {
    for (int k = 0; k < vl.len(); ++k) {
        if (vl[k].startPoint() == p) {
            return k;
        }
    }
    return -1;
}

int g_vx_search_near(COrxVertexArray const& vl, COrxPoint3d const& p) {
    if (vl.isEmpty()) {
        return -1;
    }
    COrxVertex const& nearest = vl.vxNear(p);
    return static_cast<int>(&nearest - &vl[0]);
}

bool g_vx_tangp(COrxVertex const& v, COrxPoint3d const& p, COrxPoint3dArray& pts) {
    COrxPoint3d c;
    double r = 0.0;
    if (!v.center(c) || !v.radius(r) || !p.isValid()) {
        pts.clear();
        return false;
    }
    COrxPoint3dArray candidates;
    double const d = c.distanceTo(p);
    if (std::fabs(d - r) <= COrxPoint3d::tol) {
        candidates.append(v.lotp(p));  // p on the circle touches there itself
    } else if (d > r) {
        double const toP = angle(c, p);
        double const spread = std::acos(r / d);
        candidates.append(polar(c, toP + spread, r)).append(polar(c, toP - spread, r));
    }
    return keepOnSegment(v, candidates, pts);
}

bool g_vx_tangp(COrxVertex const& v, double direction, COrxPoint3dArray& pts) {
    COrxPoint3dArray candidates;
    if (v.isStraight()) {
        double const along = angle(v.startPoint(), v.endPoint());
        if (g_ang_equal(along, direction, kTangentAngleTol) ||
            g_ang_equal(along, direction + kPi, kTangentAngleTol)) {
            candidates.append(v.startPoint());
        }
    } else {
        COrxPoint3d const c = v.center();
        double const r = v.radius();
        candidates.append(polar(c, direction - kHalfPi, r))
            .append(polar(c, direction + kHalfPi, r));
    }
    return keepOnSegment(v, candidates, pts);
}

double g_vx_split_dif(COrxVertex const& v, int n) {
    if (n < 1) {
        return nan();
    }
    if (v.isStraight()) {
        return 0.0;
    }
    double const theta = std::fabs(ORX::internal::bulgeSweep(v.bulge()));
    return v.radius() * (1.0 - std::cos(theta / (2.0 * n)));
}

COrxVertex g_vx_xy(COrxVertex const& v) {
    COrxPoint3d const& s = v.startPoint();
    COrxPoint3d const& e = v.endPoint();
    COrxVertex flat(v);
    return flat.set(COrxPoint3d(s.x, s.y, 0.0), COrxPoint3d(e.x, e.y, 0.0), v.bulge());
}

int g_pl_sort_vx(COrxPoint3dArray& pts, COrxVertex const& v) {
    std::vector<double> keys(static_cast<std::size_t>(pts.len()), 0.0);
    std::vector<bool> on(keys.size(), false);
    for (std::size_t k = 0; k < keys.size(); ++k) {
        on[k] = v.distAtPoint(keys[k], pts[static_cast<int>(k)]);
    }
    return sortByKey(pts, keys, on);
}

int g_pl_sort_vl(COrxPoint3dArray& pts, COrxVertexArray const& vl) {
    std::vector<double> keys(static_cast<std::size_t>(pts.len()), 0.0);
    std::vector<bool> on(keys.size(), false);
    for (std::size_t k = 0; k < keys.size(); ++k) {
        on[k] = vl.distAtPoint(keys[k], pts[static_cast<int>(k)]);
    }
    return sortByKey(pts, keys, on);
}

}  // namespace ORX
