#include <sstream>

#include "dxf_format.h"
#include "numbers.h"

namespace orxtool {

namespace {

void pair(std::ostringstream& out, int code, std::string const& value) {
    out << code << '\n' << value << '\n';
}

}  // namespace

std::string writeDxf(std::vector<VertexList> const& lists) {
    std::ostringstream out;
    pair(out, 0, "SECTION");
    pair(out, 2, "ENTITIES");
    for (VertexList const& list : lists) {
        pair(out, 0, "LWPOLYLINE");
        pair(out, 8, "0");
        pair(out, 90, std::to_string(list.points.size()));
        pair(out, 70, list.closed ? "1" : "0");
        if (list.z != 0.0) {
            pair(out, 38, exactText(list.z));
        }
        for (VertexList::Point const& p : list.points) {
            pair(out, 10, exactText(p.x));
            pair(out, 20, exactText(p.y));
            if (p.bulge != 0.0) {
                pair(out, 42, exactText(p.bulge));
            }
        }
    }
    pair(out, 0, "ENDSEC");
    pair(out, 0, "EOF");
    return out.str();
}

}  // namespace orxtool
