#include "commands/Commands.h"
#include "documents/NewDocument.h"
#include "files/Streams.h"

#include <filesystem>

namespace cli {
namespace {

namespace fs = std::filesystem;
using millichart::ChartDocument;
using millichart::PathFromUtf8;

/// Beside a document with that name, or in the current folder for the standard output, a table's own name
/// leads to it. What can be read only once has none.
std::string NameBeside(const std::string& output, const std::string& table) {
    std::error_code error;
    const std::string file = FileOf(table);
    const std::string scheme = table.substr(0, table.size() - file.size());
    if (IsDataBase(file) || (scheme.empty() && !fs::is_regular_file(PathFromUtf8(file), error))) {
        return IsDataBase(file) ? file : "";
    }
    const bool isHere = output == kStandardStream || !PathFromUtf8(output).has_parent_path();
    const bool isFixed = isHere || PathFromUtf8(file).is_absolute();
    const fs::path named = isFixed ? PathFromUtf8(file)
                                   : fs::proximate(PathFromUtf8(file), PathFromUtf8(output).parent_path(), error);
    return scheme + millichart::Utf8FromPath(named.empty() ? PathFromUtf8(file) : named);
}

ChartDocument Make(const NewOptions& options) {
    const ChartSource& source = options.Source;
    const std::vector<millichart::Setting> settings = AllSettings(source, *source.Kind);
    if (!source.Data) {
        return ChartDocument::FromInput({"", std::string(source.Kind->Template)}, std::nullopt, settings);
    }
    millichart::NewTable table;
    table.Name = NameBeside(options.Output, *source.Data);
    table.Table = table.Name.empty() ? ReadTableInput(*source.Data, source.Table)
                                     : millichart::TableInput{{}, source.Table};
    const bool isFile = options.Output != kStandardStream;
    return millichart::NewDocument(*source.Kind, std::move(table), settings, isFile ? options.Output : "");
}

} // namespace

bool WriteNew(const NewOptions& options) {
    std::error_code error;
    if (!options.Force && options.Output != kStandardStream &&
        fs::is_regular_file(PathFromUtf8(options.Output), error)) {
        throw UserError(options.Output, "is there already; with --force it is written over");
    }
    const ChartDocument document = Make(options);
    std::vector<Diagnostic> problems = document.Diagnostics();
    TellOfOptions(ShownOutput(options.Output), options.Source, problems);
    TellProblems(problems);
    if (document.IsSound()) {
        WriteOutput(options.Output, document.Text());
    }
    return document.IsSound();
}

} // namespace cli
