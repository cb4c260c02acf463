// SvgPicture: a picture of polylines and regions as SVG.
//
// Arcs are drawn as true SVG arcs. The picture shows the XY plane with y pointing up, so
// every y is negated on the way out; that mirror turns a counter-clockwise arc (positive
// bulge) into one that SVG calls negative-angle, which is why the sweep flag is set for
// negative bulges. Regions are filled by the even-odd rule, one path holding the outer loop
// and the holes. The drawing sits in a nested <svg> whose view box is fitted to the extents
// of everything added plus a margin and whose pixel size keeps the aspect exactly, so one
// drawing unit is the same number of pixels across and down. Stroke widths, markers and
// label sizes are given in pixels and converted, so they look alike at every scale.
//
//     SvgPicture picture;
//     picture.addRegion(plateWithHoles, Palette::colour(0));
//     picture.addPolyline(axis, Palette::colour(1));
//     picture.addCaption("plate 400 x 200");
//     writeFileText("plate.svg", picture.svg());
#ifndef ORX_TOOL_SVG_PICTURE_H
#define ORX_TOOL_SVG_PICTURE_H

#include <string>
#include <vector>

#include "orx/foundation/array_templ.h"
#include "orx/geom/point.h"
#include "orx/polyline/vertex_array.h"

namespace orxtool {

// Colours for the files or operands of one picture, by number (cycling).
struct Palette {
    static std::string colour(std::size_t i);
};

class SvgPicture {
public:
    // The longer side of the drawing in pixels.
    explicit SvgPicture(int longSidePixels = 800);

    // A filled area: entry 0 the outer loop, the rest holes.
    void addRegion(COrxArrayTempl<COrxVertexArray> const& region, std::string const& colour);
    // A stroked line or loop, not filled.
    void addPolyline(COrxVertexArray const& polyline, std::string const& colour);
    // A dot on every segment end of the polyline.
    void addMarkers(COrxVertexArray const& polyline, std::string const& colour);
    // A dimension line from a to b with end ticks and the text at its middle, drawn
    // `offsetPixels` to the left of the direction a -> b.
    void addDimension(COrxPoint3d const& a, COrxPoint3d const& b, std::string const& text,
                      double offsetPixels);
    // A line of text under the drawing, broken after commas where it would not fit.
    void addCaption(std::string const& line);

    // The whole SVG document. An empty picture is a small blank one. Throws ToolError when
    // the extents cannot be drawn at a finite scale (wider than the range of doubles).
    std::string svg() const;

private:
    struct Item {
        enum Kind { kRegion, kPolyline, kMarkers, kDimension } kind;
        std::string colour;
        std::vector<COrxVertexArray> loops;
        COrxPoint3d a, b;
        std::string text;
        double offsetPixels = 0.0;
    };
    struct View;

    void include(COrxVertexArray const& polyline);
    void include(COrxPoint3d const& p);
    View fitView() const;
    std::string itemSvg(Item const& item, View const& view) const;

    int m_longSide;
    std::vector<Item> m_items;
    std::vector<std::string> m_captions;
    bool m_hasExtents = false;
    COrxPoint3d m_min, m_max;
};

// The path data of a polyline ("M ... L ... A ... Z"), y negated, each run of segments that
// meet as one subpath, closed runs ending in Z.
std::string svgPathData(COrxVertexArray const& polyline);

// Text with &, < and > escaped for SVG and HTML.
std::string xmlEscaped(std::string const& text);

}  // namespace orxtool

#endif  // ORX_TOOL_SVG_PICTURE_H
