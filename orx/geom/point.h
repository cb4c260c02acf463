// COrxPoint3d: a point in drawing units, compared within the process-wide tolerance.
#ifndef ORX_GEOM_POINT_H
#define ORX_GEOM_POINT_H

#include "orx/foundation/array_templ.h"
#include "orx/foundation/obj.h"

class COrxVector3d;

class ORX_API COrxPoint3d : public COrxObj {
public:
    // Point coincidence tolerance in drawing units (1e-05 at start-up). Process-wide and
    // unsynchronised; every comparison reads its current value. See COrxPoint3dTol.
    static double tol;
    static COrxPoint3d const kOrigin;

    COrxPoint3d() : x(0.0), y(0.0), z(0.0) {}
    COrxPoint3d(double px, double py, double pz) : x(px), y(py), z(pz) {}
    // From the first three doubles at xyz.
    explicit COrxPoint3d(double const* xyz) : x(xyz[0]), y(xyz[1]), z(xyz[2]) {}
    COrxPoint3d(COrxPoint3d const&) = default;
    COrxPoint3d& operator=(COrxPoint3d const&) = default;
    ~COrxPoint3d() override;

    COrxPoint3d& set(double px, double py, double pz);

    // Tolerant: a cheap per-coordinate early exit, then the real criterion, the Euclidean
    // distance within tol. Not transitive.
    bool operator==(COrxPoint3d const& q) const;
    bool operator!=(COrxPoint3d const& q) const { return !(*this == q); }
    // Exact lexicographic order x, y, z (no tolerance): p < q can hold while p == q.
    bool operator<(COrxPoint3d const& q) const;
    bool operator>(COrxPoint3d const& q) const;

    COrxVector3d operator-(COrxPoint3d const& q) const;
    COrxPoint3d operator+(COrxVector3d const& v) const;
    COrxPoint3d operator-(COrxVector3d const& v) const;
    COrxPoint3d& operator+=(COrxVector3d const& v);
    COrxPoint3d& operator-=(COrxVector3d const& v);

    // Transformation by a 4x4 row-major matrix acting on the column (x, y, z, 1); the result
    // is always divided by the fourth component (a singular projection gives non-finite
    // coordinates, see isValid).
    COrxPoint3d operator*(double const (*m)[4]) const;
    COrxPoint3d& operator*=(double const (*m)[4]);

    double distanceTo(COrxPoint3d const& q) const;
    // All three coordinates are finite.
    bool isValid() const;
    // (x * s.x, y * s.y, z * s.z); this point is unchanged.
    COrxPoint3d scale(COrxPoint3d s) const;

    // The same object viewed as a vector (the two classes share their layout); no copy.
    COrxVector3d& asVector();
    COrxVector3d const& asVector() const;
    // The address of x, so a point passes wherever a double triple is expected.
    operator double*() { return &x; }
    operator double const*() const { return &x; }

    double x;
    double y;
    double z;
};

ORX_EXTERN_TEMPLATE(COrxArrayTempl<COrxPoint3d>);

#endif  // ORX_GEOM_POINT_H
