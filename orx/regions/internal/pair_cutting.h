// The mutual cutting of two polylines, pair of segments by pair of segments.
//
// Each pair is tested as the plain loop over all pairs tests it (the first polyline's
// segments outside, in order, the second's inside, a pair tested again after every cut), but
// only pairs whose boxes overlap are visited: no other pair can meet or touch, so the result
// is the same. The pieces are kept in linked lists, so a cut moves nothing.
//
// Besides cutting, the second polyline's vertices are brought onto the first one's where the
// two meet, so that the operands share their meeting points exactly and their common pieces
// have identical ends: a vertex of b within the tolerance of a segment of a becomes the cut
// point on it, or, when its foot lies within the tolerance of an end of that segment (no cut
// there), that end; a cut of b where a's vertex or a's cut point lies is that point exactly.
// A vertex of b that already sits on a vertex of a stays there ("pinned"): when another
// vertex of a lies on b near it, b is cut there instead, however near. Without this, a point
// just over the tolerance from an end while its foot is just within it leaves the two
// outlines with pieces that neither match nor cross.
#ifndef ORX_REGIONS_INTERNAL_PAIR_CUTTING_H
#define ORX_REGIONS_INTERNAL_PAIR_CUTTING_H

#include <unordered_set>
#include <utility>
#include <vector>

#include "orx/geom/point_array.h"
#include "orx/regions/internal/piece_loop.h"

namespace ORX {
namespace internal {

// Cuts a (mode bit 1) and b (mode bit 2) where they meet; b's vertices move only when b is
// cut too. When given, nearA and nearB (one entry per original segment) are set where a
// segment's box overlaps one of the other polyline's: the segments that can meet or come
// near it. A segment left unmarked lies farther than the boxes' margin from the other.
void cutOperands(PieceLoop& a, PieceLoop& b, int mode, std::vector<char>* nearA,
                 std::vector<char>* nearB);

class PairCutter {
public:
    PairCutter(PieceLoop& a, PieceLoop& b, int mode);

    // One test of the pair (piece r of a, piece q of b): a cut of r (cutFirst) or else of q
    // (cutSecond), as the mode allows; true when one was cut (the pair is tested again).
    bool step(int r, int q);

private:
    // Cuts piece r of a where piece q of b crosses or touches it (`met`, the points where
    // the two meet), or where q starts on its interior; true when r was cut.
    bool cutFirst(int r, int q, bool& movedB);
    // Cuts piece q of b where piece r of a crosses or touches it, or where r starts on it, at
    // a's point exactly; true when q was cut.
    bool cutSecond(int r, int q);

    using Plan = std::pair<double, double>;
    struct PlanHash {
        std::size_t operator()(Plan const& p) const;
    };
    bool pinned(COrxPoint3d const& p);
    void pin(COrxPoint3d const& p);
    void snapEndOnto(int q, COrxPoint3d const& cut);
    void moveStart(int q, COrxPoint3d const& p);
    void moveEnd(int q, COrxPoint3d const& p);
    bool cutSecondAt(int q, COrxPoint3d const& p, bool anywhere);
    // m_pts: the meeting points that are not ends of `own`.
    void filtered(COrxVertex const& own);

    PieceLoop& m_a;
    PieceLoop& m_b;
    int m_mode;
    bool m_snap;
    COrxPoint3dArray m_met;                          // where the pair meets, without filtering
    std::unordered_set<Plan, PlanHash> m_aVertices;  // a's vertices, exactly
    bool m_pinsMade = false;
    COrxPoint3dArray m_pts;
};

}  // namespace internal
}  // namespace ORX

#endif  // ORX_REGIONS_INTERNAL_PAIR_CUTTING_H
