// ToolError: bad input or an impossible request, reported by main as one line on standard
// error with exit status 2. The message already names the file and the line or entity.
#ifndef ORX_TOOL_TOOL_ERROR_H
#define ORX_TOOL_TOOL_ERROR_H

#include <stdexcept>
#include <string>

namespace orxtool {

class ToolError : public std::runtime_error {
public:
    explicit ToolError(std::string const& message) : std::runtime_error(message) {}
};

// Exit status for bad input and for usage errors.
constexpr int kExitBadInput = 2;

}  // namespace orxtool

#endif  // ORX_TOOL_TOOL_ERROR_H
