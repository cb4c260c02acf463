// Regions: planar areas bounded by one outer loop and any number of holes.
//
// A region is a COrxArrayTempl<COrxVertexArray> whose entry 0 is the outer loop and whose
// entries 1 and up are holes, all closed and all running the same way round. A list of
// regions is a COrxArrayTempl of regions. The operations take their regions by value, so
// cutting and reversing happen on copies, and return the results in the same convention.
//
//     COrxArrayTempl<COrxVertexArray> plate, bore;
//     plate.append(outline);                     // entry 0: the outer loop
//     bore.append(circle);
//     COrxArrayTempl<COrxArrayTempl<COrxVertexArray>> out;
//     ORX::g_region_diff(plate, bore, out);       // one region: the plate with a hole
//     int where = ORX::g_vll_pt_inside(out[0], COrxPoint3d(1, 1, 0));   // 1, 0 or -1
#ifndef ORX_REGIONS_REGION_H
#define ORX_REGIONS_REGION_H

#include "orx/foundation/array_templ.h"
#include "orx/foundation/platform.h"
#include "orx/polyline/vertex_array.h"
#include "orx/polyline/vertex_array_ex.h"

namespace ORX {

// The normal against which regions are oriented (setOrient, g_vll_regions_prepare):
// (0, 0, 1) at start-up. Process-wide and unsynchronised, meant to be set once.
ORX_API COrxVector3d const& refNormal();
ORX_API void setRefNormal(COrxVector3d const& normal);

// Where p lies in the region: 1 inside the area, 0 on the boundary (the outer loop or a
// hole), -1 outside (also inside a hole, and for an empty region).
ORX_API int g_vll_pt_inside(COrxArrayTempl<COrxVertexArray> const& region, COrxPoint3d const& p);

// Union, intersection and difference (a minus b) of two regions. False, with out untouched,
// when either region is empty or holds a NaN or infinite value. Disjoint regions: the union
// gives both, a then b (true); the intersection gives nothing (false, out untouched); the
// difference puts a into entry 0 of out and returns false, meaning nothing was subtracted
// (reglDiff relies on it). Otherwise out becomes the resulting regions and the result is
// true. The union and the intersection trust the caller to give both regions the same
// orientation; the difference orients both against refNormal() itself.
//
// The regions are cut where their loops meet and every piece is kept or dropped as in
// g_vl_bool: a stretch of boundary the two share survives once when its copies run the same
// way (the first region's copy) and disappears when they run opposite ways, in all three
// operations alike (the difference compares them after turning b round); every other piece
// goes by the side of the other region its midpoint lies on, decided exactly. No tolerance
// band classifies a piece as "on" the other boundary: near-coincident and shallowly
// crossing outlines, which drawings bring every day, would lose pieces to it and leave the
// results open. The kept pieces are chained, and the loops that close are grouped by their
// sense: a loop running as the outer loops is an outer loop, one running the other way a
// hole of the smallest outer loop around it (rather than by counting containing loops,
// which a hole touching its outer loop confuses). Results are always closed loops.
ORX_API bool g_region_union(COrxArrayTempl<COrxVertexArray> a, COrxArrayTempl<COrxVertexArray> b,
                            COrxArrayTempl<COrxArrayTempl<COrxVertexArray>>& out);
ORX_API bool g_region_sect(COrxArrayTempl<COrxVertexArray> a, COrxArrayTempl<COrxVertexArray> b,
                           COrxArrayTempl<COrxArrayTempl<COrxVertexArray>>& out);
ORX_API bool g_region_diff(COrxArrayTempl<COrxVertexArray> a, COrxArrayTempl<COrxVertexArray> b,
                           COrxArrayTempl<COrxArrayTempl<COrxVertexArray>>& out);

// The first region of `from` minus every region of `sub`, in turn; the further regions of
// `from` take no part, deliberately. Entry 0 of out is set to the first region of `from`
// (other entries out already holds are processed too). False when `from` is empty or
// nothing remains.
ORX_API bool reglDiff(COrxArrayTempl<COrxArrayTempl<COrxVertexArray>> const& from,
                      COrxArrayTempl<COrxArrayTempl<COrxVertexArray>> const& sub,
                      COrxArrayTempl<COrxArrayTempl<COrxVertexArray>>& out);

// Splits a chained polyline into its loops: a new loop begins wherever a segment does not
// start where the one before ended. Each loop is normalised (norm(false)).
ORX_API COrxArrayTempl<COrxVertexArray> g_vl_vll(COrxVertexArray const& vl);

// Groups loops into regions by nesting depth (how many other loops strictly contain the
// midpoint of a loop's first segment): loops of even depth are outer loops, each starting a
// region (by depth, then by index); a loop of odd depth is a hole of the innermost outer
// loop that contains it, and is dropped when none does. Holes keep their index order.
// A loop is asked only about points inside its box: the point tests that are skipped would
// have answered false, so the regions are those of asking every loop, but rand() (drawn when
// a ray passes through a segment end) is called less often, and a caller that seeds it for
// repeatable runs finds it in another state afterwards.
ORX_API COrxArrayTempl<COrxArrayTempl<COrxVertexArray>> g_vll_region(
    COrxArrayTempl<COrxVertexArray> const& loops);

// The extended forms run the same operations on the plain polylines; their results carry
// default attributes (attribute 0, empty text), as g_vl_bool's extended form does.
ORX_API int g_vll_pt_inside(COrxArrayTempl<COrxVertexArrayEx> const& region, COrxPoint3d const& p);
ORX_API bool g_region_union(COrxArrayTempl<COrxVertexArrayEx> a,
                            COrxArrayTempl<COrxVertexArrayEx> b,
                            COrxArrayTempl<COrxArrayTempl<COrxVertexArrayEx>>& out);
ORX_API bool g_region_sect(COrxArrayTempl<COrxVertexArrayEx> a, COrxArrayTempl<COrxVertexArrayEx> b,
                           COrxArrayTempl<COrxArrayTempl<COrxVertexArrayEx>>& out);
ORX_API bool g_region_diff(COrxArrayTempl<COrxVertexArrayEx> a, COrxArrayTempl<COrxVertexArrayEx> b,
                           COrxArrayTempl<COrxArrayTempl<COrxVertexArrayEx>>& out);
// Region a minus every region of `subs` in turn (reglDiff with a as the only region to cut):
// out is replaced by what remains; false when nothing does.
ORX_API bool g_region_diff(COrxArrayTempl<COrxVertexArrayEx> a,
                           COrxArrayTempl<COrxArrayTempl<COrxVertexArrayEx>> subs,
                           COrxArrayTempl<COrxArrayTempl<COrxVertexArrayEx>>& out);
ORX_API COrxArrayTempl<COrxVertexArrayEx> g_vl_vll(COrxVertexArrayEx const& vl);

}  // namespace ORX

#endif  // ORX_REGIONS_REGION_H
