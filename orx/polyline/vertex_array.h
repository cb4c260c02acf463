// COrxVertexArray: the polyline, an ordered sequence of straight and arc segments in the XY
// plane with a normal vector.
//
// Nothing about closure is stored: the polyline is continuous when every segment ends where
// the next one starts (point tolerance), and closed when it has at least two segments, is
// continuous, and ends where it starts. Indexes are signed: a negative index counts from
// the end.
//
//     COrxVertexArray square;
//     COrxPoint3dArray corners;
//     corners.append(COrxPoint3d(0, 0, 0)).append(COrxPoint3d(2, 0, 0))
//            .append(COrxPoint3d(2, 2, 0)).append(COrxPoint3d(0, 2, 0));
//     square.fromPoints(corners, true);           // four straight segments, closed
//     square[1].set(square[1].startPoint(), square[1].endPoint(), 0.4);  // bulge one side
//     double length = square.geomLength();
#ifndef ORX_POLYLINE_VERTEX_ARRAY_H
#define ORX_POLYLINE_VERTEX_ARRAY_H

#include "orx/foundation/array.h"
#include "orx/foundation/array_templ.h"
#include "orx/geom/point_array.h"
#include "orx/geom/vector.h"
#include "orx/polyline/vertex.h"

class ORX_API COrxVertexArray : public COrxArray {
public:
    // Operation of the boolean combination of two closed polylines.
    enum boolOper {
        boolUnion = 0,  // the area covered by either operand
        boolDiff = 1,   // the first operand minus the second
        boolSect = 2,   // the area covered by both
    };

    // Empty, normal (0, 0, 1).
    COrxVertexArray();
    explicit COrxVertexArray(COrxVertex const& v);
    COrxVertexArray(COrxVertexArray const& other);
    COrxVertexArray& operator=(COrxVertexArray const& other);
    ~COrxVertexArray() override;

    // Same length and every segment equal (COrxVertex::operator==); the normal is ignored.
    bool operator==(COrxVertexArray const& other) const;
    bool operator!=(COrxVertexArray const& other) const { return !(*this == other); }
    COrxVertexArray operator+(COrxVertexArray const& other) const;
    COrxVertexArray& operator+=(COrxVertexArray const& other);

    // Grows the storage when n exceeds the capacity; segments that come into use are
    // default segments (both points at the origin, bulge 0).
    int setLogicalLength(int n) override;

    // A negative i counts from the end ((i + length) mod length; 0 for a single segment).
    // The writable form grows the polyline to i + 1 segments when i is at or past the end,
    // and returns a shared default segment for a negative index on an empty polyline; the
    // read-only form returns a shared default segment for any index past the end.
    COrxVertex& operator[](int i);
    COrxVertex const& operator[](int i) const;
    // The segments as one block, len() of them (null when empty): for passes over all
    // segments that need no index rules. Valid until the length or the capacity changes.
    COrxVertex const* data() const { return m_vertices; }
    COrxVertex* data() { return m_vertices; }

    // --- Building and editing ---
    COrxVertexArray& append(COrxVertex const& v);
    COrxVertexArray append(COrxVertex const& v) const;
    // The segment from the last end point to p. On an empty polyline it starts at the origin,
    // deliberately: the first point is not remembered separately.
    COrxVertexArray& append(COrxPoint3d const& p, double bulge);
    // Inserts before index i; an index at or past the end appends.
    COrxVertexArray& insertAt(unsigned int i, COrxVertex const& v);
    // Removes segment i (nothing when i is past the end). With bridge, when segment i ended
    // where the next (cyclically) began, that next segment is first made to start where
    // segment i started, so the chain stays connected.
    COrxVertexArray& remove(unsigned int i, bool bridge);
    // Splits segment i at the foot of p on it into two segments that lie on its own line or
    // circle and together make it up (the pieces keep the segment's tag). Nothing happens
    // when the foot lies outside the segment or within COrxPoint3d::tol of one of its ends:
    // a cut there would leave a piece of no length, lengthen the segment, or send an arc the
    // long way round its circle, and the boolean operations cut at points found with that
    // tolerance.
    COrxVertexArray& breakVertex(int i, COrxPoint3d const& p);
    // Sets every segment's bulge to b.
    COrxVertexArray& bulg(double b);
    // Straight segments through the points; with close, one more segment back to the first
    // point, unless the list already ends on its first point.
    COrxVertexArray& fromPoints(COrxPoint3dArray const& pts, bool close);
    // Fills every gap between consecutive segments with a straight segment; with closeIt
    // also the gap from the last end back to the first start.
    COrxVertexArray& close(bool closeIt);
    // Appends or prepends other where one of its ends meets one of this polyline's ends,
    // trying in order: other after this, other before this, and with allowReverse the
    // reversed other after, then before. False when this is closed, other is empty, other is
    // closed while this is not empty, or no rule fits; an empty polyline becomes other.
    bool join(COrxVertexArray const& other, bool allowReverse);
    // The same rules for one segment.
    bool join(COrxVertex const& v, bool allowReverse);
    // Normalises: drops zero-length segments, merges consecutive segments of one line or one
    // circle (across the seam unless keepStart), and snaps every joint to exact equality. A
    // run merges only while every vertex it drops stays within COrxPoint3d::tol of the merged
    // segment (a run of arcs: of the arc turning through their angles together), so that
    // merging never drifts from the polyline; a run that goes back on itself therefore stays.
    COrxVertexArray& norm(bool keepStart);
    // Parallel offset by d, positive to the right of the direction of travel.
    COrxVertexArray& offset(double d, bool bridgeGaps);
    // Parallel offset with a distance per segment; a list shorter than the polyline repeats
    // its last distance for the remaining segments. Segments that collapse or turn over are
    // removed and their neighbours trimmed to each other; with bridgeGaps, a gap that no
    // trimming can close is bridged with a straight segment. A polyline with a NaN or
    // infinite value, or whose offset overflows, becomes empty; a distance that is not
    // finite moves nothing (as for a segment).
    COrxVertexArray& offset(COrxArrayTempl<double> const& distances, bool bridgeGaps);
    // Reverses the order and each segment.
    COrxVertexArray& revert();
    COrxVertexArray reverse() const;
    COrxVertexArray& move(COrxVector3d const& v);
    COrxVertexArray& mirror(double angle, COrxPoint3d const& p);
    COrxVertexArray& rotate(double angle, COrxPoint3d const& centre);
    // Transforms every segment (bulges change sign under a mirroring matrix) and the normal.
    COrxVertexArray& transformBy(double const (*m)[4]);
    COrxVertexArray getTransformedCopy(double const (*m)[4]) const;
    // False, with the normal kept, for a zero or non-finite vector; otherwise stores it
    // normalised.
    bool setNormal(COrxVector3d const& n);
    COrxVector3d normal() const { return m_normal; }

    // --- Queries ---
    bool isClosed() const;
    bool isContinuous() const;
    // Number of joints between consecutive segments whose points differ.
    int numOpens() const;
    int indexOf(COrxVertex const& v) const;
    bool isPoint(COrxPoint3d const& p) const;
    double geomLength() const;
    // Distance along the polyline from its start to p; false when p is not on it.
    bool distAtPoint(double& d, COrxPoint3d const& p) const;
    // The point at distance d along the polyline; false beyond either end.
    bool pointAtDist(COrxPoint3d& p, double d) const;
    // The segment nearest to p (ties keep the earlier one). On an empty polyline the shared
    // default segment.
    COrxVertex const& vxNear(COrxPoint3d const& p) const;
    // Axis-aligned bounding box, tight around arcs; false (outputs untouched) when empty.
    bool extents(COrxPoint3d& min, COrxPoint3d& max) const;
    // The corner points (a closed polyline does not repeat its first); with tessellate, each
    // arc also contributes the inner points of its cut into g_vx_split_n(tol) + 1 pieces.
    COrxPoint3dArray pts(bool tessellate, double tol) const;
    // Every segment of this against every segment of other (COrxVertex::intersectWith with
    // the same flags), each point once; false at once when other is this polyline.
    bool intersectWith(COrxPoint3dArray& pts, COrxVertexArray const& other,
                       unsigned int flags) const;
    COrxPoint3dArray intersectWith(COrxVertexArray const& other, unsigned int flags) const;
    // The same with the chords of the segments.
    bool intersectWithBulg0(COrxPoint3dArray& pts, COrxVertexArray const& other) const;
    COrxPoint3dArray intersectWithBulg0(COrxVertexArray const& other) const;

protected:
    // Applies the base's length bookkeeping and moves the segments into a larger block when
    // the base reports a new capacity.
    int setLength(int n) override;
    // v lies in this polyline's storage at an index from 0 to the length, inclusive.
    bool isMember(COrxVertex const& v) const;

private:
    bool reallocate(int newCapacity, int used);
    void resetSlots(int from, int to);
    // Bitwise shifts by one slot within the current length: the segment at the last index
    // travels down to `from` / the segment at `from` travels up to the last index.
    void shiftUp(int from);
    void shiftDown(int from);
    // Maps a negative index into range; -1 for a negative index on an empty polyline.
    int foldIndex(int i) const;
    // offset's joint repairs: trim consecutive segments to their meeting points (and the
    // closing joint when the polyline was closed); then close what gaps remain.
    void trimJoints(bool closed);
    void closeGaps(bool closed, bool bridgeGaps);
    // Keeps the segments (and their directions) for which keep(segment, direction) holds;
    // true when some were removed.
    template <class Keep>
    bool keepSegments(COrxArrayTempl<COrxVector3d>& directions, Keep keep);
    static COrxVertex& sharedDefault();
    static COrxVertex const& sharedConstDefault();

    COrxVector3d m_normal;
    COrxVertex* m_vertices;
};

ORX_EXTERN_TEMPLATE(COrxArrayTempl<COrxVertexArray>);
ORX_EXTERN_TEMPLATE(COrxArrayTempl<COrxArrayTempl<COrxVertexArray>>);

#endif  // ORX_POLYLINE_VERTEX_ARRAY_H
