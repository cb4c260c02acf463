#include "orx/polyline/vertex_array_ex.h"

#include "orx/foundation/shared/index_range.h"
#include "orx/polyline/internal/orient_list.h"
#include "orx/polyline/polyline_functions.h"

COrxVertexArrayEx::COrxVertexArrayEx() : m_attribute(0), m_text(L"") {}

COrxVertexArrayEx::COrxVertexArrayEx(COrxVertexArrayEx const& other)
    : COrxVertexArray(other), m_attribute(other.m_attribute), m_text(other.m_text) {}

COrxVertexArrayEx::COrxVertexArrayEx(COrxVertexArray const& vl)
    : COrxVertexArray(vl), m_attribute(0), m_text(L"") {}

COrxVertexArrayEx::~COrxVertexArrayEx() = default;

COrxVertexArrayEx& COrxVertexArrayEx::operator=(COrxVertexArrayEx const& other) {
    COrxVertexArray::operator=(other);
    m_attribute = other.m_attribute;
    m_text = other.m_text;
    return *this;
}

COrxVertexArrayEx& COrxVertexArrayEx::operator=(COrxVertexArray const& vl) {
    COrxVertexArray::operator=(vl);
    return *this;
}

COrxVertexArrayEx COrxVertexArrayEx::operator+(COrxVertexArray const& vl) const {
    COrxVertexArrayEx sum(*this);
    sum += vl;
    return sum;
}

COrxVertexArrayEx COrxVertexArrayEx::reverse() const {
    COrxVertexArrayEx copy(*this);
    copy.revert();
    return copy;
}

void COrxVertexArrayEx::clear() {
    m_attribute = 0;
    m_text = L"";
    COrxVertexArray::clear();
}

COrxVertexArrayEx& COrxVertexArrayEx::setAttribute(int attribute) {
    m_attribute = attribute;
    return *this;
}

COrxVertexArrayEx& COrxVertexArrayEx::setText(wchar_t const* text) {
    m_text = text;
    return *this;
}

COrxVertexArrayEx orx_g_xvl(COrxVertexArray const& vl, int attribute, wchar_t const* text,
                            COrxVector3d const& normal) {
    COrxVertexArrayEx extended(vl);
    extended.setAttribute(attribute).setText(text);
    extended.setNormal(normal);
    return extended;
}

COrxArrayTempl<COrxVertexArrayEx> orx_g_xvll(COrxArrayTempl<COrxVertexArray> const& list,
                                             int attribute, wchar_t const* text,
                                             COrxVector3d const& normal) {
    COrxArrayTempl<COrxVertexArrayEx> extended;
    for (int k : ORX::internal::indices(list)) {
        extended.append(orx_g_xvl(list[k], attribute, text, normal));
    }
    return extended;
}

namespace ORX {

COrxArrayTempl<COrxVertexArrayEx>& setOrient(COrxArrayTempl<COrxVertexArrayEx>& list,
                                             COrxVector3d const& normal) {
    return internal::orientClosed(list, normal);
}

}  // namespace ORX
