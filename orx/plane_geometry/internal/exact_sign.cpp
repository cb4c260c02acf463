#include "orx/plane_geometry/internal/exact_sign.h"

#include <cmath>

namespace ORX {
namespace internal {

namespace {

constexpr double kEpsilon = 1.1102230246251565e-16;  // 2^-53, half a unit in the last place
// 2^27 + 1: splits a double into two halves of 26 bits whose products are exact.
constexpr double kSplitter = 134217729.0;
// Above this magnitude splitting could overflow; such coordinates keep the double answer.
constexpr double kSplitLimit = 1e150;

// a + b = sum + error exactly.
void twoSum(double a, double b, double& sum, double& error) {
    sum = a + b;
    double const bVirtual = sum - a;
    double const aVirtual = sum - bVirtual;
    error = (a - aVirtual) + (b - bVirtual);
}

void split(double a, double& high, double& low) {
    double const c = kSplitter * a;
    high = c - (c - a);
    low = a - high;
}

// a * b = product + error exactly (Dekker).
void twoProduct(double a, double b, double& product, double& error) {
    product = a * b;
    double ah = 0.0, al = 0.0, bh = 0.0, bl = 0.0;
    split(a, ah, al);
    split(b, bh, bl);
    error = ((ah * bh - product) + ah * bl + al * bh) + al * bl;
}

// A sum of doubles kept without rounding: every added value is merged into the parts by
// exact two-sums, so the parts never lose a bit (at most 128 of them, enough for the tests
// here).
class Expansion {
public:
    void add(double value) {
        // Grows the expansion by one value; the parts that come out zero are dropped, so the
        // parts stay few (one sum has as many as its terms overlap) and each step is short.
        int kept = 0;
        for (int k = 0; k < m_count; ++k) {
            double sum = 0.0, error = 0.0;
            twoSum(m_parts[k], value, sum, error);
            if (error != 0.0) {
                m_parts[kept++] = error;
            }
            value = sum;
        }
        m_count = kept;
        if (value != 0.0 && m_count < kCapacity) {
            m_parts[m_count++] = value;
        }
    }
    // Adds a * b exactly.
    void addProduct(double a, double b) {
        double product = 0.0, error = 0.0;
        twoProduct(a, b, product, error);
        add(product);
        add(error);
    }
    // Adds factor * (a1 + a2) * (b1 + b2) exactly, with a1 + a2 and b1 + b2 exact
    // differences.
    void addScaledProduct(double factor, double const a[2], double const b[2]) {
        for (int i = 0; i < 2; ++i) {
            for (int j = 0; j < 2; ++j) {
                double product = 0.0, error = 0.0;
                twoProduct(a[i], b[j], product, error);
                addProduct(factor, product);
                addProduct(factor, error);
            }
        }
    }
    // The sign of the sum: that of its largest part, the last non-zero one.
    int sign() const {
        for (int k = m_count - 1; k >= 0; --k) {
            if (m_parts[k] != 0.0) {
                return m_parts[k] > 0.0 ? 1 : -1;
            }
        }
        return 0;
    }

private:
    static constexpr int kCapacity = 128;
    double m_parts[kCapacity] = {};
    int m_count = 0;
};

// b - a as two doubles whose sum is exact.
void exactDifference(double b, double a, double out[2]) {
    twoSum(b, -a, out[0], out[1]);
}

int signOf(double value) {
    return value > 0.0 ? 1 : (value < 0.0 ? -1 : 0);
}

bool splittable(double a, double b, double c, double d, double e, double f) {
    return std::fabs(a) < kSplitLimit && std::fabs(b) < kSplitLimit && std::fabs(c) < kSplitLimit &&
           std::fabs(d) < kSplitLimit && std::fabs(e) < kSplitLimit && std::fabs(f) < kSplitLimit;
}

}  // namespace

int orientationSign(double ax, double ay, double bx, double by, double cx, double cy) {
    double const left = (bx - ax) * (cy - ay);
    double const right = (by - ay) * (cx - ax);
    double const det = left - right;
    // The error of the double evaluation stays below (3 + 16 eps) eps (|left| + |right|).
    double const bound = (3.0 + 16.0 * kEpsilon) * kEpsilon * (std::fabs(left) + std::fabs(right));
    if (std::fabs(det) > bound || !splittable(ax, ay, bx, by, cx, cy)) {
        return signOf(det);
    }
    double dx[2], dy[2], qx[2], qy[2];
    exactDifference(bx, ax, dx);
    exactDifference(by, ay, dy);
    exactDifference(cx, ax, qx);
    exactDifference(cy, ay, qy);
    Expansion sum;
    sum.addScaledProduct(1.0, dx, qy);
    sum.addScaledProduct(-1.0, dy, qx);
    return sum.sign();
}

int circleSideSign(double sx, double sy, double ex, double ey, double px, double py, double kappa,
                   double gamma) {
    double const qx = px - sx, qy = py - sy, rx = px - ex, ry = py - ey;
    double const dx = ex - sx, dy = ey - sy;
    double const dot = qx * rx + qy * ry, cross = dx * qy - dy * qx;
    double const value = kappa * dot - gamma * cross;
    // A generous bound on the rounding of the differences, products and sums above.
    double const size = std::fabs(kappa) * (std::fabs(qx * rx) + std::fabs(qy * ry)) +
                        std::fabs(gamma) * (std::fabs(dx * qy) + std::fabs(dy * qx));
    if (std::fabs(value) > 16 * kEpsilon * size || !splittable(sx, sy, ex, ey, px, py)) {
        return signOf(value);
    }
    double q[2][2], r[2][2], d[2][2];
    exactDifference(px, sx, q[0]);
    exactDifference(py, sy, q[1]);
    exactDifference(px, ex, r[0]);
    exactDifference(py, ey, r[1]);
    exactDifference(ex, sx, d[0]);
    exactDifference(ey, sy, d[1]);
    Expansion sum;
    sum.addScaledProduct(kappa, q[0], r[0]);
    sum.addScaledProduct(kappa, q[1], r[1]);
    sum.addScaledProduct(-gamma, d[0], q[1]);
    sum.addScaledProduct(gamma, d[1], q[0]);
    return sum.sign();
}

}  // namespace internal
}  // namespace ORX
