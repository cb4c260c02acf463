// CGAL's side of the geometry benchmarks: exact booleans of general polygons bounded by line
// segments and circular arcs (Gps_circle_segment_traits_2 over the exact-constructions
// kernel).
//
// Every arc of an outline becomes the circular arc through its start, its midpoint and its
// end, the three taken exactly as the doubles they are: the end points are then shared
// exactly by consecutive segments, which a circle from the bulge's rounded centre and radius
// would not give, and the circle is the bulge's circle up to the rounding of the midpoint.
// The conversion happens once per case, outside the timed loops.
//
// Operations without a counterpart here: offset, norm and pts (no such operation on these
// polygons) and the grouping of loose loops into regions. A one-loop region is a general
// polygon, so the region rows of the comparison use the polygon booleans.
#include <CGAL/Boolean_set_operations_2.h>
#include <CGAL/Exact_predicates_exact_constructions_kernel.h>
#include <CGAL/Gps_circle_segment_traits_2.h>
#include <CGAL/Surface_sweep_2_algorithms.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <vector>

#include "bench/geometry_bench.h"

namespace orx_bench {

namespace {

using Kernel = CGAL::Exact_predicates_exact_constructions_kernel;
using ArcTraits = CGAL::Arr_circle_segment_traits_2<Kernel>;
using Traits = CGAL::Gps_circle_segment_traits_2<Kernel>;
using Curve = ArcTraits::Curve_2;
using XCurve = ArcTraits::X_monotone_curve_2;
using Point = ArcTraits::Point_2;
using Polygon = Traits::General_polygon_2;
using PolygonWithHoles = Traits::Polygon_with_holes_2;
using PolygonsWithHoles = std::vector<PolygonWithHoles>;

struct CgalOutlines {
    std::vector<Curve> curvesA, curvesB;
    Polygon a, b;
};

struct CgalPlate {
    PolygonWithHoles plate;
    Polygon cutter;
};

LastInput<CgalOutlines> g_outlines;

Kernel::Point_2 exactPoint(COrxPoint3d const& p) {
    return Kernel::Point_2(p.x, p.y);
}

Curve toCurve(COrxVertex const& v) {
    Kernel::Point_2 const start = exactPoint(v.startPoint()), end = exactPoint(v.endPoint());
    if (v.isStraight()) {
        return Curve(Kernel::Segment_2(start, end));
    }
    return Curve(start, exactPoint(v.mid()), end);
}

std::vector<Curve> toCurves(COrxVertexArray const& vl) {
    std::vector<Curve> curves;
    curves.reserve(static_cast<std::size_t>(vl.len()));
    for (int k = 0; k < static_cast<int>(vl.len()); ++k) {
        curves.push_back(toCurve(vl[k]));
    }
    return curves;
}

// The polygon's boundary is made of x-monotone pieces: arcs longer than a half circle, or
// crossing a vertical tangent, are split.
Polygon toPolygon(std::vector<Curve> const& curves) {
    using Piece = boost::variant<Point, XCurve>;
    auto const makeXMonotone = ArcTraits().make_x_monotone_2_object();
    std::vector<Piece> pieces;
    for (Curve const& curve : curves) {
        makeXMonotone(curve, std::back_inserter(pieces));
    }
    std::vector<XCurve> boundary;
    for (Piece const& piece : pieces) {
        if (XCurve const* xcurve = boost::get<XCurve>(&piece)) {
            boundary.push_back(*xcurve);
        }
    }
    return Polygon(boundary.begin(), boundary.end());
}

CgalOutlines const& outlines(Shape shape, int segments) {
    return g_outlines.get(static_cast<int>(shape), segments, [&] {
        OutlinePair const pair = makePair(shape, segments);
        CgalOutlines converted;
        converted.curvesA = toCurves(pair.a);
        converted.curvesB = toCurves(pair.b);
        converted.a = toPolygon(converted.curvesA);
        converted.b = toPolygon(converted.curvesB);
        return converted;
    });
}

// Signed area of one boundary piece: the shoelace term of its chord plus the circular
// segment between chord and arc, r^2 / 2 * (theta - sin theta), on the side the arc turns to.
// An x-monotone arc spans at most a half circle, so theta = 2 asin(chord / 2r).
double pieceArea(XCurve const& piece) {
    double const sx = CGAL::to_double(piece.source().x()), sy = CGAL::to_double(piece.source().y());
    double const tx = CGAL::to_double(piece.target().x()), ty = CGAL::to_double(piece.target().y());
    double area = (sx * ty - tx * sy) / 2;
    if (piece.is_circular()) {
        double const r2 = CGAL::to_double(piece.supporting_circle().squared_radius());
        double const halfChord = std::hypot(tx - sx, ty - sy) / 2;
        double const theta = 2 * std::asin(std::min(1.0, halfChord / std::sqrt(r2)));
        double const segment = r2 / 2 * (theta - std::sin(theta));
        area += piece.orientation() == CGAL::COUNTERCLOCKWISE ? segment : -segment;
    }
    return area;
}

double polygonArea(Polygon const& polygon) {
    double area = 0;
    for (auto it = polygon.curves_begin(); it != polygon.curves_end(); ++it) {
        area += pieceArea(*it);
    }
    return area;
}

// Outer boundary counter-clockwise, holes clockwise: the signed areas add up.
double polygonArea(PolygonWithHoles const& polygon) {
    double area = polygon.is_unbounded() ? 0 : polygonArea(polygon.outer_boundary());
    for (auto it = polygon.holes_begin(); it != polygon.holes_end(); ++it) {
        area += polygonArea(*it);
    }
    return area;
}

double totalArea(PolygonsWithHoles const& polygons) {
    double area = 0;
    for (PolygonWithHoles const& polygon : polygons) {
        area += polygonArea(polygon);
    }
    return area;
}

void join(benchmark::State& state, Shape shape, int segments) {
    CgalOutlines const& input = outlines(shape, segments);
    PolygonWithHoles result;
    for (auto _ : state) {
        result = PolygonWithHoles();
        benchmark::DoNotOptimize(CGAL::join(input.a, input.b, result));
    }
    state.counters["area"] = polygonArea(result);
}

void difference(benchmark::State& state, Shape shape, int segments) {
    CgalOutlines const& input = outlines(shape, segments);
    PolygonsWithHoles result;
    for (auto _ : state) {
        result.clear();
        CGAL::difference(input.a, input.b, std::back_inserter(result));
    }
    state.counters["area"] = totalArea(result);
}

void intersection(benchmark::State& state, Shape shape, int segments) {
    CgalOutlines const& input = outlines(shape, segments);
    PolygonsWithHoles result;
    for (auto _ : state) {
        result.clear();
        CGAL::intersection(input.a, input.b, std::back_inserter(result));
    }
    state.counters["area"] = totalArea(result);
}

// The crossings of the two outlines by one sweep over the segments of both. Without the end
// points reported, the points where consecutive segments of one outline meet are left out.
void intersections(benchmark::State& state, Shape shape, int segments) {
    CgalOutlines const& input = outlines(shape, segments);
    std::vector<Curve> curves(input.curvesA);
    curves.insert(curves.end(), input.curvesB.begin(), input.curvesB.end());
    ArcTraits traits;
    std::vector<Point> points;
    for (auto _ : state) {
        points.clear();
        CGAL::compute_intersection_points(curves.begin(), curves.end(), std::back_inserter(points),
                                          false, traits);
    }
    state.counters["points"] = static_cast<double>(points.size());
}

// The side of the polygon a point lies on. The free function builds the polygon's
// arrangement on every call, as g_vl_pt_inside takes the bare outline on every call.
void orientedSide(benchmark::State& state, Shape shape, int segments) {
    Polygon const& polygon = outlines(shape, segments).a;
    long k = 0;
    for (auto _ : state) {
        COrxPoint3d const p = gridPoint(k++);
        benchmark::DoNotOptimize(CGAL::oriented_side(Point(p.x, p.y), polygon));
    }
    state.SetItemsProcessed(state.iterations());
}

CgalPlate makePlate(int holes) {
    Region const region = plateRegion(holes);
    CgalPlate plate;
    plate.plate = PolygonWithHoles(toPolygon(toCurves(region[0])));
    for (int k = 1; k < static_cast<int>(region.len()); ++k) {
        plate.plate.add_hole(toPolygon(toCurves(region[k].reverse())));
    }
    plate.cutter = toPolygon(toCurves(plateCutter()));
    return plate;
}

void plateDiff(benchmark::State& state, int holes) {
    CgalPlate const input = makePlate(holes);
    PolygonsWithHoles result;
    for (auto _ : state) {
        result.clear();
        CGAL::difference(input.plate, input.cutter, std::back_inserter(result));
    }
    state.counters["area"] = totalArea(result);
}

}  // namespace

void registerCgalOutlineCase(Shape shape, int segments) {
    auto const add = [&](char const* operation, benchmark::TimeUnit unit, auto fn) {
        registerCase("cgal", operation, shapeName(shape), segments, unit, fn);
    };
    auto const ms = benchmark::kMillisecond;
    add("bool_union", ms, [=](auto& s) { join(s, shape, segments); });
    add("bool_diff", ms, [=](auto& s) { difference(s, shape, segments); });
    add("bool_sect", ms, [=](auto& s) { intersection(s, shape, segments); });
    add("intersect", ms, [=](auto& s) { intersections(s, shape, segments); });
    add("pt_inside", benchmark::kMicrosecond, [=](auto& s) { orientedSide(s, shape, segments); });
}

void registerCgalPlateCase(int holes) {
    registerCase("cgal", "plate_diff", "plate", holes, benchmark::kMillisecond,
                 [=](auto& s) { plateDiff(s, holes); });
}

}  // namespace orx_bench
