#include "orx/services/process.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "test_support.h"

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

// How long the helper waits before it writes its file in the tests that must not wait for
// it, and how long a test waits for a file at most.
constexpr int kHelperDelayMs = 1500;
constexpr std::chrono::seconds kPatience(60);

// A command line that runs the helper, which records `arguments` (command-line text) into
// `file` after `delayMs`.
std::wstring helperCommand(fs::path const& file, int delayMs, std::wstring const& arguments) {
    return L"\"" + orx_test::programBeside("orx_record_args").wstring() + L"\" \"" +
           file.wstring() + L"\" " + std::to_wstring(delayMs) + L" " + arguments;
}

std::vector<std::string> linesOf(fs::path const& file) {
    std::ifstream in(file, std::ios::binary);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    return lines;
}

bool appears(fs::path const& file) {
    for (auto const end = Clock::now() + kPatience; Clock::now() < end;) {
        if (fs::exists(file)) {
            return true;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return false;
}

}  // namespace

TEST(ExecuteTest, WaitsForTheProgramAndSplitsArgumentsAsWindowsDoes) {
    orx_test::ScratchDirectory scratch;
    fs::path const file = scratch.path() / "args.txt";
    std::wstring const arguments =
        L"\"two words\" say\\\"hi\\\" \"trailing back\\\\\" back\\slash a\\\\\\\"b \"\" "
        L"x\"y z\"w \t last";
    ASSERT_EQ(ORX::execute(helperCommand(file, 0, arguments).c_str(), 60000, false), 1);
    ASSERT_TRUE(fs::exists(file)) << "execute returned before the program ended";
    EXPECT_EQ(linesOf(file),
              (std::vector<std::string>{"two words", "say\"hi\"", "trailing back\\", "back\\slash",
                                        "a\\\"b", "", "xy zw", "last"}));
}

TEST(ExecuteTest, ReturnsAtOnceWithoutWaitAndStopsWaitingAfterWaitMs) {
    orx_test::ScratchDirectory scratch;
    fs::path const unwaited = scratch.path() / "unwaited.txt";
    fs::path const bounded = scratch.path() / "bounded.txt";

    ASSERT_EQ(ORX::execute(helperCommand(unwaited, kHelperDelayMs, L"a").c_str(), 0, true), 1);
    EXPECT_FALSE(fs::exists(unwaited));

    auto const start = Clock::now();
    ASSERT_EQ(ORX::execute(helperCommand(bounded, kHelperDelayMs, L"b").c_str(), 100, false), 1);
    std::chrono::duration<double> const waited = Clock::now() - start;
    EXPECT_FALSE(fs::exists(bounded));
    EXPECT_GE(waited.count(), 0.09);

    // Both programs still run to their end.
    ASSERT_TRUE(appears(unwaited));
    ASSERT_TRUE(appears(bounded));
    EXPECT_EQ(linesOf(unwaited), std::vector<std::string>{"a"});
}

TEST(ExecuteTest, StartsNothingForBlankLinesAndMissingPrograms) {
    orx_test::ScratchDirectory scratch;
    EXPECT_EQ(ORX::execute(nullptr, 0, false), 0);
    EXPECT_EQ(ORX::execute(L"", 0, false), 0);
    EXPECT_EQ(ORX::execute(L" \t ", 0, false), 0);
    std::wstring const missing = L"\"" + (scratch / L"no_such_program") + L"\" x";
    EXPECT_EQ(ORX::execute(missing.c_str(), 1000, false), 0);
}
