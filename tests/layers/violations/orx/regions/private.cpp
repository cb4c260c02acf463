// A regions source that takes a polyline-private header: the layer check must refuse it,
// while the shared header and the public one pass.
#include "orx/polyline/internal/run_merger.h"
#include "orx/polyline/shared/segment_box.h"
#include "orx/polyline/vertex_array.h"
