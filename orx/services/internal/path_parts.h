// Splitting a path into drive, directory, file name and extension.
#ifndef ORX_SERVICES_INTERNAL_PATH_PARTS_H
#define ORX_SERVICES_INTERNAL_PATH_PARTS_H

#include <string>

namespace ORX::internal {

// "C:\dir\name.ext" gives drive "C:", directory "\dir\", name "name", extension ".ext".
// Both '\' and '/' separate; the directory keeps its trailing separator; the extension
// starts at the last '.' of the last component (".profile" is all extension, "name." has
// the extension "."). A drive exists only where the platform has drive letters.
struct PathParts {
    std::wstring drive;
    std::wstring directory;
    std::wstring name;
    std::wstring extension;
};

PathParts splitPath(std::wstring const& path);

}  // namespace ORX::internal

#endif  // ORX_SERVICES_INTERNAL_PATH_PARTS_H
