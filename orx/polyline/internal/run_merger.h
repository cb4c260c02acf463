// Merges a run of consecutive segments of one line or circle into one segment, as long as
// every vertex the merge drops stays within the point tolerance of the merged segment.
//
// Comparing each next segment with the growing merged one alone lets the dropped vertices
// drift without bound (a fine polygon of a circle would shrink to a coarse one); the run
// therefore keeps what it needs to test all dropped vertices at once, in constant time per
// segment: for a straight run the window of directions from its start that pass within the
// tolerance of every dropped vertex, for an arc run the circle of its first piece, on which
// every dropped vertex must lie, and the angle swept so far, which may only grow.
#ifndef ORX_POLYLINE_INTERNAL_RUN_MERGER_H
#define ORX_POLYLINE_INTERNAL_RUN_MERGER_H

#include "orx/polyline/vertex.h"

namespace ORX {
namespace internal {

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
    bool keepsArcRun(COrxPoint3d const& dropped, COrxVertex const& candidate);

    COrxVertex m_merged;
    // Straight runs: directions relative to the first segment's, in radians.
    double m_refX, m_refY;  // unit direction of the first segment
    double m_low, m_high;   // window of directions that pass every dropped vertex
    double m_reach;         // the farthest dropped vertex from the start
    // Arc runs: the angle swept so far.
    double m_sweep;
};

}  // namespace internal
}  // namespace ORX

#endif  // ORX_POLYLINE_INTERNAL_RUN_MERGER_H
