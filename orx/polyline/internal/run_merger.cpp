#include "orx/polyline/internal/run_merger.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "orx/plane_geometry/bulge_segment.h"

namespace ORX {
namespace internal {

namespace {

double angleOf(COrxVertex const& v) {
    return 4 * std::atan(v.bulge());
}

}  // namespace

RunMerger::RunMerger(COrxVertex const& first)
    : m_merged(first),
      m_refX(1.0),
      m_refY(0.0),
      m_low(-std::numeric_limits<double>::infinity()),
      m_high(std::numeric_limits<double>::infinity()),
      m_reach(0.0),
      m_angle(angleOf(first)) {
    double const dx = first.endPoint().x - first.startPoint().x;
    double const dy = first.endPoint().y - first.startPoint().y;
    double const length = std::hypot(dx, dy);
    if (length > 0.0 && std::isfinite(length)) {
        m_refX = dx / length;
        m_refY = dy / length;
    }
}

bool RunMerger::tryAppend(COrxVertex const& next) {
    if (!continues(next)) {
        return false;
    }
    if (!m_merged.isStraight()) {
        return appendArc(next);
    }
    COrxVertex const candidate = m_merged.unite(next);
    if (!keepsStraightRun(next.startPoint(), candidate.endPoint())) {
        return false;
    }
    m_merged = candidate;
    return true;
}

// Starts where the run ends, on the same line or circle; arcs are not merged when together
// they would close the whole circle, which one bulge cannot express.
bool RunMerger::continues(COrxVertex const& next) const {
    if (m_merged.endPoint() != next.startPoint() || !m_merged.coLinear(next)) {
        return false;
    }
    return m_merged.isStraight() || next.endPoint() != m_merged.startPoint();
}

// The merged segment runs from the run's start to `end`; it keeps every dropped vertex
// within the tolerance when its direction passes within the tolerance of each (a window of
// directions, narrowed by each dropped vertex) and it reaches at least as far as the
// farthest of them.
bool RunMerger::keepsStraightRun(COrxPoint3d const& dropped, COrxPoint3d const& end) {
    COrxPoint3d const& start = m_merged.startPoint();
    auto direction = [&](COrxPoint3d const& p) {
        double const dx = p.x - start.x, dy = p.y - start.y;
        return std::atan2(m_refX * dy - m_refY * dx, m_refX * dx + m_refY * dy);
    };
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
    return true;
}

// The merged arc turns through the pieces' angles together; it must pass within the
// tolerance of every vertex the run drops.
bool RunMerger::appendArc(COrxVertex const& next) {
    if (static_cast<int>(m_dropped.size()) + 2 > kMaxArcRun) {
        return false;
    }
    double const angle = m_angle + angleOf(next);
    COrxVertex candidate(m_merged.startPoint(), next.endPoint(), std::tan(angle / 4));
    m_dropped.push_back(next.startPoint());
    for (COrxPoint3d const& p : m_dropped) {
        if (!(g_bulg_pt_dist(candidate.startPoint(), candidate.endPoint(), candidate.bulge(), p) <=
              COrxPoint3d::tol)) {
            m_dropped.pop_back();
            return false;
        }
    }
    m_merged = candidate.setTag(m_merged.tag());
    m_angle = angle;
    return true;
}

}  // namespace internal
}  // namespace ORX
