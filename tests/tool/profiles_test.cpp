// End-to-end tests of the profile outlines through the tool: `orx outline` and the gallery
// of `orx demo`.
#include <gtest/gtest.h>

#include <cmath>
#include <nlohmann/json.hpp>

#include "orx/profiles/outline.h"
#include "tool_runner.h"

namespace {

using nlohmann::json;

constexpr double kPi = 3.141592653589793;

TEST(OrxOutlineTest, WritesTheMovedOutline) {
    Scratch scratch;
    ToolRun run =
        scratch.orx({"outline", "1", "--dims", "2,3", "--offset", "10,20", "-o", "r.json"});
    ASSERT_EQ(run.status, 0) << run.err;
    json expected = json::parse(R"([{"closed": true, "layer": "0", "elevation": 0, "vertices": [
        {"x": 10.0, "y": 20.0, "bulge": 0.0}, {"x": 12.0, "y": 20.0, "bulge": 0.0},
        {"x": 12.0, "y": 23.0, "bulge": 0.0}, {"x": 10.0, "y": 23.0, "bulge": 0.0}]}])");
    EXPECT_EQ(json::parse(scratch.read("r.json")), expected);
}

TEST(OrxOutlineTest, NegativeDimensionsAndSvgOutput) {
    Scratch scratch;
    // Code 22 with d0 = -5: the circle of radius 5 about the offset.
    ASSERT_EQ(scratch.orx({"outline", "22", "--dims=-5", "--offset=-1,2", "-o", "c.dxf"}).status,
              0);
    ToolRun info = scratch.orx({"info", "c.dxf"});
    EXPECT_NEAR(regionAreaSum(info.out), 25 * kPi, 1e-6);
    EXPECT_NE(info.out.find("extents (-6, -3) - (4, 7)"), std::string::npos) << info.out;
    ASSERT_EQ(scratch.orx({"outline", "22", "--dims=-5", "-o", "c.svg"}).status, 0);
    EXPECT_NE(scratch.read("c.svg").find("class=\"region\""), std::string::npos);
}

TEST(OrxDemoTest, GalleryShowsEveryProfileCodeAndTheOperations) {
    Scratch scratch;
    ToolRun run = scratch.orx({"demo", "gallery"});
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "gallery/index.html\n");
    std::string index = scratch.read("gallery/index.html");
    std::vector<std::string> pictures = {"bool-union.svg", "bool-difference.svg",
                                         "bool-intersection.svg", "region-holes.svg"};
    for (int i = 0; i < ORX::kOutlineTableSize; ++i) {
        pictures.push_back("profile-" + std::to_string(ORX::g_outline_code(i)) + ".svg");
    }
    for (std::string const& picture : pictures) {
        EXPECT_NE(index.find("src=\"" + picture + "\""), std::string::npos) << picture;
        std::string svg = scratch.read("gallery/" + picture);
        EXPECT_NE(svg.find("class=\"region\""), std::string::npos) << picture << " draws no area";
        EXPECT_EQ(svg.find("no outline"), std::string::npos) << picture;
    }
}

}  // namespace
