// The boolean operation on two closed polylines, step by step: mutual cutting, the
// point-in-polyline test, selection of the pieces, chaining, normalisation.
#include "orx/regions/bool_operation.h"

#include <cstdlib>

#include "orx/geom/functions.h"

namespace ORX {

namespace {

// The cutting loop repeats a segment pair after every cut; on real input the number of cuts
// is bounded by the meeting points. This budget (far above that) only keeps degenerate
// input, where a cut does not shorten the segment, from looping for ever.
long long cutBudget(int n, int m) {
    return 8LL * (n + 1) * (m + 1) + 1024;
}

// A ray that passes through a segment end makes the test restart in a random direction. A
// direction that misses every end always exists, so this cap is never reached on finite
// input; it guards against geometry that no direction can get past (non-finite values).
constexpr int kMaxRayRestarts = 100000;

// Cuts a[i] where it meets b[j] (or where b[j] starts on its interior); true when it cut.
bool cutFirst(COrxVertexArray& a, int i, COrxVertexArray const& b, int j, COrxPoint3dArray& pts) {
    COrxVertex const w = a[i];
    if (w.intersectWith(pts, b[j], COrxVertex::kSkipOwnEnds)) {
        a.breakVertex(i, pts[0]);
        return true;
    }
    COrxPoint3d const s = b[j].startPoint();
    if (w.isPoint(s) && s != w.startPoint() && s != w.endPoint()) {
        a.breakVertex(i, s);
        return true;
    }
    return false;
}

// The same for b[j] against a[i] (points on b's own ends excluded).
bool cutSecond(COrxVertexArray const& a, int i, COrxVertexArray& b, int j, COrxPoint3dArray& pts) {
    COrxVertex const w = a[i];
    if (w.intersectWith(pts, b[j], COrxVertex::kSkipOtherEnds)) {
        b.breakVertex(j, pts[0]);
        return true;
    }
    COrxPoint3d const s = w.startPoint();
    if (b[j].isPoint(s) && s != b[j].startPoint() && s != b[j].endPoint()) {
        b.breakVertex(j, s);
        return true;
    }
    return false;
}

// The ray test in one direction: 1 inside, 0 outside, -1 when the ray passed through a
// segment end (restart), 2 when p lies on the polyline.
int rayParity(COrxVertexArray const& vl, COrxPoint3d const& p, double direction) {
    COrxVertex const ray(p, polar(p, direction, kPolylineRayLength), 0.0);
    COrxPoint3dArray pts;
    int hits = 0;
    for (int k = 0; k < vl.len(); ++k) {
        COrxVertex const& v = vl[k];
        if (v.isPoint(p)) {
            return 2;
        }
        v.intersectWith(pts, ray, COrxVertex::kSkipTangent);
        for (int n = 0; n < pts.len(); ++n) {
            if (pts[n] == v.startPoint() || pts[n] == v.endPoint()) {
                return -1;
            }
        }
        hits += pts.len();
    }
    return hits % 2;
}

bool holdsReversed(COrxVertexArray const& vl, COrxVertex const& piece) {
    return vl.indexOf(piece.reverse()) >= 0;
}

// The pieces of `from` that the operation keeps, tested against `other`.
void selectPieces(COrxVertexArray const& from, COrxVertexArray const& other, bool first,
                  COrxVertexArray::boolOper op, COrxVertexArray& result) {
    for (int k = 0; k < from.len(); ++k) {
        COrxVertex const& s = from[k];
        COrxPoint3d const m = s.mid();
        bool const in = g_vl_pt_inside(other, m, false);
        bool const inOrOn = in || g_vl_pt_inside(other, m, true);
        switch (op) {
            case COrxVertexArray::boolUnion:
                if (!inOrOn) {
                    result.append(s);
                }
                break;
            case COrxVertexArray::boolDiff:
                if (first && !inOrOn) {
                    result.append(s);
                } else if (!first && (in || (inOrOn && holdsReversed(other, s)))) {
                    result.append(s.reverse());
                }
                break;
            case COrxVertexArray::boolSect:
                if (in || (first && inOrOn && other.indexOf(s) >= 0)) {
                    result.append(s);
                }
                break;
        }
    }
}

}  // namespace

bool g_vl_break(COrxVertexArray& a, COrxVertexArray& b, int mode) {
    long long budget = cutBudget(a.len(), b.len());
    COrxPoint3dArray pts;
    for (int i = 0; i < a.len(); ++i) {
        for (int j = 0; j < b.len() && budget > 0; ++j) {
            bool const cut = ((mode & 1) && cutFirst(a, i, b, j, pts)) ||
                             ((mode & 2) && cutSecond(a, i, b, j, pts));
            if (cut) {
                --budget;
                --j;  // test the same pair again
            }
        }
    }
    return false;
}

bool g_vl_pt_inside(COrxVertexArray const& vl, COrxPoint3d p, bool onBoundary) {
    if (vl.len() < 2) {
        return false;
    }
    p.z = vl[0].startPoint().z;
    double direction = angle(vl[0].mid(), p);
    for (int attempt = 0; attempt < kMaxRayRestarts; ++attempt) {
        int const parity = rayParity(vl, p, direction);
        if (parity == 2) {
            return onBoundary;
        }
        if (parity >= 0) {
            return parity == 1;
        }
        direction = std::rand() * kRandomDirectionScale;
    }
    return false;
}

void g_vl_sort(COrxVertexArray& vl) {
    int const n = vl.len();
    for (int i = 1; i < n; ++i) {
        COrxVertex& before = vl[i - 1];
        int follower = i;
        while (follower < n && vl[follower].startPoint() != before.endPoint()) {
            ++follower;
        }
        if (follower == n) {
            continue;  // no segment starts here: segment i begins a new chain
        }
        before.set(before.startPoint(), vl[follower].startPoint(), before.bulge());
        if (follower != i) {
            COrxVertex const moved = vl[follower];
            vl[follower] = vl[i];
            vl[i] = moved;
        }
    }
}

COrxVertexArray g_vl_bool(COrxVertexArray a, COrxVertexArray b, COrxVertexArray::boolOper op) {
    g_vl_break(a, b, 3);
    COrxVertexArray result;
    selectPieces(a, b, true, op, result);
    selectPieces(b, a, false, op, result);
    g_vl_sort(result);
    return result.norm(false);
}

}  // namespace ORX
