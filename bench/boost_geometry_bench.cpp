// Boost.Geometry's side of the geometry benchmarks: its booleans, point queries and
// intersection points on the outlines with every arc split into kChordsPerArc chords, in
// doubles. The tessellation happens once per case, outside the timed loops; it makes the
// areas differ from the exact ones by the slivers between arcs and chords.
//
// Operations without a counterpart here: offset, norm and pts (the outlines have no arcs
// here), and the grouping of loose loops into regions. A one-loop region is a polygon, so
// the region rows of the comparison use the polygon booleans.
#include <boost/geometry.hpp>

#include <vector>

#include "bench/geometry_bench.h"

namespace orx_bench {

namespace {

namespace bg = boost::geometry;

// Chords per arc of the tessellated outlines.
constexpr int kChordsPerArc = 16;

using Point = bg::model::d2::point_xy<double>;
// Counter-clockwise outer rings, as the outlines run; closed (the first point repeated).
using Polygon = bg::model::polygon<Point, false, true>;
using Ring = Polygon::ring_type;
using MultiPolygon = bg::model::multi_polygon<Polygon>;
using Linestring = bg::model::linestring<Point>;
using MultiPoint = bg::model::multi_point<Point>;

struct BoostOutlines {
    Polygon a, b;
    Linestring boundaryA, boundaryB;
};

struct BoostPlate {
    Polygon plate, cutter;
};

LastInput<BoostOutlines> g_outlines;

// The segment's start, then for an arc the inner points of its chords.
template <class Points>
void appendSegment(COrxVertex const& v, Points& points) {
    points.push_back(Point(v.startPoint().x, v.startPoint().y));
    if (v.isStraight()) {
        return;
    }
    double const length = v.bulgLen();
    for (int k = 1; k < kChordsPerArc; ++k) {
        COrxPoint3d p;
        v.pointAtDist(p, length * k / kChordsPerArc, true);
        points.push_back(Point(p.x, p.y));
    }
}

// The closed outline as points, the first repeated at the end.
template <class Points>
Points toPoints(COrxVertexArray const& vl) {
    Points points;
    for (int k = 0; k < static_cast<int>(vl.len()); ++k) {
        appendSegment(vl[k], points);
    }
    if (!points.empty()) {
        points.push_back(points.front());
    }
    return points;
}

Polygon toPolygon(COrxVertexArray const& vl) {
    Polygon polygon;
    polygon.outer() = toPoints<Ring>(vl);
    return polygon;
}

BoostOutlines const& outlines(Shape shape, int segments) {
    return g_outlines.get(static_cast<int>(shape), segments, [&] {
        OutlinePair const pair = makePair(shape, segments);
        BoostOutlines converted;
        converted.a = toPolygon(pair.a);
        converted.b = toPolygon(pair.b);
        converted.boundaryA = toPoints<Linestring>(pair.a);
        converted.boundaryB = toPoints<Linestring>(pair.b);
        return converted;
    });
}

template <class Operation>
void boolean(benchmark::State& state, Shape shape, int segments, Operation op) {
    BoostOutlines const& input = outlines(shape, segments);
    MultiPolygon result;
    for (auto _ : state) {
        result.clear();
        op(input.a, input.b, result);
    }
    state.counters["area"] = bg::area(result);
}

// The points where the two boundaries meet, as linestrings (their areas play no part).
void intersections(benchmark::State& state, Shape shape, int segments) {
    BoostOutlines const& input = outlines(shape, segments);
    MultiPoint points;
    for (auto _ : state) {
        points.clear();
        bg::intersection(input.boundaryA, input.boundaryB, points);
    }
    state.counters["points"] = static_cast<double>(points.size());
}

// Strictly inside, as g_vl_pt_inside(vl, p, false): a point on the boundary is not within.
void within(benchmark::State& state, Shape shape, int segments) {
    Polygon const& polygon = outlines(shape, segments).a;
    long k = 0;
    for (auto _ : state) {
        COrxPoint3d const p = gridPoint(k++);
        benchmark::DoNotOptimize(bg::within(Point(p.x, p.y), polygon));
    }
    state.SetItemsProcessed(state.iterations());
}

BoostPlate makePlate(int holes) {
    Region const region = plateRegion(holes);
    BoostPlate plate;
    plate.plate = toPolygon(region[0]);
    for (int k = 1; k < static_cast<int>(region.len()); ++k) {
        plate.plate.inners().push_back(toPoints<Ring>(region[k].reverse()));
    }
    plate.cutter = toPolygon(plateCutter());
    return plate;
}

void plateDiff(benchmark::State& state, int holes) {
    BoostPlate const input = makePlate(holes);
    MultiPolygon result;
    for (auto _ : state) {
        result.clear();
        bg::difference(input.plate, input.cutter, result);
    }
    state.counters["area"] = bg::area(result);
}

}  // namespace

void registerBoostOutlineCase(Shape shape, int segments) {
    auto const add = [&](char const* operation, benchmark::TimeUnit unit, auto fn) {
        registerCase("boost", operation, shapeName(shape), segments, unit, fn);
    };
    auto const ms = benchmark::kMillisecond;
    add("bool_union", ms, [=](auto& s) {
        boolean(s, shape, segments, [](auto& a, auto& b, auto& out) { bg::union_(a, b, out); });
    });
    add("bool_diff", ms, [=](auto& s) {
        boolean(s, shape, segments, [](auto& a, auto& b, auto& out) { bg::difference(a, b, out); });
    });
    add("bool_sect", ms, [=](auto& s) {
        boolean(s, shape, segments,
                [](auto& a, auto& b, auto& out) { bg::intersection(a, b, out); });
    });
    add("intersect", ms, [=](auto& s) { intersections(s, shape, segments); });
    add("pt_inside", benchmark::kMicrosecond, [=](auto& s) { within(s, shape, segments); });
}

void registerBoostPlateCase(int holes) {
    registerCase("boost", "plate_diff", "plate", holes, benchmark::kMillisecond,
                 [=](auto& s) { plateDiff(s, holes); });
}

}  // namespace orx_bench
