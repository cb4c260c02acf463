// The section properties `orx info` prints, read back from its output and compared with the
// closed forms of rectangles, circles and a plate with a round hole.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <sstream>

#include "tool_runner.h"

namespace {

constexpr double kPi = 3.141592653589793;
// The report prints 10 significant digits.
constexpr double kRelative = 1e-9;

// The lines of the report that start with `heading` and are indented below it.
std::string block(std::string const& report, std::string const& heading) {
    std::size_t const start = report.find("\n" + heading);
    if (start == std::string::npos) {
        return {};
    }
    std::size_t end = start + 1;
    while ((end = report.find('\n', end)) != std::string::npos &&
           report.compare(end + 1, 2, "  ") == 0) {
        ++end;
    }
    return report.substr(start + 1, end == std::string::npos ? end : end - start);
}

// The number after " label " in the block; NaN when the label is missing.
double value(std::string const& text, std::string const& label) {
    std::size_t const at = text.find(" " + label + " ");
    return at == std::string::npos ? std::nan("") : std::stod(text.substr(at + label.size() + 2));
}

// The centroid "(x, y)".
void centroid(std::string const& text, double& x, double& y) {
    std::size_t const at = text.find("centroid (");
    ASSERT_NE(at, std::string::npos) << text;
    std::istringstream in(text.substr(at + 10));
    char comma = 0;
    in >> x >> comma >> y;
}

void expectRelative(double actual, double expected, char const* what) {
    EXPECT_NEAR(actual, expected, kRelative * std::fabs(expected)) << what;
}

std::string json(std::string const& loops) {
    return "[" + loops + "]";
}

// A closed rectangle from (x0, y0), counter-clockwise or clockwise.
std::string rectangle(double x0, double y0, double b, double h, bool clockwise = false) {
    std::ostringstream out;
    out.precision(17);
    auto vertex = [&out](double x, double y, char const* end) {
        out << "{\"x\": " << x << ", \"y\": " << y << "}" << end;
    };
    out << R"({"closed": true, "vertices": [)";
    vertex(x0, y0, ", ");
    if (clockwise) {
        vertex(x0, y0 + h, ", ");
        vertex(x0 + b, y0 + h, ", ");
        vertex(x0 + b, y0, "]}");
    } else {
        vertex(x0 + b, y0, ", ");
        vertex(x0 + b, y0 + h, ", ");
        vertex(x0, y0 + h, "]}");
    }
    return out.str();
}

// A circle of two half arcs about (cx, cy).
std::string circle(double cx, double cy, double r) {
    std::ostringstream out;
    out.precision(17);
    out << R"({"closed": true, "vertices": [{"x": )" << cx - r << ", \"y\": " << cy
        << R"(, "bulge": 1}, {"x": )" << cx + r << ", \"y\": " << cy << R"(, "bulge": 1}]})";
    return out.str();
}

TEST(OrxInfoSectionTest, RectangleMatchesTheClosedForms) {
    struct Case {
        char const* name;
        double x0, y0, b, h;
        bool clockwise;
    };
    Case const cases[] = {
        {"wide_at_origin", 0, 0, 10, 6, false},
        {"tall_far_from_origin", 1000.25, -2000.5, 3.2, 7.5, false},
        {"clockwise", -4, 2, 5, 1.5, true},
        // Wide enough that the moments are taken on a scaled copy; they still fit a double.
        {"scaled", 5e75, -5e75, 3e75, 2e75, false},
    };
    Scratch scratch;
    for (Case const& c : cases) {
        SCOPED_TRACE(c.name);
        scratch.write("r.json", json(rectangle(c.x0, c.y0, c.b, c.h, c.clockwise)));
        ToolRun run = scratch.orx({"info", "r.json"});
        ASSERT_EQ(run.status, 0) << run.err;
        double const ix = c.b * c.h * c.h * c.h / 12, iy = c.h * c.b * c.b * c.b / 12;
        // The polyline and the region of its one loop have the same properties.
        for (char const* heading : {"polyline 1:", "region 1:"}) {
            std::string const text = block(run.out, heading);
            SCOPED_TRACE(text);
            double cx = 0, cy = 0;
            centroid(text, cx, cy);
            expectRelative(cx, c.x0 + c.b / 2, "centroid x");
            expectRelative(cy, c.y0 + c.h / 2, "centroid y");
            expectRelative(value(text, "ix"), ix, "ix");
            expectRelative(value(text, "iy"), iy, "iy");
            EXPECT_NEAR(value(text, "ixy"), 0.0, kRelative * ix);
            expectRelative(value(text, "i1"), std::max(ix, iy), "i1");
            expectRelative(value(text, "i2"), std::min(ix, iy), "i2");
            EXPECT_EQ(value(text, "at"), ix > iy ? 0.0 : 90.0);
            expectRelative(value(text, "rx"), c.h / std::sqrt(12.0), "rx");
            expectRelative(value(text, "ry"), c.b / std::sqrt(12.0), "ry");
            for (char const* side : {"top", "bottom"}) {
                expectRelative(value(text, side), c.b * c.h * c.h / 6, side);
            }
            for (char const* side : {"right", "left"}) {
                expectRelative(value(text, side), c.h * c.b * c.b / 6, side);
            }
        }
    }
}

// A 12 x 8 plate with a hole of radius 1.5 off its centre: the region is the rectangle minus
// the disc, each moved to the region's centroid by the parallel-axis theorem.
TEST(OrxInfoSectionTest, PlateWithRoundHoleMatchesTheClosedForms) {
    double const b = 12, h = 8, r = 1.5, hx = 4, hy = 5;
    Scratch scratch;
    scratch.write("plate.json", json(rectangle(0, 0, b, h) + ", " + circle(hx, hy, r)));
    ToolRun run = scratch.orx({"info", "plate.json"});
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.out.find("section properties in drawing units"), std::string::npos);

    double const disc = kPi * r * r, area = b * h - disc;
    double const x = (b * h * b / 2 - disc * hx) / area, y = (b * h * h / 2 - disc * hy) / area;
    double const ix = b * h * h * h / 12 + b * h * (h / 2 - y) * (h / 2 - y) -
                      (kPi * r * r * r * r / 4 + disc * (hy - y) * (hy - y));
    double const iy = h * b * b * b / 12 + b * h * (b / 2 - x) * (b / 2 - x) -
                      (kPi * r * r * r * r / 4 + disc * (hx - x) * (hx - x));
    double const ixy = b * h * (b / 2 - x) * (h / 2 - y) - disc * (hx - x) * (hy - y);

    std::string const text = block(run.out, "region 1:");
    SCOPED_TRACE(text);
    expectRelative(value(text, "area"), area, "area");
    double cx = 0, cy = 0;
    centroid(text, cx, cy);
    expectRelative(cx, x, "centroid x");
    expectRelative(cy, y, "centroid y");
    expectRelative(value(text, "ix"), ix, "ix");
    expectRelative(value(text, "iy"), iy, "iy");
    expectRelative(value(text, "ixy"), ixy, "ixy");
    // The principal moments keep the trace and the determinant, and the first is the moment
    // about the axis at the printed angle.
    double const i1 = value(text, "i1"), i2 = value(text, "i2");
    double const w = value(text, "at") * kPi / 180;
    expectRelative(i1 + i2, ix + iy, "trace");
    EXPECT_NEAR(i1 * i2, ix * iy - ixy * ixy, 1e-8 * ix * iy);
    EXPECT_NEAR(ix * std::cos(w) * std::cos(w) + iy * std::sin(w) * std::sin(w) -
                    2 * ixy * std::sin(w) * std::cos(w),
                i1, 1e-8 * i1);
    expectRelative(value(text, "rx"), std::sqrt(ix / area), "rx");
    expectRelative(value(text, "ry"), std::sqrt(iy / area), "ry");
    expectRelative(value(text, "top"), ix / (h - y), "top");
    expectRelative(value(text, "bottom"), ix / y, "bottom");
    expectRelative(value(text, "right"), iy / (b - x), "right");
    expectRelative(value(text, "left"), iy / x, "left");

    // The hole alone, as a polyline: a disc.
    std::string const hole = block(run.out, "polyline 2:");
    expectRelative(value(hole, "ix"), kPi * r * r * r * r / 4, "disc ix");
    expectRelative(value(hole, "rx"), r / 2, "disc rx");
    expectRelative(value(hole, "top"), kPi * r * r * r / 4, "disc top");
}

// Moments grow with the fourth power of the size: beyond the range of doubles they read as
// infinite, like an area, and nothing reads NaN.
TEST(OrxInfoSectionTest, HugeShapesGiveInfiniteNeverNan) {
    struct Case {
        char const* name;
        std::string loops;
        std::vector<char const*> parts;
    };
    Case const cases[] = {
        {"circle_with_finite_area",
         circle(5e153, 0, 5e153),
         {"  centroid (5e+153, 0)\n", "ix inf (beyond the range of doubles)",
          "radii of gyration rx 2.5e+153, ry 2.5e+153\n",
          "wx top inf (beyond the range of doubles)"}},
        {"square_wider_than_doubles",
         rectangle(-8e307, -8e307, 1.6e308, 1.6e308),
         {"area inf (beyond the range of doubles)", "  centroid (0, 0)\n",
          "iy inf (beyond the range of doubles)", "radii of gyration rx 4.618802154e+307"}},
        {"no_area",
         R"({"closed": true, "vertices": [{"x": 0, "y": 0}, {"x": 1, "y": 0}, {"x": 2, "y": 0}]})",
         {"  no section properties: the area is not above the tolerance\n"}},
    };
    Scratch scratch;
    for (Case const& c : cases) {
        SCOPED_TRACE(c.name);
        scratch.write("huge.json", json(c.loops));
        ToolRun run = scratch.orx({"info", "huge.json"});
        ASSERT_EQ(run.status, 0) << run.err;
        for (char const* part : c.parts) {
            EXPECT_NE(run.out.find(part), std::string::npos) << part << "\nin\n" << run.out;
        }
        EXPECT_EQ(run.out.find("nan"), std::string::npos) << run.out;
    }
}

}  // namespace
