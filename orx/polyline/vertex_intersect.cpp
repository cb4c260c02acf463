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

// Line-line, arc-line and arc-arc alike, on the segments themselves or, extended, on
// infinite lines and full circles; computed from the chords (see g_bulg_int), so that a
// nearly straight arc meets as precisely as its chord.
void COrxVertex::findIntersections(COrxPoint3dArray& pts, COrxVertex const& other,
                                   bool extended) const {
    ORX::g_bulg_int(pts, m_start, m_end, m_bulge, other.m_start, other.m_end, other.m_bulge,
                    extended);
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
