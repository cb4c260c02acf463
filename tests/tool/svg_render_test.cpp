// The pictures of `orx render` drawn by a real SVG renderer: the filled pixels of a region
// must match its computed area, and arcs must bulge to the side their bulge says.
#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

#include "orx/polyline/polyline_functions.h"
#include "png_image.h"
#include "tool_runner.h"

namespace {

// Region fills are translucent (opacity 0.3, alpha about 76) and outlined by an opaque
// stroke centred on the boundary. A pixel at least half as opaque as the fill is covered;
// an opaque one belongs to the stroke, of which only the inner half lies in the region, so
// it counts one half.
constexpr int kCoveredAlpha = 38;
constexpr int kStrokeAlpha = 166;

double coveredWeight(int alpha) {
    if (alpha >= kStrokeAlpha) {
        return 0.5;
    }
    return alpha >= kCoveredAlpha ? 1.0 : 0.0;
}

struct Coverage {
    double area = 0.0, centroidX = 0.0, centroidY = 0.0;  // drawing units and coordinates, y up
};

// The value of the first attribute `name` after position `from`.
std::string attribute(std::string const& svg, std::size_t from, std::string const& name) {
    std::size_t start = svg.find(" " + name + "=\"", from);
    if (start == std::string::npos) {
        return "0";
    }
    start += name.size() + 3;
    return svg.substr(start, svg.find('"', start) - start);
}

// Renders `svgFile` to PNG and measures the covered pixels in drawing units, using the view
// box and pixel size of the drawing's nested <svg>.
Coverage measure(Scratch const& scratch, std::string const& svgFile) {
    std::string svg = scratch.read(svgFile);
    std::size_t drawing = svg.find("class=\"drawing\"");
    EXPECT_NE(drawing, std::string::npos) << svg.substr(0, 300);
    double widthPixels = std::stod(attribute(svg, drawing, "width"));
    double viewX = 0.0, viewY = 0.0, viewWidth = 0.0;
    std::istringstream(attribute(svg, drawing, "viewBox")) >> viewX >> viewY >> viewWidth;
    double unitsPerPixel = viewWidth / widthPixels;

    std::string png = scratch.path("picture.png");
    std::string command =
        "'" + svgRenderer() + "' -o '" + png + "' '" + scratch.path(svgFile) + "'";
    EXPECT_EQ(std::system(command.c_str()), 0);
    PngImage image;
    std::string error;
    EXPECT_TRUE(readPng(png, image, error)) << error;

    Coverage c;
    double pixels = 0.0, sumX = 0.0, sumY = 0.0;
    for (int y = 0; y < image.height; ++y) {
        for (int x = 0; x < image.width; ++x) {
            double weight = coveredWeight(image.alpha(x, y));
            pixels += weight;
            sumX += weight * (x + 0.5);
            sumY += weight * (y + 0.5);
        }
    }
    c.area = pixels * unitsPerPixel * unitsPerPixel;
    if (pixels > 0.0) {
        c.centroidX = viewX + sumX / pixels * unitsPerPixel;
        c.centroidY = -(viewY + sumY / pixels * unitsPerPixel);  // SVG's y points down
    }
    return c;
}

TEST(OrxSvgPixelTest, FilledRegionAreaMatchesComputedArea) {
    if (svgRenderer().empty()) {
        GTEST_SKIP() << "rsvg-convert not found";
    }
    Scratch scratch;
    // The plate of the data files: an outer loop with a round hole and an arched window; the
    // open polyline above it is left out of this picture.
    scratch.write("plate.json", R"([
      {"closed": true, "vertices": [{"x": 0, "y": 0}, {"x": 10, "y": 0}, {"x": 10, "y": 6}, {"x": 0, "y": 6}]},
      {"closed": true, "vertices": [{"x": 2, "y": 3, "bulge": 1}, {"x": 4, "y": 3, "bulge": 1}]},
      {"closed": true, "vertices": [{"x": 6, "y": 2}, {"x": 8, "y": 2},
                                    {"x": 8, "y": 4, "bulge": 0.4142135623730951}, {"x": 6, "y": 4}]}])");
    ASSERT_EQ(scratch.orx({"render", "plate.json", "-o", "plate.svg"}).status, 0);
    ToolRun info = scratch.orx({"info", "plate.json"});
    double computed = regionAreaSum(info.out);
    ASSERT_NEAR(computed, 60 - 3.141592653589793 - 4.570796326794897, 1e-6);
    EXPECT_NEAR(measure(scratch, "plate.svg").area, computed, 0.02 * computed);
}

// A positive bulge turns counter-clockwise, so from (0, 0) to (100, 0) the arc runs below the
// x axis; a negative one above. Beyond a half circle (|bulge| > 1) the large arc is drawn.
TEST(OrxSvgPixelTest, ArcBulgesToItsSideWithItsArea) {
    if (svgRenderer().empty()) {
        GTEST_SKIP() << "rsvg-convert not found";
    }
    for (double bulge : {1.0, -1.0, 0.25, -2.0, 3.0}) {
        SCOPED_TRACE(bulge);
        Scratch scratch;
        scratch.write("arc.json", R"([{"closed": true, "vertices": [{"x": 0, "y": 0, "bulge": )" +
                                      std::to_string(bulge) + R"(}, {"x": 100, "y": 0}]}])");
        ASSERT_EQ(scratch.orx({"render", "arc.json", "-o", "arc.svg"}).status, 0);
        COrxVertexArray loop;
        loop.append(COrxVertex(COrxPoint3d(0, 0, 0), COrxPoint3d(100, 0, 0), bulge));
        loop.append(COrxVertex(COrxPoint3d(100, 0, 0), COrxPoint3d(0, 0, 0), 0.0));
        double area = std::fabs(ORX::g_vl_area(loop));
        // A circular segment's centroid lies on the arc's side of the chord, under its middle.
        Coverage c = measure(scratch, "arc.svg");
        EXPECT_NEAR(c.area, area, 0.02 * area);
        EXPECT_NEAR(c.centroidX, 50.0, 1.0);
        EXPECT_GT(bulge > 0 ? -c.centroidY : c.centroidY, 1.0);
    }
}

}  // namespace
