// Outlines and regions for the boolean and region tests, and measures on the results (pt and
// polygon come from the polyline tests).
#ifndef ORX_TESTS_REGIONS_SHAPES_H
#define ORX_TESTS_REGIONS_SHAPES_H

#include <random>

#include "../polyline/shapes.h"
#include "orx/regions/regions.h"

namespace orx_test {

using Region = COrxArrayTempl<COrxVertexArray>;
using RegionList = COrxArrayTempl<Region>;

// Counter-clockwise for x0 < x1 and y0 < y1.
inline COrxVertexArray rectangle(double x0, double y0, double x1, double y1) {
    return polygon({pt(x0, y0), pt(x1, y0), pt(x1, y1), pt(x0, y1)});
}

// Two half circles, counter-clockwise, starting at the rightmost point.
inline COrxVertexArray circle(COrxPoint3d const& c, double r) {
    COrxVertexArray vl;
    vl.append(COrxVertex(ORX::polar(c, 0, r), ORX::polar(c, ORX::kPi, r), 1.0))
        .append(COrxVertex(ORX::polar(c, ORX::kPi, r), ORX::polar(c, 0, r), 1.0));
    return vl;
}

// Counter-clockwise rectangle with quarter-circle corners of radius r.
inline COrxVertexArray roundedRectangle(double x0, double y0, double x1, double y1, double r) {
    double const b = kQuarter;
    COrxVertexArray vl;
    vl.append(COrxVertex(pt(x0 + r, y0), pt(x1 - r, y0), 0.0))
        .append(COrxVertex(pt(x1 - r, y0), pt(x1, y0 + r), b))
        .append(COrxVertex(pt(x1, y0 + r), pt(x1, y1 - r), 0.0))
        .append(COrxVertex(pt(x1, y1 - r), pt(x1 - r, y1), b))
        .append(COrxVertex(pt(x1 - r, y1), pt(x0 + r, y1), 0.0))
        .append(COrxVertex(pt(x0 + r, y1), pt(x0, y1 - r), b))
        .append(COrxVertex(pt(x0, y1 - r), pt(x0, y0 + r), 0.0))
        .append(COrxVertex(pt(x0, y0 + r), pt(x0 + r, y0), b));
    return vl;
}

// Square of half side h about c, turned by angle.
inline COrxVertexArray rotatedSquare(COrxPoint3d const& c, double h, double angle) {
    COrxVertexArray vl = rectangle(c.x - h, c.y - h, c.x + h, c.y + h);
    return vl.rotate(angle, c);
}

inline Region region(std::initializer_list<COrxVertexArray> loops) {
    Region r;
    for (COrxVertexArray const& loop : loops) {
        r.append(loop);
    }
    return r;
}

// Signed area of all loops of a (possibly multi-loop) polyline.
inline double area(COrxVertexArray const& vl) {
    return ORX::g_vl_area(vl);
}

// Area of a region whose loops all run counter-clockwise: outer minus holes.
inline double area(Region const& r) {
    double total = 0;
    for (unsigned long k = 0; k < r.len(); ++k) {
        double const a = std::fabs(ORX::g_vl_area(r[static_cast<int>(k)]));
        total += k == 0 ? a : -a;
    }
    return total;
}

inline double area(RegionList const& list) {
    double total = 0;
    for (unsigned long k = 0; k < list.len(); ++k) {
        total += area(list[static_cast<int>(k)]);
    }
    return total;
}

// The number of loops a chain splits into; -1 when one of them does not close.
inline int closedLoops(COrxVertexArray const& vl) {
    Region const loops = ORX::g_vl_vll(vl);
    for (unsigned long k = 0; k < loops.len(); ++k) {
        if (!loops[static_cast<int>(k)].isClosed()) {
            return -1;
        }
    }
    return static_cast<int>(loops.len());
}

// Inside by parity over all loops of a multi-loop polyline (holes included).
inline bool insideLoops(COrxVertexArray const& vl, COrxPoint3d const& p) {
    Region const loops = ORX::g_vl_vll(vl);
    int count = 0;
    for (unsigned long k = 0; k < loops.len(); ++k) {
        count += ORX::g_vl_pt_inside(loops[static_cast<int>(k)], p, false) ? 1 : 0;
    }
    return count % 2 == 1;
}

inline bool insideAny(RegionList const& list, COrxPoint3d const& p) {
    for (unsigned long k = 0; k < list.len(); ++k) {
        if (ORX::g_vll_pt_inside(list[static_cast<int>(k)], p) == 1) {
            return true;
        }
    }
    return false;
}

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

#endif  // ORX_TESTS_REGIONS_SHAPES_H
