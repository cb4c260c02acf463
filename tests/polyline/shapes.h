// Points, point lists and polylines shared by the polyline tests.
#ifndef ORX_TESTS_POLYLINE_SHAPES_H
#define ORX_TESTS_POLYLINE_SHAPES_H

#include <cmath>
#include <initializer_list>

#include "orx/geom/functions.h"
#include "orx/polyline/polyline.h"

namespace orx_test {

// The bulge of a quarter circle.
double const kQuarter = std::tan(ORX::kPi / 8);

inline COrxPoint3d pt(double x, double y, double z = 0) {
    return COrxPoint3d(x, y, z);
}

inline COrxPoint3dArray points(std::initializer_list<COrxPoint3d> list) {
    COrxPoint3dArray a;
    for (COrxPoint3d const& p : list) {
        a.append(p);
    }
    return a;
}

// Straight segments through the corners, closed back to the first unless told otherwise.
inline COrxVertexArray polygon(std::initializer_list<COrxPoint3d> corners, bool close = true) {
    COrxVertexArray vl;
    return vl.fromPoints(points(corners), close);
}

inline COrxVertexArray unitSquare() {
    return polygon({pt(0, 0), pt(1, 0), pt(1, 1), pt(0, 1)});
}

// Two counter-clockwise half circles from (1, 0).
inline COrxVertexArray unitCircle() {
    COrxVertexArray vl(COrxVertex(pt(1, 0), pt(-1, 0), 1.0));
    return vl.append(pt(1, 0), 1.0);
}

}  // namespace orx_test

#endif  // ORX_TESTS_POLYLINE_SHAPES_H
