#include "orx/services/posix/registry_location.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <vector>

namespace ORX::internal {
namespace {

// The folder below a configuration folder that holds the hives.
constexpr char const* kRegistrySubFolder = "/orx/registry";
// The XDG default of $XDG_CONFIG_DIRS.
constexpr char const* kDefaultSystemConfig = "/etc/xdg";

char const* fileName(HiveKind kind) {
    switch (kind) {
        case HiveKind::kClasses:
            return "classes.db";
        case HiveKind::kUser:
            return "user.db";
        case HiveKind::kMachine:
            break;
    }
    return "machine.db";
}

// XDG ignores relative folders in its variables.
bool isAbsolute(std::string const& path) {
    return !path.empty() && path[0] == '/';
}

std::string environment(char const* name) {
    char const* const value = std::getenv(name);
    return value == nullptr ? std::string() : std::string(value);
}

std::string homeFolder() {
    std::string home = environment("HOME");
    if (isAbsolute(home)) {
        return home;
    }
    long const bufferSize = sysconf(_SC_GETPW_R_SIZE_MAX);
    std::vector<char> buffer(bufferSize > 0 ? static_cast<std::size_t>(bufferSize) : 16384);
    passwd entry{};
    passwd* found = nullptr;
    if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) == 0 &&
        found != nullptr && found->pw_dir != nullptr) {
        home = found->pw_dir;
    }
    return isAbsolute(home) ? home : std::string();
}

std::string userConfigFolder() {
    std::string configHome = environment("XDG_CONFIG_HOME");
    if (isAbsolute(configHome)) {
        return configHome;
    }
    std::string const home = homeFolder();
    return home.empty() ? std::string() : home + "/.config";
}

// The first absolute entry of $XDG_CONFIG_DIRS, the most important one.
std::string systemConfigFolder() {
    std::string const list = environment("XDG_CONFIG_DIRS");
    std::size_t start = 0;
    while (start <= list.size()) {
        std::size_t end = list.find(':', start);
        if (end == std::string::npos) {
            end = list.size();
        }
        std::string entry = list.substr(start, end - start);
        if (isAbsolute(entry)) {
            return entry;
        }
        start = end + 1;
    }
    return kDefaultSystemConfig;
}

}  // namespace

std::string hiveFile(HiveKind kind) {
    std::string const chosen = environment("ORX_REGISTRY_DIR");
    if (!chosen.empty()) {
        return chosen + "/" + fileName(kind);
    }
    std::string const folder = kind == HiveKind::kUser ? userConfigFolder() : systemConfigFolder();
    return folder.empty() ? std::string() : folder + kRegistrySubFolder + "/" + fileName(kind);
}

}  // namespace ORX::internal
