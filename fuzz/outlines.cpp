// Fuzz target: g_outline with decoded section codes, dimensions and offsets. The codes come
// mostly from the outline table, now and then any number; the dimensions are small whole
// numbers, fractions, values at the tolerance and extremes. Whatever comes in, an outline
// is empty or closed with finite corners and bulges and no segment of no length; and an
// outline at an offset is the outline at the origin moved by it.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "orx/polyline/polyline_functions.h"
#include "orx/profiles/outline.h"
#include "support/checks.h"
#include "support/fuzz_input.h"

namespace {

constexpr int kMaxDims = 12;
// The offset check holds to rounding: relative to the size of the coordinates.
constexpr double kRelativeRounding = 1e-12;

int decodeCode(FuzzInput& in) {
    if (in.below(16) == 0) {
        return static_cast<int>(in.u32());
    }
    return static_cast<int>(
        ORX::g_outline_code(static_cast<int>(in.below(ORX::kOutlineTableSize))));
}

double decodeDimension(FuzzInput& in) {
    return in.flag() ? in.between(-4, 40) : in.number();
}

void showInput(int code, COrxArrayTempl<double> const& dims, double x, double y) {
    if (std::getenv("ORX_FUZZ_SHOW") == nullptr) {
        return;
    }
    std::fprintf(stderr, "code %d, offset (%.17g, %.17g), dims", code, x, y);
    for (unsigned long i = 0; i < dims.len(); ++i) {
        std::fprintf(stderr, " %.17g", dims[static_cast<int>(i)]);
    }
    std::fprintf(stderr, "\n");
}

void checkOutline(COrxVertexArray const& vl) {
    if (vl.isEmpty()) {
        return;
    }
    fuzzCheck(isFinite(vl), "an outline has finite corners and bulges");
    fuzzCheck(isClosedLoops(vl), "an outline is closed");
    for (int i = 0; i < vl.len(); ++i) {
        fuzzCheck(vl[i].startPoint() != vl[i].endPoint(), "no segment of an outline has no length");
    }
}

double size(COrxPoint3d const& p) {
    return std::fmax(std::fabs(p.x), std::fabs(p.y));
}

bool near(COrxPoint3d const& p, COrxPoint3d const& q) {
    double const scale = std::fmax(1.0, std::fmax(size(p), size(q)));
    return std::fabs(p.x - q.x) <= kRelativeRounding * scale &&
           std::fabs(p.y - q.y) <= kRelativeRounding * scale;
}

void checkMoved(COrxVertexArray const& home, COrxVertexArray const& moved,
                COrxVector3d const& offset) {
    if (home.isEmpty() || moved.isEmpty()) {
        // An offset far enough out empties an outline whose corners fall together; and
        // dimensions at the point tolerance fail or not by the rounding of the coordinates.
        return;
    }
    fuzzCheck(home.len() == moved.len(), "an offset moves every segment");
    for (int i = 0; i < home.len(); ++i) {
        COrxPoint3d const s = home[i].startPoint() + offset;
        fuzzCheck(near(s, moved[i].startPoint()), "an offset moves the outline by itself");
        fuzzCheck(home[i].bulge() == moved[i].bulge(), "an offset keeps the bulges");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    FuzzInput in(data, size);
    int const code = decodeCode(in);
    int const count = in.between(0, kMaxDims);
    COrxArrayTempl<double> dims;
    for (int i = 0; i < count; ++i) {
        dims.append(decodeDimension(in));
    }
    COrxVertexArray const home = ORX::g_outline(code, COrxVector3d(0, 0, 0), dims);
    showOperand("outline", home);
    checkOutline(home);
    double const x = in.number();
    double const y = in.number();
    showInput(code, dims, x, y);
    COrxVector3d const offset(x, y, 0);
    COrxVertexArray const moved = ORX::g_outline(code, offset, dims);
    checkOutline(moved);
    if (std::fabs(x) <= 1e7 && std::fabs(y) <= 1e7) {
        checkMoved(home, moved, offset);
    }
    return 0;
}
