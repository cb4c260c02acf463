#include "orx/regions/region_building.h"

#include <algorithm>
#include <vector>

#include "orx/polyline/polyline_functions.h"
#include "orx/polyline/shared/segment_box.h"
#include "orx/polyline/shared/segment_grid.h"
#include "orx/regions/bool_operation.h"
#include "orx/regions/region.h"

namespace ORX {

namespace {

using Region = COrxArrayTempl<COrxVertexArray>;
using RegionList = COrxArrayTempl<Region>;
using Containers = std::vector<std::vector<int>>;

// Removes from every list the containers that contain another container of the same list,
// until each list names only its direct container. False when the nesting contradicts
// itself (a pass removes nothing while some list still has several entries).
bool reduceToDirectContainers(Containers& containers) {
    Containers const all = containers;
    auto contains = [&all](int outer, int inner) {
        return std::find(all[inner].begin(), all[inner].end(), outer) != all[inner].end();
    };
    for (std::vector<int>& list : containers) {
        if (list.size() < 2) {
            continue;
        }
        std::vector<int> direct;
        for (int candidate : list) {
            bool const holdsAnother = std::any_of(list.begin(), list.end(), [&](int other) {
                return other != candidate && contains(candidate, other);
            });
            if (!holdsAnother) {
                direct.push_back(candidate);
            }
        }
        if (direct.size() != 1) {
            return false;
        }
        list = direct;
    }
    return true;
}

}  // namespace

bool g_vl_vl_inside(COrxVertexArray const& i, COrxVertexArray const& j) {
    if (i.len() < 2) {
        return false;
    }
    COrxPoint3dArray pts;
    return !i.intersectWith(pts, j, 0) && g_vl_pt_inside(j, i[0].mid(), false);
}

RegionList g_vll_regions(Region const& loops, unsigned long flags) {
    int const n = static_cast<int>(loops.len());
    std::vector<bool> crossing(static_cast<std::size_t>(n), false);
    Containers containers(static_cast<std::size_t>(n));
    COrxPoint3dArray pts;
    // Two loops can meet, and one can hold the other's first midpoint, only where their
    // boxes overlap: the others are skipped (rand() is then called less often than by
    // asking every pair).
    internal::SegmentBoxes boxes;
    boxes.reserve(static_cast<std::size_t>(n));
    for (int i = 0; i < n; ++i) {
        boxes.push_back(internal::polylineBox(loops[i]));
    }
    internal::SegmentGrid const grid(boxes);
    std::vector<int> near;
    for (int i = 0; i < n; ++i) {
        grid.query(boxes[static_cast<std::size_t>(i)], near);
        for (int j : near) {
            if (i == j || !internal::mayOverlap(boxes[static_cast<std::size_t>(i)],
                                                boxes[static_cast<std::size_t>(j)])) {
                continue;
            }
            if (loops[i].intersectWith(pts, loops[j], 0)) {
                crossing[i] = crossing[j] = true;
            } else if (g_vl_vl_inside(loops[i], loops[j])) {
                containers[i].insert(containers[i].begin(), j);
            }
        }
    }
    std::vector<bool> excluded(static_cast<std::size_t>(n), false);
    if ((flags & kRegionsKeepCrossing) == 0) {
        excluded = crossing;
        for (std::vector<int>& list : containers) {
            list.erase(std::remove_if(list.begin(), list.end(), [&](int c) { return excluded[c]; }),
                       list.end());
        }
    }
    std::vector<std::size_t> depth(static_cast<std::size_t>(n));
    for (int i = 0; i < n; ++i) {
        depth[i] = containers[i].size();
    }
    if (!reduceToDirectContainers(containers)) {
        return RegionList();
    }

    RegionList regions;
    std::vector<int> regionOf(static_cast<std::size_t>(n), -1);
    auto startRegion = [&](int i) {
        Region region;
        regionOf[i] = static_cast<int>(regions.len());
        regions.append(region.append(loops[i]));
    };
    for (int i = 0; i < n; ++i) {
        if (!excluded[i] && depth[i] == 0) {
            startRegion(i);
        }
    }
    if ((flags & kRegionsDropIslands) == 0) {
        for (int i = 0; i < n; ++i) {
            if (!excluded[i] && depth[i] > 0 && depth[i] % 2 == 0) {
                startRegion(i);
            }
        }
    }
    if ((flags & kRegionsOuterOnly) == 0) {
        for (int i = 0; i < n; ++i) {
            if (excluded[i] || depth[i] % 2 == 0) {
                continue;
            }
            int const region = regionOf[containers[i].front()];
            if (region >= 0) {
                regions[region].append(loops[i]);
            }
        }
    }
    return regions;
}

Region& g_vll_regions_prepare(Region& loops) {
    for (int k = static_cast<int>(loops.len()) - 1; k >= 0; --k) {
        if (loops[k].isEmpty() || !loops[k].isClosed()) {
            loops.removeAt(static_cast<unsigned long>(k));
        }
    }
    return setOrient(loops, refNormal());
}

}  // namespace ORX
