#include "commands/OutputNames.h"

#include "documents/tables/QuerySource.h"
#include "files/Streams.h"
#include "files/System.h"
#include "pages/Platform.h"

#include <algorithm>
#include <string_view>

namespace cli {
namespace {

namespace fs = std::filesystem;
using millichart::PathFromUtf8;
using millichart::Utf8FromPath;

constexpr std::string_view kNamePart = "{name}";

bool IsPattern(const DrawOptions& options) {
    return options.Output && options.Output->find(kNamePart) != std::string::npos;
}

bool IsFolder(const DrawOptions& options) {
    std::error_code error;
    const fs::path output = PathFromUtf8(*options.Output);
    const bool endsInSeparator = !output.empty() && !output.has_filename();
    return options.Output != kStandardStream && !IsPattern(options) &&
           (options.Inputs.size() > 1 || endsInSeparator || fs::is_directory(output, error));
}

/// NAME for NAME.chart.json and NAME.json, and for a table of whatever ending.
std::string BaseName(const DrawOptions& options, const std::string& input) {
    if (input == kStandardStream || millichart::IsQuerySource(input)) {
        return "chart";
    }
    const fs::path path = PathFromUtf8(input);
    if (options.Source.Kind != nullptr) {
        return Utf8FromPath(path.stem());
    }
    std::string name = Utf8FromPath(path.filename());
    for (const std::string_view ending : {".json", ".chart"}) {
        if (name.ends_with(ending) && name.size() > ending.size()) {
            name.resize(name.size() - ending.size());
        }
    }
    return name;
}

/// What an output needs whose name tells no format.
std::string NeededFormat(const DrawOptions& options) {
    if (!options.Output) {
        return ShownName(options.Inputs.front()) + ": expected --format " + FormatList() +
               ", or -o FILE, with it";
    }
    return "-o " + *options.Output +
           (options.Output == kStandardStream
                ? ": expected --format " + FormatList() + " with it"
                : ": expected a name that ends in " + FormatList(".") + ", or --format");
}

void RefuseOtherPage(const std::string& option, PictureFormat format) {
    if (!IsDrawn(format)) {
        throw UsageError(option + ": " + kPlatform.OtherPage);
    }
}

/// Braces that stand for nothing are no part of a name that anybody meant.
void CheckBraces(const std::string& output) {
    for (std::size_t open = output.find('{'); open != std::string::npos; open = output.find('{', open + 1)) {
        if (output.compare(open, kNamePart.size(), kNamePart) != 0) {
            const std::string found = output.substr(open, output.find('}', open) - open + 1);
            throw UsageError("-o " + output + ": found " + found + ", expected {name}, the input's name");
        }
    }
}

/// A folder of that name could hardly be meant.
void RefuseOneForSeveral(const DrawOptions& options) {
    std::error_code error;
    if (options.Inputs.size() > 1 && !IsPattern(options) && FormatOfName(*options.Output) &&
        !fs::is_directory(PathFromUtf8(*options.Output), error)) {
        throw UsageError("-o " + *options.Output +
                         ": is one picture for several inputs, expected a folder, or {name} in it");
    }
}

void CheckOneFile(const DrawOptions& options) {
    const auto told = options.Output ? FormatOfName(*options.Output) : std::nullopt;
    if (!told && !options.Format) {
        throw UsageError(NeededFormat(options));
    }
    if (told && options.Format && *told != *options.Format) {
        throw UsageError("-o " + *options.Output + ": its ending tells another format than --format");
    }
    if (told) {
        RefuseOtherPage("-o " + *options.Output, *told);
    }
}

/// A terminal would take the bytes for commands.
void CheckTerminal(const DrawOptions& options) {
    const std::string output = options.Output.value_or(kStandardStream);
    if (output == kStandardStream && options.Format != PictureFormat::Svg && OutputGoesToTerminal()) {
        throw UsageError(ShownOutput(output) + ": is a terminal; expected -o FILE, or a pipe");
    }
}

} // namespace

void CheckOutputs(const DrawOptions& options) {
    const auto standard = std::count(options.Inputs.begin(), options.Inputs.end(), kStandardStream);
    if (standard + (options.Source.Data == kStandardStream ? 1 : 0) > 1) {
        throw UsageError("-: the standard input can be read only once");
    }
    if (options.Output) {
        CheckBraces(*options.Output);
        RefuseOneForSeveral(options);
    }
    if (options.Inputs.size() > 1 && options.Output == kStandardStream) {
        throw UsageError("-o -: expected one FILE with it");
    }
    if (options.Format) {
        RefuseOtherPage("--format", *options.Format);
    }
    const bool hasDataBase =
        std::any_of(options.Inputs.begin(), options.Inputs.end(),
                    [](const std::string& input) { return millichart::IsQuerySource(input); });
    if (options.Output ? !IsFolder(options) : standard == 1 || hasDataBase) {
        CheckOneFile(options);
        CheckTerminal(options);
    }
}

void RefuseToOverwrite(const std::string& output, const std::string& shownInput, const DrawOptions& options,
                       const std::vector<std::string>& dataFiles) {
    std::error_code error;
    if (output == kStandardStream || !fs::is_regular_file(PathFromUtf8(output), error)) {
        return;
    }
    std::vector<std::string> read = options.Inputs;
    read.insert(read.end(), dataFiles.begin(), dataFiles.end());
    if (options.Source.Data) {
        read.push_back(*options.Source.Data);
    }
    for (const std::string& name : read) {
        const std::string base = millichart::FileOfQuerySource(name);
        const std::string& file = base.empty() ? name : base;
        if (file != kStandardStream && fs::equivalent(PathFromUtf8(file), PathFromUtf8(output), error)) {
            throw UserError(shownInput, "its picture would take the place of " + file);
        }
    }
}

void MakeFolder(const std::string& folder) {
    std::error_code error;
    fs::create_directories(PathFromUtf8(folder), error);
    if (error) {
        throw UserError(folder, "cannot be made a folder: " + error.default_error_condition().message());
    }
}

OutputName OutputOf(const DrawOptions& options, const std::string& input) {
    const std::string base = BaseName(options, input);
    if (IsPattern(options)) {
        std::string name = *options.Output;
        for (std::size_t at = name.find(kNamePart); at != std::string::npos;
             at = name.find(kNamePart, at + base.size())) {
            name.replace(at, kNamePart.size(), base);
        }
        const auto told = options.Format ? options.Format : FormatOfName(name);
        return {name, *told, Utf8FromPath(PathFromUtf8(name).parent_path())};
    }
    const bool toStandard = !options.Output && (input == kStandardStream || millichart::IsQuerySource(input));
    if (toStandard || (options.Output && !IsFolder(options))) {
        const std::string name = options.Output.value_or(kStandardStream);
        return {name, options.Format ? *options.Format : *FormatOfName(name)};
    }
    const PictureFormat format = options.Format.value_or(PictureFormat::Png);
    const fs::path folder =
        options.Output ? PathFromUtf8(*options.Output) : PathFromUtf8(input).parent_path();
    return {Utf8FromPath(folder / PathFromUtf8(base + EndingOf(format))), format,
            options.Output.value_or("")};
}

} // namespace cli
