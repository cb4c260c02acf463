// Appending points to a list unless an equal one (COrxPoint3d::operator==, within the point
// tolerance) is there already, as COrxPoint3dArray::appendUniq does, without comparing each
// new point with the whole list.
//
// The points are filed by cell (PointCells); a new point is compared only with those filed
// in the cells around it, which hold every point that can equal it. The list that results is
// exactly the one appendUniq builds: the same points, in the same order.
#ifndef ORX_GEOM_SHARED_UNIQUE_POINTS_H
#define ORX_GEOM_SHARED_UNIQUE_POINTS_H

#include "orx/geom/point_array.h"
#include "orx/geom/shared/point_cells.h"

namespace ORX {
namespace internal {

class UniquePoints {
public:
    // Appends to `points`, whose present points count as there already. The list must not
    // change otherwise while this object lives.
    explicit UniquePoints(COrxPoint3dArray& points);

    // Appends p unless a point equal to it is in the list.
    void add(COrxPoint3d const& p);

private:
    bool holds(COrxPoint3d const& p) const;
    void refile(int capacity);

    COrxPoint3dArray& m_points;
    int m_capacity = 0;
    PointCells m_cells;
};

}  // namespace internal
}  // namespace ORX

#endif  // ORX_GEOM_SHARED_UNIQUE_POINTS_H
