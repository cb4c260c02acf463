#include "orx/regions/internal/piece_matcher.h"

#include "orx/plane_geometry/bulge_segment.h"

namespace ORX {
namespace internal {

namespace {

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

PieceMatcher::PieceMatcher(SegmentRefs pieces)
    : m_pieces(std::move(pieces)), m_starts(static_cast<int>(m_pieces.size())) {
    for (std::size_t k = 0; k < m_pieces.size(); ++k) {
        m_starts.add(m_pieces[k]->startPoint(), static_cast<int>(k));
    }
}

}  // namespace internal
}  // namespace ORX
