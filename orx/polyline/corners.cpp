#include "orx/polyline/corners.h"

#include <cmath>

#include "orx/geom/functions.h"
#include "orx/plane_geometry/angles.h"
#include "orx/polyline/vertex_functions.h"
#include "orx/polyline/vertex_tools.h"

namespace ORX {
namespace {

bool positiveFinite(double x) {
    return std::isfinite(x) && x > 0.0;
}

bool isFiniteSegment(COrxVertex const& v) {
    return v.startPoint().isValid() && v.endPoint().isValid() && std::isfinite(v.bulge());
}

// The trimmed segments and the new piece between them, handed out only when every value is
// finite: an arc whose radius overflows gives no points to cut at, and the corner is then
// refused with the segments untouched.
bool commitCut(COrxVertex& s1, COrxVertex& s2, COrxVertex& piece, COrxVertex const& t1,
               COrxVertex const& t2, COrxVertex const& cut) {
    if (!isFiniteSegment(t1) || !isFiniteSegment(t2) || !isFiniteSegment(cut)) {
        return false;
    }
    s1 = t1;
    s2 = t2;
    piece = cut;
    return true;
}

bool hasLength(COrxVertex const& v) {
    return v.startPoint() != v.endPoint();
}

// The directions at the joint differ, but not by a half turn (a cusp).
bool turnsAtJoint(COrxVertex const& s1, COrxVertex const& s2) {
    double const turn = std::fabs(g_vx_ang(s1, s2));
    return turn >= kTangentAngleTol && turn <= kPi - kTangentAngleTol;
}

bool isCorner(COrxVertex const& s1, COrxVertex const& s2) {
    return hasLength(s1) && hasLength(s2) && s1.endPoint() == s2.startPoint() &&
           turnsAtJoint(s1, s2);
}

// s shortened to end at p, along its own line or circle; nothing left when p is its start.
void trimEnd(COrxVertex& s, COrxPoint3d const& p) {
    if (p == s.startPoint()) {
        s.set(s.startPoint(), s.startPoint(), 0.0);
    } else {
        s.setEndPoint(p);
    }
}

void trimStart(COrxVertex& s, COrxPoint3d const& p) {
    if (p == s.endPoint()) {
        s.set(s.endPoint(), s.endPoint(), 0.0);
    } else {
        s.setStartPoint(p);
    }
}

// The line or circle of s moved by d to the right; false when a circle would shrink to
// nothing (a fillet larger than a concave arc it should sit inside).
bool parallelOf(COrxVertex const& s, double d, COrxVertex& out) {
    if (!s.isStraight() && !(s.radius() + (s.bulge() > 0.0 ? d : -d) > COrxPoint3d::tol)) {
        return false;
    }
    out = g_vx_parallel(s, d);
    return true;
}

// The points at distance d from the corner along s1 (back from its end) and along s2 (from
// its start). A distance within the point tolerance of a segment's length reaches its far
// end; a longer one does not fit.
bool pointBeforeEnd(COrxVertex const& s, double d, COrxPoint3d& p) {
    double const length = s.bulgLen();
    if (d > length + COrxPoint3d::tol) {
        return false;
    }
    if (d >= length - COrxPoint3d::tol) {
        p = s.startPoint();
        return true;
    }
    return s.pointAtDist(p, length - d, true);
}

bool pointAfterStart(COrxVertex const& s, double d, COrxPoint3d& p) {
    double const length = s.bulgLen();
    if (d > length + COrxPoint3d::tol) {
        return false;
    }
    if (d >= length - COrxPoint3d::tol) {
        p = s.endPoint();
        return true;
    }
    return s.pointAtDist(p, d, true);
}

// The segment after segment i at the joint where i ends; -1 at the end of an open polyline.
int nextAtJoint(COrxVertexArray const& vl, int i) {
    if (i + 1 < vl.len()) {
        return i + 1;
    }
    return vl.isClosed() ? 0 : -1;
}

void dropEmptySegments(COrxVertexArray& vl) {
    for (int k = vl.len() - 1; k >= 0; --k) {
        if (!hasLength(vl[k])) {
            vl.remove(static_cast<unsigned int>(k), false);
        }
    }
}

// Segments i and j = nextAtJoint(i) replaced by their shortened forms, the new piece put
// between them.
void putCut(COrxVertexArray& vl, int i, int j, COrxVertex const& s1, COrxVertex const& s2,
            COrxVertex const& piece) {
    vl[i] = s1;
    vl[j] = s2;
    vl.insertAt(static_cast<unsigned int>(i + 1), piece);
}

template <class Cut>
bool cutCorner(COrxVertexArray& vl, int corner, Cut cut) {
    int const n = vl.len();
    int const i = corner < 0 ? corner + n : corner;
    if (i < 0 || i >= n) {
        return false;
    }
    int const j = nextAtJoint(vl, i);
    if (j < 0) {
        return false;
    }
    COrxVertex s1(vl[i]), s2(vl[j]), piece;
    if (!cut(s1, s2, piece)) {
        return false;
    }
    COrxVertexArray work(vl);
    putCut(work, i, j, s1, s2, piece);
    dropEmptySegments(work);
    vl = work;
    return true;
}

// Each corner in turn on a working copy, so that a corner sees its segments as the corner
// before it left them; vl takes the copy only when every corner succeeded.
template <class Cut>
bool cutEveryCorner(COrxVertexArray& vl, Cut cut) {
    COrxVertexArray work(vl);
    int const joints = work.isClosed() ? work.len() : work.len() - 1;
    int i = 0;
    for (int c = 0; c < joints; ++c, ++i) {
        int const j = (i + 1) % work.len();
        COrxVertex s1(work[i]), s2(work[j]), piece;
        bool const smooth = hasLength(s1) && hasLength(s2) && !turnsAtJoint(s1, s2);
        if (s1.endPoint() != s2.startPoint() || smooth) {
            continue;  // a gap or a smooth joint has no corner
        }
        if (!cut(s1, s2, piece)) {
            return false;
        }
        putCut(work, i, j, s1, s2, piece);
        ++i;  // past the new piece
    }
    dropEmptySegments(work);
    vl = work;
    return true;
}

auto filletOf(double radius) {
    return [radius](COrxVertex& s1, COrxVertex& s2, COrxVertex& piece) {
        return g_vx_fillet(s1, s2, radius, piece);
    };
}

auto chamferOf(double d1, double d2) {
    return [d1, d2](COrxVertex& s1, COrxVertex& s2, COrxVertex& piece) {
        return g_vx_chamfer(s1, s2, d1, d2, piece);
    };
}

}  // namespace

// The centre lies r inside the corner from both segments: on the meeting points of their
// lines or circles moved by r towards the side the corner turns to. Its feet on the two
// segments are the tangent points, which must lie on the segments.
bool g_vx_fillet(COrxVertex& s1, COrxVertex& s2, double radius, COrxVertex& arc) {
    if (!positiveFinite(radius) || !isCorner(s1, s2)) {
        return false;
    }
    double const side = g_vx_ang(s1, s2) > 0.0 ? 1.0 : -1.0;  // +1: turning left
    COrxVertex p1, p2;
    COrxPoint3dArray centres;
    if (!parallelOf(s1, -side * radius, p1) || !parallelOf(s2, -side * radius, p2) ||
        !p1.intersectWith(centres, p2, COrxVertex::kExtended)) {
        return false;
    }
    COrxPoint3d const& corner = s2.startPoint();
    int best = -1;
    COrxPoint3d t1, t2;
    for (int k = 0; k < centres.len(); ++k) {
        COrxPoint3d const a = s1.lotp(centres[k]), b = s2.lotp(centres[k]);
        bool const nearer =
            best < 0 || centres[k].distanceTo(corner) < centres[best].distanceTo(corner);
        if (s1.isPoint(a) && s2.isPoint(b) && nearer) {
            best = k;
            t1 = a;
            t2 = b;
        }
    }
    if (best < 0 || t1 == t2) {
        return false;
    }
    COrxPoint3d const& c = centres[best];
    double const sweep = g_ang(side * (angle(c, t2) - angle(c, t1)));
    COrxVertex trimmed1(s1), trimmed2(s2);
    trimEnd(trimmed1, t1);
    trimStart(trimmed2, t2);
    return commitCut(s1, s2, arc, trimmed1, trimmed2,
                     COrxVertex(t1, t2, side * std::tan(sweep / 4)));
}

bool g_vx_chamfer(COrxVertex& s1, COrxVertex& s2, double d1, double d2, COrxVertex& cut) {
    if (!positiveFinite(d1) || !positiveFinite(d2) || !isCorner(s1, s2)) {
        return false;
    }
    COrxPoint3d q1, q2;
    if (!pointBeforeEnd(s1, d1, q1) || !pointAfterStart(s2, d2, q2) || q1 == q2) {
        return false;
    }
    COrxVertex trimmed1(s1), trimmed2(s2);
    trimEnd(trimmed1, q1);
    trimStart(trimmed2, q2);
    return commitCut(s1, s2, cut, trimmed1, trimmed2, COrxVertex(q1, q2, 0.0));
}

bool g_vl_fillet(COrxVertexArray& vl, int corner, double radius) {
    return cutCorner(vl, corner, filletOf(radius));
}

bool g_vl_chamfer(COrxVertexArray& vl, int corner, double d1, double d2) {
    return cutCorner(vl, corner, chamferOf(d1, d2));
}

bool g_vl_chamfer(COrxVertexArray& vl, int corner, double d) {
    return g_vl_chamfer(vl, corner, d, d);
}

bool g_vl_fillet_all(COrxVertexArray& vl, double radius) {
    return cutEveryCorner(vl, filletOf(radius));
}

bool g_vl_chamfer_all(COrxVertexArray& vl, double d1, double d2) {
    return cutEveryCorner(vl, chamferOf(d1, d2));
}

bool g_vl_chamfer_all(COrxVertexArray& vl, double d) {
    return g_vl_chamfer_all(vl, d, d);
}

}  // namespace ORX
