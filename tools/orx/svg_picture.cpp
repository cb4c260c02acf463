#include "svg_picture.h"

#include <algorithm>
#include <cmath>
#include <sstream>

#include "drawing.h"
#include "numbers.h"
#include "safe_measures.h"
#include "tool_error.h"

namespace orxtool {

namespace {

// Significant digits of coordinates in the SVG: far finer than any pixel.
constexpr int kSvgDigits = 10;
// A bulge this small is drawn as a straight line: its arc's height over the chord is below
// a billionth of the chord, and its radius may not be representable.
constexpr double kBulgeDrawnStraight = 1e-9;
// Sizes in pixels.
constexpr double kStrokePixels = 1.5;
constexpr double kMarkerPixels = 3.0;
constexpr double kMarginPixels = 16.0;
constexpr double kDimensionMarginPixels = 80.0;
constexpr double kLabelPixels = 13.0;
constexpr double kCaptionLinePixels = 18.0;
constexpr double kTickPixels = 5.0;
// Captions wrap at ", " to fit the picture, at least this wide; the width of a character is
// estimated generously for a sans-serif face.
constexpr int kMinCaptionPixels = 300;
constexpr double kCharacterPixels = 7.0;
// Opacity of region fills, so that overlapping operands stay visible.
constexpr double kFillOpacity = 0.3;

std::string num(double v) {
    return shortText(v, kSvgDigits);
}

// The caption broken after ", " into lines of at most `width` characters where it can be.
std::vector<std::string> wrapped(std::string const& caption, std::size_t width) {
    std::vector<std::string> lines(1);
    std::size_t start = 0;
    while (start < caption.size()) {
        std::size_t comma = caption.find(", ", start);
        std::size_t end = comma == std::string::npos ? caption.size() : comma + 2;
        std::string piece = caption.substr(start, end - start);
        if (!lines.back().empty() && lines.back().size() + piece.size() > width) {
            lines.emplace_back();
        }
        lines.back() += piece;
        start = end;
    }
    return lines;
}

std::string point(COrxPoint3d const& p) {
    return num(p.x) + " " + num(-p.y);
}

std::string arcTo(COrxVertex const& segment) {
    double b = segment.bulge();
    // hypot: the squares of a distance overflow above about 1e154, the distance does not.
    COrxPoint3d const& a = segment.startPoint();
    COrxPoint3d const& e = segment.endPoint();
    double chord = std::hypot(e.x - a.x, e.y - a.y);
    double radius = chord / 4.0 * std::fabs(1.0 / b + b);
    if (std::fabs(b) < kBulgeDrawnStraight || !std::isfinite(radius)) {
        return " L " + point(segment.endPoint());
    }
    char const* largeArc = std::fabs(b) > 1.0 ? " 1" : " 0";
    char const* sweep = b < 0.0 ? " 1 " : " 0 ";  // y is mirrored on the way out
    return " A " + num(radius) + " " + num(radius) + " 0" + largeArc + sweep +
           point(segment.endPoint());
}

}  // namespace

std::string Palette::colour(std::size_t i) {
    static char const* const kColours[] = {"#1f5fbf", "#d9661f", "#2e9e44",
                                           "#c0392b", "#7d3cb5", "#8c6d31"};
    return kColours[i % (sizeof kColours / sizeof kColours[0])];
}

std::string svgPathData(COrxVertexArray const& polyline) {
    std::string data;
    for (COrxVertexArray const& run : splitRuns(polyline)) {
        data += (data.empty() ? "M " : " M ") + point(run[0].startPoint());
        for (int i = 0; i < run.len(); ++i) {
            COrxVertex const& segment = run[i];
            data += segment.isStraight() ? " L " + point(segment.endPoint()) : arcTo(segment);
        }
        if (run.isClosed()) {
            data += " Z";
        }
    }
    return data;
}

std::string xmlEscaped(std::string const& text) {
    std::string out;
    for (char c : text) {
        switch (c) {
            case '&':
                out += "&amp;";
                break;
            case '<':
                out += "&lt;";
                break;
            case '>':
                out += "&gt;";
                break;
            case '"':
                out += "&quot;";
                break;
            default:
                out += c;
        }
    }
    return out;
}

struct SvgPicture::View {
    double x = 0.0, y = 0.0, width = 1.0, height = 1.0;  // view box, y already negated
    int widthPixels = 1, heightPixels = 1;
    double unitsPerPixel = 1.0;
};

SvgPicture::SvgPicture(int longSidePixels) : m_longSide(std::max(longSidePixels, 100)) {}

void SvgPicture::include(COrxPoint3d const& p) {
    if (!m_hasExtents) {
        m_min = m_max = p;
        m_hasExtents = true;
        return;
    }
    m_min.x = std::min(m_min.x, p.x);
    m_min.y = std::min(m_min.y, p.y);
    m_max.x = std::max(m_max.x, p.x);
    m_max.y = std::max(m_max.y, p.y);
}

void SvgPicture::include(COrxVertexArray const& polyline) {
    COrxPoint3d lo, hi;
    if (safeExtents(polyline, lo, hi)) {
        include(lo);
        include(hi);
    }
}

void SvgPicture::addRegion(COrxArrayTempl<COrxVertexArray> const& region,
                           std::string const& colour) {
    Item item{Item::kRegion, colour, {}, {}, {}, {}, 0.0};
    for (unsigned long i = 0; i < region.len(); ++i) {
        item.loops.push_back(region[static_cast<int>(i)]);
        include(item.loops.back());
    }
    m_items.push_back(item);
}

void SvgPicture::addPolyline(COrxVertexArray const& polyline, std::string const& colour) {
    include(polyline);
    m_items.push_back(Item{Item::kPolyline, colour, {polyline}, {}, {}, {}, 0.0});
}

void SvgPicture::addMarkers(COrxVertexArray const& polyline, std::string const& colour) {
    include(polyline);
    m_items.push_back(Item{Item::kMarkers, colour, {polyline}, {}, {}, {}, 0.0});
}

void SvgPicture::addDimension(COrxPoint3d const& a, COrxPoint3d const& b, std::string const& text,
                              double offsetPixels) {
    include(a);
    include(b);
    m_items.push_back(Item{Item::kDimension, "#333333", {}, a, b, text, offsetPixels});
}

void SvgPicture::addCaption(std::string const& line) {
    m_captions.push_back(line);
}

SvgPicture::View SvgPicture::fitView() const {
    bool dimensions = std::any_of(m_items.begin(), m_items.end(),
                                  [](Item const& i) { return i.kind == Item::kDimension; });
    double margin = dimensions ? kDimensionMarginPixels : kMarginPixels;
    double w = m_hasExtents ? m_max.x - m_min.x : 0.0;
    double h = m_hasExtents ? m_max.y - m_min.y : 0.0;
    double longer = std::max(w, h);
    double scale = longer > 0.0 ? (m_longSide - 2.0 * margin) / longer : 1.0;  // px per unit
    // Extents wider than the largest double, or so narrow that a pixel is not a double's
    // worth of them, have no picture; refused before any size is cast to pixels.
    if (!std::isfinite(w) || !std::isfinite(h) || !std::isfinite(scale) ||
        !std::isfinite(1.0 / scale)) {
        throw ToolError("the drawing's extents (" + num(m_min.x) + ", " + num(m_min.y) + ") - (" +
                        num(m_max.x) + ", " + num(m_max.y) +
                        ") cannot be drawn at a finite scale; nothing written");
    }
    View view;
    view.widthPixels = static_cast<int>(std::ceil(w * scale + 2.0 * margin));
    view.heightPixels = static_cast<int>(std::ceil(h * scale + 2.0 * margin));
    view.unitsPerPixel = 1.0 / scale;
    view.width = view.widthPixels / scale;
    view.height = view.heightPixels / scale;
    view.x = m_min.x - (view.width - w) / 2.0;
    view.y = -m_max.y - (view.height - h) / 2.0;
    return view;
}

std::string SvgPicture::itemSvg(Item const& item, View const& view) const {
    double px = view.unitsPerPixel;
    std::ostringstream out;
    std::string stroke = " stroke=\"" + item.colour + "\" stroke-width=\"" +
                         num(kStrokePixels * px) + "\" stroke-linejoin=\"round\"";
    switch (item.kind) {
        case Item::kRegion: {
            std::string data;
            for (COrxVertexArray const& loop : item.loops) {
                data += (data.empty() ? "" : " ") + svgPathData(loop);
            }
            out << "<path class=\"region\" d=\"" << data << "\" fill=\"" << item.colour
                << "\" fill-opacity=\"" << kFillOpacity << "\" fill-rule=\"evenodd\"" << stroke
                << "/>\n";
            break;
        }
        case Item::kPolyline:
            out << "<path class=\"polyline\" d=\"" << svgPathData(item.loops[0])
                << "\" fill=\"none\"" << stroke << "/>\n";
            break;
        case Item::kMarkers:
            for (COrxVertexArray const& run : splitRuns(item.loops[0])) {
                int ends = run.isClosed() ? run.len() : run.len() + 1;
                for (int i = 0; i < ends; ++i) {
                    COrxPoint3d p = i < run.len() ? run[i].startPoint() : run[-1].endPoint();
                    out << "<circle class=\"marker\" cx=\"" << num(p.x) << "\" cy=\"" << num(-p.y)
                        << "\" r=\"" << num(kMarkerPixels * px) << "\" fill=\"" << item.colour
                        << "\"/>\n";
                }
            }
            break;
        case Item::kDimension: {
            COrxVector3d along = item.b - item.a;
            double length = std::hypot(along.x, along.y);
            double nx = length > 0.0 ? -along.y / length : 0.0;  // left of a -> b
            double ny = length > 0.0 ? along.x / length : 1.0;
            double d = item.offsetPixels * px;
            auto shifted = [&](COrxPoint3d const& p, double by) {
                return COrxPoint3d(p.x + nx * by, p.y + ny * by, 0.0);
            };
            COrxPoint3d a = shifted(item.a, d), b = shifted(item.b, d);
            double tick = kTickPixels * px * (d < 0 ? -1.0 : 1.0);
            out << "<path class=\"dimension\" d=\"M " << point(shifted(item.a, 0.3 * d)) << " L "
                << point(shifted(a, tick)) << " M " << point(shifted(item.b, 0.3 * d)) << " L "
                << point(shifted(b, tick)) << " M " << point(a) << " L " << point(b)
                << "\" fill=\"none\" stroke=\"" << item.colour << "\" stroke-width=\""
                << num(0.8 * px) << "\"/>\n";
            // Beside a dimension line that stands to the left or right the text runs away
            // from it; above or below it is centred.
            double side = d < 0 ? -1.0 : 1.0;
            bool sideways = std::fabs(nx) > std::fabs(ny);
            char const* anchor = !sideways ? "middle" : (nx * side < 0 ? "end" : "start");
            double gap = (sideways ? 0.4 : 1.0) * kLabelPixels * px * side;
            COrxPoint3d label = shifted(COrxPoint3d((a.x + b.x) / 2, (a.y + b.y) / 2, 0.0), gap);
            out << "<text x=\"" << num(label.x) << "\" y=\"" << num(-label.y)
                << "\" font-family=\"sans-serif\" font-size=\"" << num(kLabelPixels * px)
                << "\" text-anchor=\"" << anchor << "\" dominant-baseline=\"middle\" fill=\""
                << item.colour << "\">" << xmlEscaped(item.text) << "</text>\n";
            break;
        }
    }
    return out.str();
}

std::string SvgPicture::svg() const {
    View view = fitView();
    int totalWidth =
        m_captions.empty() ? view.widthPixels : std::max(view.widthPixels, kMinCaptionPixels);
    std::vector<std::string> lines;
    for (std::string const& caption : m_captions) {
        for (std::string& line :
             wrapped(caption, static_cast<std::size_t>(totalWidth / kCharacterPixels))) {
            lines.push_back(std::move(line));
        }
    }
    double captionHeight =
        lines.empty() ? 0.0 : (static_cast<double>(lines.size()) + 0.5) * kCaptionLinePixels;
    int totalHeight = view.heightPixels + static_cast<int>(std::ceil(captionHeight));
    std::ostringstream out;
    out << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << totalWidth << "\" height=\""
        << totalHeight << "\" viewBox=\"0 0 " << totalWidth << " " << totalHeight << "\">\n";
    out << "<svg class=\"drawing\" x=\"0\" y=\"0\" width=\"" << view.widthPixels << "\" height=\""
        << view.heightPixels << "\" viewBox=\"" << num(view.x) << " " << num(view.y) << " "
        << num(view.width) << " " << num(view.height) << "\">\n";
    for (Item const& item : m_items) {
        out << itemSvg(item, view);
    }
    out << "</svg>\n";
    for (std::size_t i = 0; i < lines.size(); ++i) {
        out << "<text x=\"8\" y=\""
            << view.heightPixels + static_cast<double>(i + 1) * kCaptionLinePixels
            << "\" font-family=\"sans-serif\" font-size=\"" << kLabelPixels << "\" fill=\"#222\">"
            << xmlEscaped(lines[i]) << "</text>\n";
    }
    out << "</svg>\n";
    return out.str();
}

}  // namespace orxtool
