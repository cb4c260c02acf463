// The operands of a failing property test, kept as a file of the `orx` tool's JSON so that
// the case can be drawn (`orx render FILE -m -o case.svg`) or run again (`orx bool`,
// `orx region`): the first operand's loops on layer A, the second's on layer B, every
// coordinate and bulge to 17 significant digits so that the case reads back exactly.
//
//     for (int n = 0; n < kCases; ++n) {
//         COrxVertexArray const a = make.outline(), b = make.outline();
//         KeepOperandsOnFailure keep("boolean-" + std::to_string(n), a, b);
//         EXPECT_NEAR(...);  // a failure here writes boolean-N.json and names it
//     }
#ifndef ORX_TESTS_SUPPORT_CASE_FILES_H
#define ORX_TESTS_SUPPORT_CASE_FILES_H

#include <filesystem>
#include <fstream>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "tests/support/printers.h"
#include "tests/support/shapes.h"

namespace orx_test {

// One polyline object: a vertex per segment start with the bulge of the segment, and for an
// open polyline its end point as the last vertex.
inline void writeJsonPolyline(std::ofstream& out, COrxVertexArray const& vl, char const* layer) {
    auto vertex = [&out](COrxPoint3d const& p, double bulge) {
        out << "{\"x\": " << fullPrecision(p.x) << ", \"y\": " << fullPrecision(p.y)
            << ", \"bulge\": " << fullPrecision(bulge) << "}";
    };
    bool const closed = vl.isClosed();
    out << " {\"closed\": " << (closed ? "true" : "false") << ", \"layer\": \"" << layer
        << "\", \"elevation\": " << fullPrecision(vl[0].startPoint().z) << ",\n  \"vertices\": [";
    for (int k = 0; k < vl.len(); ++k) {
        out << (k == 0 ? "\n   " : ",\n   ");
        vertex(vl[k].startPoint(), vl[k].bulge());
    }
    if (!closed) {
        out << ",\n   ";
        vertex(vl[-1].endPoint(), 0.0);
    }
    out << "]}";
}

// Writes the loops of both operands to `path`; returns the path as written, absolute, for the
// failure message. Empty polylines are left out: the format has no place for them.
inline std::string writeCaseFile(std::string const& path, Region const& a, Region const& b) {
    std::ofstream out(path);
    bool first = true;
    out << "[\n";
    for (Region const* operand : {&a, &b}) {
        char const* const layer = operand == &a ? "A" : "B";
        for (unsigned long k = 0; k < operand->len(); ++k) {
            COrxVertexArray const& vl = (*operand)[static_cast<int>(k)];
            if (vl.isEmpty()) {
                continue;
            }
            out << (first ? "" : ",\n");
            writeJsonPolyline(out, vl, layer);
            first = false;
        }
    }
    out << "\n]\n";
    return std::filesystem::absolute(path).string();
}

// Writes `stem`.json with the operands when the current test records a failure between the
// construction and the end of the scope, and adds a failure that names the file.
class KeepOperandsOnFailure {
public:
    KeepOperandsOnFailure(std::string stem, Region a, Region b)
        : m_stem(std::move(stem)),
          m_a(std::move(a)),
          m_b(std::move(b)),
          m_failuresBefore(failures()) {}
    KeepOperandsOnFailure(std::string stem, COrxVertexArray const& a, COrxVertexArray const& b)
        : KeepOperandsOnFailure(std::move(stem), region({a}), region({b})) {}
    KeepOperandsOnFailure(KeepOperandsOnFailure const&) = delete;
    KeepOperandsOnFailure& operator=(KeepOperandsOnFailure const&) = delete;

    ~KeepOperandsOnFailure() {
        if (failures() > m_failuresBefore) {
            std::string const path = writeCaseFile(m_stem + ".json", m_a, m_b);
            ADD_FAILURE() << "operands of the failing case in " << path
                          << " (draw them with: orx render " << path << " -m -o case.svg)";
        }
    }

private:
    // Failed expectations so far in the running test.
    static int failures() {
        ::testing::TestResult const* const result =
            ::testing::UnitTest::GetInstance()->current_test_info()->result();
        int count = 0;
        for (int k = 0; k < result->total_part_count(); ++k) {
            count += result->GetTestPartResult(k).failed() ? 1 : 0;
        }
        return count;
    }

    std::string m_stem;
    Region m_a;
    Region m_b;
    int m_failuresBefore;
};

}  // namespace orx_test

#endif  // ORX_TESTS_SUPPORT_CASE_FILES_H
