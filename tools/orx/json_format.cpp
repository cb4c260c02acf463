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

// The length of the UTF-8 sequence that starts at text[i], or 0 when no valid one does
// (a stray continuation byte, an overlong form, a surrogate, a code point past U+10FFFF).
std::size_t utf8SequenceAt(std::string const& text, std::size_t i) {
    auto const byte = [&](std::size_t k) {
        return k < text.size() ? static_cast<unsigned char>(text[k]) : 0u;
    };
    auto const tail = [&](std::size_t k) { return (byte(k) & 0xC0u) == 0x80u; };
    unsigned const b = byte(i);
    if (b < 0x80) {
        return 1;
    }
    if (b >= 0xC2 && b <= 0xDF) {
        return tail(i + 1) ? 2 : 0;
    }
    if (b >= 0xE0 && b <= 0xEF) {
        unsigned const low = b == 0xE0 ? 0xA0 : 0x80, high = b == 0xED ? 0x9F : 0xBF;
        return byte(i + 1) >= low && byte(i + 1) <= high && tail(i + 2) ? 3 : 0;
    }
    if (b >= 0xF0 && b <= 0xF4) {
        unsigned const low = b == 0xF0 ? 0x90 : 0x80, high = b == 0xF4 ? 0x8F : 0xBF;
        return byte(i + 1) >= low && byte(i + 1) <= high && tail(i + 2) && tail(i + 3) ? 4 : 0;
    }
    return 0;
}

// The layer name as UTF-8 of the same length: every byte that is not part of a UTF-8
// sequence (a code page's letter from an older DXF file) becomes '_'. A replacement
// character instead would take three bytes and could push the name past the length the
// reader accepts.
std::string utf8LayerName(std::string const& name) {
    std::string out;
    for (std::size_t i = 0; i < name.size();) {
        std::size_t const n = utf8SequenceAt(name, i);
        out += n == 0 ? std::string("_") : name.substr(i, n);
        i += n == 0 ? 1 : n;
    }
    return out;
}

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
                            {"layer", utf8LayerName(list.layer)},
                            {"elevation", list.z},
                            {"vertices", vertices}});
    }
    return document.dump(1, ' ', false) + "\n";
}

}  // namespace orxtool
