// Fuzz target: the maps against the standard library's as a model. A decoded sequence of
// insertions, look-ups and removals runs on COrxMapTempl<int, COrxString> or
// COrxMapTempl<COrxString, COrxString> and on a std::map; after every step the two hold the
// same keys in the same order with the same values, and every answer agrees. The null
// string key sorts before the empty one. A second part sorts a CMapDoubleToPoint and
// compares with a stable sort.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "orx/foundation/map.h"
#include "orx/geom/map_double_to_point.h"
#include "support/checks.h"
#include "support/fuzz_input.h"
#include "support/wide_text.h"

namespace {

constexpr int kMaxSteps = 64;

// The model of a COrxString: nothing for the null string, which orders first.
using Text = std::optional<std::wstring>;

Text textOf(COrxString const& s) {
    return s.isNull() ? Text() : Text(std::wstring(static_cast<wchar_t const*>(s)));
}

COrxString stringOf(Text const& t) {
    return t ? COrxString(t->c_str()) : COrxString();
}

Text decodeText(FuzzInput& in) {
    if (in.below(8) == 0) {
        return Text();
    }
    return decodeWideText(in, 3, true);
}

int decodeKey(FuzzInput& in, int) {
    // Few distinct keys, so that they repeat; now and then an extreme one.
    return in.below(8) == 0 ? static_cast<int>(in.u32()) : in.between(-20, 20);
}

Text decodeKey(FuzzInput& in, Text const&) {
    return decodeText(in);
}

int keyOf(int k) {
    return k;
}
COrxString keyOf(Text const& k) {
    return stringOf(k);
}
int modelKey(int k) {
    return k;
}
Text modelKey(COrxString const& k) {
    return textOf(k);
}

template <class K, class MK>
void checkSame(COrxMapTempl<K, COrxString> const& map, std::map<MK, Text> const& model) {
    fuzzCheck(map.len() == model.size(), "len agrees with the model");
    fuzzCheck(map.isEmpty() == model.empty(), "isEmpty agrees with the model");
    COrxArrayTempl<K> keys;
    map.getDir(keys);
    fuzzCheck(keys.len() == model.size(), "getDir lists every key");
    unsigned long i = 0;
    for (auto const& [key, value] : model) {
        K k{};
        COrxString v;
        fuzzCheck(map.getAtIndex(i, k, v), "getAtIndex finds every position");
        fuzzCheck(modelKey(k) == key && textOf(v) == value, "entries in the model's order");
        fuzzCheck(modelKey(keys[static_cast<int>(i)]) == key, "getDir in ascending order");
        ++i;
    }
    K k{};
    fuzzCheck(!map.keyAtIndex(i, k), "no key past the end");
}

// One step on both maps; the answers agree.
template <class K, class MK>
void step(FuzzInput& in, COrxMapTempl<K, COrxString>& map, std::map<MK, Text>& model) {
    MK const key = decodeKey(in, MK());
    K const k = keyOf(key);
    switch (in.below(7)) {
        case 0: {
            Text const value = decodeText(in);
            bool const existed = model.count(key) != 0;
            fuzzCheck(map.setAt(k, stringOf(value)) == existed,
                      "setAt says whether the key existed");
            model[key] = value;
            break;
        }
        case 1: {
            Text const value = decodeText(in);
            map[k] = stringOf(value);
            model[key] = value;
            break;
        }
        case 2: {
            COrxString v(L"untouched");
            bool const found = map.getAt(k, v);
            auto const at = model.find(key);
            fuzzCheck(found == (at != model.end()), "getAt finds the model's keys");
            fuzzCheck(textOf(v) == (found ? at->second : Text(L"untouched")),
                      "getAt gives the value, or leaves it untouched");
            COrxString* p = nullptr;
            fuzzCheck(map.getAt(k, p) == found && (p != nullptr) == found,
                      "getAt by pointer agrees");
            fuzzCheck(map.hasKey(k) == found, "hasKey agrees");
            break;
        }
        case 3:
            fuzzCheck(map.removeAt(k) == (model.erase(key) == 1), "removeAt agrees");
            break;
        case 4: {
            COrxString const& looked = map[k];  // adds a default (null) value when absent
            fuzzCheck(textOf(looked) == model[key], "operator[] gives the stored value");
            break;
        }
        case 5: {
            COrxMapTempl<K, COrxString> const copy(map);
            map = copy;  // a deep copy and back
            break;
        }
        default:
            if (in.below(8) == 0) {
                map.removeAll();
                model.clear();
            }
            break;
    }
}

template <class K, class MK>
void runMap(FuzzInput& in) {
    COrxMapTempl<K, COrxString> map;
    std::map<MK, Text> model;
    int const steps = in.between(1, kMaxSteps);
    for (int s = 0; s < steps; ++s) {
        step(in, map, model);
        checkSame(map, model);
    }
    fuzzCheck(map.capacity() == 0 || map.capacity() >= map.len(), "capacity holds every entry");
}

bool before(double a, double b) {
    return !std::isnan(a) && (std::isnan(b) || a < b);
}

void runSort(FuzzInput& in) {
    ORX::CMapDoubleToPoint map;
    std::vector<std::pair<double, double>> model;  // parameter, the point's x (its index)
    int const n = in.between(0, 24);
    for (int i = 0; i < n; ++i) {
        double const t = in.flag() ? in.number() : in.between(0, 4);
        map.append(t, COrxPoint3d(i, 0, 0));
        model.emplace_back(t, i);
    }
    fuzzCheck(map.sort() == (n > 0), "sort fails only for the empty map");
    std::stable_sort(model.begin(), model.end(),
                     [](auto const& a, auto const& b) { return before(a.first, b.first); });
    fuzzCheck(map.len() == model.size(), "sort keeps every pair");
    for (int i = 0; i < n; ++i) {
        double t = 0.0;
        COrxPoint3d p;
        fuzzCheck(map.getAt(i, t, p), "getAt finds every pair");
        fuzzCheck(p.x == model[static_cast<std::size_t>(i)].second,
                  "sort orders as a stable sort, NaN last");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    FuzzInput in(data, size);
    switch (in.below(3)) {
        case 0:
            runMap<int, int>(in);
            break;
        case 1:
            runMap<COrxString, Text>(in);
            break;
        default:
            runSort(in);
            break;
    }
    return 0;
}
