// Outline generators of the rectangles with cut corners: chamfered (codes 24, 224, 324) and
// rounded (codes 27, 227, 327), on all four corners, on the two upper ones, or on the upper
// right one only.
#include <cmath>

#include "orx/polyline/vertex.h"
#include "orx/profiles/internal/outline_generators.h"

namespace ORX {
namespace internal {
namespace {

enum class Cut { sharp, chamfer, round };

// The corners in traversal order: bottom right, top right, top left, bottom left.
enum Corner { kBottomRight, kTopRight, kTopLeft, kBottomLeft, kCornerCount };

// The cut of each corner, and how many cut corners share a horizontal / a vertical side (the
// legs of those corners must fit on that side together).
struct CutPattern {
    Cut cuts[kCornerCount];
    int perHorizontalSide;
    int perVerticalSide;
};

CutPattern pattern(Cut cut, int cutCorners) {
    if (cutCorners == 4) {
        return {{cut, cut, cut, cut}, 2, 2};
    }
    if (cutCorners == 2) {
        return {{Cut::sharp, cut, cut, Cut::sharp}, 2, 1};
    }
    return {{Cut::sharp, cut, Cut::sharp, Cut::sharp}, 1, 1};
}

// The rectangle w x h with each corner of the pattern cut back by legX along the horizontal
// side and legY along the vertical one. The outline starts where the bottom-left corner's cut
// ends and takes each corner in turn: the straight side up to the cut, then the cut itself
// (a chamfer, a quarter circle, or nothing at a sharp corner). norm drops what is left of
// length zero.
COrxVertexArray cutRectangle(double w, double h, double legX, double legY, CutPattern const& p) {
    COrxPoint3d const corners[kCornerCount] = {xy(w, 0), xy(w, h), xy(0, h), xy(0, 0)};
    COrxPoint3d const entries[kCornerCount] = {xy(w - legX, 0), xy(w, h - legY), xy(legX, h),
                                               xy(0, legY)};
    COrxPoint3d const exits[kCornerCount] = {xy(w, legY), xy(w - legX, h), xy(0, h - legY),
                                             xy(legX, 0)};
    auto entry = [&](int k) { return p.cuts[k] == Cut::sharp ? corners[k] : entries[k]; };
    auto exit = [&](int k) { return p.cuts[k] == Cut::sharp ? corners[k] : exits[k]; };
    double const roundBulge = std::tan(kQuarterCircleBulgeAngle);
    COrxVertexArray outline;
    COrxPoint3d at = exit(kBottomLeft);
    for (int k = 0; k < kCornerCount; ++k) {
        double const bulge = p.cuts[k] == Cut::round ? roundBulge : 0.0;
        outline.append(COrxVertex(at, entry(k), 0.0)).append(COrxVertex(entry(k), exit(k), bulge));
        at = exit(k);
    }
    return outline.norm(false);
}

// The cut legs fit: none negative, and those sharing a side no longer than it together.
bool legsFit(double w, double h, double legX, double legY, CutPattern const& p) {
    return w > 0 && h > 0 && legX >= 0 && legY >= 0 && p.perHorizontalSide * legX <= w &&
           p.perVerticalSide * legY <= h;
}

// d0 x d1 with chamfer legs d2 along X and d3 along Y (d3 = d2 when 0 or absent).
COrxVertexArray chamfered(COrxVector3d const& offset, Dims const& dims, int cutCorners) {
    double const w = dim(dims, 0), h = dim(dims, 1), legX = dim(dims, 2);
    double const legY = dim(dims, 3) == 0 ? legX : dim(dims, 3);
    CutPattern const p = pattern(Cut::chamfer, cutCorners);
    if (!hasDims(dims, 3) || !legsFit(w, h, legX, legY, p)) {
        return COrxVertexArray();
    }
    return placed(cutRectangle(w, h, legX, legY, p), offset);
}

// d0 x d1 with corner radius d2.
COrxVertexArray rounded(COrxVector3d const& offset, Dims const& dims, int cutCorners) {
    double const w = dim(dims, 0), h = dim(dims, 1), r = dim(dims, 2);
    CutPattern const p = pattern(Cut::round, cutCorners);
    if (!hasDims(dims, 3) || !legsFit(w, h, r, r, p)) {
        return COrxVertexArray();
    }
    return placed(cutRectangle(w, h, r, r, p), offset);
}

}  // namespace

COrxVertexArray chamferedRectangle(COrxVector3d const& offset, Dims const& dims) {
    return chamfered(offset, dims, 4);
}

COrxVertexArray chamferedTop(COrxVector3d const& offset, Dims const& dims) {
    return chamfered(offset, dims, 2);
}

COrxVertexArray chamferedCorner(COrxVector3d const& offset, Dims const& dims) {
    return chamfered(offset, dims, 1);
}

COrxVertexArray roundedRectangle(COrxVector3d const& offset, Dims const& dims) {
    return rounded(offset, dims, 4);
}

COrxVertexArray roundedTop(COrxVector3d const& offset, Dims const& dims) {
    return rounded(offset, dims, 2);
}

COrxVertexArray roundedCorner(COrxVector3d const& offset, Dims const& dims) {
    return rounded(offset, dims, 1);
}

}  // namespace internal
}  // namespace ORX
