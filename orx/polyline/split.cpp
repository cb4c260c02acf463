#include "orx/polyline/split.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace ORX {
namespace {

using Pieces = COrxArrayTempl<COrxVertexArray>;

// The cuts sorted along the polyline, one of every run closer than the point tolerance,
// within the path: inside (0, length) for an open polyline; in [0, length) for a closed one,
// where the end is the start again.
std::vector<double> usableCuts(std::vector<double> cuts, double length, bool closed) {
    double const tol = COrxPoint3d::tol;
    for (double& d : cuts) {
        if (closed && std::fabs(d - length) <= tol) {
            d = 0.0;
        }
    }
    std::sort(cuts.begin(), cuts.end());
    std::vector<double> kept;
    for (double d : cuts) {
        bool const inside = closed ? d >= -tol && d < length - tol : d > tol && d < length - tol;
        if (inside && (kept.empty() || d - kept.back() > tol)) {
            kept.push_back(std::max(d, 0.0));
        }
    }
    return kept;
}

// The path cut at the sorted distances: pieces from the start to the first cut, between
// cuts, and from the last cut to the end (a cut at distance 0 leaves the first one empty).
Pieces cutPath(COrxVertexArray const& vl, std::vector<double> const& cuts) {
    Pieces pieces;
    COrxVertexArray piece;
    std::size_t next = 0;
    double travelled = 0.0;
    for (int k = 0; k < vl.len(); ++k) {
        COrxVertex const& v = vl[k];
        double const length = v.bulgLen();
        COrxVertex rest(v);
        while (next < cuts.size() && cuts[next] < travelled + length - COrxPoint3d::tol) {
            double const along = cuts[next++] - travelled;
            COrxPoint3d p;
            if (along > COrxPoint3d::tol && v.pointAtDist(p, along, true)) {
                piece.append(COrxVertex(rest).setEndPoint(p));
                rest.setStartPoint(p);
            }
            pieces.append(piece);
            piece.setLogicalLength(0);
        }
        piece.append(rest);
        travelled += length;
    }
    pieces.append(piece);
    return pieces;
}

// A loop's path pieces with the last one (through the start point) joined to the first.
Pieces closeLoop(Pieces const& path) {
    Pieces pieces;
    for (int k = 1; k + 1 < static_cast<int>(path.len()); ++k) {
        pieces.append(path[k]);
    }
    pieces.append(path[static_cast<int>(path.len()) - 1] + path[0]);
    return pieces;
}

Pieces splitAt(COrxVertexArray const& vl, std::vector<double> const& distances) {
    if (vl.isEmpty()) {
        return Pieces();
    }
    bool const closed = vl.isClosed();
    std::vector<double> const cuts = usableCuts(distances, vl.geomLength(), closed);
    if (cuts.empty()) {
        Pieces whole;
        whole.append(vl);
        return whole;
    }
    Pieces const path = cutPath(vl, cuts);
    return closed ? closeLoop(path) : path;
}

}  // namespace

COrxArrayTempl<COrxVertexArray> g_vl_split(COrxVertexArray const& vl,
                                           COrxPoint3dArray const& points) {
    std::vector<double> distances;
    for (int k = 0; k < points.len(); ++k) {
        double d = 0.0;
        if (points[k].isValid() && vl.distAtPoint(d, points[k])) {
            distances.push_back(d);
        }
    }
    return splitAt(vl, distances);
}

COrxArrayTempl<COrxVertexArray> g_vl_split_dist(COrxVertexArray const& vl,
                                                COrxArrayTempl<double> const& distances) {
    std::vector<double> finite;
    for (int k = 0; k < static_cast<int>(distances.len()); ++k) {
        if (std::isfinite(distances[k])) {
            finite.push_back(distances[k]);
        }
    }
    return splitAt(vl, finite);
}

}  // namespace ORX
