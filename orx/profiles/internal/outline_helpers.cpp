// Helpers shared by the outline generators.
#include <cmath>

#include "orx/geom/matrix.h"
#include "orx/profiles/internal/outline_generators.h"

namespace ORX {
namespace internal {

double dim(Dims const& dims, int i) {
    static double const kMissing = 0.0;  // what every absent dimension reads
    if (i < 0 || static_cast<unsigned long>(i) >= dims.len()) {
        return kMissing;
    }
    return dims[i];
}

bool hasDims(Dims const& dims, int n) {
    return dims.len() >= static_cast<unsigned long>(n);
}

COrxVertexArray polygon(std::initializer_list<COrxPoint3d> corners) {
    COrxPoint3dArray points;
    for (COrxPoint3d const& p : corners) {
        points.append(p);
    }
    return polygon(points);
}

COrxVertexArray polygon(COrxPoint3dArray const& corners) {
    COrxVertexArray outline;
    outline.fromPoints(corners, true);
    return outline;
}

COrxVertexArray placed(COrxVertexArray outline, COrxVector3d const& offset) {
    COrxMatrix3d move;
    move.setToTranslation(offset);
    outline.transformBy(move);
    return outline;
}

double spanBulge(double w) {
    return std::tan(w / 4);
}

// The springing circles have radius r = d (d - a + f) / (2a), d = sqrt(a^2 + f^2), and
// centres (+-(a - r), 0); the crown circle has radius R = g_korb_3m(a, f) and centre
// (0, f - R). The classic construction draws the line through a springing centre and the
// crown centre perpendicular to the diagonal from the springing point (a, 0) to the crown
// (0, f), so that line has the direction angle phi = atan2(a, f): each springing arc spans
// phi, the crown arc the rest of the half turn. Taking phi from the diagonal keeps it exact
// when f = a, where both centres meet in the origin.
BasketArch basketArch(double a, double f) {
    double const d = std::sqrt(a * a + f * f);
    double const springRadius = d * (d - a + f) / (2 * a);
    double const phi = std::atan2(a, f);
    BasketArch arch;
    arch.rightTangent = polar(xy(a - springRadius, 0.0), phi, springRadius);
    arch.leftTangent = xy(-arch.rightTangent.x, arch.rightTangent.y);
    arch.springBulge = spanBulge(phi);
    arch.crownBulge = spanBulge(kPi - 2 * phi);
    return arch;
}

}  // namespace internal
}  // namespace ORX
