// orx: the library's profile outlines, boolean operations, regions and offsets from the
// command line.
//
// Every command reads DXF or JSON and writes DXF, JSON or SVG, chosen by the file name. Bad
// input ends the program with one line on standard error that names the file and the line or
// entity, and exit status 2; so do usage errors. The line holds printable text only and is
// of bounded length, whatever the input held.
#include <CLI/CLI.hpp>

#include <cstdio>
#include <exception>
#include <functional>
#include <string>
#include <vector>

#include "commands.h"
#include "message_text.h"
#include "orx/services/version.h"
#include "profile_samples.h"
#include "tool_error.h"

namespace {

using orxtool::kExitBadInput;

struct Arguments {
    int code = 0;
    std::string dims, offset, operation, first, second, output, input, distance;
    std::vector<std::string> inputs, points;
    bool markers = false;
    std::string directory = "orx-demo";
};

void addOperands(CLI::App* command, Arguments& args) {
    command->add_option("operation", args.operation, "union, diff or sect")->required();
    command->add_option("A", args.first, "first operand (.dxf or .json)")->required();
    command->add_option("B", args.second, "second operand (.dxf or .json)")->required();
    command->add_option("-o,--output", args.output, "result (.dxf, .json or .svg)")->required();
}

// `orx outline`, with the list of profile codes.
void declareOutline(CLI::App& app, Arguments& args, std::function<int()>& run) {
    CLI::App* outline = app.add_subcommand("outline", "Write the outline of a profile code");
    outline->add_flag_callback(
        "--list",
        [] {
            std::fputs(orxtool::profileCodeList().c_str(), stdout);
            throw CLI::Success();
        },
        "print every profile code with its name and the meaning of its dimensions");
    outline->footer("Profile codes and their dimensions:\n" + orxtool::profileCodeList());
    outline->add_option("CODE", args.code, "profile code (see --list)")->required();
    outline->add_option("--dims", args.dims, "dimensions d0,d1,...");
    outline->add_option("--offset", args.offset, "translation X,Y");
    outline->add_option("-o,--output", args.output, "result (.dxf, .json or .svg)")->required();
    outline->callback([&] {
        run = [&] { return orxtool::runOutline(args.code, args.dims, args.offset, args.output); };
    });
}

// Declares the commands; `run` is set to the one chosen.
void declareCommands(CLI::App& app, Arguments& args, std::function<int()>& run) {
    app.add_subcommand("version", "Print the library version and the build's platform")
        ->callback([&] { run = [] { return orxtool::runVersion(); }; });
    app.add_subcommand("help", "Print this overview")->callback([&] {
        run = [&] {
            // The formatter directly: App::help would describe the chosen command, "help".
            std::fputs(
                app.get_formatter()->make_help(&app, "orx", CLI::AppFormatMode::Normal).c_str(),
                stdout);
            std::puts("orx COMMAND --help describes one command.");
            return 0;
        };
    });
    declareOutline(app, args, run);

    CLI::App* boolean =
        app.add_subcommand("bool", "Combine the first closed polyline of each input");
    addOperands(boolean, args);
    boolean->callback([&] {
        run = [&] {
            return orxtool::runBool(args.operation, args.first, args.second, args.output);
        };
    });

    CLI::App* region = app.add_subcommand("region", "Combine the regions of each input");
    addOperands(region, args);
    region->callback([&] {
        run = [&] {
            return orxtool::runRegion(args.operation, args.first, args.second, args.output);
        };
    });

    CLI::App* info = app.add_subcommand("info", "Report segments, lengths, areas and regions");
    info->add_option("FILE", args.input, "input (.dxf or .json)")->required();
    info->callback([&] { run = [&] { return orxtool::runInfo(args.input); }; });

    CLI::App* locate =
        app.add_subcommand("locate", "Tell whether points lie inside, on or outside the regions");
    locate->add_option("FILE", args.input, "input (.dxf or .json)")->required();
    locate->add_option("POINT", args.points, "points X,Y (negative numbers as written)")
        ->required();
    locate->callback([&] { run = [&] { return orxtool::runLocate(args.input, args.points); }; });

    CLI::App* offset = app.add_subcommand("offset", "Offset every polyline by a distance");
    offset->add_option("FILE", args.input, "input (.dxf or .json)")->required();
    offset
        ->add_option("--distance", args.distance,
                     "offset distance, positive to the right of the direction of travel")
        ->required();
    offset->add_option("-o,--output", args.output, "result (.dxf, .json or .svg)")->required();
    offset->callback(
        [&] { run = [&] { return orxtool::runOffset(args.input, args.distance, args.output); }; });

    CLI::App* convert = app.add_subcommand("convert", "Write the polylines in another format");
    convert->add_option("FILE", args.input, "input (.dxf or .json)")->required();
    convert->add_option("-o,--output", args.output, "result (.dxf, .json or .svg)")->required();
    convert->callback([&] { run = [&] { return orxtool::runConvert(args.input, args.output); }; });

    CLI::App* render = app.add_subcommand("render", "Draw files as one SVG picture");
    render->add_option("FILE", args.inputs, "inputs (.dxf or .json)")->required();
    render->add_option("-o,--output", args.output, "picture (.svg)")->required();
    render->add_flag("-m,--markers", args.markers, "mark every vertex");
    render->callback(
        [&] { run = [&] { return orxtool::runRender(args.inputs, args.output, args.markers); }; });

    CLI::App* demo = app.add_subcommand("demo", "Write a gallery of outlines and operations");
    demo->add_option("DIR", args.directory, "folder of the gallery (default orx-demo)");
    demo->callback([&] { run = [&] { return orxtool::runDemo(args.directory); }; });
}

bool isCommand(CLI::App& app, std::string const& name) {
    for (CLI::App const* command : app.get_subcommands({})) {
        if (command->get_name() == name) {
            return true;
        }
    }
    return false;
}

// Reports the message as the one line of a failed run.
int fail(std::string const& message) {
    std::fprintf(stderr, "orx: %s\n", orxtool::printableLine(message).c_str());
    return kExitBadInput;
}

std::string versionText() {
    char text[256];
    std::snprintf(text, sizeof text, "%ls", ORX::version());
    return text;
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App app{"orx: profile outlines, booleans, regions and offsets of bulge polylines"};
    app.require_subcommand(1);
    // File names may start with '/' (Wine, MSYS shells); CLI11 would take them for options
    // on Windows. Set before the commands are declared, which inherit it.
    app.allow_windows_style_options(false);
    Arguments args;
    std::function<int()> run;
    app.set_version_flag("--version", versionText(), "Print the library version and exit");
    declareCommands(app, args, run);
    if (argc > 1 && argv[1][0] != '-' && !isCommand(app, argv[1])) {
        return fail("unknown command " + orxtool::quotedInput(argv[1]) + " (see orx --help)");
    }
    try {
        app.parse(argc, argv);
    } catch (CLI::ParseError const& e) {
        if (e.get_exit_code() == 0) {
            return app.exit(e);  // --help, --version, --list
        }
        return fail(std::string(e.what()) + " (see orx --help)");
    }
    try {
        return run ? run() : kExitBadInput;
    } catch (orxtool::ToolError const& e) {
        return fail(e.what());
    } catch (std::exception const& e) {
        std::fprintf(stderr, "orx: internal error: %s\n", orxtool::printableLine(e.what()).c_str());
        return 1;
    }
}
