#include "commands/Commands.h"
#include "commands/Json.h"
#include "files/Console.h"
#include "files/Streams.h"
#include "pages/LoadedChart.h"

namespace cli {
namespace {

/// The document, its parts, and each entry of these stand on lines of their own.
constexpr int kLevels = 2;

} // namespace

bool Inspect(const InspectOptions& options) {
    LoadedChart loaded = LoadChart(options.Inputs.front(), options.Source);
    TellProblems(loaded.Diagnostics);
    if (!loaded.Chart) {
        return false;
    }
    penlode::CRecordingEngine recorder;
    const std::vector<Diagnostic> ofRows = loaded.Chart->TakeRows(recorder);
    TellProblems(ofRows);
    if (millichart::HasErrors(ofRows)) {
        return false;
    }
    loaded.Chart->Draw(recorder);
    const Json inspected{{"file", ShownName(options.Inputs.front())},
                         {"kind", millichart::KindOf(loaded.Document.Content)->Name},
                         {"extent", ToJson(loaded.Chart->InkExtent())},
                         {"layout", LayoutToJson(*loaded.Chart)},
                         {"texts", DrawnTextsToJson(*loaded.Chart)},
                         {"shapes", ShapesToJson(*loaded.Chart)},
                         {"calls", CallsToJson(recorder.Calls())}};
    WriteOutput(kStandardStream, Printed(inspected, kLevels));
    return true;
}

} // namespace cli
