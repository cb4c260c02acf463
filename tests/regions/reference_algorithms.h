// The plain algorithms of the boolean operation, loop for loop as they are defined: every
// segment pair, every segment for every ray. The library skips pairs and segments that
// cannot meet; the tests hold it to these results, bit for bit.
#ifndef ORX_TESTS_REGIONS_REFERENCE_ALGORITHMS_H
#define ORX_TESTS_REGIONS_REFERENCE_ALGORITHMS_H

#include <cstdlib>

#include "orx/geom/functions.h"
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

inline void plainBreak(COrxVertexArray& a, COrxVertexArray& b, int mode) {
    COrxPoint3dArray pts;
    for (int i = 0; i < a.len(); ++i) {
        for (int j = 0; j < b.len(); ++j) {
            COrxVertex const w = a[i];
            if (mode & 1) {
                if (w.intersectWith(pts, b[j], COrxVertex::kSkipOwnEnds)) {
                    a.breakVertex(i, pts[0]);
                    --j;
                    continue;
                }
                COrxPoint3d const s = b[j].startPoint();
                if (w.isPoint(s) && s != w.startPoint() && s != w.endPoint()) {
                    a.breakVertex(i, s);
                    --j;
                    continue;
                }
            }
            if (mode & 2) {
                if (w.intersectWith(pts, b[j], COrxVertex::kSkipOtherEnds)) {
                    b.breakVertex(j, pts[0]);
                    --j;
                    continue;
                }
                COrxPoint3d const s = w.startPoint();
                if (b[j].isPoint(s) && s != b[j].startPoint() && s != b[j].endPoint()) {
                    b.breakVertex(j, s);
                    --j;
                }
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

inline COrxVertexArray plainBool(COrxVertexArray a, COrxVertexArray b,
                                 COrxVertexArray::boolOper op) {
    plainBreak(a, b, 3);
    COrxVertexArray result;
    for (int pass = 0; pass < 2; ++pass) {
        COrxVertexArray const& from = pass == 0 ? a : b;
        COrxVertexArray const& other = pass == 0 ? b : a;
        for (int k = 0; k < from.len(); ++k) {
            COrxVertex const& s = from[k];
            bool const in = plainInside(other, s.mid(), false);
            bool const inOrOn = in || plainInside(other, s.mid(), true);
            if (op == COrxVertexArray::boolUnion && !inOrOn) {
                result.append(s);
            } else if (op == COrxVertexArray::boolDiff && pass == 0 && !inOrOn) {
                result.append(s);
            } else if (op == COrxVertexArray::boolDiff && pass == 1 &&
                       (in || (inOrOn && other.indexOf(s.reverse()) >= 0))) {
                result.append(s.reverse());
            } else if (op == COrxVertexArray::boolSect &&
                       (in || (pass == 0 && inOrOn && other.indexOf(s) >= 0))) {
                result.append(s);
            }
        }
    }
    ORX::g_vl_sort(result);
    return result.norm(false);
}

// Bit for bit: every coordinate and bulge the same double.
inline bool identical(COrxPoint3d const& p, COrxPoint3d const& q) {
    return p.x == q.x && p.y == q.y && p.z == q.z;
}

inline bool identical(COrxVertex const& u, COrxVertex const& v) {
    return identical(u.startPoint(), v.startPoint()) && identical(u.endPoint(), v.endPoint()) &&
           u.bulge() == v.bulge();
}

template <class Array>
bool identical(Array const& a, Array const& b) {
    if (a.len() != b.len()) {
        return false;
    }
    for (int k = 0; k < a.len(); ++k) {
        if (!identical(a[k], b[k])) {
            return false;
        }
    }
    return true;
}

}  // namespace orx_test

#endif  // ORX_TESTS_REGIONS_REFERENCE_ALGORITHMS_H
