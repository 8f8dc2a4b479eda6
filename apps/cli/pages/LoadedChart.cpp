#include "pages/LoadedChart.h"

#include "documents/NewDocument.h"
#include "files/Streams.h"
#include "penlode/streams/JsonSerializeStream.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <new>
#include <utility>

namespace cli {
namespace {

using millichart::ChartDocument;
using millichart::InputText;
using penlode::Diagnostic;

/// What the layout found, in the order of what the load found.
void LayOut(LoadedChart& loaded) {
    loaded.Chart = std::move(loaded.Document).LayOut();
    std::vector<Diagnostic> found = loaded.Chart->Diagnostics;
    if (millichart::HasErrors(found)) {
        loaded.Chart.reset();
    } else {
        FontReport fonts = ReportFonts(*loaded.Chart);
        found.insert(found.end(), fonts.Warnings.begin(), fonts.Warnings.end());
        loaded.Faces = std::move(fonts.Faces);
    }
    if (!found.empty()) {
        loaded.Diagnostics.insert(loaded.Diagnostics.end(), found.begin(), found.end());
        loaded.Document.PutInOrder(loaded.Diagnostics);
    }
}

/// The look depends on the document's kind. A document of none is told of when it is loaded.
std::vector<millichart::Setting> SettingsFor(const InputText& input, const ChartSource& source) {
    if (source.Look == Look()) {
        return source.Settings;
    }
    penlode::CJsonSerializeStream json(input.Text, input.Name);
    std::string name;
    json.Ser("kind", name, {});
    const millichart::ChartKind* const kind =
        millichart::FindChartKind(penlode::CStringUtil::AnsiToUtf8(name));
    return kind == nullptr ? source.Settings : AllSettings(source, *kind);
}

ChartDocument LoadDocument(const std::string& name, const ChartSource& source) {
    InputText input = ReadInput(name);
    if (IsTable(input)) {
        input.Fault = "is a table and no chart document; with --kind pie, bar or line it is drawn";
    }
    std::vector<millichart::Setting> settings = SettingsFor(input, source);
    std::optional<millichart::TableInput> table;
    if (source.Data) {
        table = ReadTableInput(*source.Data, source.Table, source.Streams);
    }
    return ChartDocument::FromInput(std::move(input), std::move(table), settings);
}

LoadedChart Load(const std::string& input, const ChartSource& source) {
    LoadedChart loaded;
    loaded.Document =
        source.Kind == nullptr
            ? LoadDocument(input, source)
            : millichart::NewDocument(*source.Kind, {ReadTableInput(input, source.Table, source.Streams)},
                                      AllSettings(source, *source.Kind));
    loaded.Diagnostics = loaded.Document.Diagnostics();
    FitFigure(loaded.Document, source, loaded.Diagnostics);
    if (!millichart::HasErrors(loaded.Diagnostics)) {
        LayOut(loaded);
    }
    const millichart::ChartKind* const kind = millichart::KindOf(loaded.Document.Content);
    if (source.Look.Title && kind != nullptr && !DrawsTitle(*kind)) {
        loaded.Diagnostics.push_back(penlode::Warning(
            "title",
            std::string("a chart of the kind ") + kind->Name +
                " has no caption, so that the title is not drawn; it becomes that of an SVG or PDF file"));
    }
    TellOfOptions(ShownName(input), source, loaded.Diagnostics);
    return loaded;
}

/// A chart without anything but why it is not there.
LoadedChart Failed(const std::string& input, const std::string& reason) {
    LoadedChart none;
    none.Diagnostics = {penlode::Error("", reason)};
    none.Diagnostics.front().File = ShownName(input);
    return none;
}

} // namespace

LoadedChart LoadChart(const std::string& input, const ChartSource& source) {
    try {
        return Load(input, source);
    } catch (const std::bad_alloc&) {
        return Failed(input, kTooLittleMemory);
    } catch (const UsageError& error) {
        return Failed(input, error.what());
    }
}

} // namespace cli
