#include "commands/Commands.h"
#include "files/Diagnostics.h"
#include "files/Streams.h"
#include "pages/LoadedChart.h"

#include <array>

namespace cli {
namespace {

constexpr std::array kSeverities{Severity::Error, Severity::Warning, Severity::Note};

/// sales.json: 2 errors, 0 warnings, 1 note
std::string Summary(const std::string& input, const std::vector<Diagnostic>& diagnostics) {
    std::string line = Printable(ShownName(input));
    const char* separator = ": ";
    for (const Severity severity : kSeverities) {
        line += separator + CountedDiagnostics(diagnostics, severity);
        separator = ", ";
    }
    return line + "\n";
}

std::string Lines(const std::vector<Diagnostic>& diagnostics) {
    std::string lines;
    for (const std::string& line : ToLines(diagnostics, true)) {
        lines += line + "\n";
    }
    return lines;
}

} // namespace

bool Check(const CheckOptions& options) {
    if (options.Data && options.Inputs.size() > 1) {
        throw UsageError("--data: expected one FILE with it");
    }
    std::vector<Diagnostic> all;
    std::string text;
    for (const std::string& input : options.Inputs) {
        const std::vector<Diagnostic> found = LoadChart(input, options.Data).Diagnostics;
        text += Lines(found) + Summary(input, found);
        all.insert(all.end(), found.begin(), found.end());
    }
    WriteOutput(kStandardStream, options.AsJson ? ToJson(all) : text);
    return !millichart::HasErrors(all);
}

} // namespace cli
