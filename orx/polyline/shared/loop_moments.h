// The area integrals of a closed bulge polyline, exact for arcs: Green's theorem over the
// chords (signed triangles from a local origin) plus the closed-form integrals of the
// circular segment between every arc and its chord.
#ifndef ORX_POLYLINE_SHARED_LOOP_MOMENTS_H
#define ORX_POLYLINE_SHARED_LOOP_MOMENTS_H

#include "orx/geom/point.h"
#include "orx/geom/shared/area_moments.h"
#include "orx/polyline/vertex_array.h"

namespace ORX {
namespace internal {

// Integrals over the circular segment between an arc and its chord, in the chord's frame:
// origin at the chord's midpoint, v along the chord, w across it towards the arc (w >= 0
// on the segment). The integrals of v and of v w vanish by symmetry.
struct SegmentMoments {
    double area;     // integral of 1
    double firstW;   // integral of w
    double secondV;  // integral of v^2
    double secondW;  // integral of w^2
};

// The segment of the arc with this chord length and bulge magnitude |bulge| > 0.
SegmentMoments circularSegmentMoments(double chord, double absBulge);

// The polyline is closed and every point and bulge of it is a finite number: what the
// integrals below need.
bool isFiniteLoop(COrxVertexArray const& vl);

// The signed integrals of the polyline's segments about origin, as if it were closed: the
// chord of every segment as a triangle from origin, plus each arc's circular segment,
// added for a positive bulge (the arc lies right of its chord) and subtracted for a
// negative one. A counter-clockwise loop gives a positive area. The caller checks that the
// polyline is a finite loop.
AreaMoments loopMoments(COrxVertexArray const& vl, COrxPoint3d const& origin);

}  // namespace internal
}  // namespace ORX

#endif  // ORX_POLYLINE_SHARED_LOOP_MOMENTS_H
