#include "orx/polyline/internal/run_merger.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <vector>

#include "orx/geom/functions.h"
#include "orx/plane_geometry/shared/arc_frame.h"
#include "orx/plane_geometry/shared/bulge_sweep.h"
#include "orx/plane_geometry/shared/circle_probe.h"

namespace ORX {
namespace internal {

namespace {

double angleOf(COrxVertex const& v) {
    return bulgeSweep(v.bulge());
}

// The window of directions from a straight run's start that pass within the tolerance of
// every dropped vertex, and the farthest of them: a merged segment through the window that
// reaches that far keeps them all.
class StraightRun {
public:
    explicit StraightRun(COrxVertex const& first) : m_merged(first) {
        double const dx = first.endPoint().x - first.startPoint().x;
        double const dy = first.endPoint().y - first.startPoint().y;
        double const length = std::hypot(dx, dy);
        if (length > 0.0 && std::isfinite(length)) {
            m_refX = dx / length;
            m_refY = dy / length;
        }
    }

    bool tryAppend(COrxVertex const& next) {
        COrxVertex const candidate = m_merged.unite(next);
        COrxPoint3d const& start = m_merged.startPoint();
        COrxPoint3d const& dropped = next.startPoint();
        COrxPoint3d const& end = candidate.endPoint();
        double low = m_low, high = m_high, reach = m_reach;
        double const rho = std::hypot(dropped.x - start.x, dropped.y - start.y);
        if (rho > COrxPoint3d::tol) {
            double const at = direction(dropped);
            double const spread = std::asin(COrxPoint3d::tol / rho);
            low = std::max(low, at - spread);
            high = std::min(high, at + spread);
            reach = std::max(reach, rho);
        }
        double const towards = direction(end);
        if (!(std::hypot(end.x - start.x, end.y - start.y) >= reach && towards >= low &&
              towards <= high)) {
            return false;
        }
        m_low = low;
        m_high = high;
        m_reach = reach;
        m_merged = candidate;
        return true;
    }

    COrxVertex const& merged() const { return m_merged; }

private:
    // The direction of p from the run's start, relative to the first segment's.
    double direction(COrxPoint3d const& p) const {
        COrxPoint3d const& start = m_merged.startPoint();
        double const dx = p.x - start.x, dy = p.y - start.y;
        return std::atan2(m_refX * dy - m_refY * dx, m_refX * dx + m_refY * dy);
    }

    COrxVertex m_merged;
    double m_refX = 1.0, m_refY = 0.0;
    double m_low = -std::numeric_limits<double>::infinity();
    double m_high = std::numeric_limits<double>::infinity();
    double m_reach = 0.0;
};

// next continues the run that ends with `last` and began at `start`.
bool continues(COrxVertex const& last, COrxVertex const& next, COrxPoint3d const& start) {
    if (last.endPoint() != next.startPoint() || !last.coLinear(next)) {
        return false;
    }
    return last.isStraight() || next.endPoint() != start;
}

// The segments of work from `first` on, round the seam; k stays below work.len().
struct Sequence {
    COrxVertexArray const& work;
    int first;
    COrxVertex const& at(int k) const {
        int const i = first + k;
        return work.data()[i < work.len() ? i : i - work.len()];
    }
};

// The arc that merges the first `count` segments of the sequence, when it keeps every
// dropped vertex within the tolerance.
bool mergedArc(Sequence const& s, int count, double angle, COrxVertex& merged) {
    COrxVertex candidate(s.at(0).startPoint(), s.at(count - 1).endPoint(), std::tan(angle / 4));
    ArcFrame const frame(candidate.startPoint(), candidate.endPoint(), candidate.bulge());
    for (int k = 1; k < count; ++k) {
        COrxPoint3d const& p = s.at(k).startPoint();
        if (!frame.valid() || !frame.nearSegment(frame.toFrame(p), COrxPoint3d::tol)) {
            return false;
        }
    }
    merged = candidate.setTag(s.at(0).tag());
    return true;
}

// An arc of a run with its circle: the quick probe is made at once, the chord frame only
// when the probe cannot tell.
class RunArc {
public:
    explicit RunArc(COrxVertex const& arc)
        : m_arc(&arc), m_probe(arc.startPoint(), arc.endPoint(), arc.bulge()) {}

    // The other arc's ends and midpoint lie within the tolerance of this arc's circle (as
    // COrxVertex::coLinear tests them).
    bool holds(COrxVertex const& other) const {
        if (m_probe.surelyHolds(other.startPoint(), other.endPoint(), other.bulge(),
                                COrxPoint3d::tol)) {
            return true;
        }
        if (!m_frame) {
            m_frame.emplace(m_arc->startPoint(), m_arc->endPoint(), m_arc->bulge());
        }
        return m_frame->valid() &&
               m_frame->holdsArc(other.startPoint(), other.endPoint(), other.bulge());
    }

private:
    COrxVertex const* m_arc;
    CircleProbe m_probe;
    mutable std::optional<ArcFrame> m_frame;
};

// next continues the run of arcs that ends with `last` and began at `start`: they meet, turn
// the same way, lie on one circle, and do not close it.
bool arcContinues(RunArc const& last, COrxVertex const& lastArc, RunArc const& next,
                  COrxVertex const& nextArc, COrxPoint3d const& start) {
    return !nextArc.isStraight() && (lastArc.bulge() > 0.0) == (nextArc.bulge() > 0.0) &&
           lastArc.endPoint() == nextArc.startPoint() && last.holds(nextArc) &&
           next.holds(lastArc) && nextArc.endPoint() != start;
}

Run arcRun(Sequence const& s, int maxCount) {
    std::vector<double> angles{angleOf(s.at(0))};  // prefix sums of the pieces' angles
    int count = 1;
    RunArc last(s.at(0));
    while (count < maxCount) {
        RunArc const next(s.at(count));
        if (!arcContinues(last, s.at(count - 1), next, s.at(count), s.at(0).startPoint())) {
            break;
        }
        last = next;
        double const angle = angles.back() + angleOf(s.at(count));
        if (!(std::fabs(angle) < kTwoPi)) {
            break;
        }
        angles.push_back(angle);
        ++count;
    }
    Run run{1, s.at(0)};
    if (count == 1 ||
        mergedArc(s, count, angles[static_cast<std::size_t>(count - 1)], run.merged)) {
        run.count = count;
        return run;
    }
    // Some dropped vertex lies off the whole run's arc: the longest shorter run that keeps
    // them all, found by halving.
    int good = 1, bad = count;
    while (bad - good > 1) {
        int const middle = (good + bad) / 2;
        COrxVertex merged;
        if (mergedArc(s, middle, angles[static_cast<std::size_t>(middle - 1)], merged)) {
            good = middle;
            run.merged = merged;
        } else {
            bad = middle;
        }
    }
    run.count = good;
    return run;
}

}  // namespace

Run longestRun(COrxVertexArray const& work, int first, int maxCount) {
    Sequence const s{work, first};
    if (!s.at(0).isStraight()) {
        return arcRun(s, maxCount);
    }
    StraightRun straight(s.at(0));
    int count = 1;
    while (count < maxCount && continues(straight.merged(), s.at(count), s.at(0).startPoint()) &&
           straight.tryAppend(s.at(count))) {
        ++count;
        if (straight.merged().startPoint() == straight.merged().endPoint()) {
            break;
        }
    }
    return {count, straight.merged()};
}

}  // namespace internal
}  // namespace ORX
