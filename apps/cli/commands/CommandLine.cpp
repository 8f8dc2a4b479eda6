#include "commands/CommandLine.h"

#include "commands/ChartOptions.h"
#include "commands/ParsedOption.h"
#include "documents/ChartContent.h"
#include "documents/Forms.h"
#include "files/Console.h"
#include "files/Streams.h"
#include "pages/PaperSize.h"
#include "pages/Platform.h"
#include "penlode/streams/TextForms.h"
#include "penlode/text/Digits.h"

#include <algorithm>
#include <array>
#include <iostream>

namespace cli {
namespace {

constexpr double kMinDpi = 10.0;
constexpr double kMaxDpi = 2400.0;
constexpr std::size_t kMaxJobs = 256;
constexpr std::array kCommands{"draw", "new", "check", "inspect", "edit"};
constexpr const char* kInputsHelp = "chart documents (JSON), or with --kind tables; - is the standard input";

bool ParseDpi(std::string text, double& dpi) {
    return penlode::ser_evaluate(dpi, text, false) && dpi >= kMinDpi && dpi <= kMaxDpi;
}

bool ParseBackground(const std::string& text, penlode::Color& color) {
    const auto known = text == "none" ? penlode::Color{0U} : millichart::documents::ColorOf(text);
    color = known.value_or(color);
    return known.has_value();
}

bool ParseJobs(const std::string& text, std::size_t& jobs) {
    jobs = penlode::NumberOf<std::size_t>(text).value_or(0);
    return jobs >= 1 && jobs <= kMaxJobs;
}

void AddSource(CLI::App& command, ChartSource& source) {
    AddKindOption(command, source);
    AddTableOptions(command, source);
    AddStreamOption(command, source);
    AddLookOptions(command, source);
}

void AddPicture(CLI::App& draw, DrawOptions& options) {
    const std::string formats = FormatList();
    const std::string pageName = kPlatform.PageName;
    draw.add_option(
        "-o,--output", options.Output,
        "the picture, such as pictures/{name}.png for several; a folder for the pictures; or - for "
        "the standard output; without it NAME.chart.json becomes NAME.png beside it");
    AddParsed<PictureFormat>(
        draw, "--format", options.Format,
        [](const std::string& text, PictureFormat& format) {
            const auto known = FormatOfEnding("." + text);
            format = known.value_or(format);
            return known.has_value();
        },
        formats, formats + ", where the name of -o does not tell");
    AddParsed<double>(draw, "--dpi", options.Dpi, ParseDpi, "a number from 10 to 2400",
                      "dots per inch of a PNG, from 10 to 2400; without it 96");
    AddParsed<penlode::SizeF>(draw, "--page", options.Page, ParseSize, kSizeForm,
                              "WIDTHxHEIGHT in mm, with the chart in its middle, or as of --size; without it "
                              "the chart and a margin of 5 mm");
    draw.add_flag("--fit", options.FillsPage, "the figure fills --page");
    AddParsed<penlode::Color>(draw, "--background", options.Background, ParseBackground,
                              "a colour such as #FF336699 or steelblue, or none",
                              "#RRGGBB, #AARRGGBB, a colour's name or none; without it white, for " +
                                  pageName + " the bare paper");
    draw.add_flag("--outlines", options.TextAsOutlines, "write an SVG's texts as glyph outlines");
}

void AddVoice(CLI::App& command, bool& isStrict, Voice& voice) {
    command.add_flag("--strict", isStrict, "take warnings for errors");
    command.add_flag("--quiet", voice.IsQuiet, "no warnings");
    command.add_flag("--json", voice.AsJson, "messages as JSON objects, one a line, for programs");
}

void AddDraw(CLI::App& app, DrawOptions& options) {
    CLI::App& draw =
        *app.add_subcommand("draw", std::string("Draw charts as PNG, SVG or ") + kPlatform.PageName);
    draw.add_option("FILE", options.Inputs, kInputsHelp);
    AddSource(draw, options.Source);
    AddPicture(draw, options);
    AddVoice(draw, options.IsStrict, options.Voice);
    draw.add_flag("-v,--verbose", options.Verbose, "tell which faces the fonts are drawn in");
    AddParsed<std::size_t>(draw, "--jobs", options.Jobs, ParseJobs, "a whole number from 1 to 256",
                           "how many are drawn at once; without it one after the other");
}

void AddNew(CLI::App& app, NewOptions& options) {
    CLI::App& command = *app.add_subcommand("new", "Write a complete document to start from");
    AddKind(command, "KIND", options.Source,
            "the kind of chart: " + millichart::ChartKindNames() + ", or bar, line and the like")
        ->required();
    AddTableOptions(command, options.Source);
    AddLookOptions(command, options.Source);
    command.add_option("-o,--output", options.Output, "the file to write; without it the standard output");
    command.add_flag("--force", options.Force, "write over a file that is there already");
}

void AddCheck(CLI::App& app, CheckOptions& options) {
    CLI::App& check =
        *app.add_subcommand("check", "Tell what is wrong in chart documents, and what is missing");
    check.add_option("FILE", options.Inputs, kInputsHelp);
    AddSource(check, options.Source);
    AddVoice(check, options.IsStrict, options.Voice);
}

void AddInspect(CLI::App& app, InspectOptions& options) {
    CLI::App& inspect = *app.add_subcommand("inspect", "Show a chart's layout and drawing calls as JSON");
    inspect
        .add_option("FILE", options.Inputs,
                    "a chart document (JSON), or with --kind a table; - is the "
                    "standard input")
        ->expected(0, 1);
    AddSource(inspect, options.Source);
}

void AddEdit(CLI::App& app, EditOptions& options) {
    CLI::App& edit = *app.add_subcommand("edit", "Open charts in a window to make and change them");
    edit.add_option("FILE", options.Inputs, "chart documents (JSON) or tables; without any the window asks");
}

/// A figure of a size is its own page, and one that fills a page is as large.
void SettlePage(DrawOptions& options) {
    if (options.FillsPage && (!options.Page || options.Source.Figure)) {
        throw UsageError("--fit: expected --page with it, and no --size");
    }
    if (options.FillsPage) {
        options.Source.Figure = options.Page;
    }
    if (options.Source.Figure && !options.Page) {
        options.Page = options.Source.Figure;
    }
}

bool IsCommand(const std::string& word) {
    return std::find(kCommands.begin(), kCommands.end(), word) != kCommands.end();
}

/// "help draw" is "draw --help". Was help asked for so?
bool SpellOutHelp(std::vector<std::string>& arguments) {
    const bool isHelp = !arguments.empty() && arguments.front() == "help";
    if (isHelp) {
        arguments.erase(arguments.begin());
        arguments.insert(arguments.begin() + (arguments.empty() ? 0 : 1), "--help");
    }
    return isHelp;
}

/// The parser does not say which word it took for no command.
bool NamesCommand(const std::string& word) {
    if (word.starts_with('-') || IsCommand(word)) {
        return true;
    }
    Tell("found " + (word.empty() ? "no command" : "\"" + word + "\"") +
         ", expected draw, new, check, inspect or edit; millichart --help tells more");
    return false;
}

/// Shows what the parser has to say, help or a complaint; the program's exit status.
int Show(const CLI::App& app, const CLI::ParseError& error) {
    const int status = app.exit(error);
    if (!std::cout.flush()) {
        throw UserError(ShownOutput(kStandardStream), "cannot be written");
    }
    return status == 0 ? 0 : kWrongUsage;
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
    EditOptions edit;
    AddDraw(app, draw);
    AddNew(app, fresh);
    AddCheck(app, check);
    AddInspect(app, inspect);
    AddEdit(app, edit);
    const bool isHelp = SpellOutHelp(arguments);
    if (!NamesCommand(arguments.empty() ? "" : arguments.front())) {
        std::cerr << (isHelp ? app.help() : "");
        return Finished{kWrongUsage};
    }
    try {
        std::reverse(arguments.begin(), arguments.end()); // as the parser takes them
        app.parse(std::move(arguments));
    } catch (const CLI::ParseError& error) {
        return Finished{Show(app, error)};
    }
    if (app.got_subcommand("draw")) {
        Settle(draw.Inputs, draw.Source);
        SettlePage(draw);
        return draw;
    }
    if (app.got_subcommand("new")) {
        CheckTable(fresh.Source, fresh.Source.Data.has_value());
        return fresh;
    }
    if (app.got_subcommand("check")) {
        Settle(check.Inputs, check.Source);
        return check;
    }
    if (app.got_subcommand("edit")) {
        return edit;
    }
    Settle(inspect.Inputs, inspect.Source);
    return inspect;
}

} // namespace cli
