#include "orx/services/files.h"

#include <cstdint>
#include <string>

#include "orx/foundation/shared/random_bytes.h"
#include "orx/services/internal/file_system.h"
#include "orx/services/internal/path_parts.h"
#include "orx/services/internal/temp_name.h"

namespace ORX {
namespace {

// The folder below the temporary folder that holds the library's temporary files.
constexpr wchar_t const* kTempFolderName = L"Kelvara";
// The extension of a temporary name when none is given.
constexpr wchar_t const* kDefaultTempExtension = L"tmp";
// The version the versioned file names carry: product 2017, build 23, 64-bit.
constexpr int kProductVersion = 2017;
constexpr int kProductBuild = 23;
constexpr int kProductBits = 64;

wchar_t const* orEmpty(wchar_t const* text) {
    return text != nullptr ? text : L"";
}

bool beginsAsNetworkName(wchar_t const* path) {
    return (path[0] == L'\\' && path[1] == L'\\') || (path[0] == L'/' && path[1] == L'/');
}

}  // namespace

bool fileExist(wchar_t const* path) {
    if (path == nullptr) {
        return false;
    }
    COrxString name(path);
    wchar_t const* expanded = dos_name(name);
    return expanded != nullptr && internal::pathExists(expanded);
}

wchar_t const* dos_name(COrxString& path) {
    if (path.isNull()) {
        return path;
    }
    std::wstring text(path);
    internal::useNativeSeparators(text);
    path = text.c_str();
    path.expandEnvironmentStrings();
    return path;
}

COrxString filePath(wchar_t const* path) {
    if (path == nullptr) {
        return COrxString(L"");
    }
    internal::PathParts const parts = internal::splitPath(internal::inputPath(path));
    return COrxString((parts.drive + parts.directory).c_str());
}

COrxString fileType(wchar_t const* path) {
    if (path == nullptr) {
        return COrxString(L"");
    }
    internal::PathParts const parts = internal::splitPath(internal::inputPath(path));
    return COrxString(parts.extension.empty() ? L"" : parts.extension.c_str() + 1);
}

COrxString stripPath(wchar_t const* path) {
    if (path == nullptr) {
        return COrxString(L"");
    }
    internal::PathParts const parts = internal::splitPath(internal::inputPath(path));
    return COrxString((parts.name + parts.extension).c_str());
}

COrxString tmp_dir() {
    std::wstring folder = internal::temporaryRoot();
    folder += internal::kPathSeparator;
    folder += internal::userFolderName(kTempFolderName);
    if (!internal::makePrivateDirectory(folder)) {
        return COrxString(L"");
    }
    folder += internal::kPathSeparator;
    return COrxString(folder.c_str());
}

COrxString fileNameTmp(wchar_t const* ext) {
    std::wstring const folder(tmp_dir());
    if (folder.empty()) {
        return COrxString(L"");
    }
    wchar_t const* extension = (ext == nullptr || ext[0] == L'\0') ? kDefaultTempExtension : ext;
    std::wstring const name = internal::freeTempName(folder, extension, [](std::uint64_t& number) {
        return internal::randomBytes(&number, sizeof number);
    });
    return COrxString(name.c_str());
}

bool fileNameUNC(COrxString& out, wchar_t const* path, bool local) {
    if (path == nullptr || beginsAsNetworkName(path)) {
        return false;
    }
    std::wstring absolute;
    if (!internal::absolutePath(internal::inputPath(path), absolute)) {
        return false;
    }
    std::wstring remote;
    switch (internal::locatePath(absolute, remote)) {
        case internal::PathLocation::network:
            out = remote.c_str();
            return true;
        case internal::PathLocation::unreachableNetwork:
            return false;
        case internal::PathLocation::local:
            break;
    }
    if (!local) {
        return false;
    }
    out = (internal::kLocalDevicePrefix + absolute).c_str();
    return true;
}

bool appFileName(COrxString& out, wchar_t const* base, wchar_t const* tag, wchar_t const* ext) {
    out.format(L"%s_%d_%d_%d_%s.%s", orEmpty(base), kProductVersion, kProductBuild, kProductBits,
               orEmpty(tag), orEmpty(ext));
    return true;
}

void generateMenuFileName(COrxString& out, wchar_t const* base, wchar_t const* ext) {
    out.format(L"%s_%d_%d.%s", orEmpty(base), kProductVersion, kProductBuild, orEmpty(ext));
}

bool GetCurrentDirectoryW(COrxString& dir) {
    std::wstring current;
    unsigned long const reported = internal::currentDirectory(current);
    dir = current.c_str();
    // Deliberately "exactly one character": callers read the string and ignore the result.
    return reported == 1;
}

}  // namespace ORX
