// Section properties of closed bulge polylines against closed forms, against an independent
// quadrature of the circular segment, against the polygon formulas of g_pl_statics, and
// under translation and rotation.
#include "orx/polyline/section_properties.h"

#include <cmath>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "orx/geom/point_list_functions.h"
#include "orx/profiles/outline.h"
#include "tests/support/shapes.h"

namespace {

using orx_test::polygon;
using orx_test::pt;
double const kPi = ORX::kPi;

struct Statics {
    bool ok = false;
    double area = 0, ix = 0, iy = 0, ixy = 0;
    COrxPoint3d centroid;
};

Statics statics(COrxVertexArray const& vl) {
    Statics s;
    s.ok = ORX::g_vl_statics(vl, s.area, s.centroid, s.ix, s.iy, s.ixy);
    return s;
}

// The expected values, each within 1e-9 relative to its own size (the product moment to
// the size of the other two); the centroid within 1e-9 of the section's size.
::testing::AssertionResult matches(Statics const& s, double area, COrxPoint3d const& c, double ix,
                                   double iy, double ixy) {
    double const size = std::sqrt(area);
    auto near = [](double got, double want, double scale) {
        return std::fabs(got - want) <= 1e-9 * scale;
    };
    if (!s.ok || !near(s.area, area, area) || !near(s.ix, ix, ix) || !near(s.iy, iy, iy) ||
        !near(s.ixy, ixy, ix + iy) || !near(s.centroid.x, c.x, size) ||
        !near(s.centroid.y, c.y, size)) {
        return ::testing::AssertionFailure()
               << "ok " << s.ok << " area " << s.area << " centroid (" << s.centroid.x << ", "
               << s.centroid.y << ") ix " << s.ix << " iy " << s.iy << " ixy " << s.ixy;
    }
    return ::testing::AssertionSuccess();
}

COrxVertexArray circle(double r, double bulge) {
    // Two arcs of one circle about the origin, split by a chord at 2 atan(bulge) * 2.
    double const theta = 4 * std::atan(bulge);
    COrxPoint3d const a = pt(r, 0), b = pt(r * std::cos(theta), r * std::sin(theta));
    COrxVertexArray vl(COrxVertex(a, b, bulge));
    return vl.append(a, 1 / bulge);
}

// The I-section (flange width b, height h, flange thickness tf, web thickness tw) as one
// outline, centred on the origin.
COrxVertexArray iSection(double b, double h, double tf, double tw) {
    double const x = b / 2, y = h / 2, w = tw / 2, f = y - tf;
    return polygon({pt(-x, -y), pt(x, -y), pt(x, -f), pt(w, -f), pt(w, f), pt(x, f), pt(x, y),
                    pt(-x, y), pt(-x, f), pt(-w, f), pt(-w, -f), pt(-x, -f)});
}

TEST(SectionPropertiesTest, ClosedFormsOfStandardSections) {
    double const r = 3;
    // Rectangle 4 x 2 from (1, 1).
    EXPECT_TRUE(matches(statics(polygon({pt(1, 1), pt(5, 1), pt(5, 3), pt(1, 3)})), 8, pt(3, 2),
                        4 * 8.0 / 12, 2 * 64.0 / 12, 0));
    // Circle as two half circles and as arcs split anywhere (flat, middling and near full).
    for (double bulge : {1.0, 1e-7, 0.2, std::tan(0.25), 0.9}) {
        SCOPED_TRACE(bulge);
        EXPECT_TRUE(matches(statics(circle(r, bulge)), kPi * r * r, pt(0, 0),
                            kPi * r * r * r * r / 4, kPi * r * r * r * r / 4, 0));
    }
    // Half disc above its chord: centroid 4r / 3pi up, ix = (pi/8 - 8/(9 pi)) r^4.
    COrxVertexArray half(COrxVertex(pt(r, 0), pt(-r, 0), 1.0));
    half.append(pt(r, 0), 0.0);
    double const r4 = r * r * r * r;
    EXPECT_TRUE(matches(statics(half), kPi * r * r / 2, pt(0, 4 * r / (3 * kPi)),
                        (kPi / 8 - 8 / (9 * kPi)) * r4, kPi * r4 / 8, 0));
    // I-section 200 x 300, flanges 15, web 10.
    double const b = 200, h = 300, tf = 15, tw = 10, hw = h - 2 * tf;
    EXPECT_TRUE(matches(statics(iSection(b, h, tf, tw)), 2 * b * tf + hw * tw, pt(0, 0),
                        (b * h * h * h - (b - tw) * hw * hw * hw) / 12,
                        (2 * tf * b * b * b + hw * tw * tw * tw) / 12, 0));
}

// The rounded rectangle b x h with corner radius c (profile code 27): the rectangle minus
// four corner pieces, each the c x c square minus the quarter disc, integrated on their own.
TEST(SectionPropertiesTest, RoundedRectangleIsTheRectangleMinusItsCorners) {
    double const b = 10, h = 6, c = 1.5;
    COrxArrayTempl<double> dims;
    dims.append(b).append(h).append(c);
    COrxVertexArray const vl = ORX::g_outline(27, COrxVector3d(), dims);
    auto cornerSecond = [c](double half) {  // integral of t^2 over the corner at t = half
        double const t0 = half - c;
        double const square = c * ((t0 + c) * (t0 + c) * (t0 + c) - t0 * t0 * t0) / 3;
        double const quarter =
            t0 * t0 * kPi * c * c / 4 + 2 * t0 * c * c * c / 3 + kPi * c * c * c * c / 16;
        return square - quarter;
    };
    double const area = b * h - (4 - kPi) * c * c;
    EXPECT_TRUE(matches(statics(vl), area, pt(b / 2, h / 2),
                        b * h * h * h / 12 - 4 * cornerSecond(h / 2),
                        h * b * b * b / 12 - 4 * cornerSecond(b / 2), 0));
}

// The circular segment between a chord of half length 1 and its arc, integrated
// independently by Gauss-Legendre quadrature over the angle phi (v = r sin phi), where the
// height above the chord r (cos phi - cos a) is taken as a product of sines so that flat
// arcs keep their digits.
Statics segmentByQuadrature(double bulge) {
    double const a = 2 * std::atan(bulge), r = 1 / std::sin(a);
    double const x[] = {0.0, 0.5384693101056831, -0.5384693101056831, 0.9061798459386640,
                        -0.9061798459386640};
    double const w[] = {0.5688888888888889, 0.4786286704993665, 0.4786286704993665,
                        0.2369268850561891, 0.2369268850561891};
    int const pieces = 32;
    double area = 0, first = 0, alongV = 0, acrossW = 0;
    for (int p = 0; p < pieces; ++p) {
        double const lo = -a + 2 * a * p / pieces, step = 2 * a / pieces;
        for (int k = 0; k < 5; ++k) {
            double const phi = lo + step * (x[k] + 1) / 2;
            double const height = 2 * r * std::sin((a + phi) / 2) * std::sin((a - phi) / 2);
            double const dv = r * std::cos(phi) * w[k] * step / 2;
            double const v = r * std::sin(phi);
            area += height * dv;
            first += height * height / 2 * dv;
            alongV += v * v * height * dv;
            acrossW += height * height * height / 3 * dv;
        }
    }
    Statics s;
    s.ok = true;
    s.area = area;
    s.centroid = pt(0, first / area);
    s.iy = alongV;
    s.ix = acrossW - area * s.centroid.y * s.centroid.y;
    return s;
}

// A chord from (1, 0) to (-1, 0) closed by its arc above: from a flat arc of 1e-9 up to the
// half circle, across the switch between series and closed forms at a half angle of 1
// (bulge tan 0.5), in both directions of travel.
TEST(SectionPropertiesTest, CircularSegmentsAgreeWithQuadrature) {
    for (double bulge : {1e-9, 1e-6, 1e-3, 0.1, 0.5, 0.546, std::tan(0.5), 0.547, 0.8, 1.0}) {
        SCOPED_TRACE(bulge);
        Statics const want = segmentByQuadrature(bulge);
        COrxVertexArray vl(COrxVertex(pt(1, 0), pt(-1, 0), bulge));
        vl.append(pt(1, 0), 0.0);
        EXPECT_TRUE(matches(statics(vl), want.area, want.centroid, want.ix, want.iy, 0));
        EXPECT_TRUE(matches(statics(vl.reverse()), want.area, want.centroid, want.ix, want.iy, 0));
    }
}

// Random simple polygons (star-shaped around the origin).
COrxPoint3dArray randomStar(std::mt19937& random, int corners) {
    std::uniform_real_distribution<double> radius(2, 5), jitter(-0.3, 0.3);
    COrxPoint3dArray pts;
    for (int k = 0; k < corners; ++k) {
        double const t = 2 * kPi * (k + 0.5 + jitter(random)) / corners;
        double const rho = radius(random);
        pts.append(pt(rho * std::cos(t), rho * std::sin(t)));
    }
    return pts;
}

TEST(SectionPropertiesTest, PolygonsAgreeWithThePointListFormulas) {
    std::mt19937 random(1818);
    for (int round = 0; round < 200; ++round) {
        COrxPoint3dArray pts = randomStar(random, 3 + round % 12);
        if (round % 2) {
            pts = pts.reverse();
        }
        Statics want;
        ASSERT_TRUE(ORX::g_pl_statics(pts, want.area, want.centroid, want.ix, want.iy, want.ixy));
        COrxVertexArray vl;
        EXPECT_TRUE(matches(statics(vl.fromPoints(pts, true)), want.area, want.centroid, want.ix,
                            want.iy, want.ixy))
            << round;
    }
}

// Random outlines with arcs bulged in and out, moved 1e6 away and turned:
// the area and principal moments stay, the centroid moves with the outline, the principal
// axis turns with it.
TEST(SectionPropertiesTest, TranslationAndRotationInvariance) {
    std::mt19937 random(6);
    std::uniform_real_distribution<double> bulge(-0.25, 0.25), turn(-kPi, kPi);
    for (int round = 0; round < 100; ++round) {
        COrxVertexArray vl;
        vl.fromPoints(randomStar(random, 5 + round % 6), true);
        for (int k = 0; k < vl.len(); k += 2) {
            vl[k].set(vl[k].startPoint(), vl[k].endPoint(), bulge(random));
        }
        Statics const base = statics(vl);
        ASSERT_TRUE(base.ok);
        double i1, i2, angle;
        ORX::g_statics_principal(base.ix, base.iy, base.ixy, i1, i2, angle);
        COrxVector3d const far(1e6, -1e6, 0);
        COrxVertexArray moved(vl);
        EXPECT_TRUE(matches(statics(moved.move(far)), base.area, base.centroid + far, base.ix,
                            base.iy, base.ixy));
        double const w = turn(random);
        COrxPoint3d const pivot = pt(1e6, 2e6);
        COrxVertexArray turned(vl);
        Statics const t = statics(turned.rotate(w, pivot));
        COrxPoint3d const centre =
            COrxVertex(base.centroid, base.centroid, 0.0).rotate(w, pivot).startPoint();
        double t1, t2, tAngle;
        ORX::g_statics_principal(t.ix, t.iy, t.ixy, t1, t2, tAngle);
        EXPECT_NEAR(t.area, base.area, 1e-9 * base.area);
        EXPECT_NEAR(t.centroid.distanceTo(centre), 0, 1e-9 * std::sqrt(base.area));
        EXPECT_NEAR(t1, i1, 1e-9 * i1);
        EXPECT_NEAR(t2, i2, 1e-9 * i1);
        if (i1 - i2 > 1e-6 * i1) {  // a principal axis exists
            EXPECT_NEAR(std::remainder(tAngle - angle - w, kPi), 0, 1e-6);
        }
    }
}

TEST(SectionPropertiesTest, PrincipalMomentsGyrationAndModuli) {
    // A 6 x 2 rectangle turned by 30 degrees: its long axis is the first principal axis.
    double const b = 6, h = 2, w = kPi / 6;
    COrxVertexArray rect = polygon({pt(0, 0), pt(b, 0), pt(b, h), pt(0, h)});
    Statics const s = statics(rect.rotate(w, pt(0, 0)));
    double i1, i2, angle;
    ORX::g_statics_principal(s.ix, s.iy, s.ixy, i1, i2, angle);
    EXPECT_NEAR(i1, h * b * b * b / 12, 1e-12);
    EXPECT_NEAR(i2, b * h * h * h / 12, 1e-12);
    EXPECT_NEAR(angle, w + kPi / 2 - kPi, 1e-12);  // the axis about which i1 is taken: across
    ORX::g_statics_principal(1, 1, 0, i1, i2, angle);
    EXPECT_EQ(i1, 1);
    EXPECT_EQ(i2, 1);
    EXPECT_EQ(angle, 0);
    ORX::g_statics_principal(1, 2, -0.0, i1, i2, angle);
    EXPECT_EQ(angle, kPi / 2);

    double rx = -1, ry = -1;
    EXPECT_FALSE(ORX::g_statics_gyration(0, 1, 1, rx, ry));
    EXPECT_FALSE(ORX::g_statics_gyration(1, -1, 1, rx, ry));
    ASSERT_TRUE(ORX::g_statics_gyration(b * h, b * h * h * h / 12, h * b * b * b / 12, rx, ry));
    EXPECT_NEAR(rx, h / std::sqrt(12.0), 1e-15);
    EXPECT_NEAR(ry, b / std::sqrt(12.0), 1e-15);

    // Moduli of the half disc: the top fibre is nearer the centroid than the bottom one.
    double const r = 2, c = 4 * r / (3 * kPi);
    double top, bottom, right, left;
    ASSERT_TRUE(
        ORX::g_statics_moduli(pt(0, c), 1, 2, pt(-r, 0), pt(r, r), top, bottom, right, left));
    EXPECT_EQ(top, 1 / (r - c));
    EXPECT_EQ(bottom, 1 / c);
    EXPECT_EQ(right, 2 / r);
    EXPECT_EQ(left, 2 / r);
    EXPECT_FALSE(
        ORX::g_statics_moduli(pt(0, -1), 1, 2, pt(-r, 0), pt(r, r), top, bottom, right, left));
}

TEST(SectionPropertiesTest, OpenDegenerateOrNotFiniteOutlinesFail) {
    double const nan = std::nan("");
    COrxVertexArray notFinite = orx_test::unitSquare();
    notFinite[1].set(notFinite[1].startPoint(), notFinite[1].endPoint(), nan);
    std::vector<COrxVertexArray> const bad = {
        COrxVertexArray(),
        polygon({pt(0, 0), pt(1, 0), pt(1, 1)}, false),  // open
        polygon({pt(0, 0), pt(1, 0), pt(2, 0)}),         // no area
        notFinite,
        polygon({pt(0, 0), pt(1e200, 0), pt(1e200, 1e200)}),  // the moments overflow
    };
    for (COrxVertexArray const& vl : bad) {
        double area = 7, ix = 7, iy = 7, ixy = 7;
        COrxPoint3d c(7, 7, 7);
        EXPECT_FALSE(ORX::g_vl_statics(vl, area, c, ix, iy, ixy));
        EXPECT_EQ(area, 7);
        EXPECT_EQ(ix, 7);
        EXPECT_EQ(iy, 7);
        EXPECT_EQ(ixy, 7);
        EXPECT_EQ(c, pt(7, 7, 7));
    }
}

}  // namespace
