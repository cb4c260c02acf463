// The integrals of 1, x, y, x^2, y^2 and xy over a plane area, gathered piece by piece
// (signed triangles, circular segments, whole loops) relative to a local origin the caller
// chooses near the area, and turned into the section properties about the centroid. Shared
// by the section properties of point polygons, polylines and regions, so that one set of
// formulas serves all three.
#ifndef ORX_GEOM_SHARED_AREA_MOMENTS_H
#define ORX_GEOM_SHARED_AREA_MOMENTS_H

namespace ORX {
namespace internal {

struct AreaMoments {
    double area = 0.0;      // integral of 1
    double firstX = 0.0;    // integral of x
    double firstY = 0.0;    // integral of y
    double secondXX = 0.0;  // integral of x^2
    double secondYY = 0.0;  // integral of y^2
    double secondXY = 0.0;  // integral of x y

    // Adds the triangle (origin, p, q), signed: positive when it turns counter-clockwise.
    // Summed over the edges of a closed polygon this is Green's theorem (the shoelace sums).
    void addTriangle(double px, double py, double qx, double qy);
    // Adds factor times the moments of another piece taken about the same origin.
    void add(AreaMoments const& piece, double factor);
};

// Section properties about the axes through the centroid parallel to X and Y.
struct CentralMoments {
    double area;    // positive for either orientation
    double cx, cy;  // centroid, relative to the origin of the moments
    double ix;      // integral of y'^2
    double iy;      // integral of x'^2
    double ixy;     // integral of x'y'
};

// Moves the moments to the centroid (parallel-axis theorem). A clockwise outline gives
// every integral with the opposite sign; the properties are made those of the area itself.
// False, out untouched, when the area is not above minArea or a value is not finite.
bool toCentral(AreaMoments const& m, double minArea, CentralMoments& out);

}  // namespace internal
}  // namespace ORX

#endif  // ORX_GEOM_SHARED_AREA_MOMENTS_H
