// COrxVector3d: a direction or displacement, compared per component within its tolerance.
#ifndef ORX_GEOM_VECTOR_H
#define ORX_GEOM_VECTOR_H

#include "orx/foundation/array_templ.h"
#include "orx/foundation/obj.h"

class COrxPoint3d;

class ORX_API COrxVector3d : public COrxObj {
public:
    // Component tolerance of vector equality and zero-length threshold of normalize
    // (1e-07 at start-up). Process-wide and unsynchronised.
    static double tol;
    static COrxVector3d const kNull;
    static COrxVector3d const kXAxis;
    static COrxVector3d const kYAxis;
    static COrxVector3d const kZAxis;

    COrxVector3d() : x(0.0), y(0.0), z(0.0) {}
    COrxVector3d(double vx, double vy, double vz) : x(vx), y(vy), z(vz) {}
    explicit COrxVector3d(double const* xyz) : x(xyz[0]), y(xyz[1]), z(xyz[2]) {}
    COrxVector3d(COrxVector3d const&) = default;
    COrxVector3d& operator=(COrxVector3d const&) = default;
    COrxVector3d& operator=(double const* xyz);
    ~COrxVector3d() override;

    COrxVector3d& set(double vx, double vy, double vz);

    // Equal when every component differs by at most tol; no length test.
    bool operator==(COrxVector3d const& v) const;
    bool operator!=(COrxVector3d const& v) const { return !(*this == v); }

    COrxVector3d operator+(COrxVector3d const& v) const;
    COrxVector3d operator-(COrxVector3d const& v) const;
    COrxVector3d operator-() const;
    COrxVector3d& operator+=(COrxVector3d const& v);
    COrxVector3d& operator-=(COrxVector3d const& v);
    COrxVector3d operator*(double f) const;
    COrxVector3d& operator*=(double f);
    // Cross product this x v.
    COrxVector3d operator*(COrxVector3d const& v) const;
    COrxVector3d& operator*=(COrxVector3d const& v);
    // Transformation of a direction: the translation column is ignored, the result is
    // divided by the fourth component.
    COrxVector3d operator*(double const (*m)[4]) const;
    COrxVector3d& operator*=(double const (*m)[4]);

    double abs() const;
    // A vector shorter than tol, or not finite, becomes (0, 0, 0).
    COrxVector3d& normalize();
    COrxVector3d normal() const;
    // Angle in [0, pi]; NaN when either vector equals kNull.
    double angleTo(COrxVector3d const& v) const;
    // |this . v| < 1e-09 on the raw (unnormalised) dot product.
    bool isOrthoTo(COrxVector3d const& v) const;
    // Same or opposite direction after normalising both; a zero vector is parallel only to
    // another vector shorter than tol.
    bool isParallelTo(COrxVector3d v) const;
    COrxVector3d& scale(COrxPoint3d const& s);
    bool isValid() const;

    // The same object viewed as a point; no copy.
    COrxPoint3d& asPoint();
    COrxPoint3d const& asPoint() const;
    operator double*() { return &x; }
    operator double const*() const { return &x; }

    double x;
    double y;
    double z;
};

ORX_API COrxVector3d operator*(double f, COrxVector3d const& v);

ORX_EXTERN_TEMPLATE(COrxArrayTempl<COrxVector3d>);

#endif  // ORX_GEOM_VECTOR_H
