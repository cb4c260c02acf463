// COrxString: conversion to and from narrow code pages, lossless for every code page but
// UTF-8: a character the code page cannot hold travels as the text \U+hhhh.
#include <cstring>
#include <new>
#include <string>
#include <string_view>

#include "orx/foundation/internal/string_internal.h"
#include "orx/foundation/internal/string_platform.h"
#include "orx/foundation/string.h"

using ORX::internal::kUtf8CodePage;

namespace {

// Whether one character (one code point: a surrogate pair, a lone code unit, or a 32-bit
// wchar_t) converts to codePage exactly and back.
bool canEncode(std::wstring_view character, int codePage) {
    std::string bytes;
    bool lossless = false;
    return ORX::internal::encodeCodePage(character, codePage, bytes, lossless) && lossless;
}

}  // namespace

COrxString& COrxString::fromMultiByte(char const* text, int codePage) {
    codePage = ORX::internal::resolveSystemCodePage(codePage);
    std::wstring wide;
    if (text == nullptr || !ORX::internal::decodeCodePage(text, codePage, wide)) {
        return setNull();
    }
    if (codePage != kUtf8CodePage) {
        wide = ORX::internal::unescapeWideChars(wide);
    }
    if (wide.size() > ORX::internal::kMaxCapacity) {
        return setNull();
    }
    return assign(wide.c_str(), static_cast<std::uint32_t>(wide.size()));
}

char* COrxString::toMultiByte(char*& out, int codePage) const {
    codePage = ORX::internal::resolveSystemCodePage(codePage);
    out = nullptr;
    if (m_buffer == nullptr) {
        return nullptr;
    }
    std::wstring_view const text(m_buffer, static_cast<std::size_t>(length()));
    std::string bytes;
    bool lossless = true;
    if (!ORX::internal::encodeCodePage(text, codePage, bytes, lossless)) {
        return nullptr;
    }
    if (codePage != kUtf8CodePage && (!lossless || ORX::internal::hasEscapeLookalike(text))) {
        // Converts a copy with the characters the code page cannot hold written as escapes
        // (and with any backslash that would read as an escape escaped itself).
        std::wstring const escaped = ORX::internal::escapeWideChars(
            text,
            [codePage](std::wstring_view character) { return !canEncode(character, codePage); });
        if (!ORX::internal::encodeCodePage(escaped, codePage, bytes, lossless)) {
            return nullptr;
        }
    }
    out = new (std::nothrow) char[bytes.size() + 1];
    if (out != nullptr) {
        std::memcpy(out, bytes.c_str(), bytes.size() + 1);
    }
    return out;
}
