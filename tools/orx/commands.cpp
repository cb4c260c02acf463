#include "commands.h"

#include <cstdio>
#include <iostream>

#include "file_formats.h"
#include "orx/polyline/polyline_functions.h"
#include "orx/regions/bool_operation.h"
#include "orx/regions/region.h"
#include "orx/services/version.h"
#include "region_operations.h"
#include "safe_measures.h"
#include "section_report.h"
#include "shape_info.h"
#include "tool_error.h"

namespace orxtool {

namespace {

char const* platformName() {
#if defined(_WIN32)
    return "Windows x64";
#else
    return "Linux x86_64";
#endif
}

// The first closed polyline, counter-clockwise: the boolean operation recognises shared
// edges only between operands that run the same way round. `layer` becomes its layer.
COrxVertexArray firstClosed(Drawing const& drawing, std::string& layer) {
    for (std::size_t i = 0; i < drawing.polylines.size(); ++i) {
        if (drawing.polylines[i].isClosed()) {
            COrxVertexArray loop = drawing.polylines[i];
            if (!isCounterClockwise(loop)) {
                loop.revert();
            }
            layer = drawing.layers[i];
            return loop;
        }
    }
    if (drawing.polylines.empty()) {
        throw ToolError(drawing.source + ": holds no polyline; a closed one is needed");
    }
    throw ToolError(drawing.source +
                    ": polyline 1 is open and no other is closed; a closed one "
                    "is needed");
}

COrxVertexArray::boolOper boolOperation(std::string const& name) {
    if (name == "union") {
        return COrxVertexArray::boolUnion;
    }
    if (name == "diff") {
        return COrxVertexArray::boolDiff;
    }
    if (name == "sect") {
        return COrxVertexArray::boolSect;
    }
    throw ToolError("unknown operation '" + name + "' (use union, diff or sect)");
}

void writePicture(std::string const& path, SvgPicture const& picture) {
    std::string text;
    try {
        text = picture.svg();
    } catch (ToolError const& e) {
        throw ToolError(path + ": " + e.what());
    }
    writeFileText(path, text);
}

void reportWritten(std::string const& path, std::size_t count, char const* what) {
    std::printf("%s: %s\n", path.c_str(), counted(count, what).c_str());
}

}  // namespace

std::vector<Region> inputRegions(Drawing const& drawing, std::string& layer) {
    RegionGrouping grouping = groupRegions(drawing.polylines);
    if (grouping.regions.empty()) {
        throw ToolError(drawing.source + ": no closed loop to build a region from" +
                        (grouping.open.empty()
                             ? ""
                             : " (polyline " + std::to_string(grouping.open[0] + 1) + " is open)"));
    }
    if (!grouping.open.empty() || !grouping.leftOut.empty()) {
        std::cerr << "orx: " << drawing.source << ": " << grouping.open.size() << " open and "
                  << grouping.leftOut.size() << " crossing polylines take no part in the regions\n";
    }
    std::vector<Region> regions;
    for (RegionGrouping::Entry const& entry : grouping.regions) {
        regions.push_back(entry.region);
    }
    layer = drawing.layers[static_cast<std::size_t>(grouping.regions[0].sources[0])];
    return regions;
}

int runVersion() {
    std::printf("%ls\n%s\n", ORX::version(), platformName());
    return 0;
}

void drawPolylines(SvgPicture& picture, std::vector<COrxVertexArray> const& polylines,
                   std::string const& colour, bool markers) {
    RegionGrouping grouping = groupRegions(polylines);
    for (RegionGrouping::Entry const& entry : grouping.regions) {
        picture.addRegion(entry.region, colour);
    }
    for (std::vector<int> const* rest : {&grouping.open, &grouping.leftOut}) {
        for (int i : *rest) {
            picture.addPolyline(polylines[static_cast<std::size_t>(i)], colour);
        }
    }
    if (markers) {
        for (COrxVertexArray const& polyline : polylines) {
            picture.addMarkers(polyline, colour);
        }
    }
}

std::string counted(std::size_t count, std::string const& what) {
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

void writeResult(std::string const& path, std::vector<COrxVertexArray> const& polylines,
                 std::vector<std::string> const& layers) {
    if (formatOf(path) == FileFormat::kUnknown) {
        throw ToolError(path +
                        ": unknown output format (the name must end in .dxf, .json or .svg)");
    }
    if (formatOf(path) != FileFormat::kSvg) {
        writeDrawing(path, polylines, layers);
        return;
    }
    exportLists(polylines, layers,
                path);  // refuses non-finite coordinates before anything is drawn
    SvgPicture picture;
    drawPolylines(picture, polylines, Palette::colour(0), false);
    writePicture(path, picture);
}

int runBool(std::string const& operation, std::string const& first, std::string const& second,
            std::string const& output) {
    COrxVertexArray::boolOper op = boolOperation(operation);
    std::string layer, ignored;
    COrxVertexArray a = firstClosed(readDrawing(first), layer);
    COrxVertexArray b = firstClosed(readDrawing(second), ignored);
    COrxArrayTempl<COrxVertexArray> loops = ORX::g_vl_vll(ORX::g_vl_bool(a, b, op));
    std::vector<COrxVertexArray> result;
    for (unsigned long i = 0; i < loops.len(); ++i) {
        result.push_back(loops[static_cast<int>(i)]);
    }
    writeResult(output, result, std::vector<std::string>(result.size(), layer));
    reportWritten(output, result.size(), "polyline");
    return 0;
}

int runRegion(std::string const& operation, std::string const& first, std::string const& second,
              std::string const& output) {
    RegionOperation op = regionOperation(operation);
    std::string layer, ignored;
    std::vector<Region> a = inputRegions(readDrawing(first), layer);
    std::vector<Region> b = inputRegions(readDrawing(second), ignored);
    std::vector<Region> result = combineRegions(op, a, b);
    std::vector<COrxVertexArray> loops = loopsOf(result);
    writeResult(output, loops, std::vector<std::string>(loops.size(), layer));
    reportWritten(output, result.size(), "region");
    return 0;
}

int runInfo(std::string const& input) {
    Drawing drawing = readDrawing(input);
    RegionGrouping grouping = groupRegions(drawing.polylines);
    std::printf("%s: %s, %s\n", input.c_str(),
                counted(drawing.polylines.size(), "polyline").c_str(),
                counted(grouping.regions.size(), "region").c_str());
    if (!drawing.contents.empty()) {
        std::printf("entities read: %s\n", drawing.contents.c_str());
    }
    if (!grouping.regions.empty() || !grouping.leftOut.empty()) {
        std::fputs(sectionLegend().c_str(), stdout);
    }
    for (std::size_t i = 0; i < drawing.polylines.size(); ++i) {
        std::fputs(
            polylineReport(static_cast<int>(i), drawing.polylines[i], drawing.layers[i]).c_str(),
            stdout);
    }
    for (std::size_t r = 0; r < grouping.regions.size(); ++r) {
        std::fputs(regionReport(static_cast<int>(r), grouping.regions[r]).c_str(), stdout);
    }
    for (int i : grouping.leftOut) {
        std::printf("polyline %d crosses or touches another loop: in no region\n", i + 1);
    }
    return 0;
}

int runConvert(std::string const& input, std::string const& output) {
    Drawing drawing = readDrawing(input);
    writeResult(output, drawing.polylines, drawing.layers);
    reportWritten(output, drawing.polylines.size(), "polyline");
    return 0;
}

int runRender(std::vector<std::string> const& inputs, std::string const& output, bool markers) {
    if (formatOf(output) != FileFormat::kSvg) {
        throw ToolError(output + ": render writes SVG (the name must end in .svg)");
    }
    SvgPicture picture;
    for (std::size_t i = 0; i < inputs.size(); ++i) {
        Drawing drawing = readDrawing(inputs[i]);
        drawPolylines(picture, drawing.polylines, Palette::colour(i), markers);
    }
    writePicture(output, picture);
    std::printf("%s\n", output.c_str());
    return 0;
}

}  // namespace orxtool
