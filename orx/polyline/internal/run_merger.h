// Merges a run of consecutive segments of one line or circle into one segment, as long as
// every vertex the merge drops stays within the point tolerance of the merged segment.
//
// Comparing each next segment with the growing merged one alone lets the dropped vertices
// drift without bound (a fine polygon of a circle would shrink to a coarse one); the run
// therefore tests every dropped vertex. A straight run keeps the window of directions from
// its start that pass within the tolerance of every dropped vertex, so each step costs the
// same. An arc run is merged into the arc from its start to its end that turns through the
// sum of the pieces' angles (the circle of a short first piece, whose ends are rounded like
// any other point, may be far off the true one), and every dropped vertex is tested against
// it; such a run stops after kMaxArcRun pieces, which keeps the cost linear.
#ifndef ORX_POLYLINE_INTERNAL_RUN_MERGER_H
#define ORX_POLYLINE_INTERNAL_RUN_MERGER_H

#include <vector>

#include "orx/polyline/vertex.h"

namespace ORX {
namespace internal {

// The most pieces of one circle merged into one arc.
constexpr int kMaxArcRun = 256;

class RunMerger {
public:
    explicit RunMerger(COrxVertex const& first);

    // Merges `next` into the run when it continues it (starts where the run ends, on the
    // same line or circle, turning the same way, not closing a whole circle) and the merged
    // segment keeps every dropped vertex within COrxPoint3d::tol; true when merged.
    bool tryAppend(COrxVertex const& next);
    COrxVertex const& merged() const { return m_merged; }

private:
    bool continues(COrxVertex const& next) const;
    bool keepsStraightRun(COrxPoint3d const& dropped, COrxPoint3d const& end);
    bool appendArc(COrxVertex const& next);

    COrxVertex m_merged;
    // Straight runs: directions relative to the first segment's, in radians.
    double m_refX, m_refY;  // unit direction of the first segment
    double m_low, m_high;   // window of directions that pass every dropped vertex
    double m_reach;         // the farthest dropped vertex from the start
    // Arc runs: the sum of the pieces' angles and the vertices the merge drops.
    double m_angle;
    std::vector<COrxPoint3d> m_dropped;
};

}  // namespace internal
}  // namespace ORX

#endif  // ORX_POLYLINE_INTERNAL_RUN_MERGER_H
