// COrxPoint3dArray: the library's list of points.
//
// The result type of every intersection and the input of polylines built from points. It is
// a hand-written array on the untyped COrxArray (not a COrxArrayTempl): it owns one block of
// exactly `capacity` constructed points and adds geometric operations (extents, closedness,
// transformation, sorting along a direction).
//
//     COrxPoint3dArray pts;
//     pts.append(COrxPoint3d(0, 0, 0)).append(COrxPoint3d(4, 0, 0)).append(COrxPoint3d(4, 3, 0));
//     COrxPoint3d last = pts[-1];                     // (4, 3, 0)
//     COrxPoint3d lo, hi;
//     pts.extents(lo, hi);                            // (0, 0, 0) and (4, 3, 0)
//     pts.sort(ORX::kHalfPi);                         // ordered along +Y, ties keep their order
#ifndef ORX_GEOM_POINT_ARRAY_H
#define ORX_GEOM_POINT_ARRAY_H

#include "orx/foundation/array.h"
#include "orx/geom/point.h"
#include "orx/geom/vector.h"

class ORX_API COrxPoint3dArray : public COrxArray {
public:
    COrxPoint3dArray();
    COrxPoint3dArray(COrxPoint3dArray const& other);
    ~COrxPoint3dArray() override;
    // Copies all points; the block grows when needed and never shrinks.
    COrxPoint3dArray& operator=(COrxPoint3dArray const& other);

    // As COrxArray::setLogicalLength; slots that become part of the array read (0, 0, 0).
    // When the block cannot grow, nothing changes and the old length is returned.
    int setLogicalLength(int n) override;
    // For 0 <= i < length the later points move down by one; any other index does nothing.
    // Returns the new length.
    int removeAt(int i);

    // A negative i counts from the end: with 2 or more points it becomes (i + length)
    // remainder length (C remainder, so only -length <= i < 0 is meaningful; an index that
    // stays negative gets the dummy), with 1 point it becomes 0. The mutable form grows the
    // array when i is at or past the end (the new slots read (0, 0, 0)); a negative index on
    // an empty array, or a growth the block cannot make, gives a shared writable dummy point.
    // The const form gives a shared const dummy for every index it cannot serve.
    COrxPoint3d& operator[](int i);
    COrxPoint3d const& operator[](int i) const;

    // Appending or inserting a point of this very array is safe: the point is copied before
    // the block may move.
    COrxPoint3dArray& append(COrxPoint3d const& p);
    COrxPoint3dArray append(COrxPoint3d const& p) const;
    // Appends p unless an equal point (point tolerance) is already in the list.
    COrxPoint3dArray& appendUniq(COrxPoint3d const& p);
    // Inserts p at i, moving the points from i on up by one. An i past the end extends the
    // array to length i + 1 with (0, 0, 0) in the gap, as COrxArrayTempl does; an i that
    // cannot be a length (INT_MAX or more) changes nothing.
    COrxPoint3dArray& insertAt(unsigned int i, COrxPoint3d const& p);
    COrxPoint3dArray insertAt(unsigned int i, COrxPoint3d const& p) const;

    // Concatenation (also of an array with itself).
    COrxPoint3dArray operator+(COrxPoint3dArray const& other) const;
    COrxPoint3dArray& operator+=(COrxPoint3dArray const& other);

    // Index of the first point equal to p under point tolerance, else -1.
    int indexOf(COrxPoint3d const& p) const;
    // As above; i untouched when nothing is found.
    bool indexOf(COrxPoint3d const& p, unsigned long& i) const;
    // At least 3 points and the first equals the last (point tolerance).
    bool isClosed() const;
    // Component-wise minimum and maximum of all points; false for an empty array, min and
    // max untouched.
    bool extents(COrxPoint3d& min, COrxPoint3d& max) const;
    // Ray parity against the polygon through the points (closed from the last point back to
    // the first): the ray runs from p for 1e9 units towards the midpoint of the first two
    // points; no re-aiming when it passes through a corner; planar. False for fewer than 3
    // points. (Defined with the segments, in orx/polyline/point_array_inside.cpp.)
    bool ptInside(COrxPoint3d const& p) const;
    // The same object, or the same length with pairwise equal points (point tolerance).
    bool operator==(COrxPoint3dArray const& other) const;
    bool operator!=(COrxPoint3dArray const& other) const;

    // In-place transformations of every point, each returning *this.
    COrxPoint3dArray& move(COrxVector3d const& v);
    COrxPoint3dArray& transformBy(double const (*m)[4]);
    // About the Z axis through centre; an angle of exactly 0.0 leaves the points untouched.
    COrxPoint3dArray& rotate(double angle, COrxPoint3d const& centre);
    // Mirrors at the line through p with direction angle in the XY plane.
    COrxPoint3dArray& mirror(double angle, COrxPoint3d const& p);
    COrxPoint3dArray getTransformedCopy(double const (*m)[4]) const;
    COrxPoint3dArray reverse() const;
    COrxPoint3dArray& revert();

    // Orders the points by their projection on dir rounded to COrxPoint3d::tol; points whose
    // rounded projections agree keep their relative order (stable), and dir is not
    // normalised (its length scales the projection before rounding). Points whose
    // projection is NaN go last, in their order. Fewer than 2 points: nothing changes.
    COrxPoint3dArray& sort(COrxVector3d const& dir);
    // Along the unit direction of angle in the XY plane.
    COrxPoint3dArray& sort(double angle);

protected:
    // Calls the COrxArray body for the new counts; when it raises the capacity, a block of
    // that many points replaces the old one (the old points moved over). Returns the new
    // logical length, or the old one when the block could not grow.
    int setLength(int n) override;

private:
    // p lies in the block at an index from 0 to the length inclusive.
    bool isMember(COrxPoint3d const& p) const;
    void resetSlots(int from, int to);
    static COrxPoint3d& mutableDummy();
    static COrxPoint3d const& constDummy();

    COrxPoint3d* m_points;
};

#endif  // ORX_GEOM_POINT_ARRAY_H
