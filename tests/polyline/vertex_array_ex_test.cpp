#include "orx/polyline/vertex_array_ex.h"

#include <gtest/gtest.h>

#include "tests/support/shapes.h"

using namespace orx_test;

TEST(COrxVertexArrayExTest, AttributesStartEmptyAndSurviveAssignmentFromAPlainPolyline) {
    COrxVertexArrayEx ex;
    EXPECT_FALSE(ex.text().isNull());  // empty, not null
    ex.setAttribute(7).setText(L"web");
    ex = unitSquare();
    EXPECT_EQ(ex.len(), 4);
    EXPECT_EQ(ex.attribute(), 7);
    EXPECT_EQ(ex.text(), COrxString(L"web"));
    EXPECT_EQ(COrxVertexArrayEx(unitSquare()).attribute(), 0);
    EXPECT_EQ((ex.reverse() + unitSquare()).attribute(), 7);
    ex.clear();
    EXPECT_TRUE(ex.isEmpty());
    EXPECT_EQ(ex.attribute(), 0);
    EXPECT_EQ(ex.text().len(), 0);
}

TEST(COrxVertexArrayExTest, ConversionsAndOrientation) {
    COrxArrayTempl<COrxVertexArray> plain;
    plain.append(unitSquare().reverse()).append(unitSquare());
    COrxArrayTempl<COrxVertexArrayEx> ex = orx_g_xvll(plain, 3, L"plate", COrxVector3d(0, 0, 2));
    ASSERT_EQ(ex.len(), 2u);
    EXPECT_EQ(ex[1].attribute(), 3);
    EXPECT_EQ(ex[0].text(), COrxString(L"plate"));
    EXPECT_EQ(ex[1].normal(), COrxVector3d::kZAxis);
    ORX::setOrient(ex, COrxVector3d::kZAxis);
    EXPECT_TRUE(ORX::g_vl_orient(ex[0], COrxVector3d::kZAxis));
}
