#include "orx/geom/shared/unique_points.h"

#include <algorithm>

namespace ORX {
namespace internal {

namespace {

// The table's first size; it doubles when full.
constexpr int kFirstCapacity = 16;

}  // namespace

UniquePoints::UniquePoints(COrxPoint3dArray& points) : m_points(points), m_cells(0) {
    refile(std::max(kFirstCapacity, 2 * points.len()));
}

void UniquePoints::add(COrxPoint3d const& p) {
    if (holds(p)) {
        return;
    }
    if (m_points.len() == m_capacity) {
        refile(2 * m_capacity);
    }
    m_cells.add(p, m_points.len());
    m_points.append(p);
}

bool UniquePoints::holds(COrxPoint3d const& p) const {
    bool found = false;
    m_cells.forEachNear(p, [&](int id) { found = found || m_points[id] == p; });
    return found;
}

// A table for `capacity` points, with every point of the list filed again.
void UniquePoints::refile(int capacity) {
    m_capacity = capacity;
    m_cells = PointCells(capacity);
    for (int k = 0; k < m_points.len(); ++k) {
        m_cells.add(m_points[k], k);
    }
}

}  // namespace internal
}  // namespace ORX
