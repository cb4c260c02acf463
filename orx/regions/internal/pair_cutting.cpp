#include "orx/regions/internal/pair_cutting.h"

#include <cmath>
#include <functional>

#include "orx/geom/tolerance.h"
#include "orx/polyline/shared/box_pairs.h"
#include "orx/polyline/shared/segment_box.h"

namespace ORX {
namespace internal {

namespace {

// The cutting loop tests a pair again after every cut; on real input the number of cuts is
// bounded by the meeting points. This budget (far above that) only keeps degenerate input,
// where a cut does not shorten the segment, from looping for ever.
long long cutBudget(int n, int m) {
    return 8LL * (n + 1) * (m + 1) + 1024;
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

// The box of each original segment: of all its pieces, when an earlier cutting (against
// another loop) has cut it already.
SegmentBoxes originalBoxes(PieceLoop const& loop) {
    SegmentBoxes boxes;
    boxes.reserve(static_cast<std::size_t>(loop.originals()));
    for (int o = 0; o < loop.originals(); ++o) {
        SegmentBox box = segmentBox(loop.piece(o));
        for (int r = loop.next(o); r != loop.endOf(o); r = loop.next(r)) {
            SegmentBox const more = segmentBox(loop.piece(r));
            box = {std::fmin(box.xmin, more.xmin), std::fmin(box.ymin, more.ymin),
                   std::fmax(box.xmax, more.xmax), std::fmax(box.ymax, more.ymax)};
        }
        boxes.push_back(box);
    }
    return boxes;
}

}  // namespace

std::size_t PairCutter::PlanHash::operator()(Plan const& p) const {
    // + 0.0 turns -0.0 into +0.0, which compare equal.
    return std::hash<double>()(p.first + 0.0) * 31 + std::hash<double>()(p.second + 0.0);
}

PairCutter::PairCutter(PieceLoop& a, PieceLoop& b, int mode)
    : m_a(a), m_b(b), m_mode(mode), m_snap((mode & 2) != 0) {}

// The set of a's vertices is made on the first question: most cuttings never ask.
bool PairCutter::pinned(COrxPoint3d const& p) {
    if (!m_pinsMade) {
        m_pinsMade = true;
        for (int r = 0; r < m_a.size(); ++r) {
            pin(m_a.piece(r).startPoint());
            pin(m_a.piece(r).endPoint());
        }
    }
    return m_aVertices.count(Plan(p.x, p.y)) > 0;
}

void PairCutter::pin(COrxPoint3d const& p) {
    if (m_pinsMade) {
        m_aVertices.insert(Plan(p.x, p.y));
    }
}

// Moves the vertex where piece q of b starts to p, with the end of the piece before it when
// the two met there.
void PairCutter::moveStart(int q, COrxPoint3d const& p) {
    int const before = m_b.previous(q);
    if (before != q && m_b.piece(before).endPoint() == m_b.piece(q).startPoint()) {
        COrxVertex& previous = m_b.changePiece(before);
        previous.set(previous.startPoint(), p, previous.bulge());
    }
    COrxVertex& v = m_b.changePiece(q);
    v.set(p, v.endPoint(), v.bulge());
}

// Moves the vertex where piece q ends to p, with the start of the next one.
void PairCutter::moveEnd(int q, COrxPoint3d const& p) {
    int const after = m_b.next(q);
    if (after != q && m_b.piece(after).startPoint() == m_b.piece(q).endPoint()) {
        COrxVertex& next = m_b.changePiece(after);
        next.set(p, next.endPoint(), next.bulge());
    }
    COrxVertex& v = m_b.changePiece(q);
    v.set(v.startPoint(), p, v.bulge());
}

// After a cut of a at `cut` near an end of piece q of b, that end of b moves onto it.
void PairCutter::snapEndOnto(int q, COrxPoint3d const& cut) {
    COrxVertex const& v = m_b.piece(q);
    if (cut == v.startPoint() && !pinned(v.startPoint())) {
        moveStart(q, cut);
    } else if (cut == v.endPoint() && !pinned(v.endPoint())) {
        moveEnd(q, cut);
    }
}

// The points where the pair meets that are not ends of `own`, as intersectWith gives them
// with kSkipOwnEnds or kSkipOtherEnds: the unfiltered points, computed once, serve both cuts.
void PairCutter::filtered(COrxVertex const& own) {
    m_pts.setLogicalLength(0);
    for (int k = 0; k < m_met.len(); ++k) {
        COrxPoint3d const& p = m_met[k];
        if (p != own.startPoint() && p != own.endPoint()) {
            m_pts.append(p);
        }
    }
}

bool PairCutter::step(int r, int q) {
    m_a.piece(r).intersectWith(m_met, m_b.piece(q), 0);
    bool movedB = false;
    if ((m_mode & 1) && cutFirst(r, q, movedB)) {
        return true;
    }
    if (!(m_mode & 2)) {
        return false;
    }
    if (movedB) {
        m_a.piece(r).intersectWith(m_met, m_b.piece(q), 0);
    }
    return cutSecond(r, q);
}

bool PairCutter::cutFirst(int r, int q, bool& movedB) {
    COrxVertex const w = m_a.piece(r);
    int added = 0;
    filtered(w);
    if (!m_pts.isEmpty()) {
        for (int k = 0; k < m_pts.len(); ++k) {
            if (m_a.cut(r, m_pts[k], added)) {
                COrxPoint3d const cut = m_a.piece(r).endPoint();
                pin(cut);
                if (m_snap) {
                    snapEndOnto(q, cut);
                }
                return true;
            }
        }
    }
    COrxPoint3d const s = m_b.piece(q).startPoint();
    if (!w.isPoint(s) || s == w.startPoint() || s == w.endPoint()) {
        return false;
    }
    bool const cutIt = m_a.cut(r, s, added);
    if (cutIt) {
        pin(m_a.piece(r).endPoint());
    }
    if (m_snap && !pinned(s)) {
        moveStart(q, cutIt ? m_a.piece(r).endPoint()
                           : (nearerToStart(w, s) ? w.startPoint() : w.endPoint()));
        movedB = true;
    }
    return cutIt;
}

// Cuts piece q of b at the foot of p, then puts the cut exactly on p.
bool PairCutter::cutSecondAt(int q, COrxPoint3d const& p, bool anywhere) {
    int added = 0;
    bool cut = false;
    if (anywhere) {
        COrxPoint3dTol const finest(kMinPointTol * 2);
        cut = m_b.cut(q, p, added);
    } else {
        cut = m_b.cut(q, p, added);
    }
    if (cut) {
        moveEnd(q, p);
    }
    return cut;
}

bool PairCutter::cutSecond(int r, int q) {
    COrxVertex const w = m_a.piece(r);
    filtered(m_b.piece(q));
    if (!m_pts.isEmpty()) {
        for (int k = 0; k < m_pts.len(); ++k) {
            if (cutSecondAt(q, onEndOf(w, m_pts[k]), false)) {
                return true;
            }
        }
    }
    COrxPoint3d const& s = w.startPoint();
    // A copy: cutting may move the pieces.
    COrxVertex const v = m_b.piece(q);  // NOLINT(performance-unnecessary-copy-initialization)
    if (!v.isPoint(s) || s == v.startPoint() || s == v.endPoint()) {
        return false;
    }
    if (cutSecondAt(q, s, false)) {
        return true;
    }
    // The foot lies within the tolerance of an end of q: that vertex of b moves onto s,
    // unless it sits on another vertex of a already; then b is cut at s after all.
    bool const atStart = nearerToStart(v, s);
    if (!pinned(atStart ? v.startPoint() : v.endPoint())) {
        if (atStart) {
            moveStart(q, s);
        } else {
            moveEnd(q, s);
        }
        return false;
    }
    return cutSecondAt(q, s, true);
}

void cutOperands(PieceLoop& a, PieceLoop& b, int mode, std::vector<char>* nearA,
                 std::vector<char>* nearB) {
    SegmentBoxes const boxesA = originalBoxes(a);
    SegmentBoxes const boxesB = originalBoxes(b);
    BoxPairs const pairs(boxesA, boxesB);
    PairCutter cutter(a, b, mode);
    long long budget = cutBudget(a.originals(), b.originals());
    std::vector<int> candidates;
    for (int o = 0; o < a.originals() && budget > 0; ++o) {
        pairs.near(o, candidates);
        if (candidates.empty()) {
            continue;
        }
        if (nearA != nullptr) {
            (*nearA)[static_cast<std::size_t>(o)] = 1;
        }
        // Every piece of this segment (the list grows as it is cut) against every piece of
        // the candidates, in the order of the plain loop.
        for (int r = o; budget > 0; r = a.next(r)) {
            for (int c : candidates) {
                if (nearB != nullptr) {
                    (*nearB)[static_cast<std::size_t>(c)] = 1;
                }
                for (int q = c; budget > 0; q = b.next(q)) {
                    // Pieces whose boxes are apart cannot meet: testing them would change
                    // nothing.
                    while (budget > 0 &&
                           mayOverlap(segmentBox(a.piece(r)), segmentBox(b.piece(q))) &&
                           cutter.step(r, q)) {
                        --budget;  // the same pair again
                    }
                    if (b.next(q) == b.endOf(c)) {
                        break;
                    }
                }
            }
            if (a.next(r) == a.endOf(o)) {
                break;
            }
        }
    }
}

}  // namespace internal
}  // namespace ORX
