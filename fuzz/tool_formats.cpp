// Fuzz target: the orx tool's DXF and JSON readers and writers. Either the input is read as
// a file of one of the formats (the readers must refuse bad text with a ToolError and
// nothing else), or vertex lists are decoded from it; whatever was read is written and read
// back, which must give the same lists: exactly for DXF, and for JSON once layer names that
// are not UTF-8 have been replaced (the JSON writer replaces such bytes rather than refuse
// them, and the text it writes then reads back unchanged).
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "drawing.h"
#include "dxf_format.h"
#include "json_format.h"
#include "support/checks.h"
#include "support/fuzz_input.h"
#include "tool_error.h"

namespace {

using orxtool::VertexList;
using Lists = std::vector<VertexList>;

// Layer names: the default, plain ones, one with a space, UTF-8 and code-page bytes, and the
// longest allowed.
char const* const kLayers[] = {"0", "plate", "Web 2", "St\xc3\xa4rke", "Ma\xdf", "x-y_z.w", "L"};
constexpr unsigned kLayerCount = sizeof(kLayers) / sizeof(kLayers[0]);

bool sameLists(Lists const& a, Lists const& b) {
    if (a.size() != b.size()) {
        return false;
    }
    for (std::size_t i = 0; i < a.size(); ++i) {
        VertexList const& p = a[i];
        VertexList const& q = b[i];
        if (p.closed != q.closed || p.z != q.z || p.layer != q.layer ||
            p.points.size() != q.points.size()) {
            return false;
        }
        for (std::size_t k = 0; k < p.points.size(); ++k) {
            if (p.points[k].x != q.points[k].x || p.points[k].y != q.points[k].y ||
                p.points[k].bulge != q.points[k].bulge) {
                return false;
            }
        }
    }
    return true;
}

double decodeFinite(FuzzInput& in) {
    double const v = in.number();
    return std::isfinite(v) ? v : 0.0;
}

Lists decodeLists(FuzzInput& in) {
    Lists lists(in.between(1, 3));
    for (VertexList& list : lists) {
        list.closed = in.flag();
        list.z = in.flag() ? decodeFinite(in) : 0.0;
        list.layer = kLayers[in.below(kLayerCount)];
        list.points.resize(in.between(2, 6));
        for (VertexList::Point& p : list.points) {
            p.x = decodeFinite(in);
            p.y = decodeFinite(in);
            p.bulge = in.flag() ? decodeFinite(in) / 64 : 0.0;
        }
        if (!list.closed) {
            list.points.back().bulge = 0.0;  // no segment leaves the last point
        }
    }
    return lists;
}

void checkDxfTrip(Lists const& lists) {
    Lists const back = orxtool::readDxf(orxtool::writeDxf(lists), "trip.dxf").lists;
    fuzzCheck(sameLists(lists, back), "DXF written and read back gives the same lists");
}

void checkJsonTrip(Lists const& lists) {
    std::string const text = orxtool::writeJson(lists);
    Lists const back = orxtool::readJson(text, "trip.json");
    fuzzCheck(orxtool::writeJson(back) == text, "JSON written and read back writes the same");
    fuzzCheck(sameLists(orxtool::readJson(orxtool::writeJson(back), "trip.json"), back),
              "JSON read back reads the same again");
}

template <class Read>
void readAndTrip(Read read) {
    Lists lists;
    try {
        lists = read();
    } catch (orxtool::ToolError const&) {
        return;  // refused, as bad text should be
    }
    checkDxfTrip(lists);
    checkJsonTrip(lists);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    FuzzInput in(data, size);
    switch (in.below(3)) {
        case 0: {
            std::string const text = in.rest();
            readAndTrip([&] { return orxtool::readJson(text, "in.json"); });
            break;
        }
        case 1: {
            std::string const text = in.rest();
            readAndTrip([&] { return orxtool::readDxf(text, "in.dxf").lists; });
            break;
        }
        default:
            readAndTrip([&] { return decodeLists(in); });
            break;
    }
    return 0;
}
