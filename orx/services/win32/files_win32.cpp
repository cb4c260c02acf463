// The file-system calls of the services on Windows.
#include <windows.h>

#include <io.h>
#include <stdlib.h>
#include <winnetwk.h>

#include <algorithm>
#include <string>

#include "orx/foundation/string.h"
#include "orx/services/internal/file_system.h"
#include "orx/services/internal/path_parts.h"

namespace ORX::internal {

wchar_t const kPathSeparator = L'\\';
bool const kDriveLetters = true;
wchar_t const* const kLocalDevicePrefix = L"\\\\.\\";

namespace {

// The classic path buffer of the Windows calls, in characters.
constexpr DWORD kPathCharacters = MAX_PATH;
// _waccess mode that asks for existence only.
constexpr int kExistenceOnly = 0;

}  // namespace

std::wstring inputPath(wchar_t const* path) {
    return std::wstring(path != nullptr ? path : L"");
}

void useNativeSeparators(std::wstring& path) {
    std::replace(path.begin(), path.end(), L'/', L'\\');
}

bool pathExists(std::wstring const& path) {
    return _waccess(path.c_str(), kExistenceOnly) == 0;
}

bool entryExists(std::wstring const& path) {
    // GetFileAttributesW describes a link itself, not its target.
    if (GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES) {
        return true;
    }
    DWORD const error = GetLastError();
    return error != ERROR_FILE_NOT_FOUND && error != ERROR_PATH_NOT_FOUND;
}

std::wstring userFolderName(wchar_t const* base) {
    return base;
}

bool makePrivateDirectory(std::wstring const& path) {
    CreateDirectoryW(path.c_str(), nullptr);
    DWORD const attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 &&
           (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0;
}

std::wstring temporaryRoot() {
    COrxString root(L"%TEMP%");
    root.expandEnvironmentStrings();
    return std::wstring(root);
}

bool absolutePath(std::wstring const& path, std::wstring& absolute) {
    wchar_t buffer[kPathCharacters];
    if (_wfullpath(buffer, path.c_str(), kPathCharacters) == nullptr) {
        return false;
    }
    absolute = buffer;
    return true;
}

PathLocation locatePath(std::wstring const& absolute, std::wstring& remote) {
    std::wstring const drive = splitPath(absolute).drive;
    if (GetDriveTypeW((drive + L'\\').c_str()) != DRIVE_REMOTE) {
        return PathLocation::local;
    }
    wchar_t name[kPathCharacters];
    DWORD length = kPathCharacters;
    DWORD const answer = WNetGetConnectionW(drive.c_str(), name, &length);
    // A remembered drive that is not connected now still has its name.
    if (answer != NO_ERROR && answer != ERROR_CONNECTION_UNAVAIL) {
        return PathLocation::unreachableNetwork;
    }
    remote = name + absolute.substr(drive.size());
    return PathLocation::network;
}

unsigned long currentDirectory(std::wstring& dir) {
    wchar_t buffer[kPathCharacters];
    buffer[0] = L'\0';
    DWORD const reported = GetCurrentDirectoryW(kPathCharacters, buffer);
    dir = reported < kPathCharacters ? buffer : L"";
    return reported;
}

bool setCurrentDirectory(wchar_t const* dir) {
    return dir != nullptr && SetCurrentDirectoryW(dir) != 0;
}

}  // namespace ORX::internal
