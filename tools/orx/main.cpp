// orx: the library's geometry from the command line.
#include <CLI/CLI.hpp>

#include <cstdio>

#include "orx/orx.h"

namespace {

char const* platformName() {
#if defined(_WIN32)
    return "Windows x64";
#else
    return "Linux x86_64";
#endif
}

int printVersion() {
    std::printf("%ls\n%s\n", ORX::version(), platformName());
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App app{"orx: profile outlines, booleans and regions of bulge polylines"};
    app.require_subcommand(1);
    int status = 0;
    app.add_subcommand("version", "Print the library version and the build's platform")
        ->callback([&status] { status = printVersion(); });
    CLI11_PARSE(app, argc, argv);
    return status;
}
