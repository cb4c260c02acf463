#include "region_operations.h"

#include "orx/regions/bool_operation.h"
#include "orx/regions/region.h"
#include "tool_error.h"

namespace orxtool {

namespace {

using RegionList = COrxArrayTempl<Region>;

// The library's own disjointness rule (the outer loops share no point and neither starts
// inside the other), so that merging stops exactly where the union would keep both apart.
bool regionsMeet(Region const& a, Region const& b) {
    COrxVertexArray const& outerA = a[0];
    COrxVertexArray const& outerB = b[0];
    COrxPoint3dArray common;
    return outerA.intersectWith(common, outerB, 0) ||
           ORX::g_vl_pt_inside(outerA, outerB[0].startPoint(), true) ||
           ORX::g_vl_pt_inside(outerB, outerA[0].startPoint(), true);
}

void appendAll(std::vector<Region>& to, RegionList const& from) {
    for (unsigned long i = 0; i < from.len(); ++i) {
        to.push_back(from[static_cast<int>(i)]);
    }
}

std::vector<Region> unite(std::vector<Region> regions, std::vector<Region> const& others) {
    for (Region merged : others) {
        // Every merge removes a region from the list, so this ends; the bound is a guard
        // against a union that hands back regions which still meet.
        std::size_t budget = (regions.size() + 1) * (regions.size() + others.size() + 1);
        for (std::size_t i = 0; i < regions.size() && budget > 0; --budget) {
            RegionList out;
            if (!regionsMeet(regions[i], merged) || !ORX::g_region_union(regions[i], merged, out) ||
                out.len() == 0) {
                ++i;
                continue;
            }
            regions.erase(regions.begin() + static_cast<std::ptrdiff_t>(i));
            merged = out[0];
            appendAll(regions, out.right(out.len() - 1));
            i = 0;
        }
        regions.push_back(merged);
    }
    return regions;
}

std::vector<Region> intersect(std::vector<Region> const& a, std::vector<Region> const& b) {
    std::vector<Region> result;
    for (Region const& ra : a) {
        for (Region const& rb : b) {
            RegionList out;
            if (ORX::g_region_sect(ra, rb, out)) {
                appendAll(result, out);
            }
        }
    }
    return result;
}

std::vector<Region> subtract(std::vector<Region> const& a, std::vector<Region> const& b) {
    RegionList subtrahends;
    for (Region const& rb : b) {
        subtrahends.append(rb);
    }
    std::vector<Region> result;
    for (Region const& ra : a) {
        RegionList from, out;
        from.append(ra);
        if (ORX::reglDiff(from, subtrahends, out)) {
            appendAll(result, out);
        }
    }
    return result;
}

}  // namespace

RegionOperation regionOperation(std::string const& name) {
    if (name == "union") {
        return RegionOperation::kUnion;
    }
    if (name == "sect") {
        return RegionOperation::kSect;
    }
    if (name == "diff") {
        return RegionOperation::kDiff;
    }
    throw ToolError("unknown operation '" + name + "' (use union, diff or sect)");
}

std::vector<Region> combineRegions(RegionOperation op, std::vector<Region> const& a,
                                   std::vector<Region> const& b) {
    switch (op) {
        case RegionOperation::kUnion:
            return unite(a, b);
        case RegionOperation::kSect:
            return intersect(a, b);
        case RegionOperation::kDiff:
            return subtract(a, b);
    }
    return {};
}

}  // namespace orxtool
