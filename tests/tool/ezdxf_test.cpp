// The tool's DXF against an independent implementation, the ezdxf package of Debian: every
// DXF the tool writes passes ezdxf's strict reader and audit with the vertices, bulges,
// closed flags, layers and elevations the tool also writes as JSON; and drawings that
// ezdxf writes in three versions are read by the tool into the expected polylines.
#include <gtest/gtest.h>

#include <cmath>
#include <nlohmann/json.hpp>

#include "tool_runner.h"

namespace {

using nlohmann::json;

constexpr double kPi = 3.141592653589793;

// Runs a Python script of the tests with Debian's interpreter; its standard output.
std::string runPython(Scratch const& scratch, std::string const& script,
                      std::string const& argument, int& status) {
    std::string command = "'" + std::string(ORX_PYTHON3) + "' '" + script + "' '" + argument +
                          "' >'" + scratch.path(".python-out") + "'";
    status = std::system(command.c_str());
    return scratch.read(".python-out");
}

TEST(OrxEzdxfTest, StrictReaderFindsWhatTheToolWrote) {
    // Each command writes the same result twice, as out.dxf and as out.json.
    std::vector<std::vector<std::string>> const commands = {
        {"outline", "27", "--dims", "200,120,25", "--offset", "10,0"},
        {"outline", "23", "--dims", "100,60,120"},
        {"bool", "diff", dataFile("square-a.json"), dataFile("circle.json")},
        {"region", "diff", dataFile("plate.json"), dataFile("cutter.json")},
        {"convert", dataFile("awkward.json")},
        {"convert", dataFile("plate.json")},
        {"offset", dataFile("plate.json"), "--distance", "-0.25"},
    };
    Scratch scratch;
    for (std::vector<std::string> const& command : commands) {
        SCOPED_TRACE(command[0] + " " + command[1]);
        for (char const* output : {"out.dxf", "out.json"}) {
            std::vector<std::string> args = command;
            args.insert(args.end(), {"-o", output});
            ToolRun run = scratch.orx(args);
            ASSERT_EQ(run.status, 0) << run.err;
        }
        int status = -1;
        std::string read = runPython(scratch, EZDXF_DUMP_SCRIPT, scratch.path("out.dxf"), status);
        ASSERT_EQ(status, 0) << scratch.read("out.dxf").substr(0, 400);
        EXPECT_EQ(json::parse(read), json::parse(scratch.read("out.json")));
    }
}

TEST(OrxEzdxfTest, ReadsDrawingsOfEveryVersionIntoChainsAndLoops) {
    Scratch scratch;
    int status = -1;
    runPython(scratch, std::string(ORX_TOOL_DATA) + "/make_drawings.py", scratch.path(""), status);
    ASSERT_EQ(status, 0);
    struct Expected {
        bool closed;
        char const* layer;
        std::size_t vertices;
    };
    // The loops of their own in file order, then the chains of lines and arcs.
    Expected const polylines[] = {{true, "HOLES", 2}, {true, "HOLES", 4}, {true, "HOLES", 4},
                                  {true, "PLATE", 5}, {false, "AXIS", 3}, {false, "AXIS", 2}};
    double const plate = 100 * 60 - (100 - 25 * kPi);
    double const holes = 25 * kPi + (200 + 25 * kPi) + (150 + 25 * (kPi / 2 - 1));
    for (char const* version : {"R12", "R2000", "R2018"}) {
        SCOPED_TRACE(version);
        std::string file = scratch.path(std::string("drawing-") + version + ".dxf");
        ToolRun info = scratch.orx({"info", file});
        ASSERT_EQ(info.status, 0) << info.err;
        EXPECT_EQ(info.err, "");
        std::string kinds =
            std::string(version) == "R12" ? "2 POLYLINE" : "1 LWPOLYLINE, 1 POLYLINE";
        EXPECT_NE(info.out.find("entities read: 2 ARC, 1 CIRCLE, 6 LINE, " + kinds +
                                "; 8 lines and arcs chained into 3 polylines\n"),
                  std::string::npos)
            << info.out;
        EXPECT_NEAR(regionAreaSum(info.out), plate - holes, 1e-6) << info.out;
        EXPECT_NE(info.out.find("extents (0, 0) - (100, 60)\n  layer PLATE"), std::string::npos);
        EXPECT_NE(info.out.find("extents (0, 70) - (60, 80)\n  layer AXIS"), std::string::npos);
        ASSERT_EQ(scratch.orx({"convert", file, "-o", "d.json"}).status, 0);
        json read = json::parse(scratch.read("d.json"));
        ASSERT_EQ(read.size(), std::size(polylines));
        for (std::size_t i = 0; i < read.size(); ++i) {
            EXPECT_EQ(read[i]["closed"], polylines[i].closed) << i;
            EXPECT_EQ(read[i]["layer"], polylines[i].layer) << i;
            EXPECT_EQ(read[i]["vertices"].size(), polylines[i].vertices) << i;
        }
    }
}

}  // namespace
