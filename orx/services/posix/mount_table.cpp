#include "orx/services/posix/mount_table.h"

#include <mntent.h>

#include <algorithm>
#include <cstdio>

namespace ORX::internal {
namespace {

// Longest line of the mount table we read; longer lines are cut by getmntent_r.
constexpr int kMountLineBytes = 8192;

bool isNfs(std::string const& type) {
    return type == "nfs" || type == "nfs4";
}

bool isSmb(std::string const& type) {
    return type == "cifs" || type == "smb3" || type == "smbfs";
}

// Whether mountPoint is path or one of its ancestors (at a '/' boundary).
bool holds(std::string const& mountPoint, std::string const& path) {
    if (mountPoint == "/") {
        return !path.empty() && path[0] == '/';
    }
    return path.compare(0, mountPoint.size(), mountPoint) == 0 &&
           (path.size() == mountPoint.size() || path[mountPoint.size()] == '/');
}

std::string withoutTrailingSlashes(std::string text) {
    while (text.size() > 1 && text.back() == '/') {
        text.pop_back();
    }
    return text;
}

// "server:/export" or "[v6 address]:/export" into "//server/export".
bool nfsName(std::string const& source, std::string& name) {
    std::size_t hostEnd = 0;
    if (!source.empty() && source[0] == '[') {
        hostEnd = source.find(']');
        hostEnd = hostEnd == std::string::npos ? hostEnd : hostEnd + 1;
    } else {
        hostEnd = source.find(':');
    }
    if (hostEnd == std::string::npos || hostEnd == 0 || hostEnd >= source.size() ||
        source[hostEnd] != ':') {
        return false;
    }
    std::string exportPath = source.substr(hostEnd + 1);
    if (exportPath.empty() || exportPath[0] != '/') {
        exportPath.insert(0, "/");
    }
    name = withoutTrailingSlashes("//" + source.substr(0, hostEnd) + exportPath);
    return true;
}

bool smbName(std::string source, std::string& name) {
    std::replace(source.begin(), source.end(), '\\', '/');
    if (source.size() < 3 || source.compare(0, 2, "//") != 0) {
        return false;
    }
    name = withoutTrailingSlashes(source);
    return true;
}

}  // namespace

bool mountHolding(char const* mountTable, std::string const& path, MountEntry& mount) {
    FILE* table = setmntent(mountTable, "r");
    if (table == nullptr) {
        return false;
    }
    bool found = false;
    mntent entry{};
    char line[kMountLineBytes];
    while (getmntent_r(table, &entry, line, sizeof line) != nullptr) {
        std::string const mountPoint = withoutTrailingSlashes(entry.mnt_dir);
        bool const longer = !found || mountPoint.size() >= mount.mountPoint.size();
        if (longer && holds(mountPoint, path)) {
            mount = MountEntry{entry.mnt_fsname, mountPoint, entry.mnt_type};
            found = true;
        }
    }
    endmntent(table);
    return found;
}

bool networkNameOfMount(MountEntry const& mount, std::string& name) {
    if (isNfs(mount.type)) {
        return nfsName(mount.source, name);
    }
    if (isSmb(mount.type)) {
        return smbName(mount.source, name);
    }
    return false;
}

}  // namespace ORX::internal
