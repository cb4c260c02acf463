// COrxMatrix3d: the library's 4x4 homogeneous transformation.
//
// Row-major (m[row][col]) acting on column vectors: p' = m * (x, y, z, 1). Columns 0, 1 and 2
// of the upper 3x3 block are the images of the x, y and z axes, column 3 is the translation.
// A product A * B applies B first, then A. The matrix converts to the raw block
// double (*)[4], the form every transforming function of the library takes.
//
//     COrxMatrix3d r;
//     r.setToRotation(ORX::kHalfPi, COrxVector3d::kZAxis, COrxPoint3d(1, 0, 0));
//     COrxPoint3d p = COrxPoint3d(2, 0, 0) * r;      // (1, 1, 0)
//     COrxMatrix3d back = r.inverse();               // r * back is the identity
#ifndef ORX_GEOM_MATRIX_H
#define ORX_GEOM_MATRIX_H

#include "orx/foundation/obj.h"
#include "orx/geom/point.h"
#include "orx/geom/vector.h"

class COrxPlane;

namespace ORX {
// Two matrices are equal when no entry differs by more than this (fixed, not a global tolerance).
constexpr double kMatrixEntryTol = 1e-09;
// Pivots of the inversion at or below this count as zero; elimination factors below it are
// skipped.
constexpr double kMatrixPivotTol = 1e-09;
// setToWorldToPlane takes the world Y axis (not Z) to build the plane's x axis when both plan
// components of the normal are below this (the arbitrary-axis rule of drawing exchange files).
constexpr double kArbitraryAxisLimit = 1.0 / 64.0;
}  // namespace ORX

class ORX_API COrxMatrix3d : public COrxObj {
public:
    static COrxMatrix3d const kIdentity;

    // The identity.
    COrxMatrix3d();
    COrxMatrix3d(COrxMatrix3d const& other);
    COrxMatrix3d(double const (*block)[4]);
    ~COrxMatrix3d() override;
    COrxMatrix3d& operator=(COrxMatrix3d const& other);
    COrxMatrix3d& operator=(double const (*block)[4]);

    using Block = double[4][4];
    using ConstBlock = double const[4][4];

    // The raw block, for the functions that take double const (*)[4].
    operator Block&();
    operator ConstBlock&() const;

    // Equal when every entry differs by at most ORX::kMatrixEntryTol.
    bool operator==(COrxMatrix3d const& other) const;
    bool operator!=(COrxMatrix3d const& other) const;

    // this * b: b is applied first.
    COrxMatrix3d operator*(COrxMatrix3d const& b) const;
    COrxMatrix3d& operator*=(COrxMatrix3d const& b);

    COrxMatrix3d& setToIdentity();
    // The identity with column 3 = t.
    COrxMatrix3d& setToTranslation(COrxVector3d const& t);
    // Overwrites column 3 (rows 0..2) only.
    COrxMatrix3d& setTranslation(COrxVector3d const& t);
    COrxVector3d translation() const;
    // Column i (rows 0..2); an i above 2 reads column 2.
    COrxVector3d axis(unsigned int i) const;
    // Length of axis(0).
    double scale() const;

    // The map from the system (origin, axes) to world coordinates: the identity with the axes
    // in columns 0..2 and the origin in column 3.
    COrxMatrix3d& setCoordSystem(COrxPoint3d const& origin, COrxVector3d const& xAxis,
                                 COrxVector3d const& yAxis, COrxVector3d const& zAxis);
    void getCoordSystem(COrxPoint3d& origin, COrxVector3d& xAxis, COrxVector3d& yAxis,
                        COrxVector3d& zAxis) const;

    // Rotation taking world coordinates into the system of the plane with normal n: z' is n
    // normalized; x' is Y x z' when both plan components of z' are below
    // ORX::kArbitraryAxisLimit, else Z x z' (normalized); y' = z' x x'. Rows 0..2 hold x', y',
    // z'; no translation. A normal equal to kNull (or not finite) gives the identity.
    COrxMatrix3d& setToWorldToPlane(COrxVector3d const& n);
    // The inverse of setToWorldToPlane(n); the identity for a null normal.
    COrxMatrix3d& setToPlaneToWorld(COrxVector3d const& n);
    // Rotation by angle (radians, counter-clockwise looking against the axis) about the line
    // through p along axis, built as A^-1 * R * A with A = setToWorldToPlane(axis) * T(-p) and
    // R the rotation about z. A null axis gives the world Z axis (the plane rule's identity).
    COrxMatrix3d& setToRotation(double angle, COrxVector3d const& axis, COrxPoint3d const& p);
    // Uniform scaling by s about p: T(p) * diag(s, s, s, 1) * T(-p).
    COrxMatrix3d& setToScaling(double s, COrxPoint3d const& p);
    // Reflection in the plane: A^-1 * diag(1, 1, -1, 1) * A, A as for setToRotation.
    COrxMatrix3d& setToMirroring(COrxPlane const& plane);
    // T(t) * Rz(angle) * diag(s.x, s.y, s.z, 1): scale by the factors held in s, rotate about
    // the world z axis through the origin, then translate.
    COrxMatrix3d& setToSRM(COrxPoint3d const& s, double angle, COrxVector3d const& t);

    // Gauss-Jordan elimination by column operations, pivot threshold ORX::kMatrixPivotTol:
    // zero diagonal entries are exchanged with a usable column before elimination, and a
    // pivot that elimination cancels is exchanged with a later column (without that second
    // exchange some regular matrices would divide by zero). A singular matrix silently
    // becomes the identity (deliberate: callers transform with the result without testing
    // it).
    COrxMatrix3d& invert();
    COrxMatrix3d inverse() const;

    double m[4][4];

private:
    void swapRow(int a, int b);
    void swapCol(int a, int b);
};

#endif  // ORX_GEOM_MATRIX_H
