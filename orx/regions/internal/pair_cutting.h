// One step of the mutual cutting of two polylines: a segment pair is tested, and one of the
// two segments is cut where the other meets it.
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

#include "orx/geom/point_array.h"
#include "orx/polyline/vertex_array.h"

namespace ORX {
namespace internal {

class PairCutter {
public:
    // Cuts a (mode bit 1) and b (mode bit 2); b's vertices move only when b is cut too.
    PairCutter(COrxVertexArray& a, COrxVertexArray& b, int mode);

    // Cuts a[i] where b[j] crosses or touches it, or where b[j] starts on its interior;
    // true when a[i] was cut.
    bool cutFirst(int i, int j);
    // Cuts b[j] where a[i] crosses or touches it, or where a[i] starts on it, at a's point
    // exactly; true when b[j] was cut.
    bool cutSecond(int i, int j);

private:
    using Plan = std::pair<double, double>;
    struct PlanHash {
        std::size_t operator()(Plan const& p) const;
    };
    bool pinned(COrxPoint3d const& p) const;
    void pin(COrxPoint3d const& p);
    void snapEndOnto(int j, COrxPoint3d const& cut);

    COrxVertexArray& m_a;
    COrxVertexArray& m_b;
    bool m_snap;
    std::unordered_set<Plan, PlanHash> m_aVertices;  // a's vertices, exactly
    COrxPoint3dArray m_pts;
};

}  // namespace internal
}  // namespace ORX

#endif  // ORX_REGIONS_INTERNAL_PAIR_CUTTING_H
