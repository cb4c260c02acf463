// A Windows command line split into arguments (see ORX::execute in process.h for the rules).
#ifndef ORX_SERVICES_POSIX_COMMAND_LINE_H
#define ORX_SERVICES_POSIX_COMMAND_LINE_H

#include <string>
#include <vector>

namespace ORX::internal {

// The program name first, then the arguments; empty for a blank command line.
std::vector<std::wstring> splitCommandLine(std::wstring const& commandLine);

}  // namespace ORX::internal

#endif  // ORX_SERVICES_POSIX_COMMAND_LINE_H
