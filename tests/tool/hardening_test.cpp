// The tool under hostile conditions: writes that fail, coordinates near the end of the range
// of doubles, folders and garbage as input, and outlines that collapse. Each case either
// gives a correct result or exit status 2 with one bounded line of printable text.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "tool_runner.h"

namespace {

bool isOneBoundedPrintableLine(std::string const& text) {
    if (text.empty() || text.back() != '\n' || text.size() > 600) {
        return false;
    }
    return std::none_of(text.begin(), text.end() - 1,
                        [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; });
}

TEST(OrxHardeningTest, FailedWriteKeepsThePreviousFile) {
    Scratch scratch;
    std::string big = R"([{"closed": true, "vertices": [)";
    for (int i = 0; i < 2000; ++i) {
        big += (i > 0 ? ", " : "") + std::string(R"({"x": )") + std::to_string(i) +
               R"(.123456789, "y": 0.987654321})";
    }
    scratch.write("big.json", big + "]}]");
    std::string const previous = "[]\n";
    scratch.write("result.json", previous);
    // A limit of 8 KiB on written files; the signal it raises is ignored, so the write fails
    // with an error as it does for a full disc.
    ToolRun run =
        scratch.orx({"convert", "big.json", "-o", "result.json"}, "trap '' XFSZ; ulimit -f 8");
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.err.find("result.json: cannot write the file"), std::string::npos) << run.err;
    EXPECT_EQ(scratch.read("result.json"), previous);
    for (auto const& entry : std::filesystem::directory_iterator(scratch.path(""))) {
        EXPECT_NE(entry.path().extension(), ".tmp") << "left behind: " << entry.path();
    }
    // Without the limit the file is replaced.
    EXPECT_EQ(scratch.orx({"convert", "big.json", "-o", "result.json"}).status, 0);
    EXPECT_NE(scratch.read("result.json"), previous);
}

TEST(OrxHardeningTest, HugeCoordinatesAreMeasuredAndDrawnOrRefused) {
    Scratch scratch;
    // A counter-clockwise circle of diameter 1e154: its area, 7.85e307, is still a double.
    ASSERT_EQ(scratch.orx({"outline", "22", "--dims", "1e154", "-o", "c.json"}).status, 0);
    ToolRun info = scratch.orx({"info", "c.json"});
    EXPECT_NE(info.out.find("closed, counter-clockwise\n  length 3.141592654e+154\n"
                            "  area 7.853981634e+307\n  extents (0, -5e+153) - (1e+154, 5e+153)"),
              std::string::npos)
        << info.out;
    // Diameter 1e155: the area is beyond doubles, but the picture is exact.
    ASSERT_EQ(scratch.orx({"outline", "22", "--dims", "1e155", "-o", "c.svg"}).status, 0);
    std::string svg = scratch.read("c.svg");
    EXPECT_NE(svg.find(R"(class="drawing" x="0" y="0" width="800" height="800")"),
              std::string::npos)
        << svg.substr(0, 300);
    EXPECT_NE(svg.find(" A 5e+154 5e+154 0 0 1 1e+155 0"), std::string::npos);
    EXPECT_EQ(svg.find("nan"), std::string::npos);
    // Extents wider than the range of doubles, or narrower than a pixel's worth of them.
    scratch.write("wide.json",
                  R"([{"vertices": [{"x": -1.5e308, "y": 0}, {"x": 1.5e308, "y": 1}]}])");
    scratch.write("narrow.json", R"([{"vertices": [{"x": 0, "y": 0}, {"x": 5e-324, "y": 0}]}])");
    for (char const* file : {"wide.json", "narrow.json"}) {
        ToolRun run = scratch.orx({"render", file, "-o", "p.svg"});
        EXPECT_EQ(run.status, 2) << file;
        EXPECT_NE(run.err.find("cannot be drawn at a finite scale"), std::string::npos) << run.err;
        EXPECT_FALSE(scratch.exists("p.svg"));
    }
}

TEST(OrxHardeningTest, FoldersAndGarbageGiveOneBoundedPrintableLine) {
    struct Case {
        char const* name;
        std::vector<std::string> args;
        char const* message;
    };
    Scratch scratch;
    std::filesystem::create_directory(scratch.path("folder.json"));
    scratch.write("ok.json", R"([{"vertices": [{"x": 0, "y": 0}, {"x": 1, "y": 0}]}])");
    scratch.write("long.dxf", std::string(10'000'000, '7') + "x\n0\n");
    scratch.write("long-value.dxf", "0\nSECTION\n2\nENTITIES\n0\nLINE\n10\n" +
                                        std::string(10'000'000, '1') + "x\n0\nEOF\n");
    scratch.write("garbage.dxf", "\x1b[31m\x07\r\x1b]0;title\x07\n0\n");
    Case const cases[] = {
        {"folder_as_input", {"info", "folder.json"}, "folder.json: is a folder"},
        {"folder_as_output",
         {"convert", "ok.json", "-o", "folder.json"},
         "folder.json: is a folder"},
        {"ten_megabyte_code_line", {"info", "long.dxf"}, "long.dxf:1: not a DXF file ('7777"},
        {"ten_megabyte_value", {"info", "long-value.dxf"}, "long-value.dxf:7: '1111"},
        {"control_bytes",
         {"info", "garbage.dxf"},
         "garbage.dxf:1: not a DXF file ('\\x1B[31m\\x07"},
        {"control_bytes_in_a_command", {"\x1b[2Jfrob"}, "unknown command '\\x1B[2Jfrob'"},
    };
    for (Case const& c : cases) {
        SCOPED_TRACE(c.name);
        ToolRun run = scratch.orx(c.args);
        EXPECT_EQ(run.status, 2);
        EXPECT_TRUE(isOneBoundedPrintableLine(run.err)) << run.err.substr(0, 200);
        EXPECT_NE(run.err.find(c.message), std::string::npos) << run.err.substr(0, 200);
    }
}

TEST(OrxHardeningTest, CollapsedOutlinesAndOffsetsAreRefused) {
    struct Case {
        char const* name;
        std::vector<std::string> args;
        char const* message;
    };
    Case const cases[] = {
        {"hexagon_without_dimensions",
         {"outline", "34", "-o", "out.json"},
         "profile code 34 gives no outline for these dimensions (no dimensions given)"},
        {"offset_swallows_the_dimensions",
         {"outline", "27", "--dims", "200,120,25", "--offset", "1.7e308,1.7e308", "-o", "out.json"},
         "profile code 27: the offset moves the outline beyond the range of numbers"},
        {"offset_to_a_point",
         {"offset", "square.json", "--distance", "-1", "-o", "out.json"},
         "square.json: polyline 1 offset by -1 has corners that fall onto one point (1, 1)"},
        {"offset_past_the_centre",
         {"offset", "square.json", "--distance=-5", "-o", "out.json"},
         "polyline 1 offset by -5 has no segment"},
    };
    for (Case const& c : cases) {
        SCOPED_TRACE(c.name);
        Scratch scratch;
        scratch.write("square.json", R"([{"closed": true, "vertices": [{"x": 0, "y": 0},
            {"x": 2, "y": 0}, {"x": 2, "y": 2}, {"x": 0, "y": 2}]}])");
        ToolRun run = scratch.orx(c.args);
        EXPECT_EQ(run.status, 2);
        EXPECT_NE(run.err.find(c.message), std::string::npos) << run.err;
        EXPECT_FALSE(scratch.exists("out.json"));
    }
}

}  // namespace
