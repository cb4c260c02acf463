#include "orx/regions/internal/point_cells.h"

#include <algorithm>
#include <cmath>

namespace ORX {
namespace internal {

namespace {

// Cell numbers beyond this are folded together; only absurd coordinates get there.
constexpr double kMaxCell = 1e15;

}  // namespace

PointCells::PointCells(int count) : m_width(2 * COrxPoint3d::tol) {
    std::size_t size = 16;
    while (size < 2 * static_cast<std::size_t>(std::max(count, 0))) {
        size *= 2;
    }
    m_head.assign(size, -1);
    m_next.assign(static_cast<std::size_t>(std::max(count, 0)), -1);
}

void PointCells::add(COrxPoint3d const& p, int id) {
    std::size_t const b = bucket(cellNumber(p.x), cellNumber(p.y));
    m_next[static_cast<std::size_t>(id)] = m_head[b];
    m_head[b] = id;
}

std::int64_t PointCells::cellNumber(double value) const {
    double const n = std::floor(value / m_width);
    if (!(n > -kMaxCell)) {
        return static_cast<std::int64_t>(-kMaxCell);  // also NaN
    }
    return static_cast<std::int64_t>(std::min(n, kMaxCell));
}

std::size_t PointCells::bucket(std::int64_t x, std::int64_t y) const {
    std::uint64_t const key =
        static_cast<std::uint64_t>(x) * 0x9E3779B97F4A7C15ull ^ static_cast<std::uint64_t>(y);
    return static_cast<std::size_t>((key ^ (key >> 29)) & (m_head.size() - 1));
}

}  // namespace internal
}  // namespace ORX
