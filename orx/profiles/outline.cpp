// ORX::g_outline: the fixed table of section codes and the dispatcher over it.
#include "orx/profiles/outline.h"

#include <cmath>
#include <cstdint>

#include "orx/foundation/shared/index_range.h"
#include "orx/polyline/polyline_functions.h"
#include "orx/polyline/shared/loop_moments.h"
#include "orx/profiles/internal/outline_generators.h"

namespace ORX {
namespace {

struct OutlineRecord {
    std::uint32_t code;
    internal::OutlineGenerator generate;
};

// The callers' vocabulary, in this order; codes 16, 20, 25, 26, 29 and 32 are deliberately
// absent.
OutlineRecord const kOutlineTable[kOutlineTableSize] = {
    {1, internal::rectangle},
    {2, internal::rightTrapezoid},
    {3, internal::taper},
    {4, internal::quadrilateral},
    {5, internal::gable},
    {6, internal::flatTopHexagon},
    {7, internal::symmetricTrapezoid},
    {8, internal::trapezoid},
    {9, internal::rightTriangle},
    {10, internal::isoscelesTriangle},
    {11, internal::house},
    {12, internal::triangle},
    {13, internal::segmentalArch},
    {14, internal::semicircularArch},
    {15, internal::basketHandleArch},
    {17, internal::roundedTopRectangle},
    {18, internal::pointedArch},
    {19, internal::circularSegment},
    {21, internal::parallelogram},
    {22, internal::circleThroughOrigin},
    {23, internal::ringSegment},
    {24, internal::chamferedRectangle},
    {27, internal::roundedRectangle},
    {28, internal::diamond},
    {30, internal::regularPolygon},
    {31, internal::notchedRectangle},
    {33, internal::slot},
    {34, internal::hexagon},
    {224, internal::chamferedTop},
    {227, internal::roundedTop},
    {324, internal::chamferedCorner},
    {327, internal::roundedCorner},
    {801, internal::slotWithHead},
    {802, internal::circleAboutOrigin},
    {803, internal::centredSlot},
    {804, internal::oval},
    {901, internal::coordinatePolygon},
};

// The generators would turn a NaN or infinite dimension into corners that are not numbers.
bool finiteInput(COrxVector3d const& offset, internal::Dims const& dims) {
    if (!offset.isValid()) {
        return false;
    }
    for (int i : ORX::internal::indices(dims)) {
        if (!std::isfinite(dims[i])) {
            return false;
        }
    }
    return true;
}

// No segment ends where it starts.
bool segmentsHaveLength(COrxVertexArray const& outline) {
    for (int k = 0; k < outline.len(); ++k) {
        if (outline[k].startPoint() == outline[k].endPoint()) {
            return false;
        }
    }
    return true;
}

// Area and length are measured on a copy scaled down by a power of two (exact) so that no
// coordinate exceeds this: their formulas square coordinates, which would overflow.
constexpr double kMeasurableCoordinate = 1e50;

// The outline scaled by s (a power of two) about the origin, and s itself: 1 when every
// coordinate is measurable already.
COrxVertexArray measurable(COrxVertexArray const& outline, double& s) {
    double largest = 0.0;
    for (int k = 0; k < outline.len(); ++k) {
        COrxPoint3d const& p = outline[k].startPoint();
        largest = std::fmax(largest, std::fmax(std::fabs(p.x), std::fabs(p.y)));
    }
    s = 1.0;
    if (largest <= kMeasurableCoordinate) {
        return outline;
    }
    s = std::exp2(std::floor(std::log2(kMeasurableCoordinate / largest)));
    COrxVertexArray scaled;
    for (int k = 0; k < outline.len(); ++k) {
        COrxVertex const& v = outline[k];
        COrxPoint3d const& a = v.startPoint();
        COrxPoint3d const& b = v.endPoint();
        scaled.append(COrxVertex(COrxPoint3d(a.x * s, a.y * s, a.z),
                                 COrxPoint3d(b.x * s, b.y * s, b.z), v.bulge()));
    }
    return scaled;
}

// The outline a generator built is one a caller can use: closed, finite, without a segment
// of zero length, and wider than the point tolerance on average (twice the area over the
// perimeter), so that no comparison under that tolerance sees a line. Meaningless
// dimensions (a zero span, a negative length, a width asked of a vertical base) and offsets
// so far out that the corners fall together end here as the empty outline. An outline too
// large for its area to be a double (a circle of diameter 1e155) is kept: its corners and
// bulges are exact.
bool isSound(COrxVertexArray const& outline) {
    if (!internal::isFiniteLoop(outline) || !segmentsHaveLength(outline)) {
        return false;
    }
    double s = 1.0;
    COrxVertexArray const measured = measurable(outline, s);
    double const area = std::fabs(g_vl_area(measured));
    double const perimeter = measured.geomLength();
    return 2 * area > COrxPoint3d::tol * s * perimeter;
}

}  // namespace

COrxVertexArray g_outline(int type, COrxVector3d const& offset,
                          COrxArrayTempl<double> const& dims) {
    COrxVertexArray result;
    if (!finiteInput(offset, dims)) {
        return result;
    }
    for (OutlineRecord const& record : kOutlineTable) {
        if (record.code != static_cast<std::uint32_t>(type)) {
            continue;
        }
        if (record.generate == nullptr) {
            return result;
        }
        result = record.generate(offset, dims);
        return isSound(result) ? result : COrxVertexArray();
    }
    return result;
}

unsigned int g_outline_code(int i) {
    if (i < 0 || i >= kOutlineTableSize) {
        return 0;
    }
    return kOutlineTable[i].code;
}

}  // namespace ORX
