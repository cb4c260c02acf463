// The exported array instantiations for polylines: lists of polylines and lists of regions, plain
// and extended.
#include "orx/foundation/array_templ_impl.h"
#include "orx/polyline/vertex_array.h"
#include "orx/polyline/vertex_array_ex.h"

ORX_INSTANTIATE(COrxArrayTempl<COrxVertexArray>);
ORX_INSTANTIATE(COrxArrayTempl<COrxArrayTempl<COrxVertexArray>>);
ORX_INSTANTIATE(COrxArrayTempl<COrxVertexArrayEx>);
ORX_INSTANTIATE(COrxArrayTempl<COrxArrayTempl<COrxVertexArrayEx>>);
