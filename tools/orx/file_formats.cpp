#include "file_formats.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <sstream>
#include <system_error>

#include "dxf_format.h"
#include "json_format.h"
#include "message_text.h"
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

// A name beside `path` for the text before it replaces the file: the same folder, so that
// the rename is one step of the file system, and a random part, so that two runs writing
// the same file do not share it.
std::string temporaryBeside(std::string const& path) {
    std::random_device random;
    std::ostringstream name;
    name << path << ".orx-" << std::hex << random() << ".tmp";
    return name.str();
}

bool isFolder(std::string const& path) {
    std::error_code ignored;
    return std::filesystem::is_directory(std::filesystem::path(path), ignored);
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
    std::ostringstream line;
    line << "orx: " << path << ": skipped " << total << (total == 1 ? " entity" : " entities")
         << " (" << kinds.str() << ")";
    std::cerr << printableLine(line.str()) << "\n";
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
    if (isFolder(path)) {
        throw ToolError(path + ": is a folder, not a file");
    }
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
    if (isFolder(path)) {
        throw ToolError(path + ": is a folder; nothing written");
    }
    std::string temporary = temporaryBeside(path);
    std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
    out << text;
    out.close();
    std::error_code error;
    if (out) {
        std::filesystem::rename(std::filesystem::path(temporary), std::filesystem::path(path),
                                error);
    }
    if (!out || error) {
        std::filesystem::remove(std::filesystem::path(temporary), error);
        throw ToolError(path + ": cannot write the file (an earlier file of this name is kept)");
    }
}

Drawing readDrawing(std::string const& path) {
    FileFormat format = formatOf(path);
    if (format != FileFormat::kDxf && format != FileFormat::kJson) {
        throw ToolError(path + ": not a DXF or JSON file (the name must end in .dxf or .json)");
    }
    std::string text = readFileText(path);
    std::vector<VertexList> lists;
    Drawing drawing;
    drawing.source = path;
    if (format == FileFormat::kDxf) {
        DxfContent content = readDxf(text, path);
        reportSkipped(path, content.skipped);
        lists = std::move(content.lists);
        drawing.contents = content.summary();
    } else {
        lists = readJson(text, path);
    }
    for (VertexList const& list : lists) {
        drawing.polylines.push_back(toPolyline(list));
        drawing.layers.push_back(list.layer);
    }
    return drawing;
}

void writeDrawing(std::string const& path, std::vector<COrxVertexArray> const& polylines,
                  std::vector<std::string> const& layers) {
    FileFormat format = formatOf(path);
    if (format != FileFormat::kDxf && format != FileFormat::kJson) {
        throw ToolError(path + ": can write only .dxf and .json files here");
    }
    std::vector<VertexList> lists = exportLists(polylines, layers, path);
    writeFileText(path, format == FileFormat::kDxf ? writeDxf(lists) : writeJson(lists));
}

}  // namespace orxtool
