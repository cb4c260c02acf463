// The exported map instantiations.
#include "orx/foundation/map_impl.h"

ORX_INSTANTIATE(COrxMapTempl<int, COrxString>);
ORX_INSTANTIATE(COrxMapTempl<COrxString, COrxString>);
ORX_INSTANTIATE(COrxMapTempl<COrxString, COrxArrayTempl<COrxString>>);
