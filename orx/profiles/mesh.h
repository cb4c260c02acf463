// COrxMesh: faces over one shared list of points, the form in which bodies and surfaces are
// handed on for display and export.
//
// Each face is a closed polygon stored as indexes into the shared points. addFace looks
// every corner up in the shared list (point tolerance) and adds only the points not yet
// there, so faces that meet share their points. The rules of addFace:
// - every corner must be finite;
// - a corner equal to the one before it is dropped, as is a last corner equal to the first
//   (the closing corner of a closed list or polyline);
// - at least three corners must remain;
// - the indexes are shorts: a face whose new points would take the list past 32767 points
//   is refused;
// - a polyline adds its corner points (each segment's start, and the last end of an open
//   polyline): arcs are taken as their chords.
// A refused face changes nothing and addFace returns false.
//
//     COrxMesh box;
//     box.addFace(bottom);                   // 4 points
//     box.addFace(side);                     // shares 2 of them: 6 points
//     COrxArrayTempl<COrxArrayTempl<short>> faces;
//     COrxPoint3dArray points;
//     box.getData(faces, points);            // faces[1] holds indexes into points
#ifndef ORX_PROFILES_MESH_H
#define ORX_PROFILES_MESH_H

#include "orx/foundation/array_templ.h"
#include "orx/foundation/obj.h"
#include "orx/geom/point_array.h"
#include "orx/polyline/vertex_array.h"

namespace ORX {
// The largest number of shared points a mesh holds (its indexes are shorts).
constexpr int kMaxMeshPoints = 32767;
}  // namespace ORX

// The face lists (defined in mesh_instances.cpp); declared before the class, whose member
// instantiates the type.
ORX_EXTERN_TEMPLATE(COrxArrayTempl<COrxArrayTempl<short>>);

class ORX_API COrxMesh : public COrxObj {
public:
    COrxMesh();
    COrxMesh(COrxMesh const& other);
    COrxMesh& operator=(COrxMesh const& other);
    ~COrxMesh() override;

    // See the rules above.
    bool addFace(COrxPoint3dArray const& corners);
    bool addFace(COrxVertexArray const& outline);
    // Face i as a closed polyline of straight segments (a negative i counts from the end);
    // the empty polyline for an index out of range.
    COrxVertexArray operator[](int i) const;
    // Number of faces.
    int len() const;
    // Removes every face and point.
    COrxMesh& clear();
    // Copies of the faces (index lists) and of the shared points.
    void getData(COrxArrayTempl<COrxArrayTempl<short>>& faces, COrxPoint3dArray& points) const;

    // Transforms the shared points; the faces keep their indexes.
    COrxMesh& transformBy(double const (*m)[4]);
    COrxMesh getTransformedCopy(double const (*m)[4]) const;

private:
    // Index of the first shared point equal to p (point tolerance), or -1.
    int find(COrxPoint3d const& p) const;
    // Appends p to the shared points and to the order by x.
    int store(COrxPoint3d const& p);
    // Drops the shared points from index n on (a refused face's).
    void truncate(int n);
    void sortOrder();

    COrxArrayTempl<COrxArrayTempl<short>> m_faces;
    COrxPoint3dArray m_points;
    // The indexes of m_points sorted by x (ties by index), so that find looks only at the
    // points within the tolerance in x instead of at every point.
    COrxArrayTempl<int> m_byX;
};

#endif  // ORX_PROFILES_MESH_H
