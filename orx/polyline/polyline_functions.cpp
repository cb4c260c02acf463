#include "orx/polyline/polyline_functions.h"
#include "orx/polyline/internal/orient_list.h"

#include <cmath>

#include "orx/geom/functions.h"
#include "orx/geom/matrix.h"
#include "orx/geom/point_list_functions.h"
#include "orx/plane_geometry/bulge_segment.h"
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
    if (std::isnan(theta)) {
        return 1;  // a NaN bulge: one point (of NaN) carries it into the result
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
    return internal::orientClosed(list, normal);
}

double g_vl_area(COrxVertexArray const& vl) {
    // The polyline falls into runs of segments that meet; each run is closed by a straight
    // segment from its end back to its start. Shoelace relative to the run's start, so that
    // large coordinates do not cancel, plus the circular segment of every arc.
    double total = 0.0;
    COrxPoint3d runStart;
    for (int k = 0; k < vl.len(); ++k) {
        COrxVertex const& v = vl[k];
        if (k == 0 || v.startPoint() != vl[k - 1].endPoint()) {
            runStart = v.startPoint();
        }
        COrxVector3d const a = v.startPoint() - runStart;
        COrxVector3d const b = v.endPoint() - runStart;
        total += (a.x * b.y - b.x * a.y) / 2;
        total += g_bulg_area(v.startPoint(), v.endPoint(), v.bulge());
    }
    return std::isfinite(total) ? total : ORX::nan();  // an overflow is no answer
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
        if (projectPoint(pl, v.startPoint(), dir, start) &&
            projectPoint(pl, v.endPoint(), dir, end)) {
            projected.append(COrxVertex(start, end, v.bulge()));
        }
    }
    return projected;
}

}  // namespace ORX
