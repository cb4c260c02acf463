// Filling text templates: markers that stand for values, and replacing several texts at
// once.
//
// A marker is written <NAME>: a '<', a name of ASCII letters, digits and '_' that begins with
// a letter or '_', and a '>'. Anything else with angle brackets ("a < b", "<>", "<1st>",
// "<two words>") is plain text. Names compare case-sensitively.
//
//     COrxString text(L"Part <POS>: <PROFILE>, <POS> again");
//     ORX::getMarkerList(text);                       // {"POS", "PROFILE"}
//     ORX::txtListReplace(text, from, to);            // from {"<POS>"}, to {"12"}
//     ORX::removeMarker(text, L"PROFILE");            // "Part 12: , 12 again"
#ifndef ORX_FOUNDATION_TEXT_MARKERS_H
#define ORX_FOUNDATION_TEXT_MARKERS_H

#include "orx/foundation/array_templ.h"
#include "orx/foundation/platform.h"
#include "orx/foundation/string.h"

namespace ORX {

// The names of the markers in text, without the brackets, each once, in the order of their
// first appearance. Empty for a null text.
ORX_API COrxArrayTempl<COrxString> getMarkerList(wchar_t const* text);

// Removes every marker from text; returns how many were removed.
ORX_API unsigned long clearMarker(COrxString& text);

// Removes every marker named name from text; returns how many were removed (0 for a null or
// empty name, or one that is not a marker name).
ORX_API unsigned long removeMarker(COrxString& text, wchar_t const* name);

// Replaces each occurrence of from[i] by to[i], in one pass from left to right: at each
// position the longest entry of from that occurs there wins, and replaced text is never
// looked at again (so {"a" → "b", "b" → "a"} swaps). Empty entries of from are ignored.
// Returns the number of replacements; -1, with text untouched, when the lists differ in
// length. A null text stays null.
ORX_API long txtListReplace(COrxString& text, COrxArrayTempl<COrxString> const& from,
                            COrxArrayTempl<COrxString> const& to);

}  // namespace ORX

#endif  // ORX_FOUNDATION_TEXT_MARKERS_H
