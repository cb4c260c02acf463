#include "orx/services/internal/temp_name.h"

#include "orx/services/internal/file_system.h"

namespace ORX::internal {

namespace {

std::wstring lowerHex(std::uint64_t number) {
    wchar_t const* const digits = L"0123456789abcdef";
    std::wstring text;
    do {
        text.insert(text.begin(), digits[number & 0xF]);
        number >>= 4;
    } while (number != 0);
    return text;
}

}  // namespace

std::wstring freeTempName(std::wstring const& folder, std::wstring const& extension,
                          TempNameSource const& source) {
    for (int attempt = 0; attempt < kTempNameAttempts; ++attempt) {
        std::uint64_t number = 0;
        if (!source(number)) {
            return std::wstring();
        }
        std::wstring candidate = folder + L"tmp_" + lowerHex(number) + L"." + extension;
        if (!entryExists(candidate)) {
            return candidate;
        }
    }
    return std::wstring();
}

}  // namespace ORX::internal
