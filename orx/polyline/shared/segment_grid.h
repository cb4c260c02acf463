// A uniform grid over segment boxes, with cells sized by the average box, for finding the
// segments near a box or along a ray.
//
// Queries return a superset of the segments whose boxes may meet the query (the exact box
// tests of segment_box.h decide), as ascending, unique indexes, so that callers can visit
// candidates in the same order as a loop over all segments would. The grid is built for the
// point tolerance of the moment; it stays valid while the tolerance does not grow.
#ifndef ORX_POLYLINE_SHARED_SEGMENT_GRID_H
#define ORX_POLYLINE_SHARED_SEGMENT_GRID_H

#include <vector>

#include "orx/geom/point.h"
#include "orx/polyline/shared/segment_box.h"

namespace ORX {
namespace internal {

class SegmentGrid {
public:
    explicit SegmentGrid(SegmentBoxes const& boxes);

    // Segments whose boxes may overlap `box` (given tight; widened here).
    void query(SegmentBox const& box, std::vector<int>& out) const;
    // Segments whose boxes may hold p or meet the straight segment p-q.
    void queryRay(COrxPoint3d const& p, COrxPoint3d const& q, std::vector<int>& out) const;

private:
    struct CellRange {
        int x0, y0, x1, y1;
    };
    void chooseCells(SegmentBox const& all, double meanWidth, double meanHeight, int count);
    bool cellRange(SegmentBox const& wide, CellRange& range) const;
    void collect(CellRange const& range, std::vector<int>& out) const;
    void addRow(int row, double xa, double xb, std::vector<int>& out) const;
    static void finish(std::vector<int>& out);

    double m_x0 = 0.0, m_y0 = 0.0, m_cellW = 1.0, m_cellH = 1.0;
    int m_nx = 0, m_ny = 0;
    ScratchVector<int>
        m_cellStart;  // CSR: the segments of cell c are m_ids[start[c], start[c + 1])
    ScratchVector<int> m_ids;
    std::vector<int> m_everywhere;  // non-finite or very large boxes: always candidates
};

}  // namespace internal
}  // namespace ORX

#endif  // ORX_POLYLINE_SHARED_SEGMENT_GRID_H
