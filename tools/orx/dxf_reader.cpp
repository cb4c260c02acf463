#include <optional>
#include <sstream>

#include "dxf_entities.h"
#include "dxf_format.h"
#include "message_text.h"
#include "segment_chains.h"

namespace orxtool {

namespace {

// Takes the entities of the ENTITIES section one by one. An old-style POLYLINE collects the
// VERTEX entities after it up to its SEQEND (or the next other entity).
class EntityCollector {
public:
    explicit EntityCollector(DxfGroupReader const& reader) : m_reader(reader) {}

    void add(DxfEntity const& entity) {
        if (m_polyline) {
            if (entity.type == "VERTEX") {
                m_vertices.push_back(entity);
                return;
            }
            finishPolyline();
            if (entity.type == "SEQEND") {
                return;
            }
        }
        take(entity);
    }

    DxfContent finish() {
        finishPolyline();
        std::vector<Chain> chains = chainSegments(m_loose);
        m_content.chainedSegments = static_cast<int>(m_loose.size());
        m_content.chains = static_cast<int>(chains.size());
        for (Chain const& chain : chains) {
            for (VertexList& list : toVertexLists(chain.polyline, chain.layer)) {
                m_content.lists.push_back(std::move(list));
            }
        }
        return m_content;
    }

private:
    void take(DxfEntity const& entity) {
        std::string const& type = entity.type;
        if (type == "LWPOLYLINE") {
            m_content.lists.push_back(readLwPolyline(entity, m_reader));
        } else if (type == "POLYLINE") {
            m_polyline = entity;
            return;  // counted when its vertices are in
        } else if (type == "CIRCLE") {
            m_content.lists.push_back(readCircle(entity, m_reader));
        } else if (type == "LINE" || type == "ARC") {
            std::optional<LooseSegment> segment =
                type == "LINE" ? readLine(entity, m_reader) : readArc(entity, m_reader);
            if (!segment) {
                ++m_content.skipped[type + " of zero length"];
                return;
            }
            m_loose.push_back(*segment);
        } else {
            if (type != "VERTEX" && type != "SEQEND") {
                ++m_content.skipped[type];
            }
            return;
        }
        ++m_content.read[type];
    }

    void finishPolyline() {
        if (!m_polyline) {
            return;
        }
        std::optional<VertexList> list = readOldPolyline(*m_polyline, m_vertices, m_reader);
        if (list) {
            m_content.lists.push_back(*list);
            ++m_content.read["POLYLINE"];
        } else {
            ++m_content.skipped["POLYLINE (3D or mesh)"];
        }
        m_polyline.reset();
        m_vertices.clear();
    }

    DxfGroupReader const& m_reader;
    DxfContent m_content;
    std::vector<LooseSegment> m_loose;
    std::optional<DxfEntity> m_polyline;
    std::vector<DxfEntity> m_vertices;
};

}  // namespace

std::string DxfContent::summary() const {
    std::ostringstream out;
    for (auto const& [type, count] : read) {
        out << (out.tellp() > 0 ? ", " : "") << count << " " << type;
    }
    if (read.empty()) {
        out << "no entity";
    }
    if (chainedSegments > 0) {
        out << "; " << chainedSegments
            << (chainedSegments == 1 ? " line or arc" : " lines and arcs") << " chained into "
            << chains << (chains == 1 ? " polyline" : " polylines");
    }
    return out.str();
}

DxfContent readDxf(std::string const& text, std::string const& file) {
    if (text.find('\0') != std::string::npos) {
        throw ToolError(file + ": not an ASCII DXF file (binary content)");
    }
    DxfGroupReader reader(text, file);
    EntityCollector collector(reader);
    std::optional<DxfEntity> entity;  // the entity whose groups are being read
    std::string section;
    bool sawSection = false;
    DxfGroup g;
    while (reader.next(g)) {
        if (g.code == 999) {
            continue;  // comment
        }
        if (!sawSection && !(g.code == 0 && g.value == "SECTION")) {
            throw reader.error(
                g.line, "not a DXF file (expected a SECTION, found " + quotedInput(g.value) + ")");
        }
        if (g.code != 0) {
            if (g.code == 2 && section == "?") {
                section = g.value;
            } else if (entity) {
                entity->groups.push_back(g);
            }
            continue;
        }
        if (entity) {
            collector.add(*entity);
            entity.reset();
        }
        if (g.value == "SECTION") {
            sawSection = true;
            section = "?";
        } else if (g.value == "ENDSEC") {
            section.clear();
        } else if (g.value == "EOF") {
            return collector.finish();
        } else if (section == "ENTITIES") {
            entity = DxfEntity{g.value, g.line, {}};
        }
    }
    if (!sawSection) {
        throw ToolError(file + ": not a DXF file (empty)");
    }
    throw ToolError(file + ": unexpected end of file (no EOF marker)");
}

}  // namespace orxtool
