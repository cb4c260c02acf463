// Free functions on raw 4x4 blocks and matrices: the mirror test, copying, plan placements,
// matrices to and from point lists, projection of point lists onto a plane, and the turning
// of a placement by a side keyword.
#ifndef ORX_GEOM_MATRIX_FUNCTIONS_H
#define ORX_GEOM_MATRIX_FUNCTIONS_H

#include "orx/foundation/platform.h"
#include "orx/geom/matrix.h"
#include "orx/geom/plane.h"
#include "orx/geom/point_array.h"

namespace ORX {

// True when the matrix mirrors: the rows r0, r1, r2 of its 3x3 block give (r0 x r1) . r2 < 0.
// A zero determinant is not a mirror.
ORX_API bool mtxIsMir(double const (*m)[4]);

// Copies the 16 entries of src into dst.
ORX_API void g_mtx_copy(double (*dst)[4], double const (*src)[4]);

// A plan placement through setCoordSystem: origin (x, y, 0), x axis (cos a, sin a, 0) * fx,
// y axis (-sin a, cos a, 0) * fy, z axis (0, 0, |fx|). Mind the order: the fourth number
// scales the y axis and the last the x and z axes; callers rely on it. Always true.
ORX_API bool g_mtx_2d(COrxMatrix3d& m, double x, double y, double angle, double fy, double fx);

// Columns 0..3 (rows 0..2) receive the points 0..3 of the list, (0, 0, 0) where the list has
// no such point; row 3 is (0, 0, 0, 1). So the list holds the x, y and z axes and,
// optionally, the origin. False, m untouched, for fewer than 3 points.
ORX_API bool plToMtx(double (*m)[4], COrxPoint3dArray const& pts);

// The inverse of plToMtx: the list gets length 4, point c being column c (rows 0..2).
ORX_API COrxPoint3dArray& mtxToPl(COrxPoint3dArray& pts, double const (*m)[4]);

// Each point projected along dir onto the plane; a point whose line misses the plane (dir
// parallel to it, or null) is dropped, so the result may be shorter.
ORX_API COrxPoint3dArray plPlaneProje(COrxPlane const& plane, COrxPoint3dArray const& pts,
                                      COrxVector3d const& dir);

}  // namespace ORX

// Turns a placement about the world Z axis through the origin: the result is R * m. The angle
// depends on the side keyword and on whether the placement's translation has a negative x:
//
//     side      translation x < 0     otherwise
//     "L"       0                     a - pi
//     "R"       pi - a                0
//     other     (pi - a) / 2          -(pi - a) / 2
//
// The keyword matches with string equality: both null, or both non-null with identical
// characters ("l" is not "L"; a null keyword falls in the last row).
ORX_API COrxMatrix3d orx_g_mtx_ang2d(COrxMatrix3d const& m, double a, wchar_t const* side);
// The same with a side number: 1 is "L", 2 is "R", anything else "C".
ORX_API COrxMatrix3d orx_g_mtx_ang2d(COrxMatrix3d const& m, double a, int side);

#endif  // ORX_GEOM_MATRIX_FUNCTIONS_H
