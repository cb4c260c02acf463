// The boolean operation on closed polylines: one table of named cases shared by union,
// difference and intersection, then the steps on their own.
#include "orx/regions/bool_operation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "region_measures.h"
#include "tests/support/shapes.h"

using namespace orx_test;

namespace {

struct BoolCase {
    std::string name;
    COrxVertexArray a;
    COrxVertexArray b;
    double unionArea;
    double diffArea;
    double sectArea;
    int unionLoops;  // closed loops in the union
};

std::vector<BoolCase> boolCases() {
    double const lens = 2 * (ORX::kPi / 3 - std::sqrt(3.0) / 4);  // two unit circles 1 apart
    return {
        {"disjoint_squares", rectangle(0, 0, 1, 1), rectangle(3, 0, 4, 1), 2, 1, 0, 2},
        {"second_within_first", rectangle(0, 0, 4, 4), rectangle(1, 1, 2, 2), 16, 15, 1, 1},
        {"overlapping_squares", rectangle(0, 0, 2, 2), rectangle(1, 1, 3, 3), 7, 3, 1, 1},
        {"touching_side_opposite_directions", rectangle(0, 0, 1, 1), rectangle(1, 0, 2, 1), 2, 1, 0,
         1},
        // Stretches of boundary both run the same way: kept once.
        {"shared_edges_same_direction", rectangle(0, 0, 2, 2), rectangle(1, 0, 3, 2), 6, 2, 2, 1},
        {"part_of_the_bottom_edge_shared", rectangle(0, 0, 2, 1), rectangle(1, 0, 3, 2), 5, 1, 1,
         1},
        {"same_outline", roundedRectangle(0, 0, 4, 3, 1), roundedRectangle(0, 0, 4, 3, 1),
         12 - 4 + ORX::kPi, 0, 12 - 4 + ORX::kPi, 1},
        // Touching in one point: the union keeps two loops.
        {"corner_on_edge", rectangle(0, 0, 2, 2), polygon({pt(1, 2), pt(2, 3), pt(1, 4), pt(0, 3)}),
         6, 4, 0, 2},
        {"overlapping_circles", circle(pt(0, 0), 1), circle(pt(1, 0), 1), 2 * ORX::kPi - lens,
         ORX::kPi - lens, lens, 1},
        {"circle_in_square", rectangle(-2, -2, 2, 2), circle(pt(0, 0), 1), 16, 16 - ORX::kPi,
         ORX::kPi, 1},
        // Tangent circles touch in (1, 0), from outside (the union chains both circles into one
        // figure-eight loop through that point) and from inside.
        {"tangent_circles_outside", circle(pt(0, 0), 1), circle(pt(2, 0), 1), 2 * ORX::kPi,
         ORX::kPi, 0, 1},
        {"tangent_circles_inside", circle(pt(0, 0), 1), circle(pt(0.5, 0), 0.5), ORX::kPi,
         0.75 * ORX::kPi, 0.25 * ORX::kPi, 1},
    };
}

}  // namespace

TEST(BoolOperationTest, NamedCases) {
    for (BoolCase const& c : boolCases()) {
        SCOPED_TRACE(c.name);
        COrxVertexArray const u = ORX::g_vl_bool(c.a, c.b, COrxVertexArray::boolUnion);
        COrxVertexArray const d = ORX::g_vl_bool(c.a, c.b, COrxVertexArray::boolDiff);
        COrxVertexArray const s = ORX::g_vl_bool(c.a, c.b, COrxVertexArray::boolSect);
        EXPECT_EQ(closedLoops(u), c.unionLoops);
        EXPECT_NEAR(area(u), c.unionArea, 1e-9);
        EXPECT_NEAR(area(d), c.diffArea, 1e-9);
        EXPECT_NEAR(area(s), c.sectArea, 1e-9);
        EXPECT_GE(closedLoops(d), 0);
        EXPECT_GE(closedLoops(s), 0);
    }
}

TEST(BoolOperationTest, OperandsAreTakenByValue) {
    COrxVertexArray const a = rectangle(0, 0, 2, 2);
    COrxVertexArray const b = rectangle(1, 1, 3, 3);
    COrxVertexArray const aBefore = a, bBefore = b;
    ORX::g_vl_bool(a, b, COrxVertexArray::boolUnion);
    EXPECT_EQ(a, aBefore);
    EXPECT_EQ(b, bBefore);
}

TEST(BoolOperationTest, SelfAndDegenerateOperands) {
    COrxVertexArray const a = roundedRectangle(0, 0, 4, 3, 1);
    EXPECT_TRUE(ORX::g_vl_bool(a, a, COrxVertexArray::boolDiff).isEmpty());
    EXPECT_TRUE(ORX::g_vl_bool(a, COrxVertexArray(), COrxVertexArray::boolSect).isEmpty());
    EXPECT_TRUE(
        ORX::g_vl_bool(COrxVertexArray(), COrxVertexArray(), COrxVertexArray::boolUnion).isEmpty());
    EXPECT_TRUE(ORX::g_vl_bool(a, rectangle(1, 1, 2, 2), static_cast<COrxVertexArray::boolOper>(7))
                    .isEmpty());
    // The difference of disjoint outlines is the first, normalised.
    COrxVertexArray const d =
        ORX::g_vl_bool(a, rectangle(10, 10, 11, 11), COrxVertexArray::boolDiff);
    EXPECT_NEAR(area(d), area(a), 1e-12);
    EXPECT_EQ(d.len(), 8);
    // NaN or infinite values give the failure values, never a result holding them.
    for (double bad : {ORX::nan(), HUGE_VAL, -HUGE_VAL}) {
        COrxVertexArray broken = rectangle(1, 1, 2, 2);
        broken[1].set(broken[1].startPoint(), pt(2, bad), 0.0);
        for (int op = 0; op < 3; ++op) {
            auto const o = static_cast<COrxVertexArray::boolOper>(op);
            EXPECT_TRUE(ORX::g_vl_bool(a, broken, o).isEmpty()) << bad;
            EXPECT_TRUE(ORX::g_vl_bool(broken, a, o).isEmpty()) << bad;
        }
        RegionList out;
        EXPECT_FALSE(ORX::g_region_union(region({a}), region({broken}), out));
        EXPECT_FALSE(ORX::g_region_diff(region({broken}), region({a}), out));
        EXPECT_EQ(out.len(), 0u);
        COrxVertexArray grown = broken;
        EXPECT_TRUE(grown.offset(0.5, true).isEmpty()) << bad;
    }
    // A single segment and a zero-length one.
    COrxVertexArray one(COrxVertex(pt(0, 0), pt(1, 1), 0.0));
    (void)ORX::g_vl_bool(one, a, COrxVertexArray::boolUnion);
    COrxVertexArray dot(COrxVertex(pt(1, 1), pt(1, 1), 0.0));
    (void)ORX::g_vl_bool(a, dot, COrxVertexArray::boolSect);
}

TEST(BoolOperationTest, UnionOfDisjointSquaresKeepsBothInOrder) {
    COrxVertexArray const u =
        ORX::g_vl_bool(rectangle(0, 0, 1, 1), rectangle(3, 0, 4, 1), COrxVertexArray::boolUnion);
    COrxPoint3d lo, hi;
    ASSERT_TRUE(ORX::g_vl_vll(u)[0].extents(lo, hi));
    EXPECT_EQ(hi, pt(1, 1));  // the loop count is in the named cases
}

TEST(BoolOperationTest, DifferenceKeepsTheSharedSideOfAreasTouchingFromOutside) {
    COrxVertexArray const d =
        ORX::g_vl_bool(rectangle(0, 0, 1, 1), rectangle(1, 0, 2, 1), COrxVertexArray::boolDiff);
    ASSERT_EQ(d.len(), 4);
    EXPECT_TRUE(d.isClosed());
    EXPECT_GE(d.indexOf(COrxVertex(pt(1, 0), pt(1, 1), 0.0)), 0);
}

TEST(BoolOperationTest, BreakCutsBothOperandsAtEveryMeetingPoint) {
    COrxVertexArray a = rectangle(0, 0, 2, 2);
    COrxVertexArray b = rectangle(1, 1, 3, 3);
    EXPECT_FALSE(ORX::g_vl_break(a, b, 3));
    EXPECT_EQ(a.len(), 6);
    EXPECT_EQ(b.len(), 6);
    EXPECT_NEAR(a.geomLength(), 8, 1e-12);
    COrxVertexArray onlyA = rectangle(0, 0, 2, 2), onlyB = rectangle(1, 1, 3, 3);
    ORX::g_vl_break(onlyA, onlyB, 1);
    EXPECT_EQ(onlyA.len(), 6);
    EXPECT_EQ(onlyB.len(), 4);

    // A corner touching the inside of an edge cuts that edge (the start-point rule).
    COrxVertexArray edge = rectangle(0, 0, 2, 2);
    COrxVertexArray corner = polygon({pt(1, 2), pt(2, 3), pt(1, 4), pt(0, 3)});
    ORX::g_vl_break(edge, corner, 3);
    EXPECT_EQ(edge.len(), 5);
    EXPECT_GE(edge.indexOf(COrxVertex(pt(2, 2), pt(1, 2), 0.0)), 0);

    // One polyline as both operands: cut as two copies of it would be.
    COrxVertexArray self = polygon({pt(0, 0), pt(4, 0), pt(0, 3), pt(4, 3)});  // crosses itself
    COrxVertexArray copyA = self, copyB = self;
    ORX::g_vl_break(copyA, copyB, 3);
    ORX::g_vl_break(self, self, 3);
    EXPECT_EQ(self, copyB);
}

TEST(BoolOperationTest, PointInPolyline) {
    COrxVertexArray const square = rectangle(0, 0, 4, 4);
    EXPECT_FALSE(ORX::g_vl_pt_inside(square, pt(5, 1), true));
    EXPECT_TRUE(ORX::g_vl_pt_inside(square, pt(4, 2), true));  // on the boundary
    EXPECT_FALSE(ORX::g_vl_pt_inside(square, pt(4, 2), false));
    EXPECT_TRUE(ORX::g_vl_pt_inside(square, COrxPoint3d(1, 1, 50), false));  // planar
    // The first ray runs from the first edge's midpoint (2, 0) through p and on through the
    // corner (4, 4): the test restarts and still answers by parity.
    EXPECT_TRUE(ORX::g_vl_pt_inside(square, pt(3, 2), false));
    EXPECT_FALSE(ORX::g_vl_pt_inside(square, pt(6, 8), false));
    COrxVertexArray const one(COrxVertex(pt(0, 0), pt(4, 0), 1.0));  // not closed
    EXPECT_FALSE(ORX::g_vl_pt_inside(one, pt(2, -1), true));
    EXPECT_FALSE(ORX::g_vl_pt_inside(square, COrxPoint3d(NAN, 1, 0), true));
    COrxVertexArray const ring = circle(pt(0, 0), 2);
    EXPECT_TRUE(ORX::g_vl_pt_inside(ring, pt(0, 1.99), false));
    EXPECT_FALSE(ORX::g_vl_pt_inside(ring, pt(0, 2.01), true));
}

TEST(BoolOperationTest, SortChainsHeadToTailWithExactJoints) {
    COrxVertexArray vl;
    vl.append(COrxVertex(pt(0, 0), pt(1, 0), 0.0))
        .append(COrxVertex(pt(1, 1), pt(0, 0), 0.0))
        .append(COrxVertex(pt(1, 4e-6), pt(1, 1), 0.0))
        .append(COrxVertex(pt(7, 7), pt(8, 8), 0.0));
    ORX::g_vl_sort(vl);
    EXPECT_EQ(vl[0].endPoint().y, 4e-6);  // copied exactly
    EXPECT_EQ(vl[2].startPoint(), pt(1, 1));
    EXPECT_EQ(vl[3].startPoint(), pt(7, 7));
    EXPECT_FALSE(vl.isClosed());
}

TEST(BoolOperationTest, TangentCirclesAsRegions) {
    Region const unit = region({circle(pt(0, 0), 1)});
    RegionList out, diff;
    ASSERT_TRUE(ORX::g_region_union(unit, region({circle(pt(2, 0), 1)}), out));
    EXPECT_NEAR(area(out), 2 * ORX::kPi, 1e-9);
    ASSERT_TRUE(ORX::g_region_diff(unit, region({circle(pt(0.5, 0), 0.5)}), diff));
    EXPECT_NEAR(area(diff), 0.75 * ORX::kPi, 1e-9);
}
