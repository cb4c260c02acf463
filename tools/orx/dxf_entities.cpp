#include "dxf_entities.h"

#include <cmath>

#include "message_text.h"
#include "numbers.h"

namespace orxtool {

namespace {

// An extrusion direction whose x and y are smaller than this is taken to be +Z or -Z.
constexpr double kExtrusionAxisTol = 1e-9;
constexpr double kPi = 3.14159265358979323846;

// The named groups of one entity, read with the checks every entity needs.
class EntityFields {
public:
    EntityFields(DxfEntity const& entity, DxfGroupReader const& reader)
        : m_entity(entity), m_reader(reader) {}

    // The value of the last group `code`; `fallback` when there is none.
    double number(long code, double fallback) const {
        DxfGroup const* group = find(code);
        return group != nullptr ? numberOf(*group) : fallback;
    }

    double requiredNumber(long code) const {
        DxfGroup const* group = find(code);
        if (group == nullptr) {
            throw error(m_entity.type + " has no group " + std::to_string(code));
        }
        return numberOf(*group);
    }

    bool has(long code) const { return find(code) != nullptr; }

    long flags(long code) const {
        DxfGroup const* group = find(code);
        return group != nullptr ? integerOf(*group) : 0;
    }

    std::string layer() const {
        DxfGroup const* group = find(8);
        std::string name = group != nullptr ? group->value : "0";
        std::string problem = layerNameProblem(name);
        if (!problem.empty()) {
            throw m_reader.error(group->line, "layer " + quotedInput(name) + " " + problem);
        }
        return name;
    }

    // False along +Z, true along -Z (seen from below); throws for any other direction.
    bool seenFromBelow() const {
        double x = number(210, 0.0), y = number(220, 0.0), z = number(230, 1.0);
        if (std::fabs(x) < kExtrusionAxisTol && std::fabs(y) < kExtrusionAxisTol && z != 0.0) {
            return z < 0.0;
        }
        throw error(m_entity.type + " has the extrusion direction (" + shortText(x, 6) + ", " +
                    shortText(y, 6) + ", " + shortText(z, 6) +
                    "): it does not lie in the XY plane (only +Z and -Z are read)");
    }

    double numberOf(DxfGroup const& g) const {
        std::optional<double> value = parseFinite(g.value);
        if (!value) {
            throw m_reader.error(g.line, quotedInput(g.value) + " is not a finite number (group " +
                                             std::to_string(g.code) + ")");
        }
        return *value;
    }

    long integerOf(DxfGroup const& g) const {
        std::optional<long> value = parseInteger(g.value);
        if (!value || *value < 0) {
            throw m_reader.error(g.line, quotedInput(g.value) + " is not a count or flag (group " +
                                             std::to_string(g.code) + ")");
        }
        return *value;
    }

    ToolError error(std::string const& what) const { return error(m_entity.line, what); }
    ToolError error(std::size_t line, std::string const& what) const {
        return m_reader.error(line, what);
    }

private:
    DxfGroup const* find(long code) const {
        DxfGroup const* found = nullptr;
        for (DxfGroup const& g : m_entity.groups) {
            if (g.code == code) {
                found = &g;
            }
        }
        return found;
    }

    DxfEntity const& m_entity;
    DxfGroupReader const& m_reader;
};

// Seen from below, the entity's x axis points the other way and its arcs turn the other way.
void mirrorSeenFromBelow(VertexList& list) {
    for (VertexList::Point& p : list.points) {
        p.x = -p.x;
        p.bulge = -p.bulge;
    }
    list.z = -list.z;
}

COrxVertex mirroredSeenFromBelow(COrxVertex const& v) {
    COrxPoint3d a = v.startPoint(), b = v.endPoint();
    return COrxVertex(COrxPoint3d(-a.x, a.y, -a.z), COrxPoint3d(-b.x, b.y, -b.z), -v.bulge());
}

// cos and sin of an angle in degrees, exact at multiples of 90 degrees so that arcs meet the
// lines drawn to their quadrant points exactly.
void cosSinDegrees(double degrees, double& c, double& s) {
    double r = std::fmod(degrees, 360.0);
    if (r < 0.0) {
        r += 360.0;
    }
    int quadrants = 0;
    while (r >= 90.0 && quadrants < 4) {
        r -= 90.0;
        ++quadrants;
    }
    c = r == 0.0 ? 1.0 : std::cos(r * kPi / 180.0);
    s = r == 0.0 ? 0.0 : std::sin(r * kPi / 180.0);
    for (int q = 0; q < quadrants; ++q) {
        double turned = -s;
        s = c;
        c = turned;
    }
}

double positiveRadius(EntityFields const& fields, std::string const& type) {
    double r = fields.requiredNumber(40);
    if (!(r > 0.0)) {
        throw fields.error(type + " has the radius " + shortText(r, 10) + " (group 40)");
    }
    return r;
}

}  // namespace

VertexList readLwPolyline(DxfEntity const& entity, DxfGroupReader const& reader) {
    EntityFields fields(entity, reader);
    VertexList list;
    list.layer = fields.layer();
    list.closed = (fields.flags(70) & 1) != 0;
    list.z = fields.number(38, 0.0);
    std::vector<bool> hasY;
    for (DxfGroup const& g : entity.groups) {
        if (g.code == 10) {
            list.points.push_back({fields.numberOf(g), 0.0, 0.0});
            hasY.push_back(false);
        } else if ((g.code == 20 || g.code == 42) && list.points.empty()) {
            throw reader.error(g.line, "group " + std::to_string(g.code) +
                                           " comes before the first point (group 10)");
        } else if (g.code == 20) {
            list.points.back().y = fields.numberOf(g);
            hasY.back() = true;
        } else if (g.code == 42) {
            list.points.back().bulge = fields.numberOf(g);
        }
    }
    for (std::size_t i = 0; i < hasY.size(); ++i) {
        if (!hasY[i]) {
            throw fields.error("LWPOLYLINE: vertex " + std::to_string(i + 1) +
                               " has no y (group 20)");
        }
    }
    long declared = fields.flags(90);
    if (fields.has(90) && declared != static_cast<long>(list.points.size())) {
        throw fields.error("LWPOLYLINE declares " + std::to_string(declared) +
                           " vertices but lists " + std::to_string(list.points.size()));
    }
    if (list.points.size() < 2) {
        throw fields.error("LWPOLYLINE has fewer than two vertices");
    }
    if (fields.seenFromBelow()) {
        mirrorSeenFromBelow(list);
    }
    return list;
}

std::optional<VertexList> readOldPolyline(DxfEntity const& header,
                                          std::vector<DxfEntity> const& vertices,
                                          DxfGroupReader const& reader) {
    // Flags 8, 16 and 64: a 3D polyline, a 3D mesh, a polyface mesh.
    EntityFields fields(header, reader);
    long flags = fields.flags(70);
    if ((flags & (8 | 16 | 64)) != 0) {
        return std::nullopt;
    }
    VertexList list;
    list.layer = fields.layer();
    list.closed = (flags & 1) != 0;
    list.z = fields.number(30, 0.0);
    for (DxfEntity const& vertex : vertices) {
        EntityFields v(vertex, reader);
        // Flag 16: a spline frame control point, which is not on the curve.
        if ((v.flags(70) & 16) != 0) {
            continue;
        }
        list.points.push_back({v.requiredNumber(10), v.requiredNumber(20), v.number(42, 0.0)});
    }
    if (list.points.size() < 2) {
        throw fields.error("POLYLINE has fewer than two vertices");
    }
    if (fields.seenFromBelow()) {
        mirrorSeenFromBelow(list);
    }
    return list;
}

VertexList readCircle(DxfEntity const& entity, DxfGroupReader const& reader) {
    EntityFields fields(entity, reader);
    double cx = fields.requiredNumber(10), cy = fields.requiredNumber(20);
    double r = positiveRadius(fields, "CIRCLE");
    VertexList list;
    list.layer = fields.layer();
    list.closed = true;
    list.z = fields.number(30, 0.0);
    list.points = {{cx + r, cy, 1.0}, {cx - r, cy, 1.0}};
    if (fields.seenFromBelow()) {
        mirrorSeenFromBelow(list);
    }
    return list;
}

std::optional<LooseSegment> readLine(DxfEntity const& entity, DxfGroupReader const& reader) {
    EntityFields fields(entity, reader);
    COrxPoint3d a, b;
    a.x = fields.requiredNumber(10);  // one statement each: the errors come in group order
    a.y = fields.requiredNumber(20);
    a.z = fields.number(30, 0.0);
    b.x = fields.requiredNumber(11);
    b.y = fields.requiredNumber(21);
    b.z = fields.number(31, 0.0);
    if (a.z != b.z) {
        throw fields.error("LINE rises from z = " + shortText(a.z, 10) + " to z = " +
                           shortText(b.z, 10) + " (only lines parallel to the XY plane are read)");
    }
    std::string layer = fields.layer();
    if (a == b) {
        return std::nullopt;
    }
    return LooseSegment{COrxVertex(a, b, 0.0), layer};
}

std::optional<LooseSegment> readArc(DxfEntity const& entity, DxfGroupReader const& reader) {
    EntityFields fields(entity, reader);
    double cx = fields.requiredNumber(10), cy = fields.requiredNumber(20);
    double z = fields.number(30, 0.0);
    double r = positiveRadius(fields, "ARC");
    double from = fields.requiredNumber(50), to = fields.requiredNumber(51);
    std::string layer = fields.layer();
    bool mirrored = fields.seenFromBelow();
    double sweep = std::fmod(to - from, 360.0);
    if (sweep < 0.0) {
        sweep += 360.0;
    }
    if (sweep == 0.0) {
        return std::nullopt;
    }
    double c0, s0, c1, s1;
    cosSinDegrees(from, c0, s0);
    cosSinDegrees(to, c1, s1);
    COrxVertex arc(COrxPoint3d(cx + r * c0, cy + r * s0, z),
                   COrxPoint3d(cx + r * c1, cy + r * s1, z), std::tan(sweep * kPi / 720.0));
    return LooseSegment{mirrored ? mirroredSeenFromBelow(arc) : arc, layer};
}

}  // namespace orxtool
