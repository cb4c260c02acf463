// The extended forms of the boolean and region operations: the plain operations on the
// polylines, results converted back with default attributes.
#include "orx/foundation/shared/index_range.h"
#include "orx/regions/bool_operation.h"
#include "orx/regions/region.h"
#include "orx/regions/region_building.h"
#include "orx/regions/region_lists.h"

namespace ORX {

namespace {

using RegionEx = COrxArrayTempl<COrxVertexArrayEx>;
using RegionListEx = COrxArrayTempl<RegionEx>;
using RegionList = COrxArrayTempl<COrxArrayTempl<COrxVertexArray>>;

// Runs a plain region operation and converts its output; out is only touched where the
// plain operation touched its own.
template <class Operation>
bool runPlain(Operation operation, RegionEx const& a, RegionEx const& b, RegionListEx& out) {
    RegionList plainOut = orxReglExToRegl(out);
    bool const result = operation(orxVllExToVll(a), orxVllExToVll(b), plainOut);
    if (plainOut != orxReglExToRegl(out)) {
        out = orxReglToReglEx(plainOut);
    }
    return result;
}

}  // namespace

COrxVertexArrayEx g_vl_bool(COrxVertexArrayEx a, COrxVertexArrayEx b,
                            COrxVertexArray::boolOper op) {
    return COrxVertexArrayEx(
        g_vl_bool(static_cast<COrxVertexArray>(a), static_cast<COrxVertexArray>(b), op));
}

int g_vll_pt_inside(RegionEx const& region, COrxPoint3d const& p) {
    return g_vll_pt_inside(orxVllExToVll(region), p);
}

bool g_region_union(RegionEx a, RegionEx b, RegionListEx& out) {
    return runPlain([](auto x, auto y, auto& o) { return g_region_union(x, y, o); }, a, b, out);
}

bool g_region_sect(RegionEx a, RegionEx b, RegionListEx& out) {
    return runPlain([](auto x, auto y, auto& o) { return g_region_sect(x, y, o); }, a, b, out);
}

bool g_region_diff(RegionEx a, RegionEx b, RegionListEx& out) {
    return runPlain([](auto x, auto y, auto& o) { return g_region_diff(x, y, o); }, a, b, out);
}

bool g_region_diff(RegionEx a, RegionListEx subs, RegionListEx& out) {
    RegionList from;
    from.append(orxVllExToVll(a));
    RegionList remaining;
    bool const result = reglDiff(from, orxReglExToRegl(subs), remaining);
    out = orxReglToReglEx(remaining);
    return result;
}

RegionEx g_vl_vll(COrxVertexArrayEx const& vl) {
    return orxVllToVllEx(g_vl_vll(static_cast<COrxVertexArray const&>(vl)));
}

RegionListEx g_vll_regions(RegionEx const& loops, unsigned long flags) {
    // Regions are built on the plain loops; each loop is then looked up to get its own
    // attributes back.
    RegionList const plain = g_vll_regions(orxVllExToVll(loops), flags);
    RegionListEx regions;
    for (int r : ORX::internal::indices(plain)) {
        RegionEx region;
        for (int k : ORX::internal::indices(plain[r])) {
            COrxVertexArray const& loop = plain[r][k];
            for (int l : ORX::internal::indices(loops)) {
                if (static_cast<COrxVertexArray const&>(loops[l]) == loop) {
                    region.append(loops[l]);
                    break;
                }
            }
        }
        regions.append(region);
    }
    return regions;
}

}  // namespace ORX
