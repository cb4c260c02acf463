// Arrays written as braced lists in the tests: list({pt(0, 0), pt(1, 0)}) is a point list,
// list({L"a", L"b"}) a list of strings, numbers({0.5, 2}) a list of doubles.
#ifndef ORX_TESTS_SUPPORT_LISTS_H
#define ORX_TESTS_SUPPORT_LISTS_H

#include <initializer_list>
#include <vector>

#include "orx/foundation/array_templ.h"
#include "orx/foundation/string.h"
#include "orx/geom/point.h"
#include "orx/geom/point_array.h"

namespace orx_test {

inline COrxPoint3dArray list(std::initializer_list<COrxPoint3d> points) {
    COrxPoint3dArray a;
    for (COrxPoint3d const& p : points) {
        a.append(p);
    }
    return a;
}

inline COrxArrayTempl<COrxString> list(std::initializer_list<wchar_t const*> items) {
    COrxArrayTempl<COrxString> a;
    for (wchar_t const* item : items) {
        a.append(COrxString(item));
    }
    return a;
}

// Takes a vector, not an initializer list, so that tables of cases can keep theirs.
inline COrxArrayTempl<double> numbers(std::vector<double> const& values) {
    COrxArrayTempl<double> a;
    for (double v : values) {
        a.append(v);
    }
    return a;
}

}  // namespace orx_test

#endif  // ORX_TESTS_SUPPORT_LISTS_H
