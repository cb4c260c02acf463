#include "orx/regions/internal/chaining.h"

#include <memory>
#include <utility>
#include <vector>

#include "orx/geom/shared/point_cells.h"

namespace ORX {
namespace internal {

namespace {

class Chainer {
public:
    explicit Chainer(COrxVertexArray& vl)
        : m_vl(vl.data()),
          m_count(vl.len()),
          m_position(static_cast<std::size_t>(vl.len())),
          m_id(static_cast<std::size_t>(vl.len())) {
        for (int k = 0; k < vl.len(); ++k) {
            m_position[static_cast<std::size_t>(k)] = m_id[static_cast<std::size_t>(k)] = k;
        }
    }

    // The first position after i whose segment starts at p; the count when none does.
    int follower(int i, COrxPoint3d const& p) {
        if (!m_starts) {
            fileStarts();
        }
        int found = m_count;
        m_starts->forEachNear(p, [&](int id) {
            int const at = m_position[static_cast<std::size_t>(id)];
            if (at > i && at < found && m_vl[at].startPoint() == p) {
                found = at;
            }
        });
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
    // The segments by their start, filed on the first search: when the segments come in
    // order, as the pieces of an operation mostly do, no search is needed. Starts never
    // move, so the cells stay right; the segments are filed by their first position.
    void fileStarts() {
        m_starts = std::make_unique<PointCells>(m_count);
        for (int k = 0; k < m_count; ++k) {
            m_starts->add(m_vl[k].startPoint(), m_id[static_cast<std::size_t>(k)]);
        }
    }

    COrxVertex* m_vl;  // the segments, stored in place
    int m_count;
    ScratchVector<int> m_position;  // by first position: where the segment is now
    ScratchVector<int> m_id;        // by position: the segment's first position
    std::unique_ptr<PointCells> m_starts;
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
