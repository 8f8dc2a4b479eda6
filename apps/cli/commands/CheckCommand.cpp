#include "commands/Commands.h"
#include "files/Diagnostics.h"
#include "files/Streams.h"
#include "pages/LoadedChart.h"

#include <algorithm>
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
    for (const std::string& line : ToLines(diagnostics)) {
        lines += line + "\n";
    }
    return lines;
}

} // namespace

bool Check(const CheckOptions& options) {
    std::string text;
    bool isGood = true;
    for (const std::string& input : options.Inputs) {
        std::vector<Diagnostic> found = LoadChart(input, options.Source).Diagnostics;
        if (options.IsStrict) {
            TakeWarningsForErrors(found);
        }
        isGood = isGood && !millichart::HasErrors(found);
        std::vector<Diagnostic> told = found;
        if (options.Voice.IsQuiet) {
            std::erase_if(told, [](const Diagnostic& each) { return each.Severity != Severity::Error; });
        }
        text += options.Voice.AsJson ? ToJsonLines(told) : Lines(told) + Summary(input, found);
    }
    WriteOutput(kStandardStream, text);
    return isGood;
}

} // namespace cli
