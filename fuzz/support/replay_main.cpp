// The replay program of a fuzz target for builds without libFuzzer: runs the target's
// LLVMFuzzerTestOneInput once over every file named on the command line, and over every file
// of every folder named there (in name order). A failed check or a sanitizer report ends the
// program; the name of the file that was running is printed before it.
//
//     orx_replay_boolean_ops fuzz/corpus/boolean_ops fuzz/regressions/boolean_ops
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> inputsOf(fs::path const& path) {
    std::vector<fs::path> files;
    if (!fs::is_directory(path)) {
        files.push_back(path);
        return files;
    }
    for (fs::directory_entry const& entry : fs::directory_iterator(path)) {
        if (entry.is_regular_file()) {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

bool replay(fs::path const& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        std::fprintf(stderr, "replay: cannot read %s\n", file.string().c_str());
        return false;
    }
    std::vector<char> const bytes((std::istreambuf_iterator<char>(in)),
                                  std::istreambuf_iterator<char>());
    std::fprintf(stderr, "replay: %s\n", file.string().c_str());
    std::vector<std::uint8_t> const data(bytes.begin(), bytes.end());
    LLVMFuzzerTestOneInput(data.data(), data.size());
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    std::size_t count = 0;
    for (int i = 1; i < argc; ++i) {
        if (!fs::exists(argv[i])) {
            std::fprintf(stderr, "replay: %s does not exist\n", argv[i]);
            return 1;
        }
        for (fs::path const& file : inputsOf(argv[i])) {
            if (!replay(file)) {
                return 1;
            }
            ++count;
        }
    }
    std::printf("replayed %lu inputs\n", static_cast<unsigned long>(count));
    return 0;
}
