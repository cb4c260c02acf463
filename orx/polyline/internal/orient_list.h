// setOrient for either kind of polyline list.
#ifndef ORX_POLYLINE_INTERNAL_ORIENT_LIST_H
#define ORX_POLYLINE_INTERNAL_ORIENT_LIST_H

#include "orx/foundation/array_templ.h"
#include "orx/foundation/shared/index_range.h"
#include "orx/polyline/polyline_functions.h"

namespace ORX {
namespace internal {

// Reverts every closed polyline that does not run counter-clockwise seen from normal.
template <class Polyline>
COrxArrayTempl<Polyline>& orientClosed(COrxArrayTempl<Polyline>& list, COrxVector3d const& normal) {
    for (int k : ORX::internal::indices(list)) {
        Polyline& vl = list[k];
        if (vl.isClosed() && !g_vl_orient(vl, normal)) {
            vl.revert();
        }
    }
    return list;
}

}  // namespace internal
}  // namespace ORX

#endif  // ORX_POLYLINE_INTERNAL_ORIENT_LIST_H
