#include "commands/CheckCommand.h"

#include "files/InputFile.h"
#include "files/OutputFile.h"
#include "files/UserError.h"
#include "pages/ChartDocument.h"

#include <array>

namespace cli {
namespace {

constexpr std::array kWeights{Severity::Error, Severity::Warning, Severity::Note};

/// sales.json: 2 errors, 0 warnings, 1 note
std::string Summary(const std::string& input, const std::vector<Message>& messages) {
    std::string line = Printable(ShownName(input));
    const char* separator = ": ";
    for (const Severity weight : kWeights) {
        line += separator + CountedMessages(messages, weight);
        separator = ", ";
    }
    return line + "\n";
}

std::string Lines(const std::vector<Message>& messages) {
    std::string lines;
    for (const std::string& line : ToLines(messages, true)) {
        lines += line + "\n";
    }
    return lines;
}

} // namespace

bool Check(const CheckOptions& options) {
    if (options.Data && options.Inputs.size() > 1) {
        throw UsageError("--data: expected one FILE with it");
    }
    std::vector<Message> all;
    std::string text;
    for (const std::string& input : options.Inputs) {
        const std::vector<Message> messages = LoadChartDocument(input, options.Data).Messages;
        text += Lines(messages) + Summary(input, messages);
        all.insert(all.end(), messages.begin(), messages.end());
    }
    WriteOutput(kStandardStream, options.AsJson ? ToJson(all) : text);
    return !HasErrors(all);
}

} // namespace cli
