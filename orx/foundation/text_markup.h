// Plain text made ready for other formats: HTML text and RTF documents.
//
//     ORX::htmlSpecialChars(L"a < b & c");   // "a &lt; b &amp; c"
//     ORX::txtToRTF(L"Line 1\nLine 2");      // "{\rtf1\ansi\deff0 Line 1\par\nLine 2}"
#ifndef ORX_FOUNDATION_TEXT_MARKUP_H
#define ORX_FOUNDATION_TEXT_MARKUP_H

#include "orx/foundation/platform.h"
#include "orx/foundation/string.h"

namespace ORX {

// The text with the HTML markup characters as character references, as
// COrxString::escapeHtmlSpecial writes them (& &amp;, < &lt;, > &gt;, " &quot;, ' &#39;);
// everything else as it is. Null gives the null string.
ORX_API COrxString htmlSpecialChars(wchar_t const* text);

// A complete RTF document that shows the text: "{\rtf1\ansi\deff0 " + body + "}". In the
// body '\', '{' and '}' are escaped with a backslash; a line break (CR LF, LF or CR) becomes
// "\par" and a line feed, a tab "\tab "; other control characters are dropped; characters
// outside ASCII are written as "\uN?" with N the signed 16-bit number of each UTF-16 code
// unit (a character beyond U+FFFF as its surrogate pair), and "?" is what a reader without
// Unicode shows. Null gives the null string.
ORX_API COrxString txtToRTF(wchar_t const* text);

}  // namespace ORX

#endif  // ORX_FOUNDATION_TEXT_MARKUP_H
