#include "orx/regions/region_lists.h"
#include "orx/foundation/shared/index_range.h"

namespace {

// Element-wise conversion of one list type into another through the element's conversion.
template <class To, class From>
COrxArrayTempl<To> convertList(COrxArrayTempl<From> const& from) {
    COrxArrayTempl<To> to;
    to.setLogicalLength(from.len());
    for (int k : ORX::internal::indices(from)) {
        to[k] = To(from[k]);
    }
    return to;
}

template <class To, class From>
COrxArrayTempl<COrxArrayTempl<To>> convertRegions(
    COrxArrayTempl<COrxArrayTempl<From>> const& from) {
    COrxArrayTempl<COrxArrayTempl<To>> to;
    to.setLogicalLength(from.len());
    for (int k : ORX::internal::indices(from)) {
        to[k] = convertList<To>(from[k]);
    }
    return to;
}

}  // namespace

COrxArrayTempl<COrxArrayTempl<COrxVertexArray>> orxReglExToRegl(
    COrxArrayTempl<COrxArrayTempl<COrxVertexArrayEx>> const& regions) {
    return convertRegions<COrxVertexArray>(regions);
}

COrxArrayTempl<COrxArrayTempl<COrxVertexArrayEx>> orxReglToReglEx(
    COrxArrayTempl<COrxArrayTempl<COrxVertexArray>> const& regions) {
    return convertRegions<COrxVertexArrayEx>(regions);
}

COrxArrayTempl<COrxVertexArray> orxVllExToVll(COrxArrayTempl<COrxVertexArrayEx> const& loops) {
    return convertList<COrxVertexArray>(loops);
}

COrxArrayTempl<COrxVertexArrayEx> orxVllToVllEx(COrxArrayTempl<COrxVertexArray> const& loops) {
    return convertList<COrxVertexArrayEx>(loops);
}

COrxArrayTempl<COrxVertexArray> orx_g_gvll(COrxArrayTempl<COrxVertexArrayEx> const& loops) {
    return orxVllExToVll(loops);
}

COrxArrayTempl<COrxVertexArray>& orx_g_vll_move(COrxArrayTempl<COrxVertexArray>& loops,
                                                COrxVector3d const& v) {
    for (int k : ORX::internal::indices(loops)) {
        loops[k].move(v);
    }
    return loops;
}
