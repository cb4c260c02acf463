#include "orx/geom/map_double_to_point.h"
#include "orx/foundation/shared/index_range.h"

#include <climits>
#include <cmath>

namespace ORX {

using Parameters = COrxArrayTempl<double>;

CMapDoubleToPoint::CMapDoubleToPoint() = default;

CMapDoubleToPoint::CMapDoubleToPoint(CMapDoubleToPoint const& other) = default;

CMapDoubleToPoint::~CMapDoubleToPoint() = default;

CMapDoubleToPoint& CMapDoubleToPoint::operator=(CMapDoubleToPoint const& other) {
    if (this != &other) {
        Parameters::operator=(other);
        m_points = other.m_points;
    }
    return *this;
}

unsigned long CMapDoubleToPoint::setLogicalLength(unsigned long n) {
    unsigned long const oldLength = len();
    if (n > static_cast<unsigned long>(INT_MAX)) {
        return oldLength;
    }
    int const count = static_cast<int>(n);
    if (m_points.setLogicalLength(count) != count) {
        return oldLength;
    }
    if (Parameters::setLogicalLength(n) != n) {
        m_points.setLogicalLength(static_cast<int>(oldLength));
        return oldLength;
    }
    return n;
}

bool CMapDoubleToPoint::append(double t, COrxPoint3d const& p) {
    unsigned long const at = len();
    if (setLogicalLength(at + 1) != at + 1) {
        return false;
    }
    entry()[at] = t;
    m_points[static_cast<int>(at)] = p;
    return true;
}

bool CMapDoubleToPoint::insertAt(int i, double t, COrxPoint3d const& p) {
    unsigned long const oldLength = len();
    if (i < 0 || static_cast<unsigned long>(i) > oldLength) {
        return false;
    }
    if (!append(t, p)) {
        return false;
    }
    // Rotate the new pair from the end down to i.
    double* const params = entry();
    for (unsigned long k = oldLength; k > static_cast<unsigned long>(i); --k) {
        params[k] = params[k - 1];
        m_points[static_cast<int>(k)] = m_points[static_cast<int>(k - 1)];
    }
    params[i] = t;
    m_points[i] = p;
    return true;
}

bool CMapDoubleToPoint::getAt(int i, double& t, COrxPoint3d& p) const {
    if (i < 0 || static_cast<unsigned long>(i) >= len()) {
        return false;
    }
    t = entry()[i];
    p = m_points[i];
    return true;
}

CMapDoubleToPoint& CMapDoubleToPoint::removeAll() {
    Parameters::removeAll();
    m_points.setLogicalLength(0);
    return *this;
}

CMapDoubleToPoint& CMapDoubleToPoint::removeAt(unsigned long i) {
    if (i < len()) {
        Parameters::removeAt(i);
        m_points.removeAt(static_cast<int>(i));
    }
    return *this;
}

CMapDoubleToPoint& CMapDoubleToPoint::revert() {
    Parameters::revert();
    m_points.revert();
    return *this;
}

void CMapDoubleToPoint::swap(unsigned long i, unsigned long j) {
    if (i < len() && j < len()) {
        Parameters::swap(i, j);
        COrxPoint3d const first = m_points[static_cast<int>(i)];
        m_points[static_cast<int>(i)] = m_points[static_cast<int>(j)];
        m_points[static_cast<int>(j)] = first;
    }
}

double& CMapDoubleToPoint::operator[](int i) {
    if (i >= 0 && static_cast<unsigned long>(i) >= len()) {
        unsigned long const wanted = static_cast<unsigned long>(i) + 1;
        if (setLogicalLength(wanted) != wanted) {
            static double unpaired = 0.0;
            return unpaired;
        }
    }
    return Parameters::operator[](i);
}

double const& CMapDoubleToPoint::operator[](int i) const {
    return Parameters::operator[](i);
}

COrxArrayTempl<double> CMapDoubleToPoint::getDbLst() const {
    return Parameters(*this);
}

COrxPoint3dArray CMapDoubleToPoint::getPtLst() const {
    return m_points;
}

bool CMapDoubleToPoint::sort() {
    if (isEmpty()) {
        return false;
    }
    double const* const params = entry();
    int const count = static_cast<int>(len());
    Parameters distinct;
    for (int k = 0; k < count; ++k) {
        if (!std::isnan(params[k])) {
            distinct.appendUniq(params[k]);
        }
    }
    distinct.sort();
    CMapDoubleToPoint sorted;
    for (int d : ORX::internal::indices(distinct)) {
        double const value = distinct.entry()[d];
        for (int k = 0; k < count; ++k) {
            if (params[k] == value) {
                sorted.append(params[k], m_points[k]);
            }
        }
    }
    // NaN equals no distinct value; without this its pairs would be lost.
    for (int k = 0; k < count; ++k) {
        if (std::isnan(params[k])) {
            sorted.append(params[k], m_points[k]);
        }
    }
    *this = sorted;
    return true;
}

}  // namespace ORX
