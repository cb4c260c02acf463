#include "orx/regions/internal/piece_loop.h"

#include "orx/plane_geometry/bulge_segment.h"

namespace ORX {
namespace internal {

PieceLoop::PieceLoop(COrxVertexArray const& vl) : m_originals(vl.len()) {
    std::size_t const n = static_cast<std::size_t>(vl.len());
    m_pieces.reserve(n + n / 4 + 4);
    m_next.reserve(m_pieces.capacity());
    m_previous.reserve(m_pieces.capacity());
    m_origin.reserve(m_pieces.capacity());
    for (int k = 0; k < vl.len(); ++k) {
        m_pieces.push_back(vl[k]);
        m_origin.push_back(k);
        m_next.push_back(k + 1 < vl.len() ? k + 1 : 0);
        m_previous.push_back(k > 0 ? k - 1 : vl.len() - 1);
    }
}

bool PieceLoop::cut(int r, COrxPoint3d const& p, int& added) {
    COrxVertex const v = piece(r);
    COrxPoint3d at;
    double first = 0.0, second = 0.0;
    if (!g_bulg_cut(v.startPoint(), v.endPoint(), v.bulge(), p, at, first, second)) {
        return false;
    }
    added = static_cast<int>(m_pieces.size());
    COrxVertex tail(v);  // keeps the tag, as breakVertex's copy does
    tail.set(at, v.endPoint(), second);
    m_pieces.push_back(tail);
    piece(r).set(v.startPoint(), at, first);
    int const after = next(r);
    m_next.push_back(after);
    m_previous.push_back(r);
    m_origin.push_back(origin(r));
    m_next[static_cast<std::size_t>(r)] = added;
    m_previous[static_cast<std::size_t>(after)] = added;
    return true;
}

void PieceLoop::writeTo(COrxVertexArray& vl) const {
    COrxVertexArray out;
    if (m_originals > 0) {
        int r = 0;
        do {
            out.append(piece(r));
            r = next(r);
        } while (r != 0);
    }
    out.setNormal(vl.normal());
    vl = out;
}

}  // namespace internal
}  // namespace ORX
