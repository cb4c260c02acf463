// ORX::execute on Linux: posix_spawn with the command line split by the Windows rules.
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

#include "orx/foundation/shared/utf8.h"
#include "orx/services/posix/command_line.h"
#include "orx/services/process.h"

extern char** environ;

namespace ORX {
namespace {

// The first descriptor the child does not get: it keeps standard input, output and error.
constexpr int kFirstClosedDescriptor = 3;
// How often a bounded wait looks whether the child has ended.
constexpr std::chrono::milliseconds kWaitPollInterval(2);

// Whether the child has been reaped (or cannot be waited for any more).
bool reaped(pid_t child, int options) {
    for (;;) {
        pid_t const result = waitpid(child, nullptr, options);
        if (result == child) {
            return true;
        }
        if (result == 0) {
            return false;
        }
        if (errno != EINTR) {
            return true;  // ECHILD: already reaped elsewhere (SIGCHLD ignored)
        }
    }
}

bool waitUpTo(pid_t child, unsigned long waitMs) {
    if (waitMs == kWaitForever) {
        return reaped(child, 0);
    }
    auto const deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(waitMs);
    while (!reaped(child, WNOHANG)) {
        auto const now = std::chrono::steady_clock::now();
        if (now >= deadline) {
            return false;
        }
        std::this_thread::sleep_for(
            std::min<std::chrono::steady_clock::duration>(kWaitPollInterval, deadline - now));
    }
    return true;
}

// A child still running is collected when it ends, as closing its handle lets a Windows
// process go. Without a thread to spare it stays a zombie until this process ends.
void reapLater(pid_t child) {
    try {
        std::thread([child] { reaped(child, 0); }).detach();
    } catch (std::system_error const&) {
    }
}

pid_t spawn(std::vector<std::string> const& arguments) {
    std::vector<char*> argv;
    argv.reserve(arguments.size() + 1);
    for (std::string const& argument : arguments) {
        argv.push_back(const_cast<char*>(argument.c_str()));
    }
    argv.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addclosefrom_np(&actions, kFirstClosedDescriptor);
    pid_t child = 0;
    int const error = posix_spawnp(&child, argv[0], &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    return error == 0 ? child : -1;
}

}  // namespace

int execute(wchar_t const* cmdLine, unsigned long waitMs, bool /*show*/) {
    if (cmdLine == nullptr) {
        return 0;
    }
    std::vector<std::string> arguments;
    for (std::wstring const& argument : internal::splitCommandLine(cmdLine)) {
        arguments.push_back(internal::toUtf8(argument));
    }
    if (arguments.empty() || arguments[0].empty()) {
        return 0;
    }
    pid_t const child = spawn(arguments);
    if (child <= 0) {
        return 0;
    }
    if (waitMs == 0 || !waitUpTo(child, waitMs)) {
        reapLater(child);
    }
    return 1;
}

}  // namespace ORX
