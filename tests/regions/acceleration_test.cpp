// The library skips segment pairs and ray tests that bounding boxes rule out. These tests hold
// the results to those of the plain loops (reference_algorithms.h, reference_overlay.h), bit
// for bit and with the same use of rand(), on operands in general position and on shapes full
// of coincidences.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "reference_overlay.h"
#include "shape_maker.h"
#include "tests/support/case_files.h"
#include "tests/support/shapes.h"

using namespace orx_test;

namespace {

constexpr int kCases = 150;

COrxVertexArray operand(ShapeMaker& make, int n) {
    return n % 2 ? make.onGrid() : make.outline();
}

// The three operations against the plain algorithm.
void expectSameBooleans(COrxVertexArray const& a, COrxVertexArray const& b, int n) {
    KeepOperandsOnFailure keep("acceleration-booleans-" + std::to_string(n), a, b);
    for (int op = 0; op < 3; ++op) {
        auto const o = static_cast<COrxVertexArray::boolOper>(op);
        EXPECT_TRUE(identical(ORX::g_vl_bool(a, b, o), plainBool(a, b, o)))
            << "case " << n << " op " << op;
    }
}

// The polyline with every corner at its own height: it is tested on its plan at height 0.
COrxVertexArray atScatteredHeights(COrxVertexArray vl) {
    for (int k = 0; k < vl.len(); ++k) {
        COrxPoint3d s = vl[k].startPoint(), e = vl[k].endPoint();
        s.z = 0.5 * k - 3.0;
        e.z = k + 1 < vl.len() ? 0.5 * (k + 1) - 3.0 : -3.0;
        vl[k].set(s, e, vl[k].bulge());
    }
    return vl;
}

}  // namespace

TEST(AccelerationTest, IntersectionsMatchTheAllPairsLoop) {
    ShapeMaker make(31u);
    unsigned const flagSets[] = {0u, COrxVertex::kSkipTangent, COrxVertex::kSkipOwnEnds,
                                 COrxVertex::kSkipOtherEnds, COrxVertex::kExtended};
    for (int n = 0; n < kCases; ++n) {
        COrxVertexArray const a = operand(make, n), b = operand(make, n);
        KeepOperandsOnFailure keep("acceleration-intersections-" + std::to_string(n), a, b);
        for (unsigned flags : flagSets) {
            COrxPoint3dArray fast, plain;
            EXPECT_EQ(a.intersectWith(fast, b, flags), plainIntersect(a, b, flags, plain));
            EXPECT_TRUE(identical(fast, plain)) << "case " << n << " flags " << flags;
        }
    }
}

TEST(AccelerationTest, CuttingMatchesThePlainLoop) {
    ShapeMaker make(37u);
    for (int n = 0; n < kCases; ++n) {
        COrxVertexArray const a = operand(make, n), b = operand(make, n);
        KeepOperandsOnFailure keep("acceleration-cutting-" + std::to_string(n), a, b);
        for (int mode = 1; mode <= 3; ++mode) {
            COrxVertexArray fastA = a, fastB = b, plainA = a, plainB = b;
            ORX::g_vl_break(fastA, fastB, mode);
            plainBreak(plainA, plainB, mode);
            EXPECT_TRUE(identical(fastA, plainA)) << "case " << n << " mode " << mode;
            EXPECT_TRUE(identical(fastB, plainB)) << "case " << n << " mode " << mode;
        }
    }
}

TEST(AccelerationTest, PointInPolylineMatchesThePlainRayTest) {
    ShapeMaker make(41u);
    for (int n = 0; n < kCases; ++n) {
        COrxVertexArray const vl = operand(make, n);
        COrxVertexArray const raised = atScatteredHeights(vl);
        KeepOperandsOnFailure keep("acceleration-inside-" + std::to_string(n), vl,
                                   COrxVertexArray());
        // Random points, the corners and the midpoints (on the boundary), and points on grid
        // lines through the corners (rays through corners restart).
        COrxPoint3dArray probes;
        for (int k = 0; k < 10; ++k) {
            probes.append(COrxPoint3d(make.uniform(-6, 8), make.uniform(-6, 8), 0));
            probes.append(COrxPoint3d(make.pick(12) - 3, make.pick(12) - 3, 0));
        }
        for (int k = 0; k < vl.len(); ++k) {
            probes.append(vl[k].startPoint()).append(vl[k].mid());
        }
        for (int k = 0; k < probes.len(); ++k) {
            for (bool onBoundary : {false, true}) {
                std::srand(static_cast<unsigned>(n * 1000 + k));
                bool const plain = plainInside(vl, probes[k], onBoundary);
                int const plainNext = std::rand();
                std::srand(static_cast<unsigned>(n * 1000 + k));
                bool const fast = ORX::g_vl_pt_inside(vl, probes[k], onBoundary);
                EXPECT_EQ(fast, plain) << "case " << n << " probe " << k;
                EXPECT_EQ(std::rand(), plainNext) << "case " << n << " probe " << k;
                std::srand(static_cast<unsigned>(n * 1000 + k));
                EXPECT_EQ(ORX::g_vl_pt_inside(raised, probes[k], onBoundary), plain)
                    << "raised case " << n << " probe " << k;
            }
        }
    }
}

TEST(AccelerationTest, BooleanResultsMatchThePlainAlgorithm) {
    ShapeMaker make(43u);
    for (int n = 0; n < kCases; ++n) {
        COrxVertexArray const a = operand(make, n), b = operand(make, n);
        expectSameBooleans(a, b, n);
    }
}

TEST(AccelerationTest, LargeOutlinesMatchThePlainAlgorithm) {
    ShapeMaker make(47u);
    for (int n = 0; n < 4; ++n) {
        COrxVertexArray const a = make.wavy(300, 10), b = make.wavy(260, 10);
        COrxPoint3dArray fast, plain;
        a.intersectWith(fast, b, 0);
        plainIntersect(a, b, 0, plain);
        EXPECT_GT(fast.len(), 2);
        EXPECT_TRUE(identical(fast, plain)) << "case " << n;
        expectSameBooleans(a, b, n);
    }
}
