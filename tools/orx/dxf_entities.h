// The geometry of single DXF entities, in the XY plane of the drawing.
//
// LWPOLYLINE, POLYLINE (2D, with its VERTEX entities), CIRCLE and ARC give their points in
// the entity's own coordinate system, set by its extrusion direction (210/220/230, +Z when
// absent). Along +Z that is the drawing's own; along -Z it is the drawing seen from below,
// which the reader mirrors back (x and bulges change sign). Any other direction tilts the
// entity out of the XY plane and is refused: the tool would otherwise read it wrongly. A
// LINE gives its ends in drawing coordinates and must keep one height.
#ifndef ORX_TOOL_DXF_ENTITIES_H
#define ORX_TOOL_DXF_ENTITIES_H

#include <optional>
#include <string>
#include <vector>

#include "drawing.h"
#include "dxf_groups.h"

namespace orxtool {

// One entity: its type (group 0), the line it starts on and its other groups in order.
struct DxfEntity {
    std::string type;
    std::size_t line = 0;
    std::vector<DxfGroup> groups;
};

// A LINE or an ARC, to be chained with the others where their ends meet.
struct LooseSegment {
    COrxVertex segment;
    std::string layer;
};

// Each throws ToolError "file:line: ..." for malformed, non-finite or missing values and for
// extrusion directions other than +Z and -Z.
VertexList readLwPolyline(DxfEntity const& entity, DxfGroupReader const& reader);
// The old-style 2D polyline: its header entity and its VERTEX entities. Nothing for a 3D
// polyline or a mesh, which the tool does not read.
std::optional<VertexList> readOldPolyline(DxfEntity const& header,
                                          std::vector<DxfEntity> const& vertices,
                                          DxfGroupReader const& reader);
// A circle as a closed loop of two half arcs, starting at angle 0.
VertexList readCircle(DxfEntity const& entity, DxfGroupReader const& reader);
// Nothing for a line of zero length.
std::optional<LooseSegment> readLine(DxfEntity const& entity, DxfGroupReader const& reader);
// An arc turns counter-clockwise from its start angle (50) to its end angle (51), in degrees
// (in its own coordinates). Nothing for equal angles: that arc has no length.
std::optional<LooseSegment> readArc(DxfEntity const& entity, DxfGroupReader const& reader);

}  // namespace orxtool

#endif  // ORX_TOOL_DXF_ENTITIES_H
