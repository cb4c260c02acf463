#include "orx/services/internal/path_parts.h"

#include "orx/services/internal/file_system.h"

namespace ORX::internal {

PathParts splitPath(std::wstring const& path) {
    PathParts parts;
    std::size_t start = 0;
    if (kDriveLetters && path.size() >= 2 && path[1] == L':') {
        parts.drive = path.substr(0, 2);
        start = 2;
    }
    std::size_t const lastSeparator = path.find_last_of(L"\\/");
    std::size_t nameStart = start;
    if (lastSeparator != std::wstring::npos && lastSeparator >= start) {
        nameStart = lastSeparator + 1;
        parts.directory = path.substr(start, nameStart - start);
    }
    std::size_t const dot = path.find_last_of(L'.');
    std::size_t nameEnd = path.size();
    if (dot != std::wstring::npos && dot >= nameStart) {
        nameEnd = dot;
        parts.extension = path.substr(dot);
    }
    parts.name = path.substr(nameStart, nameEnd - nameStart);
    return parts;
}

}  // namespace ORX::internal
