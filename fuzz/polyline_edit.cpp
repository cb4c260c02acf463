// Fuzz target: a decoded sequence of edits and queries on one polyline (COrxVertexArray), with
// the corner, split and segment offset functions among them. Each step checks what its
// contract promises in a few comparisons: the length a cut keeps, a point found lies on the
// polyline, a failed fillet leaves the polyline as it was.
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "orx/polyline/corners.h"
#include "orx/polyline/segment_offset.h"
#include "orx/polyline/split.h"
#include "support/checks.h"
#include "support/fuzz_input.h"
#include "support/shapes.h"

namespace {

// The polyline stops growing here: joins could otherwise double it at every step.
constexpr int kMaxSegments = 256;
// Rounding allowance of the length checks, relative to the length.
constexpr double kLengthRounding = 1e-9;

double tol() {
    return COrxPoint3d::tol;
}

// A segment index, now and then one out of range or counted from the end.
int decodeIndex(FuzzInput& in, COrxVertexArray const& vl) {
    return in.between(-2, vl.len() + 1);
}

// A point on the polyline (a segment's midpoint or end) or anywhere.
COrxPoint3d decodeNearPoint(FuzzInput& in, COrxVertexArray const& vl) {
    if (vl.isEmpty() || in.below(4) == 0) {
        return decodePoint(in);
    }
    COrxVertex const& s = vl[static_cast<int>(in.below(static_cast<unsigned>(vl.len())))];
    switch (in.below(3)) {
        case 0:
            return s.mid();
        case 1:
            return s.startPoint();
        default:
            return s.endPoint();
    }
}

// All points at one height: an arc between two heights has no defined length (its length
// is taken from the slanted chord), so the length checks leave such polylines out.
bool isLevel(COrxVertexArray const& vl) {
    for (int i = 0; i < vl.len(); ++i) {
        if (vl[i].startPoint().z != vl[0].startPoint().z ||
            vl[i].endPoint().z != vl[0].startPoint().z) {
            return false;
        }
    }
    return true;
}

// The metric checks hold to the tolerance where rounding stays far below it.
bool measurable(COrxVertexArray const& vl) {
    return isFinite(vl) && isModerate(vl) && isLevel(vl);
}

bool sameLength(double before, double after, int segments) {
    return std::fabs(after - before) <= kLengthRounding * before + 4 * tol() * (segments + 1);
}

void breakAt(FuzzInput& in, COrxVertexArray& vl) {
    int const i = decodeIndex(in, vl);
    COrxPoint3d const p = decodeNearPoint(in, vl);
    showPoint("at", p);
    int const n = vl.len();
    bool const measured = measurable(vl);
    double const length = vl.geomLength();
    vl.breakVertex(i, p);
    fuzzCheck(vl.len() == n || vl.len() == n + 1, "breakVertex adds at most one segment");
    if (measured && std::isfinite(p.x) && std::isfinite(p.y)) {
        fuzzCheck(sameLength(length, vl.geomLength(), n), "breakVertex keeps the length");
    }
}

void normalise(FuzzInput& in, COrxVertexArray& vl) {
    int const n = vl.len();
    bool const finite = isFinite(vl);
    vl.norm(in.flag());
    fuzzCheck(vl.len() <= n, "norm adds no segment");
    fuzzCheck(!finite || isFinite(vl), "norm keeps a finite polyline finite");
}

void offsetBy(FuzzInput& in, COrxVertexArray& vl) {
    double const d = in.number();
    vl.offset(d, in.flag());
    // An offset by 0 returns at once, whatever the polyline holds.
    fuzzCheck(d == 0.0 || isFinite(vl), "offset gives a finite polyline or none");
}

void joinWith(FuzzInput& in, COrxVertexArray& vl) {
    COrxVertexArray const other = decodePolyline(in, false, 4);
    int const n = vl.len();
    if (vl.join(other, in.flag())) {
        fuzzCheck(vl.len() == n + other.len(), "join appends every segment of the other");
    }
}

void removeOne(FuzzInput& in, COrxVertexArray& vl) {
    unsigned const i = in.below(static_cast<unsigned>(vl.len()) + 2);
    int const n = vl.len();
    vl.remove(i, in.flag());
    fuzzCheck(vl.len() == (static_cast<int>(i) < n ? n - 1 : n), "remove drops one segment");
}

void insertOne(FuzzInput& in, COrxVertexArray& vl) {
    unsigned const i = in.below(static_cast<unsigned>(vl.len()) + 2);
    int const n = vl.len();
    vl.insertAt(i, decodeSegment(in));
    fuzzCheck(vl.len() == n + 1, "insertAt adds one segment");
}

void closeGaps(FuzzInput& in, COrxVertexArray& vl) {
    vl.close(in.flag());
    // A NaN point meets nothing, not even the segment bridging to it.
    fuzzCheck(!isFinite(vl) || vl.numOpens() == 0, "close leaves no gap between segments");
}

void listPoints(FuzzInput& in, COrxVertexArray& vl) {
    double const tolerances[] = {1e-3, 0.01, 0.1, 1.0, 10.0};
    bool const tessellate = in.flag();
    COrxPoint3dArray const pts = vl.pts(tessellate, tolerances[in.below(5)]);
    fuzzCheck(vl.isEmpty() || !pts.isEmpty(), "pts lists the corners");
}

void boxAround(FuzzInput&, COrxVertexArray& vl) {
    COrxPoint3d low, high;
    if (!vl.extents(low, high) || !isFinite(vl)) {
        return;
    }
    fuzzCheck(low.x <= high.x && low.y <= high.y, "extents: the minimum below the maximum");
    for (int i = 0; i < vl.len(); ++i) {
        for (COrxPoint3d const& p : {vl[i].startPoint(), vl[i].endPoint()}) {
            fuzzCheck(p.x >= low.x - tol() && p.x <= high.x + tol() && p.y >= low.y - tol() &&
                          p.y <= high.y + tol(),
                      "extents hold every end point");
        }
    }
}

void distanceAlong(FuzzInput& in, COrxVertexArray& vl) {
    COrxPoint3d const p = decodeNearPoint(in, vl);
    double d = 0.0;
    if (vl.distAtPoint(d, p) && measurable(vl)) {
        double const length = vl.geomLength();
        fuzzCheck(d >= -tol() && d <= length + 2 * tol() + kLengthRounding * length,
                  "distAtPoint lies within the length");
    }
    fuzzCheck(!vl.isPoint(p) || !measurable(vl) || vl.distAtPoint(d, p),
              "distAtPoint finds a point that isPoint accepts");
}

void pointAlong(FuzzInput& in, COrxVertexArray& vl) {
    double const length = vl.geomLength();
    double const d = in.flag() ? in.number() : length * in.below(65) / 64.0;
    COrxPoint3d p;
    if (vl.pointAtDist(p, d) && measurable(vl)) {
        fuzzCheck(distanceTo(vl, p) <= 2 * tol(), "pointAtDist gives a point on the polyline");
    }
}

void midpointOn(FuzzInput& in, COrxVertexArray& vl) {
    if (vl.isEmpty() || !measurable(vl)) {
        return;
    }
    COrxVertex const& s = vl[static_cast<int>(in.below(static_cast<unsigned>(vl.len())))];
    fuzzCheck(vl.isPoint(s.mid()), "a segment's midpoint lies on the polyline");
}

void meetOther(FuzzInput& in, COrxVertexArray& vl) {
    COrxVertexArray const other = decodePolyline(in, in.flag(), 6);
    unsigned const filters = in.below(8);
    unsigned const flags = filters | (in.below(4) == 0 ? COrxVertex::kExtended : 0u);
    COrxPoint3dArray const pts = vl.intersectWith(other, flags);
    if ((flags & COrxVertex::kExtended) != 0 || !measurable(vl) || !measurable(other)) {
        return;
    }
    for (int k = 0; k < pts.len(); ++k) {
        fuzzCheck(distanceTo(vl, pts[k]) <= 2 * tol() && distanceTo(other, pts[k]) <= 2 * tol(),
                  "intersectWith gives points on both polylines");
    }
}

// A fillet or chamfer either succeeds or leaves the polyline exactly as it was.
void roundCorners(FuzzInput& in, COrxVertexArray& vl) {
    COrxVertexArray const before = vl;
    int const corner = decodeIndex(in, vl);
    double const a = in.number();
    double const b = in.number();
    bool done = false;
    switch (in.below(5)) {
        case 0:
            done = ORX::g_vl_fillet(vl, corner, a);
            break;
        case 1:
            done = ORX::g_vl_chamfer(vl, corner, a, b);
            break;
        case 2:
            done = ORX::g_vl_fillet_all(vl, a);
            break;
        case 3:
            done = ORX::g_vl_chamfer_all(vl, a, b);
            break;
        default:
            done = ORX::g_vl_chamfer_all(vl, a);
            break;
    }
    fuzzCheck(done || isIdentical(vl, before), "a failed fillet or chamfer changes nothing");
    fuzzCheck(!done || !isFinite(before) || isFinite(vl), "fillets and chamfers stay finite");
}

void moveOneSegment(FuzzInput& in, COrxVertexArray& vl) {
    COrxVertexArray const before = vl;
    int const i = decodeIndex(in, vl);
    bool const done = ORX::g_vl_offset_vx(vl, i, in.number());
    fuzzCheck(done || isIdentical(vl, before), "a failed segment offset changes nothing");
    fuzzCheck(!done || !isFinite(before) || isFinite(vl), "a segment offset stays finite");
}

void checkPieces(COrxVertexArray const& vl, COrxArrayTempl<COrxVertexArray> const& pieces,
                 int cuts) {
    int const most = vl.isClosed() ? (cuts > 1 ? cuts : 1) : cuts + 1;
    fuzzCheck(vl.isEmpty() == pieces.isEmpty(), "split gives pieces of a polyline");
    fuzzCheck(static_cast<int>(pieces.len()) <= most, "split gives at most one piece a cut");
    if (!measurable(vl)) {
        return;
    }
    double total = 0.0;
    for (unsigned long k = 0; k < pieces.len(); ++k) {
        total += pieces[static_cast<int>(k)].geomLength();
    }
    fuzzCheck(sameLength(vl.geomLength(), total, vl.len() + cuts), "split pieces add up");
}

void splitUp(FuzzInput& in, COrxVertexArray& vl) {
    int const cuts = in.between(0, 4);
    if (in.flag()) {
        COrxPoint3dArray points;
        for (int k = 0; k < cuts; ++k) {
            points.append(decodeNearPoint(in, vl));
        }
        checkPieces(vl, ORX::g_vl_split(vl, points), cuts);
        return;
    }
    COrxArrayTempl<double> distances;
    double const length = vl.geomLength();
    for (int k = 0; k < cuts; ++k) {
        distances.append(in.flag() ? in.number() : length * in.below(33) / 32.0);
    }
    checkPieces(vl, ORX::g_vl_split_dist(vl, distances), cuts);
}

using Step = void (*)(FuzzInput&, COrxVertexArray&);

void showStep(unsigned step, COrxVertexArray const& vl) {
    char const* const names[] = {
        "break",   "norm",     "offset",    "join",    "remove",
        "insert",  "close",    "pts",       "extents", "distAt",
        "pointAt", "midpoint", "intersect", "corners", "offset one segment",
        "split"};
    showOperand(names[step], vl);
}

Step const kSteps[] = {breakAt,   normalise,     offsetBy,       joinWith,
                       removeOne, insertOne,     closeGaps,      listPoints,
                       boxAround, distanceAlong, pointAlong,     midpointOn,
                       meetOther, roundCorners,  moveOneSegment, splitUp};
constexpr unsigned kStepCount = sizeof(kSteps) / sizeof(kSteps[0]);

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    FuzzInput in(data, size);
    COrxVertexArray vl = in.flag() ? decodeLoop(in) : decodePolyline(in, false, 12);
    int const steps = in.between(1, 8);
    for (int k = 0; k < steps && vl.len() <= kMaxSegments; ++k) {
        unsigned const step = in.below(kStepCount);
        showStep(step, vl);
        kSteps[step](in, vl);
    }
    return 0;
}
