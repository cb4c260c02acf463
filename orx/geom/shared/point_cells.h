// Points filed by the square cell they fall in, for finding the points within the point
// tolerance of a given one without looking at all of them.
//
// The cells are two tolerances wide, so the points within the tolerance of p lie in the two
// by two cells around it. The cells are kept in a hash table of chained buckets; different
// cells may share a bucket, and absurd coordinates are folded into the outermost cells,
// which only adds candidates: the caller compares the points it is handed.
#ifndef ORX_GEOM_SHARED_POINT_CELLS_H
#define ORX_GEOM_SHARED_POINT_CELLS_H

#include <cstdint>
#include <vector>

#include "orx/foundation/shared/scratch_allocator.h"
#include "orx/geom/point.h"

namespace ORX {
namespace internal {

class PointCells {
public:
    // Room for `count` points; the cell width is fixed by the point tolerance now.
    explicit PointCells(int count);

    // Files point p under the number id (0 <= id < count, each id once).
    void add(COrxPoint3d const& p, int id);

    // Calls visit(id) for every point filed in the cells around p (a superset of those
    // within the tolerance of p; none twice).
    template <class Visit>
    void forEachNear(COrxPoint3d const& p, Visit visit) const {
        double const t = m_width / 2;
        std::int64_t const x0 = cellNumber(p.x - t), x1 = cellNumber(p.x + t);
        std::int64_t const y0 = cellNumber(p.y - t), y1 = cellNumber(p.y + t);
        // Two by two cells, three by three where rounding widens the range by a cell; two
        // cells may share a bucket, and each bucket is visited once.
        std::size_t buckets[9];
        int used = 0;
        for (std::int64_t x = x0; x <= x1; ++x) {
            for (std::int64_t y = y0; y <= y1; ++y) {
                std::size_t const b = bucket(x, y);
                bool seen = false;
                for (int k = 0; k < used; ++k) {
                    seen = seen || buckets[k] == b;
                }
                if (!seen) {
                    buckets[used++] = b;
                }
            }
        }
        for (int k = 0; k < used; ++k) {
            for (int id = m_head[buckets[k]]; id >= 0; id = m_next[static_cast<std::size_t>(id)]) {
                visit(id);
            }
        }
    }

private:
    std::int64_t cellNumber(double value) const;
    std::size_t bucket(std::int64_t x, std::int64_t y) const;

    double m_width;
    ScratchVector<int> m_head;  // per bucket: the last point filed in it, -1 for none
    ScratchVector<int> m_next;  // per point: the one filed before it in its bucket
};

}  // namespace internal
}  // namespace ORX

#endif  // ORX_GEOM_SHARED_POINT_CELLS_H
