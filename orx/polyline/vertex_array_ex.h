// COrxVertexArrayEx: a polyline with two attributes of the caller's, an integer and a text,
// which the boolean and region functions carry through their Ex forms.
#ifndef ORX_POLYLINE_VERTEX_ARRAY_EX_H
#define ORX_POLYLINE_VERTEX_ARRAY_EX_H

#include "orx/foundation/array_templ.h"
#include "orx/foundation/string.h"
#include "orx/polyline/vertex_array.h"

class ORX_API COrxVertexArrayEx : public COrxVertexArray {
public:
    // Attribute 0, empty text.
    COrxVertexArrayEx();
    COrxVertexArrayEx(COrxVertexArrayEx const& other);
    // The segments and normal of vl; attribute 0, empty text.
    COrxVertexArrayEx(COrxVertexArray const& vl);
    ~COrxVertexArrayEx() override;
    // Copies everything.
    COrxVertexArrayEx& operator=(COrxVertexArrayEx const& other);
    // Copies the polyline part; the attributes stay.
    COrxVertexArrayEx& operator=(COrxVertexArray const& vl);

    // The segments of vl appended; the attributes of this polyline kept.
    COrxVertexArrayEx operator+(COrxVertexArray const& vl) const;
    // A reverted copy with the same attributes.
    COrxVertexArrayEx reverse() const;
    // Attribute 0, empty text, no segments.
    void clear() override;

    int attribute() const { return m_attribute; }
    COrxVertexArrayEx& setAttribute(int attribute);
    COrxString const& text() const { return m_text; }
    COrxVertexArrayEx& setText(wchar_t const* text);

private:
    int m_attribute;
    COrxString m_text;
};

ORX_EXTERN_TEMPLATE(COrxArrayTempl<COrxVertexArrayEx>);
ORX_EXTERN_TEMPLATE(COrxArrayTempl<COrxArrayTempl<COrxVertexArrayEx>>);

// An extended copy of vl with the attribute, the text and the normal.
ORX_API COrxVertexArrayEx orx_g_xvl(COrxVertexArray const& vl, int attribute, wchar_t const* text,
                                    COrxVector3d const& normal);
// orx_g_xvl for every polyline of the list.
ORX_API COrxArrayTempl<COrxVertexArrayEx> orx_g_xvll(COrxArrayTempl<COrxVertexArray> const& list,
                                                     int attribute, wchar_t const* text,
                                                     COrxVector3d const& normal);

namespace ORX {

// setOrient for extended polylines: every closed one that does not run counter-clockwise seen
// from normal is reverted (attributes kept); open ones are left alone. Returns the list.
ORX_API COrxArrayTempl<COrxVertexArrayEx>& setOrient(COrxArrayTempl<COrxVertexArrayEx>& list,
                                                     COrxVector3d const& normal);

}  // namespace ORX

#endif  // ORX_POLYLINE_VERTEX_ARRAY_EX_H
