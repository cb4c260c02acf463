#include <cmath>
#include <optional>

#include "dxf_format.h"
#include "numbers.h"
#include "tool_error.h"

namespace orxtool {

namespace {

// An extrusion direction closer to the Z axis than this in x and y counts as parallel to it.
constexpr double kExtrusionAxisTol = 1e-9;

struct Group {
    long code = 0;
    std::string value;
    std::size_t line = 0;  // of the group code, 1-based
};

// Splits the text into (code, value) pairs; any line ending is accepted.
class GroupReader {
public:
    GroupReader(std::string const& text, std::string const& file) : m_text(text), m_file(file) {}

    bool next(Group& group) {
        std::optional<std::string> codeText = nextLine();
        if (!codeText) {
            return false;
        }
        group.line = m_lineNumber;
        std::optional<long> code = parseInteger(*codeText);
        if (!code) {
            std::string what = "'" + *codeText + "' is not a group code";
            throw error(group.line, group.line == 1 ? "not a DXF file (" + what + ")" : what);
        }
        std::optional<std::string> value = nextLine();
        if (!value) {
            throw error(group.line, "group code " + std::to_string(*code) + " has no value");
        }
        group.code = *code;
        group.value = trim(*value);
        return true;
    }

    ToolError error(std::size_t line, std::string const& what) const {
        return ToolError(m_file + ":" + std::to_string(line) + ": " + what);
    }

private:
    std::optional<std::string> nextLine() {
        if (m_pos >= m_text.size()) {
            return std::nullopt;
        }
        std::size_t end = m_text.find_first_of("\r\n", m_pos);
        if (end == std::string::npos) {
            end = m_text.size();
        }
        std::string line = m_text.substr(m_pos, end - m_pos);
        m_pos = end;
        if (m_pos < m_text.size() && m_text[m_pos] == '\r') {
            ++m_pos;
        }
        if (m_pos < m_text.size() && m_text[m_pos] == '\n') {
            ++m_pos;
        }
        ++m_lineNumber;
        return line;
    }

    static std::string trim(std::string const& s) {
        std::size_t first = s.find_first_not_of(" \t");
        if (first == std::string::npos) {
            return {};
        }
        return s.substr(first, s.find_last_not_of(" \t") - first + 1);
    }

    std::string const& m_text;
    std::string const& m_file;
    std::size_t m_pos = 0;
    std::size_t m_lineNumber = 0;
};

// Collects the groups of one LWPOLYLINE and turns them into a vertex list.
class PolylineBuilder {
public:
    PolylineBuilder(GroupReader const& reader, std::size_t line) : m_reader(reader), m_line(line) {}

    void add(Group const& g) {
        switch (g.code) {
            case 90:
                m_declaredCount = integer(g);
                break;
            case 70:
                m_list.closed = (integer(g) & 1) != 0;
                break;
            case 38:
                m_list.z = number(g);
                break;
            case 10:
                m_list.points.push_back({number(g), 0.0, 0.0});
                m_hasY.push_back(false);
                break;
            case 20:
                currentPoint(g).y = number(g);
                m_hasY.back() = true;
                break;
            case 42:
                currentPoint(g).bulge = number(g);
                break;
            case 210:
                m_extrusion[0] = number(g);
                break;
            case 220:
                m_extrusion[1] = number(g);
                break;
            case 230:
                m_extrusion[2] = number(g);
                break;
            default:
                break;  // layer, handle, widths, colour: not geometry
        }
    }

    // The finished list; nothing when the polyline does not lie in the XY plane.
    std::optional<VertexList> finish() {
        std::string where = "LWPOLYLINE";
        for (std::size_t i = 0; i < m_hasY.size(); ++i) {
            if (!m_hasY[i]) {
                throw m_reader.error(
                    m_line, where + ": vertex " + std::to_string(i + 1) + " has no y (group 20)");
            }
        }
        if (m_declaredCount >= 0 &&
            static_cast<std::size_t>(m_declaredCount) != m_list.points.size()) {
            throw m_reader.error(m_line, where + " declares " + std::to_string(m_declaredCount) +
                                             " vertices but lists " +
                                             std::to_string(m_list.points.size()));
        }
        if (m_list.points.size() < 2) {
            throw m_reader.error(m_line, where + " has fewer than two vertices");
        }
        bool alongZ = std::fabs(m_extrusion[0]) < kExtrusionAxisTol &&
                      std::fabs(m_extrusion[1]) < kExtrusionAxisTol && m_extrusion[2] != 0.0;
        if (!alongZ) {
            return std::nullopt;
        }
        if (m_extrusion[2] < 0.0) {
            mirrorSeenFromBelow();
        }
        return m_list;
    }

private:
    // Seen from below the x axis of the polyline's own coordinates points the other way, and
    // an arc that turns counter-clockwise there turns clockwise seen from above.
    void mirrorSeenFromBelow() {
        for (VertexList::Point& p : m_list.points) {
            p.x = -p.x;
            p.bulge = -p.bulge;
        }
        m_list.z = -m_list.z;
    }

    VertexList::Point& currentPoint(Group const& g) {
        if (m_list.points.empty()) {
            throw m_reader.error(g.line, "group " + std::to_string(g.code) +
                                             " comes before the first point (group 10)");
        }
        return m_list.points.back();
    }

    double number(Group const& g) const {
        std::optional<double> value = parseFinite(g.value);
        if (!value) {
            throw m_reader.error(g.line, "'" + g.value + "' is not a finite number (group " +
                                             std::to_string(g.code) + ")");
        }
        return *value;
    }

    long integer(Group const& g) const {
        std::optional<long> value = parseInteger(g.value);
        if (!value || *value < 0) {
            throw m_reader.error(g.line, "'" + g.value + "' is not a count or flag (group " +
                                             std::to_string(g.code) + ")");
        }
        return *value;
    }

    GroupReader const& m_reader;
    std::size_t m_line;
    VertexList m_list;
    std::vector<bool> m_hasY;
    long m_declaredCount = -1;
    double m_extrusion[3] = {0.0, 0.0, 1.0};
};

bool isEntityPart(std::string const& type) {
    // The vertices and the end marker of an old-style polyline belong to it.
    return type == "VERTEX" || type == "SEQEND";
}

}  // namespace

DxfContent readDxf(std::string const& text, std::string const& file) {
    if (text.find('\0') != std::string::npos) {
        throw ToolError(file + ": not an ASCII DXF file (binary content)");
    }
    GroupReader reader(text, file);
    DxfContent content;
    Group g;
    std::string section;
    bool sawSection = false;
    std::optional<PolylineBuilder> polyline;
    auto finishPolyline = [&] {
        if (polyline) {
            std::optional<VertexList> list = polyline->finish();
            if (list) {
                content.lists.push_back(*list);
            } else {
                ++content.skipped["LWPOLYLINE outside the XY plane"];
            }
            polyline.reset();
        }
    };
    while (reader.next(g)) {
        if (g.code == 999) {
            continue;  // comment
        }
        if (!sawSection && !(g.code == 0 && g.value == "SECTION")) {
            throw reader.error(g.line,
                               "not a DXF file (expected a SECTION, found '" + g.value + "')");
        }
        if (g.code != 0) {
            if (g.code == 2 && section == "?") {
                section = g.value;
            } else if (polyline) {
                polyline->add(g);
            }
            continue;
        }
        finishPolyline();
        if (g.value == "SECTION") {
            sawSection = true;
            section = "?";
        } else if (g.value == "ENDSEC") {
            section.clear();
        } else if (g.value == "EOF") {
            return content;
        } else if (section == "ENTITIES") {
            if (g.value == "LWPOLYLINE") {
                polyline.emplace(reader, g.line);
            } else if (!isEntityPart(g.value)) {
                ++content.skipped[g.value];
            }
        }
    }
    if (!sawSection) {
        throw ToolError(file + ": not a DXF file (empty)");
    }
    throw ToolError(file + ": unexpected end of file (no EOF marker)");
}

}  // namespace orxtool
