// The exported array instantiation of the mesh: its face lists. Kept apart from mesh.cpp,
// since COrxMesh's member would instantiate the type before the definition line.
#include "orx/foundation/array_templ_impl.h"

ORX_INSTANTIATE(COrxArrayTempl<COrxArrayTempl<short>>);
