// The Orx base library: containers and text, geometric primitives, bulge polylines with
// plane geometry, booleans, regions and profile outlines, and thin system services.
// Include this header for everything, or a subsystem's own header for one part.
#ifndef ORX_ORX_H
#define ORX_ORX_H

#include "orx/foundation/foundation.h"
#include "orx/geom/geom.h"
#include "orx/plane_geometry/plane_geometry.h"
#include "orx/polyline/polyline.h"
#include "orx/profiles/profiles.h"
#include "orx/regions/regions.h"
#include "orx/services/services.h"

#endif  // ORX_ORX_H
