// COrxVertexArray: closure, lengths, points along the polyline, extents and intersections.
#include <cfloat>
#include <cmath>
#include <vector>

#include "orx/geom/functions.h"
#include "orx/geom/shared/unique_points.h"
#include "orx/plane_geometry/plane_geometry.h"
#include "orx/plane_geometry/shared/bulge_sweep.h"
#include "orx/polyline/shared/near_pairs.h"
#include "orx/polyline/shared/segment_box.h"
#include "orx/polyline/vertex_array.h"
#include "orx/polyline/vertex_functions.h"

namespace {

// vxNear looks at points this many point tolerances inside each end of a segment.
constexpr double kNearEndInset = 10.0;

// Distance from p to the segment as vxNear measures it.
double nearDistance(COrxVertex const& v, COrxPoint3d const& p) {
    COrxPoint3d const foot = v.lotp(p);
    if (v.isPoint(foot)) {
        return p.distanceTo(foot);
    }
    double const inset = kNearEndInset * COrxPoint3d::tol;
    double const length = v.bulgLen();
    if (length < 5 * inset) {
        return p.distanceTo(v.mid());
    }
    COrxPoint3d nearStart, nearEnd;
    v.pointAtDist(nearStart, inset, true);
    v.pointAtDist(nearEnd, length - inset, true);
    double const toStart = p.distanceTo(nearStart);
    double const toEnd = p.distanceTo(nearEnd);
    return toStart < toEnd ? toStart : toEnd;
}

}  // namespace

bool COrxVertexArray::isContinuous() const {
    return numOpens() == 0;
}

bool COrxVertexArray::isClosed() const {
    return len() >= 2 && m_vertices[len() - 1].endPoint() == m_vertices[0].startPoint() &&
           isContinuous();
}

int COrxVertexArray::numOpens() const {
    int opens = 0;
    for (int k = 0; k + 1 < len(); ++k) {
        if (m_vertices[k].endPoint() != m_vertices[k + 1].startPoint()) {
            ++opens;
        }
    }
    return opens;
}

int COrxVertexArray::indexOf(COrxVertex const& v) const {
    for (int k = 0; k < len(); ++k) {
        if (m_vertices[k] == v) {
            return k;
        }
    }
    return -1;
}

bool COrxVertexArray::isPoint(COrxPoint3d const& p) const {
    for (int k = 0; k < len(); ++k) {
        if (m_vertices[k].isPoint(p)) {
            return true;
        }
    }
    return false;
}

double COrxVertexArray::geomLength() const {
    double length = 0.0;
    for (int k = 0; k < len(); ++k) {
        length += m_vertices[k].bulgLen();
    }
    return std::isfinite(length) ? length : ORX::nan();  // an overflow is no answer
}

bool COrxVertexArray::distAtPoint(double& d, COrxPoint3d const& p) const {
    double before = 0.0;
    for (int k = 0; k < len(); ++k) {
        double along = 0.0;
        if (m_vertices[k].distAtPoint(along, p)) {
            d = before + along;
            return std::isfinite(d);  // the length up to the point overflowed: no answer
        }
        before += m_vertices[k].bulgLen();
    }
    return false;
}

bool COrxVertexArray::pointAtDist(COrxPoint3d& p, double d) const {
    double remaining = d;
    for (int k = 0; k < len(); ++k) {
        if (m_vertices[k].pointAtDist(p, remaining, true)) {
            return true;
        }
        remaining -= m_vertices[k].bulgLen();
    }
    return false;
}

COrxVertex const& COrxVertexArray::vxNear(COrxPoint3d const& p) const {
    int best = -1;
    double bestDistance = DBL_MAX;
    for (int k = 0; k < len(); ++k) {
        double const distance = nearDistance(m_vertices[k], p);
        if (distance < bestDistance) {
            bestDistance = distance;
            best = k;
        }
    }
    return best < 0 ? sharedConstDefault() : m_vertices[best];
}

bool COrxVertexArray::extents(COrxPoint3d& min, COrxPoint3d& max) const {
    if (isEmpty()) {
        return false;
    }
    // The plan box of each segment (arcs with their extreme points); z from the end points.
    COrxPoint3d lo = m_vertices[0].startPoint();
    COrxPoint3d hi = lo;
    for (int k = 0; k < len(); ++k) {
        COrxVertex const& v = m_vertices[k];
        lo = ORX::p_min(ORX::p_min(lo, v.startPoint()), v.endPoint());
        hi = ORX::p_max(ORX::p_max(hi, v.startPoint()), v.endPoint());
        ORX::internal::SegmentBox const box = ORX::internal::tightBox(v);
        lo = ORX::p_min(lo, COrxPoint3d(box.xmin, box.ymin, lo.z));
        hi = ORX::p_max(hi, COrxPoint3d(box.xmax, box.ymax, hi.z));
    }
    min = lo;
    max = hi;
    return true;
}

COrxPoint3dArray COrxVertexArray::pts(bool tessellate, double tol) const {
    COrxPoint3dArray points;
    for (int k = 0; k < len(); ++k) {
        COrxVertex const& v = m_vertices[k];
        points.append(v.startPoint());
        int const n = tessellate ? ORX::g_vx_split_n(v, tol) : 0;
        if (n == 0) {
            continue;
        }
        // One piece more than g_vx_split_n asks for, deliberately.
        COrxPoint3d const c = v.center();
        double const r = v.radius();
        double const a0 = ORX::angle(c, v.startPoint());
        double const theta = ORX::internal::bulgeSweep(v.bulge());
        for (int piece = 1; piece <= n; ++piece) {
            points.append(ORX::polar(c, a0 + piece * theta / (n + 1), r));
        }
    }
    if (!isEmpty() && !isClosed()) {
        points.append(m_vertices[len() - 1].endPoint());
    }
    return points;
}

bool COrxVertexArray::intersectWith(COrxPoint3dArray& pts, COrxVertexArray const& other,
                                    unsigned int flags) const {
    pts.clear();
    if (&other == this) {
        return false;
    }
    // Extended lines and circles meet far from the segments: only then is every pair tested.
    COrxPoint3dArray found;
    ORX::internal::UniquePoints unique(pts);
    auto testPair = [&](int i, int j) {
        m_vertices[i].intersectWith(found, other.m_vertices[j], flags);
        for (int k = 0; k < found.len(); ++k) {
            unique.add(found[k]);
        }
        return true;
    };
    if ((flags & COrxVertex::kExtended) != 0) {
        for (int i = 0; i < len(); ++i) {
            for (int j = 0; j < other.len(); ++j) {
                testPair(i, j);
            }
        }
    } else {
        ORX::internal::forEachNearPair(*this, other, testPair);
    }
    return !pts.isEmpty();
}

COrxPoint3dArray COrxVertexArray::intersectWith(COrxVertexArray const& other,
                                                unsigned int flags) const {
    COrxPoint3dArray pts;
    intersectWith(pts, other, flags);
    return pts;
}

bool COrxVertexArray::intersectWithBulg0(COrxPoint3dArray& pts,
                                         COrxVertexArray const& other) const {
    pts.clear();
    if (&other == this) {
        return false;
    }
    ORX::internal::SegmentBoxes const mine = ORX::internal::segmentBoxes(*this);
    ORX::internal::SegmentBoxes const theirs = ORX::internal::segmentBoxes(other);
    ORX::internal::UniquePoints unique(pts);
    for (int i = 0; i < len(); ++i) {
        for (int j = 0; j < other.len(); ++j) {
            // Chords lie within their segments' boxes.
            if (!ORX::internal::mayOverlap(mine[i], theirs[j])) {
                continue;
            }
            COrxPoint3dArray const found = m_vertices[i].intersectWithBulg0(other.m_vertices[j]);
            for (int k = 0; k < found.len(); ++k) {
                unique.add(found[k]);
            }
        }
    }
    return !pts.isEmpty();
}

COrxPoint3dArray COrxVertexArray::intersectWithBulg0(COrxVertexArray const& other) const {
    COrxPoint3dArray pts;
    intersectWithBulg0(pts, other);
    return pts;
}
