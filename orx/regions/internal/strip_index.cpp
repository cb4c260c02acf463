#include "orx/regions/internal/strip_index.h"

#include <algorithm>
#include <cmath>

#include "orx/plane_geometry/bulge_segment.h"

namespace ORX {
namespace internal {

namespace {

// List entries per segment the strip height aims at.
constexpr double kEntriesPerSegment = 3.0;

// False only when the segment certainly adds nothing to the winding number of p: p is not
// level with the chord's span (the ray's half-open rule, as g_bulg_winding has it), and for
// an arc of at most a half circle also lies outside the chord's box widened by twice the
// bound |bulge| (|dx| + |dy|) / 2 of the arc's height, which covers the rounding of the bound.
// A NaN anywhere answers true. The height test comes first: it rejects almost every segment
// of a plain pass.
bool mayWind(COrxVertex const& v, COrxPoint3d const& p) {
    COrxPoint3d const& a = v.startPoint();
    COrxPoint3d const& b = v.endPoint();
    double const bulge = v.bulge();
    if (!(std::fabs(bulge) <= 1.0)) {
        return true;
    }
    double const reach = std::fabs(bulge) * (std::fabs(b.x - a.x) + std::fabs(b.y - a.y));
    if (p.y < std::min(a.y, b.y) - reach || p.y > std::max(a.y, b.y) + reach) {
        return false;
    }
    if ((a.y <= p.y && p.y < b.y) || (b.y <= p.y && p.y < a.y)) {
        return true;
    }
    return bulge != 0.0 && !(p.x < std::min(a.x, b.x) - reach || p.x > std::max(a.x, b.x) + reach);
}

// The heights p.y may take for mayWind(v, p) to be true (the first test of mayWind): the
// chord's span widened by the arc's reach; everything for an arc beyond a half circle, a NaN
// or a reach that overflows.
HeightSpan heightSpan(COrxVertex const& v) {
    COrxPoint3d const& a = v.startPoint();
    COrxPoint3d const& b = v.endPoint();
    double const bulge = v.bulge();
    double const reach = std::fabs(bulge) * (std::fabs(b.x - a.x) + std::fabs(b.y - a.y));
    HeightSpan const span{std::min(a.y, b.y) - reach, std::max(a.y, b.y) + reach};
    if (!(std::fabs(bulge) <= 1.0) || !(span.low <= span.high)) {
        return HeightSpan{-HUGE_VAL, HUGE_VAL};
    }
    return span;
}

}  // namespace

StripIndex::StripIndex(SegmentRefs segments, int expectedQueries)
    : m_segments(std::move(segments)), m_plain(expectedQueries <= kPlainQueries) {
    if (!m_plain) {
        build();
        return;
    }
    m_spans.reserve(m_segments.size());
    for (COrxVertex const* v : m_segments) {
        m_spans.push_back(heightSpan(*v));
    }
}

void StripIndex::build() {
    m_boxes.reserve(m_segments.size());
    double y0 = HUGE_VAL, y1 = -HUGE_VAL, span = 0.0;
    for (std::size_t k = 0; k < m_segments.size(); ++k) {
        SegmentBox const box = prunedBox(segmentBox(*m_segments[k]));
        m_boxes.push_back(box);
        if (!finiteBox(box)) {
            m_everywhere.push_back(static_cast<int>(k));
            continue;
        }
        y0 = std::min(y0, box.ymin);
        y1 = std::max(y1, box.ymax);
        span += box.ymax - box.ymin;
    }
    std::size_t const finite = m_segments.size() - m_everywhere.size();
    if (finite == 0 || !(y1 - y0 < HUGE_VAL)) {
        for (std::size_t k = 0; k < m_segments.size(); ++k) {
            if (finiteBox(m_boxes[k])) {
                m_everywhere.push_back(static_cast<int>(k));
            }
        }
        return;
    }
    // Strips as high as the boxes are on average spread over kEntriesPerSegment entries,
    // but no more strips than segments.
    double const n = static_cast<double>(finite);
    m_height = std::max({(y1 - y0) / n, span / (kEntriesPerSegment * n), 1e-300});
    m_y0 = y0;
    m_strips = static_cast<int>(std::min(n, std::floor((y1 - y0) / m_height)) + 1);
    m_start.assign(static_cast<std::size_t>(m_strips) + 1, 0);
    for (std::size_t k = 0; k < m_segments.size(); ++k) {
        if (finiteBox(m_boxes[k])) {
            for (int s = stripOf(m_boxes[k].ymin), e = stripOf(m_boxes[k].ymax); s <= e; ++s) {
                ++m_start[static_cast<std::size_t>(s) + 1];
            }
        }
    }
    for (int s = 0; s < m_strips; ++s) {
        m_start[static_cast<std::size_t>(s) + 1] += m_start[static_cast<std::size_t>(s)];
    }
    m_ids.resize(static_cast<std::size_t>(m_start.back()));
    std::vector<int> fill(m_start.begin(), m_start.end() - 1);
    for (std::size_t k = 0; k < m_segments.size(); ++k) {
        if (finiteBox(m_boxes[k])) {
            for (int s = stripOf(m_boxes[k].ymin), e = stripOf(m_boxes[k].ymax); s <= e; ++s) {
                m_ids[static_cast<std::size_t>(fill[static_cast<std::size_t>(s)]++)] =
                    static_cast<int>(k);
            }
        }
    }
}

int StripIndex::stripOf(double y) const {
    double const s = std::floor((y - m_y0) / m_height);
    if (!(s > 0.0)) {
        return 0;  // also NaN
    }
    return s < m_strips - 1 ? static_cast<int>(s) : m_strips - 1;
}

template <class Visit>
void StripIndex::visitStrip(int strip, Visit visit) const {
    if (m_strips > 0) {
        for (int i = m_start[static_cast<std::size_t>(strip)];
             i < m_start[static_cast<std::size_t>(strip) + 1]; ++i) {
            visit(m_ids[static_cast<std::size_t>(i)]);
        }
    }
    for (int k : m_everywhere) {
        visit(k);
    }
}

int StripIndex::winding(COrxPoint3d const& p) const {
    int total = 0;
    if (m_plain) {
        for (std::size_t k = 0; k < m_segments.size(); ++k) {
            if (p.y < m_spans[k].low || p.y > m_spans[k].high) {
                continue;  // mayWind would say no
            }
            COrxVertex const& v = *m_segments[k];
            if (mayWind(v, p)) {
                total += g_bulg_winding(v.startPoint(), v.endPoint(), v.bulge(), p);
            }
        }
        return total;
    }
    visitStrip(stripOf(p.y), [&](int k) {
        SegmentBox const& box = m_boxes[static_cast<std::size_t>(k)];
        // Only a segment whose height spans p's and that reaches to its right counts.
        if (box.ymin > p.y || box.ymax < p.y || box.xmax < p.x) {
            return;
        }
        COrxVertex const& v = *m_segments[static_cast<std::size_t>(k)];
        total += g_bulg_winding(v.startPoint(), v.endPoint(), v.bulge(), p);
    });
    return total;
}

bool StripIndex::onBoundary(COrxPoint3d const& p) const {
    if (m_plain) {
        for (COrxVertex const* v : m_segments) {
            if (v->isPoint(p)) {
                return true;
            }
        }
        return false;
    }
    bool on = false;
    visitStrip(stripOf(p.y), [&](int k) {
        SegmentBox const& box = m_boxes[static_cast<std::size_t>(k)];
        if (on || box.ymin > p.y || box.ymax < p.y || box.xmin > p.x || box.xmax < p.x) {
            return;
        }
        on = m_segments[static_cast<std::size_t>(k)]->isPoint(p);
    });
    return on;
}

}  // namespace internal
}  // namespace ORX
