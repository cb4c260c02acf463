// Measures on the results of the boolean and region operations: areas of polylines, regions
// and region lists, loop counts and point containment over all loops.
#ifndef ORX_TESTS_REGIONS_REGION_MEASURES_H
#define ORX_TESTS_REGIONS_REGION_MEASURES_H

#include <cmath>

#include "orx/regions/regions.h"
#include "tests/support/shapes.h"

namespace orx_test {

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

// The number of loops a chain splits into; -1 when one of them does not close.
inline int closedLoops(COrxVertexArray const& vl) {
    Region const loops = ORX::g_vl_vll(vl);
    for (unsigned long k = 0; k < loops.len(); ++k) {
        if (!loops[static_cast<int>(k)].isClosed()) {
            return -1;
        }
    }
    return static_cast<int>(loops.len());
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

#endif  // ORX_TESTS_REGIONS_REGION_MEASURES_H
