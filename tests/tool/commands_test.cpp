// End-to-end tests of the orx commands on small files: what each command reports and
// writes, and that DXF and JSON carry points and bulges through round trips unchanged.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <nlohmann/json.hpp>

#include "orx/profiles/outline.h"
#include "tool_runner.h"

namespace {

using nlohmann::json;

constexpr double kPi = 3.141592653589793;

TEST(OrxVersionTest, PrintsLibraryVersionAndPlatform) {
    Scratch scratch;
    ToolRun run = scratch.orx({"version"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "2017.0\nLinux x86_64\n");
}

TEST(OrxVersionTest, VersionFlagAndHelpCommand) {
    Scratch scratch;
    ToolRun run = scratch.orx({"--version"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "2017.0\n");
    run = scratch.orx({"help"});
    EXPECT_EQ(run.status, 0);
    for (char const* command :
         {"outline", "bool", "region", "info", "locate", "offset", "convert"}) {
        EXPECT_NE(run.out.find(std::string("  ") + command + " "), std::string::npos) << command;
    }
}

TEST(OrxOffsetTest, OffsetsEveryPolylineOnItsLayer) {
    Scratch scratch;
    scratch.write("two.json", R"([
      {"closed": true, "layer": "plate", "elevation": 4, "vertices": [{"x": 0, "y": 0},
        {"x": 2, "y": 0}, {"x": 2, "y": 2}, {"x": 0, "y": 2}]},
      {"closed": false, "layer": "axis", "vertices": [{"x": 0, "y": 5}, {"x": 4, "y": 5}]}])");
    struct Case {
        char const* distance;
        double area;            // of the square, counter-clockwise: positive grows it
        char const* axisStart;  // the open line moves to its right
    };
    Case const cases[] = {{"0.5", 9, "(0, 4.5)"}, {"-0.5", 1, "(0, 5.5)"}};
    for (Case const& c : cases) {
        SCOPED_TRACE(c.distance);
        ToolRun run = scratch.orx({"offset", "two.json", "--distance", c.distance, "-o", "o.dxf"});
        ASSERT_EQ(run.status, 0) << run.err;
        EXPECT_EQ(run.out, "o.dxf: 2 polylines\n");
        ToolRun info = scratch.orx({"info", "o.dxf"});
        EXPECT_NEAR(regionAreaSum(info.out), c.area, 1e-9) << info.out;
        EXPECT_NE(info.out.find("layer plate, elevation 4"), std::string::npos) << info.out;
        EXPECT_NE(info.out.find(std::string("extents ") + c.axisStart), std::string::npos)
            << info.out;
    }
}

TEST(OrxInfoTest, ReportsSegmentsLengthsAreasExtentsAndRegions) {
    Scratch scratch;
    ToolRun run = scratch.orx({"info", dataFile("plate.json")});
    ASSERT_EQ(run.status, 0) << run.err;
    char const* expected[] = {
        ": 4 polylines, 1 region\n",
        "polyline 1: 4 segments (0 arcs), closed, counter-clockwise\n  length 32\n  area 60\n"
        "  extents (0, 0) - (10, 6)\n",
        // A circle of two half arcs: its area is the two circular segments.
        "polyline 2: 2 segments (2 arcs), closed, counter-clockwise\n  length 6.283185307\n"
        "  area 3.141592654\n  extents (2, 2) - (4, 4)\n",
        // The arched window: 2 x 2 plus the segment of a quarter arc of radius sqrt 2, whose
        // top reaches 4 + sqrt 2 - 1.
        "polyline 3: 4 segments (1 arc), closed, counter-clockwise\n  length 8.221441469\n"
        "  area 4.570796327\n  extents (6, 2) - (8, 4.414213562)\n",
        "polyline 4: 2 segments (1 arc), open\n",
        "region 1: outer polyline 1, holes 2, 3: area 52.28761102\n",
    };
    for (char const* part : expected) {
        EXPECT_NE(run.out.find(part), std::string::npos) << part << "\nin\n" << run.out;
    }
    // A clockwise loop has a negative area; as a region it counts positive.
    run = scratch.orx({"info", dataFile("square-b-clockwise.json")});
    EXPECT_NE(run.out.find("closed, clockwise\n  length 8\n  area -4\n"), std::string::npos)
        << run.out;
    EXPECT_NE(run.out.find("region 1: outer polyline 1: area 4\n"), std::string::npos);
}

TEST(OrxDxfTest, ReadsPolylinesAndCountsSkippedEntities) {
    Scratch scratch;
    ToolRun run = scratch.orx({"info", dataFile("square.dxf")});
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.err.find("square.dxf: skipped 2 entities (1 POINT, 1 TEXT)"), std::string::npos)
        << run.err;
    // 4 x 4 with a half disc of radius 2 on the right side.
    EXPECT_NE(run.out.find("area 22.28318531\n  extents (0, 0) - (6, 4)"), std::string::npos)
        << run.out;
}

TEST(OrxOutlineTest, ListShowsEveryCodeWithTheDemoNames) {
    Scratch scratch;
    ToolRun list = scratch.orx({"outline", "--list"});
    ASSERT_EQ(list.status, 0) << list.err;
    ToolRun help = scratch.orx({"outline", "--help"});
    EXPECT_NE(help.out.find(list.out), std::string::npos) << help.out;
    for (char const* line : {"    1  rectangle: d0 width, d1 height\n",
                             "   18  pointed arch: d0 width, d1 crown height, d2 side height, d3 "
                             "arc rise (optional)\n",
                             "  901  polygon through coordinates: x0,y0,x1,y1,... the corners\n"}) {
        EXPECT_NE(list.out.find(line), std::string::npos) << line;
    }
    EXPECT_EQ(std::count(list.out.begin(), list.out.end(), '\n'), ORX::kOutlineTableSize);
    EXPECT_EQ(list.out.find("no description"), std::string::npos);
}

TEST(OrxDxfTest, PolylineSeenFromBelowIsMirroredIntoThePlane) {
    Scratch scratch;
    ASSERT_EQ(scratch.orx({"convert", dataFile("mirrored.dxf"), "-o", "m.json"}).status, 0);
    json vertices = json::parse(scratch.read("m.json"))[0]["vertices"];
    EXPECT_EQ(vertices[0]["x"], -1.0);
    EXPECT_EQ(vertices[0]["bulge"], -0.5);
    EXPECT_EQ(vertices[1]["x"], -3.0);
}

TEST(OrxDxfTest, AcceptsWindowsLineEndings) {
    Scratch scratch;
    ASSERT_EQ(scratch.orx({"convert", dataFile("square-a.json"), "-o", "a.dxf"}).status, 0);
    std::string crlf;
    for (char c : scratch.read("a.dxf")) {
        crlf += c == '\n' ? std::string("\r\n") : std::string(1, c);
    }
    scratch.write("crlf.dxf", crlf);
    ToolRun run = scratch.orx({"info", "crlf.dxf"});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.out.find("area 4\n"), std::string::npos);
}

// Values that a decimal round trip with too few digits would change. JSON compares numbers
// by value (1 equals 1.0), so the files read back equal the source number for number.
TEST(OrxRoundTripTest, DxfAndJsonPreservePointsAndBulgesExactly) {
    Scratch scratch;
    ASSERT_EQ(scratch.orx({"convert", dataFile("awkward.json"), "-o", "0.json"}).status, 0);
    ASSERT_EQ(scratch.orx({"convert", "0.json", "-o", "1.dxf"}).status, 0);
    ASSERT_EQ(scratch.orx({"convert", "1.dxf", "-o", "2.json"}).status, 0);
    ASSERT_EQ(scratch.orx({"convert", "2.json", "-o", "3.dxf"}).status, 0);
    EXPECT_EQ(scratch.read("1.dxf"), scratch.read("3.dxf"));
    json const source = json::parse(std::ifstream(dataFile("awkward.json")));
    EXPECT_EQ(json::parse(scratch.read("0.json")), source);
    EXPECT_EQ(json::parse(scratch.read("2.json")), source);
}

// An older DXF file names layers in a code page: the longest such name, written to JSON,
// grew past the length the reader accepts when its bytes became replacement characters.
TEST(OrxRoundTripTest, ALayerNameInACodePageReadsBackFromJson) {
    Scratch scratch;
    std::string const name(255, '\xe4');  // a-umlaut in Windows-1252
    scratch.write("old.dxf", "0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n" + name +
                                 "\n10\n0\n20\n0\n11\n1\n21\n0\n0\nENDSEC\n0\nEOF\n");
    ASSERT_EQ(scratch.orx({"convert", "old.dxf", "-o", "new.json"}).status, 0);
    ToolRun const info = scratch.orx({"info", "new.json"});
    ASSERT_EQ(info.status, 0) << info.err;
    EXPECT_NE(info.out.find("layer " + std::string(255, '_')), std::string::npos) << info.out;
}

// Results are checked through `orx info` of the written file, so each case also reads back
// what the operation wrote. The plate is [0,10] x [0,6] with a circular hole (area pi) on the
// left and an arched window (area 2 + pi/2 + 2) on the right; the cutter covers x from 5 to 12.
TEST(OrxOperationTest, ResultHasTheExpectedArea) {
    struct AreaCase {
        std::vector<std::string> command;  // the operation and the two inputs
        double area;                       // of all result regions together
    };
    AreaCase const cases[] = {
        // The second square runs clockwise; the tool orients both operands alike.
        {{"bool", "union", "square-a.json", "square-b-clockwise.json"}, 7},
        {{"bool", "diff", "square-a.json", "square-b-clockwise.json"}, 3},
        {{"bool", "sect", "square-a.json", "square-b-clockwise.json"}, 1},
        // A circle of radius 1 about the square's corner (2, 2): a quarter of it inside.
        {{"bool", "union", "square-a.json", "circle.json"}, 4 + 0.75 * kPi},
        {{"bool", "diff", "square-a.json", "circle.json"}, 4 - 0.25 * kPi},
        {{"bool", "sect", "square-a.json", "circle.json"}, 0.25 * kPi},
        {{"bool", "sect", "square-a.json", "cutter.json"}, 0},
        {{"region", "diff", "plate.json", "cutter.json"}, 30 - kPi},
        {{"region", "sect", "plate.json", "cutter.json"}, 27 - kPi / 2},
        {{"region", "union", "plate.json", "cutter.json"}, 56 + 30 - kPi},
        {{"region", "diff", "cutter.json", "plate.json"}, 56 - 30 + (4 + kPi / 2 - 1)},
    };
    Scratch scratch;
    for (AreaCase const& c : cases) {
        for (char const* output : {"r.json", "r.dxf"}) {
            SCOPED_TRACE(c.command[1] + " " + c.command[2] + " " + c.command[3] + " " + output);
            ToolRun run = scratch.orx({c.command[0], c.command[1], dataFile(c.command[2]),
                                       dataFile(c.command[3]), "-o", output});
            ASSERT_EQ(run.status, 0) << run.err;
            ToolRun info = scratch.orx({"info", output});
            EXPECT_NEAR(regionAreaSum(info.out), c.area, 1e-6) << info.out;
        }
    }
}

TEST(OrxRenderTest, DrawsTrueArcsRegionsAndMarkers) {
    Scratch scratch;
    ToolRun run = scratch.orx(
        {"render", dataFile("plate.json"), dataFile("square.dxf"), "--markers", "-o", "p.svg"});
    ASSERT_EQ(run.status, 0) << run.err;
    std::string svg = scratch.read("p.svg");
    // plate.json: one region (outer loop and two holes) and one open polyline; square.dxf:
    // one region. Arcs stay arcs: 2 + 1 + 1 in the plate file, 1 in the square.
    auto count = [&svg](std::string const& what) {
        std::size_t n = 0;
        for (std::size_t at = svg.find(what); at != std::string::npos;
             at = svg.find(what, at + 1)) {
            ++n;
        }
        return n;
    };
    EXPECT_EQ(count("class=\"region\""), 2u);
    EXPECT_EQ(count("class=\"polyline\""), 1u);
    EXPECT_EQ(count(" A "), 5u);
    EXPECT_EQ(count("fill-rule=\"evenodd\""), 2u);
    // Closed loops mark each corner once, the open polyline its three points: 4+2+4+3 and 4.
    EXPECT_EQ(count("class=\"marker\""), 17u);
}

}  // namespace
