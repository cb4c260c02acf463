#include <cstdio>

#include "orx/orx.h"

int main() {
    COrxArrayTempl<COrxPoint3d> points;
    points.append(COrxPoint3d(0, 0, 0)).append(COrxPoint3d(3, 4, 0));
    std::printf("orx %ls distance %g\n", ORX::version(), points[0].distanceTo(points[-1]));
    return points.len() == 2 ? 0 : 1;
}
