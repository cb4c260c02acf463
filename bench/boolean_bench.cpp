// Boolean and region operations on large outlines: two overlapping polygons of n segments
// (a circle approximated by straight pieces, and a wavy outline with arcs).
#include <benchmark/benchmark.h>

#include <cmath>

#include "orx/orx.h"

namespace {

// A closed counter-clockwise polygon of n straight segments around c.
COrxVertexArray polygonCircle(COrxPoint3d const& c, double r, int n) {
    COrxPoint3dArray points;
    for (int k = 0; k < n; ++k) {
        points.append(ORX::polar(c, ORX::kTwoPi * k / n, r));
    }
    COrxVertexArray vl;
    return vl.fromPoints(points, true);
}

// A closed outline of n arcs whose radius wobbles, so that it crosses a circle many times.
COrxVertexArray wavyOutline(COrxPoint3d const& c, double r, int n) {
    COrxVertexArray vl;
    for (int k = 0; k < n; ++k) {
        double const a0 = ORX::kTwoPi * k / n, a1 = ORX::kTwoPi * (k + 1) / n;
        double const r0 = r * (1 + 0.05 * std::sin(7 * a0)), r1 = r * (1 + 0.05 * std::sin(7 * a1));
        vl.append(COrxVertex(ORX::polar(c, a0, r0), ORX::polar(c, a1, r1), k % 2 ? 0.05 : -0.05));
    }
    return vl;
}

void PolylineIntersections(benchmark::State& state) {
    int const n = static_cast<int>(state.range(0));
    COrxVertexArray const a = polygonCircle(COrxPoint3d(), 10, n);
    COrxVertexArray const b = wavyOutline(COrxPoint3d(0.3, 0.2, 0), 10, n);
    for (auto _ : state) {
        benchmark::DoNotOptimize(a.intersectWith(b, 0).len());
    }
    state.SetComplexityN(n);
}
BENCHMARK(PolylineIntersections)->RangeMultiplier(4)->Range(16, 1024)->Complexity();

void PolylineUnion(benchmark::State& state) {
    int const n = static_cast<int>(state.range(0));
    COrxVertexArray const a = polygonCircle(COrxPoint3d(), 10, n);
    COrxVertexArray const b = wavyOutline(COrxPoint3d(0.3, 0.2, 0), 10, n);
    for (auto _ : state) {
        benchmark::DoNotOptimize(ORX::g_vl_bool(a, b, COrxVertexArray::boolUnion).len());
    }
    state.SetComplexityN(n);
}
BENCHMARK(PolylineUnion)
    ->RangeMultiplier(4)
    ->Range(16, 1024)
    ->Complexity()
    ->Unit(benchmark::kMillisecond);

void RegionDifference(benchmark::State& state) {
    int const n = static_cast<int>(state.range(0));
    COrxArrayTempl<COrxVertexArray> plate, cut;
    plate.append(polygonCircle(COrxPoint3d(), 10, n))
        .append(polygonCircle(COrxPoint3d(), 3, n / 4 + 3));
    cut.append(wavyOutline(COrxPoint3d(5, 0, 0), 6, n));
    for (auto _ : state) {
        COrxArrayTempl<COrxArrayTempl<COrxVertexArray>> out;
        ORX::g_region_diff(plate, cut, out);
        benchmark::DoNotOptimize(out.len());
    }
    state.SetComplexityN(n);
}
BENCHMARK(RegionDifference)
    ->RangeMultiplier(4)
    ->Range(16, 1024)
    ->Complexity()
    ->Unit(benchmark::kMillisecond);

void PointInPolyline(benchmark::State& state) {
    int const n = static_cast<int>(state.range(0));
    COrxVertexArray const vl = wavyOutline(COrxPoint3d(), 10, n);
    double x = -9;
    for (auto _ : state) {
        benchmark::DoNotOptimize(ORX::g_vl_pt_inside(vl, COrxPoint3d(x, 0.5, 0), false));
        x = x > 9 ? -9 : x + 0.37;
    }
    state.SetComplexityN(n);
}
BENCHMARK(PointInPolyline)->RangeMultiplier(4)->Range(16, 4096)->Complexity();

}  // namespace
