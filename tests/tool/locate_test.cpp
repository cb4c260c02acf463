// `orx locate`: where points lie with respect to the regions of a drawing, each region
// indexed once for all the points.
#include <gtest/gtest.h>

#include "tool_runner.h"

namespace {

// A 10 x 6 plate with a round hole of radius 1.5 about (3, 3), an island (a square) in the
// hole, and an open line that takes no part. Region 1 is the plate, region 2 the island.
constexpr char kPlate[] = R"([
  {"closed": true, "vertices": [{"x": 0, "y": 0}, {"x": 10, "y": 0}, {"x": 10, "y": 6},
                                {"x": 0, "y": 6}]},
  {"closed": true, "vertices": [{"x": 1.5, "y": 3, "bulge": 1}, {"x": 4.5, "y": 3, "bulge": 1}]},
  {"closed": true, "vertices": [{"x": 2.5, "y": 2.5}, {"x": 3.5, "y": 2.5}, {"x": 3.5, "y": 3.5},
                                {"x": 2.5, "y": 3.5}]},
  {"closed": false, "vertices": [{"x": 0, "y": 8}, {"x": 10, "y": 8}]}])";

TEST(OrxLocateTest, TellsInsideOnTheBoundaryOrOutsideForEachPoint) {
    struct Case {
        char const* point;
        char const* line;
    };
    Case const cases[] = {
        {"8,1", "(8, 1): inside region 1\n"},
        {"3,1.8", "(3, 1.8): outside\n"},  // in the hole, beside the island
        {"3,3", "(3, 3): inside region 2\n"},
        {"10,3", "(10, 3): on the boundary of region 1\n"},
        {"0,0", "(0, 0): on the boundary of region 1\n"},
        {"4.5,3", "(4.5, 3): on the boundary of region 1\n"},  // on the hole
        {"3,1.500000000001", "(3, 1.500000000001): on the boundary of region 1\n"},
        {"3.5,3", "(3.5, 3): on the boundary of region 2\n"},
        {"3,1.49", "(3, 1.49): inside region 1\n"},
        {"5,8", "(5, 8): outside\n"},  // on the open line
        {"-1,-2", "(-1, -2): outside\n"},
        {"1e300,0", "(1e+300, 0): outside\n"},
    };
    Scratch scratch;
    scratch.write("plate.json", kPlate);
    std::vector<std::string> args = {"locate", "plate.json"};
    std::string expected;
    for (Case const& c : cases) {
        args.push_back(c.point);
        expected += c.line;
    }
    ToolRun run = scratch.orx(args);
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, expected);
    EXPECT_NE(run.err.find("1 open and 0 crossing polylines take no part"), std::string::npos)
        << run.err;
    // The regions are numbered as `orx info` numbers them.
    ToolRun info = scratch.orx({"info", "plate.json"});
    EXPECT_NE(info.out.find("region 1: outer polyline 1, hole 2: "), std::string::npos);
    EXPECT_NE(info.out.find("region 2: outer polyline 3: "), std::string::npos) << info.out;
}

}  // namespace
