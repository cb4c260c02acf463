// Boolean operations on closed polylines and on regions with holes.
#ifndef ORX_REGIONS_REGIONS_H
#define ORX_REGIONS_REGIONS_H

#endif  // ORX_REGIONS_REGIONS_H
