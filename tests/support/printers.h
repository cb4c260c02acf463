// GoogleTest printers for the library's values, so that a failing EXPECT_EQ shows the points,
// segments and polylines involved instead of their bytes: coordinates and bulges to 17
// significant digits (enough to read the double back exactly), arrays element by element.
//
// GoogleTest finds PrintTo by argument-dependent lookup in the namespace of the printed
// class; the value classes live in the global namespace, so these overloads do as well.
// The build includes this header first in every test source (tests/support/CMakeLists.txt):
// GoogleTest instantiates one printer per type for the whole program, and a source that
// compared points without these overloads in sight could leave its byte dump in every
// message.
#ifndef ORX_TESTS_SUPPORT_PRINTERS_H
#define ORX_TESTS_SUPPORT_PRINTERS_H

#include <cstdio>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "orx/foundation/array_templ.h"
#include "orx/foundation/string.h"
#include "orx/geom/matrix.h"
#include "orx/geom/point.h"
#include "orx/geom/point_array.h"
#include "orx/geom/vector.h"
#include "orx/polyline/vertex.h"
#include "orx/polyline/vertex_array.h"
#include "orx/polyline/vertex_array_ex.h"

namespace orx_test {

// Elements printed from one array; a polyline of 20,000 segments shows its first ones and
// the count of the rest (a failing property test writes its operands in full instead).
constexpr int kMaxPrintedElements = 32;

inline std::string fullPrecision(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.17g", value);
    return text;
}

inline void printCoordinates(double x, double y, double z, std::ostream* os) {
    *os << "(" << fullPrecision(x) << ", " << fullPrecision(y) << ", " << fullPrecision(z) << ")";
}

// "{e0, e1, ...}" with each element printed by print(i, os); elements past the limit are
// counted, not printed.
template <class PrintElement>
void printElements(int count, PrintElement print, std::ostream* os) {
    *os << "{";
    for (int i = 0; i < count && i < kMaxPrintedElements; ++i) {
        *os << (i == 0 ? "" : ", ");
        print(i, os);
    }
    if (count > kMaxPrintedElements) {
        *os << ", ... " << count - kMaxPrintedElements << " more";
    }
    *os << "}";
}

template <class T>
void printElement(T const& value, std::ostream* os) {
    ::testing::internal::UniversalPrint(value, os);
}

// GoogleTest prints a double to 6 digits only.
inline void printElement(double value, std::ostream* os) {
    *os << fullPrecision(value);
}

template <class T>
void printArray(COrxArrayTempl<T> const& a, char const* noun, std::ostream* os) {
    int const count = static_cast<int>(a.len());
    *os << count << " " << noun << " ";
    printElements(
        count, [&a](int i, std::ostream* out) { printElement(a[i], out); }, os);
}

}  // namespace orx_test

inline void PrintTo(COrxString const& s, std::ostream* os) {
    if (s.isNull()) {
        *os << "null string";
        return;
    }
    ::testing::internal::UniversalPrint(std::wstring(static_cast<wchar_t const*>(s)), os);
}

inline void PrintTo(COrxPoint3d const& p, std::ostream* os) {
    orx_test::printCoordinates(p.x, p.y, p.z, os);
}

inline void PrintTo(COrxVector3d const& v, std::ostream* os) {
    *os << "vector ";
    orx_test::printCoordinates(v.x, v.y, v.z, os);
}

// Row by row: "{(m00, m01, m02, m03), (m10, ...), ...}".
inline void PrintTo(COrxMatrix3d const& m, std::ostream* os) {
    *os << "{";
    for (int row = 0; row < 4; ++row) {
        *os << (row == 0 ? "(" : ", (");
        for (int col = 0; col < 4; ++col) {
            *os << (col == 0 ? "" : ", ") << orx_test::fullPrecision(m.m[row][col]);
        }
        *os << ")";
    }
    *os << "}";
}

// "(x0, y0, z0) -> (x1, y1, z1) bulge b", and the tag when it is set.
inline void PrintTo(COrxVertex const& v, std::ostream* os) {
    PrintTo(v.startPoint(), os);
    *os << " -> ";
    PrintTo(v.endPoint(), os);
    *os << " bulge " << orx_test::fullPrecision(v.bulge());
    if (v.tag() != 0) {
        *os << " tag " << v.tag();
    }
}

inline void PrintTo(COrxPoint3dArray const& points, std::ostream* os) {
    *os << points.len() << " points ";
    orx_test::printElements(
        points.len(), [&points](int i, std::ostream* out) { PrintTo(points[i], out); }, os);
}

inline void PrintTo(COrxVertexArray const& vl, std::ostream* os) {
    *os << vl.len() << " segments ";
    orx_test::printElements(
        vl.len(), [&vl](int i, std::ostream* out) { PrintTo(vl[i], out); }, os);
}

// GoogleTest's own template would take a derived polyline before the overload of its base.
inline void PrintTo(COrxVertexArrayEx const& vl, std::ostream* os) {
    *os << "attribute " << vl.attribute() << ", text ";
    PrintTo(vl.text(), os);
    *os << ", normal ";
    PrintTo(vl.normal(), os);
    *os << ", ";
    PrintTo(static_cast<COrxVertexArray const&>(vl), os);
}

// A region (outer loop, then holes) or any list of loops.
inline void PrintTo(COrxArrayTempl<COrxVertexArray> const& loops, std::ostream* os) {
    orx_test::printArray(loops, "loops", os);
}

inline void PrintTo(COrxArrayTempl<COrxArrayTempl<COrxVertexArray>> const& regions,
                    std::ostream* os) {
    orx_test::printArray(regions, "regions", os);
}

// Any other typed array: doubles, strings, points.
template <class T>
void PrintTo(COrxArrayTempl<T> const& a, std::ostream* os) {
    orx_test::printArray(a, "elements", os);
}

#endif  // ORX_TESTS_SUPPORT_PRINTERS_H
