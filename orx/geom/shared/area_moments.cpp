#include "orx/geom/shared/area_moments.h"

#include <cmath>

namespace ORX {
namespace internal {

// Over the triangle (0, p, q) with c = px qy - qx py: area c / 2, first moments
// c (px + qx) / 6, second moments c (px^2 + px qx + qx^2) / 12 and
// c (2 px py + px qy + qx py + 2 qx qy) / 24.
void AreaMoments::addTriangle(double px, double py, double qx, double qy) {
    double const c = px * qy - qx * py;
    area += c / 2;
    firstX += c * (px + qx) / 6;
    firstY += c * (py + qy) / 6;
    secondXX += c * (px * px + px * qx + qx * qx) / 12;
    secondYY += c * (py * py + py * qy + qy * qy) / 12;
    secondXY += c * (2 * px * py + px * qy + qx * py + 2 * qx * qy) / 24;
}

void AreaMoments::add(AreaMoments const& piece, double factor) {
    area += factor * piece.area;
    firstX += factor * piece.firstX;
    firstY += factor * piece.firstY;
    secondXX += factor * piece.secondXX;
    secondYY += factor * piece.secondYY;
    secondXY += factor * piece.secondXY;
}

bool toCentral(AreaMoments const& m, double minArea, CentralMoments& out) {
    double const sign = m.area < 0.0 ? -1.0 : 1.0;
    double const area = sign * m.area;
    if (!(area > minArea) || !std::isfinite(area)) {
        return false;
    }
    double const cx = m.firstX / m.area;
    double const cy = m.firstY / m.area;
    CentralMoments c;
    c.area = area;
    c.cx = cx;
    c.cy = cy;
    c.ix = sign * (m.secondYY - m.area * cy * cy);
    c.iy = sign * (m.secondXX - m.area * cx * cx);
    c.ixy = sign * (m.secondXY - m.area * cx * cy);
    if (!std::isfinite(c.cx + c.cy + c.ix + c.iy + c.ixy)) {
        return false;
    }
    out = c;
    return true;
}

}  // namespace internal
}  // namespace ORX
