// COrxVertex: intersections with another segment.
#include "orx/geom/functions.h"
#include "orx/plane_geometry/plane_geometry.h"
#include "orx/polyline/vertex.h"
#include "orx/polyline/vertex_functions.h"

bool COrxVertex::intersectWith(COrxPoint3dArray& pts, COrxVertex const& other,
                               unsigned int flags) const {
    pts.clear();
    findIntersections(pts, other, (flags & kExtended) != 0);
    if ((flags & (kSkipTangent | kSkipOwnEnds | kSkipOtherEnds)) != 0) {
        filterIntersections(pts, other, flags);
    }
    return !pts.isEmpty();
}

COrxPoint3dArray COrxVertex::intersectWith(COrxVertex const& other, unsigned int flags) const {
    COrxPoint3dArray pts;
    intersectWith(pts, other, flags);
    return pts;
}

// Dispatch by segment kind: line-line, arc-line (the arc always first) and arc-arc (the
// smaller circle first), on the segments themselves or, extended, on infinite lines and
// full circles.
void COrxVertex::findIntersections(COrxPoint3dArray& pts, COrxVertex const& other,
                                   bool extended) const {
    if (isStraight() && other.isStraight()) {
        COrxPoint3d crossing;
        if (ORX::inters(m_start, m_end, other.m_start, other.m_end, !extended, crossing)) {
            pts.append(crossing);
        }
        return;
    }
    if (isStraight()) {
        other.findIntersections(pts, *this, extended);
        return;
    }
    COrxPoint3d c;
    double r = 0.0, a0 = 0.0, a1 = 0.0;
    toArc(c, r, a0, a1);
    if (other.isStraight()) {
        if (extended) {
            ORX::g_cli0(pts, c, r, other.m_start, other.m_end);
        } else {
            ORX::g_ali(pts, c, r, a0, a1, other.m_start, other.m_end);
        }
        return;
    }
    COrxPoint3d oc;
    double orr = 0.0, b0 = 0.0, b1 = 0.0;
    other.toArc(oc, orr, b0, b1);
    if (orr < r) {
        // The circle functions compute the points from the first circle's centre; from the
        // far centre of a nearly straight arc (a huge radius) they would be off by more than
        // the tolerance. The smaller circle goes first, whichever segment asked.
        other.findIntersections(pts, *this, extended);
        return;
    }
    if (extended) {
        ORX::g_cci(pts, c, r, oc, orr);
    } else {
        ORX::g_aai(pts, c, r, a0, a1, oc, orr, b0, b1);
    }
}

void COrxVertex::filterIntersections(COrxPoint3dArray& pts, COrxVertex const& other,
                                     unsigned int flags) const {
    COrxPoint3dArray kept;
    for (int k = 0; k < pts.len(); ++k) {
        COrxPoint3d const& p = pts[k];
        if ((flags & kSkipTangent) && ORX::g_vx_is_tang(*this, other, p)) {
            continue;
        }
        if ((flags & kSkipOwnEnds) && (p == m_start || p == m_end)) {
            continue;
        }
        if ((flags & kSkipOtherEnds) && (p == other.m_start || p == other.m_end)) {
            continue;
        }
        kept.append(p);
    }
    pts = kept;
}

COrxPoint3dArray COrxVertex::intersectWithBulg0(COrxVertex const& other) const {
    COrxPoint3dArray pts;
    COrxPoint3d crossing;
    if (&other != this && ORX::inters(m_start, m_end, other.m_start, other.m_end, true, crossing)) {
        pts.append(crossing);
    }
    return pts;
}

bool COrxVertex::intNear(COrxVertex const& other, COrxPoint3d const& near,
                         COrxPoint3d& result) const {
    COrxPoint3dArray pts;
    if (!intersectWith(pts, other, kExtended)) {
        return false;
    }
    result = ORX::g_near_p1(near, pts);
    return true;
}
