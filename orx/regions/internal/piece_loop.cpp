#include "orx/regions/internal/piece_loop.h"

#include "orx/plane_geometry/bulge_segment.h"

namespace ORX {
namespace internal {

PieceLoop::PieceLoop(COrxVertexArray const& vl) : m_source(vl.data()), m_originals(vl.len()) {
    std::size_t const n = static_cast<std::size_t>(vl.len());
    m_slot.assign(n, -1);
    m_next.reserve(n + n / 4 + 4);
    m_previous.reserve(m_next.capacity());
    m_origin.reserve(m_next.capacity());
    for (int k = 0; k < vl.len(); ++k) {
        m_origin.push_back(k);
        m_next.push_back(k + 1 < vl.len() ? k + 1 : 0);
        m_previous.push_back(k > 0 ? k - 1 : vl.len() - 1);
    }
}

COrxVertex& PieceLoop::changePiece(int r) {
    int& slot = m_slot[static_cast<std::size_t>(r)];
    if (slot < 0) {
        slot = static_cast<int>(m_own.size());
        m_own.push_back(m_source[r]);
    }
    return m_own[static_cast<std::size_t>(slot)];
}

bool PieceLoop::cut(int r, COrxPoint3d const& p, int& added) {
    COrxVertex const v = piece(r);
    COrxPoint3d at;
    double first = 0.0, second = 0.0;
    if (!g_bulg_cut(v.startPoint(), v.endPoint(), v.bulge(), p, at, first, second)) {
        return false;
    }
    added = size();
    COrxVertex tail(v);  // keeps the tag, as breakVertex's copy does
    tail.set(at, v.endPoint(), second);
    m_slot.push_back(static_cast<int>(m_own.size()));
    m_own.push_back(tail);
    changePiece(r).set(v.startPoint(), at, first);
    int const after = next(r);
    m_next.push_back(after);
    m_previous.push_back(r);
    m_origin.push_back(origin(r));
    m_next[static_cast<std::size_t>(r)] = added;
    m_previous[static_cast<std::size_t>(after)] = added;
    return true;
}

COrxVertexArray PieceLoop::written(COrxVector3d const& normal) const {
    COrxVertexArray out;
    if (m_originals > 0) {
        int r = 0;
        do {
            out.append(piece(r));
            r = next(r);
        } while (r != 0);
    }
    out.setNormal(normal);
    return out;
}

}  // namespace internal
}  // namespace ORX
