// Directory search on Windows: FindFirstFileW and FindNextFileW.
#include <windows.h>

#include <string>
#include <vector>

#include "orx/services/internal/file_system.h"

namespace ORX::internal {
namespace {

// The attributes that keep an entry out of a listing unless hidden entries are asked for.
constexpr DWORD kHiddenAttributes = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;

DirEntry entryOf(WIN32_FIND_DATAW const& data) {
    return DirEntry{data.cFileName, (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0,
                    (data.dwFileAttributes & kHiddenAttributes) != 0};
}

}  // namespace

bool findEntries(std::wstring const& pattern, std::vector<DirEntry>& entries) {
    WIN32_FIND_DATAW data{};
    HANDLE const search = FindFirstFileW(pattern.c_str(), &data);
    if (search == INVALID_HANDLE_VALUE) {
        return false;
    }
    do {
        entries.push_back(entryOf(data));
    } while (FindNextFileW(search, &data) != 0);
    FindClose(search);
    return true;
}

}  // namespace ORX::internal
