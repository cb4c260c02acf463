// The exported array instantiation for strings.
#include "orx/foundation/array_templ_impl.h"
#include "orx/foundation/string.h"

ORX_INSTANTIATE(COrxArrayTempl<COrxString>);
