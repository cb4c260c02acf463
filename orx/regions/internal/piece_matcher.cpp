#include "orx/regions/internal/piece_matcher.h"

#include <algorithm>
#include <cmath>

#include "orx/plane_geometry/bulge_segment.h"

namespace ORX {
namespace internal {

namespace {

// Cell numbers beyond this are folded together; only absurd coordinates get there, and
// they only make the search look at more pieces.
constexpr double kMaxCell = 1e15;

std::int64_t cellNumber(double value, double cell) {
    double const n = std::floor(value / cell);
    if (!(n > -kMaxCell)) {
        return static_cast<std::int64_t>(-kMaxCell);  // also NaN
    }
    return static_cast<std::int64_t>(std::min(n, kMaxCell));
}

bool within(COrxVertex const& v, COrxPoint3d const& p) {
    return g_bulg_pt_dist(v.startPoint(), v.endPoint(), v.bulge(), p) <= COrxPoint3d::tol;
}

}  // namespace

int coincidence(COrxVertex const& p, COrxVertex const& q) {
    int direction = 0;
    if (p.startPoint() == q.startPoint() && p.endPoint() == q.endPoint()) {
        direction = 1;
    } else if (p.startPoint() == q.endPoint() && p.endPoint() == q.startPoint()) {
        direction = -1;
    }
    if (direction == 0 || !within(q, p.mid()) || !within(p, q.mid())) {
        return 0;
    }
    return direction;
}

PieceMatcher::PieceMatcher(std::vector<COrxVertex const*> pieces)
    : m_pieces(std::move(pieces)), m_cell(2 * COrxPoint3d::tol) {
    m_byCell.reserve(m_pieces.size());
    for (std::size_t k = 0; k < m_pieces.size(); ++k) {
        m_byCell.emplace_back(cellOf(m_pieces[k]->startPoint()), static_cast<int>(k));
    }
    std::sort(m_byCell.begin(), m_byCell.end());
}

PieceMatcher::Cell PieceMatcher::cellOf(COrxPoint3d const& p) const {
    return {cellNumber(p.x, m_cell), cellNumber(p.y, m_cell)};
}

void PieceMatcher::candidates(COrxPoint3d const& p, std::vector<int>& out) const {
    // A point within the tolerance lies in this cell or a neighbouring one.
    Cell const centre = cellOf(p);
    for (std::int64_t dx = -1; dx <= 1; ++dx) {
        for (std::int64_t dy = -1; dy <= 1; ++dy) {
            Cell const cell{centre.first + dx, centre.second + dy};
            auto range =
                std::equal_range(m_byCell.begin(), m_byCell.end(), std::make_pair(cell, -1),
                                 [](std::pair<Cell, int> const& l, std::pair<Cell, int> const& r) {
                                     return l.first < r.first;
                                 });
            for (auto it = range.first; it != range.second; ++it) {
                out.push_back(it->second);
            }
        }
    }
    std::sort(out.begin(), out.end());
    out.erase(std::unique(out.begin(), out.end()), out.end());
}

}  // namespace internal
}  // namespace ORX
