#include "orx/polyline/shared/segment_grid.h"

#include <algorithm>
#include <cmath>

namespace ORX {
namespace internal {

namespace {

// Cells this many times as wide and high as the average box, at most this many cells per
// segment and this many per side.
constexpr double kCellPerBox = 2.0;
constexpr double kMaxCellsPerSegment = 8.0;
constexpr int kMaxCellsPerSide = 2048;
// A box spanning more cells than this goes to the always-tested list instead.
constexpr long long kMaxCellsPerBox = 64;

int clampCell(double value, int count) {
    if (!(value >= 0.0)) {
        return 0;
    }
    return value >= count ? count - 1 : static_cast<int>(value);
}

// floor(value) limited to [-1, count] before the conversion (value may be huge or NaN).
int rowIndex(double value, int count) {
    double const f = std::floor(value);
    if (!(f >= -1.0)) {
        return -1;
    }
    return f > count ? count : static_cast<int>(f);
}

}  // namespace

SegmentGrid::SegmentGrid(SegmentBoxes const& boxes) {
    SegmentBoxes wide;
    wide.reserve(boxes.size());
    int finiteCount = 0;
    SegmentBox all{0, 0, 0, 0};
    double widths = 0.0, heights = 0.0;
    for (SegmentBox const& box : boxes) {
        wide.push_back(prunedBox(box));
        if (finiteBox(wide.back())) {
            SegmentBox const& w = wide.back();
            all = finiteCount > 0
                      ? SegmentBox{std::min(all.xmin, w.xmin), std::min(all.ymin, w.ymin),
                                   std::max(all.xmax, w.xmax), std::max(all.ymax, w.ymax)}
                      : w;
            widths += w.xmax - w.xmin;
            heights += w.ymax - w.ymin;
            ++finiteCount;
        }
    }
    m_x0 = all.xmin;
    m_y0 = all.ymin;
    if (finiteCount > 0) {
        chooseCells(all, widths / finiteCount, heights / finiteCount, finiteCount);
    }

    // Two passes over the boxes: count per cell, then fill (compressed rows).
    std::vector<CellRange> ranges(wide.size());
    std::vector<char> placed(wide.size(), 0);
    m_cellStart.assign(static_cast<std::size_t>(m_nx) * m_ny + 1, 0);
    for (std::size_t k = 0; k < wide.size(); ++k) {
        CellRange& r = ranges[k];
        if (!finiteBox(wide[k]) || !cellRange(wide[k], r) ||
            static_cast<long long>(r.x1 - r.x0 + 1) * (r.y1 - r.y0 + 1) > kMaxCellsPerBox) {
            m_everywhere.push_back(static_cast<int>(k));
            continue;
        }
        placed[k] = 1;
        for (int y = r.y0; y <= r.y1; ++y) {
            for (int x = r.x0; x <= r.x1; ++x) {
                ++m_cellStart[static_cast<std::size_t>(y) * m_nx + x + 1];
            }
        }
    }
    for (std::size_t c = 1; c < m_cellStart.size(); ++c) {
        m_cellStart[c] += m_cellStart[c - 1];
    }
    m_ids.resize(static_cast<std::size_t>(m_cellStart.back()));
    std::vector<int> fill(m_cellStart.begin(), m_cellStart.end() - 1);
    for (std::size_t k = 0; k < wide.size(); ++k) {
        if (!placed[k]) {
            continue;
        }
        CellRange const& r = ranges[k];
        for (int y = r.y0; y <= r.y1; ++y) {
            for (int x = r.x0; x <= r.x1; ++x) {
                m_ids[static_cast<std::size_t>(fill[static_cast<std::size_t>(y) * m_nx + x]++)] =
                    static_cast<int>(k);
            }
        }
    }
}

// Cells sized by the average box, not by the whole area: boxes along an outline fill a thin
// band of its box, and cells as large as the area shared out among the segments would each
// hold dozens of them there.
void SegmentGrid::chooseCells(SegmentBox const& all, double meanWidth, double meanHeight,
                              int count) {
    double const width = all.xmax - all.xmin, height = all.ymax - all.ymin;
    double cellW = std::max(kCellPerBox * meanWidth, width / kMaxCellsPerSide);
    double cellH = std::max(kCellPerBox * meanHeight, height / kMaxCellsPerSide);
    double const cells = std::ceil(width / cellW) * std::ceil(height / cellH);
    double const allowed = kMaxCellsPerSegment * count;
    if (cells > allowed) {
        double const grow = std::sqrt(cells / allowed);
        cellW *= grow;
        cellH *= grow;
    }
    // Written so that NaN, infinite and zero sizes end in one cell per side.
    auto countOf = [](double span, double cell) {
        double const n = std::ceil(span / cell);
        return n >= 1.0 ? static_cast<int>(std::min(n, double{kMaxCellsPerSide})) : 1;
    };
    m_nx = countOf(width, cellW);
    m_ny = countOf(height, cellH);
    m_cellW = std::max(width / m_nx, 1e-300);
    m_cellH = std::max(height / m_ny, 1e-300);
}

bool SegmentGrid::cellRange(SegmentBox const& wide, CellRange& range) const {
    if (m_nx == 0 || wide.xmax < m_x0 || wide.ymax < m_y0 || wide.xmin > m_x0 + m_cellW * m_nx ||
        wide.ymin > m_y0 + m_cellH * m_ny) {
        return false;
    }
    range.x0 = clampCell((wide.xmin - m_x0) / m_cellW, m_nx);
    range.x1 = clampCell((wide.xmax - m_x0) / m_cellW, m_nx);
    range.y0 = clampCell((wide.ymin - m_y0) / m_cellH, m_ny);
    range.y1 = clampCell((wide.ymax - m_y0) / m_cellH, m_ny);
    return true;
}

void SegmentGrid::collect(CellRange const& range, std::vector<int>& out) const {
    for (int y = range.y0; y <= range.y1; ++y) {
        for (int x = range.x0; x <= range.x1; ++x) {
            std::size_t const c = static_cast<std::size_t>(y) * m_nx + x;
            out.insert(out.end(), m_ids.begin() + m_cellStart[c],
                       m_ids.begin() + m_cellStart[c + 1]);
        }
    }
}

void SegmentGrid::finish(std::vector<int>& out) {
    std::sort(out.begin(), out.end());
    out.erase(std::unique(out.begin(), out.end()), out.end());
}

void SegmentGrid::query(SegmentBox const& box, std::vector<int>& out) const {
    out = m_everywhere;
    SegmentBox const wide = prunedBox(box);
    CellRange range;
    if (!finiteBox(wide)) {
        // A query that cannot be placed may meet anything.
        range = CellRange{0, 0, m_nx - 1, m_ny - 1};
        collect(range, out);
    } else if (cellRange(wide, range)) {
        collect(range, out);
    }
    finish(out);
}

void SegmentGrid::addRow(int row, double xa, double xb, std::vector<int>& out) const {
    if (row < 0 || row >= m_ny) {
        return;
    }
    // One cell more on each side covers rounding at the cell borders.
    int const x0 = clampCell((std::min(xa, xb) - m_x0) / m_cellW - 1, m_nx);
    int const x1 = clampCell((std::max(xa, xb) - m_x0) / m_cellW + 1, m_nx);
    collect(CellRange{x0, row, x1, row}, out);
}

void SegmentGrid::queryRay(COrxPoint3d const& p, COrxPoint3d const& q,
                           std::vector<int>& out) const {
    out = m_everywhere;
    if (m_nx == 0) {
        finish(out);
        return;
    }
    if (!p.isValid() || !q.isValid()) {
        collect(CellRange{0, 0, m_nx - 1, m_ny - 1}, out);
        finish(out);
        return;
    }
    // Clip p-q to the grid's area (with one cell to spare), then walk its rows.
    double t0 = 0.0, t1 = 1.0;
    double const dx = q.x - p.x, dy = q.y - p.y;
    double const lo[2] = {m_x0 - m_cellW, m_y0 - m_cellH};
    double const hi[2] = {m_x0 + m_cellW * (m_nx + 1), m_y0 + m_cellH * (m_ny + 1)};
    double const start[2] = {p.x, p.y}, delta[2] = {dx, dy};
    for (int axis = 0; axis < 2; ++axis) {
        if (delta[axis] == 0.0) {
            if (start[axis] < lo[axis] || start[axis] > hi[axis]) {
                finish(out);
                return;
            }
            continue;
        }
        double const ta = (lo[axis] - start[axis]) / delta[axis];
        double const tb = (hi[axis] - start[axis]) / delta[axis];
        t0 = std::max(t0, std::min(ta, tb));
        t1 = std::min(t1, std::max(ta, tb));
    }
    if (t0 > t1) {
        finish(out);
        return;
    }
    double const ya = p.y + dy * t0, yb = p.y + dy * t1;
    int const rowA = rowIndex((std::min(ya, yb) - m_y0) / m_cellH, m_ny) - 1;
    int const rowB = rowIndex((std::max(ya, yb) - m_y0) / m_cellH, m_ny) + 1;
    for (int row = std::max(rowA, 0); row <= std::min(rowB, m_ny - 1); ++row) {
        // The part of the clipped segment within this row's band (one row to spare).
        double ta = t0, tb = t1;
        if (dy != 0.0) {
            double const bandLo = m_y0 + m_cellH * (row - 1), bandHi = m_y0 + m_cellH * (row + 2);
            double const ua = (bandLo - p.y) / dy, ub = (bandHi - p.y) / dy;
            ta = std::max(t0, std::min(ua, ub));
            tb = std::min(t1, std::max(ua, ub));
            if (ta > tb) {
                continue;
            }
        }
        addRow(row, p.x + dx * ta, p.x + dx * tb, out);
    }
    finish(out);
}

}  // namespace internal
}  // namespace ORX
