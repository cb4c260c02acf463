// Every `orx` example of the two READMEs runs as written: each indented line that starts with
// "orx " is run from a folder that sees the source tree's tests/ (the examples name files in
// tests/tool/data and write their results beside them).
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "tool_runner.h"

namespace {

std::vector<std::string> examples(std::string const& readme) {
    std::ifstream in(std::string(ORX_SOURCE_DIR) + "/" + readme);
    EXPECT_TRUE(in) << readme;
    std::vector<std::string> found;
    std::string line;
    while (std::getline(in, line)) {
        if (line.rfind("    orx ", 0) == 0) {
            found.push_back(line.substr(4));
        }
    }
    return found;
}

std::vector<std::string> words(std::string const& command) {
    std::istringstream in(command);
    std::vector<std::string> list;
    for (std::string word; in >> word;) {
        list.push_back(word);
    }
    return std::vector<std::string>(list.begin() + 1, list.end());  // without "orx"
}

TEST(OrxReadmeTest, EveryExampleRunsAsWritten) {
    Scratch scratch;
    std::filesystem::create_directory_symlink(std::string(ORX_SOURCE_DIR) + "/tests",
                                              scratch.path("tests"));
    std::size_t count = 0;
    for (char const* readme : {"README.md", "tools/orx/README.md"}) {
        for (std::string const& example : examples(readme)) {
            SCOPED_TRACE(std::string(readme) + ": " + example);
            ToolRun run = scratch.orx(words(example));
            EXPECT_EQ(run.status, 0) << run.err;
            ++count;
        }
    }
    EXPECT_GE(count, 12u);  // the examples were found at all
}

}  // namespace
