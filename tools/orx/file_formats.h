// Reading and writing drawings by file extension: .dxf and .json both ways, .svg for output
// (see svg_picture.h). Names are matched without regard to case.
#ifndef ORX_TOOL_FILE_FORMATS_H
#define ORX_TOOL_FILE_FORMATS_H

#include <string>
#include <vector>

#include "drawing.h"

namespace orxtool {

enum class FileFormat { kDxf, kJson, kSvg, kUnknown };

FileFormat formatOf(std::string const& path);

// The polylines of a DXF or JSON file with their layers. Entities skipped in a DXF file are
// counted on standard error. Throws ToolError for a missing or unreadable file, a folder,
// another format, or bad content.
Drawing readDrawing(std::string const& path);

// Writes the polylines as DXF or JSON (whichever the name says; SVG output is the render
// command's), each on its layer ("0" where `layers` has none). Throws ToolError for another
// format, non-finite coordinates (the file is then not written) or a file that cannot be
// written.
void writeDrawing(std::string const& path, std::vector<COrxVertexArray> const& polylines,
                  std::vector<std::string> const& layers);

// The whole file as bytes; writing replaces it. Both throw ToolError naming the file. The
// text is first written to a temporary file beside it, which then takes the file's name:
// a write that fails (a full disc, a size limit) leaves the earlier file as it was.
std::string readFileText(std::string const& path);
void writeFileText(std::string const& path, std::string const& text);

}  // namespace orxtool

#endif  // ORX_TOOL_FILE_FORMATS_H
