// Section properties of regions: the ring against its closed form, and any plate with holes
// against its loops' own properties combined by the parallel-axis theorem, whatever the
// loops' orientations; and against the boolean difference that cuts the same holes.
#include "orx/regions/region_statics.h"

#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "orx/polyline/section_properties.h"
#include "region_measures.h"
#include "tests/support/shapes.h"

using namespace orx_test;

namespace {

struct Statics {
    bool ok = false;
    double area = 0, ix = 0, iy = 0, ixy = 0;
    COrxPoint3d c;
};

Statics ofRegion(Region const& r) {
    Statics s;
    s.ok = ORX::g_region_statics(r, s.area, s.c, s.ix, s.iy, s.ixy);
    return s;
}

Statics ofLoop(COrxVertexArray const& vl) {
    Statics s;
    s.ok = ORX::g_vl_statics(vl, s.area, s.c, s.ix, s.iy, s.ixy);
    return s;
}

// Outer loop minus holes from each loop's own properties: areas and first moments subtract,
// second moments move to the common centroid first.
Statics byParallelAxes(Region const& r) {
    Statics sum;
    double sx = 0, sy = 0;
    std::vector<Statics> parts;
    for (int k = 0; k < static_cast<int>(r.len()); ++k) {
        Statics s = ofLoop(r[k]);
        if (k > 0) {
            s.area = -s.area;
        }
        parts.push_back(s);
        sum.area += s.area;
        sx += s.area * s.c.x;
        sy += s.area * s.c.y;
    }
    sum.c = pt(sx / sum.area, sy / sum.area);
    for (Statics const& s : parts) {
        double const dx = s.c.x - sum.c.x, dy = s.c.y - sum.c.y;
        double const sign = s.area < 0 ? -1 : 1;
        sum.ix += sign * s.ix + s.area * dy * dy;
        sum.iy += sign * s.iy + s.area * dx * dx;
        sum.ixy += sign * s.ixy + s.area * dx * dy;
    }
    sum.ok = true;
    return sum;
}

void expectSame(Statics const& got, Statics const& want) {
    double const scale = want.ix + want.iy;
    ASSERT_TRUE(got.ok);
    EXPECT_NEAR(got.area, want.area, 1e-9 * want.area);
    EXPECT_NEAR(got.c.distanceTo(want.c), 0, 1e-9 * std::sqrt(want.area));
    EXPECT_NEAR(got.ix, want.ix, 1e-9 * scale);
    EXPECT_NEAR(got.iy, want.iy, 1e-9 * scale);
    EXPECT_NEAR(got.ixy, want.ixy, 1e-9 * scale);
}

TEST(RegionStaticsTest, RingMatchesItsClosedFormInEitherOrientation) {
    double const big = 5, small = 3, pi = ORX::kPi;
    Statics want;
    want.area = pi * (big * big - small * small);
    want.c = pt(1e6, 2e6);
    want.ix = want.iy = pi * (std::pow(big, 4) - std::pow(small, 4)) / 4;
    for (bool reverseHole : {false, true}) {
        for (bool reverseOuter : {false, true}) {
            COrxVertexArray outer = circle(want.c, big), hole = circle(want.c, small);
            Region const ring = region(
                {reverseOuter ? outer.reverse() : outer, reverseHole ? hole.reverse() : hole});
            expectSame(ofRegion(ring), want);
        }
    }
}

// An offset, turned plate with a round hole, a slot and a rounded rectangle cut out; the
// same region given by the boolean difference of the plate and the cut-outs.
TEST(RegionStaticsTest, PlateWithHolesIsItsOuterLoopMinusItsHoles) {
    COrxVertexArray plate = roundedRectangle(0, 0, 40, 25, 4);
    COrxVertexArray hole = circle(pt(30, 8), 3).reverse();
    COrxVertexArray cut = rotatedSquare(pt(10, 15), 4, 0.3);
    COrxVertexArray pocket = roundedRectangle(18, 15, 34, 21, 2);
    Region const r = region({plate, hole, cut, pocket});
    Statics const want = byParallelAxes(r);
    expectSame(ofRegion(r), want);
    COrxArrayTempl<COrxVertexArrayEx> withAttributes;
    for (int k = 0; k < static_cast<int>(r.len()); ++k) {
        withAttributes.append(COrxVertexArrayEx(r[k]));
    }
    Statics ex;
    ex.ok = ORX::g_region_statics(withAttributes, ex.area, ex.c, ex.ix, ex.iy, ex.ixy);
    expectSame(ex, want);

    Region whole = region({plate});
    for (COrxVertexArray const& h : {hole, cut, pocket}) {
        RegionList out;
        ASSERT_TRUE(ORX::g_region_diff(whole, region({h}), out));
        ASSERT_EQ(out.len(), 1u);
        whole = out[0];
    }
    EXPECT_EQ(whole.len(), 4u);
    expectSame(ofRegion(whole), want);
}

TEST(RegionStaticsTest, RegionsWithoutUsableLoopsFail) {
    COrxVertexArray open = polygon({pt(1, 1), pt(2, 1), pt(2, 2)}, false);
    for (Region const& r : {Region(), region({rectangle(0, 0, 4, 4), open}),
                            region({rectangle(0, 0, 4, 4), rectangle(0, 0, 4, 4)})}) {
        Statics s;
        s.area = 7;
        EXPECT_FALSE(ORX::g_region_statics(r, s.area, s.c, s.ix, s.iy, s.ixy));
        EXPECT_EQ(s.area, 7);
    }
    // One loop: the polyline's own properties.
    expectSame(ofRegion(region({circle(pt(1, 1), 2)})), ofLoop(circle(pt(1, 1), 2)));
}

}  // namespace
