// The system's code pages: text between the OEM code page (of the console and of files from
// the DOS era) and the ANSI code page (of Windows programs), and the code pages of countries.
//
//     char* ansi = nullptr;
//     ORX::dosToWin(ansi, oemText);          // release with delete[]
//     int german = ORX::codePage(L"DE", false);   // 1252
//
// Windows uses its system code pages (CP_OEMCP and CP_ACP). Linux has none and uses those of a
// Western Windows: OEM 850 and ANSI 1252 (see COrxString::fromMultiByte).
#ifndef ORX_FOUNDATION_CODE_PAGES_H
#define ORX_FOUNDATION_CODE_PAGES_H

#include "orx/foundation/platform.h"

namespace ORX {

// OEM text to ANSI text, stored in out as a new NUL-terminated text (release it with
// delete[]) and returned. Both texts follow the library's convention for narrow text: the
// text is read as COrxString::fromMultiByte reads it and written as COrxString::toMultiByte
// writes it, so a character the target code page lacks (a box-drawing character of the OEM
// code page, a typographic quote of the ANSI one) travels as the text \U+hhhh and comes back
// when the text is converted back: winToDos(dosToWin(x)) gives x again (unless x itself holds
// a backslash followed by "U+" and four hex digits, which is read as such an escape). A null
// text, or a code page the system cannot convert, gives null (out too).
ORX_API char* dosToWin(char*& out, char const* text);
// ANSI text to OEM text; as dosToWin.
ORX_API char* winToDos(char*& out, char const* text);

// One country of the table: its ISO 3166 two-letter code, its English name, and the code
// pages Windows uses for its main language.
struct CountryEntry {
    wchar_t const* isoCode;
    wchar_t const* name;
    int ansiCodePage;
    int oemCodePage;
};

// The country table, ordered by ISO code, and in count the number of its entries. The table
// is constant and lives as long as the library.
ORX_API CountryEntry const* orxDlCountrys(unsigned long& count);

// The ANSI code page (oem false) or the OEM code page (oem true) of a country given by its
// ISO code or its English name (either ignoring ASCII case): 1252 for "DE" and "germany",
// 1250 for "PL". A null country gives the system's own code page (on Linux 1252 and 850);
// -1 for a country the table does not have.
ORX_API int codePage(wchar_t const* country, bool oem);

}  // namespace ORX

#endif  // ORX_FOUNDATION_CODE_PAGES_H
