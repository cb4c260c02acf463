// Metamorphic tests of the boolean and region operations on seeded inputs of the kinds
// drawings bring (metamorphic_cases.h), each case also moved to site coordinates: every
// result loop closes and crosses no other, the areas add up, and the moved case gives the
// moved result. 1,000 cases by default; ORX_METAMORPHIC_CASES sets the count and
// ORX_METAMORPHIC_FIRST the first seed (one failing case: its seed and a count of 1).
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <sstream>
#include <string>

#include "metamorphic_cases.h"
#include "metamorphic_checks.h"
#include "region_measures.h"
#include "tests/support/case_files.h"

using namespace orx_test;

namespace {

double const kOffsets[] = {0.0, 1e3, 1e5, 1e6, 1e7};
char const* const kOperations[] = {"union", "difference", "intersection"};
// Failing cases reported before the test stops looking.
constexpr int kMaxReported = 20;

unsigned setting(char const* name, unsigned fallback) {
    char const* value = std::getenv(name);
    return value != nullptr ? static_cast<unsigned>(std::strtoul(value, nullptr, 10)) : fallback;
}

struct Result {
    Region loops;
    double area = 0.0;
};

using Results = std::array<Result, 3>;

Region moved(Region r, double offset) {
    for (unsigned long k = 0; k < r.len(); ++k) {
        r[static_cast<int>(k)].move(COrxVector3d(offset, offset, 0));
    }
    return r;
}

Results operate(OperandPair const& pair, double offset) {
    Region const a = moved(pair.a, offset), b = moved(pair.b, offset);
    Results results;
    for (int op = 0; op < 3; ++op) {
        if (!pair.regions) {
            COrxVertexArray const v =
                ORX::g_vl_bool(a[0], b[0], static_cast<COrxVertexArray::boolOper>(op));
            results[op] = {loopsOf(v), area(v)};
            continue;
        }
        RegionList out;
        if (op == 0) {
            ORX::g_region_union(a, b, out);
        } else if (op == 1) {
            ORX::g_region_diff(a, b, out);
        } else {
            ORX::g_region_sect(a, b, out);
        }
        results[op] = {loopsOf(out), area(out)};
    }
    return results;
}

// The first thing wrong with the results of one offset; empty when nothing is.
std::string problem(Results const& results, Results const& atOrigin, double areaA, double areaB,
                    double bound) {
    std::ostringstream text;
    for (int op = 0; op < 3; ++op) {
        if (!allClosed(results[op].loops)) {
            text << kOperations[op] << " has an open loop";
        } else if (anyCrossing(results[op].loops)) {
            text << kOperations[op] << " has crossing loops";
        } else if (std::fabs(results[op].area - atOrigin[op].area) > bound) {
            text << kOperations[op] << " area " << results[op].area << " moved, "
                 << atOrigin[op].area << " at the origin";
        }
        if (!text.str().empty()) {
            return text.str();
        }
    }
    double const u = results[0].area, d = results[1].area, s = results[2].area;
    if (std::fabs(u + s - areaA - areaB) > bound) {
        text << "union + intersection = " << u + s << ", a + b = " << areaA + areaB;
    } else if (std::fabs(d + s - areaA) > bound) {
        text << "difference + intersection = " << d + s << ", a = " << areaA;
    }
    return text.str();
}

std::string checkCase(OperandPair const& pair) {
    double const areaA = pair.regions ? area(pair.a) : area(pair.a[0]);
    double const areaB = pair.regions ? area(pair.b) : area(pair.b[0]);
    // Rounding of the areas, and the tolerance along the boundaries where the operations
    // may take one outline for the other.
    double const bound = 1e-9 * (std::fabs(areaA) + std::fabs(areaB)) +
                         COrxPoint3d::tol * (perimeter(pair.a) + perimeter(pair.b));
    Results const atOrigin = operate(pair, 0.0);
    for (double offset : kOffsets) {
        Results const results = offset == 0.0 ? atOrigin : operate(pair, offset);
        std::string const trouble = problem(results, atOrigin, areaA, areaB, bound);
        if (!trouble.empty()) {
            return trouble + " (moved by " + std::to_string(offset) + ")";
        }
    }
    return std::string();
}

}  // namespace

TEST(MetamorphicTest, OperationsKeepTheirIdentitiesOnDrawingInputs) {
    unsigned const first = setting("ORX_METAMORPHIC_FIRST", 0);
    unsigned const count = setting("ORX_METAMORPHIC_CASES", 1000);
    int reported = 0;
    for (unsigned seed = first; seed < first + count && reported < kMaxReported; ++seed) {
        OperandPair const pair = CaseMaker(seed).make();
        std::string const trouble = checkCase(pair);
        if (!trouble.empty()) {
            ++reported;
            ADD_FAILURE() << "seed " << seed << " (" << pair.kind << "): " << trouble
                          << "; operands in "
                          << writeCaseFile("metamorphic-" + std::to_string(seed) + ".json", pair.a,
                                           pair.b);
        }
    }
}
