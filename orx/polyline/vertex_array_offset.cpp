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

}  // namespace

namespace {

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
    for (int k = len() - 1; k >= 0; --k) {
        if (!(m_vertices[k].bulgLen() > COrxPoint3d::tol)) {
            remove(static_cast<unsigned int>(k), false);
            directions.removeAt(static_cast<unsigned long>(k));
        }
    }
    trimJoints(closed);
    // Trimming can turn a short segment over; remove those and trim their neighbours to each
    // other, until none is left. Every pass removes a segment, so this ends.
    for (bool removed = true; removed;) {
        removed = false;
        for (int k = len() - 1; k >= 0; --k) {
            if (turnedOver(m_vertices[k], directions[k])) {
                remove(static_cast<unsigned int>(k), false);
                directions.removeAt(static_cast<unsigned long>(k));
                removed = true;
            }
        }
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

void COrxVertexArray::closeGaps(bool closed, bool bridgeGaps) {
    int const joints = closed ? len() : len() - 1;
    for (int k = joints - 1; k >= 0; --k) {
        COrxVertex& v = m_vertices[k];
        COrxVertex& next = m_vertices[(k + 1) % len()];
        if (v.endPoint() == next.startPoint()) {
            continue;
        }
        ORX::g_vx_trim(v, next);
        if (bridgeGaps && v.endPoint() != next.startPoint()) {
            insertAt(static_cast<unsigned int>(k + 1),
                     COrxVertex(v.endPoint(), next.startPoint(), 0.0));
        }
    }
}
