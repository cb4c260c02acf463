// Fuzz target: the intersection functions of circles, arcs, lines and bulge segments on
// decoded operands, the pairs often sharing ends, centres or radii. Every point found lies
// on both operands within the tolerance the functions work to (where the operands are of a
// size at which rounding stays far below it); NaN and infinite operands find nothing.
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "orx/geom/functions.h"
#include "orx/plane_geometry/bulge_segment.h"
#include "orx/plane_geometry/intersections.h"
#include "orx/plane_geometry/points.h"
#include "support/checks.h"
#include "support/fuzz_input.h"
#include "support/shapes.h"

namespace {

// The checks allow twice the point tolerance: a touching point lies within it of both.
double allowance() {
    return 2 * COrxPoint3d::tol;
}

// Operands whose coordinates and radii stay below this are measured to the tolerance.
constexpr double kMeasurable = 1e6;

bool measurable(double v) {
    return std::fabs(v) <= kMeasurable;
}

bool measurable(COrxPoint3d const& p) {
    return measurable(p.x) && measurable(p.y) && measurable(p.z);
}

struct Circle {
    COrxPoint3d c;
    double r;
    double a0;  // the arc, counter-clockwise from a0 to a1
    double a1;
};

double decodeAngle(FuzzInput& in) {
    return in.flag() ? in.below(9) * 3.14159265358979323846 / 4 : in.number();
}

Circle decodeCircle(FuzzInput& in, Circle const* first) {
    Circle k;
    k.c = first != nullptr && in.flag() ? first->c : decodePoint(in);
    k.r = first != nullptr && in.flag() ? first->r : in.number();
    k.a0 = decodeAngle(in);
    k.a1 = decodeAngle(in);
    return k;
}

bool measurable(Circle const& k) {
    return measurable(k.c) && measurable(k.r);
}

double fromCircle(Circle const& k, COrxPoint3d const& p) {
    return std::fabs(ORX::g_dist2d(k.c, p) - k.r);
}

// The plan distance from p to the infinite line through a and b.
double fromLine(COrxPoint3d const& a, COrxPoint3d const& b, COrxPoint3d const& p) {
    double const dx = b.x - a.x;
    double const dy = b.y - a.y;
    return std::fabs(dx * (p.y - a.y) - dy * (p.x - a.x)) / std::hypot(dx, dy);
}

void checkFound(COrxPoint3dArray const& pts, bool result) {
    fuzzCheck(result == !pts.isEmpty(), "true exactly when points are found");
    for (int i = 0; i < pts.len(); ++i) {
        fuzzCheck(isFinite(pts[i]), "intersection points are finite");
    }
}

void circles(FuzzInput& in) {
    Circle const a = decodeCircle(in, nullptr);
    Circle const b = decodeCircle(in, &a);
    COrxPoint3dArray pts;
    bool const found = ORX::g_cci(pts, a.c, a.r, b.c, b.r);
    checkFound(pts, found);
    if (measurable(a) && measurable(b) && a.r >= 0 && b.r >= 0) {
        for (int i = 0; i < pts.len(); ++i) {
            fuzzCheck(fromCircle(a, pts[i]) <= allowance() && fromCircle(b, pts[i]) <= allowance(),
                      "g_cci: the points lie on both circles");
        }
    }
    checkFound(pts, ORX::g_aai(pts, a.c, a.r, a.a0, a.a1, b.c, b.r, b.a0, b.a1));
    if (measurable(a) && measurable(b)) {
        for (int i = 0; i < pts.len(); ++i) {
            fuzzCheck(fromCircle(a, pts[i]) <= allowance() && fromCircle(b, pts[i]) <= allowance(),
                      "g_aai: the points lie on both arcs");
        }
    }
    ORX::g_cai(pts, a.c, a.r, b.c, b.r, b.a0, b.a1);
    fuzzCheck(pts.len() <= 2, "g_cai: at most two points");
}

void circleAndLine(FuzzInput& in) {
    Circle const k = decodeCircle(in, nullptr);
    COrxPoint3d const p1 = in.flag() ? ORX::polar(k.c, k.a0, k.r) : decodePoint(in);
    COrxPoint3d const p2 = decodePoint(in);
    bool const measured = measurable(k) && measurable(p1) && measurable(p2) &&
                          ORX::g_dist2d(p1, p2) > COrxPoint3d::tol;
    COrxPoint3dArray pts;
    checkFound(pts, ORX::g_cli0(pts, k.c, k.r, p1, p2));
    fuzzCheck(pts.len() <= 2, "g_cli0: at most two points");
    for (int i = 0; measured && i < pts.len(); ++i) {
        fuzzCheck(fromCircle(k, pts[i]) <= allowance() && fromLine(p1, p2, pts[i]) <= allowance(),
                  "g_cli0: the points lie on the circle and the line");
    }
    COrxPoint3dArray onSegment;
    bool const found = ORX::g_cli(onSegment, k.c, k.r, p1, p2);
    fuzzCheck(!found || onSegment.len() <= pts.len(), "g_cli keeps some of g_cli0's points");
    checkFound(pts, ORX::g_ali(pts, k.c, k.r, k.a0, k.a1, p1, p2));
    double const lot = ORX::g_lot(p1, p2, k.c);
    fuzzCheck(!std::isfinite(lot) || (lot >= 0.0 && lot < 2 * 3.14159265358979323846),
              "g_lot lies in [0, 2pi)");
}

void bulgeSegments(FuzzInput& in) {
    COrxVertex const a = decodeSegment(in);
    COrxVertex b = decodeSegment(in);
    switch (in.below(4)) {  // often from the first: reversed, or sharing an end
        case 0:
            b.set(a.endPoint(), a.startPoint(), in.flag() ? -a.bulge() : b.bulge());
            break;
        case 1:
            b.set(a.endPoint(), b.endPoint(), b.bulge());
            break;
        default:
            break;
    }
    bool const extended = in.below(4) == 0;
    COrxPoint3dArray pts;
    bool const found = ORX::g_bulg_int(pts, a.startPoint(), a.endPoint(), a.bulge(), b.startPoint(),
                                       b.endPoint(), b.bulge(), extended);
    checkFound(pts, found);
    COrxVertexArray both;
    both.append(a).append(b);
    if (extended || !isFinite(both) || !isModerate(both) || !measurable(a.startPoint()) ||
        !measurable(a.endPoint()) || !measurable(b.startPoint()) || !measurable(b.endPoint())) {
        return;
    }
    for (int i = 0; i < pts.len(); ++i) {
        double const da = ORX::g_bulg_pt_dist(a.startPoint(), a.endPoint(), a.bulge(), pts[i]);
        double const db = ORX::g_bulg_pt_dist(b.startPoint(), b.endPoint(), b.bulge(), pts[i]);
        if (!(da <= allowance() && db <= allowance())) {
            showOperand("a", both);
            showPoint("point", pts[i]);
        }
        fuzzCheck(da <= allowance() && db <= allowance(),
                  "g_bulg_int: the points lie on both segments");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    FuzzInput in(data, size);
    switch (in.below(3)) {
        case 0:
            circles(in);
            break;
        case 1:
            circleAndLine(in);
            break;
        default:
            bulgeSegments(in);
            break;
    }
    return 0;
}
