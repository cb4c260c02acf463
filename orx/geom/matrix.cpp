#include "orx/geom/matrix.h"

#include <cmath>

#include "orx/geom/plane.h"

COrxMatrix3d const COrxMatrix3d::kIdentity;

namespace {

// Column operations of the inversion, applied alike to the working copy and the result.
void scaleColumn(double (&m)[4][4], int col, double divisor) {
    for (int r = 0; r < 4; ++r) {
        m[r][col] /= divisor;
    }
}

void subtractColumn(double (&m)[4][4], int target, int source, double factor) {
    for (int r = 0; r < 4; ++r) {
        m[r][target] -= factor * m[r][source];
    }
}

// The first column from `from` on, other than `skip`, whose entry in row `row` is usable as
// a pivot; -1 when there is none.
int usableColumn(double const (&m)[4][4], int row, int from, int skip) {
    for (int j = from; j < 4; ++j) {
        if (j != skip && std::fabs(m[row][j]) > ORX::kMatrixPivotTol) {
            return j;
        }
    }
    return -1;
}

}  // namespace

COrxMatrix3d::COrxMatrix3d() {
    setToIdentity();
}

COrxMatrix3d::COrxMatrix3d(COrxMatrix3d const& other) : COrxObj(other) {
    *this = other;
}

COrxMatrix3d::COrxMatrix3d(double const (*block)[4]) {
    *this = block;
}

COrxMatrix3d::~COrxMatrix3d() = default;

COrxMatrix3d& COrxMatrix3d::operator=(COrxMatrix3d const& other) {
    if (this == &other) {
        return *this;
    }
    return *this = other.m;
}

COrxMatrix3d& COrxMatrix3d::operator=(double const (*block)[4]) {
    for (int r = 0; r < 4; ++r) {
        for (int c = 0; c < 4; ++c) {
            m[r][c] = block[r][c];
        }
    }
    return *this;
}

COrxMatrix3d::operator Block&() {
    return m;
}

COrxMatrix3d::operator ConstBlock&() const {
    return m;
}

bool COrxMatrix3d::operator==(COrxMatrix3d const& other) const {
    for (int r = 0; r < 4; ++r) {
        for (int c = 0; c < 4; ++c) {
            if (!(std::fabs(m[r][c] - other.m[r][c]) <= ORX::kMatrixEntryTol)) {
                return false;
            }
        }
    }
    return true;
}

bool COrxMatrix3d::operator!=(COrxMatrix3d const& other) const {
    return !(*this == other);
}

COrxMatrix3d COrxMatrix3d::operator*(COrxMatrix3d const& b) const {
    COrxMatrix3d product;
    for (int r = 0; r < 4; ++r) {
        for (int c = 0; c < 4; ++c) {
            product.m[r][c] = m[r][0] * b.m[0][c] + m[r][1] * b.m[1][c] + m[r][2] * b.m[2][c] +
                              m[r][3] * b.m[3][c];
        }
    }
    return product;
}

COrxMatrix3d& COrxMatrix3d::operator*=(COrxMatrix3d const& b) {
    return *this = *this * b;
}

COrxMatrix3d& COrxMatrix3d::setToIdentity() {
    for (int r = 0; r < 4; ++r) {
        for (int c = 0; c < 4; ++c) {
            m[r][c] = r == c ? 1.0 : 0.0;
        }
    }
    return *this;
}

COrxMatrix3d& COrxMatrix3d::setToTranslation(COrxVector3d const& t) {
    setToIdentity();
    return setTranslation(t);
}

COrxMatrix3d& COrxMatrix3d::setTranslation(COrxVector3d const& t) {
    m[0][3] = t.x;
    m[1][3] = t.y;
    m[2][3] = t.z;
    return *this;
}

COrxVector3d COrxMatrix3d::translation() const {
    return COrxVector3d(m[0][3], m[1][3], m[2][3]);
}

COrxVector3d COrxMatrix3d::axis(unsigned int i) const {
    unsigned int const c = i > 2 ? 2 : i;
    return COrxVector3d(m[0][c], m[1][c], m[2][c]);
}

double COrxMatrix3d::scale() const {
    return axis(0).abs();
}

COrxMatrix3d& COrxMatrix3d::setCoordSystem(COrxPoint3d const& origin, COrxVector3d const& xAxis,
                                           COrxVector3d const& yAxis, COrxVector3d const& zAxis) {
    setToIdentity();
    COrxVector3d const* const columns[3] = {&xAxis, &yAxis, &zAxis};
    for (int c = 0; c < 3; ++c) {
        m[0][c] = columns[c]->x;
        m[1][c] = columns[c]->y;
        m[2][c] = columns[c]->z;
    }
    return setTranslation(origin - COrxPoint3d::kOrigin);
}

void COrxMatrix3d::getCoordSystem(COrxPoint3d& origin, COrxVector3d& xAxis, COrxVector3d& yAxis,
                                  COrxVector3d& zAxis) const {
    xAxis = axis(0);
    yAxis = axis(1);
    zAxis = axis(2);
    origin = COrxPoint3d::kOrigin + translation();
}

COrxMatrix3d& COrxMatrix3d::setToWorldToPlane(COrxVector3d const& n) {
    setToIdentity();
    if (n == COrxVector3d::kNull) {
        return *this;
    }
    COrxVector3d const zAxis = n.normal();
    if (zAxis == COrxVector3d::kNull) {
        return *this;  // not finite: normalize gave the zero vector
    }
    bool const nearWorldZ = std::fabs(zAxis.x) < ORX::kArbitraryAxisLimit &&
                            std::fabs(zAxis.y) < ORX::kArbitraryAxisLimit;
    COrxVector3d const xAxis =
        ((nearWorldZ ? COrxVector3d::kYAxis : COrxVector3d::kZAxis) * zAxis).normalize();
    COrxVector3d const yAxis = (zAxis * xAxis).normalize();
    COrxVector3d const* const rows[3] = {&xAxis, &yAxis, &zAxis};
    for (int r = 0; r < 3; ++r) {
        m[r][0] = rows[r]->x;
        m[r][1] = rows[r]->y;
        m[r][2] = rows[r]->z;
    }
    return *this;
}

COrxMatrix3d& COrxMatrix3d::setToPlaneToWorld(COrxVector3d const& n) {
    return setToWorldToPlane(n).invert();
}

COrxMatrix3d& COrxMatrix3d::setToRotation(double angle, COrxVector3d const& axis,
                                          COrxPoint3d const& p) {
    COrxMatrix3d toAxis, shift;
    toAxis.setToWorldToPlane(axis);
    toAxis *= shift.setToTranslation(COrxPoint3d::kOrigin - p);
    COrxMatrix3d turn;
    turn.m[0][0] = std::cos(angle);
    turn.m[0][1] = -std::sin(angle);
    turn.m[1][0] = std::sin(angle);
    turn.m[1][1] = std::cos(angle);
    return *this = toAxis.inverse() * turn * toAxis;
}

COrxMatrix3d& COrxMatrix3d::setToScaling(double s, COrxPoint3d const& p) {
    COrxMatrix3d there, scaling, back;
    there.setToTranslation(p - COrxPoint3d::kOrigin);
    back.setToTranslation(COrxPoint3d::kOrigin - p);
    for (int d = 0; d < 3; ++d) {
        scaling.m[d][d] = s;
    }
    return *this = there * scaling * back;
}

COrxMatrix3d& COrxMatrix3d::setToMirroring(COrxPlane const& plane) {
    COrxMatrix3d toPlane, shift;
    toPlane.setToWorldToPlane(plane.normal());
    toPlane *= shift.setToTranslation(COrxPoint3d::kOrigin - plane.position());
    COrxMatrix3d flip;
    flip.m[2][2] = -1.0;
    return *this = toPlane.inverse() * flip * toPlane;
}

COrxMatrix3d& COrxMatrix3d::setToSRM(COrxPoint3d const& s, double angle, COrxVector3d const& t) {
    COrxMatrix3d move, turn, scaling;
    move.setToTranslation(t);
    turn.m[0][0] = std::cos(angle);
    turn.m[0][1] = -std::sin(angle);
    turn.m[1][0] = std::sin(angle);
    turn.m[1][1] = std::cos(angle);
    scaling.m[0][0] = s.x;
    scaling.m[1][1] = s.y;
    scaling.m[2][2] = s.z;
    return *this = move * turn * scaling;
}

COrxMatrix3d& COrxMatrix3d::invert() {
    COrxMatrix3d work(*this);
    COrxMatrix3d result;
    // Before elimination, a diagonal entry that is (nearly) zero is exchanged with the first
    // usable column of its row, searched from column 0.
    for (int i = 0; i < 4; ++i) {
        if (std::fabs(work.m[i][i]) <= ORX::kMatrixPivotTol) {
            int const j = usableColumn(work.m, i, 0, i);
            if (j < 0) {
                return setToIdentity();
            }
            work.swapCol(i, j);
            result.swapCol(i, j);
        }
    }
    // Forward pass: unit diagonal, row i cleared to the right of it. Factors below the
    // threshold are skipped, as the results callers compare against were made that way.
    for (int i = 0; i < 4; ++i) {
        if (std::fabs(work.m[i][i]) <= ORX::kMatrixPivotTol) {
            // The exchanges above cannot foresee a pivot that elimination cancels; a later
            // column (not yet eliminated) takes its place, or the matrix is singular.
            int const j = usableColumn(work.m, i, i + 1, i);
            if (j < 0) {
                return setToIdentity();
            }
            work.swapCol(i, j);
            result.swapCol(i, j);
        }
        double const pivot = work.m[i][i];
        scaleColumn(work.m, i, pivot);
        scaleColumn(result.m, i, pivot);
        for (int j = i + 1; j < 4; ++j) {
            double const f = work.m[i][j];
            if (std::fabs(f) >= ORX::kMatrixPivotTol) {
                subtractColumn(work.m, j, i, f);
                subtractColumn(result.m, j, i, f);
            }
        }
    }
    // Backward pass: from the last column to the first, row i cleared to the left of the
    // diagonal, with the same skip rule.
    for (int i = 3; i >= 0; --i) {
        for (int j = 0; j < i; ++j) {
            double const f = work.m[i][j];
            if (std::fabs(f) >= ORX::kMatrixPivotTol) {
                subtractColumn(work.m, j, i, f);
                subtractColumn(result.m, j, i, f);
            }
        }
    }
    return *this = result;
}

COrxMatrix3d COrxMatrix3d::inverse() const {
    COrxMatrix3d copy(*this);
    return copy.invert();
}

void COrxMatrix3d::swapRow(int a, int b) {
    for (int c = 0; c < 4; ++c) {
        double const keep = m[a][c];
        m[a][c] = m[b][c];
        m[b][c] = keep;
    }
}

void COrxMatrix3d::swapCol(int a, int b) {
    for (int r = 0; r < 4; ++r) {
        double const keep = m[r][a];
        m[r][a] = m[r][b];
        m[r][b] = keep;
    }
}
