// COrxVertexArray::norm: the clean-up run after construction, editing and the boolean
// operations.
#include <algorithm>

#include "orx/polyline/internal/run_merger.h"
#include "orx/polyline/vertex_array.h"

namespace {

bool collapsed(COrxVertex const& v) {
    return v.startPoint() == v.endPoint();
}

}  // namespace

COrxVertexArray& COrxVertexArray::norm(bool keepStart) {
    // Works in place: every step writes at or before the place it reads, so no copy of a
    // long polyline is made.
    // 1. Drop zero-length segments.
    int n = 0;
    for (int k = 0; k < len(); ++k) {
        if (!collapsed(m_vertices[k])) {
            if (n != k) {
                m_vertices[n] = m_vertices[k];
            }
            ++n;
        }
    }
    setLogicalLength(n);
    if (n < 2) {
        return *this;
    }
    // 2. Without keepStart, start after the run that crosses the seam (merged backwards from
    //    the last segment), so that a collinear run across the seam stays in one piece.
    if (!keepStart) {
        int const start = ORX::internal::longestRun(*this, n - 1, n).count - 1;
        std::rotate(m_vertices, m_vertices + start, m_vertices + n);
    }
    // 3. Rebuild from there, merging each run into one segment while every vertex it drops
    //    stays within the tolerance of the merged segment (segments that do not meet are
    //    never merged, so the separate loops of one polyline stay apart). A run is read
    //    before its merged segment is written, at or before the run's first place.
    bool anyCollapsed = false;
    int kept = 0;
    for (int i = 0; i < n;) {
        ORX::internal::Run const run = ORX::internal::longestRun(*this, i, n - i);
        i += run.count;
        if (collapsed(run.merged)) {
            anyCollapsed = true;
        } else {
            m_vertices[kept++] = run.merged;
        }
    }
    setLogicalLength(kept);
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
