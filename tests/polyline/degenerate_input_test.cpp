// Degenerate input: every operation gives its documented result and never crashes or hangs
// (the sanitizer build runs these too).
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "tests/support/shapes.h"

using namespace orx_test;

namespace {

double const kNan = std::numeric_limits<double>::quiet_NaN();
double const kInf = std::numeric_limits<double>::infinity();

std::vector<COrxVertex> oddSegments() {
    return {
        COrxVertex(pt(1, 1), pt(1, 1), 0.0),                   // zero length, straight
        COrxVertex(pt(1, 1), pt(1, 1), 0.5),                   // zero length, "arc"
        COrxVertex(pt(0, 0), pt(1, 0), 1e-300),                // an arc, nearly straight
        COrxVertex(pt(0, 0), pt(1, 0), 1e300),                 // an arc, nearly a full circle
        COrxVertex(pt(kNan, 0), pt(1, 0), 0.0),                // NaN point
        COrxVertex(pt(0, 0), pt(1, kNan), 0.3),                // NaN point on an arc
        COrxVertex(pt(0, 0), pt(1, 0), kNan),                  // NaN bulge
        COrxVertex(pt(0, 0), pt(kInf, 0), 0.0),                // infinite point
        COrxVertex(pt(1e300, 1e300), pt(-1e300, 1e300), 0.5),  // huge coordinates
    };
}

// Runs every query and edit of the segment; the values do not matter here, only that each
// call returns.
void exercise(COrxVertex const& v, COrxVertex const& other) {
    COrxPoint3d c, p;
    double r = 0, a0 = 0, a1 = 0, d = 0;
    v.center(c);
    v.toArc(c, r, a0, a1);
    (void)v.bulgLen();
    (void)v.mid();
    (void)v.isPoint(pt(0.5, 0));
    (void)v.lotp(pt(0.5, 3));
    v.distAtPoint(d, pt(0.5, 0));
    v.pointAtDist(p, 0.5, true);
    v.pointAtDist(p, 1e9, false);
    (void)v.orientp(pt(0.5, 3));
    (void)v.wTan(pt(0.5, 0));
    (void)v.coLinear(other);
    COrxPoint3dArray pts;
    v.intersectWith(pts, other, 0);
    v.intersectWith(pts, other, COrxVertex::kSkipTangent | COrxVertex::kExtended);
    (void)v.intersectWithBulg0(other);
    v.intNear(other, pt(0, 0), p);
    (void)ORX::g_vx_split_n(v, 0.01);
    (void)ORX::g_bulg_split(v);
    (void)ORX::vx_start_dir(v);
    COrxVertex edited(v);
    edited.complement().offset(0.5).offset(pt(2, 2)).setEndPoint(pt(3, 3));
    edited.setStartPoint(pt(-1, 0)).mirror(0.3, pt(0, 0)).rotate(1.0, pt(1, 1));
    COrxVertex first(v), second(other);
    ORX::g_vx_trim(first, second);
}

}  // namespace

TEST(DegenerateInputTest, OddSegmentsAnswerEveryQuery) {
    std::vector<COrxVertex> const segments = oddSegments();
    COrxVertex const ordinary(pt(0, -1), pt(1, 1), 0.2);
    for (COrxVertex const& v : segments) {
        exercise(v, ordinary);
        exercise(ordinary, v);
        for (COrxVertex const& w : segments) {
            exercise(v, w);
        }
    }
}

TEST(DegenerateInputTest, DocumentedValuesOfOddSegments) {
    std::vector<COrxVertex> const s = oddSegments();
    EXPECT_FALSE(s[2].isStraight());  // the zero test is exact
    EXPECT_GT(s[2].radius(), 1e290);
    EXPECT_NEAR(s[2].bulgLen(), 1.0, 1e-12);
    EXPECT_EQ(s[2].mid(), pt(0.5, 0));
    EXPECT_TRUE(std::isfinite(s[3].radius()));
    EXPECT_TRUE(std::isnan(s[4].bulgLen()));
    COrxPoint3dArray pts;
    EXPECT_FALSE(s[4].intersectWith(pts, COrxVertex(pt(0.5, -1), pt(0.5, 1), 0.0), 0));
    EXPECT_EQ(s[0].bulgLen(), 0.0);
    EXPECT_EQ(s[1].bulgLen(), 0.0);
}

TEST(DegenerateInputTest, ArcsIndistinguishableFromTheirChordBehaveAsTheChord) {
    for (double bulge : {1e-9, 1e-300, 1e-310}) {
        COrxVertex const v(pt(0, 0), pt(10, 0), bulge);
        COrxPoint3d half;
        ASSERT_TRUE(v.pointAtDist(half, v.bulgLen() / 2, true)) << bulge;
        COrxPoint3dArray pts;
        ASSERT_TRUE(v.intersectWith(pts, COrxVertex(pt(5, -1), pt(5, 1), 0.0), 0)) << bulge;
        for (COrxPoint3d const& p : {v.mid(), half, pts[0]}) {
            EXPECT_NEAR(p.x, 5.0, 1e-11) << bulge;
            EXPECT_NEAR(p.y, -5 * bulge, 1e-11) << bulge;
        }
        EXPECT_NEAR(v.bulgLen(), 10.0, 1e-11) << bulge;
        double along = 0;
        ASSERT_TRUE(v.distAtPoint(along, half)) << bulge;
        EXPECT_NEAR(along, 5.0, 1e-11) << bulge;
    }
    // Below the smallest normal number the centre is out of reach: no centre, as the chord.
    COrxVertex const subnormal(pt(0, 0), pt(1, 0), 1e-310);
    EXPECT_EQ(subnormal.bulgLen(), 1.0);
    EXPECT_TRUE(std::isnan(subnormal.radius()));
}

TEST(DegenerateInputTest, EmptyAndDegeneratePolylines) {
    COrxVertexArray empty;
    COrxPoint3d lo(1, 2, 3), hi;
    double d = 5;
    EXPECT_FALSE(empty.isClosed());
    EXPECT_TRUE(empty.isContinuous());
    EXPECT_EQ(empty.geomLength(), 0.0);
    EXPECT_FALSE(empty.extents(lo, hi));
    EXPECT_FALSE(empty.distAtPoint(d, pt(0, 0)));
    EXPECT_FALSE(empty.pointAtDist(lo, 0));
    EXPECT_EQ(lo, COrxPoint3d(1, 2, 3));
    EXPECT_EQ(empty.vxNear(pt(0, 0)), COrxVertex());
    EXPECT_TRUE(empty.pts(true, 0.1).isEmpty());
    EXPECT_TRUE(empty.norm(false).isEmpty());
    EXPECT_TRUE(empty.offset(1.0, true).isEmpty());
    EXPECT_TRUE(empty.close(true).isEmpty());
    EXPECT_TRUE(ORX::g_vl_expl(empty, 3).isEmpty());

    // Only zero-length segments: norm leaves nothing.
    COrxVertexArray dots;
    dots.append(COrxVertex(pt(1, 1), pt(1, 1), 0.0)).append(COrxVertex(pt(1, 1), pt(1, 1), 0.4));
    EXPECT_TRUE(dots.norm(false).isEmpty());

    // Polylines built from every odd segment run through the whole-polyline operations.
    COrxVertexArray odd;
    for (COrxVertex const& v : oddSegments()) {
        odd.append(v);
    }
    COrxVertexArray(odd).norm(false);
    COrxVertexArray(odd).offset(0.5, true);
    COrxVertexArray(odd).offset(-0.5, false);
    (void)odd.extents(lo, hi);
    (void)odd.pts(true, 0.01);
    (void)odd.geomLength();
    (void)odd.vxNear(pt(0, 0));
    (void)ORX::g_vl_expl(odd, 2);
    (void)ORX::g_vl_orient(odd, COrxVector3d::kZAxis);
    COrxPoint3dArray pts;
    odd.intersectWith(pts, odd.reverse(), 0);
}

// The section properties, corners, splitting and segment offset take the odd segments too:
// each call returns, and what it returns is a documented value.
TEST(DegenerateInputTest, OddSegmentsThroughPropertiesCornersAndSplits) {
    std::vector<COrxVertex> const segments = oddSegments();
    COrxVertex const ordinary(pt(1, 0), pt(1, 1), 0.2);
    for (COrxVertex const& v : segments) {
        for (COrxVertex const& w : segments) {
            COrxVertex a(v), b(w), piece;
            ORX::g_vx_fillet(a, b, 0.5, piece);
            ORX::g_vx_chamfer(a, b, 0.5, 0.5, piece);
        }
        COrxVertex a(v), b(ordinary), piece;
        ORX::g_vx_fillet(a, b, 0.5, piece);
        COrxVertexArray loop(v);
        loop.append(ordinary).append(COrxVertex(ordinary.endPoint(), v.startPoint(), 0.0));
        double area = 0, ix = 0, iy = 0, ixy = 0;
        COrxPoint3d c;
        if (ORX::g_vl_statics(loop, area, c, ix, iy, ixy)) {
            EXPECT_TRUE(std::isfinite(area + ix + iy + ixy));
            EXPECT_GT(area, 0);
            EXPECT_TRUE(c.isValid());
        }
        COrxVertexArray edited(loop);
        ORX::g_vl_fillet_all(edited, 0.1);
        ORX::g_vl_chamfer_all(edited, 0.1);
        for (int i = -1; i <= loop.len(); ++i) {
            COrxVertexArray moved(loop);
            ORX::g_vl_offset_vx(moved, i, 0.25);
        }
        COrxArrayTempl<double> at;
        at.append(0.5).append(kNan).append(kInf).append(1.5);
        COrxArrayTempl<COrxVertexArray> const pieces = ORX::g_vl_split_dist(loop, at);
        EXPECT_FALSE(pieces.isEmpty());
        COrxPoint3dArray points;
        points.append(pt(kNan, 0)).append(pt(1, 0.5));
        EXPECT_FALSE(ORX::g_vl_split(loop, points).isEmpty());
    }
    // A nearly straight side keeps the square's area to the last digit.
    COrxVertexArray square = unitSquare();
    square[0].set(square[0].startPoint(), square[0].endPoint(), 1e-300);
    double area = 0, ix = 0, iy = 0, ixy = 0;
    COrxPoint3d c;
    ASSERT_TRUE(ORX::g_vl_statics(square, area, c, ix, iy, ixy));
    EXPECT_EQ(area, 1.0);
    EXPECT_NEAR(ix, 1.0 / 12, 1e-16);
}
