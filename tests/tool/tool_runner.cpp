#include "tool_runner.h"

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace {

std::string quoted(std::string const& word) {
    std::string out = "'";
    for (char c : word) {
        out += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return out + "'";
}

}  // namespace

Scratch::Scratch() {
    std::string pattern =
        (std::filesystem::temp_directory_path() / "orx-tool-test-XXXXXX").string();
    char* made = mkdtemp(pattern.data());
    m_dir = made != nullptr ? made : "";
}

Scratch::~Scratch() {
    std::error_code ignored;
    std::filesystem::remove_all(m_dir, ignored);
}

std::string Scratch::path(std::string const& name) const {
    return m_dir + "/" + name;
}

std::string Scratch::write(std::string const& name, std::string const& text) const {
    std::ofstream(path(name), std::ios::binary) << text;
    return path(name);
}

std::string Scratch::read(std::string const& name) const {
    std::ifstream in(path(name), std::ios::binary);
    return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

bool Scratch::exists(std::string const& name) const {
    return std::filesystem::exists(path(name));
}

ToolRun Scratch::orx(std::vector<std::string> const& args, std::string const& shellSetup) const {
    std::string command = "cd " + quoted(m_dir) + " && " + shellSetup +
                          (shellSetup.empty() ? "" : "; ") + quoted(ORX_TOOL_PATH);
    for (std::string const& arg : args) {
        command += " " + quoted(arg);
    }
    command += " >" + quoted(path(".stdout")) + " 2>" + quoted(path(".stderr"));
    int raw = std::system(command.c_str());
    ToolRun run;
    run.status = raw != -1 && WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
    run.out = read(".stdout");
    run.err = read(".stderr");
    return run;
}

std::string dataFile(std::string const& name) {
    return std::string(ORX_TOOL_DATA) + "/" + name;
}

double regionAreaSum(std::string const& infoOutput) {
    double sum = 0.0;
    std::istringstream lines(infoOutput);
    std::string line;
    std::string const areaMark = ": area ";
    while (std::getline(lines, line)) {
        std::size_t area = line.rfind(areaMark);
        if (line.rfind("region ", 0) == 0 && area != std::string::npos) {
            sum += std::stod(line.substr(area + areaMark.size()));
        }
    }
    return sum;
}

std::string svgRenderer() {
    return ORX_RSVG_CONVERT;
}
