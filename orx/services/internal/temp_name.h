// The search for a free temporary name behind ORX::fileNameTmp, apart from the random source
// so that it can be tried with chosen numbers.
#ifndef ORX_SERVICES_INTERNAL_TEMP_NAME_H
#define ORX_SERVICES_INTERNAL_TEMP_NAME_H

#include <cstdint>
#include <functional>
#include <string>

namespace ORX::internal {

// How many names fileNameTmp tries before it gives up: with random 64-bit numbers a taken
// name is already rare, so running out means the folder cannot be looked into.
constexpr int kTempNameAttempts = 100;

// Gives the number for the next name, or false when there is none to give.
using TempNameSource = std::function<bool(std::uint64_t& number)>;

// The first folder + "tmp_<number in lower-case hex>.<extension>" at which no directory entry
// exists (see entryExists: a link counts, even a dangling one), with the numbers taken from
// source. Empty when the source fails or kTempNameAttempts names are all taken.
std::wstring freeTempName(std::wstring const& folder, std::wstring const& extension,
                          TempNameSource const& source);

}  // namespace ORX::internal

#endif  // ORX_SERVICES_INTERNAL_TEMP_NAME_H
