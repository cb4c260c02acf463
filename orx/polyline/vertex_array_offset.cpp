// COrxVertexArray::offset: the parallel offset of a whole polyline.
//
// Every segment is offset on its own; segments that become too short (collapsed arcs,
// tiny pieces) or turn over (a straight segment trimmed past its own start) are removed,
// and consecutive segments are trimmed or extended to their meeting point.
#include <cmath>

#include "orx/foundation/array_templ_impl.h"
#include "orx/geom/functions.h"
#include "orx/polyline/vertex_array.h"
#include "orx/polyline/vertex_functions.h"

namespace {

double distanceFor(COrxArrayTempl<double> const& distances, int k) {
    int const last = static_cast<int>(distances.len()) - 1;
    return distances[k < last ? k : last];
}

bool turnedOver(COrxVertex const& v, COrxVector3d const& before) {
    return ORX::sprod(v.endPoint() - v.startPoint(), before) < 0.0;
}

// Every coordinate and bulge is a finite number.
bool allFinite(COrxVertexArray const& vl) {
    for (int k = 0; k < vl.len(); ++k) {
        COrxVertex const& v = vl[k];
        if (!v.startPoint().isValid() || !v.endPoint().isValid() || !std::isfinite(v.bulge())) {
            return false;
        }
    }
    return true;
}

}  // namespace

COrxVertexArray& COrxVertexArray::offset(double d, bool bridgeGaps) {
    if (d == 0.0) {
        return *this;
    }
    COrxArrayTempl<double> distances;
    distances.append(d);
    return offset(distances, bridgeGaps);
}

COrxVertexArray& COrxVertexArray::offset(COrxArrayTempl<double> const& distances, bool bridgeGaps) {
    if (isEmpty() || distances.isEmpty()) {
        return *this;
    }
    if (!allFinite(*this)) {
        setLogicalLength(0);  // nothing to offset: the failure value
        return *this;
    }
    bool const closed = isClosed();
    COrxArrayTempl<COrxVector3d> directions;
    for (int k = 0; k < len(); ++k) {
        directions.append(m_vertices[k].endPoint() - m_vertices[k].startPoint());
    }
    for (int k = 0; k < len(); ++k) {
        if (m_vertices[k].bulgLen() > COrxPoint3d::tol) {
            m_vertices[k].offset(distanceFor(distances, k));
        }
    }
    keepSegments(directions, [](COrxVertex const& v, COrxVector3d const&) {
        return v.bulgLen() > COrxPoint3d::tol;
    });
    trimJoints(closed);
    // Trimming can turn a short segment over; remove those and trim their neighbours to each
    // other, until none is left. Every pass removes a segment, so this ends.
    for (bool removed = true; removed;) {
        removed = keepSegments(directions, [](COrxVertex const& v, COrxVector3d const& before) {
            return !turnedOver(v, before);
        });
        if (removed) {
            trimJoints(closed);
        }
    }
    closeGaps(closed, bridgeGaps);
    if (!allFinite(*this)) {
        setLogicalLength(0);  // the offset overflowed
    }
    return *this;
}

void COrxVertexArray::trimJoints(bool closed) {
    int const n = len();
    for (int k = 0; k + 1 < n; ++k) {
        ORX::g_vx_trim(m_vertices[k], m_vertices[k + 1]);
    }
    if (closed && n >= 2) {
        ORX::g_vx_trim(m_vertices[n - 1], m_vertices[0]);
    }
}

template <class Keep>
bool COrxVertexArray::keepSegments(COrxArrayTempl<COrxVector3d>& directions, Keep keep) {
    // One pass that moves the kept segments together, with their directions: the same as
    // removing the others one by one, without moving the rest each time.
    int kept = 0;
    for (int k = 0; k < len(); ++k) {
        if (keep(m_vertices[k], directions[k])) {
            if (kept != k) {
                m_vertices[kept] = m_vertices[k];
                directions[kept] = directions[k];
            }
            ++kept;
        }
    }
    bool const removed = kept < len();
    setLogicalLength(kept);
    directions.setLogicalLength(static_cast<unsigned long>(kept));
    return removed;
}

void COrxVertexArray::closeGaps(bool closed, bool bridgeGaps) {
    // Every gap trimmed, from the last joint back, then where trimming could not close it a
    // bridge put in after the segment, in one pass over a copy rather than one insertion each.
    int const n = len();
    int const joints = closed ? n : n - 1;
    for (int k = joints - 1; k >= 0; --k) {
        COrxVertex& v = m_vertices[k];
        COrxVertex& next = m_vertices[(k + 1) % n];
        if (v.endPoint() != next.startPoint()) {
            ORX::g_vx_trim(v, next);
        }
    }
    COrxVertexArray bridged;
    bridged.setLogicalLength(2 * n);
    bridged.setLogicalLength(0);
    for (int k = 0; k < n; ++k) {
        bridged.append(m_vertices[k]);
        COrxVertex const& next = m_vertices[(k + 1) % n];
        if (bridgeGaps && k < joints && m_vertices[k].endPoint() != next.startPoint()) {
            bridged.append(COrxVertex(m_vertices[k].endPoint(), next.startPoint(), 0.0));
        }
    }
    COrxVector3d const normal = m_normal;
    *this = bridged;
    m_normal = normal;
}
