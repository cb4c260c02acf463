#include "segment_chains.h"

#include <cmath>
#include <deque>
#include <map>
#include <utility>

namespace orxtool {

namespace {

// Finds the unused segments with an end at a point. Cells are keyed by doubles (floor of the
// coordinate over the cell size), never cast to integers, so huge coordinates stay defined.
class EndIndex {
public:
    explicit EndIndex(std::vector<LooseSegment> const& segments)
        : m_segments(segments), m_used(segments.size(), false) {
        m_cell = COrxPoint3d::tol > 0.0 ? 2.0 * COrxPoint3d::tol : 1.0;
        for (std::size_t i = 0; i < segments.size(); ++i) {
            m_cells[cellOf(segments[i].segment.startPoint())].push_back(i);
            m_cells[cellOf(segments[i].segment.endPoint())].push_back(i);
        }
    }

    void markUsed(std::size_t i) { m_used[i] = true; }
    bool used(std::size_t i) const { return m_used[i]; }

    // The first unused segment in file order on `layer` with an end at p; false when none.
    bool find(COrxPoint3d const& p, std::string const& layer, std::size_t& found) const {
        bool any = false;
        Cell centre = cellOf(p);
        for (double dx : {-1.0, 0.0, 1.0}) {
            for (double dy : {-1.0, 0.0, 1.0}) {
                auto cell = m_cells.find({centre.first + dx, centre.second + dy});
                if (cell == m_cells.end()) {
                    continue;
                }
                for (std::size_t i : cell->second) {
                    if (!m_used[i] && (!any || i < found) && fits(i, p, layer)) {
                        found = i;
                        any = true;
                    }
                }
            }
        }
        return any;
    }

private:
    using Cell = std::pair<double, double>;

    Cell cellOf(COrxPoint3d const& p) const {
        return {std::floor(p.x / m_cell), std::floor(p.y / m_cell)};
    }

    bool fits(std::size_t i, COrxPoint3d const& p, std::string const& layer) const {
        COrxVertex const& s = m_segments[i].segment;
        return m_segments[i].layer == layer && (s.startPoint() == p || s.endPoint() == p);
    }

    std::vector<LooseSegment> const& m_segments;
    std::vector<bool> m_used;
    std::map<Cell, std::vector<std::size_t>> m_cells;
    double m_cell = 1.0;
};

bool closes(std::deque<COrxVertex> const& chain) {
    return chain.size() >= 2 && chain.back().endPoint() == chain.front().startPoint();
}

// Grows the chain at its end (atEnd) or at its start until no segment fits or it closes.
void grow(std::deque<COrxVertex>& chain, std::string const& layer, EndIndex& index,
          std::vector<LooseSegment> const& segments, bool atEnd) {
    std::size_t next = 0;
    while (!closes(chain)) {
        COrxPoint3d const& tip = atEnd ? chain.back().endPoint() : chain.front().startPoint();
        if (!index.find(tip, layer, next)) {
            return;
        }
        index.markUsed(next);
        COrxVertex segment = segments[next].segment;
        if (atEnd ? segment.startPoint() != tip : segment.endPoint() != tip) {
            segment.revert();
        }
        if (atEnd) {
            chain.push_back(segment);
        } else {
            chain.push_front(segment);
        }
    }
}

}  // namespace

std::vector<Chain> chainSegments(std::vector<LooseSegment> const& segments) {
    EndIndex index(segments);
    std::vector<Chain> chains;
    for (std::size_t i = 0; i < segments.size(); ++i) {
        if (index.used(i)) {
            continue;
        }
        index.markUsed(i);
        std::deque<COrxVertex> chain = {segments[i].segment};
        grow(chain, segments[i].layer, index, segments, true);
        grow(chain, segments[i].layer, index, segments, false);
        Chain made;
        made.layer = segments[i].layer;
        for (COrxVertex const& segment : chain) {
            made.polyline.append(segment);
        }
        chains.push_back(std::move(made));
    }
    return chains;
}

}  // namespace orxtool
