// The plain algorithms of the boolean operation, loop for loop as they are defined: every
// segment pair, every segment for every ray. The library skips pairs and segments that
// cannot meet; the tests hold it to these results, bit for bit.
#ifndef ORX_TESTS_REGIONS_REFERENCE_ALGORITHMS_H
#define ORX_TESTS_REGIONS_REFERENCE_ALGORITHMS_H

#include <cstdlib>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "orx/geom/functions.h"
#include "orx/geom/tolerance.h"
#include "orx/plane_geometry/bulge_segment.h"
#include "orx/polyline/polyline.h"
#include "orx/regions/regions.h"

namespace orx_test {

inline bool plainIntersect(COrxVertexArray const& a, COrxVertexArray const& b, unsigned flags,
                           COrxPoint3dArray& pts) {
    pts.clear();
    if (&a == &b) {
        return false;
    }
    COrxPoint3dArray found;
    for (int i = 0; i < a.len(); ++i) {
        for (int j = 0; j < b.len(); ++j) {
            a[i].intersectWith(found, b[j], flags);
            for (int k = 0; k < found.len(); ++k) {
                pts.appendUniq(found[k]);
            }
        }
    }
    return !pts.isEmpty();
}

// The moves of b's vertices onto a's, as the cutting makes them: the vertex at the start of
// segment j (with the previous end), and the one at its end (with the next start).
inline void plainMoveStart(COrxVertexArray& vl, int j, COrxPoint3d const& p) {
    int const before = j > 0 ? j - 1 : vl.len() - 1;
    if (before != j && vl[before].endPoint() == vl[j].startPoint()) {
        vl[before].set(vl[before].startPoint(), p, vl[before].bulge());
    }
    vl[j].set(p, vl[j].endPoint(), vl[j].bulge());
}

inline void plainMoveEnd(COrxVertexArray& vl, int j, COrxPoint3d const& p) {
    int const after = j + 1 < vl.len() ? j + 1 : 0;
    if (after != j && vl[after].startPoint() == vl[j].endPoint()) {
        vl[after].set(p, vl[after].endPoint(), vl[after].bulge());
    }
    vl[j].set(vl[j].startPoint(), p, vl[j].bulge());
}

inline bool plainCut(COrxVertexArray& vl, int i, COrxPoint3d const& p) {
    int const before = vl.len();
    vl.breakVertex(i, p);
    return vl.len() > before;
}

// b's vertex sits exactly on a vertex of a.
inline bool plainPinned(COrxVertexArray const& a, COrxPoint3d const& p) {
    for (int k = 0; k < a.len(); ++k) {
        for (COrxPoint3d const& q : {a[k].startPoint(), a[k].endPoint()}) {
            if (q.x == p.x && q.y == p.y) {
                return true;
            }
        }
    }
    return false;
}

inline bool plainNearerToStart(COrxVertex const& w, COrxPoint3d const& p) {
    return p.distanceTo(w.startPoint()) <= p.distanceTo(w.endPoint());
}

// a[i] cut where b[j] meets it or starts on it; b's vertex moves onto the cut, or onto a's
// nearer end where no cut is made, unless it sits on a vertex of a already.
inline bool plainCutFirst(COrxVertexArray& a, int i, COrxVertexArray& b, int j, bool snap) {
    COrxVertex const w = a[i];
    COrxPoint3dArray pts;
    if (w.intersectWith(pts, b[j], COrxVertex::kSkipOwnEnds)) {
        for (int k = 0; k < pts.len(); ++k) {
            if (plainCut(a, i, pts[k])) {
                COrxPoint3d const cut = a[i].endPoint();
                if (snap && cut == b[j].startPoint() && !plainPinned(a, b[j].startPoint())) {
                    plainMoveStart(b, j, cut);
                } else if (snap && cut == b[j].endPoint() && !plainPinned(a, b[j].endPoint())) {
                    plainMoveEnd(b, j, cut);
                }
                return true;
            }
        }
    }
    COrxPoint3d const s = b[j].startPoint();
    if (!w.isPoint(s) || s == w.startPoint() || s == w.endPoint()) {
        return false;
    }
    bool const pinned = plainPinned(a, s);
    bool const cut = plainCut(a, i, s);
    if (snap && !pinned) {
        plainMoveStart(
            b, j,
            cut ? a[i].endPoint() : (plainNearerToStart(w, s) ? w.startPoint() : w.endPoint()));
    }
    return cut;
}

// b[j] cut where a[i] meets it or starts on it, at a's point exactly.
inline bool plainCutSecond(COrxVertexArray const& a, int i, COrxVertexArray& b, int j) {
    COrxVertex const w = a[i];
    COrxPoint3dArray pts;
    if (w.intersectWith(pts, b[j], COrxVertex::kSkipOtherEnds)) {
        for (int k = 0; k < pts.len(); ++k) {
            COrxPoint3d const target = pts[k] == w.startPoint() ? w.startPoint()
                                       : pts[k] == w.endPoint() ? w.endPoint()
                                                                : pts[k];
            if (plainCut(b, j, target)) {
                plainMoveEnd(b, j, target);
                return true;
            }
        }
    }
    COrxPoint3d const s = w.startPoint();
    COrxVertex const v = b[j];
    if (!v.isPoint(s) || s == v.startPoint() || s == v.endPoint()) {
        return false;
    }
    if (plainCut(b, j, s)) {
        plainMoveEnd(b, j, s);
        return true;
    }
    bool const atStart = plainNearerToStart(v, s);
    if (!plainPinned(a, atStart ? v.startPoint() : v.endPoint())) {
        (atStart ? plainMoveStart : plainMoveEnd)(b, j, s);
        return false;
    }
    COrxPoint3dTol const finest(ORX::kMinPointTol * 2);
    if (plainCut(b, j, s)) {
        plainMoveEnd(b, j, s);
        return true;
    }
    return false;
}

// Every pair of segments, a's outside; after a cut the pair is tested again.
inline void plainBreak(COrxVertexArray& a, COrxVertexArray& b, int mode) {
    for (int i = 0; i < a.len(); ++i) {
        for (int j = 0; j < b.len(); ++j) {
            if (((mode & 1) && plainCutFirst(a, i, b, j, (mode & 2) != 0)) ||
                ((mode & 2) && plainCutSecond(a, i, b, j))) {
                --j;  // the same pair again
            }
        }
    }
}

inline bool plainInside(COrxVertexArray const& vl, COrxPoint3d p, bool onBoundary) {
    if (vl.len() < 2) {
        return false;
    }
    p.z = vl[0].startPoint().z;
    double direction = ORX::angle(vl[0].mid(), p);
    for (;;) {
        COrxVertex const ray(p, ORX::polar(p, direction, ORX::kPolylineRayLength), 0.0);
        COrxPoint3dArray pts;
        int hits = 0;
        bool restart = false;
        for (int k = 0; k < vl.len() && !restart; ++k) {
            if (vl[k].isPoint(p)) {
                return onBoundary;
            }
            vl[k].intersectWith(pts, ray, COrxVertex::kSkipTangent);
            for (int n = 0; n < pts.len(); ++n) {
                restart = restart || pts[n] == vl[k].startPoint() || pts[n] == vl[k].endPoint();
            }
            hits += pts.len();
        }
        if (!restart) {
            return hits % 2 == 1;
        }
        direction = std::rand() * ORX::kRandomDirectionScale;
    }
}

// Bit for bit: every coordinate and bulge the same double.
inline bool identical(COrxPoint3d const& p, COrxPoint3d const& q) {
    return p.x == q.x && p.y == q.y && p.z == q.z;
}

inline bool identical(COrxVertex const& u, COrxVertex const& v) {
    return identical(u.startPoint(), v.startPoint()) && identical(u.endPoint(), v.endPoint()) &&
           u.bulge() == v.bulge();
}

// The element of an array printed for a failure, or "none" past its end.
template <class Array>
std::string elementText(Array const& a, long k) {
    return k < static_cast<long>(a.len()) ? ::testing::PrintToString(a[static_cast<int>(k)])
                                          : std::string("none");
}

// For arrays, a failure gives the lengths and the first pair of elements that differ.
template <class Array>
::testing::AssertionResult identical(Array const& a, Array const& b) {
    long const n = static_cast<long>(a.len());
    long k = 0;
    while (k < n && k < static_cast<long>(b.len()) &&
           identical(a[static_cast<int>(k)], b[static_cast<int>(k)])) {
        ++k;
    }
    if (k == n && a.len() == b.len()) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure()
           << "lengths " << a.len() << " and " << b.len() << ", element " << k << " is\n  "
           << elementText(a, k) << "\n  against\n  " << elementText(b, k);
}

}  // namespace orx_test

#endif  // ORX_TESTS_REGIONS_REFERENCE_ALGORITHMS_H
