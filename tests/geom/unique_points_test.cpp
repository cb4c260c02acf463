// The cell-filed unique list against appendUniq, the plain list it must equal exactly.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "orx/geom/point_array.h"
#include "orx/geom/shared/unique_points.h"

namespace {

// Points in clusters whose members lie about the tolerance apart (some equal, some not), with
// cells' edges, huge and non-finite coordinates mixed in.
COrxPoint3d clusteredPoint(std::mt19937& rng) {
    double const tol = COrxPoint3d::tol;
    std::uniform_int_distribution<int> centre(0, 40), kind(0, 19);
    std::uniform_real_distribution<double> jitter(-1.5 * tol, 1.5 * tol);
    double const inf = std::numeric_limits<double>::infinity();
    switch (kind(rng)) {
        case 0:
            return COrxPoint3d(std::nan(""), 1.0, 0.0);
        case 1:
            return COrxPoint3d(inf, -inf, 0.0);
        case 2:
            return COrxPoint3d(1e300 * centre(rng), -1e300, 0.0);
        case 3:
            return COrxPoint3d(2 * tol * centre(rng), 0.0, jitter(rng));  // on cell edges
        default:
            return COrxPoint3d(0.1 * centre(rng) + jitter(rng), 1e6 + jitter(rng), 0.0);
    }
}

TEST(UniquePointsTest, EqualsAppendUniqPointForPointAndInOrder) {
    std::mt19937 rng(20261123);
    for (int round = 0; round < 20; ++round) {
        COrxPoint3dArray plain, filed;
        plain.append(COrxPoint3d(0.1, 1e6, 0.0));  // a point the list holds before
        filed = plain;
        ORX::internal::UniquePoints unique(filed);
        for (int k = 0; k < 400; ++k) {
            COrxPoint3d const p = clusteredPoint(rng);
            plain.appendUniq(p);
            unique.add(p);
        }
        ASSERT_EQ(filed.len(), plain.len());
        for (int k = 0; k < plain.len(); ++k) {
            COrxPoint3d const& a = plain[k];
            COrxPoint3d const& b = filed[k];
            bool const same =
                (a.x == b.x || (std::isnan(a.x) && std::isnan(b.x))) && a.y == b.y && a.z == b.z;
            EXPECT_TRUE(same) << "round " << round << ", point " << k << ": "
                              << ::testing::PrintToString(a) << " against "
                              << ::testing::PrintToString(b);
        }
    }
}

}  // namespace
