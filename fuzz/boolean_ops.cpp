// Fuzz target: union, difference and intersection of two closed polylines (g_vl_bool), the
// second often made from the first. Whatever the operands, the result is finite and made of
// closed loops.
#include <cstddef>
#include <cstdint>

#include "orx/regions/bool_operation.h"
#include "support/checks.h"
#include "support/fuzz_input.h"
#include "support/shapes.h"

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    FuzzInput in(data, size);
    COrxVertexArray const a = decodeLoop(in);
    COrxVertexArray const b = decodeRelatedLoop(in, a);
    auto const op = static_cast<COrxVertexArray::boolOper>(in.below(3));
    showOperand("a", a);
    showOperand("b", b);
    COrxVertexArray const result = ORX::g_vl_bool(a, b, op);
    fuzzCheck(isFinite(result), "g_vl_bool gives finite segments");
    fuzzCheck(isClosedLoops(result), "g_vl_bool gives closed loops");
    return 0;
}
