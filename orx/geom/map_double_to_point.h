// ORX::CMapDoubleToPoint: a list of (parameter, point) pairs that sorts by the parameter.
//
// The base array holds the parameters and a point list member holds the points; index i
// pairs parameter i with point i, and both lists always have the same length. Every member of
// the base array that would change the length or the order of the parameters alone is either
// redefined here to edit both lists, or hidden (the ones that have no meaning for a pair:
// appendUniq, consUniq, remove and the set operators). The base array's members that only
// read, or that return a copy of the parameters, stay as they are.
//
//     ORX::CMapDoubleToPoint along;
//     along.append(2.0, COrxPoint3d(2, 0, 0));
//     along.append(1.0, COrxPoint3d(1, 0, 0));
//     along.sort();                   // ascending parameters, equal ones keep their order
//     double t;
//     COrxPoint3d q;
//     along.getAt(0, t, q);           // t = 1, q = (1, 0, 0)
#ifndef ORX_GEOM_MAP_DOUBLE_TO_POINT_H
#define ORX_GEOM_MAP_DOUBLE_TO_POINT_H

#include "orx/foundation/array_templ.h"
#include "orx/geom/point.h"
#include "orx/geom/point_array.h"

namespace ORX {

class ORX_API CMapDoubleToPoint : public COrxArrayTempl<double> {
public:
    CMapDoubleToPoint();
    CMapDoubleToPoint(CMapDoubleToPoint const& other);
    ~CMapDoubleToPoint() override;
    CMapDoubleToPoint& operator=(CMapDoubleToPoint const& other);

    // Adds the pair at the end; false (nothing changed) when the lists cannot grow.
    bool append(double t, COrxPoint3d const& p);
    // Inserts the pair at 0 <= i <= length; false, nothing changed, for any other index.
    bool insertAt(int i, double t, COrxPoint3d const& p);
    // The pair at 0 <= i < length; false, outputs untouched, for any other index.
    bool getAt(int i, double& t, COrxPoint3d& p) const;
    // Sets the length of both lists (new pairs are (uninitialised parameter, (0, 0, 0)));
    // returns the new length, the old one when the lists cannot grow.
    unsigned long setLogicalLength(unsigned long n);

    // Edits of the base array, applied to both lists.
    // Removes every pair.
    CMapDoubleToPoint& removeAll();
    // Removes pair i; an index not below the length changes nothing.
    CMapDoubleToPoint& removeAt(unsigned long i);
    // Reverses the order of the pairs.
    CMapDoubleToPoint& revert();
    // Exchanges pairs i and j; nothing happens unless both are below the length.
    void swap(unsigned long i, unsigned long j);
    // The parameter at i, as the base array answers it; an index past the end first extends
    // both lists to i + 1 pairs (new pairs as setLogicalLength makes them). When the lists
    // cannot grow, a dummy parameter outside the map is returned.
    double& operator[](int i);
    double const& operator[](int i) const;

    COrxArrayTempl<double> getDbLst() const;
    COrxPoint3dArray getPtLst() const;

    // Orders the pairs by ascending parameter; pairs with equal parameters keep their order.
    // The distinct parameters (exact equality) are sorted, then for each of them the old
    // lists are walked from the start and every pair with that parameter is taken over.
    // Quadratic in the number of pairs, which suits the short lists it serves. Pairs whose
    // parameter is NaN (equal to nothing) follow at the end in their order. False for an
    // empty map, which stays as it is.
    bool sort();

private:
    // Would add, move or remove a parameter without its point.
    using COrxArrayTempl<double>::appendUniq;
    using COrxArrayTempl<double>::consUniq;
    using COrxArrayTempl<double>::remove;
    using COrxArrayTempl<double>::operator+=;
    using COrxArrayTempl<double>::operator&=;
    using COrxArrayTempl<double>::operator|=;

    COrxPoint3dArray m_points;
};

}  // namespace ORX

#endif  // ORX_GEOM_MAP_DOUBLE_TO_POINT_H
