// orx demo: a gallery of what the library draws, as SVG pictures and an index.html page.
#include <cstdio>
#include <filesystem>
#include <sstream>
#include <system_error>

#include "commands.h"
#include "file_formats.h"
#include "numbers.h"
#include "orx/profiles/outline.h"
#include "orx/regions/bool_operation.h"
#include "orx/regions/region.h"
#include "profile_samples.h"
#include "region_operations.h"
#include "shape_info.h"
#include "tool_error.h"

namespace orxtool {

namespace {

// How far dimension lines stand off the outline, in pixels.
constexpr double kDimensionOffsetPixels = 28.0;

struct Figure {
    std::string file;
    std::string title;
};

struct Gallery {
    std::filesystem::path directory;
    std::vector<Figure> profiles, booleans, regions;

    void save(std::string const& file, SvgPicture const& picture) const {
        writeFileText((directory / file).string(), picture.svg());
    }
};

COrxVertexArray outline(int code, std::vector<double> const& dims, double x = 0.0, double y = 0.0) {
    COrxArrayTempl<double> libraryDims;
    for (double d : dims) {
        libraryDims.append(d);
    }
    return ORX::g_outline(code, COrxVector3d(x, y, 0.0), libraryDims);
}

// Width below and height left of the outline's extents.
void addExtentDimensions(SvgPicture& picture, COrxVertexArray const& shape) {
    COrxPoint3d lo, hi;
    if (!shape.extents(lo, hi)) {
        return;
    }
    picture.addDimension(lo, COrxPoint3d(hi.x, lo.y, 0), shortText(hi.x - lo.x, 4),
                         -kDimensionOffsetPixels);
    picture.addDimension(lo, COrxPoint3d(lo.x, hi.y, 0), shortText(hi.y - lo.y, 4),
                         kDimensionOffsetPixels);
}

void addProfiles(Gallery& gallery) {
    for (ProfileSample const& sample : profileSamples()) {
        COrxVertexArray shape = outline(sample.code, sample.dims);
        SvgPicture picture(360);
        drawPolylines(picture, {shape}, Palette::colour(0), true);
        addExtentDimensions(picture, shape);
        std::string title = "code " + std::to_string(sample.code) + ": " + sample.name;
        picture.addCaption(title);
        picture.addCaption(describeDims(sample, sample.dims));
        if (shape.isEmpty()) {
            picture.addCaption("(no outline for these dimensions)");
        }
        std::string file = "profile-" + std::to_string(sample.code) + ".svg";
        gallery.save(file, picture);
        gallery.profiles.push_back({file, title});
    }
}

void addBooleans(Gallery& gallery) {
    COrxVertexArray plate = outline(27, {200, 120, 30});       // rounded rectangle
    COrxVertexArray disc = outline(802, {150}, 190.0, 110.0);  // circle about (190, 110)
    struct Operation {
        char const* name;
        COrxVertexArray::boolOper op;
    } const operations[] = {{"union", COrxVertexArray::boolUnion},
                            {"difference", COrxVertexArray::boolDiff},
                            {"intersection", COrxVertexArray::boolSect}};
    for (Operation const& operation : operations) {
        COrxArrayTempl<COrxVertexArray> loops =
            ORX::g_vl_vll(ORX::g_vl_bool(plate, disc, operation.op));
        std::vector<COrxVertexArray> result;
        for (unsigned long i = 0; i < loops.len(); ++i) {
            result.push_back(loops[static_cast<int>(i)]);
        }
        SvgPicture picture(420);
        picture.addPolyline(plate, "#888888");
        picture.addPolyline(disc, "#888888");
        drawPolylines(picture, result, Palette::colour(1), true);
        double area = 0.0;
        for (Region const& region : regionsOf(result)) {
            area += regionArea(region);
        }
        std::string title = std::string("bool ") + operation.name +
                            ": rounded rectangle 200 x 120, r 30, and circle, d 150";
        picture.addCaption(title);
        picture.addCaption("result area " + shortText(area, 8));
        std::string file = std::string("bool-") + operation.name + ".svg";
        gallery.save(file, picture);
        gallery.booleans.push_back({file, title});
    }
}

void addRegionWithHoles(Gallery& gallery) {
    std::vector<COrxVertexArray> plate = {outline(24, {300, 180, 25})};
    std::vector<COrxVertexArray> cuts = {
        outline(802, {40}, 50, 50),       outline(802, {40}, 250, 50),
        outline(802, {40}, 50, 130),      outline(802, {40}, 250, 130),
        outline(803, {100, 36}, 150, 90), outline(22, {-30}, 300, 180),
    };
    std::vector<Region> result =
        combineRegions(RegionOperation::kDiff, regionsOf(plate), regionsOf(cuts));
    SvgPicture picture(480);
    double area = 0.0;
    for (Region const& region : result) {
        picture.addRegion(region, Palette::colour(2));
        area += regionArea(region);
    }
    addExtentDimensions(picture, plate[0]);
    std::string title =
        "region diff: chamfered plate, minus four bores, a slotted hole, "
        "and a corner cut";
    picture.addCaption(title);
    picture.addCaption(std::to_string(result.size()) + " region, " +
                       std::to_string(result.empty() ? 0 : result[0].len() - 1) + " holes, area " +
                       shortText(area, 8));
    gallery.save("region-holes.svg", picture);
    gallery.regions.push_back({"region-holes.svg", title});
}

std::string figures(std::vector<Figure> const& list) {
    std::ostringstream out;
    out << "<div class=\"grid\">\n";
    for (Figure const& f : list) {
        out << "<figure><img src=\"" << xmlEscaped(f.file) << "\" alt=\"" << xmlEscaped(f.title)
            << "\"><figcaption>" << xmlEscaped(f.title) << "</figcaption></figure>\n";
    }
    out << "</div>\n";
    return out.str();
}

std::string indexPage(Gallery const& gallery) {
    std::ostringstream out;
    out << "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
        << "<title>orx demo</title>\n<style>\n"
        << "body { font-family: sans-serif; margin: 2em; color: #222; }\n"
        << ".grid { display: flex; flex-wrap: wrap; gap: 1.5em; }\n"
        << "figure { margin: 0; border: 1px solid #ddd; padding: 0.5em; }\n"
        << "figure img { display: block; max-width: 480px; }\n"
        << "figcaption { font-size: 0.9em; margin-top: 0.3em; }\n</style>\n</head>\n<body>\n"
        << "<h1>orx demo</h1>\n<p>Profile outlines, boolean operations and regions, drawn from the "
           "library's bulge "
           "polylines: arcs are true arcs, regions are filled by the even-odd rule.</p>\n"
        << "<h2>Boolean operations</h2>\n"
        << figures(gallery.booleans) << "<h2>Region with holes</h2>\n"
        << figures(gallery.regions) << "<h2>Profile outlines (" << gallery.profiles.size()
        << " codes)</h2>\n"
        << figures(gallery.profiles) << "</body>\n</html>\n";
    return out.str();
}

}  // namespace

int runDemo(std::string const& directory) {
    Gallery gallery;
    gallery.directory = directory;
    std::error_code error;
    std::filesystem::create_directories(gallery.directory, error);
    if (error) {
        throw ToolError(directory + ": cannot create the folder (" + error.message() + ")");
    }
    addBooleans(gallery);
    addRegionWithHoles(gallery);
    addProfiles(gallery);
    std::filesystem::path index = gallery.directory / "index.html";
    writeFileText(index.string(), indexPage(gallery));
    std::printf("%s\n", index.string().c_str());
    return 0;
}

}  // namespace orxtool
