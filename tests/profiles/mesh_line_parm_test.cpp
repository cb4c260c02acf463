// COrxMesh (faces over shared, de-duplicated points and the rules of addFace) and
// COrxLineParm (dash patterns).
#include <limits>

#include <gtest/gtest.h>

#include "orx/geom/functions.h"
#include "orx/profiles/profiles.h"
#include "outline_checks.h"

namespace {

using orx_test::list;
using orx_test::pt;

// What getData gives: the faces as indexes into the shared points.
struct MeshData {
    COrxArrayTempl<COrxArrayTempl<short>> faces;
    COrxPoint3dArray points;
    explicit MeshData(COrxMesh const& mesh) { mesh.getData(faces, points); }
};

int pointCount(COrxMesh const& mesh) {
    return MeshData(mesh).points.len();
}

TEST(COrxMeshTest, FacesShareTheirPoints) {
    COrxMesh mesh;
    ASSERT_TRUE(mesh.addFace(list({pt(0, 0), pt(1, 0), pt(1, 1), pt(0, 1)})));
    // The neighbour repeats two corners, one of them only within the point tolerance.
    ASSERT_TRUE(mesh.addFace(list({pt(1, 0), pt(2, 0), pt(2, 1), pt(1, 1 + 1e-7)})));
    MeshData const data(mesh);
    ASSERT_EQ(data.points.len(), 6);
    ASSERT_EQ(data.faces.len(), 2u);
    EXPECT_EQ(data.faces[1], COrxArrayTempl<short>().append(1).append(4).append(5).append(2));
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
    // Consecutive repeats and the closing corner are dropped; a corner repeated later in the
    // face shares its point.
    ASSERT_TRUE(mesh.addFace(list({pt(0, 0), pt(0, 0), pt(1, 0), pt(1, 1), pt(0, 0)})));
    ASSERT_TRUE(mesh.addFace(list({pt(5, 0), pt(6, 0), pt(5, 1), pt(6, 1), pt(6, 0)})));
    MeshData const data(mesh);
    EXPECT_EQ(data.faces[0].len(), 3u);
    EXPECT_EQ(data.faces[1].len(), 5u);
    EXPECT_EQ(data.points.len(), 7);
    // Refused, changing nothing: too few distinct corners, corners that are not numbers.
    double const nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(mesh.addFace(list({pt(0, 0), pt(1, 0), pt(0, 0)})));
    EXPECT_FALSE(mesh.addFace(COrxPoint3dArray()));
    EXPECT_FALSE(mesh.addFace(list({pt(9, 0), pt(9, 1), pt(nan, 1)})));
    EXPECT_EQ(mesh.len(), 2);
    EXPECT_EQ(pointCount(mesh), 7);
    // A polyline gives its corners: an arc is taken as its chord.
    COrxVertexArray square;
    square.fromPoints(list({pt(0, 0), pt(3, 0), pt(3, 3), pt(0, 3)}), true);
    square[1].set(square[1].startPoint(), square[1].endPoint(), 0.5);
    ASSERT_TRUE(mesh.addFace(square));
    EXPECT_TRUE(mesh[2][1].isStraight());
    EXPECT_EQ(pointCount(mesh), 10);  // (0, 0) was there
}

TEST(COrxMeshTest, IndexesStayWithinShorts) {
    COrxMesh mesh;
    COrxPoint3dArray zigzag;
    for (int k = 0; k < ORX::kMaxMeshPoints; ++k) {
        zigzag.append(pt(k, k % 2));
    }
    ASSERT_TRUE(mesh.addFace(zigzag));
    // One point more does not fit: refused, and the mesh keeps what it had.
    EXPECT_FALSE(mesh.addFace(list({pt(0, 0), pt(1, 1), pt(-1, 5)})));
    EXPECT_TRUE(mesh.addFace(list({pt(0, 0), pt(1, 1), pt(2, 0)})));
    EXPECT_EQ(pointCount(mesh), ORX::kMaxMeshPoints);
    EXPECT_TRUE(mesh.clear().addFace(list({pt(0, 0), pt(1, 1), pt(-1, 5)})));
    EXPECT_EQ(mesh.len(), 1);
}

TEST(COrxMeshTest, TransformMovesThePointsAndKeepsThemShared) {
    COrxMesh mesh;
    mesh.addFace(list({pt(0, 0), pt(1, 0), pt(1, 1)}));
    COrxMatrix3d m;
    m.setToRotation(ORX::kHalfPi, COrxVector3d::kZAxis, pt(0, 0));
    COrxMesh turned = mesh.getTransformedCopy(m);
    EXPECT_EQ(turned[0][1].startPoint(), pt(0, 1));
    EXPECT_EQ(mesh[0][1].startPoint(), pt(1, 0));  // the source is untouched
    ASSERT_TRUE(turned.addFace(list({pt(0, 1), pt(-1, 1), pt(-2, 2)})));
    EXPECT_EQ(pointCount(turned), 4);  // (0, 1) and (-1, 1) found again after the turn
}

TEST(COrxLineParmTest, PatternIsWalkedRoundAndRound) {
    COrxLineParm unit(0.0);  // {1, -1}
    EXPECT_TRUE(unit.pen());
    EXPECT_FALSE(unit.rotate().pen());
    EXPECT_TRUE(unit.rotate().pen());
    EXPECT_EQ(static_cast<double>(COrxLineParm(2.5).rotate()), 2.5);
    COrxLineParm dashDot(COrxArrayTempl<double>().append(6).append(-1).append(0).append(-1));
    bool const pens[] = {true, false, true, false, true};
    double const lengths[] = {6, 1, 0, 1, 6};
    for (int k = 0; k < 5; ++k) {
        EXPECT_EQ(dashDot.pen(), pens[k]) << k;
        EXPECT_EQ(static_cast<double>(dashDot), lengths[k]) << k;
        dashDot.rotate();
    }
    EXPECT_FALSE(COrxLineParm(3, -2).rotate().pen());
}

TEST(COrxLineParmTest, FewerThanTwoEntriesAreNoPattern) {
    COrxLineParm none;
    EXPECT_FALSE(none.pen());
    EXPECT_EQ(static_cast<double>(none), 0.0);
    EXPECT_EQ(none.rotate().index(), 0);
    COrxLineParm const one(COrxArrayTempl<double>().append(4));
    EXPECT_FALSE(one.pen());
    EXPECT_EQ(static_cast<double>(one), 0.0);
}

}  // namespace
