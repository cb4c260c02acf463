#include "orx/geom/point_array.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstddef>
#include <functional>
#include <vector>

#include "orx/foundation/shared/plain_block.h"
#include "orx/geom/functions.h"
#include "orx/geom/matrix.h"
#include "orx/geom/plane.h"

COrxPoint3dArray::COrxPoint3dArray() : m_points(nullptr) {}

// The counts come with the block, from the assignment.
// NOLINTNEXTLINE(bugprone-copy-constructor-init)
COrxPoint3dArray::COrxPoint3dArray(COrxPoint3dArray const& other) : COrxArray(), m_points(nullptr) {
    *this = other;
}

COrxPoint3dArray::~COrxPoint3dArray() {
    ORX::internal::deletePlainBlock(m_points);
}

COrxPoint3dArray& COrxPoint3dArray::operator=(COrxPoint3dArray const& other) {
    if (this == &other || setLogicalLength(other.len()) != other.len()) {
        return *this;
    }
    std::copy(other.m_points, other.m_points + other.len(), m_points);
    return *this;
}

int COrxPoint3dArray::setLength(int n) {
    int const oldLength = len();
    // The block grows before the counts change, so that a failed allocation leaves this
    // array exactly as it was.
    if (n > capacity() &&
        !ORX::internal::growPlainBlock(m_points, static_cast<std::size_t>(oldLength),
                                       static_cast<std::size_t>(nextCapacity(capacity(), n)))) {
        return oldLength;
    }
    COrxArray::setLength(n);
    resetSlots(oldLength, len());
    return len();
}

int COrxPoint3dArray::setLogicalLength(int n) {
    int const oldLength = len();
    if (n > capacity() && setLength(n) != n) {
        return oldLength;
    }
    COrxArray::setLogicalLength(n);
    resetSlots(oldLength, len());
    return len();
}

void COrxPoint3dArray::resetSlots(int from, int to) {
    // Slots past the length may still hold points from before a removal.
    for (int k = from; k < to; ++k) {
        m_points[k].set(0.0, 0.0, 0.0);
    }
}

int COrxPoint3dArray::removeAt(int i) {
    if (i < 0 || i >= len()) {
        return len();
    }
    std::copy(m_points + i + 1, m_points + len(), m_points + i);
    return setLogicalLength(len() - 1);
}

COrxPoint3d& COrxPoint3dArray::mutableDummy() {
    static COrxPoint3d dummy;
    return dummy;
}

COrxPoint3d const& COrxPoint3dArray::constDummy() {
    static COrxPoint3d const dummy;
    return dummy;
}

namespace {
// The index a negative i stands for; it stays negative when i is below -length.
int fromEnd(int i, int length) {
    if (i >= 0 || length == 0) {
        return i;
    }
    return length == 1 ? 0 : (i + length) % length;
}
}  // namespace

COrxPoint3d& COrxPoint3dArray::operator[](int i) {
    int const index = fromEnd(i, len());
    if (index < 0) {
        return mutableDummy();
    }
    if (index >= len()) {
        if (index == INT_MAX || setLength(index + 1) != index + 1) {
            return mutableDummy();
        }
    }
    return m_points[index];
}

COrxPoint3d const& COrxPoint3dArray::operator[](int i) const {
    int const index = fromEnd(i, len());
    if (index < 0 || index >= len()) {
        return constDummy();
    }
    return m_points[index];
}

bool COrxPoint3dArray::isMember(COrxPoint3d const& p) const {
    std::less_equal<COrxPoint3d const*> notAfter;
    return m_points != nullptr && notAfter(m_points, &p) && notAfter(&p, m_points + len());
}

COrxPoint3dArray& COrxPoint3dArray::append(COrxPoint3d const& p) {
    if (isMember(p)) {
        COrxPoint3d const copy(p);  // NOLINT(performance-unnecessary-copy-initialization)
        return append(copy);
    }
    int const at = len();
    if (at < INT_MAX && setLogicalLength(at + 1) == at + 1) {
        m_points[at] = p;
    }
    return *this;
}

COrxPoint3dArray COrxPoint3dArray::append(COrxPoint3d const& p) const {
    COrxPoint3dArray copy(*this);
    copy.append(p);
    return copy;
}

COrxPoint3dArray& COrxPoint3dArray::appendUniq(COrxPoint3d const& p) {
    if (indexOf(p) < 0) {
        append(p);
    }
    return *this;
}

COrxPoint3dArray& COrxPoint3dArray::insertAt(unsigned int i, COrxPoint3d const& p) {
    if (isMember(p)) {
        COrxPoint3d const copy(p);  // NOLINT(performance-unnecessary-copy-initialization)
        return insertAt(i, copy);
    }
    if (i >= static_cast<unsigned int>(INT_MAX)) {
        return *this;
    }
    int const at = static_cast<int>(i);
    int const oldLength = len();
    int const newLength = std::max(oldLength, at) + 1;
    if (setLogicalLength(newLength) != newLength) {
        return *this;
    }
    if (at < oldLength) {
        std::copy_backward(m_points + at, m_points + oldLength, m_points + oldLength + 1);
    }
    m_points[at] = p;
    return *this;
}

COrxPoint3dArray COrxPoint3dArray::insertAt(unsigned int i, COrxPoint3d const& p) const {
    COrxPoint3dArray copy(*this);
    copy.insertAt(i, p);
    return copy;
}

COrxPoint3dArray COrxPoint3dArray::operator+(COrxPoint3dArray const& other) const {
    COrxPoint3dArray sum(*this);
    sum += other;
    return sum;
}

COrxPoint3dArray& COrxPoint3dArray::operator+=(COrxPoint3dArray const& other) {
    // Counted before growing: other may be this array.
    int const oldLength = len();
    int const count = other.len();
    if (count > INT_MAX - oldLength || setLogicalLength(oldLength + count) != oldLength + count) {
        return *this;
    }
    std::copy(other.m_points, other.m_points + count, m_points + oldLength);
    return *this;
}

int COrxPoint3dArray::indexOf(COrxPoint3d const& p) const {
    for (int k = 0; k < len(); ++k) {
        if (m_points[k] == p) {
            return k;
        }
    }
    return -1;
}

bool COrxPoint3dArray::indexOf(COrxPoint3d const& p, unsigned long& i) const {
    int const index = indexOf(p);
    if (index < 0) {
        return false;
    }
    i = static_cast<unsigned long>(index);
    return true;
}

bool COrxPoint3dArray::isClosed() const {
    return len() >= 3 && m_points[0] == m_points[len() - 1];
}

bool COrxPoint3dArray::extents(COrxPoint3d& min, COrxPoint3d& max) const {
    if (isEmpty()) {
        return false;
    }
    COrxPoint3d low = m_points[0];
    COrxPoint3d high = m_points[0];
    for (int k = 1; k < len(); ++k) {
        low = ORX::p_min(low, m_points[k]);
        high = ORX::p_max(high, m_points[k]);
    }
    min = low;
    max = high;
    return true;
}

bool COrxPoint3dArray::operator==(COrxPoint3dArray const& other) const {
    if (this == &other) {
        return true;
    }
    if (len() != other.len()) {
        return false;
    }
    for (int k = 0; k < len(); ++k) {
        if (m_points[k] != other.m_points[k]) {
            return false;
        }
    }
    return true;
}

bool COrxPoint3dArray::operator!=(COrxPoint3dArray const& other) const {
    return !(*this == other);
}

COrxPoint3dArray& COrxPoint3dArray::move(COrxVector3d const& v) {
    for (int k = 0; k < len(); ++k) {
        m_points[k] += v;
    }
    return *this;
}

COrxPoint3dArray& COrxPoint3dArray::transformBy(double const (*m)[4]) {
    for (int k = 0; k < len(); ++k) {
        m_points[k] *= m;
    }
    return *this;
}

COrxPoint3dArray& COrxPoint3dArray::rotate(double angle, COrxPoint3d const& centre) {
    if (angle == 0.0) {
        return *this;
    }
    COrxMatrix3d rotation;
    return transformBy(rotation.setToRotation(angle, COrxVector3d::kZAxis, centre));
}

COrxPoint3dArray& COrxPoint3dArray::mirror(double angle, COrxPoint3d const& p) {
    COrxMatrix3d mirroring;
    COrxPlane const plane(p, COrxVector3d(-std::sin(angle), std::cos(angle), 0.0));
    return transformBy(mirroring.setToMirroring(plane));
}

COrxPoint3dArray COrxPoint3dArray::getTransformedCopy(double const (*m)[4]) const {
    COrxPoint3dArray copy(*this);
    return copy.transformBy(m);
}

COrxPoint3dArray COrxPoint3dArray::reverse() const {
    COrxPoint3dArray copy(*this);
    return copy.revert();
}

COrxPoint3dArray& COrxPoint3dArray::revert() {
    std::reverse(m_points, m_points + len());
    return *this;
}

COrxPoint3dArray& COrxPoint3dArray::sort(COrxVector3d const& dir) {
    if (len() < 2) {
        return *this;
    }
    std::vector<double> keys(static_cast<std::size_t>(len()));
    std::vector<int> order(keys.size());
    for (int k = 0; k < len(); ++k) {
        keys[k] = ORX::round(ORX::sprod(m_points[k], dir), COrxPoint3d::tol);
        order[k] = k;
    }
    // Ordering by (rounded projection, former index) is a stable sort by the rounded
    // projection. NaN has no place in that order; it is put last so the order stays strict.
    auto before = [&keys](int a, int b) {
        bool const aNan = std::isnan(keys[a]);
        bool const bNan = std::isnan(keys[b]);
        return aNan != bNan ? bNan : (!aNan && keys[a] < keys[b]);
    };
    std::stable_sort(order.begin(), order.end(), before);
    std::vector<COrxPoint3d> sorted;
    sorted.reserve(order.size());
    for (int k : order) {
        sorted.push_back(m_points[k]);
    }
    std::copy(sorted.begin(), sorted.end(), m_points);
    return *this;
}

COrxPoint3dArray& COrxPoint3dArray::sort(double angle) {
    return sort(ORX::polar(angle, 1.0));
}
