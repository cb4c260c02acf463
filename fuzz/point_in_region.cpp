// Fuzz target: where points lie in a region (g_vll_pt_inside, g_vl_pt_inside and the
// prepared COrxOutlineIndex). The points are chosen on the boundary (segment ends and
// midpoints), far outside, or anywhere. A point on a loop is on the boundary for every test;
// one beyond the region's box is outside; and the ray tests and the index agree about every
// point that keeps a clear distance from the loops.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "orx/regions/bool_operation.h"
#include "orx/regions/outline_index.h"
#include "orx/regions/region.h"
#include "support/checks.h"
#include "support/fuzz_input.h"
#include "support/shapes.h"

namespace {

constexpr int kPointsPerRegion = 8;
// The ray tests cast rays kPolylineRayLength long: regions and points within this bound
// are reached by them many times over.
constexpr double kMeasurable = 1e5;
// Points at least this far from every loop are clear of it: the ray tests and the index
// then must agree (a ray grazing a segment within the tolerance is the only way for them to
// differ, and a clear point's ray is re-aimed rather than graze).
constexpr double kClearance = 1e-3;

// A loop whose box (tight around its arcs) lies within kMeasurable: an arc of a huge bulge
// reaches far beyond its ends, and a ray shorter than the loop may miss it.
bool measurable(COrxVertexArray const& vl) {
    COrxPoint3d low, high;
    if (!isFinite(vl) || !vl.extents(low, high)) {
        return false;
    }
    return std::fabs(low.x) <= kMeasurable && std::fabs(low.y) <= kMeasurable &&
           std::fabs(high.x) <= kMeasurable && std::fabs(high.y) <= kMeasurable;
}

bool measurable(Region const& region) {
    for (int i = 0; i < static_cast<int>(region.len()); ++i) {
        if (!measurable(region[i])) {
            return false;
        }
    }
    return true;
}

// The box around every loop; false when there is none (no finite corner).
bool regionBox(Region const& region, COrxPoint3d& low, COrxPoint3d& high) {
    bool any = false;
    for (int i = 0; i < static_cast<int>(region.len()); ++i) {
        COrxPoint3d l, h;
        if (region[i].extents(l, h)) {
            low = any ? COrxPoint3d(std::fmin(low.x, l.x), std::fmin(low.y, l.y), 0) : l;
            high = any ? COrxPoint3d(std::fmax(high.x, h.x), std::fmax(high.y, h.y), 0) : h;
            any = true;
        }
    }
    return any;
}

// A query point: on a loop (onOuter when on the outer loop), beyond the region's box
// (farOutside), or anywhere.
COrxPoint3d decodeQuery(FuzzInput& in, Region const& region, bool& onLoop, bool& onOuter,
                        bool& farOutside) {
    onLoop = onOuter = farOutside = false;
    switch (in.below(4)) {
        case 0: {
            int const i = static_cast<int>(in.below(static_cast<unsigned>(region.len())));
            COrxVertexArray const& loop = region[i];
            if (loop.isEmpty()) {
                return COrxPoint3d();
            }
            onLoop = true;
            onOuter = i == 0;
            // The tests look at the plan: a segment whose ends meet there is a point on it,
            // though in space (ends at different heights) its midpoint lies elsewhere.
            COrxVertex s = loop[static_cast<int>(in.below(static_cast<unsigned>(loop.len())))];
            COrxPoint3d start = s.startPoint(), end = s.endPoint();
            start.z = end.z = 0.0;
            s.set(start, end, s.bulge());
            return in.flag() ? s.mid() : s.startPoint();
        }
        case 1: {
            COrxPoint3d low, high;
            if (!regionBox(region, low, high)) {
                return decodePoint(in);
            }
            farOutside = true;
            double const y = low.y + in.below(4) * ((high.y - low.y) / 3);
            return COrxPoint3d(high.x + 1 + in.below(100), y, 0);
        }
        default:
            return decodePoint(in);
    }
}

double distanceToRegion(Region const& region, COrxPoint3d const& p) {
    double nearest = std::numeric_limits<double>::infinity();
    for (int i = 0; i < static_cast<int>(region.len()); ++i) {
        nearest = std::fmin(nearest, distanceTo(region[i], p));
    }
    return nearest;
}

// What the loops' own answers make of the point: on a boundary, or inside an odd number of
// them (the index's rule for a list of loops).
int byParity(Region const& region, COrxPoint3d const& p) {
    int inside = 0;
    for (int i = 0; i < static_cast<int>(region.len()); ++i) {
        int const where = COrxOutlineIndex(region[i]).locate(p);
        if (where == 0) {
            return 0;
        }
        inside += where == 1 ? 1 : 0;
    }
    return inside % 2 == 1 ? 1 : -1;
}

void checkPoint(Region const& region, COrxOutlineIndex const& index, COrxPoint3d const& p,
                bool onLoop, bool onOuter, bool farOutside) {
    int const byRay = ORX::g_vll_pt_inside(region, p);
    int const byIndex = index.locate(p);
    fuzzCheck(byRay >= -1 && byRay <= 1 && byIndex >= -1 && byIndex <= 1, "1, 0 or -1");
    fuzzCheck(byIndex == byParity(region, p), "the index of a region counts its loops' answers");
    if (!measurable(region) || !(std::fabs(p.x) <= kMeasurable && std::fabs(p.y) <= kMeasurable)) {
        return;
    }
    // g_vll_pt_inside looks at the holes only inside the outer loop.
    fuzzCheck(!onOuter || byRay == 0, "g_vll_pt_inside: a point of the outer loop is on it");
    fuzzCheck(!onLoop || byIndex == 0, "locate: a point of a loop is on the boundary");
    if (farOutside) {
        fuzzCheck(byRay == -1 && byIndex == -1, "a point beyond the box is outside");
    }
    if (distanceToRegion(region, p) < kClearance) {
        return;
    }
    for (int i = 0; i < static_cast<int>(region.len()); ++i) {
        COrxVertexArray const& loop = region[i];
        if (loop.len() < 2) {
            continue;  // contains nothing for the ray test
        }
        bool const inLoop = ORX::g_vl_pt_inside(loop, p, false);
        if (inLoop != COrxOutlineIndex(loop).inside(p, false)) {
            showOperand("loop", loop);
            showPoint("point", p);
        }
        fuzzCheck(inLoop == COrxOutlineIndex(loop).inside(p, false),
                  "the ray test and the index agree off the boundary");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    FuzzInput in(data, size);
    Region const region = decodeRegion(in);
    showOperand("region", region);
    COrxOutlineIndex const index(region);
    COrxOutlineIndex const copy(index);
    for (int k = 0; k < kPointsPerRegion && !in.atEnd(); ++k) {
        bool onLoop, onOuter, farOutside;
        COrxPoint3d const p = decodeQuery(in, region, onLoop, onOuter, farOutside);
        showPoint("point", p);
        checkPoint(region, k % 2 == 0 ? index : copy, p, onLoop, onOuter, farOutside);
    }
    return 0;
}
