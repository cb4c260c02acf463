#include "orx/regions/internal/chaining.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>
#include <vector>

namespace ORX {
namespace internal {

namespace {

// Cell numbers beyond this are folded together; only absurd coordinates get there.
constexpr double kMaxCell = 1e15;

using Cell = std::pair<std::int64_t, std::int64_t>;

std::int64_t cellNumber(double value, double width) {
    double const n = std::floor(value / width);
    if (!(n > -kMaxCell)) {
        return static_cast<std::int64_t>(-kMaxCell);  // also NaN
    }
    return static_cast<std::int64_t>(std::min(n, kMaxCell));
}

class StartIndex {
public:
    explicit StartIndex(COrxVertexArray const& vl) : m_width(2 * COrxPoint3d::tol) {
        m_byCell.reserve(static_cast<std::size_t>(vl.len()));
        for (int k = 0; k < vl.len(); ++k) {
            m_byCell.emplace_back(cellOf(vl[k].startPoint()), k);
        }
        std::sort(m_byCell.begin(), m_byCell.end());
    }

    // Calls visit(id) for every segment (by its original position) starting near p.
    template <class Visit>
    void near(COrxPoint3d const& p, Visit visit) const {
        Cell const centre = cellOf(p);
        for (std::int64_t dx = -1; dx <= 1; ++dx) {
            for (std::int64_t dy = -1; dy <= 1; ++dy) {
                std::pair<Cell, int> const key{{centre.first + dx, centre.second + dy}, -1};
                for (auto it = std::lower_bound(m_byCell.begin(), m_byCell.end(), key);
                     it != m_byCell.end() && it->first == key.first; ++it) {
                    visit(it->second);
                }
            }
        }
    }

private:
    Cell cellOf(COrxPoint3d const& p) const {
        return {cellNumber(p.x, m_width), cellNumber(p.y, m_width)};
    }

    double m_width;
    std::vector<std::pair<Cell, int>> m_byCell;  // sorted
};

}  // namespace

void chainHeadToTail(COrxVertexArray& vl) {
    int const n = vl.len();
    if (n < 2) {
        return;
    }
    StartIndex const starts(vl);
    std::vector<int> position(static_cast<std::size_t>(n)), id(static_cast<std::size_t>(n));
    for (int k = 0; k < n; ++k) {
        position[static_cast<std::size_t>(k)] = id[static_cast<std::size_t>(k)] = k;
    }
    for (int i = 1; i < n; ++i) {
        COrxPoint3d const end = vl[i - 1].endPoint();
        int follower = i;
        if (vl[i].startPoint() != end) {
            follower = n;
            starts.near(end, [&](int segment) {
                int const at = position[static_cast<std::size_t>(segment)];
                if (at > i && at < follower && vl[at].startPoint() == end) {
                    follower = at;
                }
            });
        }
        if (follower == n) {
            continue;  // no segment starts here: segment i begins a new chain
        }
        COrxVertex& before = vl[i - 1];
        before.set(before.startPoint(), vl[follower].startPoint(), before.bulge());
        if (follower != i) {
            COrxVertex const moved = vl[follower];
            vl[follower] = vl[i];
            vl[i] = moved;
            int const a = id[static_cast<std::size_t>(i)], b = id[static_cast<std::size_t>(follower)];
            std::swap(id[static_cast<std::size_t>(i)], id[static_cast<std::size_t>(follower)]);
            position[static_cast<std::size_t>(a)] = follower;
            position[static_cast<std::size_t>(b)] = i;
        }
    }
}

}  // namespace internal
}  // namespace ORX
