// COrxMesh (faces over shared, de-duplicated points and the rules of addFace) and
// COrxLineParm (dash patterns).
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "orx/geom/functions.h"
#include "orx/profiles/profiles.h"

namespace {

COrxPoint3dArray corners(std::initializer_list<COrxPoint3d> list) {
    COrxPoint3dArray pts;
    for (COrxPoint3d const& p : list) {
        pts.append(p);
    }
    return pts;
}

COrxPoint3d pt(double x, double y, double z = 0) {
    return COrxPoint3d(x, y, z);
}

TEST(COrxMeshTest, FacesShareTheirPoints) {
    COrxMesh mesh;
    ASSERT_TRUE(mesh.addFace(corners({pt(0, 0), pt(1, 0), pt(1, 1), pt(0, 1)})));
    // The neighbour repeats two corners, one of them only within the point tolerance.
    ASSERT_TRUE(mesh.addFace(corners({pt(1, 0), pt(2, 0), pt(2, 1), pt(1, 1 + 1e-7)})));
    EXPECT_EQ(mesh.len(), 2);
    COrxArrayTempl<COrxArrayTempl<short>> faces;
    COrxPoint3dArray points;
    mesh.getData(faces, points);
    ASSERT_EQ(points.len(), 6);
    ASSERT_EQ(faces.len(), 2u);
    short const second[] = {1, 4, 5, 2};
    ASSERT_EQ(faces[1].len(), 4u);
    for (int k = 0; k < 4; ++k) {
        EXPECT_EQ(faces[1][k], second[k]);
    }
    // A face comes back as the closed polygon through its corners.
    COrxVertexArray const face = mesh[1];
    EXPECT_TRUE(face.isClosed());
    ASSERT_EQ(face.len(), 4);
    EXPECT_EQ(face[1].startPoint(), pt(2, 0));
    EXPECT_EQ(mesh[-1], face);
    EXPECT_TRUE(mesh[2].isEmpty());
    EXPECT_TRUE(mesh[-3].isEmpty());
}

TEST(COrxMeshTest, AddFaceRules) {
    COrxMesh mesh;
    // Consecutive repeats and the closing corner are dropped.
    ASSERT_TRUE(mesh.addFace(corners({pt(0, 0), pt(0, 0), pt(1, 0), pt(1, 1), pt(0, 0)})));
    COrxArrayTempl<COrxArrayTempl<short>> faces;
    COrxPoint3dArray points;
    mesh.getData(faces, points);
    EXPECT_EQ(faces[0].len(), 3u);
    EXPECT_EQ(points.len(), 3);
    // A corner repeated later in the face shares its point.
    ASSERT_TRUE(mesh.addFace(corners({pt(5, 0), pt(6, 0), pt(5, 1), pt(6, 1), pt(6, 0), pt(7, 1)})));
    mesh.getData(faces, points);
    EXPECT_EQ(points.len(), 8);
    EXPECT_EQ(faces[1][1], faces[1][4]);
    // Refused: too few distinct corners, corners that are not numbers. Nothing changes.
    double const nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(mesh.addFace(corners({pt(0, 0), pt(1, 0), pt(0, 0)})));
    EXPECT_FALSE(mesh.addFace(corners({pt(3, 3), pt(3, 3), pt(3, 3)})));
    EXPECT_FALSE(mesh.addFace(COrxPoint3dArray()));
    EXPECT_FALSE(mesh.addFace(corners({pt(9, 0), pt(9, 1), pt(nan, 1)})));
    EXPECT_EQ(mesh.len(), 2);
    mesh.getData(faces, points);
    EXPECT_EQ(points.len(), 8);
}

TEST(COrxMeshTest, PolylineFacesUseTheirCorners) {
    COrxVertexArray square;
    square.fromPoints(corners({pt(0, 0, 2), pt(3, 0, 2), pt(3, 3, 2), pt(0, 3, 2)}), true);
    square[1].set(square[1].startPoint(), square[1].endPoint(), 0.5);  // an arc: its chord
    COrxMesh mesh;
    ASSERT_TRUE(mesh.addFace(square));
    EXPECT_EQ(mesh[0].len(), 4);
    EXPECT_TRUE(mesh[0][1].isStraight());
    EXPECT_FALSE(mesh.addFace(COrxVertexArray()));
}

TEST(COrxMeshTest, IndexesStayWithinShorts) {
    COrxMesh mesh;
    COrxPoint3dArray fan;
    for (int k = 0; k < ORX::kMaxMeshPoints; ++k) {
        fan.append(pt(k, k % 2));
    }
    ASSERT_TRUE(mesh.addFace(fan));
    // One point more does not fit: refused, and the mesh keeps what it had.
    EXPECT_FALSE(mesh.addFace(corners({pt(0, 0), pt(1, 1), pt(-1, 5)})));
    EXPECT_TRUE(mesh.addFace(corners({pt(0, 0), pt(1, 1), pt(2, 0)})));
    COrxArrayTempl<COrxArrayTempl<short>> faces;
    COrxPoint3dArray points;
    mesh.getData(faces, points);
    EXPECT_EQ(points.len(), ORX::kMaxMeshPoints);
    EXPECT_EQ(faces[0][-1], ORX::kMaxMeshPoints - 1);
    mesh.clear();
    EXPECT_EQ(mesh.len(), 0);
    EXPECT_TRUE(mesh.addFace(corners({pt(0, 0), pt(1, 1), pt(-1, 5)})));
}

TEST(COrxMeshTest, TransformMovesThePointsAndKeepsThemShared) {
    COrxMesh mesh;
    mesh.addFace(corners({pt(0, 0), pt(1, 0), pt(1, 1)}));
    COrxMatrix3d m;
    m.setToRotation(ORX::kHalfPi, COrxVector3d::kZAxis, pt(0, 0));
    COrxMesh const turned = mesh.getTransformedCopy(m);
    EXPECT_EQ(turned[0][1].startPoint(), pt(0, 1));
    EXPECT_EQ(mesh[0][1].startPoint(), pt(1, 0));  // the source is untouched
    COrxMesh copy = turned;
    ASSERT_TRUE(copy.addFace(corners({pt(0, 1), pt(-1, 1), pt(-2, 2)})));
    COrxArrayTempl<COrxArrayTempl<short>> faces;
    COrxPoint3dArray points;
    copy.getData(faces, points);
    EXPECT_EQ(points.len(), 4);  // (0, 1) and (-1, 1) found again after the turn
}

TEST(COrxLineParmTest, SingleLengthMakesDashAndGap) {
    COrxLineParm unit(0.0);
    ASSERT_EQ(unit.pattern().len(), 2u);
    EXPECT_EQ(unit.pattern()[0], 1.0);
    EXPECT_EQ(unit.pattern()[1], -1.0);
    EXPECT_TRUE(unit.pen());
    EXPECT_FALSE(unit.rotate().pen());
    EXPECT_TRUE(unit.rotate().pen());
    COrxLineParm const dash(2.5);
    EXPECT_EQ(static_cast<double>(dash), 2.5);
}

TEST(COrxLineParmTest, PatternIsWalkedRoundAndRound) {
    COrxLineParm dashDot(COrxArrayTempl<double>().append(6).append(-1).append(0).append(-1));
    bool const pens[] = {true, false, true, false, true};
    double const lengths[] = {6, 1, 0, 1, 6};
    for (int k = 0; k < 5; ++k) {
        EXPECT_EQ(dashDot.pen(), pens[k]) << k;
        EXPECT_EQ(static_cast<double>(dashDot), lengths[k]) << k;
        EXPECT_EQ(dashDot.index(), k % 4);
        dashDot.rotate();
    }
    COrxLineParm const pair(3, -2);
    EXPECT_TRUE(pair.pen());
    EXPECT_EQ(static_cast<double>(COrxLineParm(pair).rotate()), 2.0);
}

TEST(COrxLineParmTest, FewerThanTwoEntriesAreNoPattern) {
    COrxLineParm none;
    EXPECT_FALSE(none.pen());
    EXPECT_EQ(static_cast<double>(none), 0.0);
    EXPECT_EQ(none.rotate().index(), 0);
    COrxLineParm one(COrxArrayTempl<double>().append(4));
    EXPECT_FALSE(one.pen());
    EXPECT_EQ(static_cast<double>(one), 0.0);
}

}  // namespace
