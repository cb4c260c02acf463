// Runs the built orx tool for the end-to-end tests, in a scratch folder of its own.
#ifndef ORX_TESTS_TOOL_TOOL_RUNNER_H
#define ORX_TESTS_TOOL_TOOL_RUNNER_H

#include <string>
#include <vector>

struct ToolRun {
    int status = -1;  // the exit status; -1 when the tool did not exit normally
    std::string out;  // standard output
    std::string err;  // standard error
};

// A scratch folder, removed with the object; the tool runs inside it.
class Scratch {
public:
    Scratch();
    ~Scratch();
    Scratch(Scratch const&) = delete;
    Scratch& operator=(Scratch const&) = delete;

    std::string path(std::string const& name) const;
    // Writes a file into the folder and returns its path.
    std::string write(std::string const& name, std::string const& text) const;
    std::string read(std::string const& name) const;
    bool exists(std::string const& name) const;

    // `orx` with the arguments (each passed as one word), run inside the folder; `shellSetup`
    // is run by the same shell first (such as "ulimit -f 8").
    ToolRun orx(std::vector<std::string> const& args, std::string const& shellSetup = "") const;

private:
    std::string m_dir;
};

// A file of tests/tool/data.
std::string dataFile(std::string const& name);

// The summed areas of the "region N: ... area X" lines of `orx info`.
double regionAreaSum(std::string const& infoOutput);

// The path of rsvg-convert, empty when the build found none.
std::string svgRenderer();

#endif  // ORX_TESTS_TOOL_TOOL_RUNNER_H
