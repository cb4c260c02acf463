#include "orx/foundation/base64.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ORX {

namespace {

constexpr wchar_t const* kAlphabet =
    L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr wchar_t kPadding = L'=';
// Three bytes make four characters of six bits each.
constexpr int kBitsPerCharacter = 6;
constexpr std::uint32_t kCharacterMask = 0x3F;

// The six bits a character stands for, or -1.
int valueOf(wchar_t c) {
    if (c >= L'A' && c <= L'Z') {
        return c - L'A';
    }
    if (c >= L'a' && c <= L'z') {
        return c - L'a' + 26;
    }
    if (c >= L'0' && c <= L'9') {
        return c - L'0' + 52;
    }
    return c == L'+' ? 62 : c == L'/' ? 63 : -1;
}

bool isSkipped(wchar_t c) {
    return c == L' ' || c == L'\t' || c == L'\r' || c == L'\n';
}

// The text without the characters that are skipped; false when the rest has a wrong length.
bool significantCharacters(wchar_t const* text, std::wstring& kept) {
    for (wchar_t const* at = text; *at != L'\0'; ++at) {
        if (!isSkipped(*at)) {
            kept += *at;
        }
    }
    return kept.size() % 4 == 0;
}

// Decodes one group of four characters (with padding only as allowed in the last group).
bool decodeGroup(std::wstring const& group, bool last, std::vector<unsigned char>& out) {
    int const padding = group[3] != kPadding ? 0 : group[2] != kPadding ? 1 : 2;
    if (padding > 0 && !last) {
        return false;
    }
    std::uint32_t bits = 0;
    for (int k = 0; k < 4 - padding; ++k) {
        int const value = valueOf(group[static_cast<std::size_t>(k)]);
        if (value < 0) {
            return false;
        }
        bits = (bits << kBitsPerCharacter) | static_cast<std::uint32_t>(value);
    }
    // The bits below the last whole byte must be zero in the canonical form.
    int const spareBits = padding * 2;
    if ((bits & ((1u << spareBits) - 1)) != 0) {
        return false;
    }
    bits >>= spareBits;
    for (int k = 2 - padding; k >= 0; --k) {
        out.push_back(static_cast<unsigned char>(bits >> (8 * k)));
    }
    return true;
}

}  // namespace

COrxString base64Encode(unsigned char const* data, unsigned long size) {
    if (data == nullptr && size > 0) {
        return COrxString::kNull;
    }
    std::wstring text;
    text.reserve((size + 2) / 3 * 4);
    for (unsigned long at = 0; at < size; at += 3) {
        unsigned long const count = size - at < 3 ? size - at : 3;
        std::uint32_t bits = 0;
        for (unsigned long k = 0; k < 3; ++k) {
            bits = (bits << 8) | (k < count ? data[at + k] : 0u);
        }
        for (unsigned long k = 0; k < 4; ++k) {
            text += k <= count ? kAlphabet[(bits >> (kBitsPerCharacter * (3 - k))) & kCharacterMask]
                               : kPadding;
        }
    }
    return COrxString(text.c_str());
}

COrxString base64Encode(COrxArrayTempl<unsigned char> const& bytes) {
    return base64Encode(bytes.entry(), bytes.len());
}

bool base64Decode(COrxArrayTempl<unsigned char>& bytes, wchar_t const* text) {
    std::wstring kept;
    if (text == nullptr || !significantCharacters(text, kept)) {
        return false;
    }
    std::vector<unsigned char> decoded;
    for (std::size_t at = 0; at < kept.size(); at += 4) {
        if (!decodeGroup(kept.substr(at, 4), at + 4 == kept.size(), decoded)) {
            return false;
        }
    }
    COrxArrayTempl<unsigned char> result;
    result.setLogicalLength(decoded.size());
    for (std::size_t k = 0; k < decoded.size(); ++k) {
        result.entry()[k] = decoded[k];
    }
    bytes = result;
    return true;
}

}  // namespace ORX
