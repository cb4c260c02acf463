#include "shapes.h"

#include <cmath>

#include "orx/geom/vector.h"

namespace {

// Bulges that make the special arcs: half circles, quarter circles, nearly straight and
// nearly full ones.
double const kBulges[] = {1.0, 0.5, 0.41421356237309503, 1e-9, 1e-300, 2.0, 1e3, 0.999999};
constexpr unsigned kBulgeCount = sizeof(kBulges) / sizeof(kBulges[0]);

// Scales and places of an outline: at home, at site coordinates, shrunk towards the point
// tolerance, grown far out.
double const kScales[] = {1.0, 1.0, 1.0, 0.5, 10.0, 1e-3, 1e-5, 1e3, 1e6};
constexpr unsigned kScaleCount = sizeof(kScales) / sizeof(kScales[0]);
double const kOrigins[][2] = {{0.0, 0.0}, {0.0, 0.0},  {0.0, 0.0},
                              {1e7, 1e7}, {-3e6, 5e6}, {1e15, 0.0}};
constexpr unsigned kOriginCount = sizeof(kOrigins) / sizeof(kOrigins[0]);

COrxPoint3d moved(COrxPoint3d const& p, double scale, COrxPoint3d const& origin) {
    return COrxPoint3d(origin.x + scale * p.x, origin.y + scale * p.y, p.z);
}

void placeAndScale(FuzzInput& in, COrxVertexArray& vl) {
    double const scale = kScales[in.below(kScaleCount)];
    double const* origin = kOrigins[in.below(kOriginCount)];
    COrxPoint3d const at(origin[0], origin[1], 0.0);
    for (int i = 0; i < vl.len(); ++i) {
        COrxVertex& s = vl[i];
        s.set(moved(s.startPoint(), scale, at), moved(s.endPoint(), scale, at), s.bulge());
    }
}

COrxVertexArray circle(COrxPoint3d const& c, double r) {
    COrxPoint3d const east(c.x + r, c.y, c.z);
    COrxPoint3d const west(c.x - r, c.y, c.z);
    COrxVertexArray vl;
    vl.append(COrxVertex(east, west, 1.0)).append(COrxVertex(west, east, 1.0));
    return vl;
}

COrxVertexArray rectangle(COrxPoint3d const& a, double w, double h) {
    COrxPoint3dArray corners;
    corners.append(a)
        .append(COrxPoint3d(a.x + w, a.y, a.z))
        .append(COrxPoint3d(a.x + w, a.y + h, a.z))
        .append(COrxPoint3d(a.x, a.y + h, a.z));
    COrxVertexArray vl;
    vl.fromPoints(corners, true);
    return vl;
}

// The closed loop started at another of its segments.
COrxVertexArray rotatedStart(COrxVertexArray const& vl, int first) {
    COrxVertexArray out;
    int const n = vl.len();
    for (int i = 0; i < n; ++i) {
        out.append(vl[(first + i) % n]);
    }
    return out;
}

COrxVertexArray movedBy(COrxVertexArray vl, FuzzInput& in) {
    double const hair[] = {1e-5, 0.99e-5, 1.01e-5, 4e-5, 1e-9, 1.0};
    double const d = hair[in.below(6)];
    double const dx = in.flag() ? d : 0.0;
    double const dy = in.flag() ? d : 0.0;
    vl.move(COrxVector3d(dx, dy, 0.0));
    return vl;
}

COrxVertexArray withExtraVertex(COrxVertexArray vl, FuzzInput& in) {
    if (vl.isEmpty()) {
        return vl;
    }
    int const i = static_cast<int>(in.below(static_cast<unsigned>(vl.len())));
    COrxPoint3d const cut = in.flag() ? vl[i].mid() : decodePoint(in);
    return vl.breakVertex(i, cut);
}

}  // namespace

COrxPoint3d decodePoint(FuzzInput& in) {
    double const x = in.number();
    double const y = in.number();
    return COrxPoint3d(x, y, in.below(16) == 0 ? in.number() : 0.0);
}

double decodeBulge(FuzzInput& in) {
    std::uint8_t const kind = in.byte();
    double const sign = (kind & 1) != 0 ? -1.0 : 1.0;
    switch (kind >> 5) {
        case 0:
        case 1:
        case 2:
            return 0.0;
        case 3:
        case 4:
            return sign * kBulges[in.below(kBulgeCount)];
        case 5:
        case 6:
            return in.number() / 16.0;
        default:
            return in.raw();
    }
}

COrxVertex decodeSegment(FuzzInput& in) {
    COrxPoint3d const start = decodePoint(in);
    COrxPoint3d const end = decodePoint(in);
    return COrxVertex(start, end, decodeBulge(in));
}

COrxVertexArray decodePolyline(FuzzInput& in, bool closed, int maxSegments) {
    int const count = in.between(closed ? 2 : 1, maxSegments);
    COrxPoint3d const first = decodePoint(in);
    COrxPoint3d at = first;
    COrxVertexArray vl;
    for (int i = 0; i < count; ++i) {
        bool const last = closed && i == count - 1;
        COrxPoint3d const next = last ? first : decodePoint(in);
        vl.append(COrxVertex(at, next, decodeBulge(in)));
        at = next;
    }
    return vl;
}

COrxVertexArray decodeLoop(FuzzInput& in) {
    COrxVertexArray vl;
    switch (in.below(8)) {
        case 0: {
            COrxPoint3d const centre = decodePoint(in);
            vl = circle(centre, in.number());
            break;
        }
        case 1: {
            COrxPoint3d const corner = decodePoint(in);
            double const w = in.number();
            vl = rectangle(corner, w, in.number());
            break;
        }
        default:
            vl = decodePolyline(in, true, 10);
            break;
    }
    placeAndScale(in, vl);
    // A loop closed within the tolerance (a rectangle of no height) would open when scaled up.
    if (!vl.isEmpty()) {
        COrxVertex& last = vl[-1];
        last.set(last.startPoint(), vl[0].startPoint(), last.bulge());
    }
    return vl;
}

COrxVertexArray decodeRelatedLoop(FuzzInput& in, COrxVertexArray const& first) {
    switch (in.below(8)) {
        case 0:
            return first;
        case 1:
            return first.reverse();
        case 2:
            return movedBy(first, in);
        case 3:
            return withExtraVertex(first, in);
        case 4:
            return rotatedStart(first,
                                static_cast<int>(in.below(static_cast<unsigned>(first.len()))));
        default:
            return decodeLoop(in);
    }
}

Region decodeRegion(FuzzInput& in) {
    Region region;
    region.append(decodeLoop(in));
    int const holes = in.between(0, 3);
    for (int h = 0; h < holes; ++h) {
        region.append(decodeRelatedLoop(in, region[0]));
    }
    return region;
}
