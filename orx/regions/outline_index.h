// COrxOutlineIndex: a closed polyline or a region indexed once, for many point queries.
//
// g_vl_pt_inside and g_vll_pt_inside look at every segment for every point. The index sorts
// the segments into horizontal strips once; a query then looks only at the few segments of
// its strip, at a cost that does not grow with the number of segments. A point within the
// point tolerance of the boundary is on it (COrxVertex::isPoint), as for g_vll_pt_inside; any
// other point is inside when the winding number of the loops around it is odd, decided
// exactly (g_bulg_winding) where the functions cast a ray. The two agree for every point
// off the boundary, except where a ray of theirs grazes a segment within the tolerance.
//
//     COrxOutlineIndex plate(region);            // outer loop and holes
//     for (COrxPoint3d const& p : drillPoints) {
//         if (plate.locate(p) == 1) { ... }       // 1 inside, 0 on the boundary, -1 outside
//     }
#ifndef ORX_REGIONS_OUTLINE_INDEX_H
#define ORX_REGIONS_OUTLINE_INDEX_H

#include "orx/foundation/array_templ.h"
#include "orx/foundation/obj.h"
#include "orx/foundation/platform.h"
#include "orx/polyline/vertex_array.h"

class ORX_API COrxOutlineIndex : public COrxObj {
public:
    // Indexes nothing: every point is outside.
    COrxOutlineIndex();
    // A closed polyline (several loops one after another count together).
    explicit COrxOutlineIndex(COrxVertexArray const& outline);
    // A region: the outer loop and its holes (or any list of loops: the area is where an odd
    // number of them lie around the point).
    explicit COrxOutlineIndex(COrxArrayTempl<COrxVertexArray> const& region);
    COrxOutlineIndex(COrxOutlineIndex const& other);
    COrxOutlineIndex& operator=(COrxOutlineIndex const& other);
    ~COrxOutlineIndex() override;

    // 1 inside the area, 0 on the boundary (within COrxPoint3d::tol), -1 outside (also inside
    // a hole, and for a NaN or infinite x or y). The test is planar: the heights of p and of
    // the loops' points play no part (an infinite or NaN z included), as in g_vll_pt_inside.
    // Coordinates below 1e-50 in magnitude count as 0 (the exact tests would underflow).
    int locate(COrxPoint3d const& p) const;
    // Inside; a point on the boundary gives onBoundary (as g_vl_pt_inside).
    bool inside(COrxPoint3d const& p, bool onBoundary) const;

private:
    struct Index;
    Index* m_index;  // owned; a copy of the loops and their strips
};

#endif  // ORX_REGIONS_OUTLINE_INDEX_H
