// The backend's half of ORX::CVersionInfo: finding a module's file and reading its version
// data into one record, whatever the file format.
#ifndef ORX_SERVICES_INTERNAL_VERSION_STRINGS_H
#define ORX_SERVICES_INTERNAL_VERSION_STRINGS_H

#include <string>

#include "orx/foundation/platform.h"
#include "orx/services/windows_types.h"

namespace ORX::internal {

struct VersionStrings {
    std::wstring companyName;
    std::wstring copyright;
    std::wstring productName;
    std::wstring trademark;
    // Most significant part first, each a 16-bit number as in the Windows resource.
    unsigned int productVersion[4] = {0, 0, 0, 0};
};

// The file of the module `module` (null: the main program); empty when not found.
std::wstring moduleFileName(HINSTANCE module);
// False when `fileName` cannot be read or has no version data.
bool readVersionStrings(wchar_t const* fileName, VersionStrings& out);

}  // namespace ORX::internal

#endif  // ORX_SERVICES_INTERNAL_VERSION_STRINGS_H
