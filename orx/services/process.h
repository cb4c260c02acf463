// ORX::execute: starts another program.
//
//     ORX::execute(L"\"C:\\Program Files\\Viewer\\viewer.exe\" \"hall plan.dwg\"", 0, true);
//     ORX::execute(L"convert -q in.dxf out.dwg", 60000, false);   // waits up to a minute
#ifndef ORX_SERVICES_PROCESS_H
#define ORX_SERVICES_PROCESS_H

#include "orx/foundation/platform.h"
#include "orx/services/handles.h"

namespace ORX {

// Starts the command line as a new process in the current directory, without passing on
// the caller's handles. When waitMs is not 0 waits up to waitMs milliseconds for it to end
// (ORX::kWaitForever: until it ends); whether it ended is not reported. Returns 1 when the process
// was started, else 0 (also for a null or blank command line).
// Windows: CreateProcessW with the command line as it is; show chooses SW_SHOWNORMAL or
// SW_SHOWNOACTIVATE for the new window.
// Linux: posix_spawn. The command line is split as Windows programs split theirs: arguments
// are separated by spaces and tabs; "..." groups text with spaces into one argument (the
// quotes are removed, and "" inside a quoted part is one literal quote); 2n backslashes
// before a quote give n backslashes and the quote groups, 2n+1 give n backslashes and a
// literal quote; other backslashes are kept as they are. The program name (the first
// argument) ends at the next space outside quotes, with no backslash escapes, and is looked
// up in PATH when it contains no '/'. Only descriptors 0, 1 and 2 are passed on; show is
// ignored. A child that is still running after the wait is reaped by a background thread
// when it ends, so that none is left as a zombie.
ORX_API int execute(wchar_t const* cmdLine, unsigned long waitMs, bool show);

}  // namespace ORX

#endif  // ORX_SERVICES_PROCESS_H
