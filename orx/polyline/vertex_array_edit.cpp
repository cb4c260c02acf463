// COrxVertexArray: building, joining and transforming.
#include <cmath>

#include "orx/geom/matrix.h"
#include "orx/plane_geometry/bulge_segment.h"
#include "orx/polyline/vertex_array.h"

COrxVertexArray& COrxVertexArray::append(COrxVertex const& v) {
    if (isMember(v)) {
        COrxVertex const copy(v);  // the storage may move under v
        return append(copy);
    }
    int const index = len();
    if (index < capacity()) {
        COrxArray::setLogicalLength(index + 1);  // the slot is overwritten: no reset first
        m_vertices[index] = v;
    } else if (setLogicalLength(index + 1) == index + 1) {
        m_vertices[index] = v;
    }
    return *this;
}

COrxVertexArray COrxVertexArray::append(COrxVertex const& v) const {
    COrxVertexArray copy(*this);
    return copy.append(v);
}

COrxVertexArray& COrxVertexArray::append(COrxPoint3d const& p, double bulge) {
    COrxPoint3d const start = isEmpty() ? COrxPoint3d::kOrigin : m_vertices[len() - 1].endPoint();
    return append(COrxVertex(start, p, bulge));
}

COrxVertexArray& COrxVertexArray::insertAt(unsigned int i, COrxVertex const& v) {
    if (isMember(v)) {
        COrxVertex const copy(v);
        return insertAt(i, copy);
    }
    int const index = len();
    if (i >= static_cast<unsigned int>(index)) {
        return append(v);
    }
    if (setLogicalLength(index + 1) == index + 1) {
        shiftUp(static_cast<int>(i));
        m_vertices[i] = v;
    }
    return *this;
}

COrxVertexArray& COrxVertexArray::remove(unsigned int i, bool bridge) {
    int const n = len();
    if (i >= static_cast<unsigned int>(n)) {
        return *this;
    }
    COrxVertex& next = m_vertices[(i + 1) % static_cast<unsigned int>(n)];
    if (bridge && m_vertices[i].endPoint() == next.startPoint()) {
        next.set(m_vertices[i].startPoint(), next.endPoint(), next.bulge());
    }
    shiftDown(static_cast<int>(i));
    setLogicalLength(n - 1);
    return *this;
}

COrxVertexArray& COrxVertexArray::breakVertex(int i, COrxPoint3d const& p) {
    int const index = foldIndex(i);
    if (index < 0 || index >= len()) {
        return *this;
    }
    COrxVertex const& v = m_vertices[index];
    COrxPoint3d cut;
    double first = 0.0, second = 0.0;
    if (!ORX::g_bulg_cut(v.startPoint(), v.endPoint(), v.bulge(), p, cut, first, second)) {
        return *this;
    }
    insertAt(static_cast<unsigned int>(index), m_vertices[index]);
    COrxVertex& head = m_vertices[index];
    COrxVertex& tail = m_vertices[index + 1];
    head.set(head.startPoint(), cut, first);
    tail.set(cut, tail.endPoint(), second);
    return *this;
}

COrxVertexArray& COrxVertexArray::bulg(double b) {
    for (int k = 0; k < len(); ++k) {
        m_vertices[k].set(m_vertices[k].startPoint(), m_vertices[k].endPoint(), b);
    }
    return *this;
}

COrxVertexArray& COrxVertexArray::fromPoints(COrxPoint3dArray const& pts, bool close) {
    if (close && pts.isClosed()) {
        close = false;  // the list already comes back to its first point
    }
    int const n = pts.len();
    int const count = close ? n : (n > 0 ? n - 1 : 0);
    setLogicalLength(count);
    for (int k = 0; k < len(); ++k) {
        m_vertices[k].set(pts[k], pts[(k + 1) % n], 0.0);
        m_vertices[k].setTag(0);
    }
    return *this;
}

COrxVertexArray& COrxVertexArray::close(bool closeIt) {
    COrxVertexArray rebuilt;
    rebuilt.m_normal = m_normal;
    for (int k = 0; k < len(); ++k) {
        if (k > 0 && m_vertices[k].startPoint() != m_vertices[k - 1].endPoint()) {
            rebuilt.append(
                COrxVertex(m_vertices[k - 1].endPoint(), m_vertices[k].startPoint(), 0.0));
        }
        rebuilt.append(m_vertices[k]);
    }
    if (closeIt && !rebuilt.isEmpty() && !rebuilt.isClosed()) {
        rebuilt.append(COrxVertex(rebuilt[-1].endPoint(), rebuilt[0].startPoint(), 0.0));
    }
    return *this = rebuilt;
}

bool COrxVertexArray::join(COrxVertexArray const& other, bool allowReverse) {
    if (isClosed() || other.isEmpty() || (other.isClosed() && !isEmpty())) {
        return false;
    }
    if (isEmpty()) {
        *this = other;
        return true;
    }
    COrxPoint3d const& firstStart = m_vertices[0].startPoint();
    COrxPoint3d const& lastEnd = m_vertices[len() - 1].endPoint();
    if (other[0].startPoint() == lastEnd) {
        *this += other;
    } else if (other[-1].endPoint() == firstStart) {
        *this = other + *this;
    } else if (!allowReverse) {
        return false;
    } else if (other[-1].endPoint() == lastEnd) {
        *this += other.reverse();
    } else if (other[0].startPoint() == firstStart) {
        *this = other.reverse() + *this;
    } else {
        return false;
    }
    return true;
}

bool COrxVertexArray::join(COrxVertex const& v, bool allowReverse) {
    if (isClosed()) {
        return false;
    }
    if (isEmpty() || v.startPoint() == m_vertices[len() - 1].endPoint()) {
        append(v);
    } else if (v.endPoint() == m_vertices[0].startPoint()) {
        insertAt(0, v);
    } else if (!allowReverse) {
        return false;
    } else if (v.endPoint() == m_vertices[len() - 1].endPoint()) {
        append(v.reverse());
    } else if (v.startPoint() == m_vertices[0].startPoint()) {
        insertAt(0, v.reverse());
    } else {
        return false;
    }
    return true;
}

COrxVertexArray& COrxVertexArray::revert() {
    for (int k = 0; k < len() / 2; ++k) {
        COrxVertex const first = m_vertices[k];
        m_vertices[k] = m_vertices[len() - 1 - k];
        m_vertices[len() - 1 - k] = first;
    }
    for (int k = 0; k < len(); ++k) {
        m_vertices[k].revert();
    }
    return *this;
}

COrxVertexArray COrxVertexArray::reverse() const {
    COrxVertexArray copy(*this);
    return copy.revert();
}

COrxVertexArray& COrxVertexArray::move(COrxVector3d const& v) {
    for (int k = 0; k < len(); ++k) {
        m_vertices[k].move(v);
    }
    return *this;
}

COrxVertexArray& COrxVertexArray::mirror(double angle, COrxPoint3d const& p) {
    for (int k = 0; k < len(); ++k) {
        m_vertices[k].mirror(angle, p);
    }
    return *this;
}

COrxVertexArray& COrxVertexArray::rotate(double angle, COrxPoint3d const& centre) {
    if (angle == 0.0) {
        return *this;
    }
    COrxMatrix3d rotation;
    rotation.setToRotation(angle, COrxVector3d::kZAxis, centre);
    return transformBy(rotation);
}

COrxVertexArray& COrxVertexArray::transformBy(double const (*m)[4]) {
    for (int k = 0; k < len(); ++k) {
        m_vertices[k].transformBy(m);
    }
    m_normal *= m;
    m_normal.normalize();
    return *this;
}

COrxVertexArray COrxVertexArray::getTransformedCopy(double const (*m)[4]) const {
    COrxVertexArray copy(*this);
    return copy.transformBy(m);
}

bool COrxVertexArray::setNormal(COrxVector3d const& n) {
    COrxVector3d const unit = n.normal();
    if (unit == COrxVector3d::kNull) {
        return false;
    }
    m_normal = unit;
    return true;
}
