// Containers: amortised appends, tolerant search and the stable bubble sort.
#include <benchmark/benchmark.h>

#include "orx/orx.h"

namespace {

void AppendPoints(benchmark::State& state) {
    for (auto _ : state) {
        COrxArrayTempl<COrxPoint3d> points;
        for (int k = 0; k < state.range(0); ++k) {
            points.append(COrxPoint3d(k, -k, 0));
        }
        benchmark::DoNotOptimize(points.entry());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(AppendPoints)->Range(8, 1 << 16);

void AppendUniqPoints(benchmark::State& state) {
    for (auto _ : state) {
        COrxArrayTempl<COrxPoint3d> points;
        for (int k = 0; k < state.range(0); ++k) {
            points.appendUniq(COrxPoint3d(k % 64, 0, 0));
        }
        benchmark::DoNotOptimize(points.entry());
    }
}
BENCHMARK(AppendUniqPoints)->Range(64, 4096);

void SortDoubles(benchmark::State& state) {
    COrxArrayTempl<double> source;
    for (int k = 0; k < state.range(0); ++k) {
        source.append((k * 7919) % 1000);
    }
    for (auto _ : state) {
        COrxArrayTempl<double> copy(source);
        copy.sort();
        benchmark::DoNotOptimize(copy.entry());
    }
}
BENCHMARK(SortDoubles)->Range(8, 1024);

}  // namespace
