#include "commands/CommandLine.h"

#include "documents/ChartContent.h"
#include "files/Console.h"
#include "pages/Platform.h"
#include "penlode/streams/TextForms.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cctype>
#include <string_view>

namespace cli {
namespace {

constexpr float kMaxPage = 5000.0F;
constexpr double kMinDpi = 10.0;
constexpr double kMaxDpi = 2400.0;
constexpr const char* kDataHelp = "a CSV file (name, value) that replaces the document's data";

bool ParseSide(std::string text, float& side) {
    return penlode::ser_evaluate(side, text, false) && side > 0.0F && side <= kMaxPage;
}

bool ParsePage(const std::string& text, penlode::SizeF& page) {
    const std::size_t cross = text.find_first_of("xX");
    return cross != std::string::npos && ParseSide(text.substr(0, cross), page.Width) &&
           ParseSide(text.substr(cross + 1), page.Height);
}

bool ParseDpi(std::string text, double& dpi) {
    return penlode::ser_evaluate(dpi, text, false) && dpi >= kMinDpi && dpi <= kMaxDpi;
}

bool ParseBackground(std::string text, penlode::Color& color) {
    if (text == "none") {
        color = penlode::Color{0U};
        return true;
    }
    return penlode::ser_evaluate(color, text, false);
}

/// An option whose text is read by `parse`; complains with the form that it should have.
template <class T, class Target>
void AddParsed(CLI::App& command, const std::string& name, Target& target, bool (*parse)(std::string, T&),
               const std::string& form, const std::string& help) {
    command.add_option_function<std::string>(
        name,
        [&target, parse, name, form](const std::string& text) {
            T value{};
            if (!parse(text, value)) {
                throw CLI::ValidationError(name, "found \"" + text + "\", expected " + form);
            }
            target = value;
        },
        help);
}

void AddDraw(CLI::App& app, DrawOptions& options) {
    const std::string formats = FormatList();
    const std::string pageName = kPlatform.PageName;
    CLI::App& draw = *app.add_subcommand("draw", "Draw chart documents as PNG, SVG or " + pageName);
    draw.add_option("FILE", options.Inputs, "chart documents (JSON); - is the standard input")->required();
    draw.add_option("-o,--output", options.Output,
                    "the picture, a folder for the pictures, or - for the standard output; without it "
                    "NAME.chart.json becomes NAME.png beside it");
    AddParsed<PictureFormat>(
        draw, "--format", options.Format,
        [](std::string text, PictureFormat& format) {
            const auto known = FormatOfEnding("." + text);
            format = known.value_or(format);
            return known.has_value();
        },
        formats, formats + ", where the name of -o does not tell");
    draw.add_option("--data", options.Data, kDataHelp);
    AddParsed<double>(draw, "--dpi", options.Dpi, ParseDpi, "a number from 10 to 2400",
                      "dots per inch of a PNG, from 10 to 2400; without it 96");
    AddParsed<penlode::SizeF>(
        draw, "--page", options.Page,
        [](std::string text, penlode::SizeF& page) { return ParsePage(text, page); },
        "WIDTHxHEIGHT in mm, each at most 5000, such as 210x297",
        "WIDTHxHEIGHT in mm, with the chart in its middle; without it the chart and a margin of 5 mm");
    AddParsed<penlode::Color>(
        draw, "--background", options.Background, ParseBackground, "a colour such as #FF336699, or none",
        "#RRGGBB, #AARRGGBB or none; without it white, for " + pageName + " the bare paper");
    draw.add_flag("--outlines", options.TextAsOutlines, "write an SVG's texts as glyph outlines");
    draw.add_flag("-v,--verbose", options.Verbose, "tell which faces the fonts are drawn in");
}

void AddNew(CLI::App& app, NewOptions& options) {
    CLI::App& command = *app.add_subcommand("new", "Write a complete document to start from");
    command.add_option("KIND", options.Kind, "the kind of chart: " + millichart::ChartKindNames())
        ->required();
    command.add_option("-o,--output", options.Output, "the file to write; without it the standard output");
    command.add_flag("--force", options.Force, "write over a file that is there already");
}

void AddCheck(CLI::App& app, CheckOptions& options) {
    CLI::App& check =
        *app.add_subcommand("check", "Tell what is wrong in chart documents, and what is missing");
    check.add_option("FILE", options.Inputs, "chart documents (JSON); - is the standard input")->required();
    check.add_option("--data", options.Data, kDataHelp);
    check.add_flag("--json", options.AsJson, "as a JSON list of objects, for programs");
}

void AddInspect(CLI::App& app, InspectOptions& options) {
    CLI::App& inspect = *app.add_subcommand("inspect", "Show a chart's layout and drawing calls as JSON");
    inspect.add_option("FILE", options.Input, "a chart document (JSON); - is the standard input")->required();
    inspect.add_option("--data", options.Data, kDataHelp);
}

/// The parser does not say which word it took for no command.
bool NamesCommand(const CLI::App& app, const std::string& word) {
    const auto named =
        app.get_subcommands([&word](const CLI::App* command) { return command->get_name() == word; });
    if (word.starts_with('-') || !named.empty()) {
        return true;
    }
    Tell("found " + (word.empty() ? "no command" : "\"" + word + "\"") +
         ", expected draw, new, check or inspect; millichart --help tells more");
    return false;
}

} // namespace

Wish ParseCommandLine(std::vector<std::string> arguments) {
    CLI::App app{"Draws chart documents.", "millichart"};
    app.require_subcommand(1);
    app.allow_windows_style_options(false);
    app.failure_message([](const CLI::App*, const CLI::Error& error) {
        return Printable(std::string("millichart: ") + error.what() + "; millichart --help tells more") +
               "\n";
    });
    app.set_version_flag("--version", "millichart " MILLICHART_VERSION);
    DrawOptions draw;
    NewOptions fresh;
    CheckOptions check;
    InspectOptions inspect;
    AddDraw(app, draw);
    AddNew(app, fresh);
    AddCheck(app, check);
    AddInspect(app, inspect);
    if (!NamesCommand(app, arguments.empty() ? "" : arguments.front())) {
        return Finished{kWrongUsage};
    }
    try {
        std::reverse(arguments.begin(), arguments.end()); // as the parser takes them
        app.parse(std::move(arguments));
    } catch (const CLI::ParseError& error) {
        return Finished{app.exit(error) == 0 ? 0 : kWrongUsage};
    }
    if (app.got_subcommand("draw")) {
        return draw;
    }
    if (app.got_subcommand("new")) {
        return fresh;
    }
    return app.got_subcommand("check") ? Wish(check) : Wish(inspect);
}

} // namespace cli
