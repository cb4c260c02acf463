// Helpers shared by the profile tests: building outlines from plain lists, checking them
// corner by corner, and the test that no two segments meet except at the joint they share.
#ifndef ORX_TESTS_PROFILES_OUTLINE_CHECKS_H
#define ORX_TESTS_PROFILES_OUTLINE_CHECKS_H

#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "orx/polyline/polyline.h"
#include "orx/profiles/profiles.h"
#include "tests/support/shapes.h"

namespace orx_test {

inline COrxVertexArray outline(int code, std::vector<double> const& values,
                               COrxVector3d const& offset = COrxVector3d()) {
    return ORX::g_outline(code, offset, numbers(values));
}

// True when two segments meet anywhere but at a joint they share (consecutive segments,
// cyclically, share the end of the first). Besides the crossings, an end of one segment on
// the other counts: collinear overlaps, which the crossing does not report.
inline bool selfIntersects(COrxVertexArray const& vl) {
    int const n = vl.len();
    for (int i = 0; i < n; ++i) {
        for (int j = i + 1; j < n; ++j) {
            COrxPoint3dArray joints, pts = vl[i].intersectWith(vl[j], 0);
            for (int m : {i, j}) {
                for (COrxPoint3d const& p : {vl[m].startPoint(), vl[m].endPoint()}) {
                    if (vl[m == i ? j : i].isPoint(p)) {
                        pts.append(p);
                    }
                }
            }
            if (j == i + 1) {
                joints.append(vl[i].endPoint());
            }
            if ((j + 1) % n == i) {
                joints.append(vl[j].endPoint());
            }
            for (int k = 0; k < pts.len(); ++k) {
                if (joints.indexOf(pts[k]) < 0) {
                    return true;
                }
            }
        }
    }
    return false;
}

// vl runs through the corners given as (x, y, bulge) triples in this order, each segment
// with its corner's bulge (within 1e-12) and ending at the next corner, the last one back at
// the first, all moved by offset.
inline ::testing::AssertionResult runsThrough(COrxVertexArray const& vl,
                                              std::vector<double> const& xyb,
                                              COrxVector3d const& offset = COrxVector3d()) {
    int const n = static_cast<int>(xyb.size() / 3);
    if (vl.len() != n) {
        return ::testing::AssertionFailure() << vl.len() << " segments, expected " << n;
    }
    auto corner = [&](int k) { return COrxPoint3d(xyb[3 * k], xyb[3 * k + 1], 0) + offset; };
    for (int k = 0; k < n; ++k) {
        COrxVertex const& v = vl[k];
        if (v.startPoint() != corner(k) || v.endPoint() != corner((k + 1) % n) ||
            !(std::fabs(v.bulge() - xyb[3 * k + 2]) <= 1e-12)) {
            return ::testing::AssertionFailure()
                   << "segment " << k << " starts at (" << v.startPoint().x << ", "
                   << v.startPoint().y << ") with bulge " << v.bulge();
        }
    }
    return ::testing::AssertionSuccess();
}

}  // namespace orx_test

#endif  // ORX_TESTS_PROFILES_OUTLINE_CHECKS_H
