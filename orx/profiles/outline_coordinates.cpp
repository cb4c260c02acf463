// Outline generator of code 901: the polygon through coordinate pairs given as dimensions.
#include <cmath>

#include "orx/plane_geometry/lines.h"
#include "orx/polyline/polyline_functions.h"
#include "orx/profiles/internal/outline_generators.h"

namespace ORX {
namespace internal {
namespace {

// The corners (d0, d1), (d2, d3), ... without repeats of the corner before, nor a last
// corner repeating the first (point tolerance).
COrxPoint3dArray distinctCorners(Dims const& dims) {
    COrxPoint3dArray corners;
    for (int k = 0; 2 * k + 1 < static_cast<int>(dims.len()); ++k) {
        COrxPoint3d const p = xy(dim(dims, 2 * k), dim(dims, 2 * k + 1));
        if (corners.isEmpty() || p != corners[-1]) {
            corners.append(p);
        }
    }
    if (corners.len() > 1 && corners[0] == corners[-1]) {
        corners.removeAt(corners.len() - 1);
    }
    return corners;
}

// Sides a-b and b-c (sharing b) meet only in b: neither runs back over the other.
bool adjacentSidesClear(COrxPoint3d const& a, COrxPoint3d const& b, COrxPoint3d const& c) {
    return !g_line_pt(a, b, c) && !g_line_pt(b, c, a);
}

// Sides p-q and r-s (no corner shared) have no point in common: they neither cross nor
// touch, and no end of one lies on the other (which also covers collinear overlaps, where
// inters finds no crossing).
bool separateSidesClear(COrxPoint3d const& p, COrxPoint3d const& q, COrxPoint3d const& r,
                        COrxPoint3d const& s) {
    COrxPoint3d crossing;
    if (inters(p, q, r, s, true, crossing)) {
        return false;
    }
    return !g_line_pt(p, q, r) && !g_line_pt(p, q, s) && !g_line_pt(r, s, p) && !g_line_pt(r, s, q);
}

// No two sides of the closed polygon meet anywhere but at the corner they share. Every pair
// of sides is tested: a plate outline has few corners.
bool isSimple(COrxPoint3dArray const& corners) {
    int const n = corners.len();
    for (int i = 0; i < n; ++i) {
        COrxPoint3d const& p = corners[i];
        COrxPoint3d const& q = corners[(i + 1) % n];
        if (!adjacentSidesClear(p, q, corners[(i + 2) % n])) {
            return false;
        }
        for (int j = i + 2; j < n; ++j) {
            if ((j + 1) % n == i) {
                continue;  // the side before p: adjacent, tested from its own start
            }
            if (!separateSidesClear(p, q, corners[j], corners[(j + 1) % n])) {
                return false;
            }
        }
    }
    return true;
}

}  // namespace

COrxVertexArray coordinatePolygon(COrxVector3d const& offset, Dims const& dims) {
    if (!hasDims(dims, 6) || dims.len() % 2 != 0) {
        return COrxVertexArray();
    }
    COrxPoint3dArray const corners = distinctCorners(dims);
    if (corners.len() < 3 || !isSimple(corners)) {
        return COrxVertexArray();
    }
    COrxVertexArray outline = polygon(corners);
    double const area = g_vl_area(outline);
    if (!(std::fabs(area) > 0)) {
        return COrxVertexArray();
    }
    if (area < 0) {
        outline.revert();
    }
    return placed(outline, offset);
}

}  // namespace internal
}  // namespace ORX
