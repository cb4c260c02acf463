// Points, polylines and regions the geometry tests build their cases from. Every closed
// shape runs counter-clockwise unless its comment says otherwise.
#ifndef ORX_TESTS_SUPPORT_SHAPES_H
#define ORX_TESTS_SUPPORT_SHAPES_H

#include <cmath>
#include <initializer_list>

#include "orx/geom/functions.h"
#include "orx/polyline/polyline.h"
#include "tests/support/lists.h"

namespace orx_test {

using Region = COrxArrayTempl<COrxVertexArray>;
using RegionList = COrxArrayTempl<Region>;

// The bulge of a quarter circle.
double const kQuarter = std::tan(ORX::kPi / 8);

inline COrxPoint3d pt(double x, double y, double z = 0) {
    return COrxPoint3d(x, y, z);
}

// Straight segments through the corners, closed back to the first unless told otherwise.
inline COrxVertexArray polygon(std::initializer_list<COrxPoint3d> corners, bool close = true) {
    COrxVertexArray vl;
    return vl.fromPoints(list(corners), close);
}

// For x0 < x1 and y0 < y1; from (x0, y0).
inline COrxVertexArray rectangle(double x0, double y0, double x1, double y1) {
    return polygon({pt(x0, y0), pt(x1, y0), pt(x1, y1), pt(x0, y1)});
}

inline COrxVertexArray unitSquare() {
    return rectangle(0, 0, 1, 1);
}

// Two half circles from the rightmost point.
inline COrxVertexArray circle(COrxPoint3d const& c, double r) {
    COrxVertexArray vl;
    vl.append(COrxVertex(ORX::polar(c, 0, r), ORX::polar(c, ORX::kPi, r), 1.0))
        .append(COrxVertex(ORX::polar(c, ORX::kPi, r), ORX::polar(c, 0, r), 1.0));
    return vl;
}

// Two half circles from (1, 0), built exactly (no angle is rounded through polar).
inline COrxVertexArray unitCircle() {
    COrxVertexArray vl(COrxVertex(pt(1, 0), pt(-1, 0), 1.0));
    return vl.append(pt(1, 0), 1.0);
}

// A rectangle with quarter-circle corners of radius r, from (x0 + r, y0).
inline COrxVertexArray roundedRectangle(double x0, double y0, double x1, double y1, double r) {
    double const b = kQuarter;
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

// A square of half side h about c, turned by angle.
inline COrxVertexArray rotatedSquare(COrxPoint3d const& c, double h, double angle) {
    COrxVertexArray vl = rectangle(c.x - h, c.y - h, c.x + h, c.y + h);
    return vl.rotate(angle, c);
}

// The outer loop first, then the holes.
inline Region region(std::initializer_list<COrxVertexArray> loops) {
    Region r;
    for (COrxVertexArray const& loop : loops) {
        r.append(loop);
    }
    return r;
}

}  // namespace orx_test

#endif  // ORX_TESTS_SUPPORT_SHAPES_H
