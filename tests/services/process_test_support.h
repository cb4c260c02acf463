// Linux tests that start other programs: started with the test's environment and, when
// asked, their output in a pipe.
#ifndef ORX_TESTS_SERVICES_PROCESS_TEST_SUPPORT_H
#define ORX_TESTS_SERVICES_PROCESS_TEST_SUPPORT_H

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>
#include <vector>

#include "orx/foundation/string.h"

extern char** environ;

namespace orx_test {

// UTF-8 text for a command line.
inline std::string narrow(COrxString const& text) {
    char* bytes = nullptr;
    text.toMultiByte(bytes, 65001);
    std::string const result = bytes == nullptr ? std::string() : std::string(bytes);
    delete[] bytes;
    return result;
}

// Starts arguments[0] (looked up in PATH when it has no "/"). With `output`, its standard
// output goes to a pipe whose reading end `output` receives. The process id, or -1.
inline pid_t spawnProgram(std::vector<std::string> arguments, int* output = nullptr) {
    int pipeEnds[2] = {-1, -1};
    if (output != nullptr && pipe(pipeEnds) != 0) {
        return -1;
    }
    std::vector<char*> argv;
    for (std::string& argument : arguments) {
        argv.push_back(argument.data());
    }
    argv.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    if (output != nullptr) {
        posix_spawn_file_actions_adddup2(&actions, pipeEnds[1], STDOUT_FILENO);
        posix_spawn_file_actions_addclose(&actions, pipeEnds[0]);
    }
    pid_t pid = -1;
    if (posix_spawnp(&pid, argv[0], &actions, nullptr, argv.data(), environ) != 0) {
        pid = -1;
    }
    posix_spawn_file_actions_destroy(&actions);
    if (output != nullptr) {
        close(pipeEnds[1]);
        *output = pipeEnds[0];
    }
    return pid;
}

// Everything a pipe delivers until its writers have closed it.
inline std::string readAll(int input) {
    std::string text;
    char buffer[4096];
    for (ssize_t got = 0; (got = read(input, buffer, sizeof buffer)) > 0;) {
        text.append(buffer, static_cast<std::size_t>(got));
    }
    return text;
}

// The exit status, or 128 + the signal that ended the process.
inline int waitForExit(pid_t pid) {
    int status = 0;
    if (waitpid(pid, &status, 0) != pid) {
        return -1;
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

inline void terminate(pid_t pid) {
    if (pid > 0) {
        kill(pid, SIGTERM);
        waitForExit(pid);
    }
}

}  // namespace orx_test

#endif  // ORX_TESTS_SERVICES_PROCESS_TEST_SUPPORT_H
