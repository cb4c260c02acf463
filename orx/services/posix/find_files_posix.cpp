// Directory search on Linux: the search FindFirstFileW/FindNextFileW make on Windows, with
// opendir/readdir and the wildcard match of COrxString.
#include <dirent.h>
#include <sys/stat.h>

#include <string>
#include <vector>

#include "orx/foundation/shared/utf8.h"
#include "orx/foundation/string.h"
#include "orx/services/internal/file_system.h"

namespace ORX::internal {
namespace {

// A final ".*" may also match nothing, so that "*.*" matches names without a dot and
// "readme.*" matches "readme", as Windows patterns do.
constexpr wchar_t const* kAnyExtension = L".*";

bool hasWildcards(std::wstring const& text) {
    return text.find_first_of(L"*?") != std::wstring::npos;
}

bool matches(std::wstring const& name, std::wstring const& wildcard) {
    COrxString const text(name.c_str());
    if (text.match(wildcard.c_str(), 0)) {
        return true;
    }
    std::size_t const suffix = std::char_traits<wchar_t>::length(kAnyExtension);
    if (wildcard.size() < suffix ||
        wildcard.compare(wildcard.size() - suffix, suffix, kAnyExtension) != 0) {
        return false;
    }
    return text.match(wildcard.substr(0, wildcard.size() - suffix).c_str(), 0);
}

bool isHiddenName(std::wstring const& name) {
    return !name.empty() && name[0] == L'.';
}

bool isDirectory(std::string const& path) {
    struct stat info {};
    return stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

bool entryIsDirectory(dirent const& entry, std::string const& folder) {
    if (entry.d_type == DT_DIR) {
        return true;
    }
    if (entry.d_type != DT_UNKNOWN && entry.d_type != DT_LNK) {
        return false;
    }
    return isDirectory(folder + "/" + entry.d_name);  // links count as what they point to
}

// A pattern without wildcards names one entry, which is found when it exists.
bool findNamed(std::wstring const& path, std::wstring const& name, std::vector<DirEntry>& entries) {
    std::string const bytes = toUtf8(path);
    struct stat info {};
    if (name.empty() || stat(bytes.c_str(), &info) != 0) {
        return false;
    }
    entries.push_back(DirEntry{name, S_ISDIR(info.st_mode), isHiddenName(name)});
    return true;
}

}  // namespace

bool findEntries(std::wstring const& pattern, std::vector<DirEntry>& entries) {
    std::size_t const slash = pattern.rfind(L'/');
    std::wstring const wildcard = slash == std::wstring::npos ? pattern : pattern.substr(slash + 1);
    if (!hasWildcards(wildcard)) {
        return findNamed(pattern, wildcard, entries);
    }
    std::wstring folder = L".";
    if (slash != std::wstring::npos) {
        folder = slash == 0 ? std::wstring(L"/") : pattern.substr(0, slash);
    }
    std::string const folderBytes = toUtf8(folder);
    DIR* directory = opendir(folderBytes.c_str());
    if (directory == nullptr) {
        return false;
    }
    while (dirent const* entry = readdir(directory)) {
        std::wstring const name = fromUtf8(entry->d_name);
        if (matches(name, wildcard)) {
            entries.push_back(
                DirEntry{name, entryIsDirectory(*entry, folderBytes), isHiddenName(name)});
        }
    }
    closedir(directory);
    return !entries.empty();
}

}  // namespace ORX::internal
