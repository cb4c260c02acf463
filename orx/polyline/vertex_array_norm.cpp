// COrxVertexArray::norm: the clean-up run after construction, editing and the boolean
// operations.
#include "orx/polyline/vertex_array.h"

namespace {

bool collapsed(COrxVertex const& v) {
    return v.startPoint() == v.endPoint();
}

// c and next continue one another: next starts where c ends, on the same line or circle.
// Segments that do not meet are never merged, so the separate loops of one polyline (as the
// boolean operations return them) stay apart. Arcs of one circle are not merged when
// together they would close the whole circle: a full circle cannot be written as one bulge,
// and merging would erase it. (A straight run that goes back on itself still merges and
// collapses.)
bool mergeable(COrxVertex const& c, COrxVertex const& next) {
    if (c.endPoint() != next.startPoint() || !c.coLinear(next)) {
        return false;
    }
    return c.isStraight() || next.endPoint() != c.startPoint();
}

}  // namespace

COrxVertexArray& COrxVertexArray::norm(bool keepStart) {
    // 1. Drop zero-length segments.
    COrxVertexArray work;
    for (int k = 0; k < len(); ++k) {
        if (!collapsed(m_vertices[k])) {
            work.append(m_vertices[k]);
        }
    }
    int const n = work.len();
    if (n < 2) {
        COrxVector3d const normal = m_normal;
        *this = work;
        m_normal = normal;
        return *this;
    }
    // 2. Without keepStart, start after the run that crosses the seam (merged backwards from
    //    the last segment), so that a collinear run across the seam stays in one piece.
    int start = 0;
    if (!keepStart) {
        COrxVertex c = work.m_vertices[n - 1];
        while (start < n && mergeable(c, work.m_vertices[start])) {
            c = c.unite(work.m_vertices[start]);
            ++start;
            if (collapsed(c)) {
                break;
            }
        }
    }
    // 3. Rebuild from there, merging each run into one segment.
    setLogicalLength(0);
    bool anyCollapsed = false;
    for (int i = 0; i < n; ++i) {
        COrxVertex c = work.m_vertices[(i + start) % n];
        while (i < n - 1 && mergeable(c, work.m_vertices[(i + start + 1) % n])) {
            c = c.unite(work.m_vertices[(i + start + 1) % n]);
            ++i;
            if (collapsed(c)) {
                break;
            }
        }
        if (collapsed(c)) {
            anyCollapsed = true;
        } else {
            append(c);
        }
    }
    // 4. A collapse may have brought new neighbours together: again until stable.
    if (anyCollapsed) {
        return norm(keepStart);
    }
    // 5. Snap every joint (cyclically, also for open polylines) so that later exact
    //    comparisons succeed.
    for (int k = 0; k < len(); ++k) {
        COrxVertex& v = m_vertices[k];
        COrxPoint3d const& nextStart = m_vertices[(k + 1) % len()].startPoint();
        if (v.endPoint() == nextStart) {
            v.set(v.startPoint(), nextStart, v.bulge());
        }
    }
    return *this;
}
