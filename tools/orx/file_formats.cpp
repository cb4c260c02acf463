#include "file_formats.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>

#include "dxf_format.h"
#include "json_format.h"
#include "tool_error.h"

namespace orxtool {

namespace {

std::string lowerExtension(std::string const& path) {
    std::size_t slash = path.find_last_of("/\\");
    std::size_t dot = path.rfind('.');
    if (dot == std::string::npos || (slash != std::string::npos && dot < slash)) {
        return {};
    }
    std::string ext = path.substr(dot + 1);
    std::transform(ext.begin(), ext.end(), ext.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return ext;
}

void reportSkipped(std::string const& path, std::map<std::string, int> const& skipped) {
    if (skipped.empty()) {
        return;
    }
    int total = 0;
    std::ostringstream kinds;
    for (auto const& [type, count] : skipped) {
        total += count;
        kinds << (kinds.tellp() > 0 ? ", " : "") << count << " " << type;
    }
    std::cerr << "orx: " << path << ": skipped " << total << (total == 1 ? " entity" : " entities")
              << " (" << kinds.str() << ")\n";
}

}  // namespace

FileFormat formatOf(std::string const& path) {
    std::string ext = lowerExtension(path);
    if (ext == "dxf") {
        return FileFormat::kDxf;
    }
    if (ext == "json") {
        return FileFormat::kJson;
    }
    if (ext == "svg") {
        return FileFormat::kSvg;
    }
    return FileFormat::kUnknown;
}

std::string readFileText(std::string const& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        throw ToolError(path + ": cannot open the file");
    }
    std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (in.bad()) {
        throw ToolError(path + ": cannot read the file");
    }
    return text;
}

void writeFileText(std::string const& path, std::string const& text) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << text;
    out.close();
    if (!out) {
        throw ToolError(path + ": cannot write the file");
    }
}

Drawing readDrawing(std::string const& path) {
    FileFormat format = formatOf(path);
    if (format != FileFormat::kDxf && format != FileFormat::kJson) {
        throw ToolError(path + ": not a DXF or JSON file (the name must end in .dxf or .json)");
    }
    std::string text = readFileText(path);
    std::vector<VertexList> lists;
    if (format == FileFormat::kDxf) {
        DxfContent content = readDxf(text, path);
        reportSkipped(path, content.skipped);
        lists = std::move(content.lists);
    } else {
        lists = readJson(text, path);
    }
    Drawing drawing;
    drawing.source = path;
    for (VertexList const& list : lists) {
        drawing.polylines.push_back(toPolyline(list));
    }
    return drawing;
}

void writeDrawing(std::string const& path, std::vector<COrxVertexArray> const& polylines) {
    FileFormat format = formatOf(path);
    if (format != FileFormat::kDxf && format != FileFormat::kJson) {
        throw ToolError(path + ": can write only .dxf and .json files here");
    }
    std::vector<VertexList> lists = exportLists(polylines, path);
    writeFileText(path, format == FileFormat::kDxf ? writeDxf(lists) : writeJson(lists));
}

}  // namespace orxtool
