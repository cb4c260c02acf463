// ORX::CMapDoubleToPoint: a list of (parameter, point) pairs that sorts by the parameter.
//
// The base array holds the parameters and a point list member holds the points; index i
// pairs parameter i with point i, and both lists always have the same length as long as the
// pairs are edited through the members below (the base array's own editing members act on the
// parameters only and are not meant for this class).
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
    COrxPoint3dArray m_points;
};

}  // namespace ORX

#endif  // ORX_GEOM_MAP_DOUBLE_TO_POINT_H
