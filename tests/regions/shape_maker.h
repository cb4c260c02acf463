// Random operands for the boolean and region tests, seeded and reproducible.
#ifndef ORX_TESTS_REGIONS_SHAPE_MAKER_H
#define ORX_TESTS_REGIONS_SHAPE_MAKER_H

#include <cmath>
#include <random>

#include "orx/geom/functions.h"
#include "tests/support/shapes.h"

namespace orx_test {

// Random operands in general position.
class ShapeMaker {
public:
    explicit ShapeMaker(unsigned seed) : m_engine(seed) {}

    double uniform(double lo, double hi) {
        return std::uniform_real_distribution<double>(lo, hi)(m_engine);
    }
    int pick(int n) { return std::uniform_int_distribution<int>(0, n - 1)(m_engine); }

    // Overlapping circles, rounded rectangles, rotated squares and shapes whose arcs cross
    // the others' arcs, all counter-clockwise, near the origin.
    COrxVertexArray outline() {
        COrxPoint3d const c(uniform(-2, 2), uniform(-2, 2), 0);
        switch (pick(4)) {
            case 0:
                return circle(c, uniform(0.8, 3));
            case 1: {
                double const w = uniform(1.5, 5), h = uniform(1.5, 5);
                return roundedRectangle(c.x - w / 2, c.y - h / 2, c.x + w / 2, c.y + h / 2,
                                        uniform(0.1, 0.7));
            }
            case 2:
                return rotatedSquare(c, uniform(0.7, 2.5), uniform(0, ORX::kHalfPi));
            default:
                return bulgedTriangle(c);
        }
    }

    // Shapes on a coarse integer grid: they share edges, corners and tangent points, so the
    // boundary rules and the ray restarts get exercised.
    COrxVertexArray onGrid() {
        int const x = pick(5), y = pick(5);
        if (pick(3) == 0) {
            return circle(pt(x, y), 1 + pick(2));
        }
        return rectangle(x, y, x + 1 + pick(3), y + 1 + pick(3));
    }

    // A closed outline of n short arcs whose radius wobbles about r (many segments, many
    // crossings with another such outline).
    COrxVertexArray wavy(int n, double r) {
        COrxPoint3d const c(uniform(-1, 1), uniform(-1, 1), 0);
        double const phase = uniform(0, ORX::kTwoPi);
        COrxVertexArray vl;
        for (int k = 0; k < n; ++k) {
            double const a0 = ORX::kTwoPi * k / n, a1 = ORX::kTwoPi * (k + 1) / n;
            double const r0 = r * (1 + 0.05 * std::sin(9 * a0 + phase));
            double const r1 = r * (1 + 0.05 * std::sin(9 * a1 + phase));
            vl.append(
                COrxVertex(ORX::polar(c, a0, r0), ORX::polar(c, a1, r1), k % 2 ? 0.05 : -0.05));
        }
        return vl;
    }

    // A region: an outline with up to two circular holes well inside it.
    Region withHoles() {
        COrxPoint3d const c(uniform(-2, 2), uniform(-2, 2), 0);
        double const h = uniform(2, 3.5);
        Region r = region({rectangle(c.x - h, c.y - h, c.x + h, c.y + h)});
        if (pick(2) == 0) {
            r[0] = circle(c, h * 1.2);
        }
        int const holes = pick(3);
        for (int k = 0; k < holes; ++k) {
            double const side = k == 0 ? -1 : 1;  // one hole on each side of the centre
            COrxPoint3d const hc(c.x + side * h * 0.45, c.y + uniform(-0.3, 0.3) * h, 0);
            r.append(circle(hc, uniform(0.15, 0.35) * h));
        }
        return r;
    }

private:
    // A triangle whose edges bulge outwards.
    COrxVertexArray bulgedTriangle(COrxPoint3d const& c) {
        double const r = uniform(1, 3), turn = uniform(0, ORX::kTwoPi);
        COrxVertexArray vl;
        for (int k = 0; k < 3; ++k) {
            COrxPoint3d const p = ORX::polar(c, turn + k * ORX::kTwoPi / 3, r);
            COrxPoint3d const q = ORX::polar(c, turn + (k + 1) * ORX::kTwoPi / 3, r);
            vl.append(COrxVertex(p, q, uniform(0.05, 0.5)));
        }
        return vl;
    }

    std::mt19937 m_engine;
};

}  // namespace orx_test

#endif  // ORX_TESTS_REGIONS_SHAPE_MAKER_H
