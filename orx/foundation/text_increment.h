// Counting names up, as a drawing numbers its parts, axes and sheets:
//
//     ORX::str_increment(L"Plate9");     // "Plate10"
//     ORX::str_increment(L"B-09");       // "B-10": leading zeros are kept
//     ORX::str_increment(L"Axis Z");     // "Axis AA"
//     ORX::str_increment(L"Plan 3.dwg"); // "Plan 4.dwg"
//     ORX::str_name(L"B-09");            // "B"
//
// The run of a name is the part that counts:
// - the last run of the digits 0-9 anywhere in the name, when the name has a digit; it counts
//   in decimal and keeps its width while a leading zero can take the carry ("09" → "10",
//   "099" → "100"), and grows by one digit when none can ("99" → "100");
// - otherwise a run of ASCII letters of one case at the end of the name that is the whole
//   name or follows a delimiter ("C", "Axis c"); it counts as spreadsheet columns do
//   ("Z" → "AA", "AZ" → "BA", "zz" → "aaa"). A word in one case counts too ("plate" gives
//   "platf"), while "Plate" (mixed case) and "Träger" (not ASCII) have no run.
// The delimiter is the run of spaces and ASCII punctuation right before the run ("-" in
// "B-09", " " in "Axis C"); the stem is everything before the delimiter and the tail
// everything after a digit run (".dwg").
#ifndef ORX_FOUNDATION_TEXT_INCREMENT_H
#define ORX_FOUNDATION_TEXT_INCREMENT_H

#include "orx/foundation/platform.h"
#include "orx/foundation/string.h"

namespace ORX {

// The kind of run a name has.
enum class IncrType {
    none,          // no run (or a null name): str_increment appends "1"
    digits,        // decimal digits
    upperLetters,  // A to Z
    lowerLetters,  // a to z
};

// Splits name into stem + delimiter + run + tail (see above). False for a null name and for
// one without a run, with the outputs untouched.
ORX_API bool str_incr_parse(wchar_t const* name, COrxString& stem, COrxString& delimiter,
                            COrxString& run, COrxString& tail);

// The kind of name's run; none for a null name.
ORX_API IncrType str_incr_type(wchar_t const* name);

// The delimiter before name's run ("-" of "B-09", empty for "Plate9"); empty when the name
// has no run, null for a null name.
ORX_API COrxString str_incr_delimit(wchar_t const* name);

// The stem of the name: "B" of "B-09", "Plan" of "Plan 3.dwg"; the whole name when it has no
// run; null for a null name.
ORX_API COrxString str_name(wchar_t const* name);

// The next name: the run counted up by one, stem, delimiter and tail as they were. A name
// without a run gets "1" appended ("Plate" → "Plate1", "" → "1"), so that a loop that counts
// up until a name is free always gets a new name. Null for a null name.
ORX_API COrxString str_increment(wchar_t const* name);

}  // namespace ORX

#endif  // ORX_FOUNDATION_TEXT_INCREMENT_H
