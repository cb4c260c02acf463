#include "json_format.h"

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>

#include "message_text.h"
#include "tool_error.h"

namespace orxtool {

namespace {

using nlohmann::json;

std::size_t lineOfOffset(std::string const& text, std::size_t offset) {
    offset = std::min(offset, text.size());
    return 1 + static_cast<std::size_t>(std::count(text.begin(), text.begin() + offset, '\n'));
}

// The document tree of the JSON parser, which also keeps where the text went wrong: the
// parser reports the position of a number out of range only to this handler, not in the
// exception it would throw.
class PositionedDomParser : public nlohmann::detail::json_sax_dom_parser<json> {
public:
    explicit PositionedDomParser(json& document) : json_sax_dom_parser(document, false) {}

    // Hides the base's handler, which would forget the position.
    bool parse_error(std::size_t position, std::string const& /*token*/,
                     nlohmann::detail::exception const& error) {
        m_position = position;
        m_outOfRange = dynamic_cast<nlohmann::detail::out_of_range const*>(&error) != nullptr;
        return false;
    }

    std::size_t position() const { return m_position; }
    bool outOfRange() const { return m_outOfRange; }

private:
    std::size_t m_position = 0;
    bool m_outOfRange = false;
};

class ListReader {
public:
    ListReader(std::string const& file, std::size_t polyline)
        : m_where(file + ": polyline " + std::to_string(polyline)) {}

    VertexList read(json const& item) const {
        if (!item.is_object()) {
            fail("is not an object with \"vertices\" and \"closed\"");
        }
        VertexList list;
        if (item.contains("closed")) {
            if (!item["closed"].is_boolean()) {
                fail("\"closed\" is not true or false");
            }
            list.closed = item["closed"].get<bool>();
        }
        if (item.contains("layer")) {
            list.layer = layer(item["layer"]);
        }
        if (item.contains("elevation")) {
            if (!item["elevation"].is_number()) {
                fail("\"elevation\" is not a finite number");
            }
            list.z = item["elevation"].get<double>();
        }
        if (!item.contains("vertices") || !item["vertices"].is_array()) {
            fail("has no list \"vertices\"");
        }
        json const& vertices = item["vertices"];
        for (std::size_t j = 0; j < vertices.size(); ++j) {
            list.points.push_back(point(vertices[j], j + 1));
        }
        if (list.points.size() < 2) {
            fail("has fewer than two vertices");
        }
        return list;
    }

private:
    std::string layer(json const& value) const {
        if (!value.is_string()) {
            fail("\"layer\" is not a text");
        }
        std::string name = value.get<std::string>();
        std::string problem = layerNameProblem(name);
        if (!problem.empty()) {
            fail("\"layer\" " + quotedInput(name) + " " + problem);
        }
        return name;
    }

    VertexList::Point point(json const& vertex, std::size_t index) const {
        std::string where = "vertex " + std::to_string(index);
        if (!vertex.is_object()) {
            fail(where + " is not an object {\"x\", \"y\", \"bulge\"}");
        }
        VertexList::Point p;
        p.x = number(vertex, "x", where, true);
        p.y = number(vertex, "y", where, true);
        p.bulge = number(vertex, "bulge", where, false);
        return p;
    }

    double number(json const& vertex, char const* key, std::string const& where,
                  bool required) const {
        if (!vertex.contains(key)) {
            if (required) {
                fail(where + " has no \"" + key + "\"");
            }
            return 0.0;
        }
        json const& value = vertex[key];
        if (!value.is_number()) {
            fail(where + ": \"" + key + "\" is not a finite number");
        }
        return value.get<double>();
    }

    [[noreturn]] void fail(std::string const& what) const { throw ToolError(m_where + " " + what); }

    std::string m_where;
};

}  // namespace

std::vector<VertexList> readJson(std::string const& text, std::string const& file) {
    json document;
    PositionedDomParser parser(document);
    if (!json::sax_parse(text, &parser)) {
        throw ToolError(file + ":" + std::to_string(lineOfOffset(text, parser.position())) +
                        (parser.outOfRange() ? ": a number out of range" : ": not valid JSON"));
    }
    if (!document.is_array()) {
        throw ToolError(file + ": expected a list of polylines");
    }
    std::vector<VertexList> lists;
    for (std::size_t i = 0; i < document.size(); ++i) {
        lists.push_back(ListReader(file, i + 1).read(document[i]));
    }
    return lists;
}

std::string writeJson(std::vector<VertexList> const& lists) {
    json document = json::array();
    for (VertexList const& list : lists) {
        json vertices = json::array();
        for (VertexList::Point const& p : list.points) {
            vertices.push_back({{"x", p.x}, {"y", p.y}, {"bulge", p.bulge}});
        }
        document.push_back({{"closed", list.closed},
                            {"layer", list.layer},
                            {"elevation", list.z},
                            {"vertices", vertices}});
    }
    // Layer names read from an older DXF file may hold bytes of a code page that are not
    // UTF-8; they are replaced rather than refused.
    return document.dump(1, ' ', false, json::error_handler_t::replace) + "\n";
}

}  // namespace orxtool
