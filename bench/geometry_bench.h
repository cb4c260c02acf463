// What the geometry benchmark program shares between this library's benchmarks and those of
// the peer libraries: the cases (shape, size), the query points, the plate's cutter, the
// naming of the benchmarks and their timing settings.
//
// Every benchmark is named library/operation/input/size, for example
// "orx/bool_union/wavy/10000" or "cgal/plate_diff/plate/1000", so that one filter picks the
// same case in every library and bench/compare.py can put them side by side.
#ifndef ORX_BENCH_GEOMETRY_BENCH_H
#define ORX_BENCH_GEOMETRY_BENCH_H

#include <benchmark/benchmark.h>

#include <string>

#include "bench/bench_shapes.h"

namespace orx_bench {

// The outline pairs of bench_shapes.h.
enum class Shape { circ, wavy, scal };

char const* shapeName(Shape shape);
OutlinePair makePair(Shape shape, int segments);

// The point queries run over a kGridSide x kGridSide grid spanning [-kGridHalfWidth,
// kGridHalfWidth]^2, one point per benchmark iteration, so the reported time is the time of
// one query.
constexpr int kGridSide = 100;
constexpr double kGridHalfWidth = 130.0;
// The k-th query point. Consecutive queries stride through the grid by a step coprime to its
// size, so that a slow query timed for a few iterations only still samples points inside,
// outside and near the outline rather than one corner of the grid.
COrxPoint3d gridPoint(long k);

// The offset distance of the offset benchmarks (to the right of the direction of travel, so
// inwards on the counter-clockwise outlines).
constexpr double kOffsetDistance = 1.0;
// The tessellation tolerance of the pts benchmarks.
constexpr double kPtsTolerance = 0.01;

// The plate benchmarks cut the plate with a circle of kCutterRadius about its corner (0, 0),
// made of kCutterSegments arcs: its quarter over the plate covers pi/4 * 360^2 / 1000^2, about
// 10% of the plate, so it removes about 10% of the holes and its arc cuts through a few more.
constexpr double kCutterRadius = 360.0;
constexpr int kCutterSegments = 64;
COrxVertexArray plateCutter();
// The plate of bench_shapes.h with `holes` holes as one region. Its loops already are one:
// the outline first, then the holes, all counter-clockwise, which is what g_vll_regions makes
// of them (without paying for the grouping in every plate benchmark's set-up).
Region plateRegion(int holes);

// The benchmark's name: library/operation/input/size.
std::string benchName(char const* library, char const* operation, char const* input, int size);

// Registers fn under benchName(...), reporting in the given unit (milliseconds, or
// microseconds for the point queries). The program's main shortens the minimum time of every
// benchmark (see kDefaultMinTime) rather than each one here, which would add it to the name.
template <class Fn>
void registerCase(char const* library, char const* operation, char const* input, int size,
                  benchmark::TimeUnit unit, Fn fn) {
    benchmark::RegisterBenchmark(benchName(library, operation, input, size).c_str(), fn)
        ->Unit(unit);
}

// The inputs of one library for the most recent case, built on first use and kept while
// consecutive benchmarks ask for the same case: the program registers all operations of a
// case one after another, so every input is built once and only one is held at a time.
template <class Input>
class LastInput {
public:
    template <class Make>
    Input const& get(int key, int size, Make make) {
        if (key != m_key || size != m_size) {
            m_input = Input();
            m_input = make();
            m_key = key;
            m_size = size;
        }
        return m_input;
    }

private:
    int m_key = -1;
    int m_size = -1;
    Input m_input;
};

// Each library's benchmarks for one outline case and for one plate; the peers' functions
// exist only when the build found the peer library.
void registerOrxOutlineCase(Shape shape, int segments);
void registerOrxPlateCase(int holes);
void registerCgalOutlineCase(Shape shape, int segments);
void registerCgalPlateCase(int holes);
void registerBoostOutlineCase(Shape shape, int segments);
void registerBoostPlateCase(int holes);

}  // namespace orx_bench

#endif  // ORX_BENCH_GEOMETRY_BENCH_H
