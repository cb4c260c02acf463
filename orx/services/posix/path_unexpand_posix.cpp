// The Linux counterpart of PathUnExpandEnvStringsW: a path inside one of the user's folders
// named by the environment is written with that variable in place of the folder, so that it
// follows the user when the value is read back with its references expanded.
#include <cstdlib>
#include <cwchar>
#include <string>

#include "orx/foundation/shared/utf8.h"
#include "orx/services/internal/registry_api.h"

namespace ORX::internal {
namespace {

// The folders that may stand for the start of a path; the longest match wins, so a path in
// ~/.config becomes %XDG_CONFIG_HOME%/... rather than %HOME%/.config/...
constexpr char const* kFolderVariables[] = {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME",
                                            "TMPDIR", "HOME"};

// The variable's folder without a trailing "/"; empty when it is unset, relative or "/".
std::wstring folderOf(char const* variable) {
    char const* const value = std::getenv(variable);
    if (value == nullptr || value[0] != '/') {
        return std::wstring();
    }
    std::wstring folder = fromUtf8(value);
    while (!folder.empty() && folder.back() == L'/') {
        folder.pop_back();
    }
    return folder;
}

// The folder must be followed by "/" or end the path: /home/ann does not start /home/anna.
bool startsWithFolder(std::wstring const& path, std::wstring const& folder) {
    return !folder.empty() && path.compare(0, folder.size(), folder) == 0 &&
           (path.size() == folder.size() || path[folder.size()] == L'/');
}

}  // namespace

bool pathUnExpandEnvStrings(wchar_t const* path, wchar_t* out, unsigned long outChars) {
    if (path == nullptr || out == nullptr) {
        return false;
    }
    std::wstring const text(path);
    char const* best = nullptr;
    std::size_t bestLength = 0;
    for (char const* variable : kFolderVariables) {
        std::wstring const folder = folderOf(variable);
        if (folder.size() > bestLength && startsWithFolder(text, folder)) {
            best = variable;
            bestLength = folder.size();
        }
    }
    if (best == nullptr) {
        return false;
    }
    std::wstring const shortened = L"%" + fromUtf8(best) + L"%" + text.substr(bestLength);
    if (shortened.size() + 1 > outChars) {
        return false;
    }
    std::wmemcpy(out, shortened.c_str(), shortened.size() + 1);
    return true;
}

}  // namespace ORX::internal
