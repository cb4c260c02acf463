// COrxVertexArray::norm: the clean-up run after construction, editing and the boolean
// operations.
#include "orx/polyline/internal/run_merger.h"
#include "orx/polyline/vertex_array.h"

namespace {

bool collapsed(COrxVertex const& v) {
    return v.startPoint() == v.endPoint();
}

}  // namespace

COrxVertexArray& COrxVertexArray::norm(bool keepStart) {
    // 1. Drop zero-length segments.
    COrxVertexArray work;
    work.setLogicalLength(len());  // room for all, without growing step by step
    work.setLogicalLength(0);
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
        start = ORX::internal::longestRun(work, n - 1, n).count - 1;
    }
    // 3. Rebuild from there, merging each run into one segment while every vertex it drops
    //    stays within the tolerance of the merged segment (segments that do not meet are
    //    never merged, so the separate loops of one polyline stay apart).
    setLogicalLength(0);
    bool anyCollapsed = false;
    for (int i = 0; i < n;) {
        ORX::internal::Run const run = ORX::internal::longestRun(work, (i + start) % n, n - i);
        i += run.count;
        if (collapsed(run.merged)) {
            anyCollapsed = true;
        } else {
            append(run.merged);
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
