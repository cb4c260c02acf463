#include "section_report.h"

#include <algorithm>
#include <cmath>
#include <sstream>

#include "numbers.h"
#include "orx/polyline/section_properties.h"
#include "orx/regions/region_statics.h"
#include "safe_measures.h"

namespace orxtool {

namespace {

using Loops = COrxArrayTempl<COrxVertexArray>;

// Shapes that span up to 2^kSpanExponent are measured as they are: their fourth powers
// (about 2^960) leave room below the largest double for the sums over many segments.
constexpr int kSpanExponent = 240;

constexpr double kDegreesPerRadian = 180.0 / 3.14159265358979323846;

// The binary exponent by which a shape with these extents is scaled down (0: not at all).
// The span decides, not the size of the coordinates: the library integrates about the first
// point, so a small shape far from the origin keeps its digits as it is, and scaling it
// would shrink its area below the tolerance.
int scaleExponent(COrxPoint3d const& lo, COrxPoint3d const& hi) {
    double const halfSpan = std::max(hi.x / 2 - lo.x / 2, hi.y / 2 - lo.y / 2);
    if (!std::isfinite(halfSpan) || halfSpan <= std::ldexp(1.0, kSpanExponent - 1)) {
        return 0;
    }
    return std::ilogb(halfSpan) + 1 - kSpanExponent;
}

Loops scaledLoops(Loops const& loops, int exponent) {
    Loops copy;
    for (unsigned long k = 0; k < loops.len(); ++k) {
        copy.append(scaledCopy(loops[static_cast<int>(k)], exponent));
    }
    return copy;
}

struct Statics {
    double area = 0.0, ix = 0.0, iy = 0.0, ixy = 0.0;
    COrxPoint3d centroid;
};

// The derived properties of statics measured on a copy scaled by 2^-e (extents lo, hi of
// that copy), scaled back: lengths by 2^e, areas by 2^2e, moduli by 2^3e, moments by 2^4e.
SectionProperties derived(Statics const& s, COrxPoint3d const& lo, COrxPoint3d const& hi, int e) {
    SectionProperties p;
    p.valid = true;
    ORX::g_statics_principal(s.ix, s.iy, s.ixy, p.i1, p.i2, p.angle);
    p.hasGyration = ORX::g_statics_gyration(s.area, s.ix, s.iy, p.rx, p.ry);
    p.hasModuli = ORX::g_statics_moduli(s.centroid, s.ix, s.iy, lo, hi, p.wxTop, p.wxBottom,
                                        p.wyRight, p.wyLeft);
    p.area = std::ldexp(s.area, 2 * e);
    p.centroid = scaled(s.centroid, e);
    p.ix = std::ldexp(s.ix, 4 * e);
    p.iy = std::ldexp(s.iy, 4 * e);
    p.ixy = std::ldexp(s.ixy, 4 * e);
    p.i1 = std::ldexp(p.i1, 4 * e);
    p.i2 = std::ldexp(p.i2, 4 * e);
    p.rx = std::ldexp(p.rx, e);
    p.ry = std::ldexp(p.ry, e);
    for (double* modulus : {&p.wxTop, &p.wxBottom, &p.wyRight, &p.wyLeft}) {
        *modulus = std::ldexp(*modulus, 3 * e);
    }
    return p;
}

SectionProperties noProperties(std::string const& problem) {
    SectionProperties p;
    p.problem = problem;
    return p;
}

// The properties of the loops, outer loop first: one loop is measured as a polyline, more
// as a region.
SectionProperties sectionOf(Loops const& loops) {
    COrxPoint3d lo, hi;
    if (loops.len() == 0 || !safeExtents(loops[0], lo, hi)) {
        return noProperties("no segment");
    }
    int const e = scaleExponent(lo, hi);
    Loops const measured = e == 0 ? loops : scaledLoops(loops, -e);
    if (e != 0 && !measured[0].extents(lo, hi)) {
        return noProperties("no segment");
    }
    Statics s;
    bool const ok = loops.len() == 1
                        ? ORX::g_vl_statics(measured[0], s.area, s.centroid, s.ix, s.iy, s.ixy)
                        : ORX::g_region_statics(measured, s.area, s.centroid, s.ix, s.iy, s.ixy);
    if (!ok) {
        return noProperties(std::isfinite(hi.x - lo.x) && std::isfinite(hi.y - lo.y)
                                ? "the area is not above the tolerance"
                                : "the extents exceed the range of doubles");
    }
    return derived(s, lo, hi, e);
}

}  // namespace

SectionProperties polylineSection(COrxVertexArray const& polyline) {
    Loops loops;
    loops.append(polyline);
    return sectionOf(loops);
}

SectionProperties regionSection(COrxArrayTempl<COrxVertexArray> const& region) {
    return sectionOf(region);
}

std::string sectionReport(SectionProperties const& p) {
    if (!p.valid) {
        return "  no section properties: " + p.problem + "\n";
    }
    std::ostringstream out;
    out << "  centroid " << pointText(p.centroid.x, p.centroid.y) << "\n";
    out << "  second moments ix " << measureText(p.ix) << ", iy " << measureText(p.iy) << ", ixy "
        << measureText(p.ixy) << "\n";
    out << "  principal moments i1 " << measureText(p.i1) << ", i2 " << measureText(p.i2)
        << ", i1 axis at " << reportText(p.angle * kDegreesPerRadian) << " degrees\n";
    if (p.hasGyration) {
        out << "  radii of gyration rx " << measureText(p.rx) << ", ry " << measureText(p.ry)
            << "\n";
    } else {
        out << "  radii of gyration: none (a moment is negative)\n";
    }
    if (p.hasModuli) {
        out << "  section moduli wx top " << measureText(p.wxTop) << ", bottom "
            << measureText(p.wxBottom) << "; wy right " << measureText(p.wyRight) << ", left "
            << measureText(p.wyLeft) << "\n";
    } else {
        out << "  section moduli: none (the centroid is not inside the extents)\n";
    }
    return out.str();
}

std::string sectionLegend() {
    return "section properties in drawing units; ix, iy, ixy about the centroid axes parallel "
           "to X, Y; angles counter-clockwise from X\n";
}

}  // namespace orxtool
