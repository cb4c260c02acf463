#include "drawing.h"

#include <cmath>
#include <cstring>

#include "tool_error.h"

namespace orxtool {

namespace {

// Layer names longer than this are refused: the DXF programs that read ours stop there.
constexpr std::size_t kMaxLayerNameBytes = 255;

}  // namespace

COrxVertexArray toPolyline(VertexList const& list) {
    COrxVertexArray polyline;
    std::size_t n = list.points.size();
    auto at = [&list](std::size_t i) {
        return COrxPoint3d(list.points[i].x, list.points[i].y, list.z);
    };
    for (std::size_t i = 0; i + 1 < n; ++i) {
        polyline.append(COrxVertex(at(i), at(i + 1), list.points[i].bulge));
    }
    VertexList::Point const& first = list.points.front();
    VertexList::Point const& last = list.points.back();
    bool repeatsFirst = n > 2 && last.x == first.x && last.y == first.y;
    if (list.closed && !repeatsFirst) {
        polyline.append(COrxVertex(at(n - 1), at(0), last.bulge));
    }
    return polyline;
}

std::vector<COrxVertexArray> splitRuns(COrxVertexArray const& polyline) {
    std::vector<COrxVertexArray> runs;
    for (int i = 0; i < polyline.len(); ++i) {
        COrxVertex const& segment = polyline[i];
        if (runs.empty() || runs.back()[-1].endPoint() != segment.startPoint()) {
            runs.emplace_back();
        }
        runs.back().append(segment);
    }
    return runs;
}

std::string layerNameProblem(std::string const& name) {
    if (name.empty()) {
        return "is empty";
    }
    if (name.size() > kMaxLayerNameBytes) {
        return "is longer than " + std::to_string(kMaxLayerNameBytes) + " bytes";
    }
    // A drawing file keeps no space at either end of a name: one written there would be
    // read back without it.
    if (name.front() == ' ' || name.back() == ' ') {
        return "begins or ends with a space";
    }
    for (char c : name) {
        if (static_cast<unsigned char>(c) < 0x20 || std::strchr("<>/\\\":;?*|=`", c) != nullptr) {
            return "holds a character a layer name cannot hold (a control character or one of "
                   "<>/\\\":;?*|=`)";
        }
    }
    return {};
}

std::vector<VertexList> toVertexLists(COrxVertexArray const& polyline, std::string const& layer) {
    std::vector<VertexList> lists;
    for (COrxVertexArray const& run : splitRuns(polyline)) {
        VertexList list;
        list.layer = layer;
        list.closed = run.isClosed();
        list.z = run[0].startPoint().z;
        for (int i = 0; i < run.len(); ++i) {
            COrxVertex const& segment = run[i];
            list.points.push_back(
                {segment.startPoint().x, segment.startPoint().y, segment.bulge()});
        }
        if (!list.closed) {
            COrxPoint3d const& end = run[-1].endPoint();
            list.points.push_back({end.x, end.y, 0.0});
        }
        lists.push_back(list);
    }
    return lists;
}

void requireFinite(std::vector<VertexList> const& lists, std::string const& file) {
    for (std::size_t i = 0; i < lists.size(); ++i) {
        bool zFinite = std::isfinite(lists[i].z);
        for (std::size_t j = 0; j < lists[i].points.size(); ++j) {
            VertexList::Point const& p = lists[i].points[j];
            if (!zFinite || !std::isfinite(p.x) || !std::isfinite(p.y) || !std::isfinite(p.bulge)) {
                throw ToolError(file + ": polyline " + std::to_string(i + 1) + ", vertex " +
                                std::to_string(j + 1) +
                                ": coordinate or bulge is not finite; nothing written");
            }
        }
    }
}

std::vector<VertexList> exportLists(std::vector<COrxVertexArray> const& polylines,
                                    std::vector<std::string> const& layers,
                                    std::string const& file) {
    std::vector<VertexList> lists;
    for (std::size_t i = 0; i < polylines.size(); ++i) {
        std::string layer = i < layers.size() ? layers[i] : kDefaultLayer;
        for (VertexList& list : toVertexLists(polylines[i], layer)) {
            lists.push_back(std::move(list));
        }
    }
    requireFinite(lists, file);
    return lists;
}

}  // namespace orxtool
