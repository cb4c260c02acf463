// The tool's in-memory drawing: the polylines of one file with their layers, and their
// exchange form, the vertex list that DXF (LWPOLYLINE) and JSON both store: points with the
// bulge of the segment that leaves each point, a closed flag, the height and the layer.
#ifndef ORX_TOOL_DRAWING_H
#define ORX_TOOL_DRAWING_H

#include <string>
#include <vector>

#include "orx/polyline/vertex_array.h"

namespace orxtool {

// The layer of everything that comes without one.
constexpr char kDefaultLayer[] = "0";

struct Drawing {
    std::string source;  // the file name, for messages
    std::vector<COrxVertexArray> polylines;
    std::vector<std::string> layers;  // one per polyline
    std::string contents;             // DXF: what was read ("3 LINE, 1 ARC; 1 chain"), else empty
};

struct VertexList {
    struct Point {
        double x = 0.0;
        double y = 0.0;
        double bulge = 0.0;  // of the segment from this point to the next
    };
    std::vector<Point> points;
    bool closed = false;  // one more segment from the last point back to the first
    double z = 0.0;       // the height of every point
    std::string layer = kDefaultLayer;
};

// Why `name` cannot be a layer name (empty, too long, a space at either end, a control
// character or one of <>/\":;?*|=`), or an empty text when it can.
std::string layerNameProblem(std::string const& name);

// The segments of a vertex list: one per point pair, plus the closing one when closed. A
// closed list whose last point repeats the first exactly gets no zero-length closing segment.
// REQUIRES: at least two points.
COrxVertexArray toPolyline(VertexList const& list);

// The vertex lists of a polyline, one per run of segments that meet (a boolean result may
// hold several loops). A run that ends where it starts (point tolerance) is closed and does
// not repeat its first point; an open run ends with its last point, whose bulge is 0. Each
// list gets the height of the run's first point and `layer`.
std::vector<VertexList> toVertexLists(COrxVertexArray const& polyline, std::string const& layer);

// The runs of segments that meet, as polylines (no normalisation, unlike ORX::g_vl_vll).
std::vector<COrxVertexArray> splitRuns(COrxVertexArray const& polyline);

// Throws ToolError naming `file` and the first polyline and vertex with a non-finite
// coordinate or bulge: the formats cannot hold them (JSON would write null).
void requireFinite(std::vector<VertexList> const& lists, std::string const& file);

// Every polyline as vertex lists on its layer (kDefaultLayer where `layers` has none),
// checked by requireFinite against `file`.
std::vector<VertexList> exportLists(std::vector<COrxVertexArray> const& polylines,
                                    std::vector<std::string> const& layers,
                                    std::string const& file);

}  // namespace orxtool

#endif  // ORX_TOOL_DRAWING_H
