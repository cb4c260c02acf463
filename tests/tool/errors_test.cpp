// Bad input through the tool: every case ends with exit status 2 and one line on standard
// error that names the file and the line or entity, and leaves no output file behind.
#include <gtest/gtest.h>

#include "tool_runner.h"

namespace {

struct ErrorCase {
    std::string name;
    std::string file;  // written into the scratch folder unless empty
    std::string content;
    std::vector<std::string> args;
    std::string message;  // expected within the error line
};

void PrintTo(ErrorCase const& c, std::ostream* os) {
    *os << c.name;
}

std::string const kClosedSquare =
    R"([{"closed": true, "vertices": [{"x": 0, "y": 0}, {"x": 1, "y": 0}, {"x": 1, "y": 1}]}])";

// A DXF polyline whose group values are given by the case.
std::string dxfPolyline(std::string const& groups) {
    return "0\nSECTION\n2\nENTITIES\n0\nLWPOLYLINE\n" + groups + "0\nENDSEC\n0\nEOF\n";
}

class OrxErrorTest : public testing::TestWithParam<ErrorCase> {};

TEST_P(OrxErrorTest, FailsWithOneLineNamingTheProblem) {
    ErrorCase const& c = GetParam();
    Scratch scratch;
    if (!c.file.empty()) {
        scratch.write(c.file, c.content);
    }
    scratch.write("ok.json", kClosedSquare);
    ToolRun run = scratch.orx(c.args);
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.err.rfind("orx: ", 0), 0u) << run.err;
    EXPECT_NE(run.err.find(c.message), std::string::npos) << run.err;
    // One line; a DXF file may first report the entities it skipped.
    std::string last = run.err.substr(run.err.rfind("orx: "));
    EXPECT_EQ(last.find('\n'), last.size() - 1) << run.err;
    EXPECT_FALSE(scratch.exists("out.json"));
}

std::string const kDxfSquare = "90\n3\n70\n1\n10\n0\n20\n0\n10\n1\n20\n0\n10\n1\n20\n1\n";

INSTANTIATE_TEST_SUITE_P(
    Files, OrxErrorTest,
    testing::Values(
        ErrorCase{"MissingFile", "", "", {"info", "nothing.dxf"}, "nothing.dxf: cannot open"},
        ErrorCase{"UnknownExtension",
                  "a.txt",
                  "hello",
                  {"info", "a.txt"},
                  "a.txt: not a DXF or JSON file"},
        ErrorCase{"TextIsNotDxf",
                  "a.dxf",
                  "hello\nworld\n",
                  {"info", "a.dxf"},
                  "a.dxf:1: not a DXF file"},
        ErrorCase{"DxfWithoutSection",
                  "a.dxf",
                  "0\nLINE\n0\nEOF\n",
                  {"info", "a.dxf"},
                  "a.dxf:1: not a DXF file"},
        ErrorCase{"BinaryDxf",
                  "a.dxf",
                  std::string("\0\1\2", 3),
                  {"info", "a.dxf"},
                  "not an ASCII DXF file"},
        ErrorCase{"TruncatedDxf",
                  "a.dxf",
                  "0\nSECTION\n2\nENTITIES\n",
                  {"info", "a.dxf"},
                  "a.dxf: unexpected end of file"},
        ErrorCase{"GroupCodeWithoutValue",
                  "a.dxf",
                  "0\nSECTION\n2\n",
                  {"info", "a.dxf"},
                  "a.dxf:3: group code 2 has no value"},
        ErrorCase{"TextIsNotJson",
                  "a.json",
                  "[\n{\"closed\": tru}]",
                  {"info", "a.json"},
                  "a.json:2: not valid JSON"},
        ErrorCase{"JsonNotAList",
                  "a.json",
                  "{}",
                  {"info", "a.json"},
                  "a.json: expected a list of polylines"}),
    [](testing::TestParamInfo<ErrorCase> const& p) { return std::string(p.param.name); });

INSTANTIATE_TEST_SUITE_P(
    Numbers, OrxErrorTest,
    testing::Values(
        ErrorCase{"DxfMalformedNumber",
                  "a.dxf",
                  "0\nSECTION\n2\nENTITIES\n0\nLWPOLYLINE\n10\n1.2.3\n",
                  {"info", "a.dxf"},
                  "a.dxf:7: '1.2.3' is not a finite number (group 10)"},
        ErrorCase{"DxfNaN",
                  "a.dxf",
                  "0\nSECTION\n2\nENTITIES\n0\nLWPOLYLINE\n10\n0\n20\nnan\n",
                  {"info", "a.dxf"},
                  "a.dxf:9: 'nan' is not a finite number (group 20)"},
        ErrorCase{"DxfInfiniteBulge",
                  "a.dxf",
                  "0\nSECTION\n2\nENTITIES\n0\nLWPOLYLINE\n10\n0\n20\n0\n42\ninf\n",
                  {"info", "a.dxf"},
                  "a.dxf:11: 'inf' is not a finite number (group 42)"},
        ErrorCase{"DxfOverflow",
                  "a.dxf",
                  "0\nSECTION\n2\nENTITIES\n0\nLWPOLYLINE\n10\n1e999\n",
                  {"info", "a.dxf"},
                  "a.dxf:7: '1e999' is not a finite number"},
        ErrorCase{"DxfBadGroupCode",
                  "a.dxf",
                  "0\nSECTION\n2\nENTITIES\nten\n1\n",
                  {"info", "a.dxf"},
                  "a.dxf:5: 'ten' is not a group code"},
        ErrorCase{"JsonNaNLiteral",
                  "a.json",
                  R"([{"vertices": [{"x": NaN, "y": 0}]}])",
                  {"info", "a.json"},
                  "a.json:1: not valid JSON"},
        ErrorCase{"JsonOverflow",
                  "a.json",
                  R"([{"vertices": [{"x": 1e999, "y": 0}, {"x": 1, "y": 0}]}])",
                  {"info", "a.json"},
                  "a.json: not valid JSON"},
        ErrorCase{"JsonStringCoordinate",
                  "a.json",
                  R"([{"vertices": [{"x": 0, "y": 0}, {"x": "1", "y": 0}]}])",
                  {"info", "a.json"},
                  "a.json: polyline 1 vertex 2: \"x\" is not a finite number"},
        ErrorCase{"JsonMissingY",
                  "a.json",
                  R"([{"vertices": [{"x": 0, "y": 0}, {"x": 1}]}])",
                  {"info", "a.json"},
                  "a.json: polyline 1 vertex 2 has no \"y\""},
        ErrorCase{"JsonClosedNotBool",
                  "a.json",
                  R"([{"closed": 1, "vertices": [{"x": 0, "y": 0}, {"x": 1, "y": 0}]}])",
                  {"info", "a.json"},
                  "a.json: polyline 1 \"closed\" is not true or false"},
        ErrorCase{"DimsMalformed",
                  "",
                  "",
                  {"outline", "1", "--dims", "2,x", "-o", "out.json"},
                  "--dims: 'x' is not a finite number"},
        ErrorCase{"DimsNaN",
                  "",
                  "",
                  {"outline", "1", "--dims", "2,nan", "-o", "out.json"},
                  "--dims: 'nan' is not a finite number"},
        // Finite input whose outline overflows: refused before anything is written.
        ErrorCase{"OutputOverflows",
                  "",
                  "",
                  {"outline", "1", "--dims", "1e308,1", "--offset", "1e308,0", "-o", "out.json"},
                  "out.json: polyline 1, vertex 2: coordinate or bulge is not finite"}),
    [](testing::TestParamInfo<ErrorCase> const& p) { return std::string(p.param.name); });

INSTANTIATE_TEST_SUITE_P(
    Content, OrxErrorTest,
    testing::Values(
        ErrorCase{"DxfCountMismatch",
                  "a.dxf",
                  dxfPolyline("90\n4\n10\n0\n20\n0\n10\n1\n20\n0\n"),
                  {"info", "a.dxf"},
                  "a.dxf:5: LWPOLYLINE declares 4 vertices but lists 2"},
        ErrorCase{"DxfOnePoint",
                  "a.dxf",
                  dxfPolyline("10\n0\n20\n0\n"),
                  {"info", "a.dxf"},
                  "a.dxf:5: LWPOLYLINE has fewer than two vertices"},
        ErrorCase{"DxfBulgeBeforePoint",
                  "a.dxf",
                  dxfPolyline("42\n1\n"),
                  {"info", "a.dxf"},
                  "a.dxf:7: group 42 comes before the first point"},
        ErrorCase{"JsonOnePoint",
                  "a.json",
                  R"([{"vertices": [{"x": 0, "y": 0}]}])",
                  {"info", "a.json"},
                  "a.json: polyline 1 has fewer than two vertices"},
        ErrorCase{"BoolNeedsClosed",
                  "open.json",
                  R"([{"closed": false, "vertices": [{"x": 0, "y": 0}, {"x": 1, "y": 0}]}])",
                  {"bool", "union", "ok.json", "open.json", "-o", "out.json"},
                  "open.json: polyline 1 is open"},
        ErrorCase{"RegionNeedsClosed",
                  "open.dxf",
                  dxfPolyline("70\n0\n10\n0\n20\n0\n10\n1\n20\n0\n"),
                  {"region", "diff", "open.dxf", "ok.json", "-o", "out.json"},
                  "open.dxf: no closed loop to build a region from (polyline 1 is open)"},
        ErrorCase{"UnknownOperation",
                  "",
                  "",
                  {"bool", "xor", "ok.json", "ok.json", "-o", "out.json"},
                  "unknown operation 'xor'"},
        ErrorCase{"UnknownProfileCode",
                  "",
                  "",
                  {"outline", "16", "--dims", "1,2", "-o", "out.json"},
                  "unknown profile code 16"},
        ErrorCase{"TooFewDimensions",
                  "",
                  "",
                  {"outline", "13", "--dims", "200,140", "-o", "out.json"},
                  "profile code 13 (segmental arch) needs at least 3 dimensions, got 2"},
        ErrorCase{"DimensionsRejected",
                  "",
                  "",
                  {"outline", "2", "--dims=-1,2,3", "-o", "out.json"},
                  "profile code 2 gives no outline for these dimensions"},
        ErrorCase{"RenderNeedsSvg",
                  "",
                  "",
                  {"render", "ok.json", "-o", "out.png"},
                  "out.png: render writes SVG"},
        ErrorCase{"WriteUnknownFormat",
                  "",
                  "",
                  {"convert", "ok.json", "-o", "out.txt"},
                  "out.txt: unknown output format"},
        ErrorCase{"UsageError", "", "", {"info"}, "FILE is required"},
        ErrorCase{"UnknownCommand", "", "", {"frobnicate"}, "frobnicate"}),
    [](testing::TestParamInfo<ErrorCase> const& p) { return std::string(p.param.name); });

}  // namespace
