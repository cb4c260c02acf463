// ORX::execute on Windows: CreateProcessW.
#include <windows.h>

#include <vector>

#include "orx/foundation/string.h"
#include "orx/services/files.h"
#include "orx/services/process.h"

namespace ORX {

int execute(wchar_t const* cmdLine, unsigned long waitMs, bool show) {
    if (cmdLine == nullptr) {
        return 0;
    }
    // CreateProcessW may write into the command line, so it gets a copy.
    std::vector<wchar_t> commandLine(cmdLine, cmdLine + wcslen(cmdLine) + 1);
    COrxString directory;
    GetCurrentDirectoryW(directory);  // the string counts, not the result
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = static_cast<WORD>(show ? SW_SHOWNORMAL : SW_SHOWNOACTIVATE);
    PROCESS_INFORMATION process{};
    BOOL const created = CreateProcessW(
        nullptr, commandLine.data(), nullptr, nullptr, FALSE, NORMAL_PRIORITY_CLASS, nullptr,
        directory.len() > 0 ? static_cast<wchar_t const*>(directory) : nullptr, &startup, &process);
    if (!created) {
        return 0;
    }
    if (waitMs != 0) {
        WaitForSingleObject(process.hProcess, waitMs);
    }
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return 1;
}

}  // namespace ORX
