// The exported array instantiations for polylines: lists of polylines and lists of regions.
#include "orx/foundation/array_templ_impl.h"
#include "orx/polyline/vertex_array.h"

ORX_INSTANTIATE(COrxArrayTempl<COrxVertexArray>);
ORX_INSTANTIATE(COrxArrayTempl<COrxArrayTempl<COrxVertexArray>>);
