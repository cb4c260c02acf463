#include "orx/polyline/vertex_array_ex.h"

#include <gtest/gtest.h>

#include "orx/polyline/polyline_functions.h"

namespace {

COrxVertexArray square() {
    COrxVertexArray vl;
    vl.append(COrxPoint3d(1, 0, 0), 0.0).append(COrxPoint3d(1, 1, 0), 0.0);
    vl.append(COrxPoint3d(0, 1, 0), 0.0).append(COrxPoint3d(0, 0, 0), 0.0);
    return vl;
}

}  // namespace

TEST(COrxVertexArrayExTest, AttributesStartEmptyAndSurviveAssignmentFromAPlainPolyline) {
    COrxVertexArrayEx ex;
    EXPECT_EQ(ex.attribute(), 0);
    EXPECT_FALSE(ex.text().isNull());
    EXPECT_EQ(ex.text().len(), 0);
    ex.setAttribute(7).setText(L"web");
    ex = square();
    EXPECT_EQ(ex.len(), 4);
    EXPECT_EQ(ex.attribute(), 7);
    EXPECT_EQ(ex.text(), COrxString(L"web"));

    COrxVertexArrayEx const copy(ex);
    EXPECT_EQ(copy.text(), COrxString(L"web"));
    COrxVertexArrayEx const fromPlain(square());
    EXPECT_EQ(fromPlain.attribute(), 0);
    COrxVertexArrayEx const back = ex.reverse();
    EXPECT_EQ(back.attribute(), 7);
    EXPECT_EQ(back[0].startPoint(), ex[-1].endPoint());
    EXPECT_EQ((ex + square()).len(), 8);
    EXPECT_EQ((ex + square()).attribute(), 7);

    ex.clear();
    EXPECT_EQ(ex.attribute(), 0);
    EXPECT_EQ(ex.text().len(), 0);
    EXPECT_TRUE(ex.isEmpty());
}

TEST(COrxVertexArrayExTest, ConversionsAndOrientation) {
    COrxArrayTempl<COrxVertexArray> plain;
    plain.append(square().reverse()).append(square());
    COrxArrayTempl<COrxVertexArrayEx> ex = orx_g_xvll(plain, 3, L"plate", COrxVector3d(0, 0, 2));
    ASSERT_EQ(ex.len(), 2u);
    EXPECT_EQ(ex[1].attribute(), 3);
    EXPECT_EQ(ex[1].normal(), COrxVector3d::kZAxis);
    ORX::setOrient(ex, COrxVector3d::kZAxis);
    EXPECT_TRUE(ORX::g_vl_orient(ex[0], COrxVector3d::kZAxis));
    EXPECT_EQ(ex[0].text(), COrxString(L"plate"));
}
