// COrxString: the library's wide-character string value.
//
// Every name, key, path and message that crosses the interface is a COrxString or a
// wchar_t const*. wchar_t holds UTF-16 code units on Windows and UTF-32 code points on Linux.
// Its rules, which callers rely on:
// - the null string (no buffer) and the empty string are different values: equality tells
//   them apart, ordering and searching treat the null string as empty;
// - the length is cached; GetBuffer() suspends the cache while the caller writes into the
//   buffer and ReleaseBuffer() counts it again;
// - the buffer starts at 16 characters, doubles when it must grow and never shrinks;
// - text passed in may live inside the string's own buffer (s += s is fine).
//
//     COrxString name(L"Profile");
//     name += L" ";
//     name += name;                              // "Profile Profile "
//     name.trim().makeUpper();                   // "PROFILE PROFILE"
//     COrxString text;
//     text.format(L"%s: %d", L"count", 3);       // "count: 3" on both platforms
#ifndef ORX_FOUNDATION_STRING_H
#define ORX_FOUNDATION_STRING_H

#include <cstdarg>
#include <cstdint>

#include "orx/foundation/array_templ.h"
#include "orx/foundation/obj.h"

class ORX_API COrxString : public COrxObj {
public:
    // The null string.
    static COrxString const kNull;

    // The null string.
    COrxString();
    // A null pointer gives the null string.
    COrxString(wchar_t const* text);
    COrxString(COrxString const& other);
    ~COrxString() override;
    COrxString& operator=(COrxString const& other);
    // A null pointer makes the null string; text inside this string's buffer is fine.
    COrxString& operator=(wchar_t const* text);

    // Releases the buffer: capacity and length 0.
    COrxString& setNull();
    bool isNull() const;
    // 0 for the null string; counted up to the first NUL while the length is suspended.
    int len() const;

    // Suspends the cached length, makes room for n characters plus the terminator (the null
    // string gets a buffer) and returns the buffer for the caller to fill. Null only when
    // memory runs out.
    wchar_t* GetBuffer(unsigned int n);
    // Counts the text up to the first NUL (at most the capacity) and caches the length.
    void ReleaseBuffer();
    // The buffer itself; null for the null string.
    operator wchar_t const*() const;

    // Case-sensitive. The same object, or both null, or both non-null with the same
    // characters: a null and an empty string are unequal.
    bool operator==(COrxString const& other) const;
    // The same pointer, or the null string against a null pointer, or the same characters.
    bool operator==(wchar_t const* text) const;
    bool operator!=(COrxString const& other) const;
    bool operator!=(wchar_t const* text) const;
    // Character-code order in which the null string and a null pointer count as empty, so
    // ordering does not tell null from empty although equality does (deliberate).
    bool operator<(wchar_t const* text) const;
    bool operator<=(wchar_t const* text) const;
    bool operator>(wchar_t const* text) const;
    bool operator>=(wchar_t const* text) const;

    // The character at i, or 0 when i is not below the length. A negative i counts from the
    // end as ((len + i) mod 2^32) mod len in unsigned 32-bit arithmetic (the folding of
    // COrxArrayTempl), and as 0 when len is below 2.
    wchar_t operator[](int i) const;
    // Stores c at i (negative i folded as above), growing the buffer as needed. Storing past
    // the end of the text leaves the text as it is (it still ends at its terminator), except
    // at the very end, where c extends it by one; storing 0 cuts the text at i.
    COrxString& setAt(int i, wchar_t c);

    // Appending a null string, a null pointer or the character 0 changes nothing; appending
    // an empty text to the null string makes it empty. The appended text may lie in this
    // string's own buffer (including the string itself).
    COrxString& operator+=(COrxString const& other);
    COrxString& operator+=(wchar_t const* text);
    COrxString& operator+=(wchar_t c);
    COrxString operator+(COrxString const& other) const;
    COrxString operator+(wchar_t c) const;

    // Inserts before position pos; pos equal to the length appends, a pos beyond it (or a
    // null text) leaves the string unchanged.
    COrxString& insertAt(unsigned int pos, wchar_t const* text);
    COrxString& insertAt(unsigned int pos, wchar_t c);

    // Copies. left and right of at least the whole length give the whole string (a null
    // string gives the null string); mid from a start at or past the end is empty.
    COrxString left(unsigned int n) const;
    COrxString right(unsigned int n) const;
    COrxString mid(unsigned int start, unsigned int count) const;

    // Pads with c on the left or right to a total length of n; a string already n long or
    // longer, or c = 0, leaves it unchanged.
    COrxString& lfill(unsigned int n, wchar_t c);
    COrxString& rfill(unsigned int n, wchar_t c);

    // Replaces every non-overlapping occurrence of from, scanning left to right. A null or
    // empty from leaves the string unchanged; a null to counts as empty.
    COrxString& replace(wchar_t const* from, wchar_t const* to);
    // Replaces every occurrence of one character (from = 0 changes nothing; to = 0 ends the
    // text at the first occurrence).
    COrxString& replace(wchar_t from, wchar_t to);

    // Remove leading and/or trailing space, tab, line feed and carriage return (exactly
    // these four).
    COrxString& trim();
    COrxString& trimLeft();
    COrxString& trimRight();

    // Simple Unicode case mapping, character by character, independent of language rules
    // (Windows: LCMapStringW for the user's locale without linguistic casing; Linux: the
    // C.UTF-8 locale's towlower/towupper). A null string stays null.
    COrxString& makeLower();
    COrxString& makeUpper();

    // A reversed copy / reversal in place. A UTF-16 surrogate pair stays one character.
    COrxString reverse() const;
    COrxString& revert();

    // Surrounds the text with double quotes (the null string becomes "\"\"").
    COrxString& quote();
    // Removes one surrounding pair of double quotes, only when the text has at least two
    // characters and both its first and last character are double quotes.
    COrxString& unQuote();

    // Backslash escapes: the backslash as \\, tab, line feed, carriage return, bell,
    // backspace, form feed and vertical tab as \t \n \r \a \b \f \v, the other control
    // characters (U+0001 to U+001F and U+007F) as \x with exactly two lower-case hex digits.
    COrxString& escape();
    // Undoes escape(). Other backslash sequences (and a trailing backslash) are kept as
    // written; \x takes exactly two hex digits of either case.
    COrxString& unEscape();

    // The HTML markup characters as character references: & &amp;, < &lt;, > &gt;,
    // " &quot; and ' &#39;.
    COrxString& escapeHtmlSpecial();
    // escapeHtmlSpecial, plus every character outside ASCII and every character listed in
    // extra (may be null) as a decimal reference &#N; of its code point.
    COrxString& escapeHtml(wchar_t const* extra);
    // Decodes decimal (&#N;) and hexadecimal (&#xH;) references of code points up to
    // U+10FFFF and the named references amp, lt, gt, quot, apos, nbsp, copy, reg, deg, euro,
    // sect, micro, para, middot, auml, ouml, uuml, Auml, Ouml, Uuml and szlig. Anything else
    // after an ampersand is kept as written.
    COrxString& unEscapeHtml();

    // Every character outside ASCII as \U+hhhh (exactly four lower-case hex digits for each
    // UTF-16 code unit, so a character outside the Basic Multilingual Plane becomes two
    // escapes of its surrogate pair on both platforms), and every backslash that is followed
    // by "U+" as \U+005c so that a literal text resembling an escape survives the round trip.
    COrxString& escapeWideChar();
    // Turns every \U+hhhh (four hex digits, either case) into that code unit; on Linux an
    // escaped surrogate pair becomes the one character it encodes.
    COrxString& unEscapeWideChar();

    // Replaces %NAME% by the value of the environment variable NAME; an unknown or empty
    // name is left as written (with both percent signs) and scanning goes on after it, as
    // Windows does. Names compare case-insensitively on Windows; on Linux an exact match is
    // preferred, then one that differs only in case.
    COrxString& expandEnvironmentStrings();

    // printf-style formatting with Windows' wide-format conventions on both platforms: %s
    // and %c take a wide string and character, %S and %C (or %hs, %hc) narrow ones (their
    // bytes read as Latin-1), %ls/%ws/%lc wide ones; lengths h, hh, l, ll, L, I, I32, I64,
    // z, j, t; %p prints the pointer as upper-case hex digits filling its width. Numbers are
    // written as the C99 runtimes write them (two-digit exponents, "inf", "nan"), identically
    // on both platforms. An unknown conversion is copied as written, %n writes nothing. A
    // null format gives the null string, as does a result of more than 2^30 characters or
    // one there is no memory for.
    COrxString& format(wchar_t const* fmt, ...);
    COrxString& formatV(wchar_t const* fmt, va_list args);

    // Index of the first occurrence, or -1 (also for the null string, a null text and the
    // character 0). An empty text is found at 0.
    int find(wchar_t const* text) const;
    int find(wchar_t c) const;
    // Wildcard match: ? is any one character, * any run. With a non-zero delimiter the
    // pattern is a list of alternatives. Case-sensitive; false for the null string or a null
    // pattern.
    bool match(wchar_t const* pattern, wchar_t delimiter) const;

    // Converts narrow text of a Windows code page (65001 UTF-8, 1252, 1250, 932, ...). For
    // every code page but UTF-8 the escapes \U+hhhh written by toMultiByte are turned back
    // into their characters. A null text, or a code page the platform cannot convert, gives
    // the null string.
    // Windows converts every code page the system has. Linux converts every Windows code page
    // number that its iconv has a converter for (a system without the converter, or whose
    // iconv cannot open it, fails as for an unknown number); it has no system code pages, so
    // 0 (the ANSI code page) and 3 (the thread's) stand for 1252, 1 (the OEM code page) for
    // 850 and 2 (the Mac code page) for 10000, as on a Western Windows.
    COrxString& fromMultiByte(char const* text, int codePage);
    // Converts to a new NUL-terminated narrow text (release it with delete[]), stored in out
    // and returned. For every code page but UTF-8 nothing is lost: the characters the code
    // page cannot represent (no best-fit substitutes) are written as \U+hhhh, see
    // escapeWideChar. The null string, or a code page the platform cannot convert, gives
    // null. UTF-8 writes unpaired surrogates as U+FFFD.
    char* toMultiByte(char*& out, int codePage) const;

private:
    bool allocBuffer(std::uint32_t n);
    int length() const;
    COrxString& assign(wchar_t const* text, std::uint32_t count);
    COrxString& append(wchar_t const* text, std::uint32_t count);
    bool ownsText(wchar_t const* text) const;
    int compare(wchar_t const* text) const;
    void cutAt(std::uint32_t n);

    wchar_t* m_buffer;
    std::uint32_t m_capacity;
    std::int32_t m_length;
};

ORX_API COrxString operator+(wchar_t const* left, COrxString const& right);
ORX_API bool operator==(wchar_t const* left, COrxString const& right);
ORX_API bool operator!=(wchar_t const* left, COrxString const& right);

ORX_EXTERN_TEMPLATE(COrxArrayTempl<COrxString>);

#endif  // ORX_FOUNDATION_STRING_H
