#include "orx/foundation/uuid.h"

#include <string>

#include "orx/foundation/shared/random_bytes.h"

namespace ORX {

namespace {

constexpr int kUuidBytes = 16;
// Byte 6 carries the version in its high four bits, byte 8 the variant in its high two.
constexpr int kVersionByte = 6;
constexpr unsigned char kVersion4 = 0x40;
constexpr int kVariantByte = 8;
constexpr unsigned char kVariantRfc4122 = 0x80;

}  // namespace

COrxString strUuidCreate() {
    unsigned char bytes[kUuidBytes];
    if (!internal::randomBytes(bytes, sizeof bytes)) {
        return COrxString::kNull;
    }
    bytes[kVersionByte] = static_cast<unsigned char>((bytes[kVersionByte] & 0x0F) | kVersion4);
    bytes[kVariantByte] =
        static_cast<unsigned char>((bytes[kVariantByte] & 0x3F) | kVariantRfc4122);
    wchar_t const* const digits = L"0123456789ABCDEF";
    std::wstring text = L"{";
    for (int k = 0; k < kUuidBytes; ++k) {
        if (k == 4 || k == 6 || k == 8 || k == 10) {
            text += L'-';
        }
        text += digits[bytes[k] >> 4];
        text += digits[bytes[k] & 0x0F];
    }
    text += L'}';
    return COrxString(text.c_str());
}

}  // namespace ORX
