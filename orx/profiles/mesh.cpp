// COrxMesh: faces as index lists over one de-duplicated list of points.
#include <algorithm>

#include "orx/foundation/shared/index_range.h"
#include "orx/profiles/mesh.h"

namespace {

// The corners without repeats of the corner before, nor a last corner repeating the first;
// false when a corner is not finite.
bool distinctCorners(COrxPoint3dArray const& corners, COrxPoint3dArray& distinct) {
    for (int k = 0; k < corners.len(); ++k) {
        COrxPoint3d const& p = corners[k];
        if (!p.isValid()) {
            return false;
        }
        if (distinct.isEmpty() || p != distinct[-1]) {
            distinct.append(p);
        }
    }
    if (distinct.len() > 1 && distinct[0] == distinct[-1]) {
        distinct.removeAt(distinct.len() - 1);
    }
    return true;
}

}  // namespace

COrxMesh::COrxMesh() = default;
COrxMesh::COrxMesh(COrxMesh const& other) = default;
COrxMesh& COrxMesh::operator=(COrxMesh const& other) = default;
COrxMesh::~COrxMesh() = default;

int COrxMesh::find(COrxPoint3d const& p) const {
    int const* order = m_byX.entry();
    int const* end = order + m_byX.len();
    double const tol = COrxPoint3d::tol;
    int const* it = std::lower_bound(order, end, p.x - tol,
                                     [this](int i, double x) { return m_points[i].x < x; });
    int found = -1;
    for (; it != end && m_points[*it].x <= p.x + tol; ++it) {
        if ((found < 0 || *it < found) && m_points[*it] == p) {
            found = *it;
        }
    }
    return found;
}

int COrxMesh::store(COrxPoint3d const& p) {
    int const index = m_points.len();
    m_points.append(p);
    int const* order = m_byX.entry();
    int const* at = std::upper_bound(order, order + m_byX.len(), p.x,
                                     [this](double x, int i) { return x < m_points[i].x; });
    m_byX.insertAt(static_cast<unsigned long>(at - order), index);
    return index;
}

void COrxMesh::truncate(int n) {
    m_points.setLogicalLength(n);
    COrxArrayTempl<int> kept;
    for (int k : ORX::internal::indices(m_byX)) {
        if (m_byX[k] < n) {
            kept.append(m_byX[k]);
        }
    }
    m_byX = kept;
}

void COrxMesh::sortOrder() {
    m_byX.setLogicalLength(static_cast<unsigned long>(m_points.len()));
    for (int k = 0; k < m_points.len(); ++k) {
        m_byX[k] = k;
    }
    std::sort(m_byX.entry(), m_byX.entry() + m_byX.len(), [this](int a, int b) {
        return m_points[a].x < m_points[b].x || (m_points[a].x == m_points[b].x && a < b);
    });
}

// Corners are looked up and new points stored as they come, so that a point repeated later
// in the same face is shared too; a face that overflows the index range takes its new
// points back out.
bool COrxMesh::addFace(COrxPoint3dArray const& corners) {
    COrxPoint3dArray distinct;
    if (!distinctCorners(corners, distinct) || distinct.len() < 3) {
        return false;
    }
    int const before = m_points.len();
    COrxArrayTempl<short> face;
    for (int k = 0; k < distinct.len(); ++k) {
        int index = find(distinct[k]);
        if (index < 0) {
            if (m_points.len() >= ORX::kMaxMeshPoints) {
                truncate(before);
                return false;
            }
            index = store(distinct[k]);
        }
        face.append(static_cast<short>(index));
    }
    m_faces.append(face);
    return true;
}

bool COrxMesh::addFace(COrxVertexArray const& outline) {
    return addFace(outline.pts(false, 0.0));
}

COrxVertexArray COrxMesh::operator[](int i) const {
    int const n = len();
    if (i < 0) {
        i += n;
    }
    COrxVertexArray outline;
    if (i < 0 || i >= n) {
        return outline;
    }
    COrxArrayTempl<short> const& face = m_faces[i];
    COrxPoint3dArray corners;
    for (int k : ORX::internal::indices(face)) {
        corners.append(m_points[face[k]]);
    }
    return outline.fromPoints(corners, true);
}

int COrxMesh::len() const {
    return static_cast<int>(m_faces.len());
}

COrxMesh& COrxMesh::clear() {
    m_faces.removeAll();
    m_points.setLogicalLength(0);
    m_byX.removeAll();
    return *this;
}

void COrxMesh::getData(COrxArrayTempl<COrxArrayTempl<short>>& faces,
                       COrxPoint3dArray& points) const {
    faces = m_faces;
    points = m_points;
}

COrxMesh& COrxMesh::transformBy(double const (*m)[4]) {
    m_points.transformBy(m);
    sortOrder();
    return *this;
}

COrxMesh COrxMesh::getTransformedCopy(double const (*m)[4]) const {
    COrxMesh copy(*this);
    return copy.transformBy(m);
}
