// Finds the pieces of the other operand that coincide with a piece: the same ends (point
// tolerance), in the same or the opposite direction, and each piece's midpoint within the
// tolerance of the other piece.
//
// After the mutual cutting, a stretch of boundary that both operands share is cut at the
// same points on both, so its pieces pair off this way; every other piece lies off the
// other outline away from its ends and is classified by its midpoint. The pieces are found
// through their start points filed by cell (PointCells); the answers are those of a search
// through all pieces.
#ifndef ORX_REGIONS_INTERNAL_PIECE_MATCHER_H
#define ORX_REGIONS_INTERNAL_PIECE_MATCHER_H

#include <vector>

#include "orx/geom/shared/point_cells.h"
#include "orx/polyline/shared/segment_box.h"
#include "orx/polyline/vertex.h"

namespace ORX {
namespace internal {

// The two pieces coincide, running the same way (+1) or opposite ways (-1); 0 when not.
int coincidence(COrxVertex const& p, COrxVertex const& q);

class PieceMatcher {
public:
    // Keeps references: the pieces must outlive the matcher and stay unchanged.
    explicit PieceMatcher(SegmentRefs pieces);

    // Calls found(index, direction) for every piece that coincides with p (index into the
    // list the matcher was made from).
    // A piece running the same way starts at p's start, one running the opposite way at
    // p's end: each search hands out only its own kind, so no piece comes twice.
    template <class Found>
    void forEachMatch(COrxVertex const& p, Found found) const {
        auto search = [&](COrxPoint3d const& from, int wanted) {
            m_starts.forEachNear(from, [&](int k) {
                if (coincidence(p, *m_pieces[static_cast<std::size_t>(k)]) == wanted) {
                    found(k, wanted);
                }
            });
        };
        search(p.startPoint(), 1);
        search(p.endPoint(), -1);
    }

private:
    SegmentRefs m_pieces;
    PointCells m_starts;
};

}  // namespace internal
}  // namespace ORX

#endif  // ORX_REGIONS_INTERNAL_PIECE_MATCHER_H
