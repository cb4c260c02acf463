// Outlines and regions for the boolean and region tests, and measures on the results.
#ifndef ORX_TESTS_REGIONS_SHAPES_H
#define ORX_TESTS_REGIONS_SHAPES_H

#include <cmath>
#include <initializer_list>

#include "orx/geom/functions.h"
#include "orx/polyline/polyline.h"
#include "orx/regions/regions.h"

namespace orx_test {

using Region = COrxArrayTempl<COrxVertexArray>;
using RegionList = COrxArrayTempl<Region>;

inline COrxPoint3d pt(double x, double y) {
    return COrxPoint3d(x, y, 0);
}

// Counter-clockwise polygon through the corners.
inline COrxVertexArray polygon(std::initializer_list<COrxPoint3d> corners) {
    COrxPoint3dArray points;
    for (COrxPoint3d const& p : corners) {
        points.append(p);
    }
    COrxVertexArray vl;
    return vl.fromPoints(points, true);
}

inline COrxVertexArray rectangle(double x0, double y0, double x1, double y1) {
    return polygon({pt(x0, y0), pt(x1, y0), pt(x1, y1), pt(x0, y1)});
}

// Two half circles, counter-clockwise, starting at the rightmost point.
inline COrxVertexArray circle(COrxPoint3d const& c, double r) {
    COrxVertexArray vl;
    vl.append(COrxVertex(ORX::polar(c, 0, r), ORX::polar(c, ORX::kPi, r), 1.0))
        .append(COrxVertex(ORX::polar(c, ORX::kPi, r), ORX::polar(c, 0, r), 1.0));
    return vl;
}

// Counter-clockwise rectangle with quarter-circle corners of radius r.
inline COrxVertexArray roundedRectangle(double x0, double y0, double x1, double y1, double r) {
    double const b = std::tan(ORX::kPi / 8);
    COrxVertexArray vl;
    vl.append(COrxVertex(pt(x0 + r, y0), pt(x1 - r, y0), 0.0))
        .append(COrxVertex(pt(x1 - r, y0), pt(x1, y0 + r), b))
        .append(COrxVertex(pt(x1, y0 + r), pt(x1, y1 - r), 0.0))
        .append(COrxVertex(pt(x1, y1 - r), pt(x1 - r, y1), b))
        .append(COrxVertex(pt(x1 - r, y1), pt(x0 + r, y1), 0.0))
        .append(COrxVertex(pt(x0 + r, y1), pt(x0, y1 - r), b))
        .append(COrxVertex(pt(x0, y1 - r), pt(x0, y0 + r), 0.0))
        .append(COrxVertex(pt(x0, y0 + r), pt(x0 + r, y0), b));
    return vl;
}

// Square of half side h about c, turned by angle.
inline COrxVertexArray rotatedSquare(COrxPoint3d const& c, double h, double angle) {
    COrxVertexArray vl = rectangle(c.x - h, c.y - h, c.x + h, c.y + h);
    return vl.rotate(angle, c);
}

inline Region region(std::initializer_list<COrxVertexArray> loops) {
    Region r;
    for (COrxVertexArray const& loop : loops) {
        r.append(loop);
    }
    return r;
}

// Signed area of all loops of a (possibly multi-loop) polyline.
inline double area(COrxVertexArray const& vl) {
    return ORX::g_vl_area(vl);
}

// Area of a region whose loops all run counter-clockwise: outer minus holes.
inline double area(Region const& r) {
    double total = 0;
    for (unsigned long k = 0; k < r.len(); ++k) {
        double const a = std::fabs(ORX::g_vl_area(r[static_cast<int>(k)]));
        total += k == 0 ? a : -a;
    }
    return total;
}

inline double area(RegionList const& list) {
    double total = 0;
    for (unsigned long k = 0; k < list.len(); ++k) {
        total += area(list[static_cast<int>(k)]);
    }
    return total;
}

// Inside by parity over all loops of a multi-loop polyline (holes included).
inline bool insideLoops(COrxVertexArray const& vl, COrxPoint3d const& p) {
    Region const loops = ORX::g_vl_vll(vl);
    int count = 0;
    for (unsigned long k = 0; k < loops.len(); ++k) {
        count += ORX::g_vl_pt_inside(loops[static_cast<int>(k)], p, false) ? 1 : 0;
    }
    return count % 2 == 1;
}

inline bool insideAny(RegionList const& list, COrxPoint3d const& p) {
    for (unsigned long k = 0; k < list.len(); ++k) {
        if (ORX::g_vll_pt_inside(list[static_cast<int>(k)], p) == 1) {
            return true;
        }
    }
    return false;
}

}  // namespace orx_test

#endif  // ORX_TESTS_REGIONS_SHAPES_H
