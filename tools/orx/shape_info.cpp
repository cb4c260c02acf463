#include "shape_info.h"

#include <algorithm>
#include <cmath>
#include <sstream>

#include "numbers.h"
#include "orx/polyline/polyline_functions.h"
#include "orx/regions/region_building.h"
#include "safe_measures.h"
#include "section_report.h"

namespace orxtool {

namespace {

// Every segment carries its polyline's index + 1 as its tag, which the region building keeps
// (tags travel with copies and reversals), so the regions can name their source polylines.
COrxVertexArray tagged(COrxVertexArray polyline, int index) {
    for (int i = 0; i < polyline.len(); ++i) {
        polyline[i].setTag(index + 1);
    }
    return polyline;
}

}  // namespace

RegionGrouping groupRegions(std::vector<COrxVertexArray> const& polylines) {
    RegionGrouping grouping;
    COrxArrayTempl<COrxVertexArray> loops;
    for (std::size_t i = 0; i < polylines.size(); ++i) {
        if (polylines[i].isClosed()) {
            loops.append(tagged(polylines[i], static_cast<int>(i)));
        } else {
            grouping.open.push_back(static_cast<int>(i));
        }
    }
    ORX::g_vll_regions_prepare(loops);
    COrxArrayTempl<COrxArrayTempl<COrxVertexArray>> regions = ORX::g_vll_regions(loops, 0);
    std::vector<bool> used(polylines.size(), false);
    for (unsigned long r = 0; r < regions.len(); ++r) {
        RegionGrouping::Entry entry;
        entry.region = regions[static_cast<int>(r)];
        for (unsigned long k = 0; k < entry.region.len(); ++k) {
            COrxVertexArray const& loop = entry.region[static_cast<int>(k)];
            int source = loop.len() > 0 ? loop[0].tag() - 1 : -1;
            entry.sources.push_back(source);
            if (source >= 0 && static_cast<std::size_t>(source) < used.size()) {
                used[static_cast<std::size_t>(source)] = true;
            }
        }
        grouping.regions.push_back(entry);
    }
    for (std::size_t i = 0; i < polylines.size(); ++i) {
        if (polylines[i].isClosed() && !used[i]) {
            grouping.leftOut.push_back(static_cast<int>(i));
        }
    }
    return grouping;
}

std::vector<Region> regionsOf(std::vector<COrxVertexArray> const& polylines) {
    std::vector<Region> regions;
    for (RegionGrouping::Entry const& entry : groupRegions(polylines).regions) {
        regions.push_back(entry.region);
    }
    return regions;
}

double regionArea(Region const& region) {
    double area = 0.0;
    for (unsigned long k = 0; k < region.len(); ++k) {
        double loopArea = std::fabs(safeArea(region[static_cast<int>(k)]));
        area += k == 0 ? loopArea : -loopArea;
    }
    return area;
}

std::vector<COrxVertexArray> loopsOf(std::vector<Region> const& regions) {
    std::vector<COrxVertexArray> loops;
    for (Region const& region : regions) {
        for (unsigned long k = 0; k < region.len(); ++k) {
            loops.push_back(region[static_cast<int>(k)]);
        }
    }
    return loops;
}

std::string polylineReport(int index, COrxVertexArray const& polyline, std::string const& layer) {
    int arcs = 0;
    for (int i = 0; i < polyline.len(); ++i) {
        arcs += polyline[i].isStraight() ? 0 : 1;
    }
    bool closed = polyline.isClosed();
    std::ostringstream out;
    out << "polyline " << index + 1 << ": " << polyline.len()
        << (polyline.len() == 1 ? " segment (" : " segments (") << arcs
        << (arcs == 1 ? " arc), " : " arcs), ") << (closed ? "closed" : "open");
    if (closed) {
        out << ", " << (isCounterClockwise(polyline) ? "counter-clockwise" : "clockwise");
    }
    out << "\n  length " << measureText(safeLength(polyline)) << "\n";
    if (closed) {
        out << "  area " << measureText(safeArea(polyline)) << "\n";
    }
    COrxPoint3d lo, hi;
    if (safeExtents(polyline, lo, hi)) {
        out << "  extents " << pointText(lo.x, lo.y) << " - " << pointText(hi.x, hi.y) << "\n";
    }
    out << "  layer " << layer << ", elevation " << reportText(polyline[0].startPoint().z) << "\n";
    if (closed) {
        out << sectionReport(polylineSection(polyline));
    }
    return out.str();
}

std::string collapseProblem(COrxVertexArray const& polyline) {
    if (polyline.isEmpty()) {
        return "has no segment";
    }
    for (int i = 0; i < polyline.len(); ++i) {
        COrxPoint3d const& a = polyline[i].startPoint();
        COrxPoint3d const& b = polyline[i].endPoint();
        if (a.x == b.x && a.y == b.y) {
            return "has corners that fall onto one point " + pointText(a.x, a.y);
        }
    }
    if (polyline.isClosed() && safeArea(polyline) == 0.0) {
        return "encloses no area";
    }
    return {};
}

std::string regionReport(int index, RegionGrouping::Entry const& entry) {
    std::ostringstream out;
    out << "region " << index + 1 << ": outer polyline " << entry.sources[0] + 1;
    if (entry.sources.size() > 1) {
        out << (entry.sources.size() == 2 ? ", hole " : ", holes ");
        for (std::size_t k = 1; k < entry.sources.size(); ++k) {
            out << (k > 1 ? ", " : "") << entry.sources[k] + 1;
        }
    }
    out << ": area " << measureText(regionArea(entry.region)) << "\n";
    out << sectionReport(regionSection(entry.region));
    return out.str();
}

}  // namespace orxtool
