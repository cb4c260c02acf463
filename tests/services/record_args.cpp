// A helper program for the execute tests: record_args <file> <delay ms> [arguments...]
// waits for the delay, then writes each further argument on a line of its own into <file>.
// It writes a side file first and renames it, so that <file> appears complete at once.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>

int main(int argc, char** argv) {
    if (argc < 3) {
        return 2;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(std::atol(argv[2])));
    std::string const target = argv[1];
    std::string const partial = target + ".part";
    FILE* out = std::fopen(partial.c_str(), "wb");
    if (out == nullptr) {
        return 1;
    }
    for (int i = 3; i < argc; ++i) {
        std::fprintf(out, "%s\n", argv[i]);
    }
    std::fclose(out);
    return std::rename(partial.c_str(), target.c_str()) == 0 ? 0 : 1;
}
