// The Linux mount table, read to find out whether a path lies on a network file system and
// under which server-and-share name.
#ifndef ORX_SERVICES_POSIX_MOUNT_TABLE_H
#define ORX_SERVICES_POSIX_MOUNT_TABLE_H

#include <string>

namespace ORX::internal {

// The table the running process sees.
constexpr char const* kProcessMountTable = "/proc/self/mounts";

struct MountEntry {
    std::string source;      // what is mounted: "server:/export", "//server/share", "/dev/sda1"
    std::string mountPoint;  // where, without a trailing '/' (except the root "/")
    std::string type;        // the file-system type: "nfs4", "cifs", "ext4", ...
};

// The mount that holds an absolute path: the one with the longest mount point that is the
// path or one of its ancestors, and of equally long ones the last in the table (mounted
// last, so on top). False when the table cannot be read or has no such entry.
bool mountHolding(char const* mountTable, std::string const& path, MountEntry& mount);

// The server-and-share name of a network mount, without a trailing '/':
//   nfs, nfs4            "server:/export/dir"  ->  "//server/export/dir"
//                        "[fe80::1]:/export"   ->  "//[fe80::1]/export"
//   cifs, smb3, smbfs    "//server/share" (or with '\') -> "//server/share"
// False for every other file-system type and for a source of an unknown form.
bool networkNameOfMount(MountEntry const& mount, std::string& name);

}  // namespace ORX::internal

#endif  // ORX_SERVICES_POSIX_MOUNT_TABLE_H
