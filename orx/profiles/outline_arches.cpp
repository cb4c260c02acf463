// Outline generators of the arched sections: segmental, semicircular, three-centred and
// pointed arches, the rectangle with rounded upper corners and the circular segment.
#include <algorithm>
#include <cmath>

#include "orx/plane_geometry/bulges.h"
#include "orx/plane_geometry/tangents.h"
#include "orx/polyline/vertex.h"
#include "orx/profiles/internal/outline_generators.h"

namespace ORX {
namespace internal {
namespace {

COrxVertex segment(COrxPoint3d const& from, COrxPoint3d const& to, double bulge) {
    return COrxVertex(from, to, bulge);
}

// The rectangle of width w and side height s closed by the arc from (w, s) to (0, s); with
// s = 0 only the base and the arc back to the origin.
COrxVertexArray archedRectangle(double w, double s, double bulge) {
    COrxVertexArray outline;
    outline.append(segment(xy(0, 0), xy(w, 0), 0.0));
    if (s != 0) {
        outline.append(segment(xy(w, 0), xy(w, s), 0.0))
            .append(segment(xy(w, s), xy(0, s), bulge))
            .append(segment(xy(0, s), xy(0, 0), 0.0));
    } else {
        outline.append(segment(xy(w, 0), xy(0, 0), bulge));
    }
    return outline;
}

// Bulge of the two arcs of the pointed arch without an explicit rise: the radius comes from
// the rise and the half width, the smaller of the two passed first to g_tang_radius. A rise
// at least the half width gives the circle through the crown that stands vertical on the
// side (centre on the springing line); a flatter rise gives the one circle through both
// springing points and the crown. NaN when no arc fits (no rise).
double pointedArchBulge(COrxPoint3d const& from, COrxPoint3d const& to, double rise,
                        double halfWidth) {
    double const radius = g_tang_radius(std::min(rise, halfWidth), std::max(rise, halfWidth));
    double bulge = nan();
    g_arcrad_bulg(bulge, from, to, radius);
    return bulge;
}

}  // namespace

COrxVertexArray segmentalArch(COrxVector3d const& offset, Dims const& dims) {
    if (!hasDims(dims, 3)) {
        return COrxVertexArray();
    }
    double const d0 = dim(dims, 0), crown = dim(dims, 1), d2 = dim(dims, 2);
    double const side = d2 > 0 ? d2 : crown + d2;
    double const bulge = (crown - side) / (d0 / 2);
    return placed(archedRectangle(d0, side, bulge), offset);
}

COrxVertexArray semicircularArch(COrxVector3d const& offset, Dims const& dims) {
    if (!hasDims(dims, 2)) {
        return COrxVertexArray();
    }
    double const d0 = dim(dims, 0), crown = dim(dims, 1);
    double const side = std::max(0.0, crown - d0 / 2);
    return placed(archedRectangle(d0, side, 1.0), offset);
}

// The rise comes from a subtraction, so ordinary decimal input meant as the half circle
// (25.4, 12.8, 0.1) lands a rounding error above half the span: a rise within the point
// tolerance of the limit is taken as the limit itself.
COrxVertexArray basketHandleArch(COrxVector3d const& offset, Dims const& dims) {
    double const span = dim(dims, 0), crown = dim(dims, 1), side = dim(dims, 2);
    double const a = span / 2;
    double rise = crown - side;
    if (rise > a && rise - a <= COrxPoint3d::tol) {
        rise = a;
    }
    if (!hasDims(dims, 3) || !(span > 0) || !(side >= 0) || !(rise > 0) || !(rise <= a)) {
        return COrxVertexArray();
    }
    BasketArch const arch = basketArch(a, rise);
    COrxVector3d const toLocal(a, side, 0.0);
    COrxVertexArray outline;
    outline.append(segment(xy(0, 0), xy(span, 0), 0.0))
        .append(segment(xy(span, 0), xy(span, side), 0.0))
        .append(segment(xy(span, side), arch.rightTangent + toLocal, arch.springBulge))
        .append(segment(arch.rightTangent + toLocal, arch.leftTangent + toLocal, arch.crownBulge))
        .append(segment(arch.leftTangent + toLocal, xy(0, side), arch.springBulge))
        .append(segment(xy(0, side), xy(0, 0), 0.0));
    return placed(outline.norm(false), offset);
}

COrxVertexArray roundedTopRectangle(COrxVector3d const& offset, Dims const& dims) {
    if (!hasDims(dims, 3)) {
        return COrxVertexArray();
    }
    double const d0 = dim(dims, 0), d1 = dim(dims, 1), d2 = dim(dims, 2);
    double const r = d1 - d2;
    COrxPoint3dArray corners;
    corners.append(xy(0, 0)).append(xy(d0, 0)).append(xy(d0, d2));
    if (r > 0) {
        corners.append(xy(d0 - r, d1)).append(xy(r, d1));
    }
    corners.append(xy(0, d2));
    COrxVertexArray outline = polygon(corners);
    if (r > 0) {
        double const bulge = std::tan(kQuarterCircleBulgeAngle);
        outline[2].set(outline[2].startPoint(), outline[2].endPoint(), bulge);
        outline[4].set(outline[4].startPoint(), outline[4].endPoint(), bulge);
    }
    return placed(outline.norm(false), offset);
}

COrxVertexArray pointedArch(COrxVector3d const& offset, Dims const& dims) {
    double const d0 = dim(dims, 0), crown = dim(dims, 1), side = dim(dims, 2);
    if (!hasDims(dims, 3) || !(d0 > 0)) {
        return COrxVertexArray();
    }
    double const rise = hasDims(dims, 4) ? dim(dims, 3) : kPointedArchNoRise;
    COrxPoint3d const rightTop = xy(d0, side), top = xy(d0 / 2, crown), leftTop = xy(0, side);
    double rightBulge, leftBulge;
    if (rise > 0) {
        rightBulge = leftBulge = rise / (rightTop.distanceTo(top) / 2);
    } else {
        rightBulge = pointedArchBulge(rightTop, top, crown - side, d0 / 2);
        leftBulge = pointedArchBulge(top, leftTop, crown - side, d0 / 2);
    }
    if (!std::isfinite(rightBulge) || !std::isfinite(leftBulge)) {
        return COrxVertexArray();
    }
    COrxVertexArray outline;
    outline.append(segment(xy(0, 0), xy(d0, 0), 0.0))
        .append(segment(xy(d0, 0), rightTop, 0.0))
        .append(segment(rightTop, top, rightBulge))
        .append(segment(top, leftTop, leftBulge))
        .append(segment(leftTop, xy(0, 0), 0.0));
    return placed(outline, offset);
}

// Callers pass a positive chord and rise; anything else (a zero rise would divide by zero,
// a negative one gives a negative radius and so major arcs running the wrong way) is
// refused. An arc longer than a half circle is written as two arcs meeting at the crown:
// with a positive radius g_arcrad_bulg yields the minor arc of a chord only.
COrxVertexArray circularSegment(COrxVector3d const& offset, Dims const& dims) {
    double const chord = dim(dims, 0), rise = dim(dims, 1);
    if (!hasDims(dims, 2) || !(chord > 0 && rise > 0)) {
        return COrxVertexArray();
    }
    double const radius = (chord * chord / 4 + rise * rise) / (2 * rise);
    COrxPoint3d const right = xy(chord, 0), crown = xy(chord / 2, rise), left = xy(0, 0);
    COrxVertexArray outline;
    outline.append(segment(left, right, 0.0));
    if (rise > chord / 2) {
        outline.append(segment(right, crown, g_arcrad_bulg(right, crown, radius)))
            .append(segment(crown, left, g_arcrad_bulg(crown, left, radius)));
    } else {
        outline.append(segment(right, left, g_arcrad_bulg(right, left, radius)));
    }
    return placed(outline, offset);
}

}  // namespace internal
}  // namespace ORX
