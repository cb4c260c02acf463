// Bounding boxes of segments, for skipping segment pairs and ray tests that cannot meet.
//
// Every point the segment functions report lies within a few point tolerances of both
// segments involved, so two segments whose boxes, widened by pruneMargin(), do not overlap
// can report nothing. The operations that test many pairs use this to skip pairs, and give
// exactly the results of testing every pair. Comparisons are written so that a NaN anywhere
// counts as "may meet": such segments are always tested.
#ifndef ORX_POLYLINE_SHARED_SEGMENT_BOX_H
#define ORX_POLYLINE_SHARED_SEGMENT_BOX_H

#include <vector>

#include "orx/foundation/shared/scratch_allocator.h"
#include "orx/polyline/vertex.h"
#include "orx/polyline/vertex_array.h"

namespace ORX {
namespace internal {

struct SegmentBox {
    double xmin;
    double ymin;
    double xmax;
    double ymax;
};

// The boxes of an outline's segments, one list per operation.
using SegmentBoxes = ScratchVector<SegmentBox>;
// References to the segments of one or more outlines.
using SegmentRefs = ScratchVector<COrxVertex const*>;

// A plan box around the segment for skipping pairs, cheap to compute: the chord's box
// widened by the sagitta for an arc up to a half circle (the arc lies within the sagitta of
// its chord), the tight box for a longer arc. NaN when a value is not finite.
SegmentBox segmentBox(COrxVertex const& v);
// The tight plan box: the end points and, for an arc, the points where it reaches its
// extremes in x and y.
SegmentBox tightBox(COrxVertex const& v);

// The widening that covers the tolerances of the segment functions at the current point
// tolerance (a few of them) and the rounding of coordinates as large as the box's.
double pruneMargin(SegmentBox const& box);

// The box grown by margin on every side.
SegmentBox widened(SegmentBox box, double margin);
// The box widened by pruneMargin(box): what a pruning test compares against.
SegmentBox prunedBox(SegmentBox const& box);
// Every bound is a finite number (a NaN box, or one that overflowed, is not).
bool finiteBox(SegmentBox const& box);

// The tests widen the boxes by pruneMargin at the moment they are asked, so a tolerance
// changed after the boxes were made is honoured.
// False only when the two segments certainly cannot meet.
bool mayOverlap(SegmentBox const& a, SegmentBox const& b);
// False only when p certainly lies off the segment.
bool mayContain(SegmentBox const& box, COrxPoint3d const& p);
// False only when the straight segment p-q certainly misses the segment.
bool mayCross(SegmentBox const& box, COrxPoint3d const& p, COrxPoint3d const& q);

// The box of a whole polyline (of segmentBox); NaN when some segment's is; inverted (min
// above max) for an empty polyline, so that it overlaps nothing.
SegmentBox polylineBox(COrxVertexArray const& vl);

// The boxes of all segments of a polyline, in order.
SegmentBoxes segmentBoxes(COrxVertexArray const& vl);

}  // namespace internal
}  // namespace ORX

#endif  // ORX_POLYLINE_SHARED_SEGMENT_BOX_H
