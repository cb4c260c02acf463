// Bulge polylines: the segment (COrxVertex) and the polyline (COrxVertexArray).
#ifndef ORX_POLYLINE_POLYLINE_H
#define ORX_POLYLINE_POLYLINE_H

#endif  // ORX_POLYLINE_POLYLINE_H
