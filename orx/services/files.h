// Files and directories: existence tests, path splitting, temporary names in the library's
// own temporary folder, network names, directory listings and versioned file names.
//
//     if (ORX::fileExist(L"%APPDATA%/Kelvara/settings.xml")) { ... }
//     COrxString ext = ORX::fileType(L"plans\\hall.dwg");          // "dwg"
//     COrxString scratch = ORX::fileNameTmp(L"dwg");               // ...\Kelvara\tmp_5a9e1f3c.dwg
//     COrxArrayTempl<COrxString> drawings;
//     ORX::fileDir(drawings, L"plans\\*.dwg", ORX::kFileDirFullPath);
//
// Paths use the platform's separator: Windows '\' (and accepts '/'), Linux '/'. On Linux
// every path given to these functions has its '\' turned into '/', so a path written for
// Windows ("plans\hall.dwg") works there too (a '\' inside a Linux file name cannot be
// used through them). Environment references (%NAME%) are expanded where a function says
// so, by COrxString::expandEnvironmentStrings.
//
// The current directory is process-wide and not locked.
#ifndef ORX_SERVICES_FILES_H
#define ORX_SERVICES_FILES_H

#include "orx/foundation/array_templ.h"
#include "orx/foundation/platform.h"
#include "orx/foundation/string.h"

namespace ORX {

// Whether a file or directory exists at path, after turning the separators into the
// platform's own and expanding environment references. False for a null path.
ORX_API bool fileExist(wchar_t const* path);

// In place: separators turned into the platform's own, then environment references
// expanded. Returns the text (null for the null string).
ORX_API wchar_t const* dos_name(COrxString& path);

// Path parts. Both '\' and '/' separate; the drive ("C:") exists on Windows only; the
// extension starts at the last '.' of the last component. A null path gives an empty string.
// filePath: drive and directory with its trailing separator ("C:\plans\" of
// "C:\plans\hall.dwg"); empty for a bare name.
ORX_API COrxString filePath(wchar_t const* path);
// The extension without its '.' ("dwg"); empty when there is none.
ORX_API COrxString fileType(wchar_t const* path);
// Name and extension ("hall.dwg").
ORX_API COrxString stripPath(wchar_t const* path);

// The library's temporary folder, created when missing, with a trailing separator; only the
// user may use it. Windows: "%TEMP%\Kelvara\" (the user's own temporary folder); a link or
// junction there is refused. Linux: "$TEMP/Kelvara-<uid>/", where an unset or empty TEMP
// falls back to TMPDIR and then to /tmp, and <uid> is the effective user id, so that every
// user of a shared /tmp has a folder of their own. The folder is created with permission
// 0700; an existing one must be a real directory (not a link) owned by the user, and wider
// permissions are narrowed to 0700. A folder that cannot be made, or that fails the check
// (another user's, or a link someone planted), gives the empty string: nothing is handed out
// in a folder that others control.
ORX_API COrxString tmp_dir();

// A name for a new temporary file in tmp_dir(): "tmp_<hex>.<ext>" ("tmp" when ext is null or
// empty), where <hex> is a random 64-bit number from the system's random source (so names
// cannot be predicted) in lower-case hex digits. A name is handed out only when no directory
// entry of that name exists, of any kind: a link counts, also one whose target is missing,
// and is never followed. The file is not created; in the private folder no other user can
// take the name first. Empty when tmp_dir() is empty, when the system gives no random
// numbers, or when the folder cannot be looked into.
ORX_API COrxString fileNameTmp(wchar_t const* ext);

// The network form of a path. False for a null path and for one that is a network name
// already (beginning with "\\" or "//"). A path on a network drive gives the drive's network
// name followed by the rest of the absolute path; any other path gives, when local is true,
// the device form of its absolute path, else false.
// Windows: GetDriveTypeW and WNetGetConnectionW; a remembered but disconnected drive counts
// (its name is known); device form "\\.\C:\dir\file".
// Linux: the mount table decides. A path on an NFS mount (types nfs, nfs4) with the source
// "server:/export" gives "//server/export/rest"; on an SMB mount (cifs, smb3, smbfs) with the
// source "//server/share" it gives "//server/share/rest"; "rest" is the part of the path below
// the mount point, after following links. Device form "//./home/user/file".
ORX_API bool fileNameUNC(COrxString& out, wchar_t const* path, bool local);

// Flags of fileDir.
// The directory of the (absolute) pattern before each name.
constexpr unsigned long kFileDirFullPath = 0x1;
// Directories are listed as well as files ("." and ".." never are).
constexpr unsigned long kFileDirWithDirectories = 0x2;
// Hidden entries are listed too: hidden or system attributes on Windows, names beginning
// with '.' on Linux.
constexpr unsigned long kFileDirWithHidden = 0x4;
// Only directories are listed (implies kFileDirWithDirectories).
constexpr unsigned long kFileDirOnlyDirectories = 0x8;

// Lists the names matching a pattern ("*.*" when null) into out, replacing its contents.
// The pattern has its environment references expanded and its separators turned into the
// platform's own; a pattern ending in "." gets a separator appended, one ending in a
// separator (or on Windows in ":") gets "*.*" appended. Without flags only visible files are
// listed; see the kFileDir flags above. The names are sorted ignoring case (simple case
// mapping), names equal but for case by their characters.
// True when the search found anything (out may still end up empty after filtering, for
// example when only "." and ".." matched); false when nothing matched, out untouched.
// Wildcards: '*' any run of characters, '?' any one. Windows matches them as FindFirstFileW
// does (ignoring case). Linux matches case-sensitively, and a final ".*" also matches
// nothing, so that "*.*" lists every name and "readme.*" finds "readme" too, as on Windows.
ORX_API bool fileDir(COrxArrayTempl<COrxString>& out, wchar_t const* pattern, unsigned long flags);

// out = "<base>_2017_23_64_<tag>.<ext>": the library's version 2017, build 23, 64-bit. A
// null text counts as empty. Always true.
ORX_API bool appFileName(COrxString& out, wchar_t const* base, wchar_t const* tag,
                         wchar_t const* ext);
// out = "<base>_2017_23.<ext>"; a null text counts as empty.
ORX_API void generateMenuFileName(COrxString& out, wchar_t const* base, wchar_t const* ext);

// Fills dir with the current directory (empty when it cannot be had: on Windows when it is
// longer than 259 characters). The result is true only when the system call reported a
// name of exactly one character, so it is false for every directory but the Linux root
// "/". Callers rely on the string and not on the result; the rule is kept as it is.
ORX_API bool GetCurrentDirectoryW(COrxString& dir);

}  // namespace ORX

#endif  // ORX_SERVICES_FILES_H
