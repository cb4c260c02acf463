// Foundation: the object base, the typed and untyped growable arrays, and the platform
// definitions every other subsystem builds on.
//
//     COrxArrayTempl<double> lengths;
//     lengths.append(2.5).append(1.0).sort();     // {1.0, 2.5}
//     double first = lengths[0];
//     double last = lengths[-1];                  // negative indexes count from the end
#ifndef ORX_FOUNDATION_FOUNDATION_H
#define ORX_FOUNDATION_FOUNDATION_H

#include "orx/foundation/array.h"
#include "orx/foundation/array_templ.h"
#include "orx/foundation/obj.h"
#include "orx/foundation/platform.h"
// The wide string, its text functions, the number text of drawings, and the maps.
#include "orx/foundation/map.h"
#include "orx/foundation/number_text.h"
#include "orx/foundation/ptr_map.h"
#include "orx/foundation/string.h"
#include "orx/foundation/text.h"
// The further text helpers.
#include "orx/foundation/base64.h"
#include "orx/foundation/code_pages.h"
#include "orx/foundation/hex_text.h"
#include "orx/foundation/text_increment.h"
#include "orx/foundation/text_markers.h"
#include "orx/foundation/text_markup.h"
#include "orx/foundation/uuid.h"

#endif  // ORX_FOUNDATION_FOUNDATION_H
