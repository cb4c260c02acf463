// The exported array instantiations for points and vectors.
#include "orx/foundation/array_templ_impl.h"
#include "orx/geom/point.h"
#include "orx/geom/vector.h"

ORX_INSTANTIATE(COrxArrayTempl<COrxPoint3d>);
ORX_INSTANTIATE(COrxArrayTempl<COrxVector3d>);
