// Bad input through the tool: every case ends with exit status 2 and one line on standard
// error that names the file and the line or entity, and leaves no output file behind.
#include <gtest/gtest.h>

#include "tool_runner.h"

namespace {

// A DXF file of one polyline whose groups (from line 7 on) are given by the case.
std::string dxfPolyline(std::string const& groups) {
    return "0\nSECTION\n2\nENTITIES\n0\nLWPOLYLINE\n" + groups + "0\nENDSEC\n0\nEOF\n";
}

// Runs the tool in a folder holding a closed square (ok.json), an open polyline in JSON and
// DXF (open.json, open.dxf) and, when given, one more file.
void expectOneLineError(std::vector<std::string> const& args, std::string const& message,
                        std::string const& file = "", std::string const& content = "") {
    Scratch scratch;
    scratch.write(
        "ok.json",
        R"([{"closed": true, "vertices": [{"x": 0, "y": 0}, {"x": 1, "y": 1}, {"x": 0, "y": 1}]}])");
    scratch.write("open.json",
                  R"([{"closed": false, "vertices": [{"x": 0, "y": 0}, {"x": 1, "y": 0}]}])");
    scratch.write("open.dxf", dxfPolyline("70\n0\n10\n0\n20\n0\n10\n1\n20\n0\n"));
    if (!file.empty()) {
        scratch.write(file, content);
    }
    ToolRun run = scratch.orx(args);
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.err.rfind("orx: ", 0), 0u) << run.err;
    EXPECT_NE(run.err.find(message), std::string::npos) << run.err;
    // One line; a DXF file may first report the entities it skipped.
    std::string last = run.err.substr(run.err.rfind("orx: "));
    EXPECT_EQ(last.find('\n'), last.size() - 1) << run.err;
    EXPECT_FALSE(scratch.exists("out.json"));
}

// `orx info` of a damaged file.
TEST(OrxErrorTest, BadFileFailsWithOneLineNamingTheProblem) {
    struct BadFile {
        char const* name;
        char const* file;
        std::string content;
        char const* message;
    };
    BadFile const cases[] = {
        {"unknown_extension", "a.txt", "hello", "a.txt: not a DXF or JSON file"},
        {"text_is_not_dxf", "a.dxf", "hello\nworld\n", "a.dxf:1: not a DXF file"},
        {"dxf_without_section", "a.dxf", "0\nLINE\n0\nEOF\n", "a.dxf:1: not a DXF file"},
        {"binary_dxf", "a.dxf", std::string("\0\1\2", 3), "not an ASCII DXF file"},
        {"truncated_dxf", "a.dxf", "0\nSECTION\n2\nENTITIES\n", "a.dxf: unexpected end of file"},
        {"group_code_without_value", "a.dxf", "0\nSECTION\n2\n",
         "a.dxf:3: group code 2 has no value"},
        {"dxf_malformed_number", "a.dxf", dxfPolyline("10\n1.2.3\n"),
         "a.dxf:7: '1.2.3' is not a finite number (group 10)"},
        {"dxf_nan", "a.dxf", dxfPolyline("10\n0\n20\nnan\n"),
         "a.dxf:9: 'nan' is not a finite number (group 20)"},
        {"dxf_infinite_bulge", "a.dxf", dxfPolyline("10\n0\n20\n0\n42\ninf\n"),
         "a.dxf:11: 'inf' is not a finite number (group 42)"},
        {"dxf_overflow", "a.dxf", dxfPolyline("10\n1e999\n"),
         "a.dxf:7: '1e999' is not a finite number"},
        {"dxf_bad_group_code", "a.dxf", "0\nSECTION\n2\nENTITIES\nten\n1\n",
         "a.dxf:5: 'ten' is not a group code"},
        {"dxf_count_mismatch", "a.dxf", dxfPolyline("90\n4\n10\n0\n20\n0\n10\n1\n20\n0\n"),
         "a.dxf:5: LWPOLYLINE declares 4 vertices but lists 2"},
        {"dxf_one_point", "a.dxf", dxfPolyline("10\n0\n20\n0\n"),
         "a.dxf:5: LWPOLYLINE has fewer than two vertices"},
        {"dxf_bulge_before_point", "a.dxf", dxfPolyline("42\n1\n"),
         "a.dxf:7: group 42 comes before the first point"},
        {"text_is_not_json", "a.json", "[\n{\"closed\": tru}]", "a.json:2: not valid JSON"},
        {"json_not_a_list", "a.json", "{}", "a.json: expected a list of polylines"},
        {"json_nan_literal", "a.json", R"([{"vertices": [{"x": NaN, "y": 0}]}])",
         "a.json:1: not valid JSON"},
        {"json_overflow", "a.json", R"([{"vertices": [{"x": 1e999, "y": 0}, {"x": 1, "y": 0}]}])",
         "a.json:1: a number out of range"},
        {"json_string_coordinate", "a.json",
         R"([{"vertices": [{"x": 0, "y": 0}, {"x": "1", "y": 0}]}])",
         "a.json: polyline 1 vertex 2: \"x\" is not a finite number"},
        {"json_missing_y", "a.json", R"([{"vertices": [{"x": 0, "y": 0}, {"x": 1}]}])",
         "a.json: polyline 1 vertex 2 has no \"y\""},
        {"json_closed_not_bool", "a.json",
         R"([{"closed": 1, "vertices": [{"x": 0, "y": 0}, {"x": 1, "y": 0}]}])",
         "a.json: polyline 1 \"closed\" is not true or false"},
        {"json_one_point", "a.json", R"([{"vertices": [{"x": 0, "y": 0}]}])",
         "a.json: polyline 1 has fewer than two vertices"},
        {"json_bad_layer", "a.json",
         R"([{"layer": "a/b", "vertices": [{"x": 0, "y": 0}, {"x": 1, "y": 0}]}])",
         "a.json: polyline 1 \"layer\" 'a/b' holds a character a layer name cannot hold"},
        {"json_layer_with_an_outer_space", "a.json",
         R"([{"layer": " a", "vertices": [{"x": 0, "y": 0}, {"x": 1, "y": 0}]}])",
         "a.json: polyline 1 \"layer\" ' a' begins or ends with a space"},
        {"json_layer_not_text", "a.json",
         R"([{"layer": 7, "vertices": [{"x": 0, "y": 0}, {"x": 1, "y": 0}]}])",
         "a.json: polyline 1 \"layer\" is not a text"},
        {"json_elevation_not_number", "a.json",
         R"([{"elevation": "high", "vertices": [{"x": 0, "y": 0}, {"x": 1, "y": 0}]}])",
         "a.json: polyline 1 \"elevation\" is not a finite number"},
    };
    for (BadFile const& c : cases) {
        SCOPED_TRACE(c.name);
        expectOneLineError({"info", c.file}, c.message, c.file, c.content);
    }
}

TEST(OrxErrorTest, BadCommandFailsWithOneLineNamingTheProblem) {
    struct BadCommand {
        char const* name;
        std::vector<std::string> args;
        char const* message;
    };
    BadCommand const cases[] = {
        {"missing_file", {"info", "nothing.dxf"}, "nothing.dxf: cannot open"},
        {"dims_malformed",
         {"outline", "1", "--dims", "2,x", "-o", "out.json"},
         "--dims: 'x' is not a finite number"},
        {"dims_nan",
         {"outline", "1", "--dims", "2,nan", "-o", "out.json"},
         "--dims: 'nan' is not a finite number"},
        // Finite input whose outline overflows: the library gives no outline, nothing is
        // written.
        {"output_overflows",
         {"outline", "1", "--dims", "1e308,1", "--offset", "1e308,0", "-o", "out.json"},
         "profile code 1: the offset moves the outline beyond the range of numbers"},
        {"bool_needs_closed",
         {"bool", "union", "ok.json", "open.json", "-o", "out.json"},
         "open.json: polyline 1 is open"},
        {"region_needs_closed",
         {"region", "diff", "open.dxf", "ok.json", "-o", "out.json"},
         "open.dxf: no closed loop to build a region from (polyline 1 is open)"},
        {"unknown_operation",
         {"bool", "xor", "ok.json", "ok.json", "-o", "out.json"},
         "unknown operation 'xor'"},
        {"unknown_profile_code",
         {"outline", "16", "--dims", "1,2", "-o", "out.json"},
         "unknown profile code 16"},
        {"too_few_dimensions",
         {"outline", "13", "--dims", "200,140", "-o", "out.json"},
         "profile code 13 (segmental arch) needs at least 3 dimensions, got 2"},
        {"dimensions_rejected",
         {"outline", "2", "--dims=-1,2,3", "-o", "out.json"},
         "profile code 2 gives no outline for these dimensions"},
        {"locate_bad_number", {"locate", "ok.json", "1,x"}, "point 1: 'x' is not a finite number"},
        {"locate_not_a_pair",
         {"locate", "ok.json", "0,0", "1,2,3"},
         "point 2: expected X,Y, got '1,2,3'"},
        {"locate_nan", {"locate", "ok.json", "nan,0"}, "point 1: 'nan' is not a finite number"},
        {"locate_without_points", {"locate", "ok.json"}, "POINT is required"},
        {"locate_needs_closed",
         {"locate", "open.json", "0,0"},
         "open.json: no closed loop to build a region from (polyline 1 is open)"},
        {"render_needs_svg", {"render", "ok.json", "-o", "out.png"}, "out.png: render writes SVG"},
        {"write_unknown_format",
         {"convert", "ok.json", "-o", "out.txt"},
         "out.txt: unknown output format"},
        {"usage_error", {"info"}, "FILE is required"},
        {"unknown_command", {"frobnicate"}, "frobnicate"},
    };
    for (BadCommand const& c : cases) {
        SCOPED_TRACE(c.name);
        expectOneLineError(c.args, c.message);
    }
}

}  // namespace
