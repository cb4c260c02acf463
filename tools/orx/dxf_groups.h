// The group pairs of an ASCII DXF file: a line with a group code, a line with its value.
#ifndef ORX_TOOL_DXF_GROUPS_H
#define ORX_TOOL_DXF_GROUPS_H

#include <string>

#include "tool_error.h"

namespace orxtool {

struct DxfGroup {
    long code = 0;
    std::string value;     // without surrounding blanks
    std::size_t line = 0;  // of the group code, 1-based
};

// Splits the text into groups; any line ending is accepted, and so is a UTF-8 byte-order
// mark before the first group.
class DxfGroupReader {
public:
    DxfGroupReader(std::string const& text, std::string const& file);

    // The next group; false at the end of the text. Throws ToolError for a code line that is
    // not an integer and for a code without a value line.
    bool next(DxfGroup& group);

    // "file:line: what".
    ToolError error(std::size_t line, std::string const& what) const;

    std::string const& file() const { return m_file; }

private:
    bool nextLine(std::string& line);

    std::string const& m_text;
    std::string const& m_file;
    std::size_t m_pos = 0;
    std::size_t m_lineNumber = 0;
};

}  // namespace orxtool

#endif  // ORX_TOOL_DXF_GROUPS_H
