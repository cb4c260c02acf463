// The inputs of the benchmarks: pairs of closed outlines of N segments (R = 100, vertex i at
// the angle t = 2 pi i / N, the bulge belonging to the segment from vertex i to i + 1) and a
// square plate with round holes.
//   circ: two circles of arcs, the second moved by 60 and turned by 0.37 of a segment: two
//         crossings;
//   wavy: a circle whose radius waves N/10 times, against the same turned by 5.5 segments:
//         about N/5 crossings;
//   scal: a circle of arcs bulging out and in by turns, against the same turned by half a
//         segment: N crossings, one in the second half of every segment;
//   plate: a 1,000 x 1,000 square with n holes of radius 2 (two half arcs each) on a grid.
#ifndef ORX_BENCH_BENCH_SHAPES_H
#define ORX_BENCH_BENCH_SHAPES_H

#include <cmath>
#include <vector>

#include "orx/orx.h"

namespace orx_bench {

constexpr double kRadius = 100.0;

using Region = COrxArrayTempl<COrxVertexArray>;

struct OutlinePair {
    COrxVertexArray a;
    COrxVertexArray b;
};

// The closed outline through the corners, with the bulge of each segment from bulgeOf(i).
template <class Corner, class Bulge>
COrxVertexArray outline(int n, Corner cornerOf, Bulge bulgeOf) {
    COrxVertexArray vl;
    for (int i = 0; i < n; ++i) {
        vl.append(COrxVertex(cornerOf(i), cornerOf((i + 1) % n), bulgeOf(i)));
    }
    return vl;
}

inline double angleOf(double i, int n) {
    return ORX::kTwoPi * i / n;
}

inline OutlinePair circ(int n) {
    double const bulge = std::tan(ORX::kPi / (2 * n));
    auto const flat = [bulge](int) { return bulge; };
    COrxPoint3d const origin(0, 0, 0), moved(60, 0, 0);
    return {outline(n, [&](int i) { return ORX::polar(origin, angleOf(i, n), kRadius); }, flat),
            outline(n, [&](int i) { return ORX::polar(moved, angleOf(i + 0.37, n), kRadius); },
                    flat)};
}

inline OutlinePair wavy(int n) {
    int const waves = n / 10;
    double const amplitude = 0.25 * ORX::kTwoPi * kRadius / waves;
    auto const radius = [&](int i) {
        return kRadius + amplitude * std::sin(ORX::kTwoPi * waves * i / n);
    };
    auto const bulge = [](int) { return 0.1; };
    COrxPoint3d const origin(0, 0, 0);
    return {outline(n, [&](int i) { return ORX::polar(origin, angleOf(i, n), radius(i)); }, bulge),
            outline(n, [&](int i) { return ORX::polar(origin, angleOf(i + 5.5, n), radius(i)); },
                    bulge)};
}

inline OutlinePair scal(int n) {
    auto const bulge = [](int i) { return i % 2 == 0 ? 0.2 : -0.2; };
    COrxPoint3d const origin(0, 0, 0);
    return {outline(n, [&](int i) { return ORX::polar(origin, angleOf(i, n), kRadius); }, bulge),
            outline(n, [&](int i) { return ORX::polar(origin, angleOf(i + 0.5, n), kRadius); },
                    bulge)};
}

// A circle of radius r about c as two counter-clockwise half arcs.
inline COrxVertexArray roundHole(COrxPoint3d const& c, double r) {
    COrxVertexArray vl;
    vl.append(COrxVertex(ORX::polar(c, 0, r), ORX::polar(c, ORX::kPi, r), 1.0))
        .append(COrxVertex(ORX::polar(c, ORX::kPi, r), ORX::polar(c, 0, r), 1.0));
    return vl;
}

// The plate's outline first, then its holes, as loose loops (not yet a region).
inline Region plateLoops(int holes) {
    Region loops;
    COrxPoint3dArray corners;
    corners.append(COrxPoint3d(0, 0, 0))
        .append(COrxPoint3d(1000, 0, 0))
        .append(COrxPoint3d(1000, 1000, 0))
        .append(COrxPoint3d(0, 1000, 0));
    COrxVertexArray square;
    loops.append(square.fromPoints(corners, true));
    int const side = static_cast<int>(std::ceil(std::sqrt(static_cast<double>(holes))));
    double const step = 1000.0 / side;
    for (int k = 0; k < holes; ++k) {
        COrxPoint3d const c((k % side + 0.5) * step, (k / side + 0.5) * step, 0);
        loops.append(roundHole(c, 2));
    }
    return loops;
}

}  // namespace orx_bench

#endif  // ORX_BENCH_BENCH_SHAPES_H
