#include "orx/regions/internal/pair_cutting.h"

#include <cstring>
#include <functional>

#include "orx/geom/tolerance.h"

namespace ORX {
namespace internal {

namespace {

// Breaks vl[i] at the foot of p; true, with the cut point, when it did (not within the
// tolerance of an end).
bool cutAt(COrxVertexArray& vl, int i, COrxPoint3d const& p, COrxPoint3d& cut) {
    int const before = vl.len();
    vl.breakVertex(i, p);
    if (vl.len() == before) {
        return false;
    }
    cut = vl[i].endPoint();
    return true;
}

// The same however near an end the foot lies (under the smallest point tolerance).
bool cutAnywhere(COrxVertexArray& vl, int i, COrxPoint3d const& p) {
    COrxPoint3dTol const finest(kMinPointTol * 2);
    COrxPoint3d cut;
    return cutAt(vl, i, p, cut);
}

// Moves the vertex where segment j starts to p, with the end of the segment before it
// (cyclically) when the two met there.
void moveStart(COrxVertexArray& vl, int j, COrxPoint3d const& p) {
    int const before = j > 0 ? j - 1 : vl.len() - 1;
    COrxVertex& v = vl[j];
    COrxVertex& previous = vl[before];
    if (before != j && previous.endPoint() == v.startPoint()) {
        previous.set(previous.startPoint(), p, previous.bulge());
    }
    v.set(p, v.endPoint(), v.bulge());
}

// Moves the vertex where segment j ends to p, with the start of the next one.
void moveEnd(COrxVertexArray& vl, int j, COrxPoint3d const& p) {
    int const after = j + 1 < vl.len() ? j + 1 : 0;
    COrxVertex& v = vl[j];
    COrxVertex& next = vl[after];
    if (after != j && next.startPoint() == v.endPoint()) {
        next.set(p, next.endPoint(), next.bulge());
    }
    v.set(v.startPoint(), p, v.bulge());
}

bool nearerToStart(COrxVertex const& w, COrxPoint3d const& p) {
    return p.distanceTo(w.startPoint()) <= p.distanceTo(w.endPoint());
}

// A point of b's near an end of w is taken to be that end.
COrxPoint3d onEndOf(COrxVertex const& w, COrxPoint3d const& p) {
    if (p == w.startPoint()) {
        return w.startPoint();
    }
    return p == w.endPoint() ? w.endPoint() : p;
}

}  // namespace

std::size_t PairCutter::PlanHash::operator()(Plan const& p) const {
    // + 0.0 turns -0.0 into +0.0, which compare equal.
    return std::hash<double>()(p.first + 0.0) * 31 + std::hash<double>()(p.second + 0.0);
}

PairCutter::PairCutter(COrxVertexArray& a, COrxVertexArray& b, int mode)
    : m_a(a), m_b(b), m_snap((mode & 2) != 0) {
    for (int k = 0; k < a.len(); ++k) {
        pin(a[k].startPoint());
        pin(a[k].endPoint());
    }
}

bool PairCutter::pinned(COrxPoint3d const& p) const {
    return m_aVertices.count(Plan(p.x, p.y)) > 0;
}

void PairCutter::pin(COrxPoint3d const& p) {
    m_aVertices.insert(Plan(p.x, p.y));
}

// After a cut of a at `cut` near an end of b[j], that end of b moves onto it.
void PairCutter::snapEndOnto(int j, COrxPoint3d const& cut) {
    COrxVertex const& v = m_b[j];
    if (cut == v.startPoint() && !pinned(v.startPoint())) {
        moveStart(m_b, j, cut);
    } else if (cut == v.endPoint() && !pinned(v.endPoint())) {
        moveEnd(m_b, j, cut);
    }
}

bool PairCutter::cutFirst(int i, int j) {
    COrxVertex const w = m_a[i];
    COrxPoint3d cut;
    if (w.intersectWith(m_pts, m_b[j], COrxVertex::kSkipOwnEnds)) {
        for (int k = 0; k < m_pts.len(); ++k) {
            if (cutAt(m_a, i, m_pts[k], cut)) {
                pin(cut);
                if (m_snap) {
                    snapEndOnto(j, cut);
                }
                return true;
            }
        }
    }
    COrxPoint3d const s = m_b[j].startPoint();
    if (!w.isPoint(s) || s == w.startPoint() || s == w.endPoint()) {
        return false;
    }
    bool const cutIt = cutAt(m_a, i, s, cut);
    if (cutIt) {
        pin(cut);
    }
    if (m_snap && !pinned(s)) {
        moveStart(m_b, j, cutIt ? cut : nearerToStart(w, s) ? w.startPoint() : w.endPoint());
    }
    return cutIt;
}

bool PairCutter::cutSecond(int i, int j) {
    COrxVertex const w = m_a[i];
    COrxPoint3d cut;
    if (w.intersectWith(m_pts, m_b[j], COrxVertex::kSkipOtherEnds)) {
        for (int k = 0; k < m_pts.len(); ++k) {
            COrxPoint3d const target = onEndOf(w, m_pts[k]);
            if (cutAt(m_b, j, target, cut)) {
                moveEnd(m_b, j, target);
                return true;
            }
        }
    }
    COrxPoint3d const s = w.startPoint();
    COrxVertex const v = m_b[j];
    if (!v.isPoint(s) || s == v.startPoint() || s == v.endPoint()) {
        return false;
    }
    if (cutAt(m_b, j, s, cut)) {
        moveEnd(m_b, j, s);
        return true;
    }
    // The foot lies within the tolerance of an end of b[j]: that vertex of b moves onto s,
    // unless it sits on another vertex of a already; then b is cut at s after all.
    bool const atStart = nearerToStart(v, s);
    COrxPoint3d const& end = atStart ? v.startPoint() : v.endPoint();
    if (!pinned(end)) {
        (atStart ? moveStart : moveEnd)(m_b, j, s);
        return false;
    }
    if (cutAnywhere(m_b, j, s)) {
        moveEnd(m_b, j, s);
        return true;
    }
    return false;
}

}  // namespace internal
}  // namespace ORX
