// The invariants the fuzz targets check, and the stop when one fails.
//
// A failed check prints what failed and aborts, which the fuzzer reports as a crash (and keeps
// the input) and the replay program as a failed test.
#ifndef ORX_FUZZ_SUPPORT_CHECKS_H
#define ORX_FUZZ_SUPPORT_CHECKS_H

#include "orx/geom/point.h"
#include "orx/polyline/vertex_array.h"
#include "shapes.h"

// Aborts with `what` unless ok.
void fuzzCheck(bool ok, char const* what);

bool isFinite(COrxPoint3d const& p);
// Every point and bulge finite.
bool isFinite(COrxVertexArray const& vl);
bool isFinite(Region const& region);

// The same segments value for value (NaN equal to NaN): an operation that failed left the
// polyline as it was.
bool isIdentical(COrxVertexArray const& a, COrxVertexArray const& b);

// The polyline is a sequence of closed loops: cut into runs of segments that meet (point
// tolerance), every run ends where it starts.
bool isClosedLoops(COrxVertexArray const& vl);

// Coordinates within +-1e7 (site coordinates) and bulges within +-1e3 (arcs short of the full
// circle by a thousandth of a turn): where rounding stays far below the point tolerance, so
// that metric checks (a point found lies on the polyline) hold exactly to the tolerance.
bool isModerate(COrxPoint3d const& p);
bool isModerate(COrxVertexArray const& vl);

// With the environment variable ORX_FUZZ_SHOW set, prints the polyline to standard error as a
// JSON list of polylines that `orx render` draws (one per run of segments that meet), with
// every number in round-trip precision: to look at the operands of a failing input.
void showOperand(char const* name, COrxVertexArray const& vl);
void showOperand(char const* name, Region const& region);
void showPoint(char const* name, COrxPoint3d const& p);

// The plan distance from p to the nearest segment of vl; infinity for an empty polyline.
double distanceTo(COrxVertexArray const& vl, COrxPoint3d const& p);

#endif  // ORX_FUZZ_SUPPORT_CHECKS_H
