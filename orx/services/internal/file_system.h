// The file-system calls behind files.h, work_dir.h and fileDir, one implementation per
// platform: win32/files_win32.cpp and posix/files_posix.cpp, selected by the build.
#ifndef ORX_SERVICES_INTERNAL_FILE_SYSTEM_H
#define ORX_SERVICES_INTERNAL_FILE_SYSTEM_H

#include <string>
#include <vector>

namespace ORX::internal {

// The platform's path separator: '\' on Windows, '/' on Linux.
extern wchar_t const kPathSeparator;
// Whether a path may begin with a drive letter and a colon ("C:").
extern bool const kDriveLetters;
// What fileNameUNC puts before a local absolute path: "\\.\" on Windows, "//." on Linux
// (whose absolute paths begin with their own "/").
extern wchar_t const* const kLocalDevicePrefix;

// A path as the functions that only read it take it: unchanged on Windows (its calls accept
// both separators), '\' turned into '/' on Linux.
std::wstring inputPath(wchar_t const* path);
// Every separator turned into the platform's own: '/' into '\' on Windows, '\' into '/' on
// Linux.
void useNativeSeparators(std::wstring& path);

// Whether something (file or directory) exists at path; a link is followed.
bool pathExists(std::wstring const& path);
// Whether there is a directory entry named path, of any kind, without following links: a
// link counts, also one whose target is missing. An entry that cannot be looked at (no
// permission) counts as existing.
bool entryExists(std::wstring const& path);
// The folder temporary files go into, without a trailing separator: %TEMP% expanded on
// Windows; on Linux $TEMP, else $TMPDIR, else /tmp.
std::wstring temporaryRoot();
// The name of the library's own folder in the temporary folder: base itself on Windows,
// whose temporary folder belongs to the user already; base + "-" + the effective user id on
// Linux, whose temporary folder is usually shared by every user.
std::wstring userFolderName(wchar_t const* base);
// Creates the folder when it is missing and checks that only the user can use it. Linux: it
// must be a directory itself (not a link to one) owned by the effective user; wider
// permissions than 0700 are narrowed to 0700. Windows: it must be a directory that is not a
// link or junction. False when the folder cannot be made or fails the check.
bool makePrivateDirectory(std::wstring const& path);

// The absolute form of path, resolved against the current directory, with "." and ".."
// removed (no link is followed and nothing needs to exist). False when it cannot be made.
bool absolutePath(std::wstring const& path, std::wstring& absolute);

// Where an absolute path lies, for fileNameUNC.
enum class PathLocation {
    local,              // a local drive or file system
    network,            // a network drive or mount; `remote` holds the network name
    unreachableNetwork  // a network drive whose name cannot be had
};
// remote is the network form of the whole path ("\\server\share\dir\file" on Windows,
// "//server/share/dir/file" on Linux) when the result is `network`.
PathLocation locatePath(std::wstring const& absolute, std::wstring& remote);

// One match of a directory search.
struct DirEntry {
    std::wstring name;
    bool directory;
    bool hidden;
};
// The names matching a search pattern (a directory and a last component with the wildcards
// '*' and '?'), "." and ".." included when the search returns them. False when nothing
// matches or the directory cannot be read.
bool findEntries(std::wstring const& pattern, std::vector<DirEntry>& entries);

// The current directory, and what the system call returned: the length of the name on
// success (0 on failure, or on Windows the size needed when the name does not fit).
unsigned long currentDirectory(std::wstring& dir);
bool setCurrentDirectory(wchar_t const* dir);

}  // namespace ORX::internal

#endif  // ORX_SERVICES_INTERNAL_FILE_SYSTEM_H
