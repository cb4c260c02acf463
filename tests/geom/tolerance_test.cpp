#include "orx/geom/tolerance.h"

#include <gtest/gtest.h>

#include "orx/geom/point.h"

TEST(COrxPoint3dTolTest, WidensForItsScopeAndRestoresEvenWhatOthersChanged) {
    double const shipped = COrxPoint3d::tol;
    {
        COrxPoint3dTol wide(0.01);
        EXPECT_EQ(COrxPoint3d(0, 0, 0), COrxPoint3d(0.005, 0, 0));
        COrxPoint3d::tol = 0.5;  // changed by someone else inside the scope
    }
    EXPECT_EQ(COrxPoint3d::tol, shipped);
}

TEST(COrxPoint3dTolTest, RefusesTinyTolerances) {
    double const shipped = COrxPoint3d::tol;
    COrxPoint3dTol zero(0.0);
    EXPECT_EQ(COrxPoint3d::tol, shipped);
    COrxPoint3dTol guard(1e-12);
    EXPECT_EQ(COrxPoint3d::tol, shipped);
    guard = 2e-12;
    EXPECT_EQ(COrxPoint3d::tol, 2e-12);
}

TEST(COrxPoint3dTolTest, NestedAndCopiedGuardsRestoreInReverseOrder) {
    double const shipped = COrxPoint3d::tol;
    {
        COrxPoint3dTol outer(0.1);
        {
            COrxPoint3dTol inner(0.2);
            COrxPoint3dTol copy(inner);
            EXPECT_EQ(static_cast<double>(copy), 0.1);
            inner = 0.3;  // does not change what inner restores
            EXPECT_EQ(COrxPoint3d::tol, 0.3);
        }
        EXPECT_EQ(COrxPoint3d::tol, 0.1);
    }
    EXPECT_EQ(COrxPoint3d::tol, shipped);
}
