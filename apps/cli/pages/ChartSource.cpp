#include "pages/ChartSource.h"

#include "documents/tables/QuerySource.h"
#include "files/Streams.h"
#include "pages/PaperSize.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string_view>

namespace cli {
namespace {

constexpr std::array<std::string_view, 6> kTableEndings{".csv", ".tsv", ".tab", ".txt", ".xlsx", ".ods"};
/// Spreadsheet files are archives.
constexpr std::string_view kArchive = "PK\x03\x04";

} // namespace

millichart::TableInput ReadTableInput(const std::string& name, const millichart::TableOptions& options) {
    return millichart::IsQuerySource(name) ? millichart::QueryInput(name, options)
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
