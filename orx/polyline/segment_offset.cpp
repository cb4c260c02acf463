#include "orx/polyline/segment_offset.h"

#include <cmath>
#include <initializer_list>

#include "orx/polyline/vertex_functions.h"

namespace ORX {
namespace {

// The segment still runs the way it ran, with some length: its chord has not turned over.
bool keepsItsWay(COrxVertex const& now, COrxVertex const& before) {
    if (now.startPoint() == now.endPoint()) {
        return false;
    }
    COrxVector3d const a = now.endPoint() - now.startPoint();
    COrxVector3d const b = before.endPoint() - before.startPoint();
    return a.x * b.x + a.y * b.y > 0.0;
}

bool radiusStays(COrxVertex const& v, double d) {
    return v.isStraight() || v.radius() + (v.bulge() > 0.0 ? d : -d) > COrxPoint3d::tol;
}

// Joins s1's end to s2's start again: trimmed or extended to their meeting point, else
// bridged by a straight segment, which `bridge` receives (false when none was needed).
bool rejoin(COrxVertex& s1, COrxVertex& s2, COrxVertex& bridge) {
    g_vx_trim(s1, s2);
    if (s1.endPoint() == s2.startPoint()) {
        return false;
    }
    bridge = COrxVertex(s1.endPoint(), s2.startPoint(), 0.0);
    return true;
}

}  // namespace

bool g_vl_offset_vx(COrxVertexArray& vl, int i, double d) {
    int const n = vl.len();
    int const k = i < 0 ? i + n : i;
    if (k < 0 || k >= n || d == 0.0 || !std::isfinite(d) || !radiusStays(vl[k], d)) {
        return false;
    }
    bool const closed = vl.isClosed();
    int const before = k > 0 ? k - 1 : (closed ? n - 1 : -1);
    int const after = k + 1 < n ? k + 1 : (closed ? 0 : -1);
    COrxVertexArray const original(vl);
    COrxVertexArray work(vl);
    COrxVertex& moved = work[k];
    moved.offset(d);
    COrxVertex bridgeIn, bridgeOut;
    bool const hasIn = before >= 0 && original[before].endPoint() == original[k].startPoint() &&
                       rejoin(work[before], moved, bridgeIn);
    bool const hasOut = after >= 0 && original[k].endPoint() == original[after].startPoint() &&
                        rejoin(moved, work[after], bridgeOut);
    for (int m : {before, k, after}) {
        if (m >= 0 && !keepsItsWay(work[m], original[m])) {
            return false;
        }
    }
    if (hasOut) {
        work.insertAt(static_cast<unsigned int>(k + 1), bridgeOut);
    }
    if (hasIn) {
        work.insertAt(static_cast<unsigned int>(k), bridgeIn);
    }
    vl = work;
    return true;
}

}  // namespace ORX
