// Bringing a direction angle into [0, 2pi): the primitive under the angle functions of the
// plane geometry, kept here because the point-list functions of this layer sort by it too.
#ifndef ORX_GEOM_SHARED_ANGLE_RANGE_H
#define ORX_GEOM_SHARED_ANGLE_RANGE_H

namespace ORX {

// A value this close to 2pi is taken as 0 when an angle is brought into [0, 2pi).
constexpr double kTwoPiSnap = 1e-8;
// Larger angles are reduced by a remainder before the normalising loops, which would
// otherwise take too long (or forever, once 2pi is below the value's precision).
constexpr double kMaxLoopAngle = 1.0e5;

namespace internal {

// w itself for ordinary angles; beyond kMaxLoopAngle the exact remainder of w by period, so
// that a normalising loop over w stays short.
double shortenForLoop(double w, double period);

// w in [0, 2pi): NaN for NaN or infinite w; 0 within kTwoPiSnap of 2pi; otherwise 2pi is
// subtracted while w >= 2pi and added while w < 0 (repeated steps, not a remainder, so a tiny
// negative w gives 2pi itself).
double angleInTurn(double w);

}  // namespace internal
}  // namespace ORX

#endif  // ORX_GEOM_SHARED_ANGLE_RANGE_H
