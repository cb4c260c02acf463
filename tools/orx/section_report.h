// Section properties of closed polylines and regions for `orx info`: area, centroid, second
// moments about the centroid axes, principal moments and angle, radii of gyration and
// elastic section moduli, all from the library's exact integrals.
//
// Second moments grow with the fourth power of the size, so shapes wider than about 1e77
// would overflow them. Such a shape is measured as an exact copy scaled down by a power of
// two and every property scaled back (safe_measures.h does the same for lengths and areas):
// a property beyond the range of doubles is infinite, never NaN.
#ifndef ORX_TOOL_SECTION_REPORT_H
#define ORX_TOOL_SECTION_REPORT_H

#include <string>

#include "orx/foundation/array_templ.h"
#include "orx/geom/point.h"
#include "orx/polyline/vertex_array.h"

namespace orxtool {

struct SectionProperties {
    bool valid = false;  // false: no properties (see `problem`)
    std::string problem;
    double area = 0.0;  // positive for either orientation
    COrxPoint3d centroid;
    double ix = 0.0, iy = 0.0, ixy = 0.0;  // about the centroid axes parallel to X and Y
    double i1 = 0.0, i2 = 0.0;             // principal moments, i1 >= i2
    double angle = 0.0;                    // of the axis of i1, radians from +X
    bool hasGyration = false;              // false when a moment is negative (net values)
    double rx = 0.0, ry = 0.0;
    bool hasModuli = false;  // false when the centroid lies outside the extents
    double wxTop = 0.0, wxBottom = 0.0, wyRight = 0.0, wyLeft = 0.0;
};

// The properties of a closed polyline (ORX::g_vl_statics); the moduli from its extents.
SectionProperties polylineSection(COrxVertexArray const& polyline);

// The properties of a region, outer loop first, then its holes (ORX::g_region_statics); the
// moduli from the outer loop's extents.
SectionProperties regionSection(COrxArrayTempl<COrxVertexArray> const& region);

// The indented lines of `orx info` that show the properties (the area is on the lines
// before them).
std::string sectionReport(SectionProperties const& properties);

// The line, printed once, that says how to read the properties.
std::string sectionLegend();

}  // namespace orxtool

#endif  // ORX_TOOL_SECTION_REPORT_H
