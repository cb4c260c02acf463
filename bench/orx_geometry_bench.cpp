// This library's side of the geometry benchmarks. The "area" counter of the boolean and
// region benchmarks is the area of the result, to compare with the peers' results.
#include <cmath>

#include "bench/geometry_bench.h"

namespace orx_bench {

namespace {

using RegionList = COrxArrayTempl<Region>;
using RegionOperation = bool (*)(Region, Region, RegionList&);

LastInput<OutlinePair> g_outlines;

OutlinePair const& outlines(Shape shape, int segments) {
    return g_outlines.get(static_cast<int>(shape), segments,
                          [&] { return makePair(shape, segments); });
}

Region oneLoopRegion(COrxVertexArray const& loop) {
    Region region;
    region.append(loop);
    return region;
}

// The area of a region: its outer loop's less its holes', whichever way each runs.
double regionArea(Region const& region) {
    double area = 0;
    for (unsigned long k = 0; k < region.len(); ++k) {
        double const loopArea = std::fabs(ORX::g_vl_area(region[k]));
        area += k == 0 ? loopArea : -loopArea;
    }
    return area;
}

double totalArea(RegionList const& regions) {
    double area = 0;
    for (unsigned long k = 0; k < regions.len(); ++k) {
        area += regionArea(regions[k]);
    }
    return area;
}

void boolean(benchmark::State& state, Shape shape, int segments, COrxVertexArray::boolOper op) {
    OutlinePair const& pair = outlines(shape, segments);
    COrxVertexArray result;
    for (auto _ : state) {
        result = ORX::g_vl_bool(pair.a, pair.b, op);
        benchmark::DoNotOptimize(result.len());
    }
    state.counters["area"] = ORX::g_vl_area(result);
}

void region(benchmark::State& state, Shape shape, int segments, RegionOperation op) {
    OutlinePair const& pair = outlines(shape, segments);
    Region const a = oneLoopRegion(pair.a), b = oneLoopRegion(pair.b);
    RegionList result;
    for (auto _ : state) {
        result = RegionList();
        benchmark::DoNotOptimize(op(a, b, result));
    }
    state.counters["area"] = totalArea(result);
}

void intersections(benchmark::State& state, Shape shape, int segments) {
    OutlinePair const& pair = outlines(shape, segments);
    long points = 0;
    for (auto _ : state) {
        points = pair.a.intersectWith(pair.b, 0).len();
        benchmark::DoNotOptimize(points);
    }
    state.counters["points"] = static_cast<double>(points);
}

void pointInside(benchmark::State& state, Shape shape, int segments) {
    COrxVertexArray const& outline = outlines(shape, segments).a;
    long k = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(ORX::g_vl_pt_inside(outline, gridPoint(k++), false));
    }
    state.SetItemsProcessed(state.iterations());
}

void pointInRegion(benchmark::State& state, Shape shape, int segments) {
    Region const region = oneLoopRegion(outlines(shape, segments).a);
    long k = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(ORX::g_vll_pt_inside(region, gridPoint(k++)));
    }
    state.SetItemsProcessed(state.iterations());
}

// The outline indexed once, outside the measured loop: the cost of one query.
void preparedPointInside(benchmark::State& state, Shape shape, int segments) {
    COrxOutlineIndex const index(outlines(shape, segments).a);
    long k = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(index.inside(gridPoint(k++), false));
    }
    state.SetItemsProcessed(state.iterations());
}

// offset and norm work in place: each iteration works on a fresh copy of the outline, and
// the copy (a plain copy of the segments) is part of the measured time.
void offset(benchmark::State& state, Shape shape, int segments) {
    COrxVertexArray const& outline = outlines(shape, segments).a;
    for (auto _ : state) {
        COrxVertexArray copy(outline);
        benchmark::DoNotOptimize(copy.offset(kOffsetDistance, false).len());
    }
}

void norm(benchmark::State& state, Shape shape, int segments) {
    COrxVertexArray const& outline = outlines(shape, segments).a;
    for (auto _ : state) {
        COrxVertexArray copy(outline);
        benchmark::DoNotOptimize(copy.norm(false).len());
    }
}

void points(benchmark::State& state, Shape shape, int segments) {
    COrxVertexArray const& outline = outlines(shape, segments).a;
    for (auto _ : state) {
        benchmark::DoNotOptimize(outline.pts(true, kPtsTolerance).len());
    }
}

void plateRegions(benchmark::State& state, int holes) {
    Region const loops = plateLoops(holes);
    RegionList result;
    for (auto _ : state) {
        result = ORX::g_vll_regions(loops, 0);
        benchmark::DoNotOptimize(result.len());
    }
    state.counters["area"] = totalArea(result);
}

void plateDiff(benchmark::State& state, int holes) {
    Region const plate = plateRegion(holes), cutter = oneLoopRegion(plateCutter());
    RegionList result;
    for (auto _ : state) {
        result = RegionList();
        benchmark::DoNotOptimize(ORX::g_region_diff(plate, cutter, result));
    }
    state.counters["area"] = totalArea(result);
}

}  // namespace

void registerOrxOutlineCase(Shape shape, int segments) {
    auto const add = [&](char const* operation, benchmark::TimeUnit unit, auto fn) {
        registerCase("orx", operation, shapeName(shape), segments, unit, fn);
    };
    auto const ms = benchmark::kMillisecond;
    auto const us = benchmark::kMicrosecond;
    add("bool_union", ms,
        [=](auto& s) { boolean(s, shape, segments, COrxVertexArray::boolUnion); });
    add("bool_diff", ms, [=](auto& s) { boolean(s, shape, segments, COrxVertexArray::boolDiff); });
    add("bool_sect", ms, [=](auto& s) { boolean(s, shape, segments, COrxVertexArray::boolSect); });
    add("region_union", ms, [=](auto& s) { region(s, shape, segments, ORX::g_region_union); });
    add("region_diff", ms, [=](auto& s) { region(s, shape, segments, ORX::g_region_diff); });
    add("region_sect", ms, [=](auto& s) { region(s, shape, segments, ORX::g_region_sect); });
    add("intersect", ms, [=](auto& s) { intersections(s, shape, segments); });
    add("pt_inside", us, [=](auto& s) { pointInside(s, shape, segments); });
    add("pt_in_region", us, [=](auto& s) { pointInRegion(s, shape, segments); });
    add("prepared_pt_inside", us, [=](auto& s) { preparedPointInside(s, shape, segments); });
    add("offset", ms, [=](auto& s) { offset(s, shape, segments); });
    add("norm", ms, [=](auto& s) { norm(s, shape, segments); });
    add("pts", ms, [=](auto& s) { points(s, shape, segments); });
}

void registerOrxPlateCase(int holes) {
    auto const ms = benchmark::kMillisecond;
    registerCase("orx", "plate_regions", "plate", holes, ms,
                 [=](auto& s) { plateRegions(s, holes); });
    registerCase("orx", "plate_diff", "plate", holes, ms, [=](auto& s) { plateDiff(s, holes); });
}

}  // namespace orx_bench
