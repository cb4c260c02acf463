// Wide text decoded from a fuzz input, for the string, map and registry targets.
//
// Mostly ASCII, with the characters that the escapes, the wildcard match and the markup
// treat specially well represented, and now and then a control character or one outside
// ASCII (Latin-1, the euro sign, CJK, one beyond the Basic Multilingual Plane as a
// surrogate pair where wchar_t has 16 bits). Well-formed text is what the round trips
// promise to keep: no NUL, no unpaired surrogate, no code point above U+10FFFF; otherwise
// such units turn up too.
#ifndef ORX_FUZZ_SUPPORT_WIDE_TEXT_H
#define ORX_FUZZ_SUPPORT_WIDE_TEXT_H

#include <cstddef>
#include <string>

#include "fuzz_input.h"

// Up to maxLength characters (a pair counts as one).
std::wstring decodeWideText(FuzzInput& in, std::size_t maxLength, bool wellFormed);

// A text of ASCII letters, digits and a few punctuation characters only: for names whose
// case-insensitive comparison a model must reproduce exactly.
std::wstring decodeAsciiName(FuzzInput& in, std::size_t maxLength);

// The text as UTF-8 bytes with each code unit below 0x80 kept and every other one shown as
// \x{hhhh}: for messages about a failed check.
std::string printable(std::wstring const& text);

#endif  // ORX_FUZZ_SUPPORT_WIDE_TEXT_H
