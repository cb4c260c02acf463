// Properties of the boolean and region operations on generated operands in general position:
// areas add up, every loop is closed, and sample points fall inside a result exactly when
// they fall inside the operands as the operation says. Seeded and reproducible.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "orx/geom/tolerance.h"
#include "region_measures.h"
#include "shape_maker.h"
#include "tests/support/case_files.h"
#include "tests/support/shapes.h"

using namespace orx_test;

namespace {

constexpr int kPolylineCases = 300;
constexpr int kRegionCases = 150;
constexpr int kSamplesPerCase = 24;
// Sample points closer than this to an operand's boundary are skipped.
constexpr double kBoundaryMargin = 1e-3;

bool nearBoundary(COrxVertexArray const& vl, COrxPoint3d const& p) {
    COrxPoint3dTol wide(kBoundaryMargin);  // isPoint tests against the widened tolerance
    return vl.isPoint(p);
}

bool nearBoundary(Region const& r, COrxPoint3d const& p) {
    for (unsigned long k = 0; k < r.len(); ++k) {
        if (nearBoundary(r[static_cast<int>(k)], p)) {
            return true;
        }
    }
    return false;
}

void expectLoopsClosed(RegionList const& list) {
    for (unsigned long r = 0; r < list.len(); ++r) {
        for (unsigned long k = 0; k < list[static_cast<int>(r)].len(); ++k) {
            EXPECT_TRUE(list[static_cast<int>(r)][static_cast<int>(k)].isClosed());
        }
    }
}

double relativeTol(double a, double b) {
    return 1e-6 * std::max({1.0, std::fabs(a), std::fabs(b)});
}

}  // namespace

TEST(BooleanPropertyTest, PolylineOperationsAddUpAndAgreeWithTheOperands) {
    ShapeMaker make(7u);
    for (int n = 0; n < kPolylineCases; ++n) {
        COrxVertexArray const a = make.outline();
        COrxVertexArray const b = make.outline();
        SCOPED_TRACE(testing::Message() << "case " << n);
        KeepOperandsOnFailure keep("boolean-polylines-" + std::to_string(n), a, b);
        COrxVertexArray const u = ORX::g_vl_bool(a, b, COrxVertexArray::boolUnion);
        COrxVertexArray const d = ORX::g_vl_bool(a, b, COrxVertexArray::boolDiff);
        COrxVertexArray const s = ORX::g_vl_bool(a, b, COrxVertexArray::boolSect);
        double const areaA = area(a), areaB = area(b), areaS = area(s);
        EXPECT_NEAR(area(u), areaA + areaB - areaS, relativeTol(areaA, areaB));
        EXPECT_NEAR(area(d), areaA - areaS, relativeTol(areaA, areaB));
        EXPECT_GE(closedLoops(u), 0);
        EXPECT_GE(closedLoops(d), 0);
        EXPECT_GE(closedLoops(s), 0);
        for (int k = 0; k < kSamplesPerCase; ++k) {
            COrxPoint3d const p(make.uniform(-6, 6), make.uniform(-6, 6), 0);
            if (nearBoundary(a, p) || nearBoundary(b, p)) {
                continue;
            }
            bool const inA = ORX::g_vl_pt_inside(a, p, false);
            bool const inB = ORX::g_vl_pt_inside(b, p, false);
            EXPECT_EQ(insideLoops(u, p), inA || inB);
            EXPECT_EQ(insideLoops(d, p), inA && !inB);
            EXPECT_EQ(insideLoops(s, p), inA && inB);
        }
    }
}

TEST(BooleanPropertyTest, RegionOperationsAddUpAndAgreeWithTheOperands) {
    ShapeMaker make(11u);
    for (int n = 0; n < kRegionCases; ++n) {
        Region const a = make.withHoles();
        Region const b = make.withHoles();
        SCOPED_TRACE(testing::Message() << "case " << n);
        KeepOperandsOnFailure keep("boolean-regions-" + std::to_string(n), a, b);
        RegionList u, d, s;
        ORX::g_region_union(a, b, u);
        ORX::g_region_diff(a, b, d);
        bool const overlap = ORX::g_region_sect(a, b, s);
        double const areaA = area(a), areaB = area(b), areaS = overlap ? area(s) : 0.0;
        EXPECT_NEAR(area(u), areaA + areaB - areaS, relativeTol(areaA, areaB));
        EXPECT_NEAR(area(d), areaA - areaS, relativeTol(areaA, areaB));
        expectLoopsClosed(u);
        expectLoopsClosed(d);
        expectLoopsClosed(s);
        for (int k = 0; k < kSamplesPerCase; ++k) {
            COrxPoint3d const p(make.uniform(-7, 7), make.uniform(-7, 7), 0);
            if (nearBoundary(a, p) || nearBoundary(b, p)) {
                continue;
            }
            bool const inA = ORX::g_vll_pt_inside(a, p) == 1;
            bool const inB = ORX::g_vll_pt_inside(b, p) == 1;
            EXPECT_EQ(insideAny(u, p), inA || inB);
            EXPECT_EQ(insideAny(d, p), inA && !inB);
            EXPECT_EQ(overlap && insideAny(s, p), inA && inB);
        }
    }
}

TEST(BooleanPropertyTest, ResultsDoNotDependOnTheOperandsStartingPoint) {
    ShapeMaker make(23u);
    for (int n = 0; n < 50; ++n) {
        COrxVertexArray const a = make.outline();
        COrxVertexArray const b = make.outline();
        KeepOperandsOnFailure keep("boolean-rolled-" + std::to_string(n), a, b);
        COrxVertexArray rolled;  // the same outline, starting at its second segment
        for (int k = 1; k <= a.len(); ++k) {
            rolled.append(a[k % a.len()]);
        }
        for (int op = 0; op < 3; ++op) {
            auto const o = static_cast<COrxVertexArray::boolOper>(op);
            EXPECT_NEAR(area(ORX::g_vl_bool(a, b, o)), area(ORX::g_vl_bool(rolled, b, o)), 1e-9)
                << "case " << n << " op " << op;
        }
    }
}
