#include "orx/polyline/polyline_functions.h"
#include "orx/polyline/internal/orient_list.h"

#include <cmath>

#include "orx/geom/functions.h"
#include "orx/geom/matrix.h"
#include "orx/geom/point_list_functions.h"
#include "orx/plane_geometry/bulge_segment.h"
#include "orx/plane_geometry/shared/bulge_sweep.h"
#include "orx/polyline/vertex_functions.h"

namespace ORX {

namespace {

// Pieces per half circle of the arcs when the orientation is taken.
constexpr int kOrientPiecesPerHalfCircle = 4;

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

// Hands the points of g_vl_expl(vl, n) to visit, in order: each segment's start, the inner
// points of an arc, and the end of the last segment.
template <class Visit>
void forEachExplodedPoint(COrxVertexArray const& vl, int n, Visit visit) {
    for (int k = 0; k < vl.len(); ++k) {
        COrxVertex const& v = vl[k];
        visit(v.startPoint());
        if (v.isStraight()) {
            continue;
        }
        COrxPoint3d const c = v.center();
        double const r = v.radius();
        double const a = angle(c, v.startPoint());
        double const theta = internal::bulgeSweep(v.bulge());
        int const inner = innerPointCount(v, n, theta);
        for (int j = 1; j <= inner; ++j) {
            visit(polar(c, a + theta * j / (inner + 1), r));
        }
    }
    visit(vl[-1].endPoint());
}

// The sum g_pl_orient forms over the corners that pts(false) gives of the exploded polyline
// (its points, less the last when that comes back to the first), fed one point at a time:
// the same terms, added in the same order, so the same sum to the last bit. The term of the
// last two points waits until it is known whether the last point is a corner.
class ShoelaceSum {
public:
    void add(COrxPoint3d const& p) {
        if (m_count >= 2) {
            m_sum += m_pending;
        }
        if (m_count >= 1) {
            m_pending = term(m_last, p);
            m_beforeLast = m_last;
        } else {
            m_first = p;
        }
        m_last = p;
        ++m_count;
    }

    // g_pl_orient's answer: true for fewer than three corners.
    bool counterClockwise() const {
        bool const closed = m_count >= 3 && m_last == m_first;
        int const corners = closed ? m_count - 1 : m_count;
        if (corners < 3) {
            return true;
        }
        double sum = m_sum;
        if (closed) {
            sum += term(m_beforeLast, m_first);
        } else {
            sum += m_pending;
            sum += term(m_last, m_first);
        }
        return sum > 0.0;
    }

private:
    static double term(COrxPoint3d const& p, COrxPoint3d const& q) {
        return (q.y - p.y) * (q.x + p.x);
    }

    COrxPoint3d m_first, m_beforeLast, m_last;
    double m_sum = 0.0;
    double m_pending = 0.0;
    int m_count = 0;
};

// The same answer without exploding, where the polygon of the chords decides it beyond doubt:
// the loop closes exactly, no arc reaches beyond a half circle, and the twice-area of the chord
// polygon exceeds everything that can tell the exploded polygon's apart from it. That is, per arc,
// its circular segment (twice its area is below |b| c^2 for a chord c) and the rounding of its
// exploded points (relative to its coordinates and its radius, which a nearly straight arc makes
// huge), plus the rounding of both sums (n + 16 times the epsilon-sized share of their terms'
// magnitudes). False when it cannot tell; `ccw` holds the answer when it can.
bool chordOrientation(COrxVertexArray const& vl, bool& ccw) {
    constexpr double kRounding = 1e-15;  // above the double epsilon, per term of a sum
    constexpr double kPointRounding = 1e-14;
    int const n = vl.len();
    if (n < 3) {
        return false;
    }
    COrxVertex const* segments = vl.data();
    COrxPoint3d const& first = segments[0].startPoint();
    COrxPoint3d const& last = segments[n - 1].endPoint();
    if (last.x != first.x || last.y != first.y) {
        return false;
    }
    double sum = 0.0, magnitudes = 0.0, deviation = 0.0;
    for (int k = 0; k < n; ++k) {
        COrxPoint3d const& p = segments[k].startPoint();
        COrxPoint3d const& q = segments[k].endPoint();
        if (k > 0 && (p.x != segments[k - 1].endPoint().x || p.y != segments[k - 1].endPoint().y)) {
            return false;
        }
        double const term = (q.y - p.y) * (q.x + p.x);
        sum += term;
        magnitudes += std::fabs(term);
        double const b = std::fabs(segments[k].bulge());
        if (b == 0.0) {
            continue;
        }
        if (!(b <= 1.0)) {
            return false;  // beyond a half circle, or NaN
        }
        double const dx = q.x - p.x, dy = q.y - p.y;
        double const chordSquared = dx * dx + dy * dy;
        double const chord = std::sqrt(chordSquared);
        double const radius = chord * (1 + b * b) / (4 * b);
        double const size = std::fmax(std::fmax(std::fabs(p.x), std::fabs(p.y)),
                                      std::fmax(std::fabs(q.x), std::fabs(q.y))) +
                            2 * radius;
        deviation += b * chordSquared + 8 * chord * kPointRounding * size;
        magnitudes += 4 * size * chord;  // the exploded terms of this arc
    }
    double const margin = deviation + (n + 16) * kRounding * 2 * magnitudes;
    if (!(std::fabs(sum) > margin) || !std::isfinite(margin)) {
        return false;
    }
    ccw = sum > 0.0;
    return true;
}

bool explodedOrientation(COrxVertexArray const& vl) {
    bool ccw = false;
    if (chordOrientation(vl, ccw)) {
        return ccw;
    }
    ShoelaceSum sum;
    if (!vl.isEmpty()) {
        forEachExplodedPoint(vl, kOrientPiecesPerHalfCircle,
                             [&sum](COrxPoint3d const& p) { sum.add(p); });
    }
    return sum.counterClockwise();
}

}  // namespace

COrxVertexArray g_vl_expl(COrxVertexArray const& vl, int n) {
    COrxVertexArray flat;
    if (vl.isEmpty()) {
        return flat;
    }
    COrxPoint3dArray points;
    forEachExplodedPoint(vl, n, [&points](COrxPoint3d const& p) { points.append(p); });
    return flat.fromPoints(points, false);
}

// The orientation of the polygon through the exploded polyline's corners
// (g_pl_orient(g_vl_expl(vl, 4).pts(false, ...))), summed as the points are made rather than
// from the arrays, which a long polyline would have to fill.
bool g_vl_orient(COrxVertexArray const& vl, COrxVector3d const& normal) {
    if (normal == COrxVector3d::kZAxis) {
        return explodedOrientation(vl);
    }
    COrxVertexArray planar(vl);
    COrxMatrix3d toPlane;
    toPlane.setToWorldToPlane(normal);
    planar.transformBy(toPlane);
    return explodedOrientation(planar);
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
