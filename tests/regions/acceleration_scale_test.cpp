// The accelerated operations against the plain ones on the benchmark shapes, on plates with
// holes, and on seeded pairs of the kinds drawings bring (near copies, shared edges): the
// same results, bit for bit.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "../../bench/bench_shapes.h"
#include "metamorphic_cases.h"
#include "reference_overlay.h"

using namespace orx_test;

namespace {

COrxVertexArray::boolOper const kOperations[] = {
    COrxVertexArray::boolUnion, COrxVertexArray::boolDiff, COrxVertexArray::boolSect};

void expectSameRegionOperations(PlainRegion const& a, PlainRegion const& b, char const* what) {
    PlainOp const ops[] = {PlainOp::kUnion, PlainOp::kDifference, PlainOp::kIntersection};
    for (PlainOp op : ops) {
        PlainRegionList fast, plain;
        bool const fastAnswer = op == PlainOp::kUnion        ? ORX::g_region_union(a, b, fast)
                                : op == PlainOp::kDifference ? ORX::g_region_diff(a, b, fast)
                                                             : ORX::g_region_sect(a, b, fast);
        EXPECT_EQ(fastAnswer, plainRegionOp(a, b, op, plain)) << what;
        EXPECT_TRUE(identical(fast, plain)) << what << " op " << static_cast<int>(op);
    }
}

// g_vll_regions as defined, testing every ordered pair of loops (flags 0: crossing loops
// left out, holes kept, islands as regions).
PlainRegionList plainRegions(PlainRegion const& loops) {
    int const n = static_cast<int>(loops.len());
    std::vector<std::vector<int>> containers(static_cast<std::size_t>(n));
    std::vector<bool> crossing(static_cast<std::size_t>(n), false);
    COrxPoint3dArray pts;
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < n; ++j) {
            if (i != j && loops[i].intersectWith(pts, loops[j], 0)) {
                crossing[static_cast<std::size_t>(i)] = crossing[static_cast<std::size_t>(j)] =
                    true;
            } else if (i != j && ORX::g_vl_vl_inside(loops[i], loops[j])) {
                containers[static_cast<std::size_t>(i)].insert(
                    containers[static_cast<std::size_t>(i)].begin(), j);
            }
        }
    }
    std::vector<std::size_t> depth(static_cast<std::size_t>(n));
    for (int i = 0; i < n; ++i) {
        auto& list = containers[static_cast<std::size_t>(i)];
        list.erase(std::remove_if(list.begin(), list.end(),
                                  [&](int c) { return crossing[static_cast<std::size_t>(c)]; }),
                   list.end());
        depth[static_cast<std::size_t>(i)] = list.size();
    }
    // The direct container: the one that holds no other of the list.
    auto direct = [&](int i) {
        for (int c : containers[static_cast<std::size_t>(i)]) {
            if (depth[static_cast<std::size_t>(c)] + 1 == depth[static_cast<std::size_t>(i)]) {
                return c;
            }
        }
        return -1;
    };
    PlainRegionList regions;
    std::vector<int> regionOf(static_cast<std::size_t>(n), -1);
    for (int pass = 0; pass < 2; ++pass) {
        for (int i = 0; i < n; ++i) {
            std::size_t const d = depth[static_cast<std::size_t>(i)];
            if (!crossing[static_cast<std::size_t>(i)] && d % 2 == 0 && (d == 0) == (pass == 0)) {
                regionOf[static_cast<std::size_t>(i)] = static_cast<int>(regions.len());
                PlainRegion region;
                regions.append(region.append(loops[i]));
            }
        }
    }
    for (int i = 0; i < n; ++i) {
        if (!crossing[static_cast<std::size_t>(i)] && depth[static_cast<std::size_t>(i)] % 2 == 1) {
            int const r = regionOf[static_cast<std::size_t>(direct(i))];
            if (r >= 0) {
                regions[r].append(loops[i]);
            }
        }
    }
    return regions;
}

}  // namespace

TEST(AccelerationScaleTest, RegionBuildingGivesThePlainRegions) {
    // Nested circles and squares, some crossing one another, in scattered order.
    std::mt19937 engine(9u);
    std::uniform_real_distribution<double> spread(-100, 100), size(0.5, 3);
    for (int n = 0; n < 20; ++n) {
        PlainRegion loops;
        COrxPoint3d const centre(spread(engine) / 4, spread(engine) / 4, 0);
        for (int k = 0; k < 40; ++k) {
            // Rings about one centre nest; the others scatter.
            COrxPoint3d const c =
                k % 4 == 0 ? centre : COrxPoint3d(spread(engine), spread(engine), 0);
            double const r = k % 4 == 0 ? 2.0 + k : size(engine);
            loops.append(k % 3 ? circle(c, r) : rectangle(c.x - r, c.y - r, c.x + r, c.y + r));
        }
        PlainRegionList const plain = plainRegions(loops);
        EXPECT_GT(plain.len(), 5u);
        EXPECT_TRUE(identical(ORX::g_vll_regions(loops, 0), plain)) << "case " << n;
    }
}

TEST(AccelerationScaleTest, BenchmarkShapesGiveThePlainResults) {
    for (int n : {100, 1000, 2000}) {
        orx_bench::OutlinePair const pairs[] = {orx_bench::circ(n), orx_bench::wavy(n),
                                                orx_bench::scal(n)};
        for (std::size_t shape = 0; shape < 3; ++shape) {
            // The plain algorithm tests every pair of segments: at the largest size the union
            // alone keeps the run short.
            for (COrxVertexArray::boolOper op : kOperations) {
                if (n == 2000 && op != COrxVertexArray::boolUnion) {
                    continue;
                }
                COrxVertexArray const& a = pairs[shape].a;
                COrxVertexArray const& b = pairs[shape].b;
                EXPECT_TRUE(identical(ORX::g_vl_bool(a, b, op), plainBool(a, b, op)))
                    << "shape " << shape << " n " << n << " op " << op;
            }
        }
    }
}

TEST(AccelerationScaleTest, PlatesGiveThePlainResults) {
    for (int holes : {100, 400}) {
        PlainRegionList const regions = ORX::g_vll_regions(orx_bench::plateLoops(holes), 0);
        ASSERT_EQ(regions.len(), 1u);
        PlainRegion cutter;
        cutter.append(orx_bench::roundHole(COrxPoint3d(0, 0, 0), 300));
        expectSameRegionOperations(regions[0], cutter, "plate");
    }
}

TEST(AccelerationScaleTest, SeededDrawingCasesGiveThePlainResults) {
    for (unsigned seed = 0; seed < 400; ++seed) {
        if (seed % 10 == 9) {
            continue;  // the fine polygons: too many pairs for the plain cutting
        }
        OperandPair const pair = CaseMaker(seed).make();
        if (pair.regions) {
            expectSameRegionOperations(pair.a, pair.b, pair.kind.c_str());
            continue;
        }
        for (COrxVertexArray::boolOper op : kOperations) {
            EXPECT_TRUE(identical(ORX::g_vl_bool(pair.a[0], pair.b[0], op),
                                  plainBool(pair.a[0], pair.b[0], op)))
                << "seed " << seed << " (" << pair.kind << ") op " << op;
        }
    }
}

TEST(AccelerationScaleTest, ChainingFindsTheFollowersThePlainSearchFinds) {
    std::mt19937 engine(3u);
    for (int n = 0; n < 50; ++n) {
        // Several loops' segments, shuffled, some ends moved within the tolerance.
        COrxVertexArray pieces;
        for (int loop = 0; loop < 4; ++loop) {
            COrxVertexArray const ring =
                orx_bench::roundHole(COrxPoint3d(loop % 2 * 3.0, loop / 2 * 3.0, 0), 1 + loop);
            pieces += ring;
            pieces += orx_bench::scal(8 + loop).a;
        }
        std::vector<int> order(static_cast<std::size_t>(pieces.len()));
        for (int k = 0; k < pieces.len(); ++k) {
            order[static_cast<std::size_t>(k)] = k;
        }
        std::shuffle(order.begin(), order.end(), engine);
        COrxVertexArray shuffled;
        for (int k : order) {
            COrxVertex v = pieces[k];
            if (k % 3 == 0) {
                v.set(ORX::polar(v.startPoint(), k, 0.4 * COrxPoint3d::tol), v.endPoint(),
                      v.bulge());
            }
            shuffled.append(v);
        }
        COrxVertexArray fast = shuffled, plain = shuffled;
        ORX::g_vl_sort(fast);
        plainSort(plain);
        EXPECT_TRUE(identical(fast, plain)) << "case " << n;
    }
}
