// Free text functions over strings and lists of strings.
//
//     COrxArrayTempl<COrxString> parts = ORX::explode(L"a,,b", L",", true);   // "a", "", "b"
//     COrxString joined = ORX::implode(parts, L",");                          // "a,,b"
//     double x = ORX::atof(L"20180315.143005");
//     ORX::parse(fields, L"HEA 200, \"Plate, 10 mm\"", L",");   // "HEA 200", "Plate, 10 mm"
#ifndef ORX_FOUNDATION_TEXT_H
#define ORX_FOUNDATION_TEXT_H

#include "orx/foundation/array_templ.h"
#include "orx/foundation/platform.h"
#include "orx/foundation/string.h"

namespace ORX {

// An empty list gives the null string; otherwise the first element, then for each further
// element the separator (unless sep is null) followed by the element.
ORX_API COrxString implode(COrxArrayTempl<COrxString> const& list, wchar_t const* sep);

// Appends the tokens of text to tokens and returns how many it appended. sep is a set of
// separator characters. With keepEmpty false, runs of separators count as one and no empty
// token is made, as C's strtok splits. With keepEmpty true, every separator ends a token,
// so empty tokens are kept ("a,,b," gives "a", "", "b", "") and an empty text is one empty
// token: implode() with a one-character separator then gives the text back. A null or
// empty sep leaves the text one token; a null text gives none.
ORX_API unsigned long strTok(COrxArrayTempl<COrxString>& tokens, wchar_t const* text,
                             wchar_t const* sep, bool keepEmpty);

// A fresh list filled by strTok with the same arguments.
ORX_API COrxArrayTempl<COrxString> explode(wchar_t const* text, wchar_t const* sep, bool keepEmpty);

// Splits a line of fields as spreadsheets write them (comma-separated values): fields end at
// any of the separator characters (a null or empty sep makes the text one field); a field
// whose first character other than space or tab is a double quote is quoted: it runs to the
// closing quote, may hold separators and line breaks, and "" in it stands for one quote; the
// spaces and tabs around a quoted field are dropped, an unquoted field is kept as written.
// The fields replace the contents of fields; an empty text is one empty field. False, with
// fields untouched, for a null text, a quote that is never closed, or text between a closing
// quote and the next separator.
ORX_API bool parse(COrxArrayTempl<COrxString>& fields, wchar_t const* text, wchar_t const* sep);

// Removes the separators ('\' and '/', on every platform) at the end of a path, except the
// one of a root ("\", "/", "C:\"), whose meaning would change without it. A null string
// stays null.
ORX_API COrxString& removeLastSlash(COrxString& path);

// The decimal number at the start of text, after white space: optional sign, digits with an
// optional point ('.' whatever the locale) and an optional exponent. What follows the number
// is ignored, as C's atof ignores it, but a text that does not start with a number (or a
// null text) gives NaN rather than 0. Beyond the range of double: an infinity.
ORX_API double atof(wchar_t const* text);

}  // namespace ORX

#endif  // ORX_FOUNDATION_TEXT_H
