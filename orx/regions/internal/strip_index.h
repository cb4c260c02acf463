// Segments sorted into horizontal strips, for exact point-in-area tests and boundary tests
// at a cost that does not grow with the number of segments.
//
// The winding number of a point sums g_bulg_winding over the segments, but only segments
// whose y-range holds the point and that reach to its right can contribute: those of the one
// strip the point's height falls in. Each segment is listed in every strip its box (widened
// by the pruning margin) overlaps; the strip height is chosen so that the lists hold a few
// times as many entries as there are segments. The answers are those of the sum over all
// segments.
//
// Building the strips costs about as much as thirty plain passes over the segments; an index
// told to expect no more than kPlainQueries questions builds nothing and answers each with a
// plain pass that skips, by comparing coordinates only, the segments that cannot wind round
// the point. The answers are the same either way.
#ifndef ORX_REGIONS_INTERNAL_STRIP_INDEX_H
#define ORX_REGIONS_INTERNAL_STRIP_INDEX_H

#include <vector>

#include "orx/polyline/shared/segment_box.h"
#include "orx/polyline/vertex.h"

namespace ORX {
namespace internal {

// The heights at which a point may be wound round by a segment.
struct HeightSpan {
    double low;
    double high;
};

class StripIndex {
public:
    static constexpr int kPlainQueries = 16;
    static constexpr int kManyQueries = 1 << 30;

    // Keeps pointers: the segments must outlive the index and stay unchanged.
    explicit StripIndex(SegmentRefs segments, int expectedQueries = kManyQueries);

    // The winding number of p over all segments (exact, g_bulg_winding).
    int winding(COrxPoint3d const& p) const;
    // Some segment holds p within the point tolerance (COrxVertex::isPoint).
    bool onBoundary(COrxPoint3d const& p) const;
    bool empty() const { return m_segments.empty(); }
    std::size_t size() const { return m_segments.size(); }

private:
    void build();
    int stripOf(double y) const;
    template <class Visit>
    void visitStrip(int strip, Visit visit) const;

    SegmentRefs m_segments;
    bool m_plain = false;               // no strips: every question is a pass over all segments
    ScratchVector<HeightSpan> m_spans;  // of a plain index: per segment
    SegmentBoxes m_boxes;               // widened by the pruning margin
    double m_y0 = 0.0, m_height = 1.0;
    int m_strips = 0;
    ScratchVector<int> m_start;  // CSR: the segments of strip s are m_ids[start[s], start[s + 1])
    ScratchVector<int> m_ids;
    std::vector<int> m_everywhere;  // boxes that are not finite: tested for every point
};

}  // namespace internal
}  // namespace ORX

#endif  // ORX_REGIONS_INTERNAL_STRIP_INDEX_H
