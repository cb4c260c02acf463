#include "orx/polyline/polyline_functions.h"

#include <cmath>

#include "orx/geom/functions.h"
#include "orx/geom/matrix.h"
#include "orx/geom/point_list_functions.h"
#include "orx/polyline/vertex_functions.h"

namespace ORX {

namespace {

// Pieces per half circle and chord tolerance used when the orientation is taken.
constexpr int kOrientPiecesPerHalfCircle = 4;
constexpr double kOrientChordTol = 0.01;

int innerPointCount(COrxVertex const& v, int n, double theta) {
    if (n < 1) {
        return g_bulg_split(v);
    }
    double const pieces = std::fabs(std::trunc(n * theta / kPi));
    if (!(pieces < kMaxArcPieces)) {
        return kMaxArcPieces;
    }
    return pieces < 2 ? 2 : static_cast<int>(pieces);
}

}  // namespace

COrxVertexArray g_vl_expl(COrxVertexArray const& vl, int n) {
    COrxVertexArray flat;
    if (vl.isEmpty()) {
        return flat;
    }
    COrxPoint3dArray points;
    for (int k = 0; k < vl.len(); ++k) {
        COrxVertex const& v = vl[k];
        points.append(v.startPoint());
        if (v.isStraight()) {
            continue;
        }
        COrxPoint3d const c = v.center();
        double const r = v.radius();
        double const a = angle(c, v.startPoint());
        double const theta = 4.0 * std::atan(v.bulge());
        int const inner = innerPointCount(v, n, theta);
        for (int j = 1; j <= inner; ++j) {
            points.append(polar(c, a + theta * j / (inner + 1), r));
        }
    }
    points.append(vl[-1].endPoint());
    return flat.fromPoints(points, false);
}

bool g_vl_orient(COrxVertexArray const& vl, COrxVector3d const& normal) {
    COrxVertexArray planar(vl);
    if (normal != COrxVector3d::kZAxis) {
        COrxMatrix3d toPlane;
        toPlane.setToWorldToPlane(normal);
        planar.transformBy(toPlane);
    }
    COrxPoint3dArray const corners =
        g_vl_expl(planar, kOrientPiecesPerHalfCircle).pts(false, kOrientChordTol);
    return g_pl_orient(corners, COrxVector3d::kZAxis);
}

COrxArrayTempl<COrxVertexArray>& setOrient(COrxArrayTempl<COrxVertexArray>& list,
                                           COrxVector3d const& normal) {
    for (unsigned long k = 0; k < list.len(); ++k) {
        COrxVertexArray& vl = list[static_cast<int>(k)];
        if (vl.isClosed() && !g_vl_orient(vl, normal)) {
            vl.revert();
        }
    }
    return list;
}

double g_vl_area(COrxVertexArray const& vl) {
    if (vl.isEmpty()) {
        return 0.0;
    }
    // Shoelace over the corner sequence start 0, end 0, start 1, ... taken cyclically, so
    // that gaps count as straight segments (and separate loops of one polyline add up);
    // relative to the first point, so that large coordinates do not cancel.
    COrxPoint3d const origin = vl[0].startPoint();
    double twiceChords = 0.0;
    double segments = 0.0;
    for (int k = 0; k < vl.len(); ++k) {
        COrxVertex const& v = vl[k];
        COrxVector3d const start = v.startPoint() - origin;
        COrxVector3d const end = v.endPoint() - origin;
        COrxVector3d const next = vl[(k + 1) % vl.len()].startPoint() - origin;
        twiceChords += start.x * end.y - end.x * start.y;
        twiceChords += end.x * next.y - next.x * end.y;
        if (!v.isStraight()) {
            double const theta = 4.0 * std::atan(v.bulge());
            double const r = v.radius();
            segments += r * r / 2 * (theta - std::sin(theta));
        }
    }
    return twiceChords / 2 + segments;
}

namespace {

bool projectPoint(COrxPlane const& pl, COrxPoint3d const& p, COrxVector3d const& dir,
                  COrxPoint3d& out) {
    return pl.intersectWith(p, dir, out);
}

}  // namespace

COrxVertexArray vlPlaneProje(COrxPlane const& pl, COrxVertexArray const& vl,
                             COrxVector3d const& dir) {
    bool const keepArcs = pl.normal().isParallelTo(COrxVector3d::kZAxis);
    COrxVertexArray const source = keepArcs ? vl : g_vl_expl(vl, kProjectionPiecesPerHalfCircle);
    COrxVertexArray projected;
    projected.setNormal(pl.normal());
    for (int k = 0; k < source.len(); ++k) {
        COrxVertex const& v = source[k];
        COrxPoint3d start, end;
        if (projectPoint(pl, v.startPoint(), dir, start) && projectPoint(pl, v.endPoint(), dir, end)) {
            projected.append(COrxVertex(start, end, v.bulge()));
        }
    }
    return projected;
}

}  // namespace ORX
