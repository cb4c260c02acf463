// Seeded operand pairs for the metamorphic tests of the boolean and region operations: the
// inputs construction drawings bring, each reproducible from its seed alone.
#ifndef ORX_TESTS_REGIONS_METAMORPHIC_CASES_H
#define ORX_TESTS_REGIONS_METAMORPHIC_CASES_H

#include <random>
#include <string>

#include "tests/support/shapes.h"

namespace orx_test {

struct OperandPair {
    std::string kind;
    Region a;  // polyline cases: one loop each
    Region b;
    bool regions = false;  // compare with the region operations (else g_vl_bool)
};

// The shifts of the near-coincident cases: a copy moved or turned by this much.
double const kNearShifts[] = {1e-3, 1e-4, 1e-5, 1e-6, 1e-8};

class CaseMaker {
public:
    explicit CaseMaker(unsigned seed) : m_engine(seed), m_seed(seed) {}

    OperandPair make() {
        switch (m_seed % 10) {
            case 2:
                return moved();
            case 3:
                return turned();
            case 4:
                return onGrid();
            case 5:
                return translatedCopy();
            case 6:
                return mirroredCopy();
            case 7:
                return holes(false);
            case 8:
                return holes(true);
            case 9:
                if (m_seed % 100 == 9) {
                    return fine();
                }
                [[fallthrough]];
            default:
                return general();
        }
    }

private:
    double uniform(double lo, double hi) {
        return std::uniform_real_distribution<double>(lo, hi)(m_engine);
    }
    int pick(int n) { return std::uniform_int_distribution<int>(0, n - 1)(m_engine); }
    double nearShift() { return kNearShifts[pick(5)]; }

    // A star-shaped outline about c: corners at rising angles, each edge a straight segment
    // or an arc of small bulge, counter-clockwise; simple by construction.
    COrxVertexArray star(COrxPoint3d const& c, double size, int corners) {
        double const turn = uniform(0, ORX::kTwoPi);
        COrxPoint3dArray ring;
        for (int k = 0; k < corners; ++k) {
            double const a = turn + ORX::kTwoPi * (k + uniform(-0.3, 0.3)) / corners;
            ring.append(ORX::polar(c, a, size * uniform(0.6, 1.0)));
        }
        COrxVertexArray vl;
        for (int k = 0; k < corners; ++k) {
            double const bulge = pick(3) == 0 ? 0.0 : uniform(-0.15, 0.25);
            vl.append(COrxVertex(ring[k], ring[(k + 1) % corners], bulge));
        }
        return vl;
    }

    COrxVertexArray anyOutline(COrxPoint3d const& c) {
        switch (pick(3)) {
            case 0:
                return circle(c, uniform(0.8, 2.5));
            case 1:
                return rotatedSquare(c, uniform(0.7, 2), uniform(0, ORX::kHalfPi));
            default:
                return star(c, uniform(1, 3), 3 + pick(10));
        }
    }

    COrxPoint3d nearOrigin(double spread) {
        return pt(uniform(-spread, spread), uniform(-spread, spread));
    }

    OperandPair general() {
        return {"general", region({anyOutline(nearOrigin(1.5))}),
                region({anyOutline(nearOrigin(1.5))})};
    }

    OperandPair moved() {
        COrxVertexArray const a = anyOutline(nearOrigin(1));
        double const d = nearShift(), direction = uniform(0, ORX::kTwoPi);
        COrxVertexArray b = a;
        b.move(ORX::polar(direction, d));
        return {"moved by " + std::to_string(d), region({a}), region({b})};
    }

    OperandPair turned() {
        COrxVertexArray const a = anyOutline(nearOrigin(1));
        double const d = nearShift();
        COrxVertexArray b = a;
        b.rotate(pick(2) ? d : -d, nearOrigin(2));
        return {"turned by " + std::to_string(d), region({a}), region({b})};
    }

    // Rectangles and circles on an integer grid: shared corners, edges and arcs.
    COrxVertexArray gridShape() {
        int const x = pick(4), y = pick(4);
        if (pick(3) == 0) {
            return circle(pt(x, y), 1 + pick(2));
        }
        return rectangle(x, y, x + 1 + pick(3), y + 1 + pick(3));
    }

    OperandPair onGrid() { return {"on grid", region({gridShape()}), region({gridShape()})}; }

    OperandPair translatedCopy() {
        COrxVertexArray const a = pick(2) ? gridShape() : roundedRectangle(0, 0, 3, 2, 0.5);
        COrxVertexArray b = a;
        b.move(COrxVector3d(pick(3), pick(3) - 1, 0));
        return {"translated copy", region({a}), region({b})};
    }

    // Mirrored at a vertical line through one of its corners: shares what lies on the line.
    OperandPair mirroredCopy() {
        COrxVertexArray const a = star(nearOrigin(1), 2, 3 + pick(6));
        COrxVertexArray b = a;
        b.mirror(ORX::kHalfPi, a[pick(a.len())].startPoint());
        b.revert();  // mirroring turns the sense; the operands run the same way
        return {"mirrored copy", region({a}), region({b})};
    }

    // A plate with round and star-shaped holes, against another or against its near copy.
    Region plate(COrxPoint3d const& c) {
        double const h = uniform(2, 3);
        Region r = region({rectangle(c.x - h, c.y - h, c.x + h, c.y + h)});
        int const count = pick(4);
        for (int k = 0; k < count; ++k) {
            COrxPoint3d const hc(c.x + (k % 2 ? 0.5 : -0.5) * h, c.y + (k / 2 ? 0.5 : -0.5) * h, 0);
            COrxVertexArray hole = pick(2) ? circle(hc, uniform(0.1, 0.4) * h)
                                           : star(hc, uniform(0.15, 0.4) * h, 3 + pick(5));
            r.append(hole);
        }
        return r;
    }

    OperandPair holes(bool nearCopy) {
        Region const a = plate(nearOrigin(1));
        if (!nearCopy) {
            return {"plates", a, plate(nearOrigin(2)), true};
        }
        Region b = a;
        COrxVector3d const shift = ORX::polar(uniform(0, ORX::kTwoPi), nearShift());
        for (unsigned long k = 0; k < b.len(); ++k) {
            b[static_cast<int>(k)].move(shift);
        }
        return {"plate and its moved copy", a, b, true};
    }

    // A polygon of 20,000 short straight segments along a wavy circle, against an outline
    // with arcs or against its own copy turned a little.
    OperandPair fine() {
        int const n = 20000;
        COrxPoint3d const c = nearOrigin(0.5);
        COrxPoint3dArray corners;
        for (int k = 0; k < n; ++k) {
            double const a = ORX::kTwoPi * k / n;
            corners.append(ORX::polar(c, a, 2 * (1 + 0.05 * std::sin(7 * a))));
        }
        COrxVertexArray a;
        a.fromPoints(corners, true);
        if (pick(2)) {
            return {"fine polygon", region({a}), region({anyOutline(nearOrigin(1))})};
        }
        COrxVertexArray b = a;
        b.rotate(1e-4, c);
        return {"fine polygon and its turned copy", region({a}), region({b})};
    }

    std::mt19937 m_engine;
    unsigned m_seed;
};

}  // namespace orx_test

#endif  // ORX_TESTS_REGIONS_METAMORPHIC_CASES_H
