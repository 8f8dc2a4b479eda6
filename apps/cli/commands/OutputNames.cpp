#include "commands/OutputNames.h"

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

bool IsFolder(const DrawOptions& options) {
    std::error_code error;
    const fs::path output = PathFromUtf8(*options.Output);
    const bool endsInSeparator = !output.empty() && !output.has_filename();
    return options.Output != kStandardStream &&
           (options.Inputs.size() > 1 || endsInSeparator || fs::is_directory(output, error));
}

/// NAME for NAME.chart.json and NAME.json.
std::string BaseName(const std::string& input) {
    std::string name = Utf8FromPath(PathFromUtf8(input).filename());
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
        return "standard input: expected --format " + FormatList() + ", or -o FILE, with it";
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

void MakeFolder(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (error) {
        throw UserError(Utf8FromPath(folder),
                        "cannot be made a folder: " + error.default_error_condition().message());
    }
}

} // namespace

void CheckOutputs(const DrawOptions& options) {
    const auto standard = std::count(options.Inputs.begin(), options.Inputs.end(), kStandardStream);
    if (standard + (options.Data == kStandardStream ? 1 : 0) > 1) {
        throw UsageError("-: the standard input can be read only once");
    }
    if (options.Data && options.Inputs.size() > 1) {
        throw UsageError("--data: expected one FILE with it");
    }
    if (options.Inputs.size() > 1 && options.Output == kStandardStream) {
        throw UsageError("-o -: expected one FILE with it");
    }
    if (options.Format) {
        RefuseOtherPage("--format", *options.Format);
    }
    if (options.Output ? !IsFolder(options) : standard == 1) {
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
    if (options.Data) {
        read.push_back(*options.Data);
    }
    for (const std::string& file : read) {
        if (file != kStandardStream && fs::equivalent(PathFromUtf8(file), PathFromUtf8(output), error)) {
            throw UserError(shownInput, "its picture would take the place of " + file);
        }
    }
}

OutputName OutputOf(const DrawOptions& options, const std::string& input) {
    const bool toStandard = !options.Output && input == kStandardStream;
    if (toStandard || (options.Output && !IsFolder(options))) {
        const std::string name = options.Output.value_or(kStandardStream);
        return {name, options.Format ? *options.Format : *FormatOfName(name)};
    }
    const PictureFormat format = options.Format.value_or(PictureFormat::Png);
    const fs::path folder =
        options.Output ? PathFromUtf8(*options.Output) : PathFromUtf8(input).parent_path();
    if (options.Output) {
        MakeFolder(folder);
    }
    const std::string base = input == kStandardStream ? "chart" : BaseName(input);
    return {Utf8FromPath(folder / PathFromUtf8(base + EndingOf(format))), format};
}

} // namespace cli
