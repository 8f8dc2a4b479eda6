#include "commands/InspectCommand.h"

#include "commands/CallsToJson.h"
#include "files/Console.h"
#include "files/InputFile.h"
#include "files/OutputFile.h"
#include "pages/ChartDocument.h"

namespace cli {
namespace {

/// The document, its parts, and each entry of these stand on lines of their own.
constexpr int kLevels = 2;

} // namespace

bool Inspect(const InspectOptions& options) {
    const ChartDocument document = LoadChartDocument(options.Input, options.Data);
    TellProblems(document.Messages);
    if (document.Content == nullptr) {
        return false;
    }
    penlode::CRecordingEngine recorder;
    document.Content->Draw(recorder);
    const Json inspected{{"file", ShownName(options.Input)},
                         {"kind", document.Kind},
                         {"extent", ToJson(document.Content->InkExtent())},
                         {"layout", document.Content->Layout()},
                         {"calls", CallsToJson(recorder.Calls())}};
    WriteOutput(kStandardStream, Printed(inspected, kLevels));
    return true;
}

} // namespace cli
