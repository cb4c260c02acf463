// COrxPlane: a construction plane, an origin with a unit normal.
//
//     COrxPlane floor(COrxPoint3d(0, 0, 2), COrxVector3d(0, 0, 5));   // normal kept as (0, 0, 1)
//     COrxPoint3d hit;
//     if (floor.intersectWith(COrxPoint3d(1, 1, 9), COrxVector3d(0, 0, -1), hit)) {
//         // hit is (1, 1, 2)
//     }
#ifndef ORX_GEOM_PLANE_H
#define ORX_GEOM_PLANE_H

#include "orx/foundation/obj.h"
#include "orx/geom/point.h"
#include "orx/geom/vector.h"

class ORX_API COrxPlane : public COrxObj {
public:
    // Origin (0, 0, 0), normal kZAxis.
    COrxPlane();
    COrxPlane(COrxPlane const& other);
    // The normal is normalized (a null or non-finite one becomes the zero vector).
    COrxPlane(COrxPoint3d const& origin, COrxVector3d const& normal);
    // See set(p1, p2, p3).
    COrxPlane(COrxPoint3d const& p1, COrxPoint3d const& p2, COrxPoint3d const& p3);
    ~COrxPlane() override;
    COrxPlane& operator=(COrxPlane const& other);

    COrxPlane& set(COrxPoint3d const& origin, COrxVector3d const& normal);
    // Origin p2, normal normalize((p1 - p2) x (p3 - p2)), so that the turn from the leg
    // towards p1 to the leg towards p3 is counter-clockwise seen from the normal side.
    // Collinear points give the zero normal.
    COrxPlane& set(COrxPoint3d const& p1, COrxPoint3d const& p2, COrxPoint3d const& p3);
    COrxPlane& setPosition(COrxPoint3d const& origin);
    // Stores n normalized.
    COrxPlane& setNormal(COrxVector3d const& n);

    COrxPoint3d position() const;
    COrxVector3d normal() const;

    // The same object, or origins equal under point equality and normals under vector
    // equality (the origin is not projected: one plane with two origins compares unequal).
    bool operator==(COrxPlane const& other) const;
    bool operator!=(COrxPlane const& other) const;

    // The origin is transformed as a point and the normal as a direction; the normal is not
    // normalized again (a scaling leaves it scaled).
    COrxPlane& transformBy(double const (*m)[4]);
    COrxPlane getTransformedCopy(double const (*m)[4]) const;

    // The line in which two planes meet: a point p on it and its unit direction
    // d = normalize(n1 x n2). False for parallel planes (normals equal or opposite under
    // vector equality), p and d untouched.
    bool intersectWith(COrxPlane const& other, COrxPoint3d& p, COrxVector3d& d) const;
    // Where the line through q along v meets the plane. False, p untouched, when v is null or
    // parallel to the plane: |normal . unit(v)| below COrxVector3d::tol.
    bool intersectWith(COrxPoint3d const& q, COrxVector3d const& v, COrxPoint3d& p) const;
    // The same for the line through q1 and q2, counted only when the hit lies on the segment
    // q1-q2: between them, or equal to an end under point equality.
    bool intersectWith(COrxPoint3d const& q1, COrxPoint3d const& q2, COrxPoint3d& p) const;

private:
    COrxPoint3d m_origin;
    COrxVector3d m_normal;
};

#endif  // ORX_GEOM_PLANE_H
