#include "orx/services/posix/command_line.h"

namespace ORX::internal {
namespace {

bool isBlank(wchar_t c) {
    return c == L' ' || c == L'\t';
}

std::size_t skipBlanks(std::wstring const& text, std::size_t at) {
    while (at < text.size() && isBlank(text[at])) {
        ++at;
    }
    return at;
}

// The program name: quotes group and are dropped, backslashes are plain characters.
std::wstring readProgramName(std::wstring const& text, std::size_t& at) {
    std::wstring name;
    bool quoted = false;
    for (; at < text.size() && (quoted || !isBlank(text[at])); ++at) {
        if (text[at] == L'"') {
            quoted = !quoted;
        } else {
            name += text[at];
        }
    }
    return name;
}

// One argument, read from at up to the blank that ends it.
std::wstring readArgument(std::wstring const& text, std::size_t& at) {
    std::wstring argument;
    bool quoted = false;
    while (at < text.size()) {
        std::size_t backslashes = 0;
        while (at < text.size() && text[at] == L'\\') {
            ++backslashes;
            ++at;
        }
        if (at < text.size() && text[at] == L'"') {
            argument.append(backslashes / 2, L'\\');
            if (backslashes % 2 == 1) {
                argument += L'"';  // escaped quote
            } else if (quoted && at + 1 < text.size() && text[at + 1] == L'"') {
                argument += L'"';  // "" inside quotes: one literal quote, still quoted
                ++at;
            } else {
                quoted = !quoted;
            }
            ++at;
            continue;
        }
        argument.append(backslashes, L'\\');
        if (at >= text.size() || (!quoted && isBlank(text[at]))) {
            break;
        }
        argument += text[at++];
    }
    return argument;
}

}  // namespace

std::vector<std::wstring> splitCommandLine(std::wstring const& commandLine) {
    std::vector<std::wstring> arguments;
    std::size_t at = skipBlanks(commandLine, 0);
    if (at >= commandLine.size()) {
        return arguments;
    }
    arguments.push_back(readProgramName(commandLine, at));
    for (at = skipBlanks(commandLine, at); at < commandLine.size();
         at = skipBlanks(commandLine, at)) {
        arguments.push_back(readArgument(commandLine, at));
    }
    return arguments;
}

}  // namespace ORX::internal
