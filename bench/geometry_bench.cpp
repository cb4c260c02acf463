// The geometry benchmark program: boolean, region, intersection, point-query and outline
// operations of this library on the inputs of bench_shapes.h, beside the same operations in
// the peer libraries the build found (CGAL, Boost.Geometry).
//
// Besides Google Benchmark's own flags it takes two limits, applied when the benchmarks are
// registered, so the slow big cases cost nothing when left out:
//   --max_segments=N  outline cases of at most N segments per outline (default 100000);
//   --max_holes=N     plate cases of at most N holes (default 10000).
// The minimum time per benchmark is kDefaultMinTime unless --benchmark_min_time is given.
#include "bench/geometry_bench.h"

#include <cstdlib>
#include <cstring>
#include <vector>

namespace orx_bench {

namespace {

constexpr int kOutlineSizes[] = {1000, 10000, 100000};
constexpr int kPlateSizes[] = {100, 1000, 10000};
constexpr Shape kShapes[] = {Shape::circ, Shape::wavy, Shape::scal};
// Shorter than Google Benchmark's default of half a second: a slow case at the big sizes
// then runs once or a few times per repetition, and the fast ones still run long enough.
constexpr char const* kDefaultMinTime = "--benchmark_min_time=0.2";
// A step through the grid's points that is coprime to their number, so it visits them all.
constexpr long kGridStride = 7919;

struct Limits {
    int maxSegments = 100000;
    int maxHoles = 10000;
};

// Reads --name=value into value and returns true when arg is that flag.
bool readLimit(char const* arg, char const* name, int& value) {
    std::size_t const length = std::strlen(name);
    if (std::strncmp(arg, name, length) != 0 || arg[length] != '=') {
        return false;
    }
    value = std::atoi(arg + length + 1);
    return true;
}

// Takes this program's own flags out of argv, leaving Google Benchmark's.
Limits takeLimits(int& argc, char** argv) {
    Limits limits;
    int kept = 1;
    for (int i = 1; i < argc; ++i) {
        if (!readLimit(argv[i], "--max_segments", limits.maxSegments) &&
            !readLimit(argv[i], "--max_holes", limits.maxHoles)) {
            argv[kept++] = argv[i];
        }
    }
    argc = kept;
    return limits;
}

// Google Benchmark's arguments: the given ones, led by the default minimum time, which a
// --benchmark_min_time among them overrides (the later of two flags wins).
std::vector<char*> benchmarkArguments(int argc, char** argv) {
    std::vector<char*> arguments(argv, argv + argc);
    arguments.insert(arguments.begin() + 1, const_cast<char*>(kDefaultMinTime));
    arguments.push_back(nullptr);
    return arguments;
}

// Case by case, every library in turn, so the console shows the libraries side by side.
void registerAll(Limits const& limits) {
    for (Shape shape : kShapes) {
        for (int segments : kOutlineSizes) {
            if (segments > limits.maxSegments) {
                continue;
            }
            registerOrxOutlineCase(shape, segments);
#ifdef ORX_BENCH_WITH_CGAL
            registerCgalOutlineCase(shape, segments);
#endif
#ifdef ORX_BENCH_WITH_BOOST
            registerBoostOutlineCase(shape, segments);
#endif
        }
    }
    for (int holes : kPlateSizes) {
        if (holes > limits.maxHoles) {
            continue;
        }
        registerOrxPlateCase(holes);
#ifdef ORX_BENCH_WITH_CGAL
        registerCgalPlateCase(holes);
#endif
#ifdef ORX_BENCH_WITH_BOOST
        registerBoostPlateCase(holes);
#endif
    }
}

}  // namespace

char const* shapeName(Shape shape) {
    switch (shape) {
        case Shape::circ:
            return "circ";
        case Shape::wavy:
            return "wavy";
        case Shape::scal:
            return "scal";
    }
    return "";
}

OutlinePair makePair(Shape shape, int segments) {
    switch (shape) {
        case Shape::circ:
            return circ(segments);
        case Shape::wavy:
            return wavy(segments);
        case Shape::scal:
            return scal(segments);
    }
    return {};
}

COrxPoint3d gridPoint(long k) {
    long const index = (k * kGridStride) % (kGridSide * kGridSide);
    double const step = 2 * kGridHalfWidth / (kGridSide - 1);
    return COrxPoint3d(-kGridHalfWidth + step * static_cast<double>(index % kGridSide),
                       -kGridHalfWidth + step * static_cast<double>(index / kGridSide), 0);
}

COrxVertexArray plateCutter() {
    double const bulge = std::tan(ORX::kPi / (2 * kCutterSegments));
    COrxPoint3d const corner(0, 0, 0);
    return outline(
        kCutterSegments,
        [&](int i) { return ORX::polar(corner, angleOf(i, kCutterSegments), kCutterRadius); },
        [bulge](int) { return bulge; });
}

Region plateRegion(int holes) {
    return plateLoops(holes);
}

std::string benchName(char const* library, char const* operation, char const* input, int size) {
    return std::string(library) + "/" + operation + "/" + input + "/" + std::to_string(size);
}

}  // namespace orx_bench

int main(int argc, char** argv) {
    orx_bench::Limits const limits = orx_bench::takeLimits(argc, argv);
    orx_bench::registerAll(limits);
    std::vector<char*> arguments = orx_bench::benchmarkArguments(argc, argv);
    int count = static_cast<int>(arguments.size()) - 1;
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
