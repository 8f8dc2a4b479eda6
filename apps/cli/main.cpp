#include "DrawCommand.h"
#include "UserError.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <sstream>

namespace {

constexpr int kInputFailed = 1;
constexpr int kWrongUsage = 2;

/// Each line of a message on its own, after the program's name.
void Complain(const std::string& message) {
    std::istringstream lines(message);
    for (std::string line; std::getline(lines, line);) {
        std::cerr << "millichart: " << line << '\n';
    }
}

int Run(int argc, char** argv) {
    CLI::App app{"Draws chart documents.", "millichart"};
    app.require_subcommand(1);
    cli::DrawOptions options;
    CLI::App* draw = app.add_subcommand("draw", "Draw a chart document as a PNG, SVG or PDF");
    draw->add_option("FILE", options.Input, "the chart document (JSON)")->required();
    draw->add_option("-o,--output", options.Output, "the picture to write, ending in .png, .svg or .pdf")
        ->required();
    draw->add_option("--dpi", options.Dpi, "dots per inch of a PNG")
        ->check(CLI::Range(10.0, 2400.0))
        ->capture_default_str();
    draw->add_flag("--outlines", options.TextAsOutlines, "write an SVG's texts as glyph outlines");
    draw->add_flag("-v,--verbose", options.Verbose, "tell which faces the fonts are drawn in");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : kWrongUsage;
    }
    cli::Draw(options);
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    try {
        return Run(argc, argv);
    } catch (const cli::UserError& error) {
        Complain(error.what());
    } catch (const std::exception& error) {
        Complain(std::string("stopped: ") + error.what());
    }
    return kInputFailed;
}
