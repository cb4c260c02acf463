// Reading DXF entities: lines and arcs chained into polylines, circles, old-style polylines,
// extrusion directions, and what is refused. The drawings are small ENTITIES sections
// written by hand, each checked through `orx info`.
#include <gtest/gtest.h>

#include "tool_runner.h"

namespace {

// A DXF file whose ENTITIES section holds the given groups.
std::string dxfEntities(std::string const& groups) {
    return "0\nSECTION\n2\nENTITIES\n" + groups + "0\nENDSEC\n0\nEOF\n";
}

std::string line(double x0, double y0, double x1, double y1, std::string const& layer = "0") {
    return "0\nLINE\n8\n" + layer + "\n10\n" + std::to_string(x0) + "\n20\n" + std::to_string(y0) +
           "\n11\n" + std::to_string(x1) + "\n21\n" + std::to_string(y1) + "\n";
}

TEST(OrxDxfReadTest, EntitiesBecomeTheExpectedPolylines) {
    struct Case {
        char const* name;
        std::string groups;
        std::vector<char const*> expected;  // parts of the `orx info` output
    };
    Case const cases[] = {
        {"lines_meeting_within_the_tolerance_close_a_loop",
         line(0, 0, 10, 0) + line(0, 10, 10, 0.000001) + line(0, 10, 0, 0),
         {"3 LINE; 3 lines and arcs chained into 1 polyline",
          "polyline 1: 3 segments (0 arcs), closed, counter-clockwise", "area 50\n"}},
        {"a_chain_grows_at_both_ends",
         line(5, 0, 10, 0) + line(0, 0, 5, 0) + line(10, 0, 15, 0),
         {"polyline 1: 3 segments (0 arcs), open", "extents (0, 0) - (15, 0)"}},
        {"layers_keep_chains_apart",
         line(0, 0, 1, 0, "A") + line(1, 0, 2, 0, "B"),
         {"2 lines and arcs chained into 2 polylines", "layer A,", "layer B,"}},
        {"arc_across_zero_degrees_runs_counter_clockwise",
         "0\nARC\n10\n1\n20\n1\n40\n2\n50\n270\n51\n90\n",
         {"1 segment (1 arc), open", "length 6.283185307", "extents (1, -1) - (3, 3)"}},
        {"arc_seen_from_below_is_mirrored",
         "0\nARC\n10\n5\n20\n0\n30\n2\n40\n1\n50\n0\n51\n90\n210\n0\n220\n0\n230\n-1\n",
         {"extents (-6, 0) - (-5, 1)", "elevation -2"}},
        {"circle_is_a_loop_of_two_half_arcs",
         "0\nCIRCLE\n8\nHOLES\n10\n3\n20\n4\n40\n2\n",
         {"1 CIRCLE", "2 segments (2 arcs), closed, counter-clockwise", "area 12.56637061",
          "layer HOLES, elevation 0"}},
        {"old_polyline_with_bulge_and_a_spline_frame_point_left_out",
         "0\nPOLYLINE\n8\nP\n66\n1\n10\n0\n20\n0\n30\n3\n70\n1\n"
         "0\nVERTEX\n10\n0\n20\n0\n42\n1\n0\nVERTEX\n10\n2\n20\n0\n"
         "0\nVERTEX\n10\n9\n20\n9\n70\n16\n0\nVERTEX\n10\n2\n20\n2\n0\nSEQEND\n",
         {"1 POLYLINE", "3 segments (1 arc), closed", "extents (0, -1) - (2, 2)",
          "layer P, elevation 3"}},
        {"zero_length_and_3d_entities_are_counted_not_read",
         line(1, 1, 1, 1) + "0\nPOLYLINE\n70\n8\n0\nVERTEX\n10\n0\n20\n0\n0\nSEQEND\n" +
             line(0, 0, 1, 0),
         {"1 LINE; 1 line or arc chained into 1 polyline"}},
    };
    for (Case const& c : cases) {
        SCOPED_TRACE(c.name);
        Scratch scratch;
        scratch.write("d.dxf", dxfEntities(c.groups));
        ToolRun run = scratch.orx({"info", "d.dxf"});
        ASSERT_EQ(run.status, 0) << run.err;
        for (char const* part : c.expected) {
            EXPECT_NE(run.out.find(part), std::string::npos) << part << "\nin\n" << run.out;
        }
    }
}

TEST(OrxDxfReadTest, ByteOrderMarkAndTinyNumbersAreAccepted) {
    Scratch scratch;
    scratch.write("bom.dxf", "\xEF\xBB\xBF" + dxfEntities(line(0, 0, 1, 0)));
    scratch.write("tiny.dxf", dxfEntities("0\nLINE\n10\n1e-400\n20\n0\n11\n1\n21\n-1e-400\n"));
    scratch.write("tiny.json", R"([{"vertices": [{"x": 1e-400, "y": 0}, {"x": 1, "y": 0}]}])");
    for (char const* file : {"bom.dxf", "tiny.dxf", "tiny.json"}) {
        ToolRun run = scratch.orx({"info", file});
        EXPECT_EQ(run.status, 0) << file << ": " << run.err;
        EXPECT_NE(run.out.find("extents (0, 0) - (1, 0)"), std::string::npos) << run.out;
    }
}

TEST(OrxDxfReadTest, EntitiesOutsideThePlaneOrWithoutGeometryAreRefused) {
    struct Case {
        char const* name;
        std::string groups;
        char const* message;
    };
    Case const cases[] = {
        {"tilted_arc", "0\nARC\n10\n0\n20\n0\n40\n1\n50\n0\n51\n90\n210\n0\n220\n1\n230\n0\n",
         "d.dxf:5: ARC has the extrusion direction (0, 1, 0): it does not lie in the XY plane"},
        {"tilted_polyline",
         "0\nLWPOLYLINE\n90\n2\n10\n0\n20\n0\n10\n1\n20\n0\n210\n0.6\n220\n0\n230\n0.8\n",
         "LWPOLYLINE has the extrusion direction (0.6, 0, 0.8)"},
        {"rising_line", "0\nLINE\n10\n0\n20\n0\n30\n0\n11\n1\n21\n0\n31\n1\n",
         "d.dxf:5: LINE rises from z = 0 to z = 1"},
        {"circle_without_radius", "0\nCIRCLE\n10\n0\n20\n0\n", "CIRCLE has no group 40"},
        {"negative_radius", "0\nARC\n10\n0\n20\n0\n40\n-1\n50\n0\n51\n9\n",
         "ARC has the radius -1"},
        {"bad_layer_name", "0\nLINE\n8\na|b\n10\n0\n20\n0\n11\n1\n21\n0\n",
         "d.dxf:7: layer 'a|b' holds a character a layer name cannot hold"},
        {"polyline_of_one_vertex", "0\nPOLYLINE\n0\nVERTEX\n10\n0\n20\n0\n0\nSEQEND\n",
         "POLYLINE has fewer than two vertices"},
    };
    for (Case const& c : cases) {
        SCOPED_TRACE(c.name);
        Scratch scratch;
        scratch.write("d.dxf", dxfEntities(c.groups));
        ToolRun run = scratch.orx({"info", "d.dxf"});
        EXPECT_EQ(run.status, 2);
        EXPECT_NE(run.err.find(c.message), std::string::npos) << run.err;
    }
}

}  // namespace
