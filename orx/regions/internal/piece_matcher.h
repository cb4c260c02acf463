// Finds the pieces of the other operand that coincide with a piece: the same ends (point
// tolerance), in the same or the opposite direction, and each piece's midpoint within the
// tolerance of the other piece.
//
// After the mutual cutting, a stretch of boundary that both operands share is cut at the
// same points on both, so its pieces pair off this way; every other piece lies off the
// other outline away from its ends and is classified by its midpoint. The pieces are found
// through a hash of their start points on a grid of cells as wide as the tolerance; the
// answers are those of a search through all pieces.
#ifndef ORX_REGIONS_INTERNAL_PIECE_MATCHER_H
#define ORX_REGIONS_INTERNAL_PIECE_MATCHER_H

#include <cstdint>
#include <utility>
#include <vector>

#include "orx/polyline/vertex.h"

namespace ORX {
namespace internal {

// The two pieces coincide, running the same way (+1) or opposite ways (-1); 0 when not.
int coincidence(COrxVertex const& p, COrxVertex const& q);

class PieceMatcher {
public:
    // Keeps references: the pieces must outlive the matcher and stay unchanged.
    explicit PieceMatcher(std::vector<COrxVertex const*> pieces);

    // Calls found(index, direction) for every piece that coincides with p (index into the
    // list the matcher was made from).
    template <class Found>
    void forEachMatch(COrxVertex const& p, Found found) const {
        std::vector<int> near;
        candidates(p.startPoint(), near);
        candidates(p.endPoint(), near);
        for (int k : near) {
            int const direction = coincidence(p, *m_pieces[static_cast<std::size_t>(k)]);
            if (direction != 0) {
                found(k, direction);
            }
        }
    }

private:
    using Cell = std::pair<std::int64_t, std::int64_t>;
    Cell cellOf(COrxPoint3d const& p) const;
    // The pieces starting within the tolerance of p (and some more), ascending, unique
    // when merged into `out`.
    void candidates(COrxPoint3d const& p, std::vector<int>& out) const;

    std::vector<COrxVertex const*> m_pieces;
    std::vector<std::pair<Cell, int>> m_byCell;  // sorted
    double m_cell;
};

}  // namespace internal
}  // namespace ORX

#endif  // ORX_REGIONS_INTERNAL_PIECE_MATCHER_H
