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

std::int64_t cellNumber(double value, double width) {
    double const n = std::floor(value / width);
    if (!(n > -kMaxCell)) {
        return static_cast<std::int64_t>(-kMaxCell);  // also NaN
    }
    return static_cast<std::int64_t>(std::min(n, kMaxCell));
}

// One number for a cell; different cells may share one, which only adds candidates (the
// points are compared after).
std::uint64_t cellKey(std::int64_t x, std::int64_t y) {
    return static_cast<std::uint64_t>(x) * 0x9E3779B97F4A7C15ull ^ static_cast<std::uint64_t>(y);
}

class Chainer {
public:
    explicit Chainer(COrxVertexArray& vl)
        : m_vl(vl.data()),
          m_count(vl.len()),
          m_width(2 * COrxPoint3d::tol),
          m_position(static_cast<std::size_t>(vl.len())),
          m_id(static_cast<std::size_t>(vl.len())) {
        for (int k = 0; k < vl.len(); ++k) {
            m_position[static_cast<std::size_t>(k)] = m_id[static_cast<std::size_t>(k)] = k;
        }
    }

    // The first position after i whose segment starts at p; the length when none does.
    int follower(int i, COrxPoint3d const& p) {
        if (m_head.empty()) {
            build();
        }
        int found = m_count;
        // Points within the tolerance of p lie in the two-by-two cells around it.
        double const t = COrxPoint3d::tol;
        std::int64_t const x0 = cellNumber(p.x - t, m_width), y0 = cellNumber(p.y - t, m_width);
        std::int64_t const x1 = cellNumber(p.x + t, m_width), y1 = cellNumber(p.y + t, m_width);
        for (std::int64_t x = x0; x <= x1; ++x) {
            for (std::int64_t y = y0; y <= y1; ++y) {
                for (int id = m_head[bucket(x, y)]; id >= 0;
                     id = m_next[static_cast<std::size_t>(id)]) {
                    int const at = m_position[static_cast<std::size_t>(id)];
                    if (at > i && at < found && m_vl[at].startPoint() == p) {
                        found = at;
                    }
                }
            }
        }
        return found;
    }

    void swap(int i, int k) {
        COrxVertex const moved = m_vl[k];
        m_vl[k] = m_vl[i];
        m_vl[i] = moved;
        int const a = m_id[static_cast<std::size_t>(i)], b = m_id[static_cast<std::size_t>(k)];
        std::swap(m_id[static_cast<std::size_t>(i)], m_id[static_cast<std::size_t>(k)]);
        m_position[static_cast<std::size_t>(a)] = k;
        m_position[static_cast<std::size_t>(b)] = i;
    }

private:
    // The segments by the cell of their start, in a hash table of chained buckets, made on
    // the first search: when the segments come in order, as the pieces of an operation
    // mostly do, no search is needed. Starts never move, so the cells stay right; the
    // segments are kept by their first position.
    void build() {
        std::size_t size = 16;
        while (size < 2 * static_cast<std::size_t>(m_count)) {
            size *= 2;
        }
        m_head.assign(size, -1);
        m_next.assign(static_cast<std::size_t>(m_count), -1);
        for (int k = 0; k < m_count; ++k) {
            COrxPoint3d const& p = m_vl[k].startPoint();
            int const id = m_id[static_cast<std::size_t>(k)];
            std::size_t const b = bucket(cellNumber(p.x, m_width), cellNumber(p.y, m_width));
            m_next[static_cast<std::size_t>(id)] = m_head[b];
            m_head[b] = id;
        }
    }

    std::size_t bucket(std::int64_t x, std::int64_t y) const {
        std::uint64_t const key = cellKey(x, y);
        return static_cast<std::size_t>((key ^ (key >> 29)) & (m_head.size() - 1));
    }

    COrxVertex* m_vl;  // the segments, stored in place
    int m_count;
    double m_width;
    std::vector<int> m_position;  // by first position: where the segment is now
    std::vector<int> m_id;        // by position: the segment's first position
    std::vector<int> m_head;      // per bucket: the first segment in it, -1 for none
    std::vector<int> m_next;      // per segment: the next one in its bucket
};

}  // namespace

void chainHeadToTail(COrxVertexArray& segments) {
    int const n = segments.len();
    if (n < 2) {
        return;
    }
    Chainer chainer(segments);
    COrxVertex* vl = segments.data();
    for (int i = 1; i < n; ++i) {
        COrxPoint3d const end = vl[i - 1].endPoint();
        int const follower = vl[i].startPoint() == end ? i : chainer.follower(i, end);
        if (follower == n) {
            continue;  // no segment starts here: segment i begins a new chain
        }
        COrxVertex& before = vl[i - 1];
        before.set(before.startPoint(), vl[follower].startPoint(), before.bulge());
        if (follower != i) {
            chainer.swap(i, follower);
        }
    }
}

}  // namespace internal
}  // namespace ORX
