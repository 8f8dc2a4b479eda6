#include "pages/ChartSource.h"

#include "documents/large/ByteSource.h"
#include "documents/tables/QuerySource.h"
#include "files/Streams.h"
#include "pages/PaperSize.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <string_view>
#include <utility>

namespace cli {
namespace {

constexpr std::array<std::string_view, 6> kTableEndings{".csv", ".tsv", ".tab", ".txt", ".xlsx", ".ods"};
/// Spreadsheet files are archives.
constexpr std::string_view kArchive = "PK\x03\x04";

constexpr std::uintmax_t kMostHeld = std::uintmax_t{64} << 20U;
/// What is read of a pipe before it is found to be long stays in the memory for a while.
constexpr std::size_t kMostHeldOfPipe = std::size_t{32} << 20U;

/// A text that turns out short is held.
millichart::TableInput BeginPipe(const std::string& name, const millichart::TableOptions& options,
                                 std::unique_ptr<std::istream> file, std::size_t most) {
    std::istream& stream = file ? *file : std::cin;
    millichart::TableInput input{{ShownName(name)}, options};
    input.Input.Text.resize(most);
    stream.read(input.Input.Text.data(), static_cast<std::streamsize>(most));
    input.Input.Text.resize(static_cast<std::size_t>(stream.gcount()));
    if (input.Input.Text.size() == most) {
        std::string begun = std::exchange(input.Input.Text, {});
        input.Stream = file ? millichart::GoOnReading(std::move(begun), std::move(file))
                            : millichart::GoOnReading(std::move(begun), std::cin);
    }
    return input;
}

/// Streams what is long, or all if that is `wished`.
millichart::TableInput BeginInput(const std::string& name, const millichart::TableOptions& options,
                                  bool wished) {
    const std::filesystem::path path = millichart::PathFromUtf8(name);
    std::error_code error;
    const bool isFile = name != kStandardStream && std::filesystem::is_regular_file(path, error);
    if (isFile) {
        if (!wished && std::filesystem::file_size(path, error) <= kMostHeld) {
            return {ReadInput(name), options};
        }
        millichart::TableInput input{{name}, options};
        input.Stream = millichart::OpenBytes(name);
        input.Input.Fault = input.Stream->Fault();
        return input;
    }
    const std::size_t most = wished ? 1 : kMostHeldOfPipe;
    if (name == kStandardStream) {
        return BeginPipe(name, options, nullptr, most);
    }
    auto file = std::make_unique<std::ifstream>(path, std::ios::binary);
    const bool isPipe = *file && !std::filesystem::is_directory(path, error);
    return isPipe ? BeginPipe(name, options, std::move(file), most)
                  : millichart::TableInput{ReadInput(name), options};
}

} // namespace

millichart::TableInput ReadTableInput(const std::string& name, const millichart::TableOptions& options,
                                      std::optional<bool> streams) {
    if (millichart::IsQuerySource(name)) {
        return millichart::QueryInput(name, options);
    }
    return streams.value_or(true) ? BeginInput(name, options, streams.has_value())
                                  : millichart::TableInput{ReadInput(name), options};
}

bool IsTable(const millichart::InputText& input) {
    std::string ending = millichart::Utf8FromPath(millichart::PathFromUtf8(input.Name).extension());
    std::transform(ending.begin(), ending.end(), ending.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    const bool isNamedSo =
        std::find(kTableEndings.begin(), kTableEndings.end(), ending) != kTableEndings.end();
    const std::size_t first = input.Text.find_first_not_of(" \t\r\n\xEF\xBB\xBF");
    const bool isDocument = first != std::string::npos && input.Text[first] == '{';
    return (isNamedSo && !isDocument && input.Fault.empty()) || input.Text.starts_with(kArchive);
}

std::vector<millichart::Setting> AllSettings(const ChartSource& source, const millichart::ChartKind& kind) {
    std::vector<millichart::Setting> settings = SettingsOf(source.Look, kind);
    settings.insert(settings.end(), source.Settings.begin(), source.Settings.end());
    return settings;
}

void TellOfOptions(const std::string& name, const ChartSource& source,
                   std::vector<penlode::Diagnostic>& diagnostics) {
    for (penlode::Diagnostic& told : diagnostics) {
        const bool isSet = std::any_of(
            source.Settings.begin(), source.Settings.end(), [&told](const millichart::Setting& setting) {
                return !told.Place.empty() && (millichart::IsPlaceIn(told.Place, setting.Place) ||
                                               millichart::IsPlaceIn(setting.Place, told.Place));
            });
        const bool isMade = told.File.empty();
        if (isSet && (isMade || told.File == name) && told.Severity != penlode::Severity::Note) {
            told.File = "--set";
        } else if (isMade) {
            told.File = name;
            told.Line = 0;
        }
    }
}

void FitFigure(millichart::ChartDocument& document, const ChartSource& source,
               std::vector<penlode::Diagnostic>& diagnostics) {
    if (source.Figure && !millichart::HasErrors(diagnostics) && !document.FitTo(*source.Figure)) {
        diagnostics.push_back(penlode::Error(
            "", "does not fit a figure of " + Millimetres(*source.Figure) +
                    "; expected a larger one, shorter texts or the legend elsewhere, or data to draw"));
    }
}

} // namespace cli
