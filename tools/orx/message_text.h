// Text of the tool's messages: whatever a file or an argument holds is echoed as one line
// of printable characters of bounded length, so that a 10 MB line or binary garbage cannot
// flood the terminal or send control bytes to it.
#ifndef ORX_TOOL_MESSAGE_TEXT_H
#define ORX_TOOL_MESSAGE_TEXT_H

#include <string>
#include <string_view>

namespace orxtool {

// Characters of input quoted in a message, before it is cut with "...".
constexpr std::size_t kQuotedInputChars = 40;
// Characters of a whole message line, before it is cut with "...".
constexpr std::size_t kMessageLineChars = 400;

// Input text for a message, in single quotes: every byte outside printable ASCII as \xNN,
// cut after kQuotedInputChars characters ("'abc...'").
std::string quotedInput(std::string_view text);

// A whole message made safe to print: control bytes (line breaks included) as \xNN, cut
// after kMessageLineChars characters. Bytes of UTF-8 text (file names) pass unchanged.
std::string printableLine(std::string_view text);

}  // namespace orxtool

#endif  // ORX_TOOL_MESSAGE_TEXT_H
