// Fuzz target: union, difference and intersection of two regions with holes
// (g_region_union, g_region_diff, g_region_sect), the second region often sharing edges with
// the first. Every resulting region is finite and each of its loops closed.
#include <cstddef>
#include <cstdint>

#include "orx/polyline/polyline_functions.h"
#include "orx/regions/region.h"
#include "support/checks.h"
#include "support/fuzz_input.h"
#include "support/shapes.h"

namespace {

bool (*const kOperations[])(Region, Region, RegionList&) = {ORX::g_region_union, ORX::g_region_diff,
                                                            ORX::g_region_sect};

// The second region: a region of its own, or the first one's outer loop changed a little.
Region decodeSecond(FuzzInput& in, Region const& first) {
    if (in.flag()) {
        return decodeRegion(in);
    }
    Region second;
    second.append(decodeRelatedLoop(in, first[0]));
    return second;
}

void checkRegions(RegionList const& out) {
    for (unsigned long r = 0; r < out.len(); ++r) {
        Region const& region = out[static_cast<int>(r)];
        fuzzCheck(!region.isEmpty(), "no empty region in the result");
        for (unsigned long i = 0; i < region.len(); ++i) {
            COrxVertexArray const& loop = region[static_cast<int>(i)];
            showOperand("result loop", loop);
            fuzzCheck(isFinite(loop), "region results are finite");
            fuzzCheck(isClosedLoops(loop), "region results are closed loops");
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    FuzzInput in(data, size);
    Region a = decodeRegion(in);
    Region b = decodeSecond(in, a);
    if (in.flag()) {  // the convention of union and intersection: all loops one way round
        ORX::setOrient(a, COrxVector3d::kZAxis);
        ORX::setOrient(b, COrxVector3d::kZAxis);
    }
    unsigned const op = in.below(3);
    showOperand("a", a);
    showOperand(op == 0 ? "b (union)" : op == 1 ? "b (difference)" : "b (intersection)", b);
    RegionList out;
    kOperations[op](a, b, out);
    checkRegions(out);
    return 0;
}
