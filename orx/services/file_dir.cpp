// ORX::fileDir: the platform supplies the matches, this file prepares the pattern, filters,
// prefixes and sorts them, identically on both platforms.
#include <algorithm>
#include <string>
#include <vector>

#include "orx/services/files.h"
#include "orx/services/internal/file_system.h"
#include "orx/services/internal/path_parts.h"

namespace ORX {
namespace {

// What a search for a directory's contents looks for.
constexpr wchar_t const* kEveryName = L"*.*";

std::wstring searchPattern(wchar_t const* pattern) {
    COrxString text(pattern != nullptr ? pattern : kEveryName);
    text.expandEnvironmentStrings();
    std::wstring search(text.isNull() ? L"" : static_cast<wchar_t const*>(text));
    internal::useNativeSeparators(search);
    if (!search.empty() && search.back() == L'.') {
        search += internal::kPathSeparator;
    }
    bool const endsAtDrive = internal::kDriveLetters && !search.empty() && search.back() == L':';
    if (!search.empty() && (search.back() == internal::kPathSeparator || endsAtDrive)) {
        search += kEveryName;
    }
    return search;
}

bool isDotEntry(std::wstring const& name) {
    return name == L"." || name == L"..";
}

bool wanted(internal::DirEntry const& entry, unsigned long flags) {
    if (isDotEntry(entry.name)) {
        return false;
    }
    if (entry.hidden && (flags & kFileDirWithHidden) == 0) {
        return false;
    }
    if (entry.directory) {
        return (flags & (kFileDirWithDirectories | kFileDirOnlyDirectories)) != 0;
    }
    return (flags & kFileDirOnlyDirectories) == 0;
}

// The folder the matches lie in, as an absolute path with its trailing separator.
std::wstring absoluteFolderOf(std::wstring const& search) {
    std::wstring absolute;
    if (!internal::absolutePath(search, absolute)) {
        return std::wstring();
    }
    internal::PathParts const parts = internal::splitPath(absolute);
    return parts.drive + parts.directory;
}

// Ordering ignoring case, with names equal but for case ordered by their characters, so
// that the order is total and the same on every platform.
struct ListingEntry {
    std::wstring caseless;
    std::wstring name;
};

bool listedBefore(ListingEntry const& a, ListingEntry const& b) {
    if (a.caseless != b.caseless) {
        return a.caseless < b.caseless;
    }
    return a.name < b.name;
}

ListingEntry listingEntry(std::wstring const& name) {
    COrxString lower(name.c_str());
    lower.makeLower();
    return ListingEntry{std::wstring(lower.isNull() ? L"" : static_cast<wchar_t const*>(lower)),
                        name};
}

}  // namespace

bool fileDir(COrxArrayTempl<COrxString>& out, wchar_t const* pattern, unsigned long flags) {
    std::wstring const search = searchPattern(pattern);
    std::vector<internal::DirEntry> found;
    if (!internal::findEntries(search, found)) {
        return false;
    }
    std::vector<ListingEntry> listing;
    for (internal::DirEntry const& entry : found) {
        if (wanted(entry, flags)) {
            listing.push_back(listingEntry(entry.name));
        }
    }
    std::sort(listing.begin(), listing.end(), listedBefore);

    std::wstring const folder =
        (flags & kFileDirFullPath) != 0 ? absoluteFolderOf(search) : std::wstring();
    out.removeAll();
    for (ListingEntry const& entry : listing) {
        out.append(COrxString((folder + entry.name).c_str()));
    }
    return true;
}

}  // namespace ORX
