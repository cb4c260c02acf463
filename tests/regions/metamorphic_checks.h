// What the metamorphic tests check on a result: every loop closes and no two loops cross.
#ifndef ORX_TESTS_REGIONS_METAMORPHIC_CHECKS_H
#define ORX_TESTS_REGIONS_METAMORPHIC_CHECKS_H

#include <algorithm>
#include <string>
#include <vector>

#include "orx/regions/regions.h"
#include "tests/support/shapes.h"

namespace orx_test {

// Every loop of a result, whichever operation made it.
inline Region loopsOf(COrxVertexArray const& vl) {
    return ORX::g_vl_vll(vl);
}

inline Region loopsOf(RegionList const& list) {
    Region loops;
    for (unsigned long r = 0; r < list.len(); ++r) {
        for (unsigned long k = 0; k < list[static_cast<int>(r)].len(); ++k) {
            loops.append(list[static_cast<int>(r)][static_cast<int>(k)]);
        }
    }
    return loops;
}

inline double perimeter(Region const& loops) {
    double total = 0;
    for (unsigned long k = 0; k < loops.len(); ++k) {
        total += loops[static_cast<int>(k)].geomLength();
    }
    return total;
}

inline bool allClosed(Region const& loops) {
    for (unsigned long k = 0; k < loops.len(); ++k) {
        if (!loops[static_cast<int>(k)].isClosed()) {
            return false;
        }
    }
    return true;
}

struct Box {
    COrxPoint3d lo, hi;
    COrxVertex const* segment;
};

// The ends of s lie on both sides of t's line or circle, each farther from it than the
// tolerance: s passes through t, not along it within rounding.
inline bool passesThrough(COrxVertex const& s, COrxVertex const& t) {
    bool left = false, right = false;
    for (COrxPoint3d const& p : {s.startPoint(), s.endPoint()}) {
        if (p.distanceTo(t.lotp(p)) > COrxPoint3d::tol) {
            (t.orientp(p) > 0 ? left : right) = true;
        }
    }
    return left && right;
}

// Two segments of the loops cross, away from their ends and deeper than the tolerance on
// both sides (shallow crossings of nearly coincident pieces at the rounding of large
// coordinates are not crossings of the outline): found by a sweep over the boxes in x.
inline bool anyCrossing(Region const& loops) {
    std::vector<Box> boxes;
    for (unsigned long l = 0; l < loops.len(); ++l) {
        COrxVertexArray const& loop = loops[static_cast<int>(l)];
        for (int k = 0; k < loop.len(); ++k) {
            Box box{pt(0, 0), pt(0, 0), &loop[k]};
            COrxVertexArray(loop[k]).extents(box.lo, box.hi);
            boxes.push_back(box);
        }
    }
    std::sort(boxes.begin(), boxes.end(),
              [](Box const& l, Box const& r) { return l.lo.x < r.lo.x; });
    unsigned const flags =
        COrxVertex::kSkipTangent | COrxVertex::kSkipOwnEnds | COrxVertex::kSkipOtherEnds;
    double const t = COrxPoint3d::tol;
    COrxPoint3dArray pts;
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        for (std::size_t j = i + 1; j < boxes.size() && boxes[j].lo.x <= boxes[i].hi.x + t; ++j) {
            if (boxes[j].lo.y > boxes[i].hi.y + t || boxes[j].hi.y < boxes[i].lo.y - t) {
                continue;
            }
            COrxVertex const& s = *boxes[i].segment;
            COrxVertex const& u = *boxes[j].segment;
            if (s.intersectWith(pts, u, flags) && passesThrough(s, u) && passesThrough(u, s)) {
                return true;
            }
        }
    }
    return false;
}

}  // namespace orx_test

#endif  // ORX_TESTS_REGIONS_METAMORPHIC_CHECKS_H
