#include "orx/polyline/shared/near_pairs.h"

namespace ORX {
namespace internal {

bool polylinesMeet(COrxVertexArray const& a, COrxVertexArray const& b) {
    if (&a == &b) {
        return false;  // as intersectWith answers for a polyline and itself
    }
    bool met = false;
    COrxPoint3dArray found;
    forEachNearPair(a, b, [&](int i, int j) {
        met = a[i].intersectWith(found, b[j], 0);
        return !met;
    });
    return met;
}

}  // namespace internal
}  // namespace ORX
