// The exported instantiations of COrxArrayTempl for scalar elements.
#include "orx/foundation/array_templ_impl.h"

ORX_INSTANTIATE(COrxArrayTempl<unsigned char>);
ORX_INSTANTIATE(COrxArrayTempl<short>);
ORX_INSTANTIATE(COrxArrayTempl<int>);
ORX_INSTANTIATE(COrxArrayTempl<double>);
ORX_INSTANTIATE(COrxArrayTempl<void*>);
