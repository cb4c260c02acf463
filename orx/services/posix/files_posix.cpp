// The file-system calls of the services on Linux: POSIX calls on UTF-8 paths.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "orx/foundation/shared/utf8.h"
#include "orx/services/internal/file_system.h"
#include "orx/services/posix/mount_table.h"

namespace ORX::internal {

wchar_t const kPathSeparator = L'/';
bool const kDriveLetters = false;
wchar_t const* const kLocalDevicePrefix = L"//.";

namespace {

// Permissions of a folder only its owner may use, and the mask of all permission bits.
constexpr mode_t kPrivateDirectoryMode = 0700;
constexpr mode_t kAllPermissions = 07777;

std::string nativeBytes(std::wstring const& path) {
    return toUtf8(path);
}

std::wstring environmentPath(char const* name) {
    char const* value = std::getenv(name);
    return value != nullptr ? fromUtf8(value) : std::wstring();
}

// "." and ".." resolved and repeated '/' dropped, in an absolute path.
std::wstring normalised(std::wstring const& absolute) {
    std::vector<std::wstring> parts;
    std::size_t at = 0;
    while (at <= absolute.size()) {
        std::size_t end = absolute.find(L'/', at);
        if (end == std::wstring::npos) {
            end = absolute.size();
        }
        std::wstring const part = absolute.substr(at, end - at);
        if (part == L"..") {
            if (!parts.empty()) {
                parts.pop_back();
            }
        } else if (!part.empty() && part != L".") {
            parts.push_back(part);
        }
        at = end + 1;
    }
    std::wstring result;
    for (std::wstring const& part : parts) {
        result += L'/';
        result += part;
    }
    return result.empty() ? std::wstring(L"/") : result;
}

// The path with its links followed where it exists, so that a link into a network mount
// finds that mount; the path itself when it cannot be resolved.
std::string resolved(std::wstring const& absolute) {
    std::string const bytes = nativeBytes(absolute);
    std::unique_ptr<char, decltype(&std::free)> real(realpath(bytes.c_str(), nullptr), &std::free);
    return real != nullptr ? std::string(real.get()) : bytes;
}

}  // namespace

std::wstring inputPath(wchar_t const* path) {
    std::wstring text(path != nullptr ? path : L"");
    useNativeSeparators(text);
    return text;
}

void useNativeSeparators(std::wstring& path) {
    std::replace(path.begin(), path.end(), L'\\', L'/');
}

bool pathExists(std::wstring const& path) {
    return access(nativeBytes(path).c_str(), F_OK) == 0;
}

bool entryExists(std::wstring const& path) {
    struct stat status {};
    return lstat(nativeBytes(path).c_str(), &status) == 0 || (errno != ENOENT && errno != ENOTDIR);
}

std::wstring temporaryRoot() {
    std::wstring root = environmentPath("TEMP");
    if (root.empty()) {
        root = environmentPath("TMPDIR");
    }
    if (root.empty()) {
        root = L"/tmp";
    }
    useNativeSeparators(root);
    while (!root.empty() && root.back() == L'/') {
        root.pop_back();  // the root folder itself gives "" + "/Kelvara"
    }
    return root;
}

std::wstring userFolderName(wchar_t const* base) {
    return base + (L'-' + std::to_wstring(geteuid()));
}

// The folder is opened without following a link, and checked and narrowed through that
// descriptor, so that it cannot be swapped between the check and the change.
bool makePrivateDirectory(std::wstring const& path) {
    std::string const bytes = nativeBytes(path);
    if (mkdir(bytes.c_str(), kPrivateDirectoryMode) != 0 && errno != EEXIST) {
        return false;
    }
    int const folder = open(bytes.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (folder < 0) {
        return false;
    }
    struct stat status {};
    bool ok = fstat(folder, &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == geteuid();
    if (ok && (status.st_mode & kAllPermissions) != kPrivateDirectoryMode) {
        ok = fchmod(folder, kPrivateDirectoryMode) == 0;
    }
    close(folder);
    return ok;
}

bool absolutePath(std::wstring const& path, std::wstring& absolute) {
    if (!path.empty() && path[0] == L'/') {
        absolute = normalised(path);
        return true;
    }
    std::wstring current;
    if (currentDirectory(current) == 0) {
        return false;
    }
    absolute = normalised(current + L'/' + path);
    return true;
}

PathLocation locatePath(std::wstring const& absolute, std::wstring& remote) {
    std::string const path = resolved(absolute);
    MountEntry mount;
    std::string name;
    if (!mountHolding(kProcessMountTable, path, mount) || !networkNameOfMount(mount, name)) {
        return PathLocation::local;
    }
    std::size_t const below = mount.mountPoint == "/" ? 0 : mount.mountPoint.size();
    remote = fromUtf8(name + path.substr(below));
    return PathLocation::network;
}

unsigned long currentDirectory(std::wstring& dir) {
    std::unique_ptr<char, decltype(&std::free)> current(getcwd(nullptr, 0), &std::free);
    if (current == nullptr) {
        dir.clear();
        return 0;
    }
    dir = fromUtf8(current.get());
    return static_cast<unsigned long>(dir.size());
}

bool setCurrentDirectory(wchar_t const* dir) {
    if (dir == nullptr) {
        return false;
    }
    return chdir(nativeBytes(inputPath(dir)).c_str()) == 0;
}

}  // namespace ORX::internal
