// A geometry header that reaches up to the polylines: the layer check must refuse it.
#include "orx/geom/point.h"
#include "orx/polyline/vertex.h"
